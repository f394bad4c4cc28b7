// Which grape varieties a region grows: the regions, all grapes, and those of the picked region,
// which are changed in the list and stored together.
#pragma once

#include "platform/forms/Forms.h"
#include "platform/run_time/Values.h"
#include "screens/Catalogue_Screen.h"
#include "screens/Row_List.h"

/// The grapes of the region's sub-regions stand in its list too, without a key: they are not its
/// own, and cannot be stored as such.
class Regions_Add_Mod_Varieties_Form : public Catalogue_Screen {
 public:
  Regions_Add_Mod_Varieties_Form();

 protected:
  void Form_Load() override;
  Text Entered() override;

 private:
  void Lay_Out();
  void Close_Commands();
  void Regions_ListView_ItemClick(Forms::List_Item item);
  void Varieties_AvailableView_ItemClick(Forms::List_Item item);
  void Varieties_Selected_ListView_ItemClick(Forms::List_Item item);
  /// Whether the list holds the grape of this key already, or, mended, as many as can be stored;
  /// tells so.
  bool Is_Refused(const Text& key);
  void Add_Var_Command_Click();
  void Remove_Var_Command_Click();
  void Select_Listed();
  void General_Command_Click();
  void Exit_Command_Click();

  Row_List Regions_ListView{*this,
                            "Regions_ListView",
                            {{"Wine Region Name", 26, false, false, 2},
                             {"Country", 16, false, false, 1},
                             {"Region_ID", 8, true, true}}};
  Forms::Label Avail_Label{*this, "Avail_Label", "Available Varieties"};
  Row_List Varieties_AvailableView{
      *this,
      "Varieties_AvailableView",
      {{"Grape Variety", 22, false, false, 1}, {"color", 9}, {"Variety_ID", 8, true, true}}};
  Forms::Command_Button Add_Var_Command{*this, "Add_Var_Command", "Add ===>"};
  Forms::Command_Button Remove_Var_Command{*this, "Remove_Var_Command", "Remove"};
  Forms::Label Current_Label{*this, "Current_Label", "Current Varieties in Region"};
  Row_List Varieties_Selected_ListView{
      *this,
      "Varieties_Selected_ListView",
      {{"Grape Variety", 22, false, false, 1}, {"color", 9}, {"Variety_ID", 8, true, true}}};
};
