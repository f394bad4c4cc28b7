// What the kinds of list have in common towards the toolkit. For the sources of this room only.
#pragma once

#include <QAbstractItemView>
#include <QKeyEvent>

namespace Forms {

/// Whenever the entries behind `view` are cleared, it goes back to its top: filled anew, it would
/// otherwise stay scrolled as far down as before (the list of a combo box goes there by itself when
/// it opens). To be called once the view has its model.
inline void Go_To_Top_After_Clear(const QAbstractItemView& view) {
  QObject::connect(view.model(), &QAbstractItemModel::modelReset, &view,
                   &QAbstractItemView::scrollToTop);
}

/// With what stands around it.
inline void Bring_To_Middle(QAbstractItemView& view, const QModelIndex& index) {
  view.scrollTo(index, QAbstractItemView::PositionAtCenter);
}

/// Whether the key is a command rather than for the list.
inline bool Has_Command_Key(const QKeyEvent& event) {
  return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

inline bool Is_Enter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace Forms
