// The list that stands open, as the toolkit sees it. For the sources of this room only.
#pragma once

#include <QListView>
#include <QPersistentModelIndex>

#include "platform/forms/Item_List.h"
#include "platform/forms/Typed_Search.h"

namespace Forms {

class Plain_List;

/// The entry shown as chosen is always the list's ListIndex. The focus may stand on another entry,
/// as it does before the user chose one, and after code took the choice back.
class List_Widget : public QListView {
 public:
  List_Widget(QWidget* parent, Item_List& list, Plain_List& entries);

  /// -1 shows none as chosen; the focus stays where it stands.
  void Show_Index(int row);
  /// See List_Box.
  void Set_Arrow_Keys_Pick(bool pick) { arrow_keys_pick_ = pick; }
  void keyboardSearch(const QString& typed) override;

 protected:
  /// What is typed next is a new word.
  void End_Word() { search_.End(); }
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Clicked(int clicks);
  void Choose(int row);
  bool Pick_By_Key(const QKeyEvent& event);
  void Step(QKeyEvent& event);
  void Tell_If_Moved();
  Typed_Search::Place Searched() const;
  void Go_To_Hit(int row);
  bool Stands_On_Unchosen() const;
  bool Is_Shown_Chosen(const QModelIndex& index) const;

  Item_List& list_;
  QPersistentModelIndex pressed_;
  QPersistentModelIndex chosen_;  ///< the entry chosen last
  Typed_Search search_{*this};
  int clicks_ = 0;  ///< how many the button's release ends
  bool arrow_keys_pick_ = true;
};

}  // namespace Forms
