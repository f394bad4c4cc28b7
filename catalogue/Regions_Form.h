// The one screen of the catalogue of wine regions: they are added, changed, shown and deleted here,
// paired with grapes, and picked on the way to their labels; a winery has a missing one added here.
// Which of these it does follows from `Current_Command` at the moment it loads.
//
// The sources: Regions_Form.cpp the life and the modes, _Layout the places, _Picked what a pick of
// a region or a label brings about, _Commit what is entered and stored.
#pragma once

#include "core/Data_Text.h"
#include "core/tables/Geography_Tables.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Values.h"
#include "screens/Catalogue_Screen.h"
#include "screens/Keyed.h"
#include "screens/Row_List.h"

class Regions_Form : public Catalogue_Screen {
 public:
  Regions_Form();

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  bool May_Be_Replaced() override;
  std::vector<Forms::Placed_Control*> Gate_Fields() override {
    return {&Name_Text, &Country_Combo};
  }
  bool Commits() const override;
  Text Entered() override;

 private:
  // ---- the modes ----
  void Lay_Out();
  void Load_Lists();
  bool Is_From_Winery() const;
  bool Is_Adding() const;
  bool Exit_Ends_the_Run() const;
  void Load_for_Add();
  static void Compute_Next_Region_Group();
  void Set_Country();
  void Load_for_Mod();
  void Load_for_View(const char* caption);
  void Load_for_Pairing();
  void Setup_for_Label_Handling();
  void Lock_All();
  void Wait_for_Pick();
  void Exit_Command_Click();

  // ---- what is entered and stored ----
  void Country_Combo_Click();
  void General_Command_Click();
  void Add_Region();
  void Modify_Region();
  bool Is_Refused_as_Double();
  Text Country_in_List() const;
  void Form_to_Memory(Text_Of text_of);

  // ---- a region is picked ----
  void Regions_ListView_ItemClick(Forms::List_Item item);
  void Memory_to_Form();
  void Show_Country(const Text& short_name);
  void Load_Labels(Long region_id);
  void Load_Grapes(Long region_id);
  void Show_Whose_Region();
  void Delete_Region();
  /// The photos of the region in the memory record. None are shown yet.
  static void Set_Photos() {}

  // ---- a label is picked ----
  void Labels_ListView_ItemClick(Forms::List_Item item);
  void Modify_Label();
  void Open_Label();
  void Delete_Label();
  void View_Label();

  bool Country_Click_Busy = false;
  Catalogue_Row Own_Label{Labels_Table};

  Forms::Label Label_Message_Label{*this, "Label_Message_Label",
                                   "Select Region first then select the Label you want"};
  Forms::Label System_Message_Label{*this, "System_Message_Label",
                                    "You CANNOT  Modify or Delete System provided Regions"};
  Row_List Regions_ListView{*this,
                            "Regions_ListView",
                            {{"Wine Region Name", 20, false, false, 3},
                             {"Country", 12, false, false, 2},
                             {"Region_ID", 8, true, true}}};
  Forms::Label Name_Label{*this, "Name_Label", "Wine Region Name"};
  Forms::Text_Box Name_Text{*this, "Name_Text"};
  Forms::Label Country_Label{*this, "Country_Label", "Country"};
  Keyed_Combo_Box Country_Combo{*this, "Country_Combo", "Country_Short_Combo"};
  Forms::Label System_Region_Label{*this, "System_Region_Label", " System Region"};
  Forms::Label Descriptio_Label{*this, "Descriptio_Label", "Description"};
  Forms::Text_Box Description_Text{*this, "Description_Text", Forms::Text_Box::Lines::Many};
  Forms::Label History_Label{*this, "History_Label", "History"};
  Forms::Text_Box History_Text{*this, "History_Text", Forms::Text_Box::Lines::Many};
  Forms::Label Labels_Label{*this, "Labels_Label",
                            "Labels or Appellations  for the selected Region"};
  Row_List Labels_ListView{
      *this,
      "Labels_ListView",
      {{"Label/Appellation", 24, false, false, 1}, {"Label_ID", 8, true, true}}};
  Forms::Label Varieties_Label{*this, "Varieties_Label", "Grape Varieties of the selected Region"};
  Row_List Varieties_ListView{
      *this,
      "Varieties_ListView",
      {{"Grape Variety", 16, false, false, 1}, {"color", 8}, {"Variety_ID", 8, true, true}}};
  Forms::Picture Region_Image{*this, "Region_Image"};

  // The photos of a region: nothing is shown of these yet.
  Forms::Label Photos_Label{*this, "Photos_Label", "Photos"};
  Forms::Label System_Photo_Label{*this, "System_Photo_Label", "System Photo"};
  Forms::Command_Button Add_Photo_Command{*this, "Add_Photo_Command", "Add Photo"};
  Forms::Command_Button Delete_Photo_Command{*this, "Delete_Photo_Command", "Delete Photo"};
  Forms::Command_Button Previous_Photo_Command{*this, "Previous_Photo_Command", "<=== Previous"};
  Forms::Command_Button Next_Photo_Command{*this, "Next_Photo_Command", "Next ===>"};
};
