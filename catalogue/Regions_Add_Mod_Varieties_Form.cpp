#include "catalogue/Regions_Add_Mod_Varieties_Form.h"

#include <numeric>
#include <set>

#include "core/Common_Words.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Store.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"
#include "screens/Catalogue_Lists.h"

using Forms::List_Item;

namespace {

constexpr int color_column = 1;
constexpr int key_column = 2;

}  // namespace

Regions_Add_Mod_Varieties_Form::Regions_Add_Mod_Varieties_Form()
    : Catalogue_Screen("Regions_Add_Mod_Varieties_Form", "Add Modify Varieties- Labels",
                       Regions_Table, "PROCEED") {
  Exit_Command.Set_Caption("CANCEL");
  Lay_Out();
  Regions_ListView.ItemClick = [this](List_Item item) { Regions_ListView_ItemClick(item); };
  Varieties_AvailableView.ItemClick = [this](List_Item item) {
    Varieties_AvailableView_ItemClick(item);
  };
  Varieties_Selected_ListView.ItemClick = [this](List_Item item) {
    Varieties_Selected_ListView_ItemClick(item);
  };
  Varieties_AvailableView.DblClick = [this](List_Item) { Add_Var_Command_Click(); };
  Varieties_Selected_ListView.DblClick = [this](List_Item) { Remove_Var_Command_Click(); };
  Add_Var_Command.Click = [this] { Add_Var_Command_Click(); };
  Remove_Var_Command.Click = [this] { Remove_Var_Command_Click(); };
  General_Command.Click = [this] { General_Command_Click(); };
  Exit_Command.Click = [this] { Exit_Command_Click(); };
}

void Regions_Add_Mod_Varieties_Form::Lay_Out() {
  using namespace Forms;
  constexpr int list_height = 26;
  constexpr int regions_width = 48;
  constexpr int grapes_width = 38;
  Regions_ListView.Set_Accessible_Name("Wine Regions");
  Varieties_Selected_ListView.Set_Empty_Text("Select a region first.");
  const auto list = [](Row_List& view, int width) {
    return Place(view).Wide(width).High(list_height, 8).Grow();
  };
  const Place moves = Column({Stretch(), Add_Var_Command, Remove_Var_Command, Stretch()});
  Set_Content(Row({list(Regions_ListView, regions_width).Grow(4),
                   Below(Avail_Label, list(Varieties_AvailableView, grapes_width)).Grow(3), moves,
                   Below(Current_Label, list(Varieties_Selected_ListView, grapes_width)).Grow(3)}),
              Buttons({General_Command, Exit_Command}));
  Set_Exit(Exit_Command);
  Stay_On_Esc();
  Set_Commit(General_Command);
}

void Regions_Add_Mod_Varieties_Form::Form_Load() {
  Load_Regions(Regions_ListView);
  Load_Varieties(Varieties_AvailableView);
  Varieties_Changed_Flag = false;
  Close_Commands();
  Sort_by_Country(Regions_ListView);
  Regions_ListView.SetFocus();
  Take_as_Stored();
}

void Regions_Add_Mod_Varieties_Form::Close_Commands() {
  for (Forms::Command_Button* button : {&Add_Var_Command, &Remove_Var_Command, &General_Command}) {
    button->Set_Enabled(false);
  }
}

// Whatever the order of the list.
Text Regions_Add_Mod_Varieties_Form::Entered() {
  std::multiset<Text> grapes;
  for (int place = 1; place <= Varieties_Selected_ListView.Count(); ++place) {
    const List_Item row = Varieties_Selected_ListView.ListItems(place);
    grapes.insert(row.Text() + "\t" + Varieties_Selected_ListView.Key_of(row) + "\n");
  }
  return std::accumulate(grapes.begin(), grapes.end(), Text());
}

// ---- the lists ----

