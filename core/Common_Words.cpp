#include "core/Common_Words.h"

#include <functional>
#include <map>

#include "core/Globals.h"
#include "core/Languages.h"
#include "core/MultiLanguage_Processes.h"
#include "core/tables/Text_Tables.h"
#include "core/words/Form_Texts_Words.h"
#include "platform/forms/Form_Texts.h"
#include "platform/forms/Screens.h"

namespace {

using Words_By_Name = std::map<Text, Text, std::less<>>;

Words_By_Name hints;

Words_By_Name Words_of(std::string_view form_key, std::string_view name_column) {
  Words_By_Name words;
  Load_Language_Words(form_key);
  const int name_at = Words_Query.Ordinal(name_column);
  while (!Words_Query.Eof()) {
    const Text name = Words_Query.Fields(name_at).As_Text();
    words[name] = Next_Language_Word();
  }
  return words;
}

void Fill_Form_Texts() {
  Forms::Form_Texts() = {};
  const Words_By_Name words = Words_of("Form_Texts", "Variable");
  for (const Screen_Words::Form_Text& row : Screen_Words::Form_Texts) {
    const auto word = words.find(row.Variable);
    if (word != words.end()) Forms::Form_Texts().*row.text = word->second;
  }
}

// A word that reads as the caption does would say nothing.
void Fill_Words_of_Captions() {
  if (System_Language == First_Language) return;
  Words_By_Name words = Words_of("Caption_Tips", Languages.front());
  std::erase_if(words, [](const auto& word) { return word.first == word.second; });
  Forms::Form_Texts().words_of_captions = std::move(words);
}

}  // namespace

void Read_Common_Words() {
  Fill_Form_Texts();
  Fill_Words_of_Captions();
  hints = Words_of("Hints", "Variable");
}

// A value that holds a "%2" itself keeps it.
Text Hint_Text(const Screen_Words::Hint& hint, std::initializer_list<std::string_view> values) {
  const auto word = hints.find(hint.Variable);
  const std::string_view pattern =
      word == hints.end() ? hint.English : std::string_view(word->second);
  Text text;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const std::size_t place =
        at + 1 < pattern.size() ? static_cast<std::size_t>(pattern[at + 1] - '1') : 9;
    if (pattern[at] != '%' || place >= values.size()) {
      text += pattern[at];
    } else {
      text += *(values.begin() + place);
      ++at;
    }
  }
  return text;
}

Text Hint_To_Menu(const Screen_Words::Hint& hint, std::string_view menu, std::string_view entry) {
  const Forms::Screen main_window("Wine_Cellar_Form");
  return Hint_Text(hint,
                   {main_window.Control(menu).Caption(), main_window.Control(entry).Caption()});
}
