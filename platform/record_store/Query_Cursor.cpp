#include "platform/record_store/Query_Cursor.h"

#include <sqlite3.h>

#include "platform/record_store/Database_Core.h"
#include "platform/record_store/Query_Text.h"

namespace Record_Store {
namespace {

[[noreturn]] void Fail_To_Prepare(const Engine& store, int result, std::string_view text) {
  if (result != SQLITE_ERROR) store.Fail_By(result);
  constexpr std::string_view no_table = "no such table: ";
  const std::string_view message = sqlite3_errmsg(store.Handle());
  if (message.starts_with(no_table)) Fail(Failure::No_Such_Table, message.substr(no_table.size()));
  Fail(Failure::Syntax_Error_In_Query, text);
}

Statement Prepare_Query(const Engine& store, std::string_view text) {
  if (!Begins_With_Select(text)) Fail(Failure::Syntax_Error_In_Query, text);
  const std::string complete = With_Full_Order(text);
  sqlite3_stmt* prepared = nullptr;
  const char* rest = nullptr;
  const int result = sqlite3_prepare_v2(store.Handle(), complete.data(),
                                        static_cast<int>(complete.size()), &prepared, &rest);
  Statement statement(prepared);
  if (result != SQLITE_OK) Fail_To_Prepare(store, result, text);
  const std::string_view behind(rest, complete.data() + complete.size());
  if (prepared == nullptr || sqlite3_stmt_readonly(prepared) == 0 || !Is_Only_End(behind) ||
      sqlite3_bind_parameter_count(prepared) != 0) {
    Fail(Failure::Syntax_Error_In_Query, text);
  }
  return statement;
}

// The type of a column that a field of a table stands behind.
std::optional<Field_Type> Column_Type(Database_Core& database, sqlite3_stmt* statement,
                                      int column) {
  const char* name = sqlite3_column_table_name(statement, column);
  const char* field = sqlite3_column_origin_name(statement, column);
  Stored_Table* table = name == nullptr ? nullptr : database.Find_Table(name);
  if (table == nullptr || field == nullptr) return std::nullopt;
  const int ordinal = table->Layout().Find(field);
  return ordinal < 0 ? std::nullopt : table->Layout().At(ordinal).type;
}

}  // namespace

void Query_Cursor::Open(Database_Core& database, std::string_view text) {
  core = &database;
  core->Begin_Read();
  const Statement statement = Prepare_Query(core->Store(), text);
  std::vector<Column> columns;
  for (int i = 0; i < sqlite3_column_count(statement.get()); ++i) {
    const char* name = sqlite3_column_name(statement.get(), i);
    columns.push_back({name == nullptr ? "" : name, Column_Type(database, statement.get(), i)});
  }
  fields_ = Field_Layout(std::move(columns));
  layout_ = &fields_;
  row_.Clear(layout_->Count());
  while (core->Store().Step(statement.get())) row_.Append(statement.get());
  no_match_ = false;
  Move_First();
}

void Query_Cursor::Put_Away() { core->Take_Back(*this); }

void Query_Cursor::Close() { row_.Shrink(); }

void Query_Cursor::Move_First() {
  at_ = 0;
  place_ = row_.Rows() == 0 ? Place::Empty : Place::Row;
}

void Query_Cursor::Move_Last() {
  if (row_.Rows() == 0) Fail(Failure::No_Current_Record);
  at_ = row_.Rows() - 1;
  place_ = Place::Row;
}

void Query_Cursor::Move_Next() {
  if (place_ == Place::Before) {
    Move_First();
  } else if (place_ != Place::Row) {
    Fail(Failure::No_Current_Record);
  } else if (++at_ == row_.Rows()) {
    place_ = Place::Behind;
  }
}

void Query_Cursor::Move_Previous() {
  if (place_ == Place::Behind) {
    Move_Last();
  } else if (place_ != Place::Row) {
    Fail(Failure::No_Current_Record);
  } else if (at_-- == 0) {
    place_ = Place::Before;
  }
}

}  // namespace Record_Store
