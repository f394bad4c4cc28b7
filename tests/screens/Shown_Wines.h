// What the screen of the cellar shows of a wine, to be compared with what it shows later.
#pragma once

#include <map>

#include "tests/support/Pairing_Program.h"

/// The text of each field, and what is ticked or listed.
using Shown_Wine = std::map<Text, Text>;

class Shown_Wines : public Pairing_Program {
 protected:
  Shown_Wines();

  /// Now, in whichever mode: what was typed for a number or a date as it will be read, pairings by
  /// their keys, for their names can change.
  static Shown_Wine Shown();
  /// In the fields that were stored.
  static Texts Differences(const Shown_Wine& shown, const Shown_Wine& stored);
};
