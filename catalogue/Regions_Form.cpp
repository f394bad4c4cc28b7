// The life of the screen, its modes, and the ways back.
#include "catalogue/Regions_Form.h"

#include <algorithm>

#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"
#include "screens/Catalogue_Lists.h"
#include "screens/Field_States.h"

using Forms::Screen;

namespace {

constexpr const char* wineries = "Wineries_Form";
constexpr const char* hidden_list = "Regions_List_Form";

}  // namespace

Regions_Form::Regions_Form()
    : Catalogue_Screen("Regions_Form", "Wine Regions Information", Regions_Table) {
  for (Forms::Control* hidden : std::initializer_list<Forms::Control*>{
           &Label_Message_Label, &System_Message_Label, &System_Region_Label}) {
    hidden->Set_Visible(false);
  }
  Lay_Out();
  Name_Text.Change = [this] { Name_Changed(Name_Text); };
  Country_Combo.Click = [this] { Country_Combo_Click(); };
  Regions_ListView.ItemClick = [this](Forms::List_Item item) { Regions_ListView_ItemClick(item); };
  Labels_ListView.ItemClick = [this](Forms::List_Item item) { Labels_ListView_ItemClick(item); };
  General_Command.Click = [this] { General_Command_Click(); };
  Exit_Command.Click = [this] { Exit_Command_Click(); };
}

// ---- loading ----

void Regions_Form::Form_Load() {
  Load_Lists();
  Photo_Added_Flag = Varieties_Changed_Flag = Label_Renamed_Flag = false;
  Wait_for_Pick();
  if (Is_Adding()) Load_for_Add();
  if (Command_Is("RegionsMod")) Load_for_Mod();
  if (Command_Is("RegionsView")) Load_for_View("DISPLAY a Wine Region");
  if (Command_Is("LabelView")) Load_for_View("DISPLAY a Wine Labels");
  if (Command_Is({"LabelMod", "LabelDel"})) Setup_for_Label_Handling();
  if (Command_Is("VarietiesAddRegion")) Load_for_Pairing();
  if (Command_Is("RegionsDel") && Screen(hidden_list).Exists()) Screen(hidden_list).Load();
  Should_General_Command_be_Enabled();
  Take_as_Stored();
}

void Regions_Form::Load_Lists() {
  Initialize_Countries(Country_Combo, Wine_System.Country_Target);
  Load_Regions(Regions_ListView);
  Sort_by_Country(Regions_ListView);
}

// The arrow keys pick only where a pick does no more than show.
void Regions_Form::Wait_for_Pick() {
  Regions_ListView.Set_Arrow_Keys_Pick(
      Command_Is({"RegionsView", "LabelView", "LabelMod", "LabelDel"}));
  Labels_ListView.Set_Arrow_Keys_Pick(false);
  Regions_ListView.Set_Empty_Text("No regions yet.");
  for (Row_List* list : {&Labels_ListView, &Varieties_ListView}) {
    list->Set_Empty_Text("Select a region first.");
  }
  Regions_ListView.SetFocus();
}

bool Regions_Form::Is_From_Winery() const {
  return Command_Is({"WineryAdd", "WineAdd", "WineryMod", "WineOtherAdd"});
}

// As designed the screen does not know the last two commands that a winery is opened under.
bool Regions_Form::Is_Adding() const {
  return Command_Is({"RegionsAdd", "WineryAdd", "WineAdd"}) ||
         (Is_From_Winery() && !Is_Kept(Fault::New_Region_Needs_New_Winery));
}

// A region added on the way to a winery has no place in the groups.
void Regions_Form::Load_for_Add() {
  Set_Caption("ADD a new Wine Region");
  Require(Name_Text);
  Init_Regions_Record();
  if (Command_Is("RegionsAdd")) Compute_Next_Region_Group();
  Own_Row.Add();
  if (Is_From_Winery()) Set_Country();
  Stay_On_Esc();
  Name_Text.SetFocus();
}

