#include "screens/Keyed_List.h"

void Keyed_List::Clear() const {
  shown_->Clear();
  keys_->Clear();
}

void Keyed_List::Add(std::string_view text, std::string_view key) const {
  shown_->AddItem(text);
  keys_->AddItem(key);
}

void Keyed_List::Add_Rows(Record_Store::Recordset& rows, std::string_view text,
                          std::string_view key) const {
  const int text_at = rows.Ordinal(text);
  const int key_at = rows.Ordinal(key);
  for (; !rows.Eof(); rows.MoveNext()) {
    Add(rows.Fields(text_at).As_Text(), rows.Fields(key_at).As_Text());
  }
}

void Keyed_List::Show_Alone(std::string_view text, std::string_view key) const {
  Clear();
  Add(text, key);
  shown_->Set_ListIndex(0);
}

int Keyed_List::Place_Of(std::string_view key, int from) const {
  for (int place = from; place < keys_->ListCount(); ++place) {
    if (keys_->List(place) == key) return place;
  }
  return -1;
}
