#include "screens/Catalogue_Screen.h"

#include "core/Globals.h"
#include "platform/forms/Screens.h"
#include "platform/record_store/Text_Order.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

using Forms::Screen;

namespace {

constexpr const char* general_list = "Mobile_Wine_Form";

}  // namespace

void Catalogue_Screen::Should_General_Command_be_Enabled() {
  General_Command.Set_Enabled(Commits() && All_Filled(Gate_Fields()));
}

void Catalogue_Screen::Name_Changed(Forms::Text_Box& name) {
  Require_Unless(!Trim(name.Text()).empty(), name);
  Should_General_Command_be_Enabled();
}

bool Catalogue_Screen::Is_Refused_Name(Forms::Text_Box& name, const char* title) {
  const Text text = Trim(name.Text());
  const bool stands_for_none = text == "x" || text == "No Label";
  if (!stands_for_none || Is_Kept(Fault::Row_Can_Be_Named_X)) return false;
  Forms::Message_Box("\"" + text + "\" CANNOT be a name.", title, Forms::Sign::Warning);
  name.SetFocus();
  return true;
}

bool Catalogue_Screen::Same_Name(const Text& one, const Text& other) {
  if (Is_Kept(Fault::Double_Name_Goes_By_Case)) return one == other;
  return Same_Text(Trim(one), Trim(other));
}

bool Catalogue_Screen::Is_In_Use(const Deletion& deletion, Integer used) {
  const bool refused =
      used > 0 || (!Is_Kept(Fault::Deletion_Goes_By_Counter) && deletion.is_referred_to());
  if (refused) {
    Forms::Message_Box(deletion.in_use + New_Line + deletion.remove_first, deletion.in_use_title,
                       Forms::Sign::Warning);
  }
  return refused;
}

bool Catalogue_Screen::Delete_If_Wanted(const Deletion& deletion, Catalogue_Row& row) {
  if (!Forms::Ask_Yes_No(deletion.question, deletion.question_title, Forms::Answer::No)) {
    return false;
  }
  row.Delete();
  const bool rows_go = !Is_Kept(Fault::Rows_Of_Deleted_Row_Stay);
  if (rows_go && deletion.remove_rows != nullptr) deletion.remove_rows();
  return true;
}

bool Catalogue_Screen::May_Leave_Row(Row_List& list) const {
  if (May_Lose_Entered()) return true;
  list.Deselect_All();
  list.Select(Own_Row.Key());
  return false;
}

void Catalogue_Screen::Show_General_Wine(const Text& key, This_Screen this_screen) {
  const Screen wine(general_list);
  Requested_Wine_Text = key;
  const bool hides = this_screen == This_Screen::Hides;
  if (!wine.Exists() || (hides && wine.Is_Loaded())) return;
  if (hides) Hide();
  wine.Open();
}
