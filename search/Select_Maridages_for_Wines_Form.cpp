#include "search/Select_Maridages_for_Wines_Form.h"

#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/MultiLanguage_Processes.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/tables/Rows.h"
#include "links/Link_Decoders.h"

using Forms::Screen;

namespace {

constexpr int everything = 0;
constexpr int cheeses = 1;

}  // namespace

Select_Maridages_for_Wines_Form::Select_Maridages_for_Wines_Form()
    : List_Picker_Form("Select_Maridages_for_Wines_Form", "Parings for Wines") {
  Display_Command.Set_Enabled(false);
  Wine_Name_Text.Set_Locked(true);
  Cat_List.Set_Empty_Text(Hint_Text(Screen_Words::No_Suggestions));
  Lay_Out();
  Selection_Option_List.Click = [this] { Selection_Option_List_Click(); };
}

// A choice of the first column shows at once: the button beside it has nothing to do, and no place.
void Select_Maridages_for_Wines_Form::Lay_Out() {
  using namespace Forms;
  constexpr int options_width = 22;
  constexpr int name_width = 60;
  Selection_Label.Set_Buddy(Selection_Option_List);
  Wine_Name_Label.Set_Buddy(Wine_Name_Text);
  const Place options = Column(
      {Selection_Label, Place(Selection_Option_List).Wide(options_width).High(list_height).Grow()});
  Set_Content(Column({Row({Wine_Name_Label, Place(Wine_Name_Text).Wide(name_width).Grow()}),
                      Row({options, Under_Heading(Pairings_Label, Cat_Number, Cat_List).Grow(),
                           Moves_Place(),
                           Under_Heading(Selected_Label, Selected_Number, SelectList).Grow()})
                          .Grow()}),
              Ways_Out_Place());
}

// ---- loading ----

void Select_Maridages_for_Wines_Form::Form_Load() {
  Load_Name();
  Load_Options();
  Load_Chosen();
  Selection_Option_List.Set_ListIndex(everything);
  Cat_List.SetFocus();
}

bool Select_Maridages_for_Wines_Form::Is_of_Variety() const {
  return Command_Is({"VarietyAdd", "VarietyMod", "VarietyPairings"});
}

bool Select_Maridages_for_Wines_Form::Offers_Cheeses() const {
  return Is_of_Variety() || Command_Is("WineOtherMod");
}

// A new variety has its name only where it was typed.
void Select_Maridages_for_Wines_Form::Load_Name() {
  Text name;
  if (Command_Is("WineOtherMod")) name = Mobile_Wines.Mobile_Wine_Name;
  if (Is_of_Variety()) name = Varieties.Variety_Name;
  if (Command_Is("VarietyAdd") && Screen("Varieties_Form").Is_Loaded()) {
    name = Screen("Varieties_Form").Get<Forms::Text_Box>("Variety_Name_Text").Text();
  }
  if (Command_Is({"WineAdd", "WineMod", "WineOtherAdd"}) && Screen("Wine_Form").Is_Loaded()) {
    name = Screen("Wine_Form").Get<Forms::Combo_Box>("Winery_Combo").Text() + " - " +
           Screen("Wine_Form").Get<Forms::Combo_Box>("Label_Combo").Text();
  }
  Wine_Name_Text.Set_Text(name);
}

void Select_Maridages_for_Wines_Form::Load_Options() {
  Selection_Option_List.Clear();
  Selection_Option_List.Add("Complete Pairing List");
  if (Offers_Cheeses()) Selection_Option_List.Add("Complete Cheeses List");
  if (Command_Is({"WineAdd", "WineMod", "WineOtherAdd"})) Add_Grapes_of("Wine_Form", "");
  if (Command_Is("WineOtherMod")) Add_Grapes_of("Mobile_Wine_Form", " Pairings");
}

