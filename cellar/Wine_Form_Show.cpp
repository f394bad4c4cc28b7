// A stored wine on the fields. The memory records of `Wines` and `Wineries` hold it and its winery.
#include "cellar/Wine_Form.h"
#include "core/Globals.h"
#include "core/MultiLanguage_Processes.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/run_time/Conversions.h"

using Forms::Locked_Color;

namespace {

constexpr const char* nothing = " ";  // stands in a field whose value was not given

void Show_Alone(Forms::Combo_Box& combo, const Text& text) {
  combo.Clear();
  combo.AddItem(text);
  combo.Set_ListIndex(0);
}

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

template <class Action>
void Each_Variety_of_Wine(const Action& action) {
  Open_Table(Varieties_of_Wines_Recordset, "Varieties_of_Wines");
  Varieties_of_Wines_Recordset.Index("Wine_ID");
  Varieties_of_Wines_Recordset.Seek("=", Wines.Wine_ID);
  for (; !Varieties_of_Wines_Recordset.NoMatch() && !Varieties_of_Wines_Recordset.Eof();
       Varieties_of_Wines_Recordset.MoveNext()) {
    if (Varieties_of_Wines_Recordset.Fields("Wine_ID").As_Long() != Wines.Wine_ID) break;
    action(Varieties_of_Wines_Recordset.Fields("Variety_ID").As_Text());
  }
  Close_Table(Varieties_of_Wines_Recordset);
}

}  // namespace

void Wine_Form::Memory_to_Form_Unique() {
  const Ignoring_Events ignoring;
  Show_Winery();
  Load_Country_Unique(Wineries.Country);
  Country_Combo.Set_Tag("1");
  Load_Region_Unique();
  Show_Varieties_Alone();
  Show_Lists_Alone();
  Show_Texts_And_Numbers();
  for (Forms::Lockable_Control* field : Entry_Fields()) {
    if (field != &Winery_Combo && field != &Country_Combo) Lock(*field);
  }
  Winery_Combo.SetFocus();
  Boxes.Show_Marks_of(Wines.Wine_ID);
  Pairing_Lines.Clear();
}

void Wine_Form::Memory_to_Form_for_Mod() {
  const Ignoring_Events ignoring;
  Show_Winery();
  Winery_Combo.Set_Tag("1");
  const int country = Country_Lines.Place_Of(Wineries.Country);
  if (country >= 0) Country_Combo.Set_ListIndex(country);
  Fill_In(Country_Combo);
  Get_Regions_for_Country(Wineries.Country);
  const int region = Region_Lines.Place_Of(To_Text(Wineries.Region_ID), 1);
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
  Boxes.Show_Marks_of(Wines.Wine_ID);
  Pairing_Lines.Clear();
}

// By its key: names of wineries can stand twice. Where the list was never filled, the winery
// becomes its one entry.
void Wine_Form::Show_Winery() {
  const int place = Winery_Lines.Place_Of(Wineries.Winery_ID);
  if (place >= 0) {
    Winery_Combo.Set_ListIndex(place);
  } else {
    Winery_Lines.Show_Alone(Wineries.Winery_Name, Wineries.Winery_ID);
  }
}

void Wine_Form::Show_Varieties_Alone() {
  Variety_Lines.Clear();
  Variety_Combo.Set_BackColor(Locked_Color);
  Open_Table(Varieties_Recordset, "Varieties");
  Varieties_Recordset.Index("Variety_ID");
  Each_Variety_of_Wine([this](const Text& variety_id) {
    Varieties_Recordset.Seek("=", variety_id);
    Variety_Lines.Add(Varieties_Recordset.Fields("Variety_Name").As_Text(), variety_id);
    Variety_Combo.Set_Selected(Variety_Combo.ListCount() - 1, true);
  });
  Close_Table(Varieties_Recordset);
  Variety_Combo.Set_ListIndex(-1);
}

// The vintage comes before the peak: its event fills the peak years anew.
void Wine_Form::Show_Lists_Alone() {
  const Text label = Wines.Label == "x" ? "No Label" : Wines.Label;
  Label_Lines.Show_Alone(label, label);
  Show_Alone(Vintage_Combo, To_Text(Wines.Vintage));
  Show_Alone(Peak_Year_Combo, To_Text(Wines.Peak));
  Show_Alone(Merit_Combo, Wines.Ranking == -1 ? nothing : To_Text(Wines.Ranking));
  Show_Alone(Bottle_Size_Combo, Wines.Bottle_Size);
  Show_Alone(Color_Combo, Wines.Color);
  Color_Combo.Set_Tag("1");
  const Text classification =
      Wines.Clasification == "x" ? "NO Classification" : Wines.Clasification;
  Classification_Lines.Show_Alone(classification, classification);
}

void Wine_Form::Choose_Varieties() {
  Load_Varieties_for_Region(Wineries.Region_ID);
  Each_Variety_of_Wine([this](const Text& variety_id) {
    const int place = Variety_Lines.Place_Of(variety_id, 1);
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

void Wine_Form::Show_Texts_And_Numbers() {
  Price_Text.Set_Text(Wines.Value_Guide == Currency::Of(-1) ? nothing : To_Text(Wines.Value_Guide));
  Alcohol_Text.Set_Text(Wines.Alcohol == -1 ? nothing : To_Text(Wines.Alcohol));
  Total_Bottles_Text.Set_Text(To_Text(Wines.Total_Bottles));
  Fill_In(Total_Bottles_Text);
  Description_Text.Set_Text(Data_Text(Wines.Description));
  Comments_Text.Set_Text(Data_Text(Wines.Comments));
  Last_Date_Uncorked_Text.Set_Text(
      Wines.Last_Date_Uncorked == No_Date ? nothing : To_Text(Wines.Last_Date_Uncorked));
  Date_Added_Text.Set_Text(To_Text(Wines.Date_Added));
}
