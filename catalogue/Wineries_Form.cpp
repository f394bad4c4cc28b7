// The life of the screen, its modes, and the ways to other screens and back.
#include "catalogue/Wineries_Form.h"

#include "core/Globals.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/System_Tables.h"
#include "platform/run_time/Conversions.h"
#include "screens/Catalogue_Lists.h"
#include "screens/Field_States.h"

using Forms::Screen;

namespace {

constexpr const char* region_screen = "Regions_Form";
constexpr const char* wine_screen = "Wine_Form";
constexpr const char* general_list = "Mobile_Wine_Form";

}  // namespace

Wineries_Form::Wineries_Form()
    : Catalogue_Screen("Wineries_Form", "Winery Information", Wineries_Table, "SAVE") {
  General_Command.Set_Other_Captions({"MODIFY"});
  Lay_Out();
  Set_Up_Handlers();
}

void Wineries_Form::Set_Up_Handlers() {
  Name_Text.Change = [this] { Name_Changed(Name_Text); };
  Country_Combo.Click = [this] { Country_Combo_Click(); };
  Region_Combo.Click = [this] { Region_Combo_Click(); };
  Wine_Region_Add_Command.Click = [this] { Wine_Region_Add_Command_Click(); };
  Wineries_ListView.ItemClick = [this](Forms::List_Item item) {
    Wineries_ListView_ItemClick(item);
  };
  const auto sort = Wineries_ListView.ColumnClick;
  Wineries_ListView.ColumnClick = [this, sort](const Forms::Column_Header& header) {
    sort(header);
    Follow_In_Paged_List();
  };
  Pages.Go_Through(Wineries_ListView, Selected_Winery_Index);
  Pages.Before_Step = [this] { Take_Over_Order(); };
  Pages.Show_Row = [this](const Text& key) { return Show_Winery(key); };
  Winery_Labels_List.Click = [this] { Winery_Labels_List_Click(); };
  Available_Wines_ListView.ItemClick = [this](Forms::List_Item item) {
    Show_General_Wine(Available_Wines_ListView.Key_of(item), This_Screen::Hides);
  };
  Available_Wines_ListView.Set_Arrow_Keys_Pick(false);
  General_Command.Click = [this] { General_Command_Click(); };
  Exit_Command.Click = [this] { Exit_Command_Click(); };
}

// ---- the modes ----

bool Wineries_Form::Adds() const { return Command_Is({"WineryAdd", "WineAdd", "WineOtherAdd"}); }

bool Wineries_Form::Commits() const {
  if (Command_Is("WineOtherAdd")) return !Is_Kept(Fault::Winery_For_General_List_Is_Not_Stored);
  return Adds() || Command_Is("WineryMod");
}

void Wineries_Form::Form_Load() {
  Initialize_Countries(Country_Combo, Wine_System.Country_Target);
  for (Keyed_Combo_Box* combo : {&Country_Combo, &Region_Combo}) combo->Set_Stand_In(!Adds());
  Load_Winery_List();
  Wineries_ListView.SetFocus();
  if (Adds()) Load_for_Add();
  if (Command_Is("WineryList")) Load_for_List();
  if (Command_Is("WineryMod")) Load_for_Mod();
  if (Command_Is("WineryDel")) Load_for_Del();
  if (Command_Is("WineryView")) Load_for_View();
  Take_as_Stored();
}

void Wineries_Form::Load_for_Add() {
  Set_Caption("ADD A NEW Winery");
  Setup_for_Add();
  Stay_On_Esc();
  Name_Text.SetFocus();
}

// No region can be chosen before a country; the country on show is a default, not a choice.
void Wineries_Form::Setup_for_Add() {
  Require(Name_Text);
  Require(Country_Combo);
  Lock(Region_Combo);
  Region_Combo.Set_Tag("0");
  General_Command.Set_Enabled(false);
  if (!Is_Kept(Fault::New_Region_Can_Be_Lost)) Wine_Region_Add_Command.Set_Enabled(false);
  Wineries_Form_Previous_Command.Set_Visible(false);
  Wineries_Form_Next_Command.Set_Visible(false);
  Init_Wineries_Record();
  Own_Row.Add();
}

void Wineries_Form::Load_for_List() {
  Lock_all_Fields();
  Wine_Region_Add_Command.Set_Visible(false);
  General_Command.Set_Visible(false);
  Winery_Labels_List.Set_Empty_Text("Pick a winery to see its labels.");
  Available_Wines_ListView.Set_Empty_Text("Pick a label to see its wines.");
}

void Wineries_Form::Load_for_Mod() {
  Set_Caption("MODIFY Winery Information");
  Lock_all_Fields();
  General_Command.Set_Caption("MODIFY");
  General_Command.Set_Enabled(false);
  Wineries_Form_Previous_Command.Set_Visible(false);
  Wineries_Form_Next_Command.Set_Visible(false);
  Wineries_ListView.Set_Arrow_Keys_Pick(false);  // a pick throws away what was changed
  Stay_On_Esc();
}

void Wineries_Form::Load_for_Del() {
  Set_Caption("DELETE of a Winery");
  Lock_all_Fields();
  Wine_Region_Add_Command.Set_Visible(false);
  General_Command.Set_Visible(false);
  Wineries_Form_Previous_Command.Set_Visible(false);
  Wineries_Form_Next_Command.Set_Visible(false);
  Wineries_ListView.Set_Arrow_Keys_Pick(false);
}

void Wineries_Form::Load_for_View() {
  Memory_to_Form();
  General_Command.Set_Visible(false);
  Wine_Region_Add_Command.Set_Visible(false);
}

// ---- the way to a new region and back ----

void Wineries_Form::Wine_Region_Add_Command_Click() {
  if (!Screen(region_screen).Exists()) return;
  Current_Country_Short = Country_Combo.Key();
  if (Screen(region_screen).Open()) Hide();
}

void Wineries_Form::Form_Activate() {
  Catalogue_Screen::Form_Activate();
  if (Tag() == "1") {
    Load_Regions_of_Country();
    Region_Combo.Choose(To_Text(New_Region_ID), 1);
  }
  Set_Tag("0");
}

// ---- leaving ----

void Wineries_Form::Form_Unload() {
  Catalogue_Screen::Form_Unload();
  Screen("Wineries_List_Form").Unload();
}

void Wineries_Form::Exit_Command_Click() {
  const bool enters = Adds() || Commits();
  if (!enters || May_Lose_Entered()) Go_Back();
}

void Wineries_Form::Go_Back() {
  if (Command_Is("WineAdd")) {
    Leave_to(wine_screen);
  } else if (Command_Is("WineOtherAdd")) {
    Leave_to(general_list);
  } else if (Command_Is("WineryAdd")) {
    Leave();
  } else {
    Leave_Beside();
    Bring_Wine_Screen_Forward();
  }
}

// The one that this screen was opened from, or that was opened beside it.
void Wineries_Form::Bring_Wine_Screen_Forward() {
  for (const char* name : {wine_screen, general_list}) {
    if (Screen(name).Visible()) Screen(name).Show();
  }
}
