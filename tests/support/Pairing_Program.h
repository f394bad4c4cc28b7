// The program with two named cellars and every screen that is built, for the tests of pairings and
// of the search by them: pairings of wines put straight into the file, and the user's way through
// the pickers.
#pragma once

#include "tests/forms/Row_Clicks.h"
#include "tests/support/Cellar_Program.h"
#include "tests/support/Faults_Mended.h"

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
  /// How often it was used so far.
  int Used(const Sample_Pairing& pairing) const;

  static void Double_Click_Line(const char* list, const Text& text);
  /// Chooses it in the open picker: click, and the button.
  static void Add(const Text& text);
  /// An entry of two lists in step on a stand-in.
  static void Give(const char* screen, const char* list, const char* keys, const Text& text,
                   const Text& key);

  /// What was handed over, or would be taken by the next search or store: "name|key".
  static Texts Selection();
  static Texts Selection_of(const std::vector<Sample_Pairing>& pairings);

  /// The lines of a list.
  static Texts Lines(const char* list) { return Shown_Rows(list); }
};
