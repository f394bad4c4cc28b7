// The wines of the cellar that a search by pairings found: a list above, the wine that was clicked
// below, to be looked at and uncorked.
//
// As designed, the list is what the search finds with the selection of the moment, and a click on a
// wine makes that wine's pairings the selection: what is listed after an uncorking goes by these.
// Without this known fault it is what was found when the screen was opened. A line above the list
// says what it lacks: wines behind the first 99, and wines that are no longer in the cellar.
#pragma once

#include <map>
#include <set>

#include "screens/Cellar_Wine_Screen.h"

class Wine_Search_Results_Form : public Cellar_Wine_Screen {
 public:
  Wine_Search_Results_Form();

 protected:
  void Form_Load() override;
  void Fill_Wine_List() override;

 private:
  using Cellar_Names = std::map<Long, Text>;
  explicit Wine_Search_Results_Form(Cellar_Names cellars);
  /// What the column of the cellars shows, by their keys; none where there is no such column.
  static Cellar_Names Cellars_to_Tell();
  void Lay_Out();
  void Initialize_Form_Data();
  void Load_Requested_Pairings();
  void Show_Requested_in_Bold();
  void Get_WineResults_Records();
  void List_Found_Wine();
  bool Wine_Has_Gone();
  void Multi_Functional_Command_Click();
  void Tell_What_Is_Missing(int removed, bool cut);
  void Wine_Cellar_ListView_ItemClick(Forms::List_Item item);
  void Variety_Combo_ItemCheck(int item);
  void Exit_Command_Click();

  /// The keys of the requested pairings: the selection changes with each click on a wine.
  std::set<Text> requested_;
  Cellar_Names cellars_;

  Forms::Label Wines_Number{*this, "Wines_Number"};
  Forms::Label Requested_Pairings_Label{*this, "Requested_Pairings_Label", "Requested Pairings"};
  Forms::List_Box Requested_Pairings_List{*this, "Requested_Pairings_List"};
};
