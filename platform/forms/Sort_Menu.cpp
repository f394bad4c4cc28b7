#include "platform/forms/Sort_Menu.h"

#include <QActionGroup>
#include <QMenu>
#include <QTreeView>

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

void Connect(QAction& entry, QActionGroup& one_of_them, List_View& list, int column) {
  one_of_them.addAction(&entry);
  entry.setCheckable(list.Sorted());
  entry.setChecked(list.Sorted() && list.SortKey() == column - 1);
  QObject::connect(&entry, &QAction::triggered, [&list, column] { list.Header_Clicked(column); });
}

}  // namespace

void Open_Sort_Menu(QTreeView& view, List_View& list, QPoint place) {
  const std::vector<int> columns = Columns_To_Choose(view, list);
  if (columns.empty()) return;
  auto* menu = new QMenu(&view);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setObjectName(view.objectName() + "_Columns");
  menu->setAccessibleName(view.accessibleName());
  std::vector<std::string> captions;
  for (const int column : columns) captions.push_back(list.Header_Text(column));
  std::set<QChar> used;
  const std::vector<QString> texts = With_Mnemonics(captions, used);
  auto* one_of_them = new QActionGroup(menu);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    Connect(*menu->addAction(texts[i]), *one_of_them, list, columns[i]);
  }
  menu->popup(place);
  menu->setActiveAction(menu->actions().front());
}

}  // namespace Forms
