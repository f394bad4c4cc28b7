#include "screens/Pager.h"

#include "platform/run_time/Conversions.h"

Pager::Pager(Forms::Command_Button& previous, Forms::Command_Button& next)
    : previous_(previous), next_(next) {
  previous_.Click = [this] { Step(-1); };
  next_.Click = [this] { Step(1); };
  previous_.Set_Enabled(false);
  next_.Set_Enabled(false);
}

void Pager::Go_Through(Row_List& list, Integer& index) {
  list_ = &list;
  index_ = &index;
}

void Pager::Set_Previous_and_Next(const Text& key) {
  const std::optional<Forms::List_Item> row = list_->Row_of(key);
  *index_ = row ? To_Integer(static_cast<double>(row->Index())) : Integer{0};
  previous_.Set_Enabled(*index_ > 1);
  next_.Set_Enabled(row && *index_ < list_->Count());
}

// The list may have been sorted since: the place is that of the selected row now.
void Pager::Step(int by) {
  if (Before_Step) Before_Step();
  if (!list_->Has_Selection()) return;
  const int place = list_->SelectedItem().Index() + by;
  if (place < 1 || place > list_->Count()) return;
  const Text key = list_->Key_of(list_->ListItems(place));
  if (!Show_Row(key)) return;
  list_->Deselect_All();
  list_->Select(key);
  Set_Previous_and_Next(key);
}
