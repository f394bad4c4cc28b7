// The list of the current cellar: filled, sorted, and the way to pick a wine.
#include "cellar/Wine_Form.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr int key_column = 9;
constexpr int columns_known_by_header = 6;

}  // namespace

// A cellar without a name has "x" for one.
void Wine_Form::Display_Current_Cellar() {
  const Text name = Trim(Current_Cellar_Name);
  Wine_Cellar_Name_Label.Set_Caption(name == "x" ? "" : name);
  Current_Cellar_Label.Set_Caption("Current Cellar List");
  Open_Table(Wines_Recordset, "Wines");
  if (Wines_Recordset.RecordCount() == 0) {
    Close_Table(Wines_Recordset);
    return;
  }
  Open_Table(Wineries_Recordset, "Wineries");
  Wineries_Recordset.Index("Winery_ID");
  Wine_Cellar_ListView.Clear();
  Wine_Cellar_ListView.Set_Sorted(false);
  Wine_Cellar_ListView.Set_SortKey(0);
  Wine_Cellar_ListView.Set_SortOrder(0);
  for (Wines_Recordset.MoveFirst(); !Wines_Recordset.Eof(); Wines_Recordset.MoveNext()) {
    Read_Wines_Record();
    if (Wines.Cellar_ID == Current_Cellar_ID) Add_Current_Wine();
  }
  Close_Table(Wines_Recordset);
}

void Wine_Form::Add_Current_Wine() {
  Wineries_Recordset.Seek("=", Wines.Winery_ID);
  Read_Wineries_Record();
  Forms::List_Item item = Wine_Cellar_ListView.Add(To_Text(Wines.Vintage));
  item.Set_SubItems(1, Wineries.Winery_Name);
  if (Wines.Label != "x") item.Set_SubItems(2, Wines.Label);
  item.Set_SubItems(3, Wineries.Region);
  item.Set_SubItems(4, Wines.Variety);
  item.Set_SubItems(5, Wines.Color);
  if (Wines.Ranking != -1) item.Set_SubItems(6, To_Text(Wines.Ranking));
  item.Set_SubItems(7, To_Text(Wines.Peak));
  item.Set_SubItems(8, To_Text(Wines.Total_Bottles));
  item.Set_SubItems(key_column, To_Text(Wines.Wine_ID));
}

// Sorts by text, numbers too. The column of the keys turns the order and keeps the column.
void Wine_Form::Wine_Cellar_ListView_ColumnClick(const Forms::Column_Header& header) {
  Wine_Cellar_ListView.Set_SortOrder(Wine_Cellar_ListView.SortOrder() == 0 ? 1 : 0);
  Wine_Cellar_ListView.Set_Sorted(true);
  for (int column = 1; column <= columns_known_by_header; ++column) {
    if (Wine_Cellar_ListView.Header_Text(column) == header.Text) {
      Wine_Cellar_ListView.Set_SortKey(column - 1);
      return;
    }
  }
  if (header.Text == "Merit") Wine_Cellar_ListView.Set_SortKey(6);
  if (header.Text == "Peak") Wine_Cellar_ListView.Set_SortKey(7);
  if (header.Text == "Stock") Wine_Cellar_ListView.Set_SortKey(8);
}

void Wine_Form::Wine_Cellar_ListView_ItemClick(Forms::List_Item item) {
  if (command_ == "WineAdd") {
    item.Set_Selected(false);
    return;
  }
  Checks_Locked = false;
  const Integer wine_id = To_Integer(item.SubItems(key_column));
  Open_Table(Wines_Recordset, "Wines");
  Wines_Recordset.Index("WINE_ID");
  Wines_Recordset.Seek("=", wine_id);
  Read_Wines_Record();
  Open_Table(Wineries_Recordset, "Wineries");
  Wineries_Recordset.Index("Winery_ID");
  Wineries_Recordset.Seek("=", Wines.Winery_ID);
  Read_Wineries_Record();
  Close_Table(Wines_Recordset);
  item.Set_Selected(true);
  Selected_Wine_ID = wine_id;
  if (command_ == "WineMod") Picked_for_Mod();
  if (command_ == "CellarView" || command_ == "CheeseParingsCellar") Picked_for_View();
  if (command_ == "WineUncork") Picked_for_Uncork();
  if (command_ == "WineDel") Picked_for_Del();
}

void Wine_Form::Picked_for_Mod() {
  Memory_to_Form_for_Mod();
  Remove_Message();
  UnLock_Top_Window();
  Multi_Functional_Command.Set_Caption("MODIFY");
  for (Forms::Lockable_Control* field : std::initializer_list<Forms::Lockable_Control*>{
           &Region_Combo, &Country_Combo, &Winery_Combo}) {
    Lock(*field);
  }
  Multi_Functional_Command.Set_Visible(true);
  Multi_Functional_Command.Set_Enabled(true);
  Disable_Add_Buttons();
  Winery_Add_Command.Set_Visible(false);
  Pairings_Add_Command.Set_Enabled(true);
}

void Wine_Form::Picked_for_View() {
  Remove_Message();
  Checks_Locked = true;
  Memory_to_Form_Unique();
}

void Wine_Form::Picked_for_Uncork() {
  Memory_to_Form_Unique();
  Remove_Message();
  Checks_Locked = true;
  const bool bottles_left = Wines.Total_Bottles >= 1;
  if (bottles_left) {
    Show_Lock(Total_Bottles_Text);
  } else {
    Require(Total_Bottles_Text);
  }
  Multi_Functional_Command.Set_Visible(true);
  Multi_Functional_Command.Set_Enabled(bottles_left);
  Multi_Functional_Command.Set_Caption("UNCORK");
}

void Wine_Form::Picked_for_Del() {
  Memory_to_Form_Unique();
  Lock_Top_Window();
  Remove_Message();
  Checks_Locked = true;
  Multi_Functional_Command.Set_Visible(true);
  Multi_Functional_Command.Set_Caption("REMOVE");
  Multi_Functional_Command.Set_Enabled(true);
}

std::optional<Forms::List_Item> Wine_Form::Item_of_Wine(const Text& wine_id) {
  for (int place = 1; place <= Wine_Cellar_ListView.Count(); ++place) {
    const Forms::List_Item item = Wine_Cellar_ListView.ListItems(place);
    if (item.SubItems(key_column) == wine_id) return item;
  }
  return std::nullopt;
}
