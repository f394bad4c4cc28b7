// A list view as the toolkit sees it: a model over the rows, and the view on it. For the sources of
// this room only.
#pragma once

#include <QAbstractTableModel>
#include <QTreeView>
#include <vector>

#include "platform/forms/List_View.h"
#include "platform/forms/Typed_Search.h"

namespace Forms {

class List_Rows;

/// Has as many rows as there were at the last Show_Rows: it is told of a change at the end of the
/// handler, not at each step of a fill.
class Row_Model : public QAbstractTableModel {
 public:
  Row_Model(const List_Rows& rows, const std::vector<List_Column>& columns)
      : rows_(rows), columns_(columns) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Shows the rows that there are now; `cleared` where all those shown before are gone.
  void Show_Rows(bool cleared);

 private:
  const List_Column& Column_Of(int section) const {
    return columns_[static_cast<std::size_t>(section)];
  }

  const List_Rows& rows_;
  const std::vector<List_Column>& columns_;
  int shown_ = 0;
};

class Row_View : public QTreeView {
 public:
  Row_View(QWidget* parent, List_View& list, Row_Model& model);

  /// Gives the columns their first widths.
  void Show_Columns(const std::vector<List_Column>& columns);
  /// Shares out the width that the columns leave, or lack.
  void Fill_Width();
  /// Selects the rows at these places, in rising order, and no others, as code does: nobody is
  /// told.
  void Select(const std::vector<int>& places, int current);
  bool Is_Selecting() const { return selecting_; }

  void dataChanged(const QModelIndex& first, const QModelIndex& last,
                   const QList<int>& roles = {}) override;
  void keyboardSearch(const QString& typed) override;

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QItemSelection Ranges_Of(const std::vector<int>& places) const;
  static bool Is_Menu_Key(const QKeyEvent& event);
  QPoint Below_Header() const;
  void Offer_Columns(QPoint place);
  bool Pick_By_Key(const QKeyEvent& event);
  QItemSelectionModel::SelectionFlag Command_Of(const QKeyEvent& event) const;
  bool Step_Onto_Current(const QKeyEvent& event);
  void Tell_If_Moved(int before);
  Typed_Search::Place Searched() const;
  void Go_To_Hit(int place);
  bool Takes_Several() const { return selectionMode() == ExtendedSelection; }

  List_View& list_;
  Typed_Search search_{*this};
  bool found_ = false;  ///< typing led to the row on which the focus stood, which nobody picked yet
  bool only_moves_ = false;  ///< in a list of several: the key leaves the selection as it is
  int pressed_ = -1;
  List_View::Identity pressed_row_;
  bool second_click_ = false;  ///< letting go of the button that is down ends a double click
  bool selecting_ = false;
  std::vector<int> shares_;  ///< by column, of the width that is spare
};

}  // namespace Forms
