// What stands behind an open database: the connection, its bursts, the tables and the cursors.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/record_store/Engine.h"
#include "platform/record_store/Query_Cursor.h"
#include "platform/record_store/Stored_Table.h"
#include "platform/record_store/Table_Cursor.h"

namespace Record_Store {

class Database_Core {
 public:
  /// `building`: the file is new and is being filled.
  Database_Core(std::unique_ptr<Engine> engine, bool building);
  ~Database_Core();
  Database_Core(const Database_Core&) = delete;
  Database_Core& operator=(const Database_Core&) = delete;

  const Engine& Store() const { return *engine_; }
  bool Building() const { return building_; }

  // ---- bursts: the engine's transactions ----

  /// Reading goes on in the burst that runs, or begins one.
  void Begin_Read() {
    if (burst_kind_ == Burst_Kind::None || !engine_->In_Burst()) Begin("BEGIN", Burst_Kind::Read);
  }
  /// Takes the file for writing, and makes the cursors on this table ready for its change.
  void Begin_Write(Stored_Table& table);
  /// The first burst of a new file, in which its tables are made.
  void Begin_Building() { Begin("BEGIN IMMEDIATE", Burst_Kind::Write); }
  void Commit();
  /// Another number whenever the file is no longer as this process left it: what was read before
  /// holds no more. To be asked inside a burst.
  std::uint64_t File_State() const { return file_state_; }

  // ---- tables ----

  Stored_Table* Find_Table(std::string_view name);   ///< nullptr where there is none
  Stored_Table& Known_Table(std::string_view name);  ///< 3078 where there is none
  std::vector<std::string> Table_Names();

  // ---- cursors ----

  Cursor& Open(std::string_view table_or_statement);
  void Take_Back(Table_Cursor& cursor);
  void Take_Back(Query_Cursor& cursor);

 private:
  enum class Burst_Kind { None, Read, Write };

  struct Name_Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const { return Hash_Of_Name(name); }
  };
  struct Name_Equal {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return Same_Name(a, b); }
  };

  void Begin(const char* statement, Burst_Kind kind);
  void Detach_All();
  void Look_For_Changes();
  Cursor& Open_Table(Stored_Table& table);
  Cursor& Open_Query(std::string_view text);

  std::unique_ptr<Engine> engine_;
  bool building_;
  Burst_Kind burst_kind_ = Burst_Kind::None;
  Statement version_;  // the engine's count of the changes by other processes
  std::int64_t last_version_ = -1;
  std::uint64_t file_state_ = 0;

  std::unordered_map<std::string, std::unique_ptr<Stored_Table>, Name_Hash, Name_Equal> tables_;

  // Cursors are kept for the next opening. An open one belongs to its recordset.
  std::vector<Table_Cursor*> open_tables_;
  std::vector<Query_Cursor*> open_queries_;
  std::vector<std::unique_ptr<Table_Cursor>> free_tables_;
  std::vector<std::unique_ptr<Query_Cursor>> free_queries_;
};

}  // namespace Record_Store
