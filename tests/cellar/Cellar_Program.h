// The program with two named cellars, on a copy of the delivered file: wines put straight into the
// file, and the way of a user through the screen of the cellar.
#pragma once

#include <string>
#include <vector>

#include "core/tables/Wine_Tables.h"
#include "tests/support/Drive.h"
#include "tests/support/Program_Folder.h"

/// A winery of the delivered file, and what its region and country offer with it.
struct Sample_Winery {
  Text id, name, region_id, region, country, country_name;
  Text label;                                ///< the first white one of its region
  Text classification;                       ///< the first one of its country
  std::vector<Text> variety_ids, varieties;  ///< at least three
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
  Long Put_Wine(const Wines_Record& wine, const std::vector<Text>& variety_ids) const;
  Long Put_Wine(const Wines_Record& wine) const {
    return Put_Wine(wine, {Sample().variety_ids[0]});
  }
  void Put_Mark(Long wine, const char* kind, int box, bool cellar_wine = true) const;
  /// Returns the key of a text that is there in English alone.
  Long Put_Text(const char* english) const;
  void Empty_Table(const char* table) const;

  // ---- the screen ----

  /// Starts the program and chooses the menu entry: Wine_Add, Wine_Mod, Wine_Uncork, Wine_Del,
  /// Cellar1_View, Cellar2_View.
  void Start_With(const char* entry);
  /// Opens the screen under a command that no menu entry stores.
  static void Open_Under(const char* command);
  /// Country and winery of a new wine.
  void Choose_Winery(int winery = 0) const;
  /// All that a new wine needs, from the country to the colour, by mouse and keys.
  void Fill_Add(const New_Wine& wine = {}, int winery = 0) const;
  /// The row of the cellar's list that shows this wine, from 0; -1 where none does.
  static int Row_of(Long wine);
  static void Pick_Wine(Long wine) { Click_Row("Wine_Cellar_ListView", Row_of(wine)); }

  static Text Tag_of(const char* control);
  /// "open", "required", "locked" or "check": the state that the control's colour stands for.
  static Text Color_of(const char* control);
  static bool Is_Locked(const char* control);
  static bool Is_Ticked(const Text& check_box);
  /// The names of the ticked boxes of taste and aroma.
  static std::vector<Text> Ticked_Boxes();
  /// The ticked entries of the list of grapes.
  static std::vector<Text> Ticked_Varieties();

  Date now_ = Date::Of(2026, 6, 15, 14, 30, 5);
};
