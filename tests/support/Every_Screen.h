// A walk through every screen of the program, for what must hold on all of them, those to come
// included: each one that a menu entry opens, as it opens and with a row picked where rows can be
// picked, and each registered one that only other screens open.
#pragma once

#include <set>

#include "tests/support/Pairing_Program.h"

class Every_Screen : public Pairing_Program {
 protected:
  /// The file has wines of long names with all that a wine can have.
  Every_Screen();

  using Look = std::function<void(Forms::Form& form)>;
  /// Starts the program in the language, with this font (family "" is the platform's own) as the
  /// desktop's, and looks at each screen. A failure names the screen, the language and the font.
  void Each_Screen(Integer language, const std::string& family, int points, const Look& look);

 private:
  void Look_At_Opened(const std::string& how, const Look& look);
  void Open_By_Menu(const Look& look);
  void Open_Others(const Look& look);
  std::set<std::string> seen_;
};
