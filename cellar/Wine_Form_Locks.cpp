// The states of the fields: locked, open, required; the buttons; the gate.
#include "cellar/Wine_Form.h"
#include "core/Globals.h"
#include "screens/Field_States.h"

using Forms::Required_Color;

Wine_Form::Controls Wine_Form::Gate_Fields() {
  return {&Bottle_Size_Combo, &Classification_Combo, &Color_Combo,  &Label_Combo,
          &Variety_Combo,     &Vintage_Combo,        &Winery_Combo, &Total_Bottles_Text};
}

// The vintage shows as required though its first fill counts as a choice.
void Wine_Form::UnLock_for_Add() {
  UnLock_Top_Window();
  Lock(Region_Combo);
  for (Forms::Placed_Control* field :
       Controls{&Label_Combo, &Variety_Combo, &Bottle_Size_Combo, &Total_Bottles_Text, &Color_Combo,
                &Classification_Combo}) {
    Require(*field);
  }
  Vintage_Combo.Set_BackColor(Required_Color);
  Checks_Locked = false;
}

std::vector<Forms::Item_List*> Wine_Form::Chosen_Lists() {
  return {&Winery_Combo,  &Label_Combo,          &Region_Combo, &Country_Combo,
          &Vintage_Combo, &Peak_Year_Combo,      &Merit_Combo,  &Bottle_Size_Combo,
          &Color_Combo,   &Classification_Combo, &Variety_Combo};
}

// What stands in the lists before a wine is picked says nothing of any wine.
void Wine_Form::Show_Stand_Ins(bool stand_ins) {
  for (Forms::Item_List* list : Chosen_Lists()) list->Set_Stand_In(stand_ins);
}

// The winery first: back on its first entry it has everything else filled anew.
void Wine_Form::Top_Window_Clean() {
  Winery_Combo.Set_ListIndex(0);
  const Ignoring_Events ignoring;
  for (Forms::Item_List* list : Chosen_Lists()) {
    if (list->ListCount() > 0) list->Set_ListIndex(0);
  }
  for (Forms::Text_Box* box : Text_Fields()) box->Set_Text("");
  Boxes.Clear();
}

void Wine_Form::Hide_Add_Commands() {
  for (Forms::Command_Button* button :
       {&Classification_Add_Command, &Label_Add_Command, &Variety_Add_Command}) {
    button->Set_Visible(false);
  }
}

void Wine_Form::Hide_ADD_Buttons() {
  Hide_Add_Commands();
  Winery_Add_Command.Set_Visible(false);
}

void Wine_Form::Disable_Add_Buttons() {
  for (Forms::Command_Button* button : {&Classification_Add_Command, &Label_Add_Command,
                                        &Variety_Add_Command, &Winery_Add_Command}) {
    button->Set_Enabled(false);
  }
}

// A wine begun anew finds no field of the gate filled, whatever the fields show by default; only
// the vintage counts from its fill on.
void Wine_Form::Reset_Values() {
  Initialize_Form_Data();
  Lock_Top_Window();
  Checks_Locked = true;
  for (Forms::Placed_Control* field : Gate_Fields()) {
    if (field != &Vintage_Combo) field->Set_Tag("0");
  }
  Winery_Combo.Set_BackColor(Required_Color);
  Winery_Combo.Set_Locked(false);
  Hide_Add_Commands();
  Pairings_Add_Command.Set_Enabled(false);
}
