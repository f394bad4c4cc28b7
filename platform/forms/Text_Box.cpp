#include "platform/forms/Text_Box.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "platform/forms/Focus.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

Text_Box::Text_Box(Form& form, std::string_view name, Lines lines)
    : Lockable_Control(form, name, {}), lines_(lines) {
  if (lines_ == Lines::One) {
    auto* line = new QLineEdit(Widget_Parent());
    line->setFixedHeight(line->sizeHint().height());
    QObject::connect(line, &QLineEdit::textChanged,
                     [this](const QString& text) { Take_Over(From_Qt(text)); });
    QObject::connect(line, &QLineEdit::returnPressed, [this] {
      if (Owner().Data().enter_commits) Commit(Owner());
    });
    Set_Widget(line);
    return;
  }
  auto* sheet = new QPlainTextEdit(Widget_Parent());
  sheet->setTabChangesFocus(true);
  // The raw text: the plain one makes ordinary blanks of those that keep words together.
  QObject::connect(sheet, &QPlainTextEdit::textChanged, [this, sheet] {
    QString text = sheet->document()->toRawText();
    for (const auto line_break : {QChar::ParagraphSeparator, QChar::LineSeparator}) {
      text.replace(line_break, "\r\n");
    }
    Take_Over(From_Qt(text));
  });
  Set_Widget(sheet);
}

Text_Box::~Text_Box() = default;

// Not only keys change a text: a drop and an assistive program do, in any box. One that was changed
// unseen would never be left, and never tested.
void Text_Box::Take_Over(std::string text) {
  if (text == text_) return;
  if (!Focus_Watch::The().Go_To(*this)) return Show_Text();
  text_ = std::move(text);
  Raise(*this, Change);
}

void Text_Box::Set_Text(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  Show_Text();
  if (Change) Change();
}

void Text_Box::Show_Text() {
  const QSignalBlocker no_signals(Widget());
  if (lines_ == Lines::One) {
    static_cast<QLineEdit*>(Widget())->setText(To_Qt(text_));
  } else {
    static_cast<QPlainTextEdit*>(Widget())->setPlainText(To_Qt(text_).replace("\r\n", "\n"));
  }
}

void Text_Box::Select_All() {
  if (lines_ == Lines::One) {
    static_cast<QLineEdit*>(Widget())->selectAll();
  } else {
    static_cast<QPlainTextEdit*>(Widget())->selectAll();
  }
}

void Text_Box::Raise_Lost_Focus() {
  if (LostFocus && Owner().Is_Live() && Owner().Visible()) LostFocus();
}

void Text_Box::Show_Locked() {
  if (lines_ == Lines::One) {
    static_cast<QLineEdit*>(Widget())->setReadOnly(Locked());
    return;
  }
  auto* sheet = static_cast<QPlainTextEdit*>(Widget());
  sheet->setReadOnly(Locked());
  if (Locked())
    sheet->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

}  // namespace Forms
