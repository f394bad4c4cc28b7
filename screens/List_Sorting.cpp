#include "screens/List_Sorting.h"

#include <algorithm>

void Sort_by_Header(Forms::List_View& list, const Forms::Column_Header& header,
                    std::initializer_list<std::string_view> words) {
  list.Set_SortOrder(list.SortOrder() == 0 ? 1 : 0);
  list.Set_Sorted(true);
  const auto* found = std::ranges::find(words, header.Text);
  if (found != words.end()) list.Set_SortKey(static_cast<int>(found - words.begin()));
}
