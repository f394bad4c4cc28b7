// What a choice in a field brings about in the others, and what the text fields accept.
#include <cmath>

#include "cellar/Wine_Form.h"
#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/tables/Rows.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

using Forms::Locked_Color;
using Forms::Window_Color;

namespace {

// The first numbers that the fields of the table cannot hold.
constexpr double too_many_bottles = 32768;
constexpr double too_much_alcohol = 3.402823567e38;
constexpr double too_high_price = 922337203685477.5;
constexpr int oldest_accepted_date = 20;  // calendar years back

// What is wrong with a number; "" if nothing is. One that the table could not hold is no number.
Text Number_Fault(const Text& field, const Text& text, double too_much) {
  if (!Is_Numeric(text) || To_Double(text) >= too_much) {
    return field + " value is NOT numeric !!!";
  }
  if (To_Double(text) < 0) return field + " value MUST be greather than 0 !!!";
  return {};
}

Text Whole_Number_Fault(const Text& field, const Text& text, double too_much) {
  Text fault = Number_Fault(field, text, too_much);
  if (!fault.empty() || To_Double(text) == std::trunc(To_Double(text))) return fault;
  return field + " value MUST be an Integer !!!";
}

Text Date_Fault(const Text& text) {
  if (!Is_Date(text)) return "This is an Illegal Date !!!";
  const Date date = To_Date(text);
  if (date > Now()) return "This date is in the FUTURE !!!";
  if (date.Year() < Now().Year() - oldest_accepted_date) {
    return "This date is TOO far into the PAST !!!";
  }
  return {};
}

// Tells the fault and keeps the user in the field. False where there is none.
bool Is_Refused(Forms::Text_Box& field, const Text& fault, const char* title) {
  if (fault.empty()) return false;
  Forms::Message_Box(fault, title, Forms::Sign::Warning);
  field.SetFocus();
  return true;
}

constexpr const char* illegal_number = "ILLEGAL NUMBER";

}  // namespace

void Wine_Form::Country_Combo_Click() {
  Fill_In(Country_Combo);
  if (Country_Combo.Locked() || !Is_Followed(Country_Combo, chosen_country_)) return;
  chosen_winery_.clear();
  const Text country = Country_Combo.Key();
  Load_Wineries_in_Country(country);
  Require(Winery_Combo);
  Winery_Combo.Set_Locked(false);
  Winery_Add_Command.Set_Enabled(true);
  Load_Regions_for_Country(country);
  Load_Classifications(country);
}

void Wine_Form::Winery_Combo_Click() {
  if (Winery_Combo.ListIndex() < 1) {
    New_Winery_Chosen();
  } else if (Is_Followed(Winery_Combo, chosen_winery_)) {
    Winery_Chosen();
  }
}

void Wine_Form::Winery_Chosen() {
  Winery_Add_Command.Set_Enabled(false);
  Read_Winery_By_ID(To_Integer(Winery_Combo.Key()));
  Load_Region_Unique();
  Load_Labels_for_Region(To_Integer(static_cast<double>(Wineries.Region_ID)));
  Load_Classifications(Wineries.Country);
  Load_Varieties_for_Region(Wineries.Region_ID);
  Fill_In(Winery_Combo);
  if (!Command_Is("WineAdd") && !Command_Is("WineOtherAdd")) return;
  UnLock_for_Add();
  Region_Combo.Set_Tag("1");
  for (Forms::Command_Button* button :
       {&Classification_Add_Command, &Label_Add_Command, &Variety_Add_Command}) {
    button->Set_Visible(true);
  }
  Pairings_Add_Command.Set_Enabled(true);
}

// Back on the first entry everything is filled anew.
void Wine_Form::New_Winery_Chosen() {
  if (!May_Lose_Entered()) {
    Winery_Combo.Choose(chosen_winery_);
    return;
  }
  chosen_winery_.clear();
  Winery_Add_Command.Set_Enabled(!Winery_Combo.Locked());
  Reset_Values();
  Take_as_Stored();
}

void Wine_Form::Region_Combo_Click() {
  if (Region_Combo.ListIndex() >= 1) {
    Load_Labels_for_Region(To_Integer(Region_Combo.Key()));
    Fill_In(Region_Combo);
  } else {
    Region_Combo.Set_Locked(false);
    Require(Region_Combo);
  }
}

