#include "platform/forms/Label.h"

#include <QLabel>
#include <QMouseEvent>

#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

namespace {

class Label_Widget : public QLabel {
 public:
  Label_Widget(QWidget* parent, Label& label) : QLabel(parent), label_(label) {
    setTextFormat(Qt::PlainText);
  }

  // The underlined letter of a mnemonic is drawn without kerning, wider than it is measured.
  QSize sizeHint() const override { return QLabel::sizeHint() + QSize(3, 0); }
  QSize minimumSizeHint() const override { return QLabel::minimumSizeHint() + QSize(3, 0); }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) Raise(label_, label_.Click);
  }

 private:
  Label& label_;
};

void Shape(QLabel* widget, Label::Kind kind) {
  if (kind == Label::Kind::Paragraph) widget->setWordWrap(true);
  if (kind != Label::Kind::Title) return;
  QFont font = widget->font();
  font.setPointSizeF(font.pointSizeF() * 1.4);
  font.setBold(true);
  widget->setFont(font);
}

}  // namespace

Label::Label(Form& form, std::string_view name, std::string_view caption, Kind kind)
    : Placed_Control(form, name, caption) {
  auto* widget = new Label_Widget(Widget_Parent(), *this);
  Shape(widget, kind);
  Set_Widget(widget);
}

Label::~Label() = default;

void Label::Set_Buddy(Placed_Control& field) {
  buddy_ = &field;
  static_cast<QLabel*>(Widget())->setBuddy(field.Widget());
  field.Set_Label_Caption(Caption());
  Show_Caption();
  if (Owner().Visible()) Assign_Mnemonics(Owner());
}

void Label::Show_Mnemonic(const std::string& text) {
  static_cast<QLabel*>(Widget())->setText(To_Qt(text));
}

// The toolkit reads ampersands only in a label that has a buddy.
void Label::Show_Caption() {
  Placed_Control::Show_Caption();
  static_cast<QLabel*>(Widget())->setText(buddy_ != nullptr ? Escaped(Caption())
                                                            : To_Show(Caption()));
  if (buddy_ != nullptr) buddy_->Set_Label_Caption(Caption());
}

}  // namespace Forms
