// The one row of a table that a catalogue screen works on: the one that it adds, or the one that
// was picked last.
#pragma once

#include <functional>
#include <string_view>

#include "core/tables/Rows.h"
#include "platform/run_time/Values.h"

/// A screen that adds a row puts it into the table at once, as it stands in the memory record, and
/// has its key from then on; it goes with the screen unless it was confirmed. The key is the
/// screen's own: whatever other screens read, and whoever adds rows meanwhile, what is stored goes
/// to this row, which is read anew before. Every routine leaves the table closed, but not where it
/// fails.
class Catalogue_Row {
 public:
  template <class Record>
  explicit Catalogue_Row(const Tables::Table_In_Use<Record>& table)
      : rows_(table.rows),
        table_(table.description.Name()),
        key_field_(table.key),
        read_([&table] { table.Read(); }),
        write_([&table] { table.Write(); }) {}

  /// "" while there is none.
  const Text& Key() const { return key_; }
  bool Is_Unconfirmed() const { return unconfirmed_; }

  /// The memory record becomes a new row, unconfirmed, and holds its key.
  void Add();
  /// The row of this key is in the memory record, and the one from now on, unless one is being
  /// added: that stays the one. Where it has gone nothing changes, and the answer is False.
  bool Pick(std::string_view key);
  /// The row into the memory record anew. 3021 where it has gone.
  void Read();
  /// Reads it anew, has `to_memory` put into the memory record what is to be stored, and stores
  /// that. The row is confirmed then. 3021 where it has gone.
  void Store(const std::function<void()>& to_memory);
  /// Reads it anew and deletes it; there is none then. 3021 where it has gone.
  void Delete();
  /// Deletes it if it is unconfirmed and still there.
  void Remove_Unconfirmed();

 private:
  void Open();
  void Open_at_Row();

  Record_Store::Recordset& rows_;
  Text table_;
  Text key_field_;
  std::function<void()> read_;
  std::function<void()> write_;
  Text key_;
  bool unconfirmed_ = false;
};
