// The program with two named cellars and every screen that is built, for the tests of pairings and
// of the search by them: pairings of wines put straight into the file, and the user's way through
// the pickers.
#pragma once

#include <string>
#include <vector>

#include "tests/cellar/Cellar_Program.h"

/// A pairing of the delivered file.
struct Sample_Pairing {
  Text id, name;  ///< in English
  Long group, subgroup;
};

class Pairing_Program : public Cellar_Program {
 protected:
  Pairing_Program();

  /// Pairings that can be chosen, foods alone, in the order of their address; always the same ones.
  const std::vector<Sample_Pairing>& Foods() const;
  /// The first food of the `number`-th group that has at least three.
  const Sample_Pairing& Food(int number) const;

  /// Gives a wine that is in the file these pairings, one row for each.
  void Put_Pairing(Long wine, const Sample_Pairing& pairing) const;

  /// Clicks the line of a list that shows this text; fails the test where none does.
  static void Click_Line(const std::string& list, const Text& text);
  static void Double_Click_Line(const std::string& list, const Text& text);
  /// Chooses it in the open picker: click, and the button.
  static void Add(const Text& text);

  /// Opens a screen under a command that no menu entry stores.
  static void Open_Screen_Under(const char* screen, const char* command);

  /// The lines of a list.
  static std::vector<std::string> Lines(const char* list) { return Shown_Rows(list); }
};
