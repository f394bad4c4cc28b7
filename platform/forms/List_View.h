// A table of texts in rows and columns: the list screens, the cellar, the glossary.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/Control.h"

class QItemSelection;

namespace Forms {

class List_Rows;
class List_View;

/// A row, as a cheap value: it stays the same row however the list is sorted, until it is removed
/// or the list is cleared.
class List_Item {
 public:
  List_Item(List_View& view, int row) : view_(&view), row_(row) {}
  bool operator==(const List_Item&) const = default;

  std::string Text() const;
  void Set_Text(std::string_view text);

  /// The text of sub-item `column`, counted from 1 (0 is the item's text); "" where it was never
  /// set. 380 outside the list's columns.
  std::string SubItems(int column) const;
  void Set_SubItems(int column, std::string_view text);
  /// The same, but 35600 where it was never set.
  std::string ListSubItems(int column) const;

  bool Bold() const;
  void Set_Bold(bool bold);
  Color ForeColor() const;
  void Set_ForeColor(Color color);

  /// What assistive programs tell of the row beside its texts, in words: what its look says.
  void Set_Note(std::string_view note);

  bool Selected() const;
  /// From code: raises nothing. In a list of single selection any other row is deselected.
  void Set_Selected(bool selected);
  /// Scrolls the list so that the row is seen.
  void EnsureVisible();
  /// The row's place, counted from 1 in the order shown.
  int Index() const;

 private:
  friend class List_View;
  List_View* view_;
  int row_;
};

/// A column of the design. Its width counts characters, and is never less than its header needs;
/// the column of the key is hidden; one of numbers stands at the right, with its header. It sorts
/// as text like every other. The width that the list has to spare, or lacks, goes to the columns
/// with a share, in these parts; where there are none, the last one takes what is spare.
struct List_Column {
  std::string text;
  int characters = 12;
  bool hidden = false;
  bool number = false;
  int share = 0;
};

/// What ColumnClick tells: the header's place, counted from 1, and its text.
struct Column_Header {
  int Index = 0;
  std::string Text;
};

class List_View : public Placed_Control {
 public:
  enum class Where { Text, Sub_Items };
  enum class Match { Whole, Beginning };

  List_View(Form& form, std::string_view name, std::vector<List_Column> columns);
  ~List_View() override;

  // ---- the rows; nothing is selected after a fill, and nothing here raises an event ----

  List_Item Add(std::string_view text);
  void Clear();
  /// 35600 outside 1 .. Count.
  void Remove(int index);
  using Placed_Control::Set_Empty_Text;
  int Count() const;
  /// By place, counted from 1 in the order shown. 35600 outside 1 .. Count.
  List_Item ListItems(int index);

  /// The row picked last if it is selected, or the first selected one. 91 where none is.
  List_Item SelectedItem();
  void Set_SelectedItem(List_Item item);
  bool Has_Selection() const;
  /// In the order shown, as they are at the call.
  std::vector<List_Item> Selected_Items();
  void Deselect_All();

  /// The first row, in the order shown, whose text (or one of whose sub-items, these only as a
  /// whole) is `text`, without regard to case.
  std::optional<List_Item> FindItem(std::string_view text, Where where = Where::Text,
                                    Match match = Match::Whole);

  // ---- the order: by the texts of one column, without regard to case ----

  bool Sorted() const { return sorted_; }
  void Set_Sorted(bool sorted);
  /// 0 for the item's text, 1 and above for a sub-item. 380 outside the list's columns.
  int SortKey() const { return sort_key_; }
  void Set_SortKey(int column);
  /// 0 ascending, 1 descending. 380 for another number.
  int SortOrder() const { return sort_order_; }
  void Set_SortOrder(int order);

  // ---- the columns, counted from 1 ----

  int Column_Count() const;
  const std::string& Header_Text(int column) const;
  void Set_Header_Text(int column, std::string_view text);

  // ---- the user ----

  /// Several rows can be selected: a click with Ctrl, or Ctrl+Space, takes a row in and out again.
  /// Typing, and the arrow keys with Ctrl, only move the focus then: the selection stays.
  void Set_MultiSelect(bool several);
  /// False where a pick asks a question, leaves the screen or throws entries away: the arrow keys
  /// and typing only move then, the selection too, and Enter or Space picks.
  void Set_Arrow_Keys_Pick(bool pick) { arrow_keys_pick_ = pick; }

  /// Where typing looks for the word while the list is not sorted: 0 for the item's text, which it
  /// is at first, 1 and above for a sub-item. In a sorted list it looks where that is sorted by.
  /// 380 outside the list's columns.
  void Set_Search_Column(int column);
  int Search_Column() const { return sorted_ ? sort_key_ : search_column_; }

  /// The user picked a row: by mouse (the selected one too), Enter, Space, the arrow keys, or
  /// typing, which goes to the next row whose text begins so or, where none does, has a word that
  /// begins so; F3 goes on to the next one. Comes too where Ctrl takes the row out of several
  /// selected ones. Enter or Space held down picks once.
  std::function<void(List_Item item)> ItemClick;
  /// The user wants what the row is for: a double click on it, or Enter. Comes after the ItemClick
  /// of the same click or key, and only if that left the row in the list and the form in use. Space
  /// only picks.
  std::function<void(List_Item item)> DblClick;
  /// The user clicked a header, or chose it in the menu of the columns, which opens by the right
  /// button, the menu key and Shift+F10 where this is set.
  std::function<void(const Column_Header& header)> ColumnClick;

  // ---- for this room and the tests ----

  /// Brings what is shown up to date, which otherwise happens at the end of the handler.
  void Refresh();
  void Picked(int place, bool by_arrow);
  /// The focus stands on this row now, and nothing is picked.
  void Moved_To(int place);
  /// ItemClick, then DblClick.
  void Picked_Twice(int place);
  /// Tells a row from all others of this list, past ones too; outside the list it is nobody's.
  struct Identity {
    int fill = -1;
    int row = -1;
    bool operator==(const Identity&) const = default;
  };
  Identity Identity_At(int place) const;
  /// Whether a row was picked or selected since the list was filled, and is still there.
  bool Was_Picked_From() const;
  void Header_Clicked(int column);

 private:
  friend class List_Item;
  void Changed(bool order_too);
  void Set_Cell(int row, int column, std::string_view text);
  void Select(int row, bool selected);
  void Take_Over(const QItemSelection& places, bool selected);
  std::vector<int> Selected_Places() const;
  void Sort_If_Needed() const;
  void Check_Column(int column) const;
  bool Is_Found(int row, std::string_view text, Where where, Match match) const;

  struct Show;
  std::unique_ptr<List_Rows> rows_;
  std::unique_ptr<Show> show_;
  std::vector<List_Column> columns_;
  bool sorted_ = false;
  mutable bool order_is_old_ = false;
  int sort_key_ = 0;
  int sort_order_ = 0;
  int search_column_ = 0;
  bool arrow_keys_pick_ = true;
};

}  // namespace Forms
