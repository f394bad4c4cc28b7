#include "platform/forms/Item_List.h"

#include <QSignalBlocker>
#include <QWidget>

#include "platform/forms/Focus.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Plain_List.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

Item_List::Item_List(Form& form, std::string_view name)
    : Lockable_Control(form, name, {}), entries_(std::make_unique<Plain_List>()) {}

// The widget goes before the entries that it shows.
Item_List::~Item_List() { Destroy_Widget(); }

void Item_List::AddItem(std::string_view text) { AddItem(text, ListCount()); }

void Item_List::AddItem(std::string_view text, int index) {
  if (index < 0 || index > ListCount()) Fail(Failure::Invalid_Procedure_Call);
  const QSignalBlocker no_signals(Widget());
  entries_->Insert(index, text);
  if (index <= list_index_) ++list_index_;
  Show_List_Index();
}

void Item_List::RemoveItem(int index) {
  if (index < 0 || index >= ListCount()) Fail(Failure::Invalid_Procedure_Call);
  const QSignalBlocker no_signals(Widget());
  entries_->Remove(index);
  list_index_ = -1;
  Show_List_Index();
}

void Item_List::Clear() {
  const QSignalBlocker no_signals(Widget());
  entries_->Clear();
  list_index_ = -1;
  Show_List_Index();
}

int Item_List::ListCount() const { return entries_->Count(); }

const std::string& Item_List::List(int index) const {
  static const std::string nothing;
  if (index == -1) return nothing;
  if (index < 0 || index >= ListCount()) Fail(Failure::Invalid_Property_Array_Index);
  return entries_->Text(index);
}

void Item_List::Set_List(int index, std::string_view text) {
  if (index < 0 || index >= ListCount()) Fail(Failure::Invalid_Property_Array_Index);
  entries_->Set_Text(index, text);
}

void Item_List::Set_ListIndex(int index) {
  if (index < -1 || index >= ListCount()) Fail(Failure::Invalid_Property_Value);
  Take_Index(index);
  if (index >= 0 && Click) Click();
}

void Item_List::Take_Index(int index) {
  list_index_ = index;
  const QSignalBlocker no_signals(Widget());
  Show_List_Index();
}

void Item_List::Chosen_By_User(int index) {
  if (!Focus_Watch::The().Go_To(*this)) return Take_Index(list_index_);
  list_index_ = index;
  Raise(*this, Click);
}

}  // namespace Forms
