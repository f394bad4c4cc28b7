// What the controls and boxes say by themselves, on every screen. The program sets these words in
// its language before the first form is made; where it sets none they are English.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace Forms {

struct Texts_Of_Forms {
  // The states of a field, in tool tips and to assistive programs.
  std::string required = "A value must be given here.";
  std::string locked = "Locked: to be read, not changed.";
  std::string to_click_next = "Choose a line of this list next.";
  std::string stand_in = "A placeholder: no line is chosen yet.";

  // The buttons of message boxes.
  std::string ok = "OK";
  std::string yes = "Yes";
  std::string no = "No";

  // Finding by typing: %1 is what was typed, %2 the place of the entry that was found among the %3
  // that there are.
  std::string found = "%1 \u2013 %2 of %3";
  std::string not_found = "%1 \u2013 nothing found";

  // An entry of a list that stands in bold, to assistive programs.
  std::string bold = "Stands out";

  // The program's language beside captions that stay English: what a caption means, by the caption.
  std::map<std::string, std::string, std::less<>> words_of_captions;
};

Texts_Of_Forms& Form_Texts();

/// What an English caption means in the program's language; "" where nothing is to be said of it.
std::string_view Word_Of_Caption(std::string_view caption);

}  // namespace Forms
