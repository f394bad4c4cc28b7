#include "platform/record_store/Table_Cursor.h"

#include <sqlite3.h>

#include <limits>

#include "platform/record_store/Database_Core.h"
#include "platform/record_store/Plain_Values.h"

namespace Record_Store {

void Table_Cursor::Open(Database_Core& database, Stored_Table& table) {
  core = &database;
  table_ = &table;
  layout_ = &table.Layout();
  order_ = &table.Storage_Order();
  place_ = Place::First;
  no_match_ = false;
  change_ = Change::None;
}

void Table_Cursor::Put_Away() { core->Take_Back(*this); }

void Table_Cursor::Close() {
  Release();
  table_ = nullptr;
}

// ---- the statement under the row ----

void Table_Cursor::Release() {
  live_ = nullptr;
  Keep_Own();
  if (!statement_) return;
  sqlite3_reset(statement_.get());
  pool_->Give_Back(std::move(statement_));
}

// A statement that stands on a row keeps the burst from ending, and would step over rows that are
// being changed: what is needed of it is copied, and the next move asks anew from there.
void Table_Cursor::Detach() {
  if (live_ != nullptr) {
    Take_Row(live_);
  } else if (kept_ != &row_) {
    row_.Make_Row(table_->Width());
    for (int i = 0; i < table_->Width(); ++i) row_.Set(i, kept_->At(at_, i));
  }
  Release();
}

void Table_Cursor::Take_Row(sqlite3_stmt* statement) {
  row_.Clear(table_->Width());
  row_.Append(statement);
  Keep_Own();
}

void Table_Cursor::Keep_Own() {
  kept_ = &row_;
  at_ = 0;
}

// The first row is looked for as late as possible, because most recordsets are opened for a Seek or
// an AddNew. A write is the last moment: behind it another row could be the first.
void Table_Cursor::Settle() {
  if (place_ == Place::First) Find_First();
  Detach();
}

bool Table_Cursor::Ask(const Question& question) {
  Release();
  core->Begin_Read();
  question_ = question;
  pool_ = &table_->Pool_Of(*order_, question);
  statement_ = pool_->Borrow();
  Bind();
  return Step();
}

bool Table_Cursor::Step() {
  live_ = nullptr;
  if (!core->Store().Step(statement_.get())) {
    Release();
    return false;
  }
  live_ = statement_.get();
  place_ = Place::Row;
  return true;
}

void Table_Cursor::Bind() {
  int parameter = 0;
  // An index on the counter has no sort columns, as it is the storage order: its key is sought all
  // the same.
  const int equal =
      order_->sort.empty() && question_.range == Question::Sought ? 1 : question_.prefix;
  for (int i = 0; i < equal; ++i) Bind_Value(statement_.get(), ++parameter, anchor_.At(0, i));
  if (question_.range == Question::Beyond) {
    Bind_Value(statement_.get(), ++parameter, anchor_.At(0, question_.prefix));
  }
  // Behind the nulls: nothing that is a value stands below these two.
  if (question_.range == Question::From) {
    const int ordinal = order_->sort[Position(question_.prefix)].ordinal;
    const bool text = layout_->At(ordinal).type == Field_Type::Text;
    Bind_Value(
        statement_.get(), ++parameter,
        text ? Value::Of(std::string_view()) : Value::Of(-std::numeric_limits<double>::infinity()));
  }
}

// ---- moves ----

void Table_Cursor::Find_First() {
  if (!Ask({})) place_ = Place::Empty;
}

void Table_Cursor::Move_First() {
  change_ = Change::None;
  Release();
  place_ = Place::First;
}

void Table_Cursor::Move_Last() {
  change_ = Change::None;
  if (Ask({0, Question::All, true})) return;
  place_ = Place::Empty;
  Fail(Failure::No_Current_Record);
}

void Table_Cursor::Move(bool backwards) {
  change_ = Change::None;
  if (place_ == Place::First) Find_First();
  const Place entrance = backwards ? Place::Behind : Place::Before;
  bool found = false;
  if (place_ == entrance) {
    found = Ask({0, Question::All, backwards});
  } else if (place_ == Place::Row || place_ == Place::Deleted) {
    found = Advance(backwards);
  } else {
    Fail(Failure::No_Current_Record);
  }
  if (found) return;
  // Behind the last row, or no row left at all: Bof tells the two apart, and rows may have gone
  // since the last move.
  const bool rows = Ask({});
  Release();
  place_ = !rows ? Place::Empty : backwards ? Place::Before : Place::Behind;
}

bool Table_Cursor::Advance(bool backwards) {
  // The statement of one counter gives no second row.
  const bool lone = order_->sort.empty() && question_.range == Question::Sought;
  // The row of a look-up that was answered without asking: ask now.
  if (kept_ != &row_ && !backwards && !lone) Ask(question_);
  if (live_ != nullptr && question_.backwards == backwards && !lone) {
    if (Step()) return true;
  } else {
    Take_Anchor();
    if (Ask({static_cast<int>(order_->sort.size()), Question::Beyond, backwards})) return true;
  }
  while (To_Wider_Form()) {
    if (Ask(question_)) return true;
  }
  return false;
}

// The part of the order that lies next behind the one that is used up: one sort column fewer is
// equal. Nulls stand before all values.
bool Table_Cursor::To_Wider_Form() {
  const bool bounded = question_.prefix < static_cast<int>(order_->sort.size());
  if (question_.backwards && question_.range == Question::Beyond && bounded &&
      !order_->sort[Position(question_.prefix)].by_case) {
    question_.range = Question::Nulls;
    return true;
  }
  while (question_.prefix > 0) {
    --question_.prefix;
    const bool null = anchor_.At(0, question_.prefix).kind == Cell_Kind::Null;
    if (null && question_.backwards) continue;
    question_.range = null ? Question::From : Question::Beyond;
    return true;
  }
  return false;
}

Value Table_Cursor::Raw(int column) const {
  return live_ != nullptr ? Column_Value(live_, column) : kept_->At(at_, column);
}

std::int64_t Table_Cursor::Row_Number() const { return Raw(table_->Number_Column()).number; }

void Table_Cursor::Take_Anchor() {
  const int columns = static_cast<int>(order_->sort.size());
  anchor_.Make_Row(columns + 1);
  for (int i = 0; i < columns; ++i) anchor_.Set(i, Raw(order_->sort[Position(i)].ordinal));
  anchor_.Set(columns, Value::Of(Row_Number()));
}

// ---- order and search ----

void Table_Cursor::Index(std::string_view name) {
  const Order* order = table_->Find_Order(name);
  if (order == nullptr) Fail(Failure::Not_An_Index, name);
  Move_First();
  order_ = order;
}

void Table_Cursor::Seek(std::string_view comparison, std::span<const Key> keys) {
  if (order_->name.empty()) Fail(Failure::No_Current_Index);
  if (comparison != "=" || keys.empty() || keys.size() > order_->keys.size()) {
    Fail(Failure::Invalid_Procedure_Call);
  }
  change_ = Change::None;
  Release();
  const int prefix = order_->sort.empty() ? 0 : static_cast<int>(keys.size());
  const Question question{prefix, Question::Sought, false};
  no_match_ = !Take_Keys(keys) || !(keys.size() == 1 ? Look_Up(question) : Ask(question));
  if (no_match_) place_ = Place::Missed;
}

// Screens look up the same few rows (a country, a language) again for each row of a list: such an
// answer is remembered until the file changes, and costs no question then.
bool Table_Cursor::Look_Up(const Question& question) {
  core->Begin_Read();
  const Value key = anchor_.At(0, 0);
  Look_Ups& found = table_->Found();
  if (const auto row = found.Find(*order_, key, core->File_State())) {
    question_ = question;
    kept_ = &found.Rows();
    at_ = *row;
    place_ = Place::Row;
    return true;
  }
  if (!Ask(question)) return false;
  found.Keep_Missed(*order_, key, live_, table_->Width());
  return true;
}

// False where a key is one that no row can have.
bool Table_Cursor::Take_Keys(std::span<const Key> keys) {
  anchor_.Make_Row(static_cast<int>(std::max(order_->sort.size(), order_->keys.size())) + 1);
  std::string room;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const Field_Type type = layout_->At(order_->keys[i]).type.value();
    const std::optional<Value> value = To_Key(keys[i].Get(), type, room);
    if (!value) return false;
    anchor_.Set(static_cast<int>(i), *value);
  }
  return true;
}

