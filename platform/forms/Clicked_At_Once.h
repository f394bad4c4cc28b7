// A button whose mnemonic clicks it at once. For the sources of this room only.
#pragma once

#include <QShortcutEvent>

namespace Forms {

/// The toolkit itself shows such a button pressed first and clicks it a moment later, when the user
/// may be somewhere else already.
template <class Button>
class Clicked_At_Once : public Button {
 public:
  using Button::Button;

  bool event(QEvent* event) override {
    if (event->type() != QEvent::Shortcut) return Button::event(event);
    if (static_cast<QShortcutEvent*>(event)->isAmbiguous()) return Button::event(event);
    this->click();
    return true;
  }
};

}  // namespace Forms
