// The list of the current cellar: filled, sorted, and the way to pick a wine.
#include "cellar/Wine_Form.h"
#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/tables/Rows.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

// A cellar without a name has "x" for one, and so may a second cellar with a name.
void Wine_Form::Display_Current_Cellar() {
  const Text name = Trim(Current_Cellar_Name);
  const bool named = Is_Kept(Fault::Cellar_Can_Be_Named_X) ? name != "x" : Cellars_Are_Named();
  Wine_Cellar_Name_Label.Set_Caption(named ? name : "");
  Current_Cellar_Label.Set_Caption("Current Cellar List");
  Open_Table(Wines_Recordset, "Wines");
  if (Wines_Recordset.RecordCount() == 0) {
    Close_Table(Wines_Recordset);
    return;
  }
  Open_By_Key(Wineries_Table);
  Wine_Cellar_ListView.Begin_Anew();
  for (Wines_Recordset.MoveFirst(); !Wines_Recordset.Eof(); Wines_Recordset.MoveNext()) {
    Read_Wines_Record();
    if (Wines.Cellar_ID != Current_Cellar_ID) continue;
    Read_Winery_of_Wine();
    Add_Wine_to_List();
  }
  Close_Table(Wines_Recordset);
}

// With its winery gone, a wine shows without one, or ends the run.
void Wine_Form::Read_Winery_of_Wine() {
  if (!Find_Winery_of_Wine() && Is_Kept(Fault::Gone_Row_Ends_The_Run)) Wineries_Table.Read();
}

// As designed this screen works on keys of 16 bits. No to the question leaves the wine on show
// chosen.
void Wine_Form::Wine_Cellar_ListView_ItemClick(Forms::List_Item item) {
  if (Command_Is("WineAdd")) {
    item.Set_Selected(false);
    return;
  }
  if (!May_Lose_Entered()) {
    Wine_Cellar_ListView.Select(To_Text(Selected_Wine_ID));
    return;
  }
  Show_Stand_Ins(false);
  Checks_Locked = false;
  const Text key = Wine_Cellar_ListView.Key_of(item);
  Selected_Wine_ID = Is_Kept(Fault::Wine_Numbers_Have_16_Bits) ? To_Integer(key) : To_Long(key);
  Seek_Wine();
  Open_By_Key(Wineries_Table);
  Read_Winery_of_Wine();
  Close_Table(Wines_Recordset);
  item.Set_Selected(true);
  if (Command_Is("WineMod")) Picked_for_Mod();
  if (Command_Is("CellarView") || Command_Is("CheeseParingsCellar")) Picked_for_View();
  if (Command_Is("WineUncork")) Picked_for_Uncork();
  if (Command_Is("WineDel")) Picked_for_Del();
}

void Wine_Form::Picked_for_Mod() {
  // Without the message all aromas show: mended, those of the colour are offered after that.
  const bool all_aromas = Is_Kept(Fault::Color_Goes_By_Word);
  if (!all_aromas) Remove_Message();
  Memory_to_Form_for_Mod();
  if (all_aromas) Remove_Message();
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
  Take_as_Stored();
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
