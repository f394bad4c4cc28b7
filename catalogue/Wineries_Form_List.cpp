// The list of wineries and what a pick in it brings about, the labels of a winery and the general
// wines of these, and paging.
#include "catalogue/Wineries_Form.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/tables/Rows.h"
#include "platform/run_time/Conversions.h"
#include "screens/Catalogue_Lists.h"

using Forms::Screen;

namespace {

constexpr const char* paged_screen = "Wineries_List_Form";

/// The name in the row of this key, of an open table; "" where there is none. The table's memory
/// record stays as it is: a wine screen that waits behind counts by it.
Text Name_at(Record_Store::Recordset& rows, const char* name, Long key) {
  rows.Seek("=", key);
  return rows.NoMatch() ? Text() : rows.Fields(name).As_Text();
}

}  // namespace

void Wineries_Form::Load_Winery_List() {
  const Kept_Winery kept;
  Load_Wineries(Wineries_ListView);
}

void Wineries_Form::Wineries_ListView_ItemClick(Forms::List_Item item) {
  item.Set_Selected(true);
  if (Adds()) return;  // the fields are those of the new winery
  if (Command_Is("WineryMod") && !May_Leave_Row(Wineries_ListView)) return;
  if (!Show_Winery(Wineries_ListView.Key_of(item))) return;
  Follow_In_Paged_List();
  if (Command_Is("WineryDel")) Delete_Winery();
}

bool Wineries_Form::Show_Winery(const Text& key) {
  const Kept_Winery kept;
  if (!Own_Row.Pick(key)) return false;
  if (Command_Is("WineryMod")) Unlock_ALL_Fields();
  Memory_to_Form();
  if (Command_Is("WineryList")) Load_Labels();
  Wineries_ListView.Deselect_All();
  Wineries_ListView.Select(key);
  Take_as_Stored();
  return true;
}

// ---- labels and wines ----

void Wineries_Form::Load_Labels() {
  Available_Wines_ListView.Clear();
  Winery_Labels_List.Clear();
  Open_Table(Labels_per_Winery_Recordset, "Labels_per_Winery", "Winery_ID");
  Open_By_Key(Labels_Table);
  Each_Row_Of(Labels_per_Winery_Recordset, "Winery_ID", To_Long(Own_Row.Key()), [this] {
    const Long label = Labels_per_Winery_Recordset.Fields("Label_ID").As_Long();
    if (Winery_Labels_List.ListCount() == 0) Winery_Labels_List.Add("ALL LABELS", "0");
    Winery_Labels_List.Add(Name_at(Labels_Recordset, "Label_Name", label), To_Text(label));
  });
  Close_Table(Labels_Recordset);
  Close_Table(Labels_per_Winery_Recordset);
  Winery_Labels_List.Set_Empty_Text("No labels are known of this winery.");
  Available_Wines_ListView.Set_Empty_Text("No wines are known of this label.");
  if (Winery_Labels_List.ListCount() > 0) Winery_Labels_List.Set_ListIndex(0);
  Winery_Labels_List.Set_BackColor(Forms::Active_List_Color);
}

void Wineries_Form::Winery_Labels_List_Click() {
  Available_Wines_ListView.Clear();
  Open_By_Key(Varieties_Table);
  Open_Table(Mobile_Wines_Recordset, "Mobile_Wines", "Mobile_Wine_Label_ID");
  const Long chosen = To_Long(Winery_Labels_List.Key());
  for (int label = 1; label < Winery_Labels_List.ListCount(); ++label) {
    const Long key = To_Long(Winery_Labels_List.Key(label));
    if (chosen == 0 || chosen == key) Add_Wines_of_Label(key);
  }
  Close_Table(Mobile_Wines_Recordset);
  Close_Table(Varieties_Recordset);
}

void Wineries_Form::Add_Wines_of_Label(Long label_id) {
  Each_Row_Of(Mobile_Wines_Recordset, "Mobile_Wine_Label_ID", label_id, [this] {
    Mobile_Wines_Table.Read();
    Available_Wines_ListView.Add_Row(
        To_Text(Mobile_Wines.Mobile_Wine_ID),
        {Mobile_Wines.Mobile_Wine_Name,
         Name_at(Varieties_Recordset, "Variety_Name", Mobile_Wines.Mobile_Wine_Variety_ID)});
  });
}

// ---- paging ----

// Before the first step the list on show tells whether there is a row before and behind.
void Wineries_Form::Follow_In_Paged_List() {
  if (Own_Row.Key().empty()) return;
  if (Screen(paged_screen).Is_Loaded()) Take_Over_Order();
  Pages.Set_Previous_and_Next(Own_Row.Key());
}

// The next row is the next one that is seen. A list that was sorted once is filled anew for the
// order of the table.
void Wineries_Form::Take_Over_Order() {
  if (!Screen(paged_screen).Exists()) return;
  const Kept_Winery kept;
  auto& paged = Screen(paged_screen).Get<Row_List>("Wineries_ListView");
  if (Wineries_ListView.Sorted()) {
    paged.Set_Sorted(true);
    paged.Set_SortKey(Wineries_ListView.SortKey());
    paged.Set_SortOrder(Wineries_ListView.SortOrder());
  } else if (paged.Sorted()) {
    paged.Begin_Anew();
    Load_Wineries(paged);
  }
  paged.Deselect_All();
  paged.Select(Own_Row.Key());
  Pages.Go_Through(paged, Selected_Winery_Index);
}
