#include "platform/forms/List_View.h"

#include <QHeaderView>
#include <algorithm>

#include "platform/forms/Focus.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Later.h"
#include "platform/forms/List_Rows.h"
#include "platform/forms/List_View_Show.h"
#include "platform/record_store/Text_Order.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

namespace {

bool Begins_A_Character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

// As many characters from the beginning of `text` as `pattern` has.
std::string_view Beginning(std::string_view text, std::string_view pattern) {
  auto left = std::ranges::count_if(pattern, Begins_A_Character);
  std::size_t end = 0;
  while (end < text.size() && (left > 0 || !Begins_A_Character(text[end]))) {
    if (Begins_A_Character(text[end])) --left;
    ++end;
  }
  return text.substr(0, end);
}

}  // namespace

List_View::List_View(Form& form, std::string_view name, std::vector<List_Column> columns)
    : Placed_Control(form, name, {}),
      rows_(std::make_unique<List_Rows>(static_cast<int>(columns.size()))),
      columns_(std::move(columns)) {
  show_ = std::make_unique<Show>(Widget_Parent(), *this, *rows_, columns_);
  Row_View* view = show_->view;
  view->Show_Columns(columns_);
  QObject::connect(view->selectionModel(), &QItemSelectionModel::selectionChanged,
                   [this, view](const QItemSelection& more, const QItemSelection& less) {
                     if (view->Is_Selecting()) return;
                     Take_Over(less, false);
                     Take_Over(more, true);
                   });
  Set_Widget(view);
}

// The view goes before the model that it shows.
List_View::~List_View() {
  Forget_Later(rows_.get());
  Destroy_Widget();
}

// What the user selected, or gave up.
void List_View::Take_Over(const QItemSelection& places, bool selected) {
  for (const QItemSelectionRange& range : places) {
    for (int place = range.top(); place <= std::min(range.bottom(), Count() - 1); ++place) {
      const int row = rows_->Row_At(place);
      selected ? void(show_->selected.insert(row)) : void(show_->selected.erase(row));
    }
  }
}

void List_View::Select(int row, bool selected) {
  const bool several = show_->view->selectionMode() == QAbstractItemView::ExtendedSelection;
  if (!selected) {
    show_->selected.erase(row);
  } else {
    if (!several) show_->selected.clear();
    show_->selected.insert(row);
    show_->current = show_->focus = row;
  }
  Changed(false);
}

void List_View::Set_Cell(int row, int column, std::string_view text) {
  rows_->Set_Cell(row, column, text);
  Changed(column == sort_key_);
}

void List_View::Changed(bool order_too) {
  order_is_old_ = order_is_old_ || (order_too && sorted_);
  if (std::exchange(show_->is_old, true)) return;
  Show_Later(rows_.get(), [this] { Refresh(); });
}

