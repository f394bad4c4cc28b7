// The toolkit's side of a list view. For the sources of this room only.
#pragma once

#include <set>

#include "platform/forms/List_View.h"
#include "platform/forms/Row_Table.h"

namespace Forms {

struct List_View::Show {
  Show(QWidget* parent, List_View& list, const List_Rows& rows,
       const std::vector<List_Column>& columns)
      : model(rows, columns), view(new Row_View(parent, list, model)) {}

  Row_Model model;
  Row_View* view;
  std::set<int> selected;    ///< rows
  int current = -1;          ///< the row picked or selected last
  int focus = -1;            ///< the row that the focus stands on
  bool was_cleared = false;  ///< since the last Refresh
  int fill = 0;              ///< counts how often the list was cleared: rows are numbered anew
  bool is_old = false;       ///< the view waits for Refresh
};

}  // namespace Forms
