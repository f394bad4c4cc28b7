// The colours by which the screens tell the state of a field.
#pragma once

#include <cstdint>

namespace Forms {

/// A colour that a control shows, or "as the desktop's theme has it".
struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool of_the_theme = false;

  constexpr bool operator==(const Color&) const = default;
};

/// The theme's own colour: an open or filled field.
inline constexpr Color Window_Color{0, 0, 0, true};
/// A value must be given here.
inline constexpr Color Required_Color{255, 128, 128};
/// Locked, or for display only.
inline constexpr Color Locked_Color{255, 192, 255};
/// The list to click next.
inline constexpr Color Active_List_Color{128, 255, 128};
/// The text of a list entry that leads nowhere.
inline constexpr Color Inactive_Label_Color{128, 128, 128};
/// Taste and aroma boxes that can be clicked, of cellar wines and of general wines.
inline constexpr Color Open_Check_Color{255, 255, 192};
inline constexpr Color Open_Mobile_Check_Color{255, 224, 192};

}  // namespace Forms
