#include "platform/record_store/Cursor.h"

#include "platform/record_store/Database_Core.h"
#include "platform/record_store/Plain_Values.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Record_Store {

void Cursor::Require_Row() {
  if (place_ == Place::First) Find_First();
  if (place_ == Place::Deleted) Fail(Failure::Record_Is_Deleted);
  if (place_ != Place::Row) Fail(Failure::No_Current_Record);
}

bool Cursor::Eof() {
  if (place_ == Place::First) Find_First();
  return place_ == Place::Behind || place_ == Place::Empty;
}

bool Cursor::Bof() {
  if (place_ == Place::First) Find_First();
  return place_ == Place::Before || place_ == Place::Empty;
}

void Cursor::Begin_Change(Change change) {
  change_ = change;
  new_row_.Make_Row(layout_->Count());
  assigned_.assign(Position(layout_->Count()), false);
}

void Cursor::Put(int ordinal, const Plain& plain) {
  if (change_ == Change::None) Fail(Failure::No_Add_New_Or_Edit);
  const bool counter = ordinal == layout_->Counter();
  if (counter && !(change_ == Change::Add && core->Building())) Fail(Failure::Invalid_Operation);
  std::string room;
  const Value value = To_Stored(plain, layout_->At(ordinal).type.value(), room);
  new_row_.Set(ordinal, value);
  assigned_[Position(ordinal)] = true;
  if (!counter) return;
  for (int copy = 0; copy < layout_->Count(); ++copy) {
    if (layout_->At(copy).copy_of_counter) new_row_.Set(copy, value);
  }
}

void Cursor::Put_Null(int ordinal) {
  if (change_ == Change::None) Fail(Failure::No_Add_New_Or_Edit);
  if (ordinal == layout_->Counter()) Fail(Failure::Invalid_Operation);
  new_row_.Set(ordinal, {});
  assigned_[Position(ordinal)] = true;
}

void Cursor::Index(std::string_view) { Fail(Failure::Invalid_Operation); }
void Cursor::Seek(std::string_view, std::span<const Key>) { Fail(Failure::Invalid_Operation); }
Long Cursor::Numbers_Left() { Fail(Failure::Invalid_Operation); }
void Cursor::Add_New() { Fail(Failure::Invalid_Operation); }
void Cursor::Edit() { Fail(Failure::Invalid_Operation); }
void Cursor::Update() { Fail(Failure::Invalid_Operation); }
void Cursor::Delete() { Fail(Failure::Invalid_Operation); }

}  // namespace Record_Store
