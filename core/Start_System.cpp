// Start-up: finds the program's folder, opens the data file and fills the lists.
#include "core/Cellar_Menu.h"
#include "core/Common_Words.h"
#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/Unconfirmed_Rows.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/forms/Application.h"
#include "platform/forms/Screens.h"
#include "platform/run_time/Guard.h"

using Forms::App_Path;
using Forms::Screen;

Text Parent_Folder() {
  const Text path = App_Path();
  const auto last = path.rfind('/');
  return last == Text::npos ? Text() : path.substr(0, last);
}

Text Own_Data_File() { return App_Path() + "/dbase/Wine_Cellar.mdb"; }

// The start calls this before it reads the settings, and so gets the program's own folder.
void Set_Database_Paths() {
  const Text folder = Wine_System.Wine_Cellar_as_Option ? Parent_Folder() : App_Path();
  Shared_DB_Path = folder + "/dbase/Marlune2003.mdb";
}

namespace {

// As designed three tables refer to a wine in 16 bits, and so they do in every file.
void Widen_Wine_Numbers() {
  if (Is_Kept(Fault::Wine_Numbers_Have_16_Bits)) return;
  for (const char* table : {"Wine_Tasting", "Cheeses_Per_Wines", "Wines_Per_Cheeses"}) {
    Wine_Cellar_DB->Widen(table, "Wine_ID");
  }
}

// The same of the rows that tie regions and grapes: nothing refers to these numbers.
void Widen_Link_Numbers() {
  if (Is_Kept(Fault::Link_Numbers_Have_16_Bits)) return;
  Wine_Cellar_DB->Widen("Varieties_Per_Region", "Varieties_Per_Region_ID");
  Wine_Cellar_DB->Widen("Regions_Per_Variety", "Regions_Per_Variety_ID");
}

// The logo follows: it spans the window.
void Fit_Window_To_Language() {
  Read_By_Key(Languages_Available_Table, System_Language);
  Screen("Wine_Cellar_Form").Instance().Set_Width(Languages_Available.Width_Main);
}

}  // namespace

void Open_Databases() {
  Open_Wine_Cellar_DB();
  Widen_Wine_Numbers();
  Widen_Link_Numbers();
  Remove_Unconfirmed_Rows();
  Hooks().commit = [] { Wine_Cellar_DB->Commit(); };
  Load_Countries();
  Open_Table(Words_Recordset, "Words");
  Load_Wine_System();
  System_Language = Wine_System.System_Language_Number;
  Fit_Window_To_Language();
  Load_Bottle_Sizes();
  Load_Cheese_Types();
  Load_Milk_Types();
  Load_Mobile_Countries();
  Load_Cheese_Countries();
  New_Line = "\r\n";
  Selected_Text = "";
}

void Start_System() {
  Wine_Cellar_DB_Path = Own_Data_File();
  Set_Database_Paths();
  Open_Databases();
  Read_Common_Words();
  Set_Cellar_Menu();
  First_Run = true;
  const bool not_set_up = Wine_System.Wine_Cellar_as_Option && !Wine_System.System_Initialized;
  if (not_set_up && Screen("Initialize_Form").Exists()) {
    Screen("Wine_Cellar_Form").Hide();
    Screen("Initialize_Form").Open();
  }
}
