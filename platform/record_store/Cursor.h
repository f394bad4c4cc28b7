// What recordsets of tables and of queries have in common: the row where they stand and the row
// that is being added or edited.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "platform/record_store/Field_Layout.h"
#include "platform/record_store/Recordset.h"
#include "platform/record_store/Rows.h"

namespace Record_Store {

class Database_Core;

class Cursor {
 public:
  Cursor() = default;
  virtual ~Cursor() = default;
  Cursor(const Cursor&) = delete;
  Cursor& operator=(const Cursor&) = delete;

  const Field_Layout& Layout() const { return *layout_; }

  /// The value of a field: of the row being added or edited where it was assigned there, else of
  /// the current row.
  Value Get(int ordinal) {
    if (change_ != Change::None && (change_ == Change::Add || assigned_[Position(ordinal)])) {
      return new_row_.At(0, ordinal);
    }
    if (place_ != Place::Row) Require_Row();
    return live_ != nullptr ? Column_Value(live_, ordinal) : kept_->At(at_, ordinal);
  }
  /// Assigns a field of the row being added or edited.
  void Put(int ordinal, const Key::Value& plain);
  void Put_Null(int ordinal);

  bool Eof();
  bool Bof();
  bool No_Match() const { return no_match_; }

  virtual void Move_First() = 0;
  virtual void Move_Last() = 0;
  virtual void Move_Next() = 0;
  virtual void Move_Previous() = 0;
  virtual Long Count() = 0;

  // These are for tables; a query fails with 3219.
  virtual Long Numbers_Left();
  virtual void Index(std::string_view name);
  virtual void Seek(std::string_view comparison, std::span<const Key> keys);
  virtual void Add_New();
  virtual void Edit();
  virtual void Update();
  virtual void Delete();

  /// The recordset is done with it: it goes back to the database.
  virtual void Put_Away() = 0;

  Database_Core* core = nullptr;  ///< null once the database is gone: the recordset owns it then

 protected:
  enum class Place { First, Row, Deleted, Missed, Before, Behind, Empty };
  enum class Change { None, Add, Edit };

  /// Puts off nothing any longer: finds the first row where that was not yet needed.
  virtual void Find_First() {}
  void Require_Row();
  void Begin_Change(Change change);
  static std::size_t Position(int ordinal) { return static_cast<std::size_t>(ordinal); }

  const Field_Layout* layout_ = nullptr;
  Place place_ = Place::First;
  bool no_match_ = false;

  // The current row: under a statement that stands on it, or kept, here or elsewhere.
  sqlite3_stmt* live_ = nullptr;
  Row_Block row_;
  const Row_Block* kept_ = &row_;
  std::size_t at_ = 0;

  Change change_ = Change::None;
  Row_Block new_row_;
  std::vector<bool> assigned_;
};

}  // namespace Record_Store