void List_View::Refresh() {
  Sort_If_Needed();
  Forget_Later(rows_.get());
  show_->is_old = false;
  show_->model.Show_Rows(std::exchange(show_->was_cleared, false));
  show_->view->Select(Selected_Places(), show_->focus < 0 ? -1 : rows_->Place_Of(show_->focus));
  QHeaderView& header = *show_->view->header();
  header.setSortIndicatorShown(sorted_);
  header.setSortIndicator(sorted_ ? sort_key_ : -1,
                          sort_order_ == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void List_View::Sort_If_Needed() const {
  if (!std::exchange(order_is_old_, false)) return;
  rows_->Sort(sort_key_, sort_order_ == 1);
}

List_Item List_View::Add(std::string_view text) {
  const int row = rows_->Add(text);
  Changed(true);
  return {*this, row};
}

void List_View::Clear() {
  rows_->Clear();
  show_->selected.clear();
  show_->current = show_->focus = -1;
  show_->was_cleared = true;
  ++show_->fill;
  order_is_old_ = false;
  Changed(false);
}

void List_View::Remove(int index) {
  const int row = ListItems(index).row_;
  rows_->Remove(row);
  show_->selected.erase(row);
  if (show_->current == row) show_->current = -1;
  if (show_->focus == row)
    show_->focus = Count() == 0 ? -1 : rows_->Row_At(std::min(index, Count()) - 1);
  Changed(false);
}

int List_View::Count() const { return rows_->Shown(); }

List_Item List_View::ListItems(int index) {
  Sort_If_Needed();
  if (index < 1 || index > Count()) Fail(Failure::Index_Out_Of_Bounds);
  return {*this, rows_->Row_At(index - 1)};
}

bool List_View::Has_Selection() const { return !show_->selected.empty(); }

List_Item List_View::SelectedItem() {
  if (!Has_Selection()) Fail(Failure::Object_Variable_Not_Set);
  if (show_->selected.contains(show_->current)) return {*this, show_->current};
  return Selected_Items().front();
}

std::vector<List_Item> List_View::Selected_Items() {
  std::vector<List_Item> items;
  for (const int place : Selected_Places()) items.push_back({*this, rows_->Row_At(place)});
  return items;
}

std::vector<int> List_View::Selected_Places() const {
  Sort_If_Needed();
  std::vector<int> places;
  for (const int row : show_->selected) places.push_back(rows_->Place_Of(row));
  std::ranges::sort(places);
  return places;
}

void List_View::Deselect_All() {
  show_->selected.clear();
  Changed(false);
}

void List_View::Set_SelectedItem(List_Item item) {
  show_->selected.clear();
  item.Set_Selected(true);
}

std::optional<List_Item> List_View::FindItem(std::string_view text, Where where, Match match) {
  Sort_If_Needed();
  for (int place = 0; place < Count(); ++place) {
    const int row = rows_->Row_At(place);
    if (Is_Found(row, text, where, match)) return List_Item(*this, row);
  }
  return std::nullopt;
}

bool List_View::Is_Found(int row, std::string_view text, Where where, Match match) const {
  if (where == Where::Text) {
    const std::string_view cell = rows_->Cell(row, 0);
    return Same_Text(match == Match::Whole ? cell : Beginning(cell, text), text);
  }
  for (int column = 1; column < rows_->Columns(); ++column) {
    if (rows_->Is_Set(row, column) && Same_Text(rows_->Cell(row, column), text)) return true;
  }
  return false;
}

// Rows that are sorted no more stay in the order that they had.
void List_View::Set_Sorted(bool sorted) {
  if (!sorted) Sort_If_Needed();
  sorted_ = sorted;
  Changed(true);
}

void List_View::Check_Column(int column) const {
  if (column < 0 || column >= Column_Count()) Fail(Failure::Invalid_Property_Value);
}

void List_View::Set_SortKey(int column) {
  Check_Column(column);
  sort_key_ = column;
  Changed(true);
}

void List_View::Set_SortOrder(int order) {
  if (order != 0 && order != 1) Fail(Failure::Invalid_Property_Value);
  sort_order_ = order;
  Changed(true);
}

void List_View::Set_Search_Column(int column) {
  Check_Column(column);
  search_column_ = column;
}

int List_View::Column_Count() const { return rows_->Columns(); }

const std::string& List_View::Header_Text(int column) const {
  Check_Column(column - 1);
  return columns_[static_cast<std::size_t>(column - 1)].text;
}

void List_View::Set_Header_Text(int column, std::string_view text) {
  Check_Column(column - 1);
  columns_[static_cast<std::size_t>(column - 1)].text = text;
  emit show_->model.headerDataChanged(Qt::Horizontal, column - 1, column - 1);
  show_->view->Fill_Width();
}

void List_View::Set_MultiSelect(bool several) {
  show_->view->setSelectionMode(several ? QAbstractItemView::ExtendedSelection
                                        : QAbstractItemView::SingleSelection);
}

void List_View::Moved_To(int place) {
  if (place < Count()) show_->focus = rows_->Row_At(place);
}

void List_View::Picked(int place, bool by_arrow) {
  if (place >= Count()) return;
  show_->current = show_->focus = rows_->Row_At(place);
  if (by_arrow && !arrow_keys_pick_) return;
  Raise(*this, ItemClick, List_Item(*this, show_->current));
  if (by_arrow) Focus_Watch::The().Give_Back(*this);
}

void List_View::Picked_Twice(int place) {
  if (place >= Count()) return;
  const Identity item = Identity_At(place);
  Picked(place, false);
  const bool in_use = Owner().Visible() && Owner().Data().waiting_for == 0;
  const bool is_there = item.fill == show_->fill && rows_->Place_Of(item.row) >= 0;
  if (in_use && is_there) Raise(*this, DblClick, List_Item(*this, item.row));
}

List_View::Identity List_View::Identity_At(int place) const {
  if (place < 0 || place >= Count()) return {};
  return {show_->fill, rows_->Row_At(place)};
}

bool List_View::Was_Picked_From() const { return show_->current >= 0; }

void List_View::Header_Clicked(int column) {
  Raise(*this, ColumnClick, Column_Header{column, Header_Text(column)});
}

}  // namespace Forms
