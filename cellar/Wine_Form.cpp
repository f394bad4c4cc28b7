// The life of the screen, its modes, and the ways to other screens and back.
#include "cellar/Wine_Form.h"

#include "core/Common_Words.h"
#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/MultiLanguage_Processes.h"
#include "core/tables/Catalogue.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

using Forms::Screen;

namespace {

constexpr const char* pick_first = "Please Select a Wine from the Cellar first";

}  // namespace

Wine_Form::Wine_Form()
    : Cellar_Wine_Screen("Wine_Form", "Wine Information", {7, 20, 20, 16, 22, 9, 5, 5, 5},
                         {"Vintage", "Winery", "Label", "Wine Region", "Grape Variety", "Color",
                          "Merit", "Peak", "Stock"}) {
  for (Forms::Placed_Control* field : Gate_Fields()) field->Set_Tag("0");
  for (Forms::Control* field : {static_cast<Forms::Control*>(&Country_Combo),
                                static_cast<Forms::Control*>(&Region_Combo)}) {
    field->Set_Tag("0");
  }
  Lay_Out();
  Set_Up_Handlers();
}

void Wine_Form::Set_Up_Handlers() {
  On(Country_Combo.Click, &Wine_Form::Country_Combo_Click);
  On(Winery_Combo.Click, &Wine_Form::Winery_Combo_Click);
  On(Region_Combo.Click, &Wine_Form::Region_Combo_Click);
  On(Label_Combo.Click, &Wine_Form::Label_Combo_Click);
  On(Classification_Combo.Click, &Wine_Form::Classification_Combo_Click);
  On(Color_Combo.Click, &Wine_Form::Color_Combo_Click);
  On(Bottle_Size_Combo.Click, &Wine_Form::Bottle_Size_Combo_Click);
  On_Leaving(Total_Bottles_Text, &Wine_Form::Total_Bottles_Text_LostFocus);
  On_Leaving(Alcohol_Text, &Wine_Form::Alcohol_Text_LostFocus);
  On_Leaving(Price_Text, &Wine_Form::Price_Text_LostFocus);
  Vintage_Combo.Click = [this] { Vintage_Combo_Click(); };
  Variety_Combo.ItemCheck = [this](int item) { Variety_Combo_ItemCheck(item); };
  for (Forms::Text_Box* date : {&Date_Added_Text, &Last_Date_Uncorked_Text}) {
    date->LostFocus = [this, date] { Date_Text_LostFocus(*date); };
  }
  Winery_Combo.DblClick = [this] { Winery_Combo_DblClick(); };
  Wine_Cellar_ListView.ItemClick = [this](Forms::List_Item item) {
    Wine_Cellar_ListView_ItemClick(item);
  };
  Winery_Add_Command.Click = [this] { Winery_Add_Command_Click(); };
  Label_Add_Command.Click = [this] { Label_Add_Command_Click(); };
  Pairings_Add_Command.Click = [this] { Pairings_Add_Command_Click(); };
  Multi_Functional_Command.Click = [this] { Multi_Functional_Command_Click(); };
  Exit_Command.Click = [this] { Exit_Command_Click(); };
}

// ---- loading ----

// The screen of a new winery leaves it in the memory record and has this screen load anew: filling
// the lists must not lose it.
void Wine_Form::Form_Load() {
  const Wineries_Record winery = Wineries;
  const Ignoring_Events ignoring;
  Load_Language_Words("Wine_Form");
  if (Command_Is("WineAdd")) Load_for_Add();
  if (Command_Is("WineMod")) Load_for_Mod();
  if (Command_Is("CellarView") || Command_Is("CheeseParingsCellar")) Load_for_View();
  if (Command_Is("WineUncork")) Load_for_Uncork();
  if (Command_Is("WineDel")) Load_for_Del();
  if (Command_Is("WineOtherAdd")) Load_for_General_List("Add New Wine to the General List");
  if (Command_Is("WineOtherMod")) Load_for_General_List("MODIFY Wine Information");
  Tell_What_Empty_Lists_Wait_for();
  Wineries = winery;
}

bool Wine_Form::Cellars_Are_Named() {
  return Screen("Wine_Cellar_Form").Control("Wines_Cellar").Enabled();
}

