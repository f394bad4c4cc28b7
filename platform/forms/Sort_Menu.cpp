#include "platform/forms/Sort_Menu.h"

#include <QActionGroup>
#include <QMenu>
#include <QTreeView>
#include <algorithm>

#include "platform/forms/List_View.h"
#include "platform/forms/Mnemonics.h"

namespace Forms {

namespace {

std::vector<int> Columns_To_Choose(const QTreeView& view, const List_View& list) {
  std::vector<int> columns;
  for (int column = 1; column <= list.Column_Count(); ++column) {
    const bool named = !list.Header_Text(column).empty();
    if (named && !view.isColumnHidden(column - 1)) columns.push_back(column);
  }
  return columns;
}

void Fill(QMenu& menu, List_View& list, const std::vector<int>& columns) {
  Letters letters;
  auto* one_of_them = new QActionGroup(&menu);
  QObject::connect(one_of_them, &QActionGroup::triggered,
                   [&list](const QAction* entry) { list.Header_Clicked(entry->data().toInt()); });
  for (const int column : columns) {
    QAction* entry = one_of_them->addAction(menu.addAction(letters.Give(list.Header_Text(column))));
    entry->setData(column);
    entry->setCheckable(list.Sorted());
    entry->setChecked(list.Sorted() && list.SortKey() == column - 1);
  }
}

}  // namespace

void Open_Sort_Menu(QTreeView& view, List_View& list, QPoint place) {
  const std::vector<int> columns = Columns_To_Choose(view, list);
  if (columns.empty()) return;
  auto* menu = new QMenu(&view);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setObjectName(view.objectName() + "_Columns");
  menu->setAccessibleName(view.accessibleName());
  Fill(*menu, list, columns);
  menu->popup(place);
  menu->setActiveAction(menu->actions().front());
}

}  // namespace Forms
