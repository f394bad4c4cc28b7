// A place for a picture from a file: a photo, or a drawing in SVG.
#pragma once

#include "platform/forms/Control.h"

namespace Forms {

class Picture : public Placed_Control {
 public:
  Picture(Form& form, std::string_view name, std::string_view caption = {});
  ~Picture() override;

  /// Shows the file's picture: scaled down into its place where it is larger, with its proportions,
  /// never scaled up. "" empties the place. 76 for a missing folder, 53 for a missing file, 481 for
  /// one that cannot be decoded; the place is empty then.
  void Set_Picture(std::string_view path);
  bool Is_Empty() const;

  std::function<void()> Click;
};

}  // namespace Forms
