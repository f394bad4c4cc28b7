// A region or a label is picked.
#include "catalogue/Deletions.h"
#include "catalogue/Regions_Form.h"
#include "core/Globals.h"
#include "core/Ownership.h"
#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"
#include "screens/Catalogue_Lists.h"
#include "screens/Field_States.h"

using Forms::List_Item;
using Forms::Message_Box;
using Forms::Screen;

// ---- a region ----

// While a region is added, as designed, the picked one takes the place of what was entered.
void Regions_Form::Regions_ListView_ItemClick(List_Item item) {
  if (Is_Adding() && !Is_Kept(Fault::Pick_Replaces_New_Row)) return;
  if (!May_Leave_Row(Regions_ListView)) return;
  Region_Image.Set_Picture("");
  if (!Own_Row.Pick(Regions_ListView.Key_of(item))) return;
  item.Set_Selected(true);
  Current_Country_Short = Regions.Country;
  Memory_to_Form();
  Load_Labels(Regions.Region_ID);
  Load_Grapes(Regions.Region_ID);
  Set_Photos();
  Take_as_Stored();
  if (Command_Is("VarietiesAddRegion")) {
    if (Screen("Select_Mult_Varieties_Form").Open()) Hide();
  }
  if (Command_Is("RegionsMod")) Show_Whose_Region();
  if (Command_Is("RegionsDel")) Delete_Region();
  if (Command_Is({"LabelDel", "LabelMod"})) {
    Labels_ListView.Set_BackColor(Forms::Active_List_Color);
  }
}

void Regions_Form::Memory_to_Form() {
  Name_Text.Set_Text(Regions.Region_Name);
  Show_Country(Regions.Country);
  Description_Text.Set_Text(Data_Text(Regions.Description));
  History_Text.Set_Text(Data_Text(Regions.History));
  Should_General_Command_be_Enabled();
}

void Regions_Form::Show_Country(const Text& short_name) {
  if (!Country_Combo.Choose(short_name)) Country_Combo.Set_ListIndex(-1);
}

// A label that has a general wine stands out, one that has none leads nowhere.
void Regions_Form::Load_Labels(Long region_id) {
  Labels_ListView.Clear();
  Labels_ListView.Set_Empty_Text("The region has no labels.");
  Open_Table(Mobile_Wines_Recordset, "Mobile_Wines", "Mobile_Wine_Label_ID");
  Add_Labels_of_Region(Labels_ListView, region_id, [this](List_Item row) {
    Mobile_Wines_Recordset.Seek("=", Labels_ListView.Key_of(row));
    const bool leads_on = !Mobile_Wines_Recordset.NoMatch();
    leads_on ? row.Set_Bold(true) : row.Set_ForeColor(Forms::Inactive_Label_Color);
    row.Set_Note(leads_on ? "has a general wine" : "has no general wine");
  });
  Close_Table(Mobile_Wines_Recordset);
}

// The labels of the sub-regions come with their grapes, behind those of the region.
void Regions_Form::Load_Grapes(Long region_id) {
  Varieties_ListView.Set_Empty_Text("The region has no grape varieties.");
  Open_By_Key(Regions_Table);
  Load_Grapes_of_Region(Varieties_ListView, region_id,
                        [this] { Add_Labels_of_Region(Labels_ListView, Regions.Region_ID); });
  Close_Table(Regions_Recordset);
  for (Row_List* list : {&Varieties_ListView, &Labels_ListView}) {
    list->Set_SortKey(0);
    list->Set_Sorted(true);
  }
}

// A delivered region keeps its name.
void Regions_Form::Show_Whose_Region() {
  const bool delivered = Is_System_Row(Regions.SERIAL_NUMBER);
  System_Region_Label.Set_Visible(delivered);
  delivered ? Lock(Name_Text) : Open(Name_Text);
}

void Regions_Form::Delete_Region() {
  if (Is_In_Use(Deletion_of_Region, Regions.Used)) return;
  if (Delete_If_Wanted(Deletion_of_Region)) {
    Load_Regions(Regions_ListView);
    Region_Or_Label_Changed = true;
  }
  Screen("Wine_Cellar_Form").Show();
  Screen("Regions_List_Form").Unload();
}

// ---- a label ----

void Regions_Form::Labels_ListView_ItemClick(List_Item item) {
  const Text key = Labels_ListView.Key_of(item);
  if (!Own_Label.Pick(key)) return;
  Selected_Label_ID = To_Integer(key);
  Selected_Label_Text = item.Text();
  item.Set_Selected(true);
  if (Command_Is("LabelAdd")) Open_Label();
  if (Command_Is({"LabelMod", "RegionsMod"})) Modify_Label();
  if (Command_Is("LabelDel")) Delete_Label();
  if (Command_Is({"LabelView", "RegionsView"})) View_Label();
}

void Regions_Form::Modify_Label() {
  if (Is_System_Row(Labels.SERIAL_NUMBER)) {
    Message_Box("This is a System Label, you CANNOT MODIFY.", "ILLEGAL LABEL MODIFY",
                Forms::Sign::Warning);
  } else if (May_Lose_Entered()) {
    Open_Label();
  }
}

void Regions_Form::Open_Label() {
  if (Screen("Label_Form").Open()) Hide();
}

void Regions_Form::Delete_Label() {
  if (Is_In_Use(Deletion_of_Label, Labels.Used)) return;
  if (Is_System_Row(Labels.SERIAL_NUMBER)) {
    Message_Box("This is a System Label, you CANNOT DELETE.", "ILLEGAL LABEL DELETE",
                Forms::Sign::Warning);
  } else if (Delete_If_Wanted(Deletion_of_Label, Own_Label)) {
    Region_Or_Label_Changed = true;
    Load_Labels(To_Long(Own_Row.Key()));
  }
}

// The wine asked for is the one read last, where the label has none.
void Regions_Form::View_Label() {
  Open_Table(Mobile_Wines_Recordset, "Mobile_Wines", "Mobile_Wine_Label_ID");
  Find_Row(Mobile_Wines_Table, Labels.Label_ID);
  Close_Table(Mobile_Wines_Recordset);
  Show_General_Wine(To_Text(Mobile_Wines.Mobile_Wine_ID), This_Screen::Stays);
}
