#include "platform/record_store/Recordset.h"

#include <utility>

#include "platform/record_store/Cursor.h"
#include "platform/record_store/Database_Core.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Record_Store {

Recordset::Recordset(Recordset&& other) noexcept
    : cursor_(std::exchange(other.cursor_, nullptr)),
      closed_(std::exchange(other.closed_, false)) {}

Recordset& Recordset::operator=(Recordset&& other) noexcept {
  if (this == &other) return *this;
  Drop();
  cursor_ = std::exchange(other.cursor_, nullptr);
  closed_ = std::exchange(other.closed_, false);
  return *this;
}

Recordset::~Recordset() { Drop(); }

void Recordset::Drop() noexcept {
  if (cursor_ == nullptr) return;
  if (cursor_->core != nullptr) {
    cursor_->Put_Away();
  } else {
    delete cursor_;
  }
  cursor_ = nullptr;
}

Cursor& Recordset::Open_Cursor() const {
  if (cursor_ != nullptr && cursor_->core != nullptr) return *cursor_;
  Fail(closed_ || cursor_ != nullptr ? Failure::Object_Invalid : Failure::Object_Variable_Not_Set);
}

bool Recordset::Is_Open() const { return cursor_ != nullptr && cursor_->core != nullptr; }

void Recordset::Close() {
  Open_Cursor();
  Drop();
  closed_ = true;
}

void Recordset::Index(std::string_view name) { Open_Cursor().Index(name); }

void Recordset::Seek_Keys(std::string_view comparison, std::span<const Key> keys) {
  Open_Cursor().Seek(comparison, keys);
}

bool Recordset::NoMatch() const { return Open_Cursor().No_Match(); }
bool Recordset::Eof() const { return Open_Cursor().Eof(); }
bool Recordset::Bof() const { return Open_Cursor().Bof(); }
void Recordset::MoveFirst() { Open_Cursor().Move_First(); }
void Recordset::MoveLast() { Open_Cursor().Move_Last(); }
void Recordset::MoveNext() { Open_Cursor().Move_Next(); }
void Recordset::MovePrevious() { Open_Cursor().Move_Previous(); }
Long Recordset::RecordCount() const { return Open_Cursor().Count(); }
Long Recordset::Numbers_Left() const { return Open_Cursor().Numbers_Left(); }

Field Recordset::Fields(std::string_view name) const {
  Cursor& cursor = Open_Cursor();
  const int ordinal = cursor.Layout().Find(name);
  if (ordinal < 0) Fail(Failure::No_Such_Item);
  return {cursor, ordinal};
}

Field Recordset::Fields(int ordinal) const {
  Cursor& cursor = Open_Cursor();
  if (ordinal < 0 || ordinal >= cursor.Layout().Count()) Fail(Failure::No_Such_Item);
  return {cursor, ordinal};
}

int Recordset::Field_Count() const { return Open_Cursor().Layout().Count(); }

int Recordset::Ordinal(std::string_view name) const {
  const int ordinal = Open_Cursor().Layout().Find(name);
  if (ordinal < 0) Fail(Failure::No_Such_Item);
  return ordinal;
}

std::uint64_t Recordset::Layout_Number() const { return Open_Cursor().Layout().Number(); }

void Recordset::AddNew() { Open_Cursor().Add_New(); }
void Recordset::Edit() { Open_Cursor().Edit(); }
void Recordset::Update() { Open_Cursor().Update(); }
void Recordset::Delete() { Open_Cursor().Delete(); }

}  // namespace Record_Store
