// What the screens of the cellar's wines have in common: the bottle, how a stored wine shows in the
// fields, the list of the cellar's wines, and the bottle that is uncorked.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "screens/Wine_Screen.h"

/// The memory records of `Wines` and `Wineries` hold the wine to show or to write, and its winery.
class Cellar_Wine_Screen : public Wine_Screen {
 protected:
  /// How wide the columns of the list begin, in characters.
  using Widths = std::array<int, 9>;
  /// `words` tells what these columns answer to when a header is clicked; that of the keys answers
  /// to nothing. `more` are columns of the screen's own, ahead of the keys.
  Cellar_Wine_Screen(std::string_view name, std::string_view caption, const Widths& widths,
                     std::vector<std::string> words,
                     const std::vector<Forms::List_Column>& more = {});

  /// Fills the list anew. Called after a bottle was uncorked.
  virtual void Fill_Wine_List() = 0;

  // ---- places ----

  /// What belongs to a field: its button, at the right of it; below a list of pairings.
  using Beside = std::map<const Forms::Placed_Control*, Forms::Place>;
  /// The fields in the order of reading: where the wine comes from, the bottle, the notes, the
  /// marks. `over_aromas` is what shares the place of these.
  Forms::Place Fields_Place(const Beside& beside, const Forms::Places& over_aromas = {});

  // ---- the fields ----

  std::vector<Forms::Lockable_Control*> Entry_Fields() override;
  std::vector<Forms::Text_Box*> Text_Fields() override;

  // ---- a stored wine on the fields ----

  /// Locked, each list with the wine's own entry alone.
  void Memory_to_Form_Unique();
  void Show_Winery();
  void Show_Texts_And_Numbers();
  void Show_Marks_And_Pairings();
  /// The wine's pairings in the list, and as the selection.
  void Load_Wine_Maridages();
  /// The region of the winery in the memory record, locked.
  void Load_Region_Unique();
  /// With the name of each, which is "" where the grape has gone.
  static void Each_Variety_of_Wine(
      const std::function<void(const Text& variety_id, const Text& name)>& action);

  // ---- the list ----

  /// Reads the winery of the wine; the table stands open by its keys. False where it has gone: the
  /// memory record keeps the one before, or, mended, holds its key and blanks.
  static bool Find_Winery_of_Wine();

  static constexpr int Stock_Column = 8;
  static constexpr int First_Own_Column = 9;
  /// The wine and its winery as the last row.
  Forms::List_Item Add_Wine_to_List();

  // ---- the writes ----

  /// The wine that was picked last in the list, whatever the memory record holds meanwhile.
  Long Selected_Wine_ID = 0;
  /// Leaves `Wines` open on the row of the picked wine, and that in the memory record. 3021 where
  /// it has gone.
  void Seek_Wine() const;
  /// One bottle less, at this moment; the wine stays the one on show and in the memory record.
  void Uncork_Wine();

  Forms::Label Vintage_Label{*this, "Vintage_Label", "Vintage"};
  Forms::Combo_Box Vintage_Combo{*this, "Vintage_Combo"};
  Forms::Label Bottle_Size_Label{*this, "Bottle_Size_Label", "Bottle Size"};
  Forms::Combo_Box Bottle_Size_Combo{*this, "Bottle_Size_Combo"};
  Forms::Label Total_Bottles_Label{*this, "Total_Bottles_Label", "Total Bottles"};
  Forms::Text_Box Total_Bottles_Text{*this, "Total_Bottles_Text"};
  Forms::Label Price_Label{*this, "Price_Label", "Price"};
  Forms::Text_Box Price_Text{*this, "Price_Text"};
  Forms::Label Peak_Year_Label{*this, "Peak_Year_Label", "Peak Year"};
  Forms::Combo_Box Peak_Year_Combo{*this, "Peak_Year_Combo"};
  Forms::Label Last_Day_Uncorked_Label{*this, "Last_Day_Uncorked_Label", "Last Day Uncorked"};
  Forms::Text_Box Last_Date_Uncorked_Text{*this, "Last_Date_Uncorked_Text"};
  Forms::Label Date_Added_Label{*this, "Date_Added_Label", "Date of Adding"};
  Forms::Text_Box Date_Added_Text{*this, "Date_Added_Text"};

 private:
  void Show_Varieties_Alone();
  void Show_Lists_Alone();
};
