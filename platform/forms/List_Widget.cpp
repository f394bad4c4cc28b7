#include "platform/forms/List_Widget.h"

#include <QKeyEvent>

#include "platform/forms/Cut_Text.h"
#include "platform/forms/Empty_Text.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/List_Common.h"
#include "platform/forms/Plain_List.h"

namespace Forms {

namespace {

bool Is_Step(const QKeyEvent& event) {
  return event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
}

bool Is_Leap(const QKeyEvent& event) {
  const int key = event.key();
  return key == Qt::Key_Home || key == Qt::Key_End || key == Qt::Key_PageUp ||
         key == Qt::Key_PageDown;
}

}  // namespace

List_Widget::List_Widget(QWidget* parent, Item_List& list, Plain_List& entries)
    : QListView(parent), list_(list) {
  setModel(&entries);
  Go_To_Top_After_Clear(*this);
  setItemDelegate(new Airy_Rows(this));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setUniformItemSizes(true);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
}

void List_Widget::Show_Index(int row) {
  if (row < 0) {
    clearSelection();
    return;
  }
  const QModelIndex index = model()->index(row, 0);
  chosen_ = index;
  if (currentIndex() != index || !Is_Shown_Chosen(index)) setCurrentIndex(index);
}

bool List_Widget::Is_Shown_Chosen(const QModelIndex& index) const {
  return selectionModel()->isSelected(index);
}

// Where a handler only took the choice back, the next step goes on from there.
bool List_Widget::Stands_On_Unchosen() const {
  return list_.ListIndex() < 0 && currentIndex().isValid() && chosen_ != currentIndex();
}

// Ctrl does not take the choice back: nobody would be told of it. What was pressed stays chosen
// wherever the button is let go.
QItemSelectionModel::SelectionFlags List_Widget::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
  const bool release = event != nullptr && event->type() == QEvent::MouseButtonRelease;
  if (!index.isValid() || release) return QItemSelectionModel::NoUpdate;
  return QItemSelectionModel::ClearAndSelect;
}

// The toolkit does not choose an entry whose tick box is pressed. The other buttons choose nothing.
void List_Widget::mousePressEvent(QMouseEvent* event) {
  clicks_ = 0;
  pressed_ = QModelIndex();
  search_.End();
  if (event->button() != Qt::LeftButton) return;
  QListView::mousePressEvent(event);
  pressed_ = indexAt(event->position().toPoint());
  if (!pressed_.isValid()) return;
  setCurrentIndex(pressed_);
  clicks_ = 1;
}

// Two clicks on one place are one double click only if its entry is still the same.
void List_Widget::mouseDoubleClickEvent(QMouseEvent* event) {
  const bool left = event->button() == Qt::LeftButton;
  if (!left || !pressed_.isValid() || pressed_ != indexAt(event->position().toPoint())) {
    mousePressEvent(event);
    return;
  }
  QListView::mouseDoubleClickEvent(event);
  setCurrentIndex(pressed_);
  clicks_ = 2;
}

void List_Widget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  QListView::mouseReleaseEvent(event);
  Clicked(std::exchange(clicks_, 0));
}

// Not before the button's release, which otherwise would go to whatever a handler brings up. Each
// handler may take the entry away.
void List_Widget::Clicked(int clicks) {
  if (clicks == 0 || !pressed_.isValid()) return;
  if (clicks == 1 || list_.ListIndex() != pressed_.row()) Choose(pressed_.row());
  const bool still_chosen = pressed_.isValid() && list_.ListIndex() == pressed_.row();
  if (clicks == 2 && still_chosen) Raise(list_, list_.DblClick);
}

void List_Widget::Choose(int row) {
  chosen_ = model()->index(row, 0);
  list_.Chosen_By_User(row);
}

void List_Widget::Tell_If_Moved() {
  const QModelIndex current = currentIndex();
  if (!current.isValid() || !Is_Shown_Chosen(current)) return;
  if (current.row() == list_.ListIndex()) return;
  arrow_keys_pick_ ? Choose(current.row()) : list_.Take_Index(current.row());
}

void List_Widget::keyPressEvent(QKeyEvent* event) {
  if (const auto row = search_.Hear(*event, Searched())) {
    Go_To_Hit(*row);
  } else if (Pick_By_Key(*event)) {
    return;
  } else {
    Step(*event);
  }
  Tell_If_Moved();
}

bool List_Widget::Pick_By_Key(const QKeyEvent& event) {
  if (arrow_keys_pick_ || !(Is_Enter(event) || event.key() == Qt::Key_Space)) return false;
  if (!currentIndex().isValid() || event.isAutoRepeat()) return true;
  setCurrentIndex(currentIndex());
  Choose(currentIndex().row());
  return true;
}

// The first step goes onto the entry that the focus stands on, which nobody chose yet.
void List_Widget::Step(QKeyEvent& event) {
  const bool unchosen = Stands_On_Unchosen();
  if (!unchosen || !Is_Step(event)) QListView::keyPressEvent(&event);
  if (unchosen && (Is_Step(event) || Is_Leap(event))) setCurrentIndex(currentIndex());
}

void List_Widget::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  Paint_Empty_Text(*this);
}

void List_Widget::inputMethodEvent(QInputMethodEvent* event) {
  QListView::inputMethodEvent(event);
  Tell_If_Moved();
}

void List_Widget::keyboardSearch(const QString& typed) {
  Go_To_Hit(search_.Find(typed, Searched()));
}

Typed_Search::Place List_Widget::Searched() const {
  const QModelIndex current = currentIndex();
  return {.entries = *model(),
          .here = current.row(),
          .here_too = Stands_On_Unchosen(),
          .blank_acts = !model()->flags(current).testFlag(Qt::ItemIsUserCheckable)};
}

void List_Widget::Go_To_Hit(int row) {
  if (row < 0) return;
  const QModelIndex index = model()->index(row, 0);
  Bring_To_Middle(*this, index);
  setCurrentIndex(index);
}

}  // namespace Forms
