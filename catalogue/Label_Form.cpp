// The life of the screen, its modes and its fields.
#include "catalogue/Label_Form.h"

#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/Ownership.h"
#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"
#include "screens/Catalogue_Lists.h"
#include "screens/Field_States.h"
#include "screens/Place_Lists.h"

using Forms::Required_Color;
using Forms::Window_Color;

Label_Form::Label_Form() : Catalogue_Screen("Label_Form", "Label Information", Labels_Table) {
  System_Label.Set_Visible(false);
  Lay_Out();
  Country_Combo.Click = [this] { Country_Combo_Click(); };
  Region_Combo.Click = [this] { Region_Combo_Click(); };
  Name_Text.Change = [this] { Name_Text_Change(); };
  General_Command.Click = [this] { General_Command_Click(); };
  Exit_Command.Click = [this] { Exit_Command_Click(); };
}

void Label_Form::Lay_Out() {
  using namespace Forms;
  constexpr int field_width = 52;
  constexpr int picture_width = 24;
  constexpr int picture_height = 12;
  Photo_Image.Set_Accessible_Name("Photo of the Label");
  General_Command.Set_Other_Captions({"MODIFY"});
  const Place fields = Fields({{Country_Label, Place(Country_Combo).Wide(field_width)},
                               {Region_Label, Region_Combo},
                               {Name_Label, Name_Text},
                               {Current_Labels_Label, Current_Labels_Combo}});
  Set_Content(Row({Column({fields, System_Label, Stretch()}).Grow(2),
                   Place(Photo_Image).Wide(picture_width).High(picture_height).Grow()}),
              Buttons({General_Command, Exit_Command}));
  Set_Exit(Exit_Command);
  Stay_On_Esc();
  Set_Commit(General_Command);
}

// ---- loading ----

void Label_Form::Form_Load() {
  General_Command.Set_Enabled(false);
  if (Adds()) Load_Data_for_Add();
  if (Modifies()) Load_Data_for_Mod();
  Take_as_Stored();
}

bool Label_Form::Commits() const { return Adds() || Modifies(); }

// The country on show is a default: it is still to be chosen, as the region is.
void Label_Form::Load_Data_for_Add() {
  Initialize_Countries(Country_Combo, Wine_System.Country_Target);
  Set_Caption("ADD a new Label for a Wine Region");
  Init_Labels_Record();
  Own_Row.Add();
  for (Forms::Lockable_Control* field :
       std::initializer_list<Forms::Lockable_Control*>{&Name_Text, &Country_Combo, &Region_Combo}) {
    field->Set_Locked(false);
    Require(*field);
  }
  General_Command.Set_Enabled(false);
  Country_Combo.SetFocus();
}

// The label on show is the one in the memory record, and its key this screen's own from now on. The
// screen of the regions takes its text over in any case, changed or not.
void Label_Form::Load_Data_for_Mod() {
  Own_Row.Pick(To_Text(Labels.Label_ID));
  Initialize_Countries(Country_Combo, Current_Country_Short);
  Set_Caption("MODIFY Label Information");
  General_Command.Set_Caption("MODIFY");
  Memory_to_Form();
  Lock(Country_Combo);
  Show_Regions(Current_Country_Short);
  Region_Combo.Choose(To_Text(Labels.Region_ID));
  Lock(Region_Combo);
  for (int place = 0; place < Current_Labels_Combo.ListCount(); ++place) {
    if (Current_Labels_Combo.List(place) == Labels.Label_Name) own_place_ = place;
  }
  Current_Labels_Combo.Set_ListIndex(own_place_);
  Selected_Region_ID = Labels.Region_ID;
  Label_Renamed_Flag = true;
  Name_Text.SetFocus();
}

// No command leads here.
void Label_Form::Load_Data_for_View() {
  Load_Data_for_Mod();
  Set_Caption("DISPLAY Label Information");
  General_Command.Set_Visible(false);
  Lock(Name_Text);
}

void Label_Form::Memory_to_Form() {
  const bool delivered = Is_System_Row(Labels.SERIAL_NUMBER);
  Name_Text.Set_Text(Labels.Label_Name);
  System_Label.Set_Visible(delivered);
  General_Command.Set_Visible(!delivered);
  delivered ? Lock(Name_Text) : Open(Name_Text);
}

// All that can be changed under the command; what is locked stays as it was.
Text Label_Form::Entered() { return Name_Text.Text() + "\n" + Region_Combo.Key(); }

// ---- the fields ----

bool Label_Form::Has_Name() const { return !Trim(Name_Text.Text()).empty(); }

void Label_Form::Show_Regions(const Text& country) {
  Region_Combo.Clear();
  Current_Labels_Combo.Clear();
  Add_Regions_of_Country(Region_Combo, country);
}

// The first region is a default as well, and a country without regions leaves none to choose.
void Label_Form::Country_Combo_Click() {
  Show_Regions(Country_Combo.Key());
  Country_Combo.Set_BackColor(Window_Color);
  if (Command_Is("LabelAdd") && Region_Combo.ListCount() > 0) Region_Combo.Set_ListIndex(0);
  if (Adds()) Region_Combo.Set_BackColor(Required_Color);
  General_Command.Set_Enabled(Has_Name() && Region_Combo.BackColor() != Required_Color);
}

void Label_Form::Region_Combo_Click() {
  Region_Combo.Set_BackColor(Window_Color);
  Current_Labels_Combo.Clear();
  for (Open_Labels_Of_Region(To_Long(Region_Combo.Key())); !Labels_Query.Eof();
       Labels_Query.MoveNext()) {
    Current_Labels_Combo.AddItem(Labels_Query.Fields("Label_Name").As_Text());
  }
  Close_Table(Labels_Query);
  Close_Table(Labels_Recordset);
  if (Current_Labels_Combo.ListCount() > 0) Current_Labels_Combo.Set_ListIndex(0);
  Lock(Current_Labels_Combo);
  General_Command.Set_Enabled(Has_Name());
}

// An emptied name has the region chosen again, not a name entered: as designed even where the
// region is locked, and nothing opens the button again.
void Label_Form::Name_Text_Change() {
  const bool named = Has_Name();
  const bool region_answers =
      !Region_Combo.Locked() || Is_Kept(Fault::Emptied_Name_Leaves_Modify_Closed);
  if (named) {
    Name_Text.Set_BackColor(Window_Color);
  } else {
    (region_answers ? static_cast<Forms::Placed_Control&>(Region_Combo) : Name_Text)
        .Set_BackColor(Required_Color);
  }
  Name_Text.Set_Tag(named ? "1" : "0");
  General_Command.Set_Enabled(Commits() && named && Country_Combo.BackColor() != Required_Color &&
                              Region_Combo.BackColor() != Required_Color);
  if (Name_Text.Locked()) Name_Text.Set_BackColor(Forms::Locked_Color);
}
