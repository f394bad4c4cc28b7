// What the lists of the screen are filled with. Every filler leaves Ignore_Events as it found it,
// and raises no event of the fields while it works.
#include "cellar/Wine_Form.h"
#include "core/Globals.h"
#include "core/tables/System_Tables.h"
#include "screens/Place_Lists.h"

void Wine_Form::Initialize_Form_Data() {
  Initialize_Winery();
  Initialize_Label();
  Initialize_Classification();
  Initialize_Variety();
  Initialize_Region();
  Initialize_Country();
  Initialize_Own_Fields();
}

void Wine_Form::Initialize_Display_Data() {
  const Ignoring_Events ignoring;
  Initialize_Winery();
  Label_Combo.Show_Alone("New Label", "New Label");
  Classification_Combo.Show_Alone("New Classification", "New Classification");
  Variety_Combo.Show_Alone("New Variety", "New Variety");
  Region_Combo.Show_Alone("New Region", "New Region");
  Show_Country_Alone(Country_Combo, Wine_System.Country_Target);
  Initialize_Own_Fields();
}

void Wine_Form::Initialize_Winery() {
  const Ignoring_Events ignoring;
  Fill(Winery_Combo, {"New Winery"}, Add_Wineries);
}

void Wine_Form::Initialize_Label() {
  const Ignoring_Events ignoring;
  Fill(Label_Combo, {"New Label"}, Add_Labels);
  Label_Add_Command.Set_Enabled(true);
}

void Wine_Form::Initialize_Classification() {
  const Ignoring_Events ignoring;
  Fill(Classification_Combo, {"New Classification", "NO Classification"}, Add_Classifications);
  Classification_Add_Command.Set_Enabled(true);
}

void Wine_Form::Initialize_Variety() {
  const Ignoring_Events ignoring;
  Fill(Variety_Combo, {"New Variety"}, Add_Varieties);
  Variety_Add_Command.Set_Enabled(true);
}

void Wine_Form::Initialize_Region() {
  const Ignoring_Events ignoring;
  Fill(Region_Combo, {"New Region", "No Region"}, Add_Regions);
}

void Wine_Form::Initialize_Country() {
  const Text& country = Wine_System.Country_Target;
  const Ignoring_Events ignoring;
  Country_Combo.Clear();
  Add_Countries(Country_Combo);
  Country_Combo.Choose(country);
  Load_Regions_for_Country(country);
  Load_Classifications(country);
}

void Wine_Form::Load_Wineries_in_Country(const Text& country) {
  const Ignoring_Events ignoring;
  Fill(Winery_Combo, {"New Winery"},
       [&](Keyed_List& list) { Add_Wineries_of_Country(list, country); });
}

// All labels of the country, below one another by region; a winery brings those of its region.
void Wine_Form::Load_Regions_for_Country(const Text& country) {
  const Ignoring_Events ignoring;
  Region_Combo.Clear();
  Fill(Label_Combo, {"New Label"},
       [&](Keyed_List& labels) { Add_Regions_And_Labels(Region_Combo, labels, country); });
  if (Region_Combo.ListCount() > 0) Region_Combo.Set_ListIndex(0);
  Label_Add_Command.Set_Enabled(true);
}

void Wine_Form::Get_Regions_for_Country(const Text& country) {
  Region_Combo.Clear();
  Region_Combo.Add("New Region");
  Add_Regions_of_Country(Region_Combo, country);
}

void Wine_Form::Load_Labels_for_Region(Integer region_id) {
  const Ignoring_Events ignoring;
  Fill(Label_Combo, {"New Label", "No Label"},
       [&](Keyed_List& list) { Add_Labels_of_Region(list, region_id); });
  Label_Add_Command.Set_Enabled(true);
}

// The memory record holds the last row of the table afterwards: the counter of a saved wine's
// classification goes by that.
void Wine_Form::Load_Classifications(const Text& country) {
  const Ignoring_Events ignoring;
  Fill(Classification_Combo, {"New Classification", "NO Classification"},
       [&](Keyed_List& list) { Add_Classifications_of_Country(list, country); });
  Classification_Add_Command.Set_Enabled(true);
}

void Wine_Form::Load_Varieties_for_Region(Long region_id) {
  const Ignoring_Events ignoring;
  Fill(Variety_Combo, {"New Variety"},
       [&](Keyed_List& list) { Add_Varieties_of_Region(list, region_id); });
}
