// The one button that writes, in each of its four modes. Nothing is undone: what was written before
// a failure stays written.
#include "cellar/Wine_Form.h"
#include "core/Data_Text.h"
#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Store.h"
#include "links/Used_Counters.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

void Wine_Form::Multi_Functional_Command_Click() {
  if (Command_Is("WineAdd")) Save_Wine();
  if (Command_Is("WineMod")) Modify_Wine();
  if (Command_Is("WineUncork")) Uncork_Wine();
  if (Command_Is("WineDel")) Remove_Wine();
}

// ---- SAVE ----

void Wine_Form::Save_Wine() {
  Store_New_Wine();
  Boxes.Store_Marks_of(Wines.Wine_ID);
  Store_Links_And_Count();
  Take_as_Stored();
  Winery_Combo.Set_ListIndex(0);
  Display_Current_Cellar();
  Wait_for_Country();
  Lock(Winery_Combo);
  if (Is_Kept(Fault::List_Is_Dead_After_Save)) Wine_Cellar_ListView.Set_Enabled(false);
  Should_Multi_Command_Be_Enabled();
  Forms::Message_Box("This Wine was successfully ADDED to your Wine Cellar.",
                     "WINE ADDITION SUCCESSFULLY");
}

// A row of defaults first, for its number; then, read back as the highest one, what the form says.
// A number that cannot be stored fails before there is a row.
void Wine_Form::Store_New_Wine() {
  const Numbers numbers = Numbers_of_Form();
  Open_Table(Wines_Recordset, "Wines");
  Init_Wines_Record();
  Wines_Recordset.AddNew();
  Write_Wines_Record();
  Close_Table(Wines_Recordset);
  Open_Table(Wines_Recordset, "Wines", "Wine_ID");
  Wines_Recordset.MoveLast();
  Read_Wines_Record();
  From_Form_to_Memory(numbers);
  Wines_Recordset.Edit();
  Write_Wines_Record();
  Close_Table(Wines_Recordset);
}

// As designed a part of what the wine uses is counted on the way.
void Wine_Form::Store_Links_And_Count() {
  const bool on_the_way = Is_Kept(Fault::Wrong_Rows_Are_Counted);
  if (on_the_way) Count_Names_In();
  Store_Varieties();
  if (on_the_way && Variety_Combo.ListIndex() >= 1) Count_Variety(Varieties.Variety_ID, 1);
  Store_Pairings();
  if (!on_the_way) Count_Difference({}, Uses_of_Wine());
}

// The label's and the classification's counters go by their memory records, and of all grapes only
// the one read last is counted, where the list of grapes has a current line.
void Wine_Form::Count_Names_In() {
  Count_Winery(Wines.Winery_ID, 1);
  Count_Region(Wineries.Region_ID, 1);
  if (Label_Combo.ListIndex() > 1) Count_Label(Labels.Label_ID, 1);
  if (Classification_Combo.ListIndex() > 1) {
    Count_Classification(Classification.Classification_ID, 1);
  }
}

// ---- MODIFY ----

void Wine_Form::Modify_Wine() {
  const Numbers numbers = Numbers_of_Form();
  Seek_Wine();
  const Uses before = Uses_Counted();
  From_Form_to_Memory(numbers);
  Wines_Recordset.Edit();
  Write_Wines_Record();
  Close_Table(Wines_Recordset);
  Boxes.Remove_Marks_of(Wines.Wine_ID);
  Boxes.Store_Marks_of(Wines.Wine_ID);
  Remove_Varieties();
  Store_Varieties();
  Store_Pairings();
  Count_Difference(before, Uses_Counted());
  Lock_Top_Window();
  Display_Current_Cellar();
  Multi_Functional_Command.Set_Enabled(false);
  Forms::Message_Box("Wine information was Modified.", "WINE INFORMATION UPDATED");
  Take_as_Stored();
  Top_Window_Clean();
  Wait_for_Pick();
}

// As designed a wine without a row has none to begin with (3021).
void Wine_Form::Remove_Varieties() {
  Open_Table(Varieties_of_Wines_Recordset, "Varieties_of_Wines", "Wine_ID");
  Varieties_of_Wines_Recordset.Seek("=", Wines.Wine_ID);
  if (Is_Kept(Fault::Nothing_To_Remove_Ends_The_Run)) {
    Varieties_of_Wines_Recordset.Fields("Wine_ID").As_Long();
  }
  Remove_Rows_Of(Varieties_of_Wines_Recordset, "Wine_ID", Wines.Wine_ID);
  Close_Table(Varieties_of_Wines_Recordset);
}

// ---- REMOVE ----

void Wine_Form::Remove_Wine() {
  Seek_Wine();
  const bool sure = Forms::Ask_Yes_No("Are you sure yo want to REMOVE this wine from Wine Cellar?",
                                      "WINE DELETE WARNING", Forms::Answer::No);
  if (!sure) {
    Close_Table(Wines_Recordset);
    return;
  }
  const Uses uses = Uses_Counted();
  Wines_Recordset.Edit();
  Wines_Recordset.Delete();
  Close_Table(Wines_Recordset);
  if (Is_Kept(Fault::Wrong_Rows_Are_Counted)) Count_Names_Out();
  Count_Difference(uses, {});
  if (!Is_Kept(Fault::Rows_Of_Removed_Wine_Stay)) Remove_Rows_of_Wine();
  Forms::Message_Box("This wine was REMOVED from your Wine Cellar.", "WINE DELETE NOTICE");
  Leave();
}

