// The catalogue of wineries: add, modify, delete, look at them with their labels and the general
// wines of each. A wine screen calls it to make a missing winery on the way, and it calls the
// screen of regions to make a missing region.
//
// The sources: Wineries_Form.cpp the life, the modes and the ways out, _Layout the places, _Fields
// what a choice brings about and a stored winery on the fields, _List the list, the labels and
// wines of a winery and paging, _Commit the writes.
#pragma once

#include <vector>

#include "core/tables/Geography_Tables.h"
#include "platform/forms/Forms.h"
#include "screens/Catalogue_Screen.h"
#include "screens/Keyed.h"
#include "screens/Pager.h"
#include "screens/Row_List.h"

/// `Tag` "1" when it comes to the front: a region was added, `New_Region_ID` is its key. A winery
/// added for a wine is in the memory record, and the wine screen has the `Tag` "1" then.
class Wineries_Form : public Catalogue_Screen {
 public:
  Wineries_Form();

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Unload() override;
  std::vector<Forms::Placed_Control*> Gate_Fields() override;
  bool Commits() const override;
  Text Entered() override;

 private:
  /// What another screen left in the memory record stands there again in the end: a wine screen
  /// that waits behind counts by it.
  class Kept_Winery {
   public:
    Kept_Winery() = default;
    ~Kept_Winery() { Wineries = before_; }
    Kept_Winery(const Kept_Winery&) = delete;
    Kept_Winery& operator=(const Kept_Winery&) = delete;

   private:
    Wineries_Record before_ = Wineries;
  };

  // ---- the modes ----
  void Set_Up_Handlers();
  void Lay_Out();
  bool Adds() const;
  void Load_for_Add();
  void Load_for_List();
  void Load_for_Mod();
  void Load_for_Del();
  void Load_for_View();
  void Setup_for_Add();
  void Wine_Region_Add_Command_Click();
  void Exit_Command_Click();
  void Go_Back();
  static void Bring_Wine_Screen_Forward();

  // ---- the fields ----
  std::vector<Forms::Lockable_Control*> Entry_Fields();
  /// A text that need not be given, and where it is stored.
  struct Optional_Text {
    Forms::Text_Box& box;
    Text Wineries_Record::*member;
  };
  std::vector<Optional_Text> Optional_Texts();
  void Lock_all_Fields();
  void Unlock_ALL_Fields();
  void Country_Combo_Click();
  void Region_Combo_Click();
  void Lock_Region_of_View();
  void Load_Regions_of_Country();
  void Load_States_of_Country();
  void Show_State_Field(Forms::Placed_Control& field);
  void Memory_to_Form();
  void Choose_Country();
  void Choose_State();
  void Choose_Region();
  static Long History_Key();
  void Set_Photos() {}

  // ---- the list, labels, wines ----
  void Load_Winery_List();
  void Wineries_ListView_ItemClick(Forms::List_Item item);
  /// The winery of this key on the fields, with labels and wines where they are listed. False where
  /// it has gone: nothing is changed then.
  bool Show_Winery(const Text& key);
  void Load_Labels();
  void Winery_Labels_List_Click();
  void Add_Wines_of_Label(Long label_id);
  void Follow_In_Paged_List();
  void Take_Over_Order();

  // ---- the writes ----
  void General_Command_Click();
  void Save_Winery();
  void Modify_Winery();
  void Delete_Winery();
  bool Is_Double();
  void Form_to_Memory();

  /// The place of the selected row in the list that is paged, from 1.
  Integer Selected_Winery_Index = 0;

