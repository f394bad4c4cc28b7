// The one order of texts: in indexes, in queries and in lists on the screen.
#pragma once

#include <string_view>

/// Texts are compared over the whole of Unicode, by base letters first, then by accents, then by
/// case: "Eclair" < "éclair" < "Éclair" < "Edam" < "zebra". How an accented letter is encoded (one
/// character, or a letter and a combining accent) makes no difference; blanks are letters like any
/// other. The function depends on nothing but its arguments, never on the machine's locale or on
/// the version of a library. Results are negative, zero or positive.

/// Base letters, accents and case.
int Compare_Texts(std::string_view a, std::string_view b);

/// Base letters and accents: zero where the two are equal as keys.
int Compare_Keys(std::string_view a, std::string_view b);

/// Equal without regard to case: "ROSÉ" and "Rosé" are, "ROSE" is another text.
inline bool Same_Text(std::string_view a, std::string_view b) { return Compare_Keys(a, b) == 0; }
