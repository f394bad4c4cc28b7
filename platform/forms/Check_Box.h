// A box that is ticked or not.
#pragma once

#include "platform/forms/Control.h"

namespace Forms {

class Check_Box : public Placed_Control {
 public:
  Check_Box(Form& form, std::string_view name, std::string_view caption = {});
  ~Check_Box() override;

  int Value() const { return value_; }
  /// 0 or 1; 380 for another number. Raises Click where that is a change.
  void Set_Value(int value);

  /// On each change of the value, by the user or from code.
  std::function<void()> Click;

  bool Has_Mnemonic() const override { return true; }
  void Show_Mnemonic(const std::string& text) override;

 protected:
  void Show_Caption() override;

 private:
  void Ticked_By_User(bool ticked);
  void Show_Value();

  int value_ = 0;
};

}  // namespace Forms
