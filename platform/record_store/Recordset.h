// A cursor over the rows of a table or of a query.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "platform/record_store/Fields.h"
#include "platform/run_time/Values.h"

namespace Record_Store {

class Cursor;

/// A key of Seek. A number given for a text key compares as its decimal text; a text given for a
/// number key is converted, and one that is no number is a miss.
class Key {
 public:
  Key(int value) : value_(static_cast<std::int64_t>(value)) {}
  Key(Integer value) : value_(static_cast<std::int64_t>(value)) {}
  Key(std::int64_t value) : value_(value) {}
  Key(double value) : value_(value) {}
  Key(Single value) : value_(value) {}
  Key(bool value) : value_(value) {}
  Key(Currency value) : value_(value) {}
  Key(Date value) : value_(value) {}
  Key(std::string_view value) : value_(value) {}
  Key(const char* value) : value_(std::string_view(value)) {}
  Key(const Text& value) : value_(std::string_view(value)) {}

  using Value = std::variant<std::int64_t, double, Single, bool, Currency, Date, std::string_view>;
  const Value& Get() const { return value_; }

 private:
  Value value_;
};

/// A recordset variable. It is empty until a recordset is assigned to it (use of an empty one: 91)
/// and closed after Close (use: 3420). Assigning a new recordset drops the old one unclosed, and
/// with it what it had not stored; so does the end of the variable.
///
/// A table recordset begins on the first row in storage order, which is the order of insertion; on
/// an empty table Bof and Eof are both True. The row read through it is the row as it was at this
/// recordset's last move, Edit or Update; what others change shows at its next move. A row that
/// another recordset deleted can still be read until then.
///
/// A query recordset holds the rows of the moment of its opening, for moves and reads only: Index,
/// Seek, AddNew, Edit, Update and Delete are 3219 on it.
///
/// A commit of the database leaves every recordset where it stands.
class Recordset {
 public:
  Recordset() = default;
  Recordset(Recordset&& other) noexcept;
  Recordset& operator=(Recordset&& other) noexcept;
  ~Recordset();

  bool Is_Open() const;
  /// What was assigned and not stored is dropped.
  void Close();

  // ---- order and search (tables) ----

  /// The rows stand in this index's order from now on, equal keys in storage order; the current row
  /// is the first one. Names are compared without regard to case. 3015 where there is no such
  /// index.
  void Index(std::string_view name);

  /// Lands on the first row whose key fields equal `keys`: as many as the index has fields, or
  /// fewer from the left (none, or too many: 5). A miss sets NoMatch and leaves no current row: Eof
  /// and Bof are False then and any read or relative move is 3021. A hit clears NoMatch.
  /// `comparison` is "=" (anything else: 5). 3019 before any Index.
  template <class... Keys>
  void Seek(std::string_view comparison, const Keys&... keys) {
    const Key list[] = {Key(keys)...};
    Seek_Keys(comparison, list);
  }
  void Seek_Keys(std::string_view comparison, std::span<const Key> keys);
  bool NoMatch() const;

  // ---- moves ----

  bool Eof() const;  ///< behind the last row, or no rows at all
  bool Bof() const;  ///< before the first row, or no rows at all
  /// Without rows no failure: Eof and Bof are True then.
  void MoveFirst();
  /// 3021 without rows.
  void MoveLast();
  /// Past the last row Eof becomes True and there is no current row; once more: 3021. From Bof to
  /// the first row. After Delete to the neighbour of the deleted row.
  void MoveNext();
  void MovePrevious();

  /// Rows in the table, or in the query.
  Long RecordCount() const;
  /// How many more rows AddNew can begin (tables; of a query: 3219).
  Long Numbers_Left() const;

  // ---- reading ----

  /// By name without regard to case, or by zero-based storage ordinal; 3265 where there is none.
  Field Fields(std::string_view name) const;
  Field Fields(int ordinal) const;
  Field operator[](std::string_view name) const { return Fields(name); }

  int Field_Count() const;
  /// The ordinal of a field, for those who read many rows: 3265 where there is none.
  int Ordinal(std::string_view name) const;
  /// A number that stands for this recordset's arrangement of fields: ordinals found once hold for
  /// every recordset with the same number. Never 0; recordsets on one table of one open database
  /// have the same; no two databases or queries share one.
  std::uint64_t Layout_Number() const;

  // ---- changing (tables) ----

  /// Begins a new row, all fields null but the counter (and its copy), which is given here and can
  /// be read at once. It grows by one and is never given twice to rows that are stored, even if
  /// they are deleted; nor, within a run, where the row is dropped. Needs no current row.
  void AddNew();
  /// Begins the change of the current row, which is read again: 3167 if it was deleted.
  void Edit();
  /// Stores the row. A new row does not become the current one: that is the one before AddNew. An
  /// edited row stays current and stands at its new place in the index at once. Only assigned
  /// fields are written. 3020 with neither AddNew nor Edit before it, 3022 where a unique index has
  /// the key, 3167 where the edited row was deleted. A move, Seek, Index or Close instead drops
  /// what was assigned in silence.
  void Update();
  /// Removes the current row, with or without Edit before it. It stays "current" as a deleted row:
  /// reading it, or deleting it once more, is 3167.
  void Delete();

 private:
  friend class Database;
  explicit Recordset(Cursor& cursor) : cursor_(&cursor) {}
  Cursor& Open_Cursor() const;
  void Drop() noexcept;

  Cursor* cursor_ = nullptr;
  bool closed_ = false;
};

}  // namespace Record_Store
