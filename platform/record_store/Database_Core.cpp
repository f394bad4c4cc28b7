#include "platform/record_store/Database_Core.h"

#include <sqlite3.h>

#include <algorithm>

#include "platform/record_store/Query_Text.h"
#include "platform/record_store/Sql_Texts.h"

namespace Record_Store {
namespace {

template <class T>
void Forget(std::vector<T*>& list, const T* what) {
  const auto place = std::ranges::find(list, what);
  if (place == list.end()) return;
  *place = list.back();
  list.pop_back();
}

}  // namespace

Database_Core::Database_Core(std::unique_ptr<Engine> engine, bool building)
    : engine_(std::move(engine)), building_(building) {}

// Recordsets may outlive the database. Their cursors are theirs from now on, and closed.
Database_Core::~Database_Core() {
  for (Table_Cursor* cursor : open_tables_) {
    cursor->Close();
    cursor->core = nullptr;
  }
  for (Query_Cursor* cursor : open_queries_) {
    cursor->Close();
    cursor->core = nullptr;
  }
}

// ---- bursts ----

// A burst that the engine has ended by itself, after a failure, is over for the cursors too, and
// what it wrote is gone.
void Database_Core::Begin(const char* statement, Burst_Kind kind) {
  if (burst_kind_ != Burst_Kind::None) {
    Detach_All();
    ++file_state_;
  }
  burst_kind_ = Burst_Kind::None;
  if (engine_->In_Burst()) engine_->Execute("ROLLBACK");  // one whose beginning failed halfway
  engine_->Execute(statement);
  Look_For_Changes();
  burst_kind_ = kind;
}

void Database_Core::Look_For_Changes() {
  if (!version_) version_ = engine_->Prepare("PRAGMA data_version");
  engine_->Step(version_.get());
  const std::int64_t version = Column_Value(version_.get(), 0).number;
  sqlite3_reset(version_.get());
  if (version != last_version_) ++file_state_;
  last_version_ = version;
}

// The engine takes the file for writing at the beginning of a burst only, and between the end of
// the reading one and that, another process can write. What the handler has read, and is about to
// write back with a change, would undo what the other one was told is stored.
void Database_Core::Begin_Write(Stored_Table& table) {
  const bool running = burst_kind_ != Burst_Kind::None && engine_->In_Burst();
  if (!running || burst_kind_ == Burst_Kind::Read) {
    const std::int64_t version_read = last_version_;
    if (running) Commit();
    Begin("BEGIN IMMEDIATE", Burst_Kind::Write);
    if (running && last_version_ != version_read) {
      Commit();
      Fail(Failure::Currently_Locked);
    }
  }
  for (Table_Cursor* cursor : open_tables_) {
    if (cursor->Is_On(table)) cursor->Settle();
  }
}

void Database_Core::Commit() {
  if (burst_kind_ == Burst_Kind::None) return;
  Detach_All();
  if (engine_->In_Burst()) engine_->Execute("COMMIT");
  burst_kind_ = Burst_Kind::None;
}

void Database_Core::Detach_All() {
  for (Table_Cursor* cursor : open_tables_) cursor->Detach();
}

// ---- tables ----

Stored_Table* Database_Core::Find_Table(std::string_view name) {
  if (const auto known = tables_.find(name); known != tables_.end()) return known->second.get();
  Begin_Read();
  const Statement statement =
      engine_->Prepare("SELECT Name, Description FROM Record_Store_Tables WHERE Name=?");
  sqlite3_bind_text(statement.get(), 1, name.data(), static_cast<int>(name.size()), SQLITE_STATIC);
  if (name.empty() || !engine_->Step(statement.get())) return nullptr;
  const std::string_view kept = Column_Value(statement.get(), 0).text;
  const std::string_view description = Column_Value(statement.get(), 1).text;
  auto table =
      std::make_unique<Stored_Table>(Described(kept, description, engine_->Path()), *engine_);
  return tables_.emplace(kept, std::move(table)).first->second.get();
}

Stored_Table& Database_Core::Known_Table(std::string_view name) {
  Stored_Table* table = Find_Table(name);
  if (table == nullptr) Fail(Failure::No_Such_Table, name);
  return *table;
}

std::vector<std::string> Database_Core::Table_Names() {
  Begin_Read();
  const Statement statement =
      engine_->Prepare("SELECT Name FROM Record_Store_Tables ORDER BY Name");
  std::vector<std::string> names;
  while (engine_->Step(statement.get())) {
    names.emplace_back(Column_Value(statement.get(), 0).text);
  }
  return names;
}

// ---- cursors ----

Cursor& Database_Core::Open(std::string_view table_or_statement) {
  if (const auto known = tables_.find(table_or_statement); known != tables_.end()) {
    return Open_Table(*known->second);
  }
  if (!Is_Name(table_or_statement)) return Open_Query(table_or_statement);
  return Open_Table(Known_Table(table_or_statement));
}

Cursor& Database_Core::Open_Table(Stored_Table& table) {
  if (free_tables_.empty()) free_tables_.push_back(std::make_unique<Table_Cursor>());
  open_tables_.push_back(free_tables_.back().release());
  free_tables_.pop_back();
  open_tables_.back()->Open(*this, table);
  return *open_tables_.back();
}

Cursor& Database_Core::Open_Query(std::string_view text) {
  auto cursor = std::make_unique<Query_Cursor>();
  if (!free_queries_.empty()) {
    cursor = std::move(free_queries_.back());
    free_queries_.pop_back();
  }
  cursor->Open(*this, text);
  open_queries_.push_back(cursor.release());
  return *open_queries_.back();
}

void Database_Core::Take_Back(Table_Cursor& cursor) {
  cursor.Close();
  Forget(open_tables_, &cursor);
  free_tables_.emplace_back(&cursor);
}

void Database_Core::Take_Back(Query_Cursor& cursor) {
  cursor.Close();
  Forget(open_queries_, &cursor);
  free_queries_.emplace_back(&cursor);
}

}  // namespace Record_Store
