// What a choice brings about in other fields, and a stored winery on the fields.
#include "catalogue/Wineries_Form.h"
#include "core/Data_Text.h"
#include "core/Gereral_Processes.h"
#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"
#include "screens/Place_Lists.h"

std::vector<Forms::Placed_Control*> Wineries_Form::Gate_Fields() {
  return {&Name_Text, &Country_Combo, &Region_Combo};
}

std::vector<Forms::Lockable_Control*> Wineries_Form::Entry_Fields() {
  return {&Name_Text,   &Add1_Text,     &Add2_Text,     &City_Text,    &Country_Combo,
          &State_Combo, &Province_Text, &Zip_Code_Text, &Region_Combo, &Phone_Text,
          &Web_Text,    &E_Mail_Text,   &History_Text};
}

std::vector<Wineries_Form::Optional_Text> Wineries_Form::Optional_Texts() {
  using R = Wineries_Record;
  return {{Add1_Text, &R::Address1},     {Add2_Text, &R::Address2}, {City_Text, &R::City},
          {Zip_Code_Text, &R::Zip_Code}, {Phone_Text, &R::Phone},   {Web_Text, &R::Web},
          {E_Mail_Text, &R::E_Mail}};
}

void Wineries_Form::Lock_all_Fields() {
  for (Forms::Lockable_Control* field : Entry_Fields()) Lock(*field);
}

void Wineries_Form::Unlock_ALL_Fields() {
  for (Forms::Lockable_Control* field : Entry_Fields()) Open(*field);
}

Text Wineries_Form::Entered() {
  Text entered = Trim(Name_Text.Text());
  for (const Optional_Text& text : Optional_Texts()) entered += "\n" + Trim(text.box.Text());
  for (const Forms::Text_Box* box : {&Province_Text, &History_Text}) {
    entered += "\n" + Trim(box->Text());
  }
  for (const Keyed_Combo_Box* combo : {&Country_Combo, &State_Combo, &Region_Combo}) {
    entered += "\n" + combo->Key();
  }
  return entered;
}

// ---- what a choice brings about ----

void Wineries_Form::Country_Combo_Click() {
  for (Keyed_Combo_Box* combo : {&Country_Combo, &Region_Combo}) combo->Set_Stand_In(false);
  Region_Combo.Set_Locked(false);
  Require(Region_Combo);
  Load_Regions_of_Country();
  Load_States_of_Country();
  Fill_In(Country_Combo);
  Lock_Region_of_View();
  Should_General_Command_be_Enabled();
}

// A country without regions has its one entry not chosen: a click on that opens the button.
void Wineries_Form::Load_Regions_of_Country() {
  Region_Combo.Clear();
  Region_Combo.Add("New Region");
  Wine_Region_Add_Command.Set_Enabled(false);
  Add_Regions_of_Country(Region_Combo, Country_Combo.Key());
  if (Region_Combo.ListCount() > 1) Region_Combo.Set_ListIndex(0);
}

void Wineries_Form::Load_States_of_Country() {
  const Text country = Country_Combo.Key();
  Read_By_Key(World_Contries_Table, country);
  const Text& word = Countries_Memory.Description_of_State;
  State_Label.Set_Caption(word == "x" ? "State" : word);
  State_Combo.Clear();
  if (Countries_Memory.State_Usage != "Y") {
    Show_State_Field(Province_Text);
    return;
  }
  Open_States_Of_Contry(country);
  State_Combo.Add_Rows(State_of_Contries_Query, "Long_Name", "Short_Name");
  Close_Table(State_of_Contries_Query);
  Close_Table(State_of_Contries_Recordset);
  Show_State_Field(State_Combo);
}

void Wineries_Form::Show_State_Field(Forms::Placed_Control& field) {
  State_Combo.Set_Visible(&field == &State_Combo);
  Province_Text.Set_Visible(&field == &Province_Text);
  State_Label.Set_Buddy(field);
}

void Wineries_Form::Region_Combo_Click() {
  const bool is_new = Region_Combo.ListIndex() == 0;
  Wine_Region_Add_Command.Set_Enabled(is_new);
  if (is_new) {
    Region_Combo.Set_Locked(false);
    Require(Region_Combo);
  } else {
    Fill_In(Region_Combo);
  }
  Lock_Region_of_View();
  Should_General_Command_be_Enabled();
}

void Wineries_Form::Lock_Region_of_View() {
  if (Command_Is({"WineryList", "WineryView"})) Lock(Region_Combo);
}

// ---- a stored winery on the fields ----

void Wineries_Form::Memory_to_Form() {
  Name_Text.Set_Text(Wineries.Winery_Name);
  for (const auto& [box, member] : Optional_Texts()) box.Set_Text(Given_Or_Blank(Wineries.*member));
  Choose_Country();
  Choose_State();
  Choose_Region();
  History_Text.Set_Text(Data_Text(History_Key()));
  Set_Photos();
}

// A row that was never confirmed has no country.
void Wineries_Form::Choose_Country() {
  if (Country_Combo.Choose(Wineries.Country)) return;
  Country_Combo.Set_ListIndex(-1);
  Region_Combo.Clear();
  for (Keyed_Combo_Box* combo : {&Country_Combo, &Region_Combo}) {
    Require(*combo);
    if (combo->Locked()) Show_Lock(*combo);
  }
  Wine_Region_Add_Command.Set_Enabled(false);
  State_Combo.Clear();
  Show_State_Field(Province_Text);
  Should_General_Command_be_Enabled();
}

void Wineries_Form::Choose_State() {
  const bool listed = State_Combo.ListCount() > 0;
  Province_Text.Set_Text(listed ? " " : Given_Or_Blank(Wineries.State));
  if (listed) {
    const int place = Place_of_Text(State_Combo, Wineries.State);
    if (place < State_Combo.ListCount()) State_Combo.Set_ListIndex(place);
  }
}

void Wineries_Form::Choose_Region() {
  if (!Region_Combo.Choose(To_Text(Wineries.Region_ID), 1)) Region_Combo.Set_ListIndex(-1);
}

// A winery that was never saved has none.
Long Wineries_Form::History_Key() {
  return Wineries.History == "x" ? -1 : To_Long(Wineries.History);
}
