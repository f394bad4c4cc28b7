// One node of a layout's description. For the sources of this room only.
#pragma once

#include <Qt>

#include "platform/forms/Layout.h"

namespace Forms {

enum class Place_Kind {
  Control,
  Row,
  Column,
  Fields,
  Below,
  Grid,
  Buttons,
  Group,
  One_Place,
  Above_Below,
  Side_By_Side,
  Stretch,
  Space
};

struct Place_Data {
  Place_Kind kind = Place_Kind::Control;
  Placed_Control* control = nullptr;  ///< of a control's place; the frame of a group
  Places places;
  int share = 0;
  int characters = 0;
  int lines = 0;
  int least_lines = 0;
  int columns = 1;
  Qt::Alignment alignment;
};

}  // namespace Forms
