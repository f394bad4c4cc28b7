// The screen of the pairing catalogue: rows put into the file, and what the screen shows.
#pragma once

#include "tests/support/Pairing_Program.h"

/// The words in which a test expects an addition or a change.
struct Two_Names {
  Text first, second;
};

class Catalogue : public Pairing_Program {
 protected:
  static constexpr const char* list = "Maridages_ListView";

  /// Starts the program in a language and chooses the menu entry: Pairing_Add, Pairing_Mod,
  /// Pairings_List.
  void Open(const char* entry, Integer language = english) {
    Set_Language(language);
    Start_With(entry);
  }
  /// A delivered pairing "`name` en", "`name` es", "`name` fr", ... of every use.
  static Maridages_Record Made_Up(const Text& name);
  /// Puts it into the file as the last row and returns its key.
  Text Put_Pairing(const Maridages_Record& pairing) const {
    return To_Text(Put(Maridages_Description, pairing));
  }
  /// Clicks the row whose first cell this is.
  static void Click_Pairing(const Text& first_cell) { Click_Line(list, first_cell); }
  /// The two boxes.
  static Texts Boxes() { return {Shown_Text("CatText"), Shown_Text("CAT_Other_Language_Text")}; }
  static void Type_Names(const Two_Names& names) {
    Type_Into("CatText", names.first);
    Type_Into("CAT_Other_Language_Text", names.second);
  }
  /// Some fields of the pairings that a user added, in the order of addition.
  Texts Added(const Text& fields) const {
    return Stored("SELECT " + fields +
                  " FROM Maridages WHERE Maridage_Group >= 1000000 ORDER BY Maridage_ID");
  }
  /// Everything that the catalogue stores.
  Texts Whole_Catalogue() const { return Stored("SELECT * FROM Maridages"); }
};

inline Maridages_Record Catalogue::Made_Up(const Text& name) {
  Maridages_Record pairing;
  Maridages_Description.Init(pairing);
  pairing.Maridage_Name = name;
  pairing.English = name + " en";
  pairing.Spanish = name + " es";
  pairing.French = name + " fr";
  pairing.German = name + " de";
  pairing.Italian = name + " it";
  pairing.Japanese = name + " ja";
  pairing.Portuguese = name + " pt";
  pairing.Maridage_Group = 900000;
  pairing.Maridage_SubGr = 1;
  pairing.SERIAL_NUMBER = "SYS";
  pairing.Multiuse = 3;
  return pairing;
}
