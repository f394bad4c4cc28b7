// What the screens of the cellar's wines have in common: a list of wines, the fields of one wine,
// how a stored wine shows in them, and the bottle that is uncorked.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "platform/forms/Forms.h"
#include "platform/run_time/Values.h"
#include "screens/Command_Form.h"
#include "screens/Keyed.h"
#include "screens/Row_List.h"
#include "screens/Tasting_Boxes.h"

/// The memory records of `Wines` and `Wineries` hold the wine to show or to write, and its winery.
class Wine_Screen : public Command_Form {
 protected:
  /// How wide the columns of the list begin, in characters.
  using Widths = std::array<int, 9>;
  /// `words` tells what the columns answer to when a header is clicked; that of the keys to
  /// nothing.
  Wine_Screen(std::string_view name, std::string_view caption, const Widths& widths,
              std::vector<std::string> words);

  /// Fills the list anew. Called after a bottle was uncorked.
  virtual void Fill_Wine_List() = 0;

  // ---- places ----

  /// What belongs to a field: its button, at the right of it; below a list of pairings.
  using Beside = std::map<const Forms::Placed_Control*, Forms::Place>;
  /// The fields in the order of reading: where the wine comes from, the bottle, the notes, the
  /// marks. The message shares the place of the aromas.
  Forms::Place Fields_Place(const Beside& beside);

  // ---- the states of the fields ----

  using Controls = std::vector<Forms::Placed_Control*>;
  std::vector<Forms::Lockable_Control*> Entry_Fields();
  std::vector<Forms::Text_Box*> Text_Fields();
  /// Locked, in the colour that says so.
  static void Lock(Forms::Lockable_Control& field);
  /// A value must be given: the colour that says so, and the gate is closed by it.
  static void Require(Forms::Placed_Control& field);
  /// A value is given.
  static void Fill_In(Forms::Lockable_Control& field);
  static void Show_Lock(Forms::Lockable_Control& field);
  void Lock_Top_Window();
  void UnLock_Top_Window();

  // ---- a stored wine on the fields ----

  /// Locked, each list with the wine's own entry alone.
  void Memory_to_Form_Unique();
  void Show_Winery();
  void Show_Texts_And_Numbers();
  void Show_Marks_And_Pairings();
  /// The wine's pairings in the list, and as the selection.
  void Load_Wine_Maridages();
  void Load_Country_Unique(const Text& short_name);
  /// The region of the winery in the memory record, locked.
  void Load_Region_Unique();
  static void Each_Variety_of_Wine(const std::function<void(const Text& variety_id)>& action);

  // ---- the list ----

  /// The wine and its winery as the last row.
  void Add_Wine_to_List();

  // ---- the writes ----

  /// The wine that was picked last in the list, whatever the memory record holds meanwhile.
  Long Selected_Wine_ID = 0;
  /// Leaves `Wines` open on the row of the picked wine, and that in the memory record. 3021 where
  /// it has gone.
  void Seek_Wine() const;
  /// One bottle less, at this moment; the wine stays the one on show and in the memory record.
  void Uncork_Wine();

  Forms::Label Winery_Label{*this, "Winery_Label", "Winery"};
  Keyed_Combo_Box Winery_Combo{*this, "Winery_Combo", "Winery_ID_Combo"};
  Forms::Label LabelLabel{*this, "LabelLabel", "Label or Appellation"};
  Keyed_Combo_Box Label_Combo{*this, "Label_Combo", "Label_ID_Combo"};
  Forms::Label Variety_Label{*this, "Variety_Label", "Grape Variety"};
  Keyed_Check_List Variety_Combo{*this, "Variety_Combo", "Variety_ID_Combo"};
  Forms::Label Region_Label{*this, "Region_Label", "Wine Region"};
  Keyed_Combo_Box Region_Combo{*this, "Region_Combo", "Region_ID_Combo"};
  Forms::Label Country_Label{*this, "Country_Label", "Country"};
  Keyed_Combo_Box Country_Combo{*this, "Country_Combo", "Country_Short_Combo"};
  Forms::Label Vintage_Label{*this, "Vintage_Label", "Vintage"};
  Forms::Combo_Box Vintage_Combo{*this, "Vintage_Combo"};
  Forms::Label Color_Label{*this, "Color_Label", "Color"};
  Forms::Combo_Box Color_Combo{*this, "Color_Combo"};
  Forms::Label Merit_Label{*this, "Merit_Label", "Merit"};
  Forms::Combo_Box Merit_Combo{*this, "Merit_Combo"};
  Forms::Label Bottle_Size_Label{*this, "Bottle_Size_Label", "Bottle Size"};
  Forms::Combo_Box Bottle_Size_Combo{*this, "Bottle_Size_Combo"};
  Forms::Label Total_Bottles_Label{*this, "Total_Bottles_Label", "Total Bottles"};
  Forms::Text_Box Total_Bottles_Text{*this, "Total_Bottles_Text"};
  Forms::Label Alcohol_Label{*this, "Alcohol_Label", "% Alcohol"};
  Forms::Text_Box Alcohol_Text{*this, "Alcohol_Text"};
  Forms::Label Price_Label{*this, "Price_Label", "Price"};
  Forms::Text_Box Price_Text{*this, "Price_Text"};
  Forms::Label Peak_Year_Label{*this, "Peak_Year_Label", "Peak Year"};
  Forms::Combo_Box Peak_Year_Combo{*this, "Peak_Year_Combo"};
  Forms::Label Description_Label{*this, "Description_Label", "Description"};
  Forms::Text_Box Description_Text{*this, "Description_Text", Forms::Text_Box::Lines::Many};
  Forms::Label Pairing_Label{*this, "Pairing_Label", "Pairing"};
  Keyed_List_Box Pairing_List{*this, "Pairing_List", "Pairing_Index_List"};
  Forms::Label Classification_Label{*this, "Classification_Label", "Classification"};
  Keyed_Combo_Box Classification_Combo{*this, "Classification_Combo", "Classification_ID_Combo"};
  Forms::Label Comments_Label{*this, "Comments_Label", "Comments"};
  Forms::Text_Box Comments_Text{*this, "Comments_Text", Forms::Text_Box::Lines::Many};
  Forms::Label Last_Day_Uncorked_Label{*this, "Last_Day_Uncorked_Label", "Last Day Uncorked"};
  Forms::Text_Box Last_Date_Uncorked_Text{*this, "Last_Date_Uncorked_Text"};
  Forms::Label Date_Added_Label{*this, "Date_Added_Label", "Date of Adding"};
  Forms::Text_Box Date_Added_Text{*this, "Date_Added_Text"};
  Tasting_Boxes Boxes{*this, [this] { return Color_Combo.ListIndex(); }};
  Forms::Label Message_Label{*this, "Message_Label", "", Forms::Label::Kind::Paragraph};
  Forms::Label Current_Cellar_Label{*this, "Current_Cellar_Label", "Wine Cellar"};
  Row_List Wine_Cellar_ListView;
  Forms::Command_Button Multi_Functional_Command{*this, "Multi_Functional_Command", "SAVE"};
  Forms::Command_Button Exit_Command{*this, "Exit_Command", "EXIT"};

 private:
  void Show_Varieties_Alone();
  void Show_Lists_Alone();
};
