#include "screens/Form_Words.h"

#include "core/MultiLanguage_Processes.h"
#include "core/tables/Catalogue.h"

void Form_Words::Read() {
  words_.Clear();
  Load_Language_Words(form_key_);
  for (int row = 1; !Words_Query.Eof(); ++row) words_[row] = Next_Language_Word();
}

// A data file may be older than the screen and hold no words for it.
void Form_Words::Caption(Forms::Form& form) const {
  int place = 0;
  for (const Screen_Words::Row& row : rows_) {
    const Text& word = words_[++place];
    if (word.empty()) continue;
    if (row.types_variable == "Cap") form.Find_Control(row.Variable).Set_Caption(word);
    if (row.types_variable == "Frm") form.Set_Caption(word);
  }
  form.Choose_Mnemonics();
}

Text Form_Words::At(int place, std::string_view without) const {
  return words_[place].empty() ? Text(without) : words_[place];
}

Text Form_Words::Of(std::string_view variable, std::string_view without) const {
  return At(Screen_Words::Place_of(rows_, variable), without);
}
