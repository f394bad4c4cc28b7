// Where a form's window stands on the desktop, and how large it is. For the sources of this room
// only.
#pragma once

namespace Forms {

struct Form_Data;

/// Gives the window the size that it had last, or else its first one, in the middle of the desktop,
/// unless it is maximised. At first a form with a list that grows
/// takes 85 % of the desktop, at most 1,600 pixels wide; others take what they ask for. No form is
/// smaller than it needs to be, nor larger than the desktop.
void Fit_To_Desktop(const Form_Data& form);

}  // namespace Forms
