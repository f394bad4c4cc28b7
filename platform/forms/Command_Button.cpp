#include "platform/forms/Command_Button.h"

#include <QKeyEvent>
#include <QPushButton>

#include "platform/forms/Clicked_At_Once.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

namespace {

class Button_Widget : public Clicked_At_Once<QPushButton> {
 public:
  explicit Button_Widget(QWidget* parent) : Clicked_At_Once(parent) {
    setFocusPolicy(Qt::StrongFocus);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      click();
    } else {
      QPushButton::keyPressEvent(event);
    }
  }
};

}  // namespace

Command_Button::Command_Button(Form& form, std::string_view name, std::string_view caption)
    : Placed_Control(form, name, caption) {
  auto* widget = new Button_Widget(Widget_Parent());
  QObject::connect(widget, &QPushButton::clicked, [this] { Clicked(); });
  Set_Widget(widget);
}

Command_Button::~Command_Button() = default;

void Command_Button::Clicked() {
  const bool left = Focus_Watch::The().Go_To(*this);
  if (left || Owner().Data().exit_button == this) Raise(*this, Click);
}

void Command_Button::Show_Mnemonic(const std::string& text) {
  static_cast<QPushButton*>(Widget())->setText(To_Qt(text));
}

void Command_Button::Show_Caption() {
  Placed_Control::Show_Caption();
  static_cast<QPushButton*>(Widget())->setText(Escaped(Caption()));
}

}  // namespace Forms
