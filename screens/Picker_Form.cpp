#include "screens/Picker_Form.h"

#include <algorithm>

#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/Languages.h"
#include "core/MultiLanguage_Processes.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "links/Link_Search.h"
#include "platform/run_time/Conversions.h"

using Forms::Screen;

namespace {

constexpr int most_handed_on = 100;
constexpr const char* main_window = "Wine_Cellar_Form";
constexpr const char* results = "Wine_Search_Results_Form";

}  // namespace

Picker_Form::Picker_Form(std::string_view name, std::string_view caption,
                         std::string_view cancel_name)
    : Command_Form(name, caption), MultCancel(*this, cancel_name, "CANCEL") {
  for (Forms::Command_Button* button : {&Add_Command, &Remove_Command, &MultSelect}) {
    button->Set_Enabled(false);
  }
  SelectList.Set_Empty_Text(Hint_Text(Screen_Words::Nothing_Chosen));
  Add_Command.Click = [this] { Add_Command_Click(); };
  Remove_Command.Click = [this] { Remove_Command_Click(); };
  MultSelect.Click = [this] { MultSelect_Click(); };
  MultCancel.Click = [this] { MultCancel_Click(); };
  SelectList.Click = [this] { SelectList_Click(); };
  SelectList.DblClick = [this] { Remove_Command_Click(); };
  SelectList.Delete_Pressed = [this] { Remove_by_Key(); };
}

// ---- the chosen list ----

void Picker_Form::Clear_Chosen() {
  SelectList.Clear();
  Show_Chosen();
}

void Picker_Form::Choose(const Entry& entry) {
  SelectList.Add(entry.text, entry.key);
  Show_Chosen();
}

void Picker_Form::Choose_Those_of(const char* screen, const char* list, const char* keys) {
  Clear_Chosen();
  if (!Screen(screen).Is_Loaded()) return;
  const auto& texts = Screen(screen).Get<Forms::Item_List>(list);
  const auto& their_keys = Screen(screen).Get<Forms::Item_List>(keys);
  for (int place = 0; place < texts.ListCount(); ++place) {
    Choose({texts.List(place), their_keys.List(place)});
  }
}

// As designed a stored wine's list is the selection, and the keys beside it may be older.
void Picker_Form::Choose_Pairings_of_Wine() {
  const bool is_new = Command_Is("WineAdd");
  if ((!is_new && !Command_Is("WineMod")) || !Screen("Wine_Form").Is_Loaded()) return;
  if (!Is_Kept(is_new ? Fault::Chooser_Begins_Empty : Fault::Pairings_Chosen_Last_Are_Stored)) {
    return Choose_Those_of("Wine_Form", "Pairing_List", "Pairing_Index_List");
  }
  if (is_new) return;
  const auto& pairings = Screen("Wine_Form").Get<Forms::List_Box>("Pairing_List");
  for (int pairing = 1; pairing <= pairings.ListCount(); ++pairing) {
    Choose({pairings.List(pairing - 1), Selected_IDs[pairing]});
  }
}

bool Picker_Form::Is_Chosen(const Entry& entry) const {
  const bool by_text = Is_Kept(Fault::Same_Text_Is_Chosen_Once);
  for (int place = 0; by_text && place < SelectList.ListCount(); ++place) {
    if (Trim(SelectList.List(place)) == Trim(entry.text)) return true;
  }
  return SelectList.Place_Of(entry.key) >= 0;
}

bool Picker_Form::Is_Full() const {
  const int most = Is_Kept(Fault::Picker_Takes_One_Too_Many) ? most_handed_on + 1 : most_handed_on;
  return SelectList.ListCount() >= most;
}

// As designed it says no more than the number.
void Picker_Form::Refuse_Another() {
  if (Is_Kept(Fault::Picker_Takes_One_Too_Many)) {
    Forms::Message_Box("\r  100", "", Forms::Sign::Warning);
  } else {
    Forms::Message_Box(Hint_Text(Screen_Words::Picker_Full, {To_Text(most_handed_on)}),
                       Hint_Text(Screen_Words::Picker_Full_Title), Forms::Sign::Warning);
  }
}

void Picker_Form::Show_Chosen() {
  Selected_Number.Set_Caption(To_Text(SelectList.ListCount()));
  MultSelect.Set_Enabled(SelectList.ListCount() > 0 || May_Be_Empty());
  Remove_Command.Set_Enabled(SelectList.ListIndex() >= 0);
}

void Picker_Form::SelectList_Click() { Remove_Command.Set_Enabled(true); }

