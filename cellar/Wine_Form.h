// The one screen for the wines of the current cellar: enter, correct, uncork, remove, look at them.
// Which of these it does follows from `Current_Command` at the moment it loads.
//
// The upper half holds a wine's fields, the lower one the list of the cellar. A field's colour
// tells its state; the `Tag` of the eight fields of the gate is "1" once they are filled, and only
// then the button that commits is open.
//
// The sources: Wine_Form.cpp the life and the modes, _Layout the places, _Locks the states of the
// fields, _Lists what the lists are filled with, _Fields what a choice or a value brings about,
// _Show a stored wine on the fields, _List the cellar's list, _Commit the writes.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <vector>

#include "core/Keyed_List.h"
#include "core/Tasting_Boxes.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Values.h"

class Wine_Form : public Forms::Form {
 public:
  Wine_Form();

 protected:
  void Form_Load() override;
  void Form_Activate() override;

 private:
  // ---- the modes ----
  void Load_for_Add();
  void Load_for_Mod();
  void Load_for_View();
  void Load_for_Uncork();
  void Load_for_Del();
  void Load_for_General_List(const char* caption);
  void Load_for_Display(const char* caption);
  void Wait_for_Country();
  void Wait_for_Pick();
  void Update_for_New_Winery();
  void Take_Over_Pairings();
  void Show_Requested_Wine();
  void Set_Up_Handlers();
  void Lay_Out();
  void Winery_Add_Command_Click();
  void Label_Add_Command_Click();
  void Pairings_Add_Command_Click();
  void Winery_Combo_DblClick();
  void Exit_Command_Click();
  void Leave();

  // ---- the states of the fields ----
  using Controls = std::vector<Forms::Placed_Control*>;
  std::vector<Forms::Lockable_Control*> Entry_Fields();
  Controls Gate_Fields();
  /// Locked, in the colour that says so.
  static void Lock(Forms::Lockable_Control& field);
  /// A value must be given: the colour that says so, and the gate is closed by it.
  static void Require(Forms::Placed_Control& field);
  /// A value is given.
  static void Fill_In(Forms::Lockable_Control& field);
  static void Show_Lock(Forms::Lockable_Control& field);
  void Lock_Top_Window();
  void UnLock_Top_Window();
  void UnLock_for_Add();
  void Setup_for_Message(const char* message);
  void Remove_Message();
  void Top_Window_Clean();
  void Hide_Add_Commands();
  void Hide_ADD_Buttons();
  void Disable_Add_Buttons();
  void Reset_Values();
  void Should_Multi_Command_Be_Enabled();

  // ---- what the lists are filled with ----
  void Initialize_Form_Data();
  void Initialize_Display_Data();
  void Initialize_Own_Fields();
  void Initialize_Winery();
  void Initialize_Label();
  void Initialize_Classification();
  void Initialize_Variety();
  void Initialize_Region();
  void Initialize_Country();
  void Initialize_Vintage();
  void Initialize_Color();
  void Initialize_Bootle_Size();
  void Initialize_Merit();
  void Load_Country(const Text& short_name);
  void Load_Country_Unique(const Text& short_name);
  void Load_Wineries_in_Country(const Text& short_name);
  void Load_Regions_for_Country(const Text& short_name);
  void Get_Regions_for_Country(const Text& short_name);
  void Load_Labels_for_Region(Integer region_id);
  void Add_Labels_of_Region(Integer region_id);
  void Load_Classifications(const Text& short_name);
  void Load_Varieties_for_Region(Long region_id);
  void Load_Region_Unique();
  void Fill_Peak_Years();

  // ---- what a choice or a value brings about ----
  void Let(std::function<void()>& event, void (Wine_Form::*handler)());
  void Let(Forms::Text_Box& field, void (Wine_Form::*handler)());
  void Country_Combo_Click();
  void Winery_Combo_Click();
  void Winery_Chosen();
  void New_Winery_Chosen();
  void Region_Combo_Click();
  void Label_Combo_Click();
  void Classification_Combo_Click();
  void Take_Choice(Forms::Combo_Box& combo, Forms::Command_Button& add);
  void Variety_Combo_ItemCheck(int item);
  void Color_Combo_Click();
  void Bottle_Size_Combo_Click();
  void Vintage_Combo_Click();
  void Total_Bottles_Text_LostFocus();
  void Alcohol_Text_LostFocus();
  void Price_Text_LostFocus();
  void Date_Text_LostFocus(Forms::Text_Box& date);

  // ---- a stored wine on the fields ----
  void Memory_to_Form_Unique();
  void Memory_to_Form_for_Mod();
  void Show_Winery();
  void Show_Texts_And_Numbers();
  void Show_Lists_Alone();
  void Show_Varieties_Alone();
  void Choose_Varieties();
  void Choose_In_Lists();

  // ---- the list of the cellar ----
  void Display_Current_Cellar();
  void Add_Current_Wine();
  void Wine_Cellar_ListView_ColumnClick(const Forms::Column_Header& header);
  void Wine_Cellar_ListView_ItemClick(Forms::List_Item item);
  void Picked_for_Mod();
  void Picked_for_View();
  void Picked_for_Uncork();
  void Picked_for_Del();
  std::optional<Forms::List_Item> Item_of_Wine(const Text& wine_id);

