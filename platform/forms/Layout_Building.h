// From the description of a layout to the toolkit's. For the sources of this room only.
#pragma once

#include "platform/forms/Layout.h"

namespace Forms {

struct Form_Data;

/// Fills the form's content and the part below it, sets the order of the Tab key, makes labels the
/// buddies of fields.
void Build_Layout(Form_Data& form, const Place& content, const Place& below);
/// The focus goes to the first control in reading order that can take it.
void Focus_First(Form_Data& form);

}  // namespace Forms
