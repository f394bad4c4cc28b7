#include "tests/support/Program_Folder.h"

#include <filesystem>

#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "main_window/Main_Window_Screens.h"
#include "platform/forms/Application.h"
#include "platform/forms/Screens.h"
#include "platform/run_time/Guard.h"

namespace fs = std::filesystem;

Program_Folder::Program_Folder() {
  fs::create_directories(folder_.Path("dbase"));
  fs::copy_file(DELIVERED_FOLDER "/dbase/Wine_Cellar.mdb", Data_File());
  Forms::Set_App_Path_For_Tests(Folder());
  Register_Main_Window_Screens();
}

Program_Folder::~Program_Folder() { Stop(); }

void Program_Folder::Start() {
  Run_Guarded([] { Forms::Screen("Wine_Cellar_Form").Open(); });
}

void Program_Folder::Stop() {
  Forms::Screens::Clear_For_Tests();
  Hooks().commit = [] {};
  Wine_Cellar_DB.reset();
  Wine_System = {};
  Current_Command.clear();
  Cheese_Types.Clear();
}

void Program_Folder::Restart() {
  Stop();
  Start();
}

std::vector<std::string> Program_Folder::Stored(const std::string& statement, int fields) const {
  const auto file = Record_Store::OpenDatabase(Data_File(), false, true, Connect_Text(Data_File()));
  Record_Store::Recordset rows = file->OpenRecordset(statement);
  std::vector<std::string> lines;
  for (; !rows.Eof(); rows.MoveNext()) {
    std::string line;
    for (int field = 0; field < fields; ++field) {
      line += (field == 0 ? "" : "|") + rows.Fields(field).As_Text();
    }
    lines.push_back(line);
  }
  return lines;
}

void Program_Folder::Change(const std::function<void(Record_Store::Database&)>& change) const {
  const auto file =
      Record_Store::OpenDatabase(Data_File(), false, false, Connect_Text(Data_File()));
  change(*file);
  file->Commit();
}

void Program_Folder::Set_Language(Integer number) const {
  Change([number](Record_Store::Database& file) {
    Record_Store::Recordset system = file.OpenRecordset("Wine_System");
    system.Edit();
    system.Fields("System_Language_Number") = number;
    system.Update();
  });
}

void Program_Folder::Name_Cellars_In_File() const {
  Change([](Record_Store::Database& file) {
    Record_Store::Recordset cellars = file.OpenRecordset("Cellars");
    cellars.Edit();
    cellars.Fields("Cellar_Name") = "Home";
    cellars.Update();
    cellars.AddNew();
    cellars.Fields("Cellar_Name") = "Office";
    cellars.Update();
  });
}
