// Opening a data file and making a new one.
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "platform/record_store/Database.h"
#include "platform/record_store/Database_Core.h"
#include "platform/record_store/Page_Check.h"
#include "platform/record_store/Sql_Texts.h"

namespace Record_Store {
namespace {

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The parts of a connect text stand between semicolons: a name, "=" and a value.
// The last one: the path that stands before it may hold anything.
std::string_view Password_Of(std::string_view connect) {
  std::string_view password;
  for (std::size_t from = 0; from < connect.size();) {
    const std::size_t to = std::min(connect.find(';', from), connect.size());
    const std::string_view part = connect.substr(from, to - from);
    const std::size_t equal = part.find('=');
    if (equal != std::string_view::npos && Same_Name(Trimmed(part.substr(0, equal)), "PWD")) {
      password = part.substr(equal + 1);
    }
    from = to + 1;
  }
  return password;
}

void Require_File(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    if (errno == ENOENT || errno == ENOTDIR) Fail(Failure::File_Not_There, path);
    Fail(Failure::Disk_Error, {}, path);
  }
  // The engine would take an empty file for a new one.
  if (!S_ISREG(status.st_mode) || status.st_size == 0) Fail(Failure::Unrecognized_Format, path);
}

// The first page is read here, and with it the key is made and tested.
void Read_First_Page(const Engine& engine, const std::string& path, std::string_view password) {
  const Statement statement = [&] {
    sqlite3_stmt* prepared = nullptr;
    sqlite3_prepare_v2(engine.Handle(), "SELECT count(*) FROM sqlite_master", -1, &prepared,
                       nullptr);
    return Statement(prepared);
  }();
  if (statement && sqlite3_step(statement.get()) == SQLITE_ROW) return;
  const int result = sqlite3_extended_errcode(engine.Handle());
  const int primary = result & 0xFF;
  if (primary != SQLITE_NOTADB && primary != SQLITE_CORRUPT && primary != SQLITE_ERROR) {
    engine.Fail_By(result);
  }
  const bool only_password = Looks_Encrypted(path) && !Some_Page_Fits(path, password);
  Fail(only_password ? Failure::Not_A_Valid_Password : Failure::Unrecognized_Format, path);
}

// The engine would find a last page that was cut off only when it comes to be read. What a killed
// process left behind has been put right by now.
bool Ends_Within_A_Page(const std::string& path) {
  std::error_code no_size;
  return std::filesystem::file_size(path, no_size) % Page_Size != 0;
}

void Require_Format(const Engine& engine) {
  const bool ours = engine.Number_Of("PRAGMA application_id") == Application_Id;
  const std::int64_t version = engine.Number_Of("PRAGMA user_version");
  if (ours && version == Schema_Version) return;
  Fail(Failure::Unrecognized_Format, engine.Path(),
       ours && version > Schema_Version ? "It was made by a newer version of this program." : "");
}

// One file to back up: the journal is emptied, not left, and the emptying is synced too, so that a
// power cut cannot bring an old one back.
void Set_Up(const Engine& engine) {
  engine.Execute("PRAGMA journal_mode=TRUNCATE");
  engine.Execute("PRAGMA synchronous=FULL");
  engine.Execute("PRAGMA cache_size=-65536");
  engine.Execute("PRAGMA temp_store=MEMORY");
}

// Nobody else's business. The engine gives the journal the same rights.
void Make_File(const std::string& path) {
  const int file = open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
  if (file >= 0) {
    close(file);
    return;
  }
  if (errno == EEXIST) Fail(Failure::Invalid_Operation);
  if (errno == ENOENT || errno == ENOTDIR) Fail(Failure::Path_Not_Found);
  Fail(Failure::Disk_Error, {}, path);
}

void Set_First_Counter(const Engine& engine, const Table_Schema& table) {
  if (std::ranges::none_of(table.fields, &Field_Schema::counter)) return;
  const Statement start = engine.Prepare("INSERT INTO sqlite_sequence VALUES (?, ?)");
  Bind_Value(start.get(), 1, Value::Of(std::string_view(table.name)));
  Bind_Value(start.get(), 2, Value::Of(std::int64_t{table.first_counter} - 1));
  engine.Run(start.get());
}

void Make_Tables(const Engine& engine, std::span<const Table_Schema> tables) {
  engine.Execute(
      "CREATE TABLE Record_Store_Tables (Name TEXT COLLATE NOCASE PRIMARY KEY, Description TEXT)"
      " WITHOUT ROWID");
  const Statement describe = engine.Prepare("INSERT INTO Record_Store_Tables VALUES (?, ?)");
  for (const Table_Schema& table : tables) {
    const std::string description = Describe(table);
    engine.Execute(Table_Definition(table).c_str());
    for (const Index_Schema& index : table.indexes) {
      if (!Is_Counter_Index(table, index)) engine.Execute(Index_Definition(table, index).c_str());
    }
    Bind_Value(describe.get(), 1, Value::Of(std::string_view(table.name)));
    Bind_Value(describe.get(), 2, Value::Of(std::string_view(description)));
    engine.Run(describe.get());
    Set_First_Counter(engine, table);
  }
}

}  // namespace

std::unique_ptr<Database> OpenDatabase(const std::string& path, bool exclusive, bool read_only,
                                       std::string_view connect) {
  Require_File(path);
  if (!read_only) Require_Writable(path);
  const std::string_view password = Password_Of(connect);
  auto engine = std::make_unique<Engine>(path, read_only ? Engine::Mode::Read : Engine::Mode::Write,
                                         password);
  if (exclusive) engine->Execute("PRAGMA locking_mode=EXCLUSIVE");
  Read_First_Page(*engine, path, password);
  if (Ends_Within_A_Page(path)) Fail(Failure::Unrecognized_Format, path);
  Require_Format(*engine);
  Set_Up(*engine);
  if (exclusive && !read_only) engine->Execute("BEGIN EXCLUSIVE; COMMIT");
  return std::make_unique<Database>(std::make_unique<Database_Core>(std::move(engine), false));
}

std::unique_ptr<Database> Create_Database(const std::string& path, std::string_view connect,
                                          std::span<const Table_Schema> tables) {
  const std::string_view password = Password_Of(connect);
  if (password.empty()) Fail(Failure::Not_A_Valid_Password);
  Make_File(path);
  auto engine = std::make_unique<Engine>(path, Engine::Mode::Create, password);
  engine->Execute("PRAGMA locking_mode=EXCLUSIVE");
  Set_Up(*engine);
  auto core = std::make_unique<Database_Core>(std::move(engine), true);
  core->Begin_Building();
  core->Store().Execute(("PRAGMA application_id=" + std::to_string(Application_Id)).c_str());
  core->Store().Execute(("PRAGMA user_version=" + std::to_string(Schema_Version)).c_str());
  Make_Tables(core->Store(), tables);
  return std::make_unique<Database>(std::move(core));
}

}  // namespace Record_Store
