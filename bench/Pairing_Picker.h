// The picker of pairings as its user takes it: from the menu, through its list, to the results.
#pragma once

#include <string>

namespace Pairing_Picker {

/// From the menu, for a search in the cellar.
void Open();
/// Chooses an entry by its text.
void Add(const std::string& text);
void Proceed();
void Leave();

/// Makes the catalogue of the open file a thousand pairings, measures and prints. False where
/// something takes as long as a tenth of a second.
bool Measure();

}  // namespace Pairing_Picker
