#include "tools/Stored_Library.h"

#include <fcntl.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Data_Compiler {

namespace {

namespace fs = std::filesystem;

void Fill(Record_Store::Database& database, const Library& library) {
  Tables::For_Each_Table([&]<class Record>(const Tables::Table<Record>& table) {
    Record_Store::Recordset rows = database.OpenRecordset(table.Name());
    for (const Record& record : library.Of<Record>()) {
      rows.AddNew();
      // The library's keys are those of the store: it counts in the same way.
      for (const auto& field : table.Fields())
        if (field.Schema().counter) {
          Long given = rows.Fields(field.Schema().name).As_Long();
          if (given != Key_Of(record)) Fail(Failure::Duplicate_Key, table.Name());
        }
      table.Write(rows, record);
    }
    rows.Close();
  });
}

/// Gives the file its name, unless another has it by now.
void Rename_Without_Replacing(const std::string& from, const std::string& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return;
  const std::error_code error(errno, std::generic_category());
  fs::remove(from);
  throw fs::filesystem_error("cannot give the data file its name", to, error);
}

}  // namespace

void Write_Library(const Library& library, const std::string& path) {
  if (fs::exists(path))
    throw fs::filesystem_error("a data file is never replaced", path,
                               std::make_error_code(std::errc::file_exists));
  const std::string unfinished = path + ".unfinished";
  for (const char* rest : {"", "-journal", "-wal", "-shm"}) fs::remove(unfinished + rest);
  {
    const auto schemas = Tables::All_Schemas();
    const auto database =
        Record_Store::Create_Database(unfinished, Connect_Text(unfinished), schemas);
    Fill(*database, library);
    database->Commit();
  }
  for (const char* rest : {"-journal", "-wal", "-shm"}) fs::remove(unfinished + rest);
  Rename_Without_Replacing(unfinished, path);
}

Library Read_Library(Record_Store::Database& database) {
  Library library;
  Tables::For_Each_Table([&]<class Record>(const Tables::Table<Record>& table) {
    Record_Store::Recordset rows = database.OpenRecordset(table.Name());
    for (; !rows.Eof(); rows.MoveNext()) {
      table.Read(rows, library.Of<Record>().emplace_back());
    }
    rows.Close();
  });
  return library;
}

}  // namespace Data_Compiler
