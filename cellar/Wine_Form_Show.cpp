// A stored wine on the fields, chosen in the full lists, to be corrected.
#include "cellar/Wine_Form.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

namespace {

// Where an entry at or after `first` equals `wanted`; the number of entries where none does.
int Place_Of(const Forms::Combo_Box& combo, const Text& wanted, int first) {
  int place = first;
  while (place < combo.ListCount() && combo.List(place) != wanted) ++place;
  return place;
}

// Chooses the entry, and leaves the choice as it is where there is none.
void Choose(Forms::Combo_Box& combo, const Text& wanted, int first) {
  const int place = Place_Of(combo, wanted, first);
  if (place < combo.ListCount()) combo.Set_ListIndex(place);
}

// The second entry stands for "none of the list" and is known by its own text alone. A name that
// the list does not hold is sought in vain, and the place behind the last entry is no choice (380).
void Choose_Name(Forms::Combo_Box& combo, const Text& name, const char* none) {
  combo.Set_ListIndex(name == none ? 1 : Place_Of(combo, name, 2));
}

}  // namespace

void Wine_Form::Memory_to_Form_for_Mod() {
  const Ignoring_Events ignoring;
  Show_Winery();
  Winery_Combo.Set_Tag("1");
  const int country = Country_Combo.Place_Of(Wineries.Country);
  if (country >= 0) Country_Combo.Set_ListIndex(country);
  Fill_In(Country_Combo);
  Get_Regions_for_Country(Wineries.Country);
  const int region = Region_Combo.Place_Of(To_Text(Wineries.Region_ID), 1);
  Region_Combo.Set_ListIndex(region > 0 ? region : 0);
  Load_Labels_for_Region(To_Integer(static_cast<double>(Wineries.Region_ID)));
  Choose_Name(Label_Combo, Wines.Label, "No Label");
  Choose_Varieties();
  Choose_In_Lists();
  Show_Texts_And_Numbers();
  Load_Classifications(Wineries.Country);
  Choose_Name(Classification_Combo, Wines.Clasification, "NO Classification");
  for (Forms::Control* chosen : Controls{&Label_Combo, &Variety_Combo, &Bottle_Size_Combo,
                                         &Color_Combo, &Classification_Combo}) {
    chosen->Set_Tag("1");
  }
  Winery_Combo.SetFocus();
  Show_Marks_And_Pairings();
}

void Wine_Form::Choose_Varieties() {
  Load_Varieties_for_Region(Wineries.Region_ID);
  Each_Variety_of_Wine([this](const Text& variety_id) {
    const int place = Variety_Combo.Place_Of(variety_id, 1);
    if (place > 0) Variety_Combo.Set_Selected(place, true);
  });
  Variety_Combo.Set_ListIndex(-1);
}

// What a list does not hold leaves it as it is; the first vintage and the first peak year are not
// found either.
void Wine_Form::Choose_In_Lists() {
  Choose(Vintage_Combo, To_Text(Wines.Vintage), 1);
  Choose(Peak_Year_Combo, To_Text(Wines.Peak), 1);
  if (Wines.Ranking == -1) {
    Merit_Combo.Set_ListIndex(0);
  } else {
    Choose(Merit_Combo, To_Text(Wines.Ranking), 0);
  }
  Bottle_Size_Combo.Set_ListIndex(-1);
  Choose(Bottle_Size_Combo, Wines.Bottle_Size, 0);
  for (int color = 0; color < Color_Combo.ListCount(); ++color) {
    if (Upper_Case(Color_Combo.List(color)) == Upper_Case(Wines.Color)) {
      Color_Combo.Set_ListIndex(color);
    }
  }
}
