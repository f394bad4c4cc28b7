// Which controls the Tab key stops at. For the sources of this room only.
#pragma once

namespace Forms {

class Form;

/// While a field of the form asks for a value, those that are locked are no stops of the Tab key:
/// it goes to what is asked next. They are still reached by click, mnemonic and assistive programs.
/// Settled once for all that changes in a handler.
void Settle_Tab_Stops_Later(Form& form);

}  // namespace Forms