void Select_Maridages_for_Wines_Form::Add_Grapes_of(const char* wine_screen,
                                                    const char* behind_name) {
  if (!Screen(wine_screen).Is_Loaded()) return;
  const auto& grapes = Screen(wine_screen).Get<Forms::Check_List>("Variety_Combo");
  const auto& keys = Screen(wine_screen).Get<Forms::Item_List>("Variety_ID_Combo");
  for (int grape = 0; grape < grapes.ListCount(); ++grape) {
    if (grapes.Selected(grape))
      Selection_Option_List.Add(grapes.List(grape) + behind_name, keys.List(grape));
  }
}

void Select_Maridages_for_Wines_Form::Load_Chosen() {
  Clear_Chosen();
  Choose_Pairings_of_Wine();
  if (Command_Is("WineOtherMod")) {
    Choose_Those_of("Mobile_Wine_Form", "Pairing_List", "Pairing_Index_List");
  }
  if (Is_of_Variety()) {
    Choose_Those_of("Varieties_Form", "Suggested_Pairings_List", "Suggested_Pairings_Index_List");
  }
}

// What a wine has can be taken out again.
bool Select_Maridages_for_Wines_Form::May_Be_Empty() const {
  return Command_Is("WineMod") || (Command_Is("WineAdd") && !Is_Kept(Fault::Chooser_Begins_Empty));
}

// ---- what can be chosen ----

void Select_Maridages_for_Wines_Form::Selection_Option_List_Click() {
  const int option = Selection_Option_List.ListIndex();
  if (option == everything) {
    Load_from_Query(" WHERE MULTIUSE=2 OR MULTIUSE=3 ", "All available Pairings");
  } else if (option == cheeses && Offers_Cheeses()) {
    Load_from_Query(" WHERE NOT Cheese_ID=-1  ", "All available Cheeses");
  } else {
    Load_Suggestions();
  }
}

void Select_Maridages_for_Wines_Form::Load_from_Query(const char* condition, const char* caption) {
  Pairings_Label.Set_Caption(caption);
  const Text name = Language_Name_From_Number(System_Language);
  Cat_List.Clear();
  Open_Query(Maridages_Recordset,
             Text("SELECT * FROM Maridages") + condition + " ORDER BY " + name);
  Cat_List.Add_Rows(Maridages_Recordset, name, "Maridage_ID");
  Close_Table(Maridages_Recordset);
  Show_Candidates();
}

void Select_Maridages_for_Wines_Form::Load_Suggestions() {
  Pairings_Label.Set_Caption("Suggestred Pairings for this Grape");
  Cat_List.Clear();
  if (Find_By_Key(Varieties_Table, Selection_Option_List.Key())) {
    Fill_Lists_with_Variety_Maridages(Cat_List, Cat_List.Keys());
  }
  Show_Candidates();
}

std::optional<Picker_Form::Entry> Select_Maridages_for_Wines_Form::Current_Entry() const {
  std::optional<Entry> entry = List_Picker_Form::Current_Entry();
  if (entry && Command_Is("WineOtherMod") && Selection_Option_List.ListIndex() == cheeses) {
    entry->text += " Cheese";
  }
  return entry;
}

// ---- leaving ----

void Select_Maridages_for_Wines_Form::Proceed() {
  if (Command_Is("WineSearch")) {
    Search_Cellar();
    return;
  }
  if (Is_of_Variety()) Variety_Pairings_Changed = true;
  if (Command_Is("VarietyPairings")) Screen("Select_Mult_Maridages_Form").Unload();
  if (Command_Is({"WineAdd", "WineMod"})) Tag_Pairings_of("Wine_Form");
  if (Command_Is({"WineOtherAdd", "WineOtherMod"})) Tag_Pairings_of("Mobile_Wine_Form");
  Leave_to(Caller());
}

void Select_Maridages_for_Wines_Form::Search_Cellar() {
  if (Show_Found_Wines()) return;
  Forms::Message_Box("Thera are NO wines matching any of your pairings.", "NO WINES PAIRINGS",
                     Forms::Sign::Warning);
}

void Select_Maridages_for_Wines_Form::MultCancel_Click() {
  kept_.Restore();
  List_Picker_Form::MultCancel_Click();
}
