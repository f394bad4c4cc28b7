#include "platform/forms/Row_Table.h"

#include <QContextMenuEvent>
#include <QFont>
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>
#include <numeric>

#include "platform/forms/Cut_Text.h"
#include "platform/forms/Empty_Text.h"
#include "platform/forms/Form_Texts.h"
#include "platform/forms/List_Common.h"
#include "platform/forms/List_Rows.h"
#include "platform/forms/Place_Sizes.h"
#include "platform/forms/Qt_Text.h"
#include "platform/forms/Sort_Menu.h"

namespace Forms {

namespace {

constexpr int beside_cell = 2;    ///< characters' width that a cell's margins take
constexpr int least_column = 10;  ///< characters of a column that has to give way

QVariant Alignment(const List_Column& column) {
  if (!column.number) return {};
  return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
}

bool Has_Ctrl(const QKeyEvent& event) { return event.modifiers().testFlag(Qt::ControlModifier); }

}  // namespace

int Row_Model::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : shown_; }

int Row_Model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_.Columns();
}

QVariant Row_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rows_.Shown()) return {};
  if (role == Qt::TextAlignmentRole) return Alignment(Column_Of(index.column()));
  const int row = rows_.Row_At(index.row());
  if (role == Qt::DisplayRole) return To_Qt(rows_.Cell(row, index.column()));
  if (role == Qt::AccessibleDescriptionRole) return To_Qt(rows_.Marks(row).note);
  if (role == Qt::FontRole && rows_.Marks(row).bold) {
    QFont font;
    font.setBold(true);
    return font;
  }
  if (role == Qt::ForegroundRole) {
    const Color color = rows_.Marks(row).fore_color;
    if (!color.of_the_theme) return QColor(color.red, color.green, color.blue);
  }
  return {};
}

QVariant Row_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return Alignment(Column_Of(section));
  if (role == Qt::ToolTipRole) return To_Qt(Word_Of_Caption(Column_Of(section).text));
  return role == Qt::DisplayRole ? QVariant(To_Qt(Column_Of(section).text)) : QVariant();
}

Qt::ItemFlags Row_Model::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
}

void Row_Model::Show_Rows(bool cleared) {
  const int now = rows_.Shown();
  if (cleared) {
    beginResetModel();
    shown_ = now;
    endResetModel();
  } else if (now < shown_) {
    beginRemoveRows({}, now, shown_ - 1);
    shown_ = now;
    endRemoveRows();
  } else if (now > shown_) {
    beginInsertRows({}, shown_, now - 1);
    shown_ = now;
    endInsertRows();
  }
  if (now > 0) emit dataChanged(index(0, 0), index(now - 1, columnCount() - 1));
}

Row_View::Row_View(QWidget* parent, List_View& list, Row_Model& model)
    : QTreeView(parent), list_(list) {
  setModel(&model);
  Go_To_Top_After_Clear(*this);
  setItemDelegate(new Airy_Rows(this));
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setAlternatingRowColors(true);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  header()->setSectionsMovable(false);
  header()->setSectionsClickable(true);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  connect(header(), &QHeaderView::sectionClicked, [this](int section) {
    search_.End();
    list_.Header_Clicked(section + 1);
  });
  header()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header(), &QHeaderView::customContextMenuRequested,
          [this](QPoint place) { Offer_Columns(header()->viewport()->mapToGlobal(place)); });
}

// To stretch the last section no more gives it a width, even if it is hidden: that comes first.
void Row_View::Show_Columns(const std::vector<List_Column>& columns) {
  for (const List_Column& column : columns) shares_.push_back(column.hidden ? 0 : column.share);
  header()->setStretchLastSection(std::ranges::count(shares_, 0) == std::ssize(shares_));
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const int section = static_cast<int>(i);
    const int wide = Width_Of_Characters(*this, columns[i].characters + beside_cell);
    header()->resizeSection(section, std::max(wide, header()->sectionSizeHint(section)));
    setColumnHidden(section, columns[i].hidden);
  }
}

