#include "main_window/Cellar_Names_Form.h"

#include "core/Cellar_Menu.h"
#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Message_Box.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

Cellar_Names_Form::Cellar_Names_Form()
    : Command_Form("Cellar_Names_Form", "Cellar Names Information") {
  Lay_Out();
  General_Command.Click = [this] { General_Command_Click(); };
  Exit_Command.Click = [this] { Leave_Beside(); };
  for (Forms::Text_Box* box : {&Cellar1_Name_Text, &Cellar2_Name_Text}) {
    box->Set_Tag("0");
    box->Change = [this, box] { Name_Text_Change(*box); };
  }
}

void Cellar_Names_Form::Lay_Out() {
  constexpr int name_width = 32;
  Set_Content(
      Forms::Column(
          {Forms::Fields({{Cellar1_Name_Label, Forms::Place(Cellar1_Name_Text).Wide(name_width)},
                          {Cellar2_Label, Forms::Place(Cellar2_Name_Text).Wide(name_width)}}),
           Forms::Stretch()}),
      Forms::Buttons({General_Command, Exit_Command}));
  Set_Exit(Exit_Command);
  Set_Commit(General_Command, Enter_Key::Commits);
}

void Cellar_Names_Form::Form_Load() {
  if (Command_Is("CellarNames")) {
    Require(Cellar1_Name_Text);
    Require(Cellar2_Name_Text);
    General_Command.Set_Enabled(false);
  } else if (Command_Is("CellarMod")) {
    filling_ = true;
    Open_Table(Cellars_Recordset, "Cellars");
    Cellar1_Name_Text.Set_Text(Cellars_Recordset.Fields("Cellar_Name").As_Text());
    Cellars_Recordset.MoveNext();
    Cellar2_Name_Text.Set_Text(Cellars_Recordset.Fields("Cellar_Name").As_Text());
    filling_ = false;
  }
}

// "x" stands for cellars that were not named yet.
void Cellar_Names_Form::Name_Text_Change(Forms::Text_Box& changed) {
  if (filling_) return;
  const Text name = Trim(changed.Text());
  const bool is_name = !name.empty() && (name != "x" || Is_Kept(Fault::Cellar_Can_Be_Named_X));
  Require_Unless(is_name, changed);
  General_Command.Set_Enabled(All_Filled({&Cellar1_Name_Text, &Cellar2_Name_Text}));
}

void Cellar_Names_Form::General_Command_Click() {
  if (Command_Is("CellarNames")) Name_Cellars();
  if (Command_Is("CellarMod")) Modify_Names();
}

void Cellar_Names_Form::Name_Cellars() {
  Open_Table(Cellars_Recordset, "Cellars");
  Cellars_Recordset.Edit();
  Cellars_Recordset.Fields("Cellar_Name") = Cellar1_Name_Text.Text();
  Cellars_Recordset.Update();
  Cellars_Recordset.MoveNext();
  if (Cellars_Recordset.Eof() || Is_Kept(Fault::Second_Naming_Adds_A_Row)) {
    Cellars_Recordset.AddNew();
  } else {
    Cellars_Recordset.Edit();
  }
  Cellars_Recordset.Fields("Cellar_Name") = Cellar2_Name_Text.Text();
  Cellars_Recordset.Update();
  Current_Cellar_Name = Cellar1_Name_Text.Text();
  Set_Commands_Multiple_Cellars();
  Close_Table(Cellars_Recordset);
  Forms::Message_Box("Cellar Names were saved successfully", "CELLAR NAMES SAVED");
  Leave_Beside();
}

void Cellar_Names_Form::Modify_Names() {
  Open_Table(Cellars_Recordset, "Cellars");
  for (const Forms::Text_Box* box : {&Cellar1_Name_Text, &Cellar2_Name_Text}) {
    if (box == &Cellar2_Name_Text) Cellars_Recordset.MoveNext();
    Cellars_Recordset.Edit();
    Cellars_Recordset.Fields("Cellar_Name") = box->Text();
    Cellars_Recordset.Update();
    if (Cellars_Recordset.Fields("ID").As_Long() == Current_Cellar_ID) {
      Current_Cellar_Name = box->Text();
    }
  }
  Set_Commands_Multiple_Cellars();
  Close_Table(Cellars_Recordset);
  Forms::Message_Box("Cellar Names were MODIFIED successfully", "CELLAR NAMES MODIFIED");
  Leave_Beside();
}

void Cellar_Names_Form::Set_Commands_Multiple_Cellars() {
  Wine_System.System_Initialized = true;
  Show_Named_Cellars(Cellar1_Name_Text.Text(), Cellar2_Name_Text.Text());
}
