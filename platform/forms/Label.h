// A text beside a field, or a text of its own.
#pragma once

#include "platform/forms/Control.h"

namespace Forms {

class Label : public Placed_Control {
 public:
  /// `Text` is one line of caption; `Paragraph` breaks long text into lines; `Title` is larger.
  enum class Kind { Text, Paragraph, Title };

  Label(Form& form, std::string_view name, std::string_view caption = {}, Kind kind = Kind::Text);
  ~Label() override;

  /// The field that this label names: the label's mnemonic leads there, and the label's caption is
  /// the field's accessible name. The layout's Fields do this for each line.
  void Set_Buddy(Placed_Control& field);

  std::function<void()> Click;

  bool Has_Mnemonic() const override { return buddy_ != nullptr; }
  void Show_Mnemonic(const std::string& text) override;

 protected:
  void Show_Caption() override;

 private:
  Placed_Control* buddy_ = nullptr;
};

}  // namespace Forms
