// What the controls and boxes say by themselves, on every screen. The program sets these words in its
// language before the first form is made; where it sets none they are English.
#pragma once

#include <string>

namespace Forms {

struct Texts_Of_Forms {
  // The states of a field, in tool tips and to assistive programs.
  std::string required = "A value must be given here.";
  std::string locked = "Locked: to be read, not changed.";
  std::string to_click_next = "Choose a line of this list next.";

  // The buttons of message boxes.
  std::string ok = "OK";
  std::string yes = "Yes";
  std::string no = "No";

  // Finding by typing: %1 is what was typed, %2 the place of the entry that was found among the %3
  // that there are.
  std::string found = "%1 \u2013 %2 of %3";
  std::string not_found = "%1 \u2013 nothing found";
};

Texts_Of_Forms& Form_Texts();

}  // namespace Forms
