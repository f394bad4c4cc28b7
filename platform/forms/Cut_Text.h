// What is shown cut can be read all the same. For the sources of this room only.
#pragma once

#include <QStyledItemDelegate>

class QHelpEvent;

namespace Forms {

/// The pointer rests on the widget: where its text is cut there, shows the whole text as the tip,
/// above what the tip says else. False where nothing is cut.
bool Show_Cut_Text(QWidget& widget, const QHelpEvent& event);

/// Rows with some air between them. Their text is cut with an ellipsis rather than that the list
/// scrolls sideways for one long entry.
class Airy_Rows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace Forms
