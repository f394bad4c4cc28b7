#include "pairing/Select_Mult_Wines_Form.h"

#include <set>

#include "core/Gereral_Processes.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Mobile_Wines_DB.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/tables/Rows.h"
#include "platform/run_time/Conversions.h"
#include "screens/Place_Lists.h"

namespace {

constexpr const char* all = "ALL";
constexpr const char* all_varieties = "ALL VARIETIES";

Text Variety_Name(Long variety_id) {
  Varieties_Recordset.Seek("=", variety_id);
  return Varieties_Recordset.NoMatch() ? Text()
                                       : Varieties_Recordset.Fields("Variety_Name").As_Text();
}

void Add_Test(Text& condition, const Text& test) {
  condition += (condition.empty() ? " WHERE " : " AND ") + test;
}

}  // namespace

Select_Mult_Wines_Form::Select_Mult_Wines_Form()
    : Picker_Form("Select_Mult_Wines_Form", "Select Multiple Wines", "Exit_Command") {
  Mobile_Wines_ListView.Set_Empty_Text(Hint_Text(Screen_Words::No_Wines_Fit));
  Lay_Out();
  Set_Up_Handlers();
}

// Nothing reads what would be typed to be searched for: the box has no place, and typing in the
// list finds a wine.
void Select_Mult_Wines_Form::Lay_Out() {
  using namespace Forms;
  constexpr int wines_width = 92;
  Set_Content(
      Column(
          {Row({Below(Country_Label, Place(Country_Combo).Wide(24)),
                Below(Wine_Color_Label, Place(Wine_Color_Combo).Wide(14)),
                Below(Grape_Variety_Label, Place(Grape_Variety_Combo).Wide(24)), Stretch()}),
           Row({Under_Heading(Wines_Label, Wines_Number, Mobile_Wines_ListView, wines_width)
                    .Grow(2),
                Moves_Place(), Under_Heading(Selected_Label, Selected_Number, SelectList).Grow()})
               .Grow()}),
      Ways_Out_Place());
}

void Select_Mult_Wines_Form::Set_Up_Handlers() {
  const auto let = [this](Forms::Combo_Box& filter, void (Select_Mult_Wines_Form::*handler)()) {
    filter.Click = [this, handler] {
      if (!filling_) (this->*handler)();
    };
  };
  let(Country_Combo, &Select_Mult_Wines_Form::Country_Combo_Click);
  let(Wine_Color_Combo, &Select_Mult_Wines_Form::Wine_Color_Combo_Click);
  let(Grape_Variety_Combo, &Select_Mult_Wines_Form::Grape_Variety_Combo_Click);
  Mobile_Wines_ListView.ItemClick = [this](Forms::List_Item item) {
    Mobile_Wines_ListView_ItemClick(item);
  };
  Mobile_Wines_ListView.DblClick = [this](Forms::List_Item) { Add_Command_Click(); };
}

void Select_Mult_Wines_Form::Form_Load() {
  filling_ = true;
  Initialize_Countries();
  Initialize_Colors();
  Initialize_Varieties();
  filling_ = false;
  Clear_Busqueda();
  Clear_Mobile_Wine_List();
  Country_Combo_Click();
  Mobile_Wines_ListView.SetFocus();
  if (Command_Is("CheeseMod")) {
    Choose_Those_of("Cheeses_Form", "Wine_Parings_List", "Wine_Parings_Index_List");
  }
}

// ---- the filters ----

// A wine that is no country's stands for all of them.
void Select_Mult_Wines_Form::Initialize_Countries() {
  Country_Combo.Clear();
  Country_Combo.Add(all);
  std::set<Text> listed;
  for (int country = 1; country <= Mobile_Countries_Count; ++country) {
    listed.insert(Mobile_Countries[country]);
  }
  Add_Countries(Country_Combo, [&](const Text& country) { return listed.contains(country); });
  Country_Combo.Set_ListIndex(0);
}

void Select_Mult_Wines_Form::Initialize_Colors() {
  Wine_Color_Combo.Clear();
  for (const char* color : {all, "RED", "WHITE", "ROSE", "FORTIFIED", "SPARKLING"}) {
    Wine_Color_Combo.AddItem(color);
  }
  Wine_Color_Combo.Set_ListIndex(0);
}

void Select_Mult_Wines_Form::Initialize_Varieties() {
  Grape_Variety_Combo.Clear();
  Grape_Variety_Combo.Add(all_varieties);
  Grape_Variety_Combo.Set_ListIndex(0);
}

void Select_Mult_Wines_Form::Clear_Busqueda() { Search_Text.Set_Text(""); }

void Select_Mult_Wines_Form::Clear_Mobile_Wine_List() {
  Mobile_Wines_ListView.Clear();
  current_.reset();
  Add_Command.Set_Enabled(false);
}

// A change of the country looks at the first colour alone, the other two at all three.
void Select_Mult_Wines_Form::Country_Combo_Click() { Show_Wines(Colors::First); }
void Select_Mult_Wines_Form::Wine_Color_Combo_Click() { Show_Wines(Colors::All); }

