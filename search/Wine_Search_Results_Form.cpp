#include "search/Wine_Search_Results_Form.h"

#include "core/Common_Words.h"
#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Search.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"

namespace {

using Columns = std::vector<Forms::List_Column>;

// As designed two of the headers read otherwise than the words that the columns answer to: they
// turn the order and keep the column.
std::vector<std::string> Words_of_Headers() {
  if (!Is_Kept(Fault::Two_Headers_Sort_Nothing)) return {};
  return {"Vintage", "Winery", "Label", "Region", "Variety", "Color", "Merit", "Peak", "Stock"};
}

}  // namespace

Wine_Search_Results_Form::Wine_Search_Results_Form()
    : Wine_Search_Results_Form(Cellars_to_Tell()) {}

Wine_Search_Results_Form::Wine_Search_Results_Form(Cellar_Names cellars)
    : Cellar_Wine_Screen("Wine_Search_Results_Form", "Wine Information",
                         cellars.empty() ? Widths{7, 16, 14, 12, 16, 9, 5, 5, 5}
                                         : Widths{6, 12, 11, 10, 12, 7, 5, 5, 5},
                         Words_of_Headers(),
                         cellars.empty() ? Columns() : Columns{{"Cellar", 6, false, true}}),
      cellars_(std::move(cellars)) {
  Lay_Out();
  Wine_Cellar_ListView.ItemClick = [this](Forms::List_Item item) {
    Wine_Cellar_ListView_ItemClick(item);
  };
  Variety_Combo.ItemCheck = [this](int item) { Variety_Combo_ItemCheck(item); };
  Multi_Functional_Command.Click = [this] { Multi_Functional_Command_Click(); };
  Exit_Command.Click = [this] { Exit_Command_Click(); };
}

void Wine_Search_Results_Form::Lay_Out() {
  using namespace Forms;
  const int requested_width = cellars_.empty() ? 22 : 18;
  Requested_Pairings_Label.Set_Buddy(Requested_Pairings_List);
  const Place found =
      Column({Row({Current_Cellar_Label, One_Place({Message_Label}).Grow(), Wines_Number}),
              Place(Wine_Cellar_ListView).High(12, 4).Grow()});
  const Place requested =
      Column({Requested_Pairings_Label,
              Place(Requested_Pairings_List).Wide(requested_width).High(12, 4).Grow()});
  Set_Content(Above_Below(Row({found.Grow(), requested}).Grow(), Fields_Place({})),
              Buttons({Multi_Functional_Command, Exit_Command}));
  Set_Exit(Exit_Command);
  Set_Commit(Multi_Functional_Command);
}

// ---- loading ----

Wine_Search_Results_Form::Cellar_Names Wine_Search_Results_Form::Cellars_to_Tell() {
  if (Is_Kept(Fault::Results_Hide_The_Cellar)) return {};
  Cellar_Names names;
  for (Open_Table(Cellars_Recordset, "Cellars"); !Cellars_Recordset.Eof();
       Cellars_Recordset.MoveNext()) {
    names[Cellars_Recordset.Fields("ID").As_Long()] =
        Cellars_Recordset.Fields("Cellar_Name").As_Text();
  }
  Close_Table(Cellars_Recordset);
  return names.size() < 2 ? Cellar_Names() : names;
}

void Wine_Search_Results_Form::Form_Load() {
  Initialize_Form_Data();
  Wine_Cellar_ListView.Set_Empty_Text(
      Hint_Text(Screen_Words::No_Wines_Found, {Exit_Command.Caption()}));
  if (!Command_Is("WineSearch")) return;
  Lock_Top_Window();
  Checks_Locked = true;
  Set_Caption("Results of Pairings with Wine in your " + Current_Cellar_Name + " Cellar");
  Multi_Functional_Command.Set_Enabled(false);
  Multi_Functional_Command.Set_Caption("UNCORK");
  Current_Cellar_Label.Set_Caption("Wines Matching the Request");
  Get_WineResults_Records();
  Load_Requested_Pairings();
  Wine_Cellar_ListView.SetFocus();
}

// Nothing stands in the fields before a wine is clicked.
void Wine_Search_Results_Form::Initialize_Form_Data() {
  const Ignoring_Events ignoring;
  for (Forms::Item_List* list : std::initializer_list<Forms::Item_List*>{
           &Winery_Combo, &Label_Combo, &Variety_Combo, &Region_Combo, &Country_Combo,
           &Classification_Combo, &Pairing_List, &Vintage_Combo, &Color_Combo, &Merit_Combo,
           &Bottle_Size_Combo, &Peak_Year_Combo}) {
    list->Clear();
  }
  for (Forms::Text_Box* box : Text_Fields()) box->Set_Text("");
  Boxes.Clear();
}

void Wine_Search_Results_Form::Load_Requested_Pairings() {
  Requested_Pairings_List.Clear();
  for (int pairing = 1; pairing <= Selected_Count; ++pairing) {
    Requested_Pairings_List.AddItem(Selected_Names[pairing]);
    requested_.insert(Selected_IDs[pairing]);
  }
}

