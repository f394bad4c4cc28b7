// The menu of a list's columns: what a click on a header does, for those who use the keyboard. For
// the sources of this room only.
#pragma once

#include <QPoint>

class QTreeView;

namespace Forms {

class List_View;

/// Opens it at `place` of the desktop, with the headers that can be seen; the one that the list is
/// sorted by is checked. Choosing one is a click on it.
void Open_Sort_Menu(QTreeView& view, List_View& list, QPoint place);

}  // namespace Forms
