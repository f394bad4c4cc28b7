// The lists that are the same for every wine: years, colours, sizes, marks of merit.
#include "cellar/Wine_Form.h"
#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr int vintages_back = 50;
constexpr int peak_years = 15;
constexpr int first_peak_choice = 8;
constexpr int usual_bottle_size = 3;
constexpr int lowest_merit = 50;
constexpr int highest_merit = 100;

void Add_Numbers(Forms::Combo_Box& combo, int first, int last) {
  for (int number = first; number <= last; ++number) combo.AddItem(To_Text(number));
}

}  // namespace

// The fields whose lists and texts do not come from the reference tables.
void Wine_Form::Initialize_Own_Fields() {
  const Ignoring_Events ignoring;
  Initialize_Vintage();
  Initialize_Color();
  Boxes.Clear();
  Initialize_Bootle_Size();
  Initialize_Merit();
  for (Forms::Text_Box* box : Text_Fields()) box->Set_Text("");
  Pairing_List.Clear();
  Checks_Locked = false;
}

// Only a list that took an entry in is filled anew: a pick shall not take longer for the others.
void Wine_Form::Drop_Entries_Taken_In() {
  constexpr int merits = 1 + highest_merit - lowest_merit + 1;
  if (Vintage_Combo.ListCount() > vintages_back + 1) Initialize_Vintage();
  if (Color_Combo.ListCount() > Color_Names.Bound()) Initialize_Color();
  if (Bottle_Size_Combo.ListCount() > Bottle_Sizes.Bound()) Initialize_Bootle_Size();
  if (Merit_Combo.ListCount() > merits) Initialize_Merit();
}

// The peak years follow from the choice.
void Wine_Form::Initialize_Vintage() {
  const int this_year = Now().Year();
  Vintage_Combo.Clear();
  Add_Numbers(Vintage_Combo, this_year - vintages_back, this_year);
  Vintage_Combo.Set_ListIndex(vintages_back / 2);
}

void Wine_Form::Fill_Peak_Years() {
  const int vintage = To_Integer(Vintage_Combo.Text());
  Peak_Year_Combo.Clear();
  Add_Numbers(Peak_Year_Combo, vintage, vintage + peak_years);
  Peak_Year_Combo.Set_ListIndex(first_peak_choice);
}

void Wine_Form::Initialize_Color() {
  Color_Combo.Clear();
  for (int color = 1; color <= Color_Names.Bound(); ++color) {
    Color_Combo.AddItem(Color_Names[color]);
  }
  Color_Combo.Set_ListIndex(0);
}

void Wine_Form::Initialize_Bootle_Size() {
  Bottle_Size_Combo.Clear();
  for (int size = 1; size <= Bottle_Sizes.Bound(); ++size) {
    Bottle_Size_Combo.AddItem(Bottle_Sizes[size]);
  }
  Bottle_Size_Combo.Set_ListIndex(usual_bottle_size);
}

void Wine_Form::Initialize_Merit() {
  Merit_Combo.Clear();
  Merit_Combo.AddItem(" ");
  Add_Numbers(Merit_Combo, lowest_merit, highest_merit);
  Merit_Combo.Set_ListIndex(0);
}
