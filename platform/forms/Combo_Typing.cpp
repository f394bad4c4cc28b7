#include "platform/forms/Combo_Typing.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>

#include "platform/forms/Combo_Box.h"
#include "platform/forms/Cut_Text.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Form.h"
#include "platform/forms/List_Common.h"
#include "platform/forms/Word_Tip.h"

namespace Forms {

Combo_Typing::Combo_Typing(QComboBox& box, Combo_Box& combo)
    : box_(box), combo_(combo), search_(box) {
  search_.paused = [this] { Paused(); };
}

// Asked of the box, the list would be made.
bool Combo_Typing::Is_Open() const {
  const auto* list = box_.findChild<QAbstractItemView*>();
  return list != nullptr && list->isVisible();
}

int Combo_Typing::Here() const {
  return Is_Open() ? box_.view()->currentIndex().row() : box_.currentIndex();
}

bool Combo_Typing::Hear(const QKeyEvent& key) {
  if (waits_ && (Is_Enter(key) || key.key() == Qt::Key_Escape)) {
    Is_Enter(key) ? Finish() : Give_Up();
    return true;
  }
  const auto row = search_.Hear(key, {.entries = *box_.model(), .here = Here()});
  if (!row) return false;
  hit_ = *row;
  waits_ = search_.Has_Word() && !Is_Open();
  Show(hit_);
  return true;
}

void Combo_Typing::Show(int row) {
  const int shown = row < 0 ? combo_.ListIndex() : row;
  if (!Is_Open()) {
    box_.setCurrentIndex(shown);
    if (row >= 0 && waits_) Word_Tip::Add(box_, Cut_Choice(box_));
    return;
  }
  const QModelIndex index = box_.model()->index(shown, 0);
  Bring_To_Middle(*box_.view(), index);
  box_.view()->setCurrentIndex(index);
}

void Combo_Typing::Finish() {
  if (!waits_) return;
  Forget();
  if (hit_ < 0 || combo_.Locked()) return Show(-1);
  combo_.Chosen_By_User(hit_);
}

// A choice takes the focus with it: it would be called back from where the user went meanwhile.
void Combo_Typing::Paused() {
  const bool still_here =
      box_.hasFocus() && Focus_Watch::The().Owner() == &combo_ && combo_.Owner().Takes_Input();
  still_here ? Finish() : Give_Up();
}

void Combo_Typing::Give_Up() {
  const bool waited = waits_;
  Forget();
  if (waited) Show(-1);
}

void Combo_Typing::Forget() {
  waits_ = false;
  search_.End();
}

}  // namespace Forms
