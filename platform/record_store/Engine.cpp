#include "platform/record_store/Engine.h"

#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>

#include "platform/record_store/Text_Order.h"

namespace Record_Store {
namespace {

constexpr int patience = 5000;  // milliseconds

template <int (*compare)(std::string_view, std::string_view)>
int Collate(void*, int a_length, const void* a, int b_length, const void* b) {
  return compare({static_cast<const char*>(a), static_cast<std::size_t>(a_length)},
                 {static_cast<const char*>(b), static_cast<std::size_t>(b_length)});
}

Failure Failure_Of(int result) {
  switch (result & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return Failure::Currently_Locked;
    case SQLITE_FULL:
      return Failure::Not_Enough_Space;
    case SQLITE_CONSTRAINT:
      return Failure::Duplicate_Key;
    case SQLITE_NOMEM:
      return Failure::Out_Of_Memory;
    case SQLITE_READONLY:
      return Failure::Read_Only;
    // A page whose seal is broken comes back as a plain error: our own statements know no other.
    case SQLITE_ERROR:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_SCHEMA:
      return Failure::Unrecognized_Format;
    default:
      return Failure::Disk_Error;
  }
}

// The engine's bookkeeping of its memory costs a look-up about as much as its reading. It can be
// left out before the engine's first use only; if another part of the process was earlier, it
// stays.
void Leave_Out_Bookkeeping() {
  static const int result = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
  static_cast<void>(result);
}

// A journal that cannot be made comes back as a file that cannot be opened, or written.
[[noreturn]] void Fail_On(const std::string& path, int result, bool writes) {
  const Failure failure = Failure_Of(result);
  if (writes && failure == Failure::Disk_Error) Require_Writable(path);
  if (failure == Failure::Read_Only || failure == Failure::Disk_Error) Fail(failure, {}, path);
  Fail(failure, path);
}

}  // namespace

// The engine makes the journal beside the file itself, not beside a link to it.
void Require_Writable(const std::string& path) {
  const auto require = [](const std::filesystem::path& place) {
    if (access(place.c_str(), W_OK) != 0) Fail(Failure::Read_Only, {}, place.string());
  };
  std::error_code gone;
  const std::filesystem::path file = std::filesystem::canonical(path, gone);
  const std::filesystem::path journal = file.string() + "-journal";
  require(file);
  require(std::filesystem::exists(journal, gone) ? journal : file.parent_path());
}

void Statement_End::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Engine::Engine(const std::string& path, Mode mode, std::string_view password) : path_(path) {
  Leave_Out_Bookkeeping();
  const int flags =
      SQLITE_OPEN_NOMUTEX | (mode == Mode::Read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
  const int result = sqlite3_open_v2(path.c_str(), &handle_, flags, nullptr);
  if (result != SQLITE_OK) {
    sqlite3_close(handle_);
    Fail_On(path, result, mode != Mode::Read);
  }
  sqlite3_busy_timeout(handle_, patience);
  sqlite3_create_collation(handle_, "WINE", SQLITE_UTF8, nullptr, Collate<Compare_Keys>);
  sqlite3_create_collation(handle_, "WINE_CASE", SQLITE_UTF8, nullptr, Collate<Compare_Texts>);
  if (!password.empty()) {
    sqlite3_key(handle_, password.data(), static_cast<int>(password.size()));
  }
  Execute(("PRAGMA cipher_page_size=" + std::to_string(Page_Size)).c_str());
}

Engine::~Engine() { sqlite3_close(handle_); }

Statement Engine::Prepare(const std::string& text) const {
  sqlite3_stmt* statement = nullptr;
  const int result = sqlite3_prepare_v2(handle_, text.c_str(), static_cast<int>(text.size()) + 1,
                                        &statement, nullptr);
  if (result != SQLITE_OK) Fail_By(result);
  return Statement(statement);
}

void Engine::Execute(const char* text) const {
  const int result = sqlite3_exec(handle_, text, nullptr, nullptr, nullptr);
  if (result != SQLITE_OK) Fail_By(result);
}

std::int64_t Engine::Number_Of(const std::string& query) const {
  const Statement statement = Prepare(query);
  return Step(statement.get()) ? sqlite3_column_int64(statement.get(), 0) : 0;
}

bool Engine::Step(sqlite3_stmt* statement) const {
  const int result = sqlite3_step(statement);
  if (result == SQLITE_ROW) return true;
  if (result == SQLITE_DONE) return false;
  sqlite3_reset(statement);
  Fail_By(result);
}

int Engine::Run(sqlite3_stmt* statement) const {
  Step(statement);
  sqlite3_reset(statement);
  return sqlite3_changes(handle_);
}

bool Engine::In_Burst() const { return sqlite3_get_autocommit(handle_) == 0; }

void Engine::Fail_By(int result) const {
  Fail_On(path_, result, sqlite3_db_readonly(handle_, "main") == 0);
}

}  // namespace Record_Store
