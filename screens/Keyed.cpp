#include "screens/Keyed.h"

#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"

int Place_of_Text(const Forms::Item_List& list, std::string_view text, int from) {
  int place = from;
  while (place < list.ListCount() && list.List(place) != text) ++place;
  return place;
}

void Keyed_List::Add(std::string_view text, std::string_view key) {
  Shown().AddItem(text);
  Keys().AddItem(key);
}

void Keyed_List::Add_Rows(Record_Store::Recordset& rows, std::string_view text,
                          std::string_view key) {
  const int text_at = rows.Ordinal(text);
  const int key_at = rows.Ordinal(key);
  for (; !rows.Eof(); rows.MoveNext()) {
    Add(rows.Fields(text_at).As_Text(), rows.Fields(key_at).As_Text());
  }
}

void Keyed_List::Show_Alone(std::string_view text, std::string_view key) {
  Shown().Clear();
  Add(text, key);
  Shown().Set_ListIndex(0);
}

int Keyed_List::Place_Of(std::string_view key, int from) const {
  for (int place = from; place < Keys().ListCount(); ++place) {
    if (Keys().List(place) == key) return place;
  }
  return -1;
}

bool Keyed_List::Choose(std::string_view key, int from) {
  const int place = Place_Of(key, from);
  if (place >= 0) Shown().Set_ListIndex(place);
  return place >= 0;
}

void Select_All(const Keyed_List& list) {
  Selected_Count = To_Integer(static_cast<double>(list.Shown().ListCount()));
  for (int entry = 1; entry <= Selected_Count; ++entry) {
    Selected_Names[entry] = list.Shown().List(entry - 1);
    Selected_IDs[entry] = list.Key(entry - 1);
  }
}