void Select_Mult_Wines_Form::Grape_Variety_Combo_Click() {
  Display_Mobile_Wine_Listview(Place_And_Color(Colors::All));
}

Text Select_Mult_Wines_Form::Place_And_Color(Colors colors) const {
  Text condition;
  if (Country_Combo.ListIndex() > 0) {
    Add_Test(condition, "Mobile_Wine_Country='" + Country_Combo.Key() + "'");
  }
  if (Wine_Color_Combo.ListIndex() <= 0) return condition;
  const Text is_color = "='" + Wine_Color_Combo.Text() + "'";
  Add_Test(condition, colors == Colors::First
                          ? "Mobile_Wine_Color" + is_color
                          : "(Mobile_Wine_Color" + is_color + " OR Mobile_Wine_Color_2" + is_color +
                                " OR Mobile_Wine_Color_3" + is_color + ")");
  return condition;
}

// The grapes are those of the wines of this place and colour; a chosen one stays chosen only where
// it is among them.
void Select_Mult_Wines_Form::Show_Wines(Colors colors) {
  const Text condition = Place_And_Color(colors);
  const Text grape = Grape_Variety_Combo.Key();
  filling_ = true;
  Initialize_Varieties();
  Load_Main_Grapes_of_Selected_Wines(condition);
  Grape_Variety_Combo.Choose(grape, 1);
  filling_ = false;
  Display_Mobile_Wine_Listview(condition);
}

void Select_Mult_Wines_Form::Load_Main_Grapes_of_Selected_Wines(const Text& condition) {
  std::set<Long> grapes;
  Open_Query(Mobile_Wines_Query, "SELECT * FROM Mobile_Wines" + condition);
  for (; !Mobile_Wines_Query.Eof(); Mobile_Wines_Query.MoveNext()) {
    grapes.insert(Mobile_Wines_Query.Fields("Mobile_Wine_Variety_ID").As_Long());
  }
  Close_Table(Mobile_Wines_Query);
  Open_Table(Varieties_Recordset, "Varieties", "Variety_Name");
  for (; !Varieties_Recordset.Eof(); Varieties_Recordset.MoveNext()) {
    const Long key = Varieties_Recordset.Fields("Variety_ID").As_Long();
    if (!grapes.contains(key)) continue;
    Grape_Variety_Combo.Add(Varieties_Recordset.Fields("Variety_Name").As_Text(), To_Text(key));
  }
  Close_Table(Varieties_Recordset);
}

// ---- the wines ----

// Of the chosen grape alone, where one is chosen.
void Select_Mult_Wines_Form::Display_Mobile_Wine_Listview(Text condition) {
  if (Grape_Variety_Combo.ListIndex() > 0) {
    Add_Test(condition, "Mobile_Wine_Variety_ID=" + Grape_Variety_Combo.Key());
  }
  Clear_Mobile_Wine_List();
  Open_Table(Varieties_Recordset, "Varieties", "Variety_ID");
  Open_Query(Mobile_Wines_Query, "SELECT * FROM Mobile_Wines" + condition);
  for (; !Mobile_Wines_Query.Eof(); Mobile_Wines_Query.MoveNext()) {
    Read_Mobile_Wines_Query_Row();
    Add_Wine();
  }
  Close_Table(Mobile_Wines_Query);
  Close_Table(Varieties_Recordset);
  Wines_Number.Set_Caption(To_Text(Mobile_Wines_ListView.Count()));
}

void Select_Mult_Wines_Form::Add_Wine() {
  const Long variety_id = Mobile_Wines.Mobile_Wine_Variety_ID;
  Mobile_Wines_ListView.Add_Row(
      To_Text(Mobile_Wines.Mobile_Wine_ID),
      {Mobile_Wines.Mobile_Wine_Name, Mobile_Wines.Mobile_Wine_Country, Color_of_Wine(),
       variety_id == -1 ? Text() : Variety_Name(variety_id)});
}

// The one of the three that was asked for; the first where all are.
Text Select_Mult_Wines_Form::Color_of_Wine() const {
  if (Wine_Color_Combo.ListIndex() <= 0) return Mobile_Wines.Mobile_Wine_Color;
  const Text& chosen = Wine_Color_Combo.Text();
  for (const Text* color : {&Mobile_Wines.Mobile_Wine_Color, &Mobile_Wines.Mobile_Wine_Color_2,
                            &Mobile_Wines.Mobile_Wine_Color_3}) {
    if (*color == chosen) return *color;
  }
  return {};
}

void Select_Mult_Wines_Form::Mobile_Wines_ListView_ItemClick(Forms::List_Item item) {
  const Text key = Mobile_Wines_ListView.Key_of(item);
  Read_By_Key(Mobile_Wines_Table, key);
  item.Set_Selected(true);
  current_ = Entry{item.Text(), key};
  Add_Command.Set_Enabled(true);
}

std::optional<Picker_Form::Entry> Select_Mult_Wines_Form::Current_Entry() const { return current_; }

void Select_Mult_Wines_Form::Proceed() {
  if (Command_Is({"CheeseAdd", "CheeseMod"})) Cheese_Wines_Changed = true;
  Leave_to(Caller());
}
