// From the description of a layout to the toolkit's. For the sources of this room only.
#pragma once

#include "platform/forms/Layout.h"

class QMainWindow;

namespace Forms {

struct Form_Data;

/// Fills the form's content, sets the order of the Tab key, makes labels the buddies of fields.
void Build_Layout(Form_Data& form, const Place& content);
/// Gives the window the size that its content asks for, or this width if it is above 0, as far as
/// the desktop has it.
void Fit_To_Desktop(QMainWindow& window, int width);
/// The focus goes to the first control in reading order that can take it.
void Focus_First(Form_Data& form);

}  // namespace Forms
