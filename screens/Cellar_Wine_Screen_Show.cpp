// A stored wine on the fields.
#include "core/Data_Text.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Decoders.h"
#include "platform/run_time/Conversions.h"
#include "screens/Cellar_Wine_Screen.h"
#include "screens/Field_States.h"
#include "screens/Place_Lists.h"

namespace {

constexpr const char* nothing = " ";  // stands in a field whose value was not given

void Show_Alone(Forms::Combo_Box& combo, const Text& text) {
  combo.Clear();
  combo.AddItem(text);
  combo.Set_ListIndex(0);
}

}  // namespace

void Cellar_Wine_Screen::Memory_to_Form_Unique() {
  const Ignoring_Events ignoring;
  Show_Winery();
  // A winery that was never read has no country, and shows none.
  Show_Country_Alone(Country_Combo, Wineries.Country);
  Country_Combo.Set_Tag("1");
  Load_Region_Unique();
  Show_Varieties_Alone();
  Show_Lists_Alone();
  Show_Texts_And_Numbers();
  for (Forms::Lockable_Control* field : Entry_Fields()) {
    if (field != &Winery_Combo && field != &Country_Combo) Lock(*field);
  }
  Winery_Combo.SetFocus();
  Show_Marks_And_Pairings();
}

// By its key: names of wineries can stand twice. Where the list was never filled, the winery
// becomes its one entry.
void Cellar_Wine_Screen::Show_Winery() {
  if (!Winery_Combo.Choose(Wineries.Winery_ID)) {
    Winery_Combo.Show_Alone(Wineries.Winery_Name, Wineries.Winery_ID);
  }
}

void Cellar_Wine_Screen::Load_Region_Unique() {
  Region_Combo.Show_Alone(Wineries.Region, To_Text(Wineries.Region_ID));
  Lock(Region_Combo);
}

// The memory record of the grapes stays as it is: a counter goes by it.
void Cellar_Wine_Screen::Each_Variety_of_Wine(
    const std::function<void(const Text&, const Text&)>& action) {
  Open_By_Key(Varieties_Table);
  Open_Table(Varieties_of_Wines_Recordset, "Varieties_of_Wines", "Wine_ID");
  Each_Row_Of(Varieties_of_Wines_Recordset, "Wine_ID", Wines.Wine_ID, [&] {
    const Text variety_id = Varieties_of_Wines_Recordset.Fields("Variety_ID").As_Text();
    Varieties_Recordset.Seek("=", variety_id);
    action(variety_id, Varieties_Recordset.NoMatch()
                           ? Text()
                           : Varieties_Recordset.Fields("Variety_Name").As_Text());
  });
  Close_Table(Varieties_of_Wines_Recordset);
  Close_Table(Varieties_Recordset);
}

void Cellar_Wine_Screen::Show_Varieties_Alone() {
  Variety_Combo.Clear();
  Variety_Combo.Set_BackColor(Forms::Locked_Color);
  Each_Variety_of_Wine([this](const Text& variety_id, const Text& name) {
    Variety_Combo.Add(name, variety_id);
    Variety_Combo.Set_Selected(Variety_Combo.ListCount() - 1, true);
  });
  Variety_Combo.Set_ListIndex(-1);
}

// The vintage comes before the peak: its event fills the peak years anew.
void Cellar_Wine_Screen::Show_Lists_Alone() {
  const Text label = Wines.Label == "x" ? "No Label" : Wines.Label;
  Label_Combo.Show_Alone(label, label);
  Show_Alone(Vintage_Combo, To_Text(Wines.Vintage));
  Show_Alone(Peak_Year_Combo, To_Text(Wines.Peak));
  Show_Alone(Merit_Combo, Wines.Ranking == -1 ? nothing : To_Text(Wines.Ranking));
  Show_Alone(Bottle_Size_Combo, Wines.Bottle_Size);
  Show_Alone(Color_Combo, Wines.Color);
  Color_Combo.Set_Tag("1");
  const Text classification =
      Wines.Clasification == "x" ? "NO Classification" : Wines.Clasification;
  Classification_Combo.Show_Alone(classification, classification);
}

void Cellar_Wine_Screen::Show_Texts_And_Numbers() {
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

// A wine without pairings leaves the selection as it is.
void Cellar_Wine_Screen::Show_Marks_And_Pairings() {
  Boxes.Show_Marks_of(Wines.Wine_ID);
  Pairing_List.Clear();
  if (Wine_Has_Maridages()) Load_Wine_Maridages();
}

void Cellar_Wine_Screen::Load_Wine_Maridages() {
  Fill_Lists_with_Wine_Maridages(Pairing_List, Pairing_List.Keys());
}