// The place behind the highest one, into the memory record; ten to a group.
void Regions_Form::Compute_Next_Region_Group() {
  auto& rows = Regions_Recordset;
  Open_Table(rows, "Regions", "Region_Group");
  rows.MoveLast();
  const Long group = rows.Fields("Region_Group").As_Long();
  Long subgroup = 1;
  Each_Row_Of(rows, "Region_Group", group,
              [&] { subgroup = std::max(subgroup, Long{rows.Fields("Region_SubGr").As_Long()}); });
  Close_Table(rows);
  const bool full = subgroup == 10;
  Regions.Region_Group = full ? group + 1 : group;
  Regions.Region_SubGr = full ? 1 : subgroup + 1;
}

// The winery's; as designed a wine's new winery leaves it open.
void Regions_Form::Set_Country() {
  if (Command_Is("WineAdd") && Is_Kept(Fault::New_Region_Can_Be_Lost)) {
    return Show_Country(Current_Country_Short);
  }
  const Screen winery(wineries);
  const int chosen = winery.Get<Forms::Item_List>("Country_Combo").ListIndex();
  Show_Country(winery.Get<Forms::Item_List>("Country_Short_Combo").List(chosen));
  Lock(Country_Combo);
}

void Regions_Form::Load_for_Mod() {
  Set_Caption("MODIFY a Wine Region information");
  Lock(Country_Combo);
  Country_Combo.Set_ListIndex(-1);
  Lock(Name_Text);
  Name_Text.Set_Text("");
  General_Command.Set_Caption("MODIFY");
  Stay_On_Esc();
}

void Regions_Form::Load_for_View(const char* caption) {
  Set_Caption(caption);
  Lock_All();
  General_Command.Set_Visible(false);
}

void Regions_Form::Load_for_Pairing() {
  Set_Caption("Pairing of Regions with Varieties");
  for (Forms::Text_Box* box : {&History_Text, &Name_Text, &Description_Text}) Lock(*box);
}

void Regions_Form::Setup_for_Label_Handling() {
  History_Label.Set_Visible(false);
  History_Text.Set_Visible(false);
  Label_Message_Label.Set_Visible(true);
  System_Message_Label.Set_Visible(true);
  Lock_All();
  const Text verb = Command_Is("LabelDel") ? "DELETE" : "MODIFY";
  General_Command.Set_Caption(verb);
  Label_Message_Label.Set_Caption("Select first the Region then select the Label you want to " +
                                  verb);
  System_Message_Label.Set_Caption("You CANNOT " + verb +
                                   " a Label that was provided by the system");
}

void Regions_Form::Lock_All() {
  for (Forms::Text_Box* box : {&History_Text, &Name_Text, &Description_Text}) Lock(*box);
  Lock(Country_Combo);
}

// ---- coming back ----

// After the picker the list shows the grapes of the region alone, without those of its sub-regions.
void Regions_Form::Form_Activate() {
  Catalogue_Screen::Form_Activate();
  if (Varieties_Changed_Flag) {
    Own_Row.Read();
    Load_Own_Grapes_of_Region(Varieties_ListView);
  }
  if (Photo_Added_Flag) Set_Photos();
  if (Label_Renamed_Flag && Labels_ListView.Has_Selection()) {
    Labels_ListView.SelectedItem().Set_Text(Selected_Label_Text);
  }
  Photo_Added_Flag = Varieties_Changed_Flag = Label_Renamed_Flag = false;
}

// ---- leaving ----

// Where a winery waits behind it, it is the only way back there.
bool Regions_Form::May_Be_Replaced() {
  if (!Is_From_Winery() || Is_Kept(Fault::Entered_Row_Goes_Without_A_Word)) {
    return Catalogue_Screen::May_Be_Replaced();
  }
  return !Screen(wineries).Is_Loaded();
}

bool Regions_Form::Exit_Ends_the_Run() const {
  return Command_Is({"WineAdd", "WineryAdd"}) && Is_Kept(Fault::Region_For_Winery_Ends_The_Run);
}

void Regions_Form::Exit_Command_Click() {
  if (!May_Lose_Entered()) return;
  if (Exit_Ends_the_Run()) {
    Own_Row.Remove_Unconfirmed();
    Fail(Failure::Object_Required);
  }
  if (Is_From_Winery()) return Leave_to(wineries);
  Screen(hidden_list).Unload();
  Leave();
}
