// A list view whose rows have keys.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/List_View.h"
#include "platform/run_time/Values.h"

/// The key of each row stands in the last column, or in the one that is named. A click on a header
/// turns the order of the list and sorts it by that column.
class Row_List : public Forms::List_View {
 public:
  /// Each column answers to a header that reads as in the design; `words` tells what they answer to
  /// where that is something else, column by column. A header that no column answers to turns the
  /// order and leaves the column as it is.
  Row_List(Forms::Form& form, std::string_view name, const std::vector<Forms::List_Column>& columns,
           std::vector<std::string> words = {});
  void Set_Key_Column(int column) { key_column_ = column; }

  /// A row with the texts of its first columns. What is "" stays unset.
  Forms::List_Item Add_Row(std::string_view key, std::initializer_list<std::string_view> texts);
  /// No rows, in the order in which they will come.
  void Begin_Anew();

  Text Key_of(const Forms::List_Item& row) const { return row.SubItems(key_column_); }
  std::optional<Forms::List_Item> Row_of(std::string_view key);
  /// Scrolls to the row, or selects it as well; raises nothing, and does nothing where there is
  /// none.
  void Scroll_to(std::string_view key);
  void Select(std::string_view key);

 private:
  void Sort_by(const Forms::Column_Header& header);

  int key_column_;
  std::vector<std::string> words_;
};
