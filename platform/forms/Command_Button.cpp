#include "platform/forms/Command_Button.h"

#include <QKeyEvent>
#include <QPushButton>

#include "platform/forms/Focus.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

namespace {

class Button_Widget : public QPushButton {
 public:
  Button_Widget(QWidget* parent, Command_Button& button) : QPushButton(parent), button_(button) {
    setFocusPolicy(Qt::StrongFocus);
  }

  bool event(QEvent* event) override {
    if (event->type() != QEvent::Shortcut) return QPushButton::event(event);
    if (static_cast<QShortcutEvent*>(event)->isAmbiguous()) return QPushButton::event(event);
    setFocus(Qt::ShortcutFocusReason);
    const bool is_exit = button_.Owner().Data().exit_button == &button_;
    if (is_exit || !Focus_Watch::The().Was_Refused(button_)) click();
    return true;
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      click();
    } else {
      QPushButton::keyPressEvent(event);
    }
  }

 private:
  Command_Button& button_;
};

}  // namespace

Command_Button::Command_Button(Form& form, std::string_view name, std::string_view caption)
    : Placed_Control(form, name, caption) {
  auto* widget = new Button_Widget(Widget_Parent(), *this);
  QObject::connect(widget, &QPushButton::clicked, [this] { Clicked(); });
  Set_Widget(widget);
}

Command_Button::~Command_Button() = default;

void Command_Button::Clicked() { Raise(*this, Click); }

void Command_Button::Show_Mnemonic(const std::string& text) {
  static_cast<QPushButton*>(Widget())->setText(To_Qt(text));
}

void Command_Button::Show_Caption() {
  Placed_Control::Show_Caption();
  static_cast<QPushButton*>(Widget())->setText(Escaped(Caption()));
}

}  // namespace Forms