void Wine_Form::Tell_What_Empty_Lists_Wait_for() {
  Wine_Cellar_ListView.Set_Empty_Text(
      !Cellars_Are_Named()
          ? Hint_To_Menu(Screen_Words::Name_Cellars_First, "Cellar_Main", "Cellar_Add")
      : Command_Is("WineAdd") ? Hint_Text(Screen_Words::First_Wine)
                              : Hint_To_Menu(Screen_Words::No_Wines_Yet, "Wine_Main", "Wine_Add"));
  if (!Command_Is("WineAdd")) return;
  Pairing_List.Set_Empty_Text(
      Hint_Text(Screen_Words::No_Pairings_of_Wine, {Pairings_Add_Command.Caption()}));
}

void Wine_Form::Load_for_Add() {
  Initialize_Form_Data();
  Display_Current_Cellar();
  Set_Caption("Add New Wine to the Cellar");
  Multi_Functional_Command.Set_Enabled(false);
  Wine_Cellar_ListView.Set_BackColor(Forms::Locked_Color);
  Stay_On_Esc();
  Wait_for_Country();
}

void Wine_Form::Load_for_Mod() {
  Initialize_Form_Data();
  Display_Current_Cellar();
  Set_Caption("MODIFY Wine Information");
  Pairings_Add_Command.Set_Caption("Modify Pairing");
  Wine_Cellar_ListView.Set_Arrow_Keys_Pick(false);  // a pick throws away what was changed
  Stay_On_Esc();
  Wait_for_Pick();
}

void Wine_Form::Load_for_Display(const char* caption) {
  Initialize_Display_Data();
  Display_Current_Cellar();
  Set_Caption(caption);
  Multi_Functional_Command.Set_Visible(false);
  Hide_ADD_Buttons();
  Lock_Top_Window();
  Checks_Locked = true;
  Pairings_Add_Command.Set_Visible(false);
  Show_Stand_Ins(true);
  Wine_Cellar_ListView.SetFocus();
}

void Wine_Form::Load_for_View() { Load_for_Display("Display of Current Cellar"); }

void Wine_Form::Load_for_Uncork() {
  Load_for_Display("Select Wine to Uncork");
  Setup_for_Message(pick_first);
}

void Wine_Form::Load_for_Del() {
  Set_Caption("Select Wine Delete");
  Display_Current_Cellar();
  Lock_Top_Window();
  Setup_for_Message("Please Select the Wine to REMOVE from the Cellar");
  Checks_Locked = true;
  Pairings_Add_Command.Set_Visible(false);
  Disable_Add_Buttons();
  Wine_Cellar_ListView.SetFocus();
}

// The screen of the general list has this one load, hidden, by captioning it.
void Wine_Form::Load_for_General_List(const char* caption) {
  Set_Caption(caption);
  for (Forms::Control* hidden : std::initializer_list<Forms::Control*>{
           &Vintage_Label, &Vintage_Combo, &Total_Bottles_Label, &Total_Bottles_Text,
           &Last_Day_Uncorked_Label, &Last_Date_Uncorked_Text, &Current_Cellar_Label,
           &Wine_Cellar_Name_Label, &Peak_Year_Combo, &Peak_Year_Label, &Merit_Combo,
           &Merit_Label}) {
    hidden->Set_Visible(false);
  }
  Total_Bottles_Text.Set_Tag("1");
}

// The beginning of each new wine: nothing is open but the country.
void Wine_Form::Wait_for_Country() {
  Lock_Top_Window();
  Checks_Locked = true;
  chosen_country_.clear();
  chosen_winery_.clear();
  Country_Combo.Set_Locked(false);
  Country_Combo.Set_BackColor(Forms::Required_Color);
  Winery_Add_Command.Set_Enabled(true);
  Pairings_Add_Command.Set_Enabled(false);
  Date_Added_Text.Set_Text(To_Text(Now()));
  Keep_Shown_Dates();
  Hide_Add_Commands();
  Country_Combo.SetFocus();
  Take_as_Stored();
}

// The beginning of each correction: the wine is still to be picked.
void Wine_Form::Wait_for_Pick() {
  Lock_Top_Window();
  Checks_Locked = true;
  Disable_Add_Buttons();
  Pairings_Add_Command.Set_Enabled(true);
  Multi_Functional_Command.Set_Caption("SAVE");
  Multi_Functional_Command.Set_Enabled(false);
  Multi_Functional_Command.Set_Visible(false);
  Setup_for_Message(pick_first);
  Show_Stand_Ins(true);
  Wine_Cellar_ListView.SetFocus();
  Take_as_Stored();
}

// ---- coming back ----