void Picker_Form::Add_Command_Click() {
  const std::optional<Entry> entry = Current_Entry();
  if (!entry || Is_Chosen(*entry)) return;
  if (Is_Full()) {
    Refuse_Another();
    return;
  }
  Choose(*entry);
  SelectList.EnsureVisible(SelectList.ListCount() - 1);
}

void Picker_Form::Remove_Command_Click() {
  const int place = SelectList.ListIndex();
  if (place < 0) return;
  SelectList.RemoveItem(place);
  Show_Chosen();
  SelectList.SetFocus();
}

// Who takes out several by the key goes on with the next one.
void Picker_Form::Remove_by_Key() {
  const int place = SelectList.ListIndex();
  Remove_Command_Click();
  const int next = std::min(place, SelectList.ListCount() - 1);
  if (next >= 0) SelectList.Set_ListIndex(next);
}

void Picker_Form::MultSelect_Click() {
  Select_All(SelectList);
  Proceed();
}

// ---- where it leads ----

std::string_view Picker_Form::Caller() const {
  if (Command_Is({"WineAdd", "WineMod"})) return "Wine_Form";
  if (Command_Is({"WineOtherAdd", "WineOtherMod"})) return "Mobile_Wine_Form";
  if (Command_Is({"VarietyAdd", "VarietyMod", "VarietyPairings"})) return "Varieties_Form";
  if (Command_Is({"CheeseAdd", "CheeseMod"})) return "Cheeses_Form";
  if (Command_Is({"VarietiesAddRegion"})) return "Regions_Form";
  return main_window;
}

void Picker_Form::Tag_Pairings_of(const char* wine_screen) {
  if (!Screen(wine_screen).Is_Loaded()) return;
  Screen(wine_screen).Control("Pairing_List").Set_Tag("1");
  Screen(wine_screen).Control("Pairings_Add_Command").Set_Tag("1");
}

bool Picker_Form::Show_Found_Wines() {
  Search_Wines_for_Maridages();
  if (Found_Count == 0) {
    Screen(results).Unload();
    return false;
  }
  Screen(results).Open();
  Hide();
  return true;
}

// ---- places ----

Forms::Place Picker_Form::Under_Heading(Forms::Label& heading, Forms::Label& number,
                                        Forms::Placed_Control& list, int characters) {
  heading.Set_Buddy(list);
  return Forms::Column({Forms::Row({heading, Forms::Stretch(), number}),
                        Forms::Place(list).Wide(characters).High(list_height).Grow()});
}

Forms::Place Picker_Form::Moves_Place() {
  return Forms::Column({Forms::Stretch(), Add_Command, Remove_Command, Forms::Stretch()});
}

Forms::Place Picker_Form::Ways_Out_Place() {
  Set_Exit(MultCancel);
  Set_Commit(MultSelect);
  return Forms::Column({Keys_Label, Forms::Buttons({MultSelect, MultCancel})});
}

// ---- with a list of texts ----

List_Picker_Form::List_Picker_Form(std::string_view name, std::string_view caption)
    : Picker_Form(name, caption) {
  Cat_List.Click = [this] { Add_Command.Set_Enabled(true); };
  Cat_List.DblClick = [this] { Add_Command_Click(); };
  Cat_List.Enter_Pressed = [this] { Add_Command_Click(); };
}

std::optional<Picker_Form::Entry> List_Picker_Form::Current_Entry() const {
  if (Cat_List.ListIndex() < 0) return std::nullopt;
  return Entry{Cat_List.Text(), Cat_List.Key()};
}

void List_Picker_Form::Load_Pairings(Integer highest_multiuse) {
  Cat_List.Clear();
  Open_Table(Maridages_Recordset, "Maridages", Language_Name_From_Number(System_Language));
  const int multiuse_at = Maridages_Recordset.Ordinal("Multiuse");
  const int key_at = Maridages_Recordset.Ordinal("Maridage_ID");
  for (; !Maridages_Recordset.Eof(); Maridages_Recordset.MoveNext()) {
    const Integer multiuse = Maridages_Recordset.Fields(multiuse_at).As_Integer();
    if (multiuse < 2 || multiuse > highest_multiuse) continue;
    Cat_List.Add(Maridages_Recordset.Fields(Maridages_Column()).As_Text(),
                 Maridages_Recordset.Fields(key_at).As_Text());
  }
  Close_Table(Maridages_Recordset);
  Show_Candidates();
}

void List_Picker_Form::Show_Candidates() {
  Cat_Number.Set_Caption(To_Text(Cat_List.ListCount()));
  Add_Command.Set_Enabled(false);
}
