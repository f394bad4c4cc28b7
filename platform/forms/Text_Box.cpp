#include "platform/forms/Text_Box.h"

#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "platform/forms/Focus.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

namespace {

constexpr qsizetype longest_word = 500;

bool Has_Endless_Word(const QString& text) {
  qsizetype length = 0;
  for (const QChar letter : text) {
    length = letter.isSpace() ? 0 : length + 1;
    if (length > longest_word) return true;
  }
  return false;
}

/// The toolkit looks for the end of a word anew for each line that the word fills: one of 100,000
/// letters takes seconds at every layout. Where there is such a one, lines are broken anywhere.
class Sheet : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

  /// To be told before the text is in the box.
  void Prepare_For(const QString& text) {
    setWordWrapMode(Has_Endless_Word(text) ? QTextOption::WrapAnywhere
                                           : QTextOption::WrapAtWordBoundaryOrAnywhere);
  }

 protected:
  void insertFromMimeData(const QMimeData* pasted) override {
    if (Has_Endless_Word(pasted->text())) Prepare_For(pasted->text());
    QPlainTextEdit::insertFromMimeData(pasted);
  }
};

}  // namespace

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
  auto* sheet = new Sheet(Widget_Parent());
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
    auto* line = static_cast<QLineEdit*>(Widget());
    line->setText(To_Qt(text_));
    if (!line->hasFocus()) line->setCursorPosition(0);  // a long text is read from its beginning
  } else {
    auto* sheet = static_cast<Sheet*>(Widget());
    const QString text = To_Qt(text_).replace("\r\n", "\n");
    sheet->Prepare_For(text);
    sheet->setPlainText(text);
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