void Row_View::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  Fill_Width();
}

// What the one column cannot take, because it would get too narrow, is left to the next ones. A
// heading that was given another text, or font, gets its room here too.
void Row_View::Fill_Width() {
  const int narrow = Width_Of_Characters(*this, least_column);
  int spare = viewport()->width() - header()->length();
  int parts = std::accumulate(shares_.begin(), shares_.end(), 0);
  for (int section = 0; parts > 0 && section < header()->count(); ++section) {
    const int share = shares_[static_cast<std::size_t>(section)];
    if (share == 0) continue;
    const int before = header()->sectionSize(section);
    const int least = std::max(narrow, header()->sectionSizeHint(section));
    const int now = std::max(before + (spare * share / parts), least);
    header()->resizeSection(section, now);
    spare -= now - before;
    parts -= share;
  }
}

// Rows that stand together are one range: the toolkit compares each range with each other one.
QItemSelection Row_View::Ranges_Of(const std::vector<int>& places) const {
  QItemSelection ranges;
  const int last_column = model()->columnCount() - 1;
  for (std::size_t first = 0, next = 0; first < places.size(); first = next) {
    while (++next < places.size() && places[next] == places[next - 1] + 1) continue;
    ranges.select(model()->index(places[first], 0), model()->index(places[next - 1], last_column));
  }
  return ranges;
}

void Row_View::Select(const std::vector<int>& places, int current) {
  selecting_ = true;
  if (current >= 0) {
    selectionModel()->setCurrentIndex(model()->index(current, 0), QItemSelectionModel::NoUpdate);
  } else {
    selectionModel()->clearCurrentIndex();
  }
  selectionModel()->select(Ranges_Of(places), QItemSelectionModel::ClearAndSelect);
  selecting_ = false;
}

// The toolkit would ask every changed row for its place before it paints the few that can be seen.
// The first one tells it how high a row is.
void Row_View::dataChanged(const QModelIndex& first, const QModelIndex& last,
                           const QList<int>& roles) {
  QTreeView::dataChanged(first, last.siblingAtRow(first.row()), roles);
  viewport()->update();
}

// A click beside the rows, or with Ctrl on the one that is selected, leaves a selected row
// selected.
QItemSelectionModel::SelectionFlags Row_View::selectionCommand(const QModelIndex& index,
                                                               const QEvent* event) const {
  if (Takes_Several()) return QTreeView::selectionCommand(index, event);
  if (!index.isValid()) return QItemSelectionModel::NoUpdate;
  return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

// The other buttons choose no row: nobody would be told of it.
void Row_View::mousePressEvent(QMouseEvent* event) {
  pressed_ = -1;
  pressed_row_ = {};
  second_click_ = false;
  search_.End();
  if (event->button() != Qt::LeftButton) return;
  QTreeView::mousePressEvent(event);
  pressed_ = indexAt(event->position().toPoint()).row();
  pressed_row_ = list_.Identity_At(pressed_);
}

// Two clicks on one place are one double click only if its row is still the same.
void Row_View::mouseDoubleClickEvent(QMouseEvent* event) {
  const List_View::Identity before = pressed_row_;
  mousePressEvent(event);
  second_click_ = pressed_ >= 0 && pressed_row_ == before;
}

// In a list of single selection a drag does not choose: the row that was pressed is the one picked.
void Row_View::mouseMoveEvent(QMouseEvent* event) {
  if (Takes_Several() || event->buttons() == Qt::NoButton) QTreeView::mouseMoveEvent(event);
}

void Row_View::mouseReleaseEvent(QMouseEvent* event) {
  QTreeView::mouseReleaseEvent(event);
  const int place = std::exchange(pressed_, -1);
  if (event->button() != Qt::LeftButton || place < 0) return;
  second_click_ ? list_.Picked_Twice(place) : list_.Picked(place, false);
}

void Row_View::paintEvent(QPaintEvent* event) {
  QTreeView::paintEvent(event);
  Paint_Empty_Text(*this);
}

void Row_View::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Mouse) {
    Offer_Columns(event->globalPos());
  } else {
    Offer_Columns(Below_Header());
  }
}