Long Table_Cursor::Count() {
  core->Begin_Read();
  return static_cast<Long>(table_->Count(core->File_State()));
}

Long Table_Cursor::Numbers_Left() {
  core->Begin_Read();
  return static_cast<Long>(table_->Numbers_Left(core->File_State()));
}

// ---- changes ----

// The file is taken for writing before the counter is read: another process could give the same
// number otherwise.
void Table_Cursor::Add_New() {
  change_ = Change::None;
  core->Begin_Write(*table_);
  Begin_Change(Change::Add);
  if (layout_->Counter() < 0) return;
  const Value number = Value::Of(table_->Next_Number(core->File_State()));
  for (int ordinal = 0; ordinal < layout_->Count(); ++ordinal) {
    const Column& column = layout_->At(ordinal);
    if (column.counter || column.copy_of_counter) new_row_.Set(ordinal, number);
  }
}

// A row that was copied may be an old one: another recordset can have changed it since, and what is
// computed from it is going to be written.
void Table_Cursor::Edit() {
  change_ = Change::None;
  Require_Row();
  if (live_ == nullptr) {
    core->Begin_Read();
    const std::int64_t number = Row_Number();
    sqlite3_stmt* again = table_->Row_Statement();
    sqlite3_bind_int64(again, 1, number);
    if (!core->Store().Step(again)) {
      sqlite3_reset(again);
      Fail(Failure::Record_Is_Deleted);
    }
    Take_Row(again);
    sqlite3_reset(again);
  }
  Begin_Change(Change::Edit);
}

