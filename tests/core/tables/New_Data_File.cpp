#include "tests/core/tables/New_Data_File.h"

#include <filesystem>

#include "core/Globals.h"

New_Data_File::New_Data_File() { Make(Tables::All_Schemas()); }

New_Data_File::~New_Data_File() { Wine_Cellar_DB.reset(); }

void New_Data_File::Make(const std::vector<Record_Store::Table_Schema>& tables) {
  Wine_Cellar_DB.reset();
  Wine_Cellar_DB_Path = folder_.Path("Wine_Cellar.mdb");
  std::filesystem::remove(Wine_Cellar_DB_Path);
  const auto connect = Connect_Text(Wine_Cellar_DB_Path);
  Record_Store::Create_Database(Wine_Cellar_DB_Path, connect, tables)->Commit();
  Open_Wine_Cellar_DB();
}