// Among the pairings of the wine that is shown.
void Wine_Search_Results_Form::Show_Requested_in_Bold() {
  for (int pairing = 0; pairing < Pairing_List.ListCount(); ++pairing) {
    Pairing_List.Set_Bold(pairing, requested_.contains(Pairing_List.Key(pairing)));
  }
}

// ---- the list ----

// A wine that was removed may still have link rows: it is left out. Where the list is what was
// found when the screen was opened, whoever opened it has searched.
void Wine_Search_Results_Form::Get_WineResults_Records() {
  if (Is_Kept(Fault::Uncork_Changes_The_Search)) Search_Wines_for_Maridages();
  Open_By_Key(Wineries_Table);
  Open_By_Key(Wines_Table);
  Wine_Cellar_ListView.Begin_Anew();
  const bool cut = Search_Was_Cut();
  const int last = cut ? Found_Count - 1 : Found_Count;
  for (int found = 1; found <= last; ++found) {
    if (Find_Row(Wines_Table, Found_IDs[found])) List_Found_Wine();
  }
  Close_Table(Wineries_Recordset);
  Close_Table(Wines_Recordset);
  Tell_What_Is_Missing(last - Wine_Cellar_ListView.Count(), cut);
}

void Wine_Search_Results_Form::List_Found_Wine() {
  Find_Winery_of_Wine();
  Forms::List_Item row = Add_Wine_to_List();
  if (cellars_.empty()) return;
  const auto cellar = cellars_.find(Wines.Cellar_ID);
  if (cellar != cellars_.end()) row.Set_SubItems(First_Own_Column, cellar->second);
}

// Of what is listed an uncorking changes one number.
void Wine_Search_Results_Form::Fill_Wine_List() {
  if (Is_Kept(Fault::Uncork_Changes_The_Search)) {
    Get_WineResults_Records();
  } else if (auto row = Wine_Cellar_ListView.Row_of(To_Text(Selected_Wine_ID))) {
    row->Set_SubItems(Stock_Column, To_Text(Wines.Total_Bottles));
  }
}

// The list has the focus: what the line says is read with it.
void Wine_Search_Results_Form::Tell_What_Is_Missing(int removed, bool cut) {
  const Text listed = To_Text(Wine_Cellar_ListView.Count());
  Text message;
  if (cut) message = Hint_Text(Screen_Words::First_Shown, {listed});
  if (removed > 0) {
    if (cut) message += " ";
    message += Hint_Text(removed == 1 ? Screen_Words::One_Removed : Screen_Words::Several_Removed,
                         {To_Text(removed)});
  }
  Wines_Number.Set_Caption(listed + (cut ? "+" : ""));
  Message_Label.Set_Caption(message);
  Message_Label.Set_Visible(!message.empty());
  Wine_Cellar_ListView.Set_Tool_Tip(message);
}

// Where another program removed the picked wine meanwhile, the list is filled anew without it, and
// nothing is shown.
bool Wine_Search_Results_Form::Wine_Has_Gone() {
  if (Is_Kept(Fault::Gone_Row_Ends_The_Run) || Find_By_Key(Wines_Table, Selected_Wine_ID)) {
    return false;
  }
  Get_WineResults_Records();
  Initialize_Form_Data();
  Lock_Top_Window();
  Multi_Functional_Command.Set_Enabled(false);
  Wine_Cellar_ListView.SetFocus();
  return true;
}

void Wine_Search_Results_Form::Multi_Functional_Command_Click() {
  if (!Wine_Has_Gone()) Uncork_Wine();
}

// The focus goes back to the list, for the next wine.
void Wine_Search_Results_Form::Wine_Cellar_ListView_ItemClick(Forms::List_Item item) {
  Selected_Wine_ID = To_Long(Wine_Cellar_ListView.Key_of(item));
  if (Wine_Has_Gone()) return;
  Checks_Locked = false;
  Seek_Wine();
  Open_By_Key(Wineries_Table);
  Find_Winery_of_Wine();
  Close_Table(Wineries_Recordset);
  Memory_to_Form_Unique();
  Show_Requested_in_Bold();
  item.Set_Selected(true);
  Close_Table(Wines_Recordset);
  Wine_Cellar_ListView.SetFocus();
  if (!Command_Is("WineSearch")) return;
  Checks_Locked = true;
  Multi_Functional_Command.Set_Enabled(Wines.Total_Bottles > 0);
}

// The list of grapes has no lock: a click on a tick is undone.
void Wine_Search_Results_Form::Variety_Combo_ItemCheck(int item) {
  if (Ignore_Events) return;
  const Ignoring_Events ignoring;
  Variety_Combo.Set_Selected(item, !Variety_Combo.Selected(item));
}

void Wine_Search_Results_Form::Exit_Command_Click() {
  Leave_to(Command_Is("WineSearch") ? "Select_Mult_Maridages_Form" : "Wine_Cellar_Form");
}
