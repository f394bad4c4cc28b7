// What is shown cut can be read all the same. For the sources of this room only.
#pragma once

#include <QStyledItemDelegate>

class QComboBox;
class QHelpEvent;

namespace Forms {

/// The pointer rests on the widget: where its text is cut there, shows the whole text as the tip,
/// above what the tip says else. False where nothing is cut.
bool Show_Cut_Text(QWidget& widget, const QHelpEvent& event);

/// The text that the closed box shows, if it is cut there; else "".
QString Cut_Choice(const QComboBox& combo);

/// Rows with some air between them. Their text is cut with an ellipsis rather than that the list
/// scrolls sideways for one long entry.
class Airy_Rows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  static constexpr int air = 4;  ///< what a row is higher than its text by itself

 protected:
  /// In a locked list nothing is to be done: no entry is highlighted unless the user is there.
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace Forms
