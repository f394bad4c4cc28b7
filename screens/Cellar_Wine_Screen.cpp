// The places of the fields, the list, and the uncorking.
#include "screens/Cellar_Wine_Screen.h"

#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/tables/Rows.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

namespace {

std::vector<Forms::List_Column> Columns(const std::array<int, 9>& widths,
                                        const std::vector<Forms::List_Column>& more) {
  std::vector<Forms::List_Column> columns{{"Vintage", widths[0]},
                                          {"Winery", widths[1], false, false, 3},
                                          {"Label", widths[2], false, false, 3},
                                          {"Wine Region", widths[3], false, false, 1},
                                          {"Grape Variety", widths[4], false, false, 3},
                                          {"Color", widths[5]},
                                          {"Merit", widths[6], false, true},
                                          {"Peak", widths[7], false, true},
                                          {"Stock", widths[8], false, true}};
  columns.insert(columns.end(), more.begin(), more.end());
  columns.push_back({"ID", 4, false, true});
  return columns;
}

}  // namespace

Cellar_Wine_Screen::Cellar_Wine_Screen(std::string_view name, std::string_view caption,
                                       const Widths& widths, std::vector<std::string> words,
                                       const std::vector<Forms::List_Column>& more)
    : Wine_Screen(name, caption, Wine_List::Cellar, Columns(widths, more), std::move(words)) {
  constexpr int winery = 1;
  Wine_Cellar_ListView.Set_Search_Column(winery);

  Multi_Functional_Command.Set_Other_Captions({"MODIFY", "UNCORK", "REMOVE"});
}

Forms::Place Cellar_Wine_Screen::Fields_Place(const Beside& beside,
                                              const Forms::Places& over_aromas) {
  using namespace Forms;
  constexpr int name_width = 28;
  constexpr int number_width = 10;
  constexpr int text_width = 18;
  const auto with_button = [&beside](Placed_Control& field, const Place& place) {
    const auto button = beside.find(&field);
    return button == beside.end() ? place : Row({place, button->second});
  };
  const auto name = [&](Placed_Control& field) {
    return with_button(field, Place(field).Grow().Wide(name_width));
  };
  const Place grapes = Place(Variety_Combo).Grow().Wide(name_width).High(7);
  const Place origin = Fields({{Country_Label, Country_Combo},
                               {Region_Label, Region_Combo},
                               {Winery_Label, name(Winery_Combo)},
                               {LabelLabel, name(Label_Combo)},
                               {Variety_Label, with_button(Variety_Combo, grapes).Grow()},
                               {Classification_Label, name(Classification_Combo)}});
  const auto number = [](Placed_Control& field) { return Place(field).Wide(number_width); };
  const Place numbers = Fields({{Vintage_Label, number(Vintage_Combo)},
                                {Color_Label, number(Color_Combo)},
                                {Merit_Label, number(Merit_Combo)},
                                {Bottle_Size_Label, number(Bottle_Size_Combo)},
                                {Total_Bottles_Label, number(Total_Bottles_Text)},
                                {Alcohol_Label, number(Alcohol_Text)},
                                {Price_Label, number(Price_Text)},
                                {Peak_Year_Label, number(Peak_Year_Combo)}});
  const Place bottle = Column({numbers, Below(Last_Day_Uncorked_Label, Last_Date_Uncorked_Text),
                               Below(Date_Added_Label, Date_Added_Text)});
  Places pairing_heading{Pairing_Label, Stretch()};
  if (const auto button = beside.find(&Pairing_List); button != beside.end()) {
    pairing_heading.push_back(button->second);
  }
  Pairing_Label.Set_Buddy(Pairing_List);
  const auto text = [](Forms::Text_Box& box) {
    return Place(box).Wide(text_width).High(3, 1).Grow();
  };
  const Place notes =
      Column({Below(Description_Label, text(Description_Text)).Grow(3), Row(pairing_heading),
              Place(Pairing_List).Wide(text_width).High(5, 5).Grow(5),
              Below(Comments_Label, text(Comments_Text)).Grow(3)});
  Places aromas = over_aromas;
  aromas.insert(aromas.begin(), Boxes.Aroma_Place());
  const Place marks = Row({Boxes.Taste_Place(), One_Place(aromas)});
  return Row({origin.Grow(5), bottle, notes.Grow(3), marks});
}

// ---- the fields ----

std::vector<Forms::Lockable_Control*> Cellar_Wine_Screen::Entry_Fields() {
  std::vector<Forms::Lockable_Control*> fields = Wine_Screen::Entry_Fields();
  for (Forms::Combo_Box* combo : {&Vintage_Combo, &Peak_Year_Combo, &Bottle_Size_Combo}) {
    fields.push_back(combo);
  }
  for (Forms::Text_Box* box :
       {&Price_Text, &Total_Bottles_Text, &Last_Date_Uncorked_Text, &Date_Added_Text}) {
    fields.push_back(box);
  }
  return fields;
}

std::vector<Forms::Text_Box*> Cellar_Wine_Screen::Text_Fields() {
  std::vector<Forms::Text_Box*> boxes = Wine_Screen::Text_Fields();
  for (Forms::Text_Box* box :
       {&Total_Bottles_Text, &Price_Text, &Date_Added_Text, &Last_Date_Uncorked_Text}) {
    boxes.push_back(box);
  }
  return boxes;
}

// ---- the list ----

bool Cellar_Wine_Screen::Find_Winery_of_Wine() {
  const bool found = Find_Row(Wineries_Table, Wines.Winery_ID);
  if (!found && !Is_Kept(Fault::Gone_Row_Ends_The_Run)) {
    Wineries = {};
    Wineries.Winery_ID = To_Text(Wines.Winery_ID);
  }
  return found;
}

Forms::List_Item Cellar_Wine_Screen::Add_Wine_to_List() {
  return Wine_Cellar_ListView.Add_Row(
      To_Text(Wines.Wine_ID),
      {To_Text(Wines.Vintage), Wineries.Winery_Name, Wines.Label == "x" ? Text() : Wines.Label,
       Wineries.Region, Wines.Variety, Wines.Color,
       Wines.Ranking == -1 ? Text() : To_Text(Wines.Ranking), To_Text(Wines.Peak),
       To_Text(Wines.Total_Bottles)});
}

// ---- the writes ----

void Cellar_Wine_Screen::Seek_Wine() const {
  Open_By_Key(Wines_Table);
  Read_Row(Wines_Table, Selected_Wine_ID);
}

// Filling the list reads other wines into the memory record. The button may have closed: the focus
// is in the list then, not on the way out.
void Cellar_Wine_Screen::Uncork_Wine() {
  Seek_Wine();
  Wines.Total_Bottles = To_Integer(static_cast<double>(Wines.Total_Bottles - 1));
  Wines.Last_Date_Uncorked = Now();
  Wines_Recordset.Edit();
  Write_Wines_Record();
  Close_Table(Wines_Recordset);
  Forms::Message_Box("Your Wine Cellar was updated. This bottle of Wine was marked as Uncorked",
                     "WINE UNCORKED");
  Total_Bottles_Text.Set_Text(To_Text(Wines.Total_Bottles));
  if (Wines.Total_Bottles == 0) {
    Require(Total_Bottles_Text);
    Multi_Functional_Command.Set_Enabled(false);
  }
  Last_Date_Uncorked_Text.Set_Text(To_Text(Wines.Last_Date_Uncorked));
  Fill_Wine_List();
  Wine_Cellar_ListView.Select(To_Text(Selected_Wine_ID));
  Wine_Cellar_ListView.SetFocus();
  Seek_Wine();
}
