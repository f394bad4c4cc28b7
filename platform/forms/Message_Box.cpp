#include "platform/forms/Message_Box.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>

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

bool Ask(const Box& box) {
  QMessageBox dialog(QMessageBox::NoIcon, To_Qt(box.title), To_Show(box.text),
                     QMessageBox::NoButton, QApplication::activeWindow());
  dialog.setObjectName("Message_Box");
  dialog.setTextFormat(Qt::PlainText);
  dialog.setWindowModality(Qt::ApplicationModal);
  if (box.asks) {
    dialog.setIcon(QMessageBox::Question);
    dialog.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    dialog.setDefaultButton(QMessageBox::Yes);
    dialog.setEscapeButton(QMessageBox::No);
  } else {
    dialog.setIcon(QMessageBox::Information);
    dialog.setStandardButtons(QMessageBox::Ok);
    dialog.setEscapeButton(QMessageBox::Ok);
  }
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

void Message_Box(std::string_view text, std::string_view title) {
  Commit_Before_Showing();
  Show({std::string(title), std::string(text), false});
}

bool Ask_Yes_No(std::string_view text, std::string_view title) {
  Commit_Before_Showing();
  return Show({std::string(title), std::string(text), true});
}

void Show_Failure(const Run_Time_Error& error) {
  Show({"Wine Cellar",
        "Run-time error '" + std::to_string(error.Number()) + "':\n\n" + error.Text(), false});
}

void Watch_Boxes_For_Tests(Watcher watcher) { The_Watcher() = std::move(watcher); }

int Boxes_Shown() { return boxes_shown; }

bool Box_Is_Up() { return boxes_up > 0; }

}  // namespace Forms
