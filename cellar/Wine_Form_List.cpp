// The list of the current cellar: filled, sorted, and the way to pick a wine.
#include "cellar/Wine_Form.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/run_time/Conversions.h"
#include "screens/List_Sorting.h"

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
  Open_Table(Wineries_Recordset, "Wineries", "Winery_ID");
  Clear_Wine_List();
  for (Wines_Recordset.MoveFirst(); !Wines_Recordset.Eof(); Wines_Recordset.MoveNext()) {
    Read_Wines_Record();
    if (Wines.Cellar_ID != Current_Cellar_ID) continue;
    Wineries_Recordset.Seek("=", Wines.Winery_ID);
    Read_Wineries_Record();
    Add_Wine_to_List();
  }
  Close_Table(Wines_Recordset);
}

// Sorts by text, numbers too. The column of the keys turns the order and keeps the column.
void Wine_Form::Wine_Cellar_ListView_ColumnClick(const Forms::Column_Header& header) {
  Sort_by_Header(Wine_Cellar_ListView, header,
                 {"Vintage", "Winery", "Label", "Wine Region", "Grape Variety", "Color", "Merit",
                  "Peak", "Stock"});
}

// This screen works on keys of 16 bits.
void Wine_Form::Wine_Cellar_ListView_ItemClick(Forms::List_Item item) {
  if (command_ == "WineAdd") {
    item.Set_Selected(false);
    return;
  }
  Checks_Locked = false;
  Selected_Wine_ID = To_Integer(Wine_Key(item));
  Seek_Wine();
  Open_Table(Wineries_Recordset, "Wineries", "Winery_ID");
  Wineries_Recordset.Seek("=", Wines.Winery_ID);
  Read_Wineries_Record();
  Close_Table(Wines_Recordset);
  item.Set_Selected(true);
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
