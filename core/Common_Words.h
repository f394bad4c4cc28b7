// The words that no screen has to itself, in the language in force: what the controls say by
// themselves, hints, and the words for captions that stay English.
#pragma once

#include <initializer_list>
#include <string_view>

#include "core/words/Hints_Words.h"
#include "platform/run_time/Values.h"

/// Reads them: into Forms::Form_Texts(), and for `Hint_Text`. Needs the data file and the language.
/// What the data has no row for is English again. Screens that were made before keep their words.
void Read_Common_Words();

/// A hint, with the first of `values` in the place of %1, the second in that of %2.
Text Hint_Text(const Screen_Words::Hint& hint, std::initializer_list<std::string_view> values = {});
/// A hint that leads to an entry of the main window's menu: %1 is the caption of the menu, %2 that
/// of the entry.
Text Hint_To_Menu(const Screen_Words::Hint& hint, std::string_view menu, std::string_view entry);
