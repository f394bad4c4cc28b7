// A button. Set off by the mouse, its mnemonic, Enter or Space, it takes the focus first, so that
// the LostFocus of the field comes before the Click.
#pragma once

#include "platform/forms/Control.h"

namespace Forms {

class Command_Button : public Placed_Control {
 public:
  Command_Button(Form& form, std::string_view name, std::string_view caption);
  ~Command_Button() override;

  std::function<void()> Click;

  /// The user's click, as it comes from the toolkit.
  void Clicked();
  bool Has_Mnemonic() const override { return true; }
  void Show_Mnemonic(const std::string& text) override;

 protected:
  void Show_Caption() override;
};

}  // namespace Forms
