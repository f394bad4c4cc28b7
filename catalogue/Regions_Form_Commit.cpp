// What is entered for a region, and how it is stored.
#include "catalogue/Regions_Form.h"
#include "core/Globals.h"
#include "core/Ownership.h"
#include "core/tables/Catalogue.h"
#include "links/Referred_Rows.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

using Forms::Message_Box;
using Forms::Screen;

namespace {

constexpr const char* refused = "REGION ADD ERROR";

}  // namespace

// A change needs a picked region, and a new one a country that the list holds.
bool Regions_Form::Commits() const {
  if (Is_Adding()) return Country_Combo.ListIndex() >= 0;
  return Command_Is("RegionsMod") && !Own_Row.Key().empty();
}

void Regions_Form::Country_Combo_Click() {
  if (Country_Click_Busy) return;
  Country_Click_Busy = true;
  Country_Combo.Set_Tag("1");
  Should_General_Command_be_Enabled();
  Country_Click_Busy = false;
}

Text Regions_Form::Entered() {
  if (!Is_Adding() && !Command_Is("RegionsMod")) return {};
  Text entered = Country_Combo.Key();
  for (const Forms::Text_Box* box : {&Name_Text, &Description_Text, &History_Text}) {
    entered += "\n" + Trim(box->Text());
  }
  return entered;
}

void Regions_Form::General_Command_Click() {
  if (Is_Adding()) Add_Region();
  if (Command_Is("RegionsMod")) Modify_Region();
  if (Command_Is("RegionsView")) Leave();
}

void Regions_Form::Add_Region() {
  if (Is_Refused_Name(Name_Text, refused) || Is_Refused_as_Double()) return;
  Own_Row.Store([this] { Form_to_Memory(Text_Of::New_Row); });
  Region_Or_Label_Changed = true;
  Message_Box("Region was created successfully.", "SUCCESSFULL REGION CREATION");
  if (Command_Is("RegionsAdd")) return Leave();
  New_Region_ID = To_Integer(Own_Row.Key());
  Screen("Wineries_Form").Set_Tag("1");
  Leave_to("Wineries_Form");
}

// The list stays as it is, but for the name.
void Regions_Form::Modify_Region() {
  Own_Row.Read();
  const bool renamed = Name_Text.Text() != Regions.Region_Name;
  if (renamed && (Is_Refused_Name(Name_Text, refused) || Is_Refused_as_Double())) return;
  Own_Row.Store([this] { Form_to_Memory(Text_Of::Stored_Row); });
  if (renamed) Rename_Region_in_Wineries();
  Region_Or_Label_Changed = true;
  Message_Box("Region was MODIFIED successfully.", "SUCCESSFULL REGION MODIFICATION");
  Memory_to_Form();
  Show_Whose_Region();
  Take_as_Stored();
  std::optional<Forms::List_Item> row = Regions_ListView.Row_of(Own_Row.Key());
  if (!row) return;
  row->Set_Text(Regions.Region_Name);
  row->Set_Selected(true);
  if (renamed) row->EnsureVisible();
}

// As designed by the words of the list, whose countries are English in every language.
Text Regions_Form::Country_in_List() const {
  if (Is_Kept(Fault::Double_Name_Goes_By_Case)) return Country_Combo.Text();
  const bool known = Find_By_Key(World_Contries_Table, Country_Combo.Key());
  return known ? Countries_Memory.Long_Name : Text();
}

bool Regions_Form::Is_Refused_as_Double() {
  const Text country = Country_in_List();
  const Text name = Trim(Name_Text.Text());
  const bool own_too = Is_Kept(Fault::Double_Name_Goes_By_Case);
  for (int place = 1; place <= Regions_ListView.Count(); ++place) {
    Forms::List_Item row = Regions_ListView.ListItems(place);
    if (row.SubItems(1) != country || !Same_Name(row.Text(), name)) continue;
    if (!own_too && Regions_ListView.Key_of(row) == Own_Row.Key()) continue;
    Message_Box("This Region ALLREADY exists.", refused, Forms::Sign::Warning);
    Regions_ListView.Set_SelectedItem(row);
    row.EnsureVisible();
    Name_Text.SetFocus();
    return true;
  }
  return false;
}

// The row was read anew. A country that no list holds stays as it was read.
void Regions_Form::Form_to_Memory(Text_Of text_of) {
  const auto store = [text_of](Integer& key, const Forms::Text_Box& box) {
    key = To_Integer(Store_Data_Text(key, box.Text(), text_of));
  };
  const bool stays_delivered =
      Is_System_Row(Regions.SERIAL_NUMBER) && !Is_Kept(Fault::Changed_Row_Becomes_The_Users);
  Regions.Region_Name = Trim(Name_Text.Text());
  if (Country_Combo.ListIndex() >= 0) Regions.Country = Country_Combo.Key();
  if (!stays_delivered) Regions.SERIAL_NUMBER = Serial_of_Installation(Own_Row.Key());
  store(Regions.Description, Description_Text);
  store(Regions.History, History_Text);
}
