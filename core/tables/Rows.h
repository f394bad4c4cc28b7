// Rows found by a key: one row, and the walk over all rows of an owner. What fails leaves open what
// is open at that moment.
#pragma once

#include <string_view>
#include <type_traits>

#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/tables/Table.h"
#include "platform/record_store/Record_Store.h"

namespace Tables {

/// All that it takes to work with a table. Its constant stands beside the table's description.
template <class Record>
struct Table_In_Use {
  const Table<Record>& description;
  Record_Store::Recordset& rows;
  Record& record;
  const char* key;  ///< the field that names one row, and its index

  void Read() const { description.Read(rows, record); }
  void Write() const { description.Write(rows, record); }
};

// clang-tidy does not find it by itself.
template <class Record>
Table_In_Use(const Table<Record>&, Record_Store::Recordset&, Record&, const char*)
    -> Table_In_Use<Record>;

}  // namespace Tables

/// Opens the table in the order of its keys. Failures are those of Open_Table.
template <class Record>
void Open_By_Key(const Tables::Table_In_Use<Record>& table) {
  Open_Table(table.rows, table.description.Name(), table.key);
}

// ---- one row of a table that stands open in the order of its keys; the row is the current one
// afterwards, and there is none after a miss ----

/// Reads the row of this key. 3021 where there is none.
template <class Record>
void Read_Row(const Tables::Table_In_Use<Record>& table, const Record_Store::Key& key) {
  table.rows.Seek("=", key);
  table.Read();
}

/// The same; False where there is none, and the memory record keeps what it holds.
template <class Record>
bool Find_Row(const Tables::Table_In_Use<Record>& table, const Record_Store::Key& key) {
  table.rows.Seek("=", key);
  if (table.rows.NoMatch()) return false;
  table.Read();
  return true;
}

/// Reads the last row in the order in which the table stands open. 3021 without rows.
template <class Record>
void Read_Last_Row(const Tables::Table_In_Use<Record>& table) {
  table.rows.MoveLast();
  table.Read();
}

// ---- the same of a table that is closed afterwards; it is open after a failure ----

template <class Record>
void Read_By_Key(const Tables::Table_In_Use<Record>& table, const Record_Store::Key& key) {
  Open_By_Key(table);
  Read_Row(table, key);
  Close_Table(table.rows);
}

template <class Record>
bool Find_By_Key(const Tables::Table_In_Use<Record>& table, const Record_Store::Key& key) {
  Open_By_Key(table);
  const bool found = Find_Row(table, key);
  Close_Table(table.rows);
  return found;
}

// ---- all rows of an owner ----

/// Calls `action()` for each row whose `field` holds `key`, the current row of `rows`, which stands
/// open in the order of the index on `field` (3019 in the order of none). An action that returns
/// False ends the walk, and so the walk returns False; the row stays current. The action may delete
/// its row, and must not move `rows` otherwise.
template <class Action>
bool Each_Row_Of(Record_Store::Recordset& rows, std::string_view field, Long key,
                 const Action& action) {
  const int key_at = rows.Ordinal(field);
  rows.Seek("=", key);
  for (; !rows.NoMatch() && !rows.Eof(); rows.MoveNext()) {
    if (rows.Fields(key_at).As_Long() != key) break;
    if constexpr (std::is_same_v<std::invoke_result_t<Action>, bool>) {
      if (!action()) return false;
    } else {
      action();
    }
  }
  return true;
}

/// Deletes them, of an open table, which stands in the order of the index on `field` afterwards.
void Remove_Rows_Of(Record_Store::Recordset& rows, std::string_view field, Long key);

// ---- queries ----

/// Replaces what `query` holds by the rows of `statement`, in its order. 91 before the file is
/// open; 3075 where the statement is broken, for instance by a quote in a value.
void Open_Query(Record_Store::Recordset& query, std::string_view statement);
