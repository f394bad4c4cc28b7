// What the screen stores, and the ways back.
#include "catalogue/Label_Form.h"
#include "core/Globals.h"
#include "core/Ownership.h"
#include "core/tables/Catalogue.h"
#include "links/Referred_Rows.h"
#include "platform/run_time/Conversions.h"

using Forms::Screen;

namespace {

constexpr const char* error_title = "LABEL ADD ERROR";
constexpr const char* regions = "Regions_Form";
constexpr const char* wine = "Wine_Form";

}  // namespace

void Label_Form::General_Command_Click() {
  if (Command_Is("LabelAdd")) Add_Label();
  if (Modifies()) Modify_Label();
  if (Command_Is({"WineAdd", "WineryAdd"})) Add_Label_for_Wine();
}

bool Label_Form::Is_Double() {
  for (int place = 0; place < Current_Labels_Combo.ListCount(); ++place) {
    if (place == own_place_) continue;
    if (!Same_Name(Current_Labels_Combo.List(place), Trim(Name_Text.Text()))) continue;
    Forms::Message_Box("This Label ALLREADY exists.", error_title, Forms::Sign::Warning);
    Current_Labels_Combo.Set_ListIndex(place);
    Name_Text.SetFocus();
    return true;
  }
  return false;
}

void Label_Form::Form_to_Memory() const {
  Labels.Label_Name = Name_Text.Text();
  Labels.Region_ID = To_Integer(Region_Combo.Key());
}

bool Label_Form::Store_New_Label() {
  if (Is_Refused_Name(Name_Text, error_title) || Is_Double()) return false;
  Own_Row.Store([this] {
    Init_Labels_Record();
    Form_to_Memory();
    Labels.SERIAL_NUMBER = Serial_of_Installation(To_Text(Labels.Label_ID));
  });
  Region_Or_Label_Changed = true;
  Forms::Message_Box("Label was created successfully.", "SUCCESSFULL LABEL CREATION");
  return true;
}

void Label_Form::Add_Label() {
  if (Store_New_Label()) Leave();
}

// The region stays, and so do the fields that no screen shows.
void Label_Form::Modify_Label() {
  if (Is_Refused_Name(Name_Text, error_title) || Is_Double()) return;
  Own_Row.Store([this] {
    Rename_Label_in_Wines(Name_Text.Text());
    Labels.Label_Name = Name_Text.Text();
  });
  Selected_Label_Text = Name_Text.Text();
  Region_Or_Label_Changed = true;
  Forms::Message_Box("Label was modified successfully.", "SUCCESSFULL LABEL MODIFICATION");
  Leave_to(regions);
}

// The wine screen finds the key of the label at its button and chooses it.
void Label_Form::Add_Label_for_Wine() {
  if (Is_Kept(Fault::Label_For_Wine_Ends_The_Run)) Fail(Failure::Object_Required);
  if (!Store_New_Label()) return;
  Screen(wine).Control("Label_Add_Command").Set_Tag(Own_Row.Key());
  Leave_to(wine);
}

// Under RegionsMod the screen of the regions is loaded anew, and this one stays behind it.
void Label_Form::Exit_Command_Click() {
  if (!May_Lose_Entered()) return;
  if (Command_Is("LabelMod")) {
    Leave_to(regions);
  } else if (Command_Is("RegionsMod")) {
    Take_as_Stored();  // the question was answered
    Screen(regions).Open();
  } else if (Command_Is({"WineAdd", "WineryAdd"})) {
    Exit_to_Wine();
  } else {
    Leave();
  }
}

// As designed it takes the region with the highest key for the row that was being added.
void Label_Form::Exit_to_Wine() {
  if (Is_Kept(Fault::Label_For_Wine_Ends_The_Run)) {
    Open_By_Key(Regions_Table);
    Regions_Recordset.MoveLast();
    Regions_Recordset.Delete();
    Close_Table(Regions_Recordset);
    Fail(Failure::Object_Required);
  }
  Leave_to(wine);
}