void Wine_Form::Count_Names_Out() {
  Count_Winery(Wines.Winery_ID, -1);
  Count_Region(Wineries.Region_ID, -1);
  if (Label_Combo.ListIndex() > 1) Count_Label(To_Long(Label_Combo.Key()), -1);
  if (Classification_Combo.ListIndex() > 1) {
    Count_Classification(To_Long(Classification_Combo.Key()), -1);
  }
  if (Variety_Combo.ListIndex() > 0) Count_Variety(To_Long(Variety_Combo.Key()), -1);
}

void Wine_Form::Remove_Rows_of_Wine() {
  Boxes.Remove_Marks_of(Wines.Wine_ID);
  Remove_Varieties();
  Remove_Wine_Maridages();
  for (const Long text : {Wines.Description, Wines.Comments}) Remove_Data_Text(text);
}

// ---- what they share ----

// As designed MODIFY counts nothing, and REMOVE what the screen names.
Uses Wine_Form::Uses_Counted() {
  return Is_Kept(Fault::Wrong_Rows_Are_Counted) ? Uses{} : Uses_of_Wine();
}

Wine_Form::Numbers Wine_Form::Numbers_of_Form() const {
  const Text price = Trim(Price_Text.Text());
  const Text alcohol = Trim(Alcohol_Text.Text());
  Numbers numbers;
  numbers.Winery_ID = To_Long(Winery_Combo.Key());
  numbers.Vintage = To_Integer(Vintage_Combo.Text());
  numbers.Peak = To_Integer(Peak_Year_Combo.Text());
  if (!price.empty()) numbers.Value_Guide = To_Currency(price);
  if (Merit_Combo.ListIndex() != 0) numbers.Ranking = To_Integer(Merit_Combo.Text());
  numbers.Total_Bottles = To_Integer(Trim(Total_Bottles_Text.Text()));
  if (!alcohol.empty()) numbers.Alcohol = To_Single(alcohol);
  return numbers;
}

void Wine_Form::From_Form_to_Memory(const Numbers& numbers) {
  Wines.Winery_ID = numbers.Winery_ID;
  Wines.Label = Label_Combo.ListIndex() == 1 ? "x" : Label_Combo.Text();
  Varieties_to_Memory();
  Wines.Vintage = numbers.Vintage;
  Wines.Peak = numbers.Peak;
  Wines.Value_Guide = numbers.Value_Guide;
  Wines.Ranking = numbers.Ranking;
  Wines.Total_Bottles = numbers.Total_Bottles;
  Wines.Bottle_Size = Bottle_Size_Combo.Text();
  Wines.Description = Store_Text(Description_Text, Wines.Description);
  Wines.Color = Color_Combo.Text();
  Wines.Alcohol = numbers.Alcohol;
  Wines.Clasification = Classification_Combo.Text();
  Wines.Comments = Store_Text(Comments_Text, Wines.Comments);
  Take_Changed_Date(Date_Added_Text, Wines.Date_Added, Wines.Date_Added);
  Take_Changed_Date(Last_Date_Uncorked_Text, Wines.Last_Date_Uncorked, No_Date);
}

void Wine_Form::Varieties_to_Memory() {
  Wines.Variety.clear();
  Each_Ticked_Variety([this](int item) {
    const Text& name = Variety_Combo.List(item);
    Wines.Variety_ID = To_Long(Variety_Combo.Key(item));
    if (!Wines.Variety.empty() && !name.empty()) Wines.Variety += ", ";
    Wines.Variety += name;
  });
}

// As designed a text that is stored already cannot be changed: the row is not being edited (3020).
Long Wine_Form::Store_Text(const Forms::Text_Box& box, Long key) const {
  const bool kept = Is_Kept(Fault::Stored_Text_Cannot_Change);
  return Store_Data_Text(key, box.Text(),
                         Command_Is("WineAdd") ? Text_Of::New_Row : Text_Of::Stored_Row,
                         kept ? Edit_First::No : Edit_First::Yes);
}

void Wine_Form::Store_Varieties() {
  Open_Table(Varieties_of_Wines_Recordset, "Varieties_of_Wines");
  Each_Ticked_Variety([this](int item) {
    Varieties_of_Wines_Recordset.AddNew();
    Varieties_of_Wines_Recordset.Fields("Wine_ID") = Wines.Wine_ID;
    Varieties_of_Wines_Recordset.Fields("Variety_ID") = To_Long(Variety_Combo.Key(item));
    Varieties_of_Wines_Recordset.Update();
  });
  Close_Table(Varieties_of_Wines_Recordset);
}

// An empty list may stand beside a selection of another wine.
void Wine_Form::Store_Pairings() {
  if (!Is_Kept(Fault::Pairings_Chosen_Last_Are_Stored)) {
    Select_All(Pairing_List);
  } else if (Pairing_List.ListCount() == 0) {
    return;
  }
  Store_Wine_Maridages();
}
