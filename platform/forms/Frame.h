// A border with a caption around other controls, which it hides, shows and disables with itself.
// The layout's Group says which.
#pragma once

#include "platform/forms/Control.h"

namespace Forms {

class Frame : public Placed_Control {
 public:
  Frame(Form& form, std::string_view name, std::string_view caption = {});
  ~Frame() override;

 protected:
  void Show_Caption() override;
};

}  // namespace Forms
