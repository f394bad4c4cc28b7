#include <QTreeView>

#include "platform/forms/List_Rows.h"
#include "platform/forms/List_View.h"
#include "platform/forms/List_View_Show.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

std::string List_Item::Text() const { return std::string(view_->rows_->Cell(row_, 0)); }

void List_Item::Set_Text(std::string_view text) { view_->Set_Cell(row_, 0, text); }

std::string List_Item::SubItems(int column) const {
  view_->Check_Column(column);
  return std::string(view_->rows_->Cell(row_, column));
}

void List_Item::Set_SubItems(int column, std::string_view text) {
  view_->Check_Column(column);
  view_->Set_Cell(row_, column, text);
}

std::string List_Item::ListSubItems(int column) const {
  if (column < 1 || column >= view_->Column_Count() || !view_->rows_->Is_Set(row_, column)) {
    Fail(Failure::Index_Out_Of_Bounds);
  }
  return std::string(view_->rows_->Cell(row_, column));
}

bool List_Item::Bold() const { return std::as_const(*view_->rows_).Marks(row_).bold; }

void List_Item::Set_Bold(bool bold) {
  view_->rows_->Marks(row_).bold = bold;
  view_->Changed(false);
}

Color List_Item::ForeColor() const { return std::as_const(*view_->rows_).Marks(row_).fore_color; }

void List_Item::Set_ForeColor(Color color) {
  view_->rows_->Marks(row_).fore_color = color;
  view_->Changed(false);
}

void List_Item::Set_Note(std::string_view note) {
  view_->rows_->Marks(row_).note = note;
  view_->Changed(false);
}

bool List_Item::Selected() const { return view_->show_->selected.contains(row_); }

void List_Item::Set_Selected(bool selected) { view_->Select(row_, selected); }

void List_Item::EnsureVisible() {
  view_->Refresh();
  QTreeView& view = *view_->show_->view;
  view.scrollTo(view.model()->index(Index() - 1, 0));
}

int List_Item::Index() const {
  view_->Sort_If_Needed();
  return view_->rows_->Place_Of(row_) + 1;
}

}  // namespace Forms
