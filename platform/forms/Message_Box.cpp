#include "platform/forms/Message_Box.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>

#include "platform/forms/Form_Texts.h"
#include "platform/forms/Mnemonics.h"
#include "platform/forms/Qt_Text.h"
#include "platform/run_time/Guard.h"

namespace Forms {

namespace {

using Watcher = std::function<std::optional<bool>(const Box&)>;

Watcher& The_Watcher() {
  static Watcher watcher;
  return watcher;
}

int boxes_shown = 0;
int boxes_up = 0;

// The frame would cut a title that is wider than the text.
void Make_Room_For_Title(QMessageBox& dialog) {
  constexpr int frame_buttons = 110;
  auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
  if (grid == nullptr) return;
  const QFontMetrics metrics(QApplication::font("QMdiSubWindowTitleBar"));
  auto* room = new QSpacerItem(metrics.horizontalAdvance(dialog.windowTitle()) + frame_buttons, 0);
  grid->addItem(room, grid->rowCount(), 0, 1, grid->columnCount());
}

QMessageBox::Icon Icon_Of(Sign sign) {
  switch (sign) {
    case Sign::Warning:
      return QMessageBox::Warning;
    case Sign::Critical:
      return QMessageBox::Critical;
    case Sign::Question:
      return QMessageBox::Question;
    default:
      return QMessageBox::Information;
  }
}

void Add_Buttons(QMessageBox& dialog, const Box& box) {
  const Texts_Of_Forms& texts = Form_Texts();
  if (!box.asks) {
    dialog.addButton(QMessageBox::Ok)->setText(Escaped(texts.ok));
    return;
  }
  Letters letters;
  const bool yes_by_enter = box.by_enter == Answer::Yes;
  dialog.addButton(QMessageBox::Yes)->setText(letters.Give(texts.yes, "Yes"));
  dialog.addButton(QMessageBox::No)->setText(letters.Give(texts.no, "No"));
  dialog.setDefaultButton(yes_by_enter ? QMessageBox::Yes : QMessageBox::No);
}

bool Ask(const Box& box) {
  QMessageBox dialog(Icon_Of(box.sign), To_Qt(box.title), To_Show(box.text), QMessageBox::NoButton,
                     QApplication::activeWindow());
  dialog.setObjectName("Message_Box");
  dialog.setTextFormat(Qt::PlainText);
  dialog.setWindowModality(Qt::ApplicationModal);
  Add_Buttons(dialog, box);
  dialog.setEscapeButton(box.asks ? QMessageBox::No : QMessageBox::Ok);
  Make_Room_For_Title(dialog);
  return dialog.exec() != QMessageBox::No;
}

bool Show(const Box& box) {
  struct Mark {
    Mark() { ++boxes_up; }
    ~Mark() { --boxes_up; }
  } const mark;
  ++boxes_shown;
  if (The_Watcher()) {
    if (const std::optional<bool> answer = The_Watcher()(box)) return *answer;
  }
  return Ask(box);
}

}  // namespace

void Message_Box(std::string_view text, std::string_view title, Sign sign) {
  Commit_Before_Showing();
  Show({std::string(title), std::string(text), false, sign});
}

bool Ask_Yes_No(std::string_view text, std::string_view title, Answer by_enter) {
  Commit_Before_Showing();
  return Show({std::string(title), std::string(text), true, Sign::Question, by_enter});
}

void Show_Failure(const Run_Time_Error& error) {
  Show({"Wine Cellar",
        "Run-time error '" + std::to_string(error.Number()) + "':\n\n" + error.Text(), false,
        Sign::Critical});
}

void Watch_Boxes_For_Tests(Watcher watcher) { The_Watcher() = std::move(watcher); }

int Boxes_Shown() { return boxes_shown; }

bool Box_Is_Up() { return boxes_up > 0; }

}  // namespace Forms