  // ---- the writes ----
  void Multi_Functional_Command_Click();
  void Save_Wine();
  void Modify_Wine();
  void Uncork_Wine();
  void Remove_Wine();
  void Seek_Wine();
  void Store_New_Wine();
  void From_Form_to_Memory();
  void Varieties_to_Memory();
  Long Store_Data_Text(Forms::Text_Box& box, Long key);
  void Remove_Tasting();
  void Store_Varieties();
  void Remove_Varieties();
  void Count_Wine_In();
  void Count_Wine_Out();

  /// The command under which the screen was loaded.
  Text command_;
  /// The `Wine_ID` of the wine last picked in the list.
  Integer Selected_Wine_ID = 0;

  Forms::Label Winery_Label{*this, "Winery_Label", "Winery"};
  Forms::Combo_Box Winery_Combo{*this, "Winery_Combo"};
  Forms::Combo_Box Winery_ID_Combo{*this, "Winery_ID_Combo"};
  Forms::Command_Button Winery_Add_Command{*this, "Winery_Add_Command", "Add"};
  Forms::Label LabelLabel{*this, "LabelLabel", "Label or Appellation"};
  Forms::Combo_Box Label_Combo{*this, "Label_Combo"};
  Forms::Combo_Box Label_ID_Combo{*this, "Label_ID_Combo"};
  Forms::Command_Button Label_Add_Command{*this, "Label_Add_Command", "Add"};
  Forms::Label Variety_Label{*this, "Variety_Label", "Grape Variety"};
  Forms::Check_List Variety_Combo{*this, "Variety_Combo"};
  Forms::Combo_Box Variety_ID_Combo{*this, "Variety_ID_Combo"};
  Forms::Command_Button Variety_Add_Command{*this, "Variety_Add_Command", "Add"};
  Forms::Label Region_Label{*this, "Region_Label", "Wine Region"};
  Forms::Combo_Box Region_Combo{*this, "Region_Combo"};
  Forms::Combo_Box Region_ID_Combo{*this, "Region_ID_Combo"};
  Forms::Label Country_Label{*this, "Country_Label", "Country"};
  Forms::Combo_Box Country_Combo{*this, "Country_Combo"};
  Forms::Combo_Box Country_Short_Combo{*this, "Country_Short_Combo"};
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
  Forms::List_Box Pairing_List{*this, "Pairing_List"};
  Forms::List_Box Pairing_Index_List{*this, "Pairing_Index_List"};
  Forms::Command_Button Pairings_Add_Command{*this, "Pairings_Add_Command", "Add Pairings"};
  Forms::Label Classification_Label{*this, "Classification_Label", "Classification"};
  Forms::Combo_Box Classification_Combo{*this, "Classification_Combo"};
  Forms::Combo_Box Classification_ID_Combo{*this, "Classification_ID_Combo"};
  Forms::Command_Button Classification_Add_Command{*this, "Classification_Add_Command", "Add"};
  Forms::Label Comments_Label{*this, "Comments_Label", "Comments"};
  Forms::Text_Box Comments_Text{*this, "Comments_Text", Forms::Text_Box::Lines::Many};
  Forms::Label Last_Day_Uncorked_Label{*this, "Last_Day_Uncorked_Label", "Last Day Uncorked"};
  Forms::Text_Box Last_Date_Uncorked_Text{*this, "Last_Date_Uncorked_Text"};
  Forms::Label Date_Added_Label{*this, "Date_Added_Label", "Date of Adding"};
  Forms::Text_Box Date_Added_Text{*this, "Date_Added_Text"};
  Tasting_Boxes Boxes{*this, [this] { return Color_Combo.ListIndex(); }};
  Forms::Label Message_Label{*this, "Message_Label", "", Forms::Label::Kind::Paragraph};
  Forms::Label Current_Cellar_Label{*this, "Current_Cellar_Label", "Wine Cellar"};
  Forms::Label Wine_Cellar_Name_Label{*this, "Wine_Cellar_Name_Label"};
  Forms::List_View Wine_Cellar_ListView;
  Forms::Command_Button Multi_Functional_Command{*this, "Multi_Functional_Command", "SAVE"};
  Forms::Command_Button Exit_Command{*this, "Exit_Command", "EXIT"};

  Keyed_List Winery_Lines{Winery_Combo, Winery_ID_Combo};
  Keyed_List Label_Lines{Label_Combo, Label_ID_Combo};
  Keyed_List Variety_Lines{Variety_Combo, Variety_ID_Combo};
  Keyed_List Region_Lines{Region_Combo, Region_ID_Combo};
  Keyed_List Country_Lines{Country_Combo, Country_Short_Combo};
  Keyed_List Classification_Lines{Classification_Combo, Classification_ID_Combo};
  Keyed_List Pairing_Lines{Pairing_List, Pairing_Index_List};
};
