// A button. However it is set off, by mouse or key or by an assistive program, it takes the focus
// first, so that the LostFocus of the field comes before the Click. Where the field refuses to be
// left there is no Click, unless the button is the form's exit.
#pragma once

#include "platform/forms/Control.h"

namespace Forms {

class Command_Button : public Placed_Control {
 public:
  Command_Button(Form& form, std::string_view name, std::string_view caption);
  ~Command_Button() override;

  std::function<void()> Click;

  bool Has_Mnemonic() const override { return true; }
  void Show_Mnemonic(const std::string& text) override;

 protected:
  void Show_Caption() override;

 private:
  void Clicked();
};

}  // namespace Forms