  Forms::Label Winery_List_Label{*this, "Winery_List_Label", "Current Wineries in the system"};
  Row_List Wineries_ListView{*this,
                             "Wineries_ListView",
                             {{"Winery Name", 20, false, false, 3},
                              {"Country", 10, false, false, 1},
                              {"Wine Region", 12, false, false, 2},
                              {"Winery_ID", 8, true, true}}};
  Forms::Command_Button Wineries_Form_Previous_Command{*this, "Wineries_Form_Previous_Command",
                                                       "<==Previous"};
  Forms::Command_Button Wineries_Form_Next_Command{*this, "Wineries_Form_Next_Command", "Next==>"};
  Pager Pages{Wineries_Form_Previous_Command, Wineries_Form_Next_Command};

  Forms::Label Name_Label{*this, "Name_Label", "Winery Name"};
  Forms::Text_Box Name_Text{*this, "Name_Text"};
  Forms::Label Add1_Label{*this, "Add1_Label", "Address"};
  Forms::Text_Box Add1_Text{*this, "Add1_Text"};
  Forms::Label Add2_Label{*this, "Add2_Label", "Address 2"};
  Forms::Text_Box Add2_Text{*this, "Add2_Text"};
  Forms::Label City_Label{*this, "City_Label", "City"};
  Forms::Text_Box City_Text{*this, "City_Text"};
  Forms::Label Zip_Code_Label{*this, "Zip_Code_Label", "Zip Code"};
  Forms::Text_Box Zip_Code_Text{*this, "Zip_Code_Text"};
  Forms::Label Country_Label{*this, "Country_Label", "Country"};
  Keyed_Combo_Box Country_Combo{*this, "Country_Combo", "Country_Short_Combo"};
  Forms::Label State_Label{*this, "State_Label", "State"};
  Keyed_Combo_Box State_Combo{*this, "State_Combo", "State_Short_Combo"};
  Forms::Text_Box Province_Text{*this, "Province_Text"};
  Forms::Label Region_Label{*this, "Region_Label", "Wine Region"};
  Keyed_Combo_Box Region_Combo{*this, "Region_Combo", "Region_ID_Combo"};
  Forms::Command_Button Wine_Region_Add_Command{*this, "Wine_Region_Add_Command", "ADD"};
  Forms::Label Phone_Label{*this, "Phone_Label", "Phone"};
  Forms::Text_Box Phone_Text{*this, "Phone_Text"};
  Forms::Label Web_Label{*this, "Web_Label", "Web"};
  Forms::Text_Box Web_Text{*this, "Web_Text"};
  Forms::Label E_Mail_Label{*this, "E_Mail_Label", "E-Mail"};
  Forms::Text_Box E_Mail_Text{*this, "E_Mail_Text"};
  Forms::Label History_Label{*this, "History_Label", "History"};
  Forms::Text_Box History_Text{*this, "History_Text", Forms::Text_Box::Lines::Many};

  Forms::Label Winery_Labels_Label{*this, "Winery_Labels_Label", "Winery Labels"};
  Keyed_List_Box Winery_Labels_List{*this, "Winery_Labels_List", "Winery_Labels_ID_List"};
  Forms::Label Wines_for_Selected_Label_Label{*this, "Wines_for_Selected_Label_Label",
                                              "Wines for selected Label"};
  Row_List Available_Wines_ListView{
      *this,
      "Available_Wines_ListView",
      {{"WINE", 20, false, false, 2}, {"Main Grape", 12, false, false, 1}, {"ID", 8, true, true}}};

  // The pictures of a winery are not shown yet: the place is empty, the buttons have none.
  Forms::Picture Winery_Image{*this, "Winery_Image", "Photo of the winery"};
  Forms::Command_Button Add_Photo_Command{*this, "Add_Photo_Command", "Add Photo"};
  Forms::Command_Button Delete_Photo_Command{*this, "Delete_Photo_Command", "Delete Photo"};
  Forms::Command_Button Next_Photo_Command{*this, "Next_Photo_Command", "Next ===>"};
  Forms::Command_Button Previous_Photo_Command{*this, "Previous_Photo_Command", "<=== Previous"};
  Forms::Label System_Photo_Label{*this, "System_Photo_Label", "System Photo"};
};