void Wine_Form::Form_Activate() {
  Command_Form::Form_Activate();
  Have_Own_Records_Back();
  const bool winery_or_label_is_new = Tag() == "1";
  if (winery_or_label_is_new) Update_for_New_Winery();
  Set_Tag("0");
  Ask_Again_for_Gone_Winery();
  if (const Text label = Label_Add_Command.Tag(); !label.empty()) Update_for_New_Label(label);
  Should_Multi_Command_Be_Enabled();
  if (Pairings_Add_Command.Tag() == "1") Take_Over_Pairings();
  if (Command_Is("CheeseParingsCellar")) Show_Requested_Wine();
}

// Once: what is chosen here from then on is as new as what stands in the records.
void Wine_Form::Have_Own_Records_Back() {
  if (!own_records_) return;
  Labels = own_records_->labels;
  Classification = own_records_->classification;
  Varieties = own_records_->varieties;
  Wineries = own_records_->wineries;
  Regions = own_records_->regions;
  own_records_.reset();
}

// The screen that deletes wineries may stand beside this one.
void Wine_Form::Ask_Again_for_Gone_Winery() {
  if (!Command_Is("WineAdd") || Is_Kept(Fault::Gone_Row_Ends_The_Run)) return;
  if (chosen_winery_.empty() || Find_By_Key(Wineries_Table, chosen_winery_)) return;
  chosen_winery_.clear();
  Load_Wineries_in_Country(Country_Combo.Key());
  Require(Winery_Combo);
}

void Wine_Form::Update_for_New_Winery() {
  const Wineries_Record winery = Wineries;
  Initialize_Winery();
  chosen_winery_.clear();
  const int place = Winery_Combo.Place_Of(winery.Winery_ID, 1);
  if (place > 0) Winery_Combo.Set_ListIndex(place);
}

// A label that was added for another region than the wine's stands behind those of the wine's.
// Before the winery is chosen there is no region, and its labels come with it.
void Wine_Form::Update_for_New_Label(const Text& label_id) {
  Label_Add_Command.Set_Tag("");
  if (!Is_Numeric(Region_Combo.Key())) return;
  Load_Labels_for_Region(To_Integer(Region_Combo.Key()));
  if (Label_Combo.Place_Of(label_id) < 0 && Find_By_Key(Labels_Table, label_id)) {
    Label_Combo.Add(Labels.Label_Name, label_id);
  }
  Label_Combo.Choose(label_id);
}

// As designed, under WineMod, the keys keep their old lines ahead of the new ones; nothing reads
// them there.
void Wine_Form::Take_Over_Pairings() {
  if (!Command_Is("WineAdd") && !Command_Is("WineMod")) return;
  const bool old_keys = Command_Is("WineMod") && Is_Kept(Fault::Pairings_Chosen_Last_Are_Stored);
  if (!old_keys) Pairing_List.Keys().Clear();
  Pairing_List.List_Box::Clear();
  Pairing_List.Set_BackColor(Forms::Window_Color);
  Pairings_Add_Command.Set_Tag("0");
  for (int pairing = 1; pairing <= Selected_Count; ++pairing) {
    Pairing_List.Add(Selected_Names[pairing], Selected_IDs[pairing]);
  }
}

void Wine_Form::Show_Requested_Wine() {
  std::optional<Forms::List_Item> item = Wine_Cellar_ListView.Row_of(Requested_Wine_Text);
  if (!item) return;
  Wine_Cellar_ListView.Set_SelectedItem(*item);
  Wine_Cellar_ListView_ItemClick(*item);
  item->EnsureVisible();
}

// ---- leaving ----

void Wine_Form::Winery_Add_Command_Click() {
  if (!Screen("Wineries_Form").Exists() || !May_Lose_Entered()) return;
  if (Screen("Wineries_Form").Open()) Unload();
}

void Wine_Form::Label_Add_Command_Click() {
  if (Screen("Label_Form").Exists() && Screen("Label_Form").Open()) Hide();
}

void Wine_Form::Pairings_Add_Command_Click() {
  Screen("Select_Maridages_for_Wines_Form").Open_Over(*this);
}

void Wine_Form::Winery_Combo_DblClick() {
  if (!Screen("Wineries_Form").Exists()) return;
  own_records_ = Own_Records{};
  Current_Command = "WineryList";
  Screen("Wineries_Form").Open();
}

void Wine_Form::Exit_Command_Click() {
  if (Command_Is("CheeseParingsCellar")) {
    Screen("Cheeses_Form").Show();
  } else if (May_Lose_Entered()) {
    Leave();
  }
}
