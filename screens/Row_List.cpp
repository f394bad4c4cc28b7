#include "screens/Row_List.h"

#include <algorithm>

namespace {

std::vector<std::string> Texts_of(const std::vector<Forms::List_Column>& columns) {
  std::vector<std::string> texts;
  texts.reserve(columns.size());
  for (const Forms::List_Column& column : columns) texts.push_back(column.text);
  return texts;
}

}  // namespace

Row_List::Row_List(Forms::Form& form, std::string_view name,
                   const std::vector<Forms::List_Column>& columns, std::vector<std::string> words)
    : List_View(form, name, columns),
      key_column_(static_cast<int>(columns.size()) - 1),
      words_(words.empty() ? Texts_of(columns) : std::move(words)) {
  ColumnClick = [this](const Forms::Column_Header& header) { Sort_by(header); };
}

Forms::List_Item Row_List::Add_Row(std::string_view key,
                                   std::initializer_list<std::string_view> texts) {
  Forms::List_Item row = Add(*texts.begin());
  int column = 0;
  for (const std::string_view text : texts) {
    if (column > 0 && !text.empty()) row.Set_SubItems(column, text);
    ++column;
  }
  row.Set_SubItems(key_column_, key);
  return row;
}

void Row_List::Begin_Anew() {
  Clear();
  Set_Sorted(false);
  Set_SortKey(0);
  Set_SortOrder(0);
}

std::optional<Forms::List_Item> Row_List::Row_of(std::string_view key) {
  for (int place = 1; place <= Count(); ++place) {
    const Forms::List_Item row = ListItems(place);
    if (Key_of(row) == key) return row;
  }
  return std::nullopt;
}

void Row_List::Scroll_to(std::string_view key) {
  if (std::optional<Forms::List_Item> row = Row_of(key)) row->EnsureVisible();
}

void Row_List::Select(std::string_view key) {
  std::optional<Forms::List_Item> row = Row_of(key);
  if (!row) return;
  row->Set_Selected(true);
  row->EnsureVisible();
}

void Row_List::Sort_by(const Forms::Column_Header& header) {
  Set_SortOrder(SortOrder() == 0 ? 1 : 0);
  Set_Sorted(true);
  const auto found = std::ranges::find(words_, header.Text);
  if (found != words_.end()) Set_SortKey(static_cast<int>(found - words_.begin()));
}
