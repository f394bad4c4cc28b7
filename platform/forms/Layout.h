// How the controls of a form stand: a description in words, from which the form builds rows,
// columns and splitters that grow with the window. The order of the description is the order of
// reading and of the Tab key. A control that is not named in it is never seen.
#pragma once

#include <initializer_list>
#include <memory>
#include <vector>

#include "platform/forms/Control.h"
#include "platform/forms/Label.h"

namespace Forms {

class Frame;
struct Place_Data;

/// One place of the layout: a control, or places put together by the functions below. A value.
class Place {
 public:
  Place(Placed_Control& control);  // NOLINT: a control stands for its place
  explicit Place(std::shared_ptr<Place_Data> data) : data_(std::move(data)) {}

  /// Takes `share` parts of the room that is left over.
  Place Grow(int share = 1) const;
  /// So many characters wide, in the desktop's font; where the desktop is too small for all that a
  /// form asks for, fields and lists get narrower. A button is exactly so wide, or as its caption.
  Place Wide(int characters) const;
  /// So many lines of text high. Where the place grows it asks for them, and has at least
  /// `at_least` of them on a small desktop.
  Place High(int lines, int at_least = 3) const;
  /// In the middle of its room, or at its right end, instead of filling it.
  Place Centred() const;
  Place At_Right() const;

  const std::shared_ptr<Place_Data>& Data() const { return data_; }

 private:
  Place Changed(const std::function<void(Place_Data&)>& change) const;
  std::shared_ptr<Place_Data> data_;
};

using Places = std::vector<Place>;

/// A line of a block of fields: the label, which becomes the field's buddy, and the field.
struct Field_Line {
  Label& label;
  Place field;
};

Place Row(const Places& places);
Place Column(const Places& places);
/// Labels and fields in two aligned columns, one line below the other.
Place Fields(const std::vector<Field_Line>& lines);
/// The label above the field.
Place Below(Label& label, const Place& field);
/// Places side by side in `columns` equal columns, line by line.
Place Grid(int columns, const Places& places);
/// Buttons at the right end of their row, equally wide unless a caption needs more.
Place Buttons(const Places& buttons);
/// What a frame holds. The frame hides and shows it.
Place Group(Frame& frame, const Place& content);
/// Places that share one cell: those that are visible at the moment are seen, a later one above an
/// earlier one. The cell keeps the room of the largest, so that nothing around it moves when one
/// is hidden and another shown.
Place One_Place(const Places& places);
/// Two places with a bar between them that the user can move.
Place Above_Below(const Place& upper, const Place& lower);
Place Side_By_Side(const Place& left, const Place& right);
/// Room that grows, and room that does not.
Place Stretch(int share = 1);
Place Space();

}  // namespace Forms