void Table_Cursor::Update() {
  if (change_ == Change::None) Fail(Failure::No_Add_New_Or_Edit);
  core->Begin_Write(*table_);
  if (change_ == Change::Add) {
    Insert_New_Row();
  } else {
    Store_Changes();
  }
  change_ = Change::None;
  table_->Has_Changed();
}

void Table_Cursor::Insert_New_Row() {
  const int counter = layout_->Counter();
  const std::int64_t number =
      counter >= 0 ? new_row_.At(0, counter).number : table_->Next_Number(core->File_State());
  sqlite3_stmt* insert = table_->Insert_Statement();
  sqlite3_bind_int64(insert, 1, number);
  for (int ordinal = 0; ordinal < layout_->Count(); ++ordinal) {
    if (ordinal != counter) Bind_Value(insert, ordinal + 2, new_row_.At(0, ordinal));
  }
  core->Store().Run(insert);
  table_->Has_Seen(number);
}

// Fields that were not assigned keep what another recordset stored in them meanwhile. The values
// written become the current row here, as it will not be read again before the next move.
void Table_Cursor::Store_Changes() {
  const std::int64_t number = Row_Number();
  sqlite3_stmt* update = nullptr;
  int parameter = 0;
  for (int ordinal = 0; ordinal < layout_->Count(); ++ordinal) {
    if (!assigned_[Position(ordinal)]) continue;
    if (update == nullptr) update = table_->Update_Statement(assigned_);
    Bind_Value(update, ++parameter, new_row_.At(0, ordinal));
  }
  if (update == nullptr) return;
  sqlite3_bind_int64(update, ++parameter, number);
  if (core->Store().Run(update) == 0) Fail(Failure::Record_Is_Deleted);
  for (int ordinal = 0; ordinal < layout_->Count(); ++ordinal) {
    if (assigned_[Position(ordinal)]) row_.Set(ordinal, new_row_.At(0, ordinal));
  }
}

void Table_Cursor::Delete() {
  change_ = Change::None;
  Require_Row();
  core->Begin_Write(*table_);
  sqlite3_stmt* remove = table_->Delete_Statement();
  sqlite3_bind_int64(remove, 1, Row_Number());
  if (core->Store().Run(remove) == 0) Fail(Failure::Record_Is_Deleted);
  place_ = Place::Deleted;
  table_->Has_Changed();
}

}  // namespace Record_Store
