// The program with every screen of the catalogues of places and producers: regions and labels put
// straight into the file, and what is there afterwards.
#pragma once

#include "catalogue/Catalogue_Screens.h"
#include "tests/support/Pairing_Program.h"

class Catalogue_Places_Program : public Pairing_Program {
 protected:
  Catalogue_Places_Program() { Register_Catalogue_Screens(); }

  /// A region of the user's, in France where nothing else is said, that nothing refers to.
  static Regions_Record Made_Up_Region(const Text& name, const Text& country = "FRA") {
    Regions_Record region;
    Regions_Description.Init(region);
    region.Region_Name = name;
    region.Country = country;
    return region;
  }
  static Labels_Record Made_Up_Label(const Text& name, Long region_id) {
    Labels_Record label;
    Labels_Description.Init(label);
    label.Label_Name = name;
    label.Region_ID = To_Integer(region_id);
    label.SERIAL_NUMBER = "CUS";
    return label;
  }

  /// Starts the program in a language and chooses the menu entry.
  void Open(const char* entry, Integer language = english) {
    Set_Language(language);
    Start_With(entry);
  }
  /// How many rows a table has.
  int Rows_in(const char* table) const {
    return std::stoi(One("SELECT COUNT(*) FROM " + Text(table)));
  }
  /// A box that asks is answered with No.
  static Texts Denied_By(const std::function<void()>& action) {
    const Box_Script boxes({false});
    action();
    return boxes.Said();
  }
};
