// Typing into a combo box, closed or open. For the sources of this room only.
#pragma once

#include "platform/forms/Typed_Search.h"

class QComboBox;

namespace Forms {

class Combo_Box;

/// While a word is typed the closed box shows its hit, and the open list goes there, but the entry
/// chosen stays what it was. The closed box takes the hit when the word is finished: by `Finish`,
/// or by a pause while the user is still at the box. The open list waits for the user's choice.
class Combo_Typing {
 public:
  Combo_Typing(QComboBox& box, Combo_Box& combo);

  /// To be told of every key first. True where the key is of the word, and dealt with.
  bool Hear(const QKeyEvent& key);
  /// Whether a word was begun and has not ended.
  bool Has_Word() const { return search_.Has_Word(); }
  bool Found_Nothing() const { return Has_Word() && hit_ < 0; }
  /// The hit is the user's choice. Nothing where no word is waiting, or it has no hit.
  void Finish();
  /// The box shows the chosen entry again.
  void Give_Up();
  /// As `Give_Up`, but leaves the box as it is.
  void Forget();

 private:
  bool Is_Open() const;
  int Here() const;
  void Show(int row);
  void Paused();

  QComboBox& box_;
  Combo_Box& combo_;
  Typed_Search search_;
  bool waits_ = false;  ///< the closed box shows the hit of a word that is not finished
  int hit_ = -1;        ///< of that word
};

}  // namespace Forms
