// The program with two named cellars, on a copy of the delivered file: wines put straight into the
// file, and the way of a user through the screen of the cellar.
#pragma once

#include "tests/support/Program_Folder.h"

/// A winery of the delivered file, and what its region and country offer with it.
struct Sample_Winery {
  Text id, name, region_id, region, country, country_name;
  Text label;                    ///< the first white one of its region
  Text classification;           ///< the first one of its country
  Texts variety_ids, varieties;  ///< at least three
};

/// What is chosen and typed for a new wine; as it stands, the least that opens the button.
struct New_Wine {
  Text label = "No Label";
  Text classification = "NO Classification";
  std::vector<int> ticks{1};  ///< rows of the list of grapes
  Text bottle_size = "750 ml";
  Text total_bottles = "6";
  Text color = "Red";
};

class Cellar_Program : public Program_Folder {
 protected:
  /// The file has the cellars "Home" (1) and "Office" (2), no wine, and the program has not been
  /// started. It is `now_` by the program's clock, and the locale is that of the United States.
  Cellar_Program();
  ~Cellar_Program() override;

  /// Two wineries of different countries, always the same ones of a delivered file.
  const Sample_Winery& Sample(int number = 0) const;

  // ---- before a start ----

  /// A wine of the sample winery in the first cellar: its label, its first grape, red, 3 bottles,
  /// no texts, ten years old.
  Wines_Record Sample_Wine(int winery = 0) const;
  /// Puts a wine into the file, with these grapes, and returns its key.
  Long Put_Wine(const Wines_Record& wine, const Texts& variety_ids) const;
  Long Put_Wine(const Wines_Record& wine) const {
    return Put_Wine(wine, {Sample().variety_ids[0]});
  }
  void Put_Mark(Long wine, const char* kind, int box, bool cellar_wine = true) const;
  /// Returns the key of a text that is there in English and Spanish alone.
  Long Put_Text(const char* in_english, const char* in_spanish = "x") const;

  // ---- the screen ----

  /// Country and winery of a new wine.
  void Choose_Winery(int winery = 0) const;
  /// What it needs besides.
  static void Fill_Bottle(const New_Wine& wine = {});
  /// All that a new wine needs, from the country to the colour, by mouse and keys.
  void Fill_Add(const New_Wine& wine = {}, int winery = 0) const;
  static void Pick_Wine(Long wine) {
    Click_Line("Wine_Cellar_ListView", To_Text(wine), Key_Column("Wine_Cellar_ListView"));
  }
  /// The last one.
  static std::size_t Key_Column(const char* list);

  static Text Tag_of(const char* control) {
    return Forms::Screen("Wine_Form").Control(control).Tag();
  }
  /// The names of the ticked boxes of taste and aroma.
  static Texts Ticked_Boxes(const Text& form = {});

  Date now_ = Date::Of(2026, 6, 15, 14, 30, 5);
};
