// A stored wine on the fields, chosen in the full lists, to be corrected.
#include "cellar/Wine_Form.h"
#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

namespace {

// Chooses the entry. What the list does not hold leaves the choice as it is, or becomes its last
// entry.
void Choose(Forms::Combo_Box& combo, const Text& wanted, int first) {
  const int place = Place_of_Text(combo, wanted, first);
  if (place == combo.ListCount() && Is_Kept(Fault::Unlisted_Year_Is_Lost)) return;
  if (place == combo.ListCount()) combo.AddItem(wanted);
  combo.Set_ListIndex(place);
}

// The first entry of the list is not found either. Mended, a year is found or taken in at its
// place.
void Choose_Year(Forms::Combo_Box& combo, Integer year) {
  if (Is_Kept(Fault::Unlisted_Year_Is_Lost)) {
    Choose(combo, To_Text(year), 1);
    return;
  }
  int place = Place_of_Text(combo, To_Text(year), 0);
  if (place == combo.ListCount()) {
    while (place > 0 && To_Long(combo.List(place - 1)) > year) --place;
    combo.AddItem(To_Text(year), place);
  }
  combo.Set_ListIndex(place);
}

// The second entry stands for "none of the list" and is known by its own text alone. A name that
// the list does not hold is sought in vain, and the place behind the last entry is no choice (380).
// Mended, the mark "x" stands for "none" as well, and a name that has gone is the last entry, with
// a key of no row.
void Choose_Name(Keyed_Combo_Box& combo, const Text& name, const char* none) {
  const bool mended = !Is_Kept(Fault::Gone_Name_Ends_The_Run);
  const bool is_none = name == none || (mended && name == "x");
  const int place = is_none ? 1 : Place_of_Text(combo, name, 2);
  if (mended && place == combo.ListCount()) combo.Add(name, "-1");
  combo.Set_ListIndex(place);
}

}  // namespace

void Wine_Form::Memory_to_Form_for_Mod() {
  const Ignoring_Events ignoring;
  Show_Winery();
  Winery_Combo.Set_Tag("1");
  const int country = Country_Combo.Place_Of(Wineries.Country);
  if (country >= 0 || !Is_Kept(Fault::Gone_Row_Ends_The_Run)) Country_Combo.Set_ListIndex(country);
  Fill_In(Country_Combo);
  Choose_Region();
  Load_Labels_for_Region(To_Integer(static_cast<double>(Wineries.Region_ID)));
  Choose_Name(Label_Combo, Wines.Label, "No Label");
  Choose_Varieties();
  Choose_In_Lists();
  Show_Texts_And_Numbers();
  Keep_Shown_Dates();
  Load_Classifications(Wineries.Country);
  Choose_Name(Classification_Combo, Wines.Clasification, "NO Classification");
  for (Forms::Control* chosen : Controls{&Label_Combo, &Variety_Combo, &Bottle_Size_Combo,
                                         &Color_Combo, &Classification_Combo}) {
    chosen->Set_Tag("1");
  }
  Winery_Combo.SetFocus();
  Show_Marks_And_Pairings();
}

// One that has gone leaves the first entry chosen. Mended, it is a last one, as the winery names
// it.
void Wine_Form::Choose_Region() {
  const Text region = To_Text(Wineries.Region_ID);
  Get_Regions_for_Country(Wineries.Country);
  const bool kept = Is_Kept(Fault::Gone_Row_Ends_The_Run);
  if (!kept && Region_Combo.Place_Of(region, 1) < 0) Region_Combo.Add(Wineries.Region, region);
  if (!Region_Combo.Choose(region, 1)) Region_Combo.Set_ListIndex(0);
}

void Wine_Form::Choose_Varieties() {
  Load_Varieties_for_Region(Wineries.Region_ID);
  Each_Variety_of_Wine([this](const Text& variety_id, const Text& name) {
    int place = Variety_Combo.Place_Of(variety_id, 1);
    if (place < 0 && !Is_Kept(Fault::Unlisted_Grape_Is_Lost)) {
      place = Variety_Combo.ListCount();
      Variety_Combo.Add(name, variety_id);
    }
    if (place > 0) Variety_Combo.Set_Selected(place, true);
  });
  Variety_Combo.Set_ListIndex(-1);
}

// The lists begin without what the wine picked before brought along.
void Wine_Form::Choose_In_Lists() {
  Drop_Entries_Taken_In();
  Choose_Year(Vintage_Combo, Wines.Vintage);
  Choose_Year(Peak_Year_Combo, Wines.Peak);
  if (Wines.Ranking == -1) {
    Merit_Combo.Set_ListIndex(0);
  } else {
    Choose(Merit_Combo, To_Text(Wines.Ranking), 0);
  }
  Bottle_Size_Combo.Set_ListIndex(-1);
  Choose(Bottle_Size_Combo, Wines.Bottle_Size, 0);
  Choose_Color();
}

// A word that is not one of the language in force leaves the colour as it was. Mended, it is known
// in every language, one that is known in none is a last entry, and the boxes are those of the
// colour.
void Wine_Form::Choose_Color() {
  const bool mended = !Is_Kept(Fault::Color_Goes_By_Word);
  int color = Color_Combo.ListCount() - 1;
  while (color >= 0 && Upper_Case(Color_Combo.List(color)) != Upper_Case(Wines.Color)) --color;
  if (mended && color < 0) color = Color_Index_In_Any_Language(Wines.Color);
  if (mended && color < 0) {
    color = Color_Combo.ListCount();
    Color_Combo.AddItem(Wines.Color);
  }
  if (color >= 0) Color_Combo.Set_ListIndex(color);
  if (mended) Color_Combo_Click();
}
