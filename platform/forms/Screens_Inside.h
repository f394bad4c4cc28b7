// What the rest of this room asks of the registry of screens. For the sources of this room only.
#pragma once

namespace Forms {

class Form;

/// Takes an unloaded form out of the registry; it is destroyed when no handler runs any more.
void Bury(Form& form);
/// Where a form waits: brings what was opened over it to the front, which takes the keys.
void Pass_Focus_On(const Form& waiting);
/// Keeps what the user made of the windows in sight.
void Remember_Windows();
/// The end of an outermost handler: with no window visible, the main screen is shown.
void Settle_Screens();

}  // namespace Forms