QPoint Row_View::Below_Header() const {
  return header()->mapToGlobal(header()->rect().bottomLeft());
}

void Row_View::Offer_Columns(QPoint place) {
  if (list_.ColumnClick) Open_Sort_Menu(*this, list_, place);
}

// Some desktops ask for the menu themselves at these keys; the key then goes to the open menu.
bool Row_View::Is_Menu_Key(const QKeyEvent& event) {
  return event.key() == Qt::Key_Menu ||
         (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

void Row_View::keyPressEvent(QKeyEvent* event) {
  const int before = currentIndex().row();
  if (const auto place = search_.Hear(*event, Searched())) {
    Go_To_Hit(*place);
    Tell_If_Moved(before);
  } else if (Is_Menu_Key(*event)) {
    Offer_Columns(Below_Header());
  } else if (!Pick_By_Key(*event)) {
    only_moves_ = Takes_Several() && Has_Ctrl(*event);
    const bool first_step = Step_Onto_Current(*event);
    if (!first_step) QTreeView::keyPressEvent(event);
    Tell_If_Moved(first_step ? -1 : before);
  }
}

void Row_View::inputMethodEvent(QInputMethodEvent* event) {
  const int before = currentIndex().row();
  QTreeView::inputMethodEvent(event);
  Tell_If_Moved(before);
}

void Row_View::Tell_If_Moved(int before) {
  const int now = currentIndex().row();
  const bool found = std::exchange(found_, false);
  const bool only_moves = std::exchange(only_moves_, false);
  if (now < 0 || (!found && now == before)) return;
  only_moves ? list_.Moved_To(now) : list_.Picked(now, true);
}

// The first step goes onto the row that the focus stands on, which nobody picked yet.
bool Row_View::Step_Onto_Current(const QKeyEvent& event) {
  const bool step = event.key() == Qt::Key_Down || event.key() == Qt::Key_Up;
  if (!step || only_moves_ || list_.Was_Picked_From() || !currentIndex().isValid()) return false;
  selectionModel()->select(currentIndex(),
                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  return true;
}

void Row_View::keyboardSearch(const QString& typed) { Go_To_Hit(search_.Find(typed, Searched())); }

Typed_Search::Place Row_View::Searched() const {
  return {.entries = *model(),
          .column = list_.Search_Column(),
          .here = currentIndex().row(),
          .here_too = !list_.Was_Picked_From(),
          .blank_acts = true};
}

void Row_View::Go_To_Hit(int place) {
  if (place < 0) return;
  found_ = !list_.Was_Picked_From();
  only_moves_ = Takes_Several();
  const QModelIndex found = model()->index(place, 0);
  Bring_To_Middle(*this, found);
  only_moves_ ? selectionModel()->setCurrentIndex(found, QItemSelectionModel::NoUpdate)
              : setCurrentIndex(found);
}

bool Row_View::Pick_By_Key(const QKeyEvent& event) {
  const bool enter = Is_Enter(event);
  if (!enter && event.key() != Qt::Key_Space) return false;
  const QModelIndex current = currentIndex();
  if (!current.isValid() || event.isAutoRepeat()) return true;
  selectionModel()->select(current, Command_Of(event) | QItemSelectionModel::Rows);
  enter ? list_.Picked_Twice(current.row()) : list_.Picked(current.row(), false);
  return true;
}

QItemSelectionModel::SelectionFlag Row_View::Command_Of(const QKeyEvent& event) const {
  if (!Takes_Several()) return QItemSelectionModel::ClearAndSelect;
  const bool in_or_out = Has_Ctrl(event) && !Is_Enter(event);
  return in_or_out ? QItemSelectionModel::Toggle : QItemSelectionModel::Select;
}

}  // namespace Forms