void Regions_Add_Mod_Varieties_Form::Regions_ListView_ItemClick(List_Item item) {
  const Text key = Regions_ListView.Key_of(item);
  if (!May_Leave_Row(Regions_ListView) || !Own_Row.Pick(key)) return;
  item.Set_Selected(true);
  Selected_Region_ID = To_Long(key);
  Varieties_Selected_ListView.Set_Empty_Text("No grape varieties in this region.");
  Open_By_Key(Regions_Table);
  Load_Grapes_of_Region(Varieties_Selected_ListView, Selected_Region_ID);
  Close_Table(Regions_Recordset);
  Close_Commands();
  Take_as_Stored();
}

void Regions_Add_Mod_Varieties_Form::Varieties_AvailableView_ItemClick(List_Item item) {
  item.Set_Selected(true);
  Add_Var_Command.Set_Enabled(!Own_Row.Key().empty());
}

void Regions_Add_Mod_Varieties_Form::Varieties_Selected_ListView_ItemClick(List_Item item) {
  item.Set_Selected(true);
  Remove_Var_Command.Set_Enabled(true);
}

// ---- the moves ----

bool Regions_Add_Mod_Varieties_Form::Is_Refused(const Text& key) {
  int own = 0;
  for (int place = 1; place <= Varieties_Selected_ListView.Count(); ++place) {
    const Text listed =
        Varieties_Selected_ListView.Key_of(Varieties_Selected_ListView.ListItems(place));
    if (listed == key) {
      Forms::Message_Box("Error, variety is ALLREADY in the selected list",
                         "ERROR DUPLICATE ENTRIES", Forms::Sign::Warning);
      return true;
    }
    if (!listed.empty()) ++own;
  }
  const int most = Selected_IDs.Bound();
  if (own < most || Is_Kept(Fault::Picker_Takes_One_Too_Many)) return false;
  Forms::Message_Box(Hint_Text(Screen_Words::Picker_Full, {To_Text(most)}),
                     Hint_Text(Screen_Words::Picker_Full_Title), Forms::Sign::Warning);
  return true;
}

void Regions_Add_Mod_Varieties_Form::Add_Var_Command_Click() {
  if (!Add_Var_Command.Enabled()) return;
  const List_Item grape = Varieties_AvailableView.SelectedItem();
  const Text key = Varieties_AvailableView.Key_of(grape);
  Read_By_Key(Varieties_Table, key);
  if (Is_Refused(key)) return;
  Varieties_Selected_ListView.Add_Row(key, {grape.Text(), grape.SubItems(color_column)});
  Varieties_Selected_ListView.Scroll_to(key);
  Add_Var_Command.Set_Enabled(false);
  General_Command.Set_Enabled(true);
}

void Regions_Add_Mod_Varieties_Form::Remove_Var_Command_Click() {
  if (!Remove_Var_Command.Enabled()) return;
  Varieties_Selected_ListView.Remove(Varieties_Selected_ListView.SelectedItem().Index());
  Remove_Var_Command.Set_Enabled(false);
  General_Command.Set_Enabled(true);
}

// ---- the writes ----

// All keys are read before anything is written. As designed a grape of a sub-region has none
// (35600), and a 101st one has no place in the selection (9).
void Regions_Add_Mod_Varieties_Form::Select_Listed() {
  int count = 0;
  for (int place = 1; place <= Varieties_Selected_ListView.Count(); ++place) {
    List_Item row = Varieties_Selected_ListView.ListItems(place);
    const bool has_key = !Varieties_Selected_ListView.Key_of(row).empty();
    if (!has_key && !Is_Kept(Fault::Grape_Of_Sub_Region_Ends_The_Run)) continue;
    ++count;
    row.Set_Selected(true);
    Selected_Names[count] = row.Text();
    Selected_IDs[count] = row.ListSubItems(key_column);
  }
  Selected_Count = To_Integer(static_cast<double>(count));
}

void Regions_Add_Mod_Varieties_Form::General_Command_Click() {
  Select_Listed();
  Own_Row.Read();
  Replace_Region_Varieties();
  Forms::Message_Box("Vaieties were added to the selected Region.", "VARIETIES MATCHED TO REGION");
  General_Command.Set_Enabled(false);
  Take_as_Stored();
}

void Regions_Add_Mod_Varieties_Form::Exit_Command_Click() {
  if (May_Lose_Entered()) Leave();
}
