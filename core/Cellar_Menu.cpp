#include "core/Cellar_Menu.h"

#include "core/Common_Words.h"
#include "core/Globals.h"
#include "core/Languages.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/forms/Menu.h"
#include "platform/forms/Screens.h"
#include "platform/run_time/Conversions.h"

namespace {

Forms::Control& Entry(std::string_view name) {
  return Forms::Screen("Wine_Cellar_Form").Control(name);
}

void Show_Entries(bool visible, std::initializer_list<const char*> names) {
  for (const char* name : names) Entry(name).Set_Visible(visible);
}

// What needs a cellar to speak of.
void Enable_Cellar_Services(bool enabled) {
  const Text reason =
      enabled ? Text()
              : Hint_To_Menu(Screen_Words::Name_Cellars_First, "Cellar_Main", "Cellar_Add");
  for (const char* name : {"Wines_Cellar", "Pairing_Search_Cellar", "Cheeses_Pairing_Cellar"}) {
    Entry(name).Set_Enabled(enabled);
    Forms::Screen("Wine_Cellar_Form").Get<Forms::Menu_Item>(name).Set_Tool_Tip(reason);
  }
}

}  // namespace

void Caption_Main_Window() {
  Forms::Screen("Wine_Cellar_Form").Set_Caption(Current_Cellar_Word + " " + Current_Cellar_Name);
}

void Caption_Current_Cellar() {
  const Text cellar = Current_Cellar_Name + " " + Cellar_Word;
  Caption_Main_Window();
  Entry("Wines_Cellar").Set_Caption(cellar);
  Entry("Pairing_Search_Cellar").Set_Caption(For_Pairings_Word + " " + cellar);
  Entry("Cheeses_Pairing_Cellar").Set_Caption(With_Word + " " + cellar);
}

// The other languages name the wines in `With_Word`; English puts them last, and leaves them out
// once a cellar was chosen in the menu.
void Show_Named_Cellars(std::string_view first, std::string_view second) {
  Show_Entries(false, {"Cellar_View", "Cellar_Add", "Cellar_Print"});
  Show_Entries(true, {"Cellar_Mod", "Cellars_View", "Cellars_Print", "Cellar1_View", "Cellar2_View",
                      "Cellar1_Print", "Cellar2_Print"});
  Enable_Cellar_Services(true);
  Caption_Current_Cellar();
  Forms::Control& cheeses = Entry("Cheeses_Pairing_Cellar");
  if (System_Language == First_Language) cheeses.Set_Caption(cheeses.Caption() + " Wines");
  for (const char* entry : {"Cellar1_View", "Cellar1_Print"}) Entry(entry).Set_Caption(first);
  for (const char* entry : {"Cellar2_View", "Cellar2_Print"}) Entry(entry).Set_Caption(second);
}

void Set_Cellar_Menu() {
  Open_Table(Cellars_Recordset, "Cellars");
  Read_Cellars_Record();
  Current_Cellar_ID = To_Integer(Cellars.ID);
  Current_Cellar_Name = Cellars.Cellar_Name;
  if (Current_Cellar_Name == "x") {
    Show_Entries(true, {"Cellar_Add", "Cellar_View"});
    Show_Entries(false, {"Cellar_Print"});
    Enable_Cellar_Services(false);
    return;
  }
  const Text first = Current_Cellar_Name;
  Cellars_Recordset.MoveNext();
  Show_Named_Cellars(first, Cellars_Recordset.Fields("Cellar_Name").As_Text());
  Close_Table(Cellars_Recordset);
}
