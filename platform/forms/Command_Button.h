// A button. However it is set off, by mouse or key or by an assistive program, it takes the focus
// first, so that the LostFocus of the field comes before the Click. Where the field refuses to be
// left there is no Click, unless the button is the form's exit.
#pragma once

#include <string>
#include <vector>

#include "platform/forms/Control.h"

namespace Forms {

class Command_Button : public Placed_Control {
 public:
  Command_Button(Form& form, std::string_view name, std::string_view caption);
  ~Command_Button() override;

  std::function<void()> Click;

  /// What the button says in other modes of its form: mnemonics are kept for these captions too,
  /// one for all in a row that have a letter in common.
  void Set_Other_Captions(std::vector<std::string> captions) { others_ = std::move(captions); }
  const std::vector<std::string>& Other_Captions() const { return others_; }

  bool Has_Mnemonic() const override { return true; }
  void Show_Mnemonic(const std::string& text) override;

 protected:
  void Show_Caption() override;

 private:
  void Clicked();

  std::vector<std::string> others_;
};

}  // namespace Forms
