// The boxes for a wine's marks of taste and aroma, as the wine screens show them, and the rows of
// `Wine_Tasting` that they stand for.
#pragma once

#include <functional>
#include <string_view>

#include "platform/forms/Forms.h"
#include "platform/run_time/Bounded_Array.h"
#include "platform/run_time/Values.h"

/// Flag i stands for the taste box i - 1: its mark will be stored. Place 0 belongs to no box.
inline Bounded_Array<bool, 6> Taste_Flags;

/// Cleared with the boxes and read by nobody: aroma marks are stored by the boxes themselves.
inline Bounded_Array<bool, 8> Aroma_Flags;

/// The cellar's wines and those of the general list have their marks in one table, and may have the
/// same keys.
enum class Wine_List { Cellar, General };

/// The two frames of boxes of one form. A click of the user is undone while `Checks_Locked`;
/// otherwise it flags a taste box and clears those that the wine's colour excludes beside it.
class Tasting_Boxes {
 public:
  /// `marks_of` tells whose marks are shown and stored; `color` which colour the form shows: 0 Red,
  /// 1 White, 2 Rosé, 3 Sparkling, 4 Fortified.
  Tasting_Boxes(Forms::Form& form, Wine_List marks_of, std::function<int()> color);

  Forms::Place Taste_Place();
  Forms::Place Aroma_Place();

  void Open(Forms::Color open_color);  ///< they can be clicked
  void Show_Locked();
  void Set_Aroma_Visible(bool visible);
  /// No box is ticked and none flagged.
  void Clear();
  /// Which are ticked: a "1" or "0" for each.
  Text Ticks();
  /// Shows, cleared, the boxes that the colour offers: as many of each kind as `Wine_Taste_Type`
  /// has rows of it. A colour without rows is 3021, or offers none where faults are mended.
  /// `english_color` is written as in that table.
  void Offer(std::string_view english_color);

  /// Ticks what the rows of `Wine_Tasting` with this key say, flags nothing. Only those of its own
  /// list; as designed, for the cellar a row of a general wine with the same key shows as well.
  /// Mended, a ticked box can be seen whatever the colour offers.
  void Show_Marks_of(Long wine_id);
  /// Adds a row for each ticked box; as designed, for each flagged taste box and each ticked aroma
  /// box. 6 for a key beyond 16 bits.
  void Store_Marks_of(Long wine_id);
  /// Removes the rows of the wine; as designed, only if it has the lowest key of the table. 3021
  /// then where the table is empty.
  void Remove_Marks_of(Long wine_id) const;

 private:
  using Boxes = Forms::Control_Array<Forms::Check_Box>;
  template <class Action>
  void Each(const Action& action) {
    Taste_Check.Each(action);
    Aroma_Check.Each(action);
  }
  void Taste_Check_Click(int index);
  void Undo(Forms::Check_Box& box);
  void Exclude_Others(int index);
  void Add_Row(Long wine_id, const char* kind, int box) const;
  /// Whether the current row of `Wine_Tasting` is of a wine of `marks_of_`.
  bool Is_Own_Row() const;

  Wine_List marks_of_;
  std::function<int()> color_;
  /// While True the boxes' Click does nothing: code is setting their values.
  bool taste_guard_ = false;
  bool aroma_guard_ = false;

  Forms::Frame Wine_Taste_Frame;
  Boxes Taste_Check;
  Forms::Frame Aroma_Frame;
  Boxes Aroma_Check;
};