// The colour that a label fixes is set here, while events are ignored: it is not the user's choice,
// so the boxes stay as they were and the colour does not count as chosen. A stored label that has
// gone is an entry without a row.
void Wine_Form::Label_Combo_Click() {
  if (Label_Combo.ListIndex() >= 2 && Find_By_Key(Labels_Table, Label_Combo.Key()) &&
      Labels.Wine_Color != "x") {
    Color_Combo.Set_ListIndex(Color_Index(Labels.Wine_Color));
  }
  Take_Choice(Label_Combo, Label_Add_Command);
}

void Wine_Form::Classification_Combo_Click() {
  Take_Choice(Classification_Combo, Classification_Add_Command);
}

void Wine_Form::Variety_Combo_ItemCheck(int item) {
  if (Ignore_Events) return;
  const Ignoring_Events ignoring;
  if (Variety_Combo.BackColor() == Locked_Color) {
    Variety_Combo.Set_Selected(item, !Variety_Combo.Selected(item));
    return;
  }
  const bool new_variety = Variety_Combo.Selected(0);
  for (int other = 1; new_variety && other < Variety_Combo.ListCount(); ++other) {
    Variety_Combo.Set_Selected(other, false);
  }
  Variety_Add_Command.Set_Enabled(new_variety);
  if (!new_variety && Variety_Combo.SelCount() >= 1) {
    Variety_Combo.Set_Tag("1");
    Variety_Combo.Set_BackColor(Window_Color);
  } else {
    Require(Variety_Combo);
  }
  Should_Multi_Command_Be_Enabled();
}

// A stored word that stands for no colour is a last entry, and leaves the boxes as they are.
void Wine_Form::Color_Combo_Click() {
  Fill_In(Color_Combo);
  if (Color_Combo.ListIndex() < Color_Names.Bound()) {
    Boxes.Offer(English_Color(Color_Combo.ListIndex()));
  }
}

void Wine_Form::Bottle_Size_Combo_Click() { Fill_In(Bottle_Size_Combo); }

// Also while events are ignored: the peak years follow every change of the vintage.
void Wine_Form::Vintage_Combo_Click() {
  Fill_Peak_Years();
  if (Vintage_Combo.ListIndex() > 0 || !Is_Kept(Fault::Oldest_Vintage_Is_No_Choice)) {
    Fill_In(Vintage_Combo);
  } else {
    Require(Vintage_Combo);
  }
  Should_Multi_Command_Be_Enabled();
}

void Wine_Form::Total_Bottles_Text_LostFocus() {
  const Text& text = Total_Bottles_Text.Text();
  if (text.empty() ||
      Is_Refused(Total_Bottles_Text, Whole_Number_Fault("Total Bottles", text, too_many_bottles),
                 illegal_number)) {
    Require(Total_Bottles_Text);
  } else {
    Fill_In(Total_Bottles_Text);
  }
}

void Wine_Form::Alcohol_Text_LostFocus() {
  const Text& text = Alcohol_Text.Text();
  const bool blank_counts = Is_Kept(Fault::Shown_Value_Is_Refused);
  if (blank_counts ? text.empty() : Trim(text).empty()) return;
  Is_Refused(Alcohol_Text, Number_Fault("Alcohol", text, too_much_alcohol), illegal_number);
}

// A lone blank counts as empty here.
void Wine_Form::Price_Text_LostFocus() {
  const Text& text = Price_Text.Text();
  if (Trim(text).empty()) return;
  Is_Refused(Price_Text, Number_Fault("Price", text, too_high_price), illegal_number);
}

void Wine_Form::Date_Text_LostFocus(Forms::Text_Box& date) {
  if (date.Locked() || Trim(date.Text()).empty()) return;
  if (!Was_Changed(date) && !Is_Kept(Fault::Shown_Value_Is_Refused)) return;
  Is_Refused(date, Date_Fault(date.Text()), "ILLEGAL DATE");
}

void Wine_Form::Keep_Shown_Dates() {
  for (const Forms::Text_Box* date : {&Date_Added_Text, &Last_Date_Uncorked_Text}) {
    shown_dates_[date] = date->Text();
  }
}

bool Wine_Form::Was_Changed(const Forms::Text_Box& date) const {
  return date.Text() != shown_dates_.at(&date);
}

void Wine_Form::Take_Changed_Date(const Forms::Text_Box& date, Date& stored,
                                  const Date& none) const {
  if (Is_Kept(Fault::Typed_Dates_Are_Not_Stored) || !Was_Changed(date)) return;
  const Text text = Trim(date.Text());
  if (text.empty()) {
    stored = none;
  } else if (Date_Fault(text).empty()) {
    stored = To_Date(text);
  }
}
