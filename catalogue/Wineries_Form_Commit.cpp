// The writes: SAVE, MODIFY, and the deletion by a pick.
#include "catalogue/Deletions.h"
#include "catalogue/Wineries_Form.h"
#include "core/Data_Text.h"
#include "core/Ownership.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "links/Used_Counters.h"
#include "platform/run_time/Conversions.h"

using Forms::Screen;

namespace {

constexpr const char* refused = "WINERY ADD ERROR";

}  // namespace

void Wineries_Form::General_Command_Click() {
  if (!Commits() || Is_Refused_Name(Name_Text, refused)) return;
  if (Adds()) {
    Save_Winery();
  } else {
    Modify_Winery();
  }
}

// The wine screen finds the winery in the memory record.
void Wineries_Form::Save_Winery() {
  if (Is_Double()) return;
  Own_Row.Store([this] {
    Form_to_Memory();
    Wineries.SERIAL_NUMBER = Serial_of_Installation(Trim(Wineries.Winery_ID));
  });
  Forms::Message_Box("Winery was created.", "WINERY CREATED");
  if (Command_Is("WineAdd")) Screen("Wine_Form").Set_Tag("1");
  if (Command_Is("WineOtherAdd")) Screen("Mobile_Wine_Form").Set_Tag("1");
  Go_Back();
}

void Wineries_Form::Modify_Winery() {
  const Kept_Winery kept;
  Own_Row.Read();
  const bool moved = Region_Combo.Key() != To_Text(Wineries.Region_ID);
  if ((moved || Name_Text.Text() != Wineries.Winery_Name) && Is_Double()) return;
  const bool counted = !Is_Kept(Fault::Moved_Winery_Leaves_Counters);
  const Uses before = counted ? Uses_of_Wines_of(Own_Row.Key()) : Uses();
  Own_Row.Store([this] { Form_to_Memory(); });
  if (counted) Count_Difference(before, Uses_of_Wines_of(Own_Row.Key()));
  Forms::Message_Box("Winery was ModIfied.", "WINERY MODIFIED");
  Go_Back();
}

void Wineries_Form::Delete_Winery() {
  const Kept_Winery kept;
  Own_Row.Read();
  if (Is_In_Use(Deletion_of_Winery, Wineries.Used)) return;
  Delete_If_Wanted(Deletion_of_Winery);
  Go_Back();
}

// As designed wineries may repeat.
bool Wineries_Form::Is_Double() {
  if (Is_Kept(Fault::Double_Name_Goes_By_Case)) return false;
  bool found = false;
  Open_Table(Wineries_Recordset, "Wineries");
  for (const auto& row = Wineries_Recordset; !row.Eof() && !found; Wineries_Recordset.MoveNext()) {
    found = row.Fields("Winery_ID").As_Text() != Own_Row.Key() &&
            row.Fields("Country").As_Text() == Country_Combo.Key() &&
            row.Fields("Region_ID").As_Text() == Region_Combo.Key() &&
            Same_Name(row.Fields("Winery_Name").As_Text(), Name_Text.Text());
  }
  Close_Table(Wineries_Recordset);
  if (!found) return false;
  Forms::Message_Box("This Winery ALLREADY exists.", refused, Forms::Sign::Warning);
  Name_Text.SetFocus();
  return true;
}

void Wineries_Form::Form_to_Memory() {
  Wineries.Winery_Name = Name_Text.Text();
  for (const auto& [box, member] : Optional_Texts()) Wineries.*member = Entered_Or_X(box.Text());
  const bool listed = State_Combo.ListCount() > 0;
  Wineries.State = Entered_Or_X(listed ? State_Combo.Text() : Province_Text.Text());
  Wineries.Country = Country_Combo.Key();
  Wineries.Region = Region_Combo.Text();
  Wineries.Region_ID = To_Long(Region_Combo.Key());
  Wineries.History = To_Text(Store_Data_Text(History_Key(), History_Text.Text(),
                                             Adds() ? Text_Of::New_Row : Text_Of::Stored_Row));
}
