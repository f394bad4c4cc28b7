// What the controls and boxes of every screen say by themselves. The screens' own texts are found
// by their place; these by their name.
#pragma once

#include "core/words/Screen_Words.h"
#include "platform/forms/Form_Texts.h"

namespace Screen_Words {

struct Form_Text {
  std::string_view Variable;
  std::string Forms::Texts_Of_Forms::*text;  ///< English until the program fills it
};

inline constexpr std::array<Form_Text, 10> Form_Texts{
    {{"required", &Forms::Texts_Of_Forms::required},
     {"locked", &Forms::Texts_Of_Forms::locked},
     {"to_click_next", &Forms::Texts_Of_Forms::to_click_next},
     {"stand_in", &Forms::Texts_Of_Forms::stand_in},
     {"ok", &Forms::Texts_Of_Forms::ok},
     {"yes", &Forms::Texts_Of_Forms::yes},
     {"no", &Forms::Texts_Of_Forms::no},
     {"found", &Forms::Texts_Of_Forms::found},
     {"not_found", &Forms::Texts_Of_Forms::not_found},
     {"bold", &Forms::Texts_Of_Forms::bold}}};

inline constexpr auto Form_Texts_Rows = Rows_Named_As(Form_Texts);

}  // namespace Screen_Words
