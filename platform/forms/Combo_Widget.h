// A combo box, as the toolkit sees it. For the sources of this room only.
#pragma once

#include <QComboBox>

#include "platform/forms/Combo_Typing.h"

namespace Forms {

class Combo_Box;

/// The entry shown is the chosen one, or the hit of the word that is being typed.
class Combo_Widget : public QComboBox {
 public:
  Combo_Widget(QWidget* parent, Combo_Box& combo);

  /// -1 shows none. Ends the word that is being typed.
  void Show_Index(int index);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  void showPopup() override;
  void hidePopup() override;
  bool eventFilter(QObject* object, QEvent* event) override;

 protected:
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Choose_Shown(const QKeyEvent& event);
  void Step(QKeyEvent& event);
  bool Keeps_From_Toolkit(QKeyEvent& event) const;
  bool Heard_By_List(const QKeyEvent& event);
  void Make_List();
  int Widest_Entry() const;
  void Keep_On_Screen(QWidget& list) const;

  Combo_Box& combo_;
  Combo_Typing typing_;
};

}  // namespace Forms
