// The texts of the screens, and the way back from their words to the English ones of the data.
#include <algorithm>
#include <set>
#include <span>

#include "core/Languages.h"
#include "core/words/Cate_Add_Form_Words.h"
#include "core/words/Form_Texts_Words.h"
#include "core/words/Hints_Words.h"
#include "core/words/Select_Mult_Cat_Words.h"
#include "core/words/Select_Mult_Varieties_Words.h"
#include "core/words/Wine_Cellar_Form_Words.h"
#include "tools/Compile_Library.h"
#include "tools/Vocabulary.h"

namespace Data_Compiler {

namespace {

constexpr std::size_t Texts_Of_A_Form = 150;
constexpr std::string_view Main_Form = "Wine_Cellar_Form";
constexpr std::string_view Caption_Tips = "Caption_Tips";

/// A key under which a screen asks for its texts, and how many it reads; 0 where it does not say.
/// A screen that takes them by position has a table of its rows instead.
struct Form {
  std::string_view key;
  std::size_t rows;
  std::span<const Screen_Words::Row> table{};
};
constexpr std::array<Form, 11> Forms = {
    {{Main_Form, 0, Screen_Words::Wine_Cellar_Form},
     {"Wine_Form", 0},
     {"Mobile_Wine_Form", 88},
     {"Cate_Add_Form", 0, Screen_Words::Cate_Add_Form},
     {"Find_File_Form", 34},
     {"Select_Mult_Varieties", 0, Screen_Words::Select_Mult_Varieties},
     {"Select_Mult_Cat", 0, Screen_Words::Select_Mult_Cat},
     {"Initialize_Form", 0},
     {"Form_Texts", 0, Screen_Words::Form_Texts_Rows},
     {"Hints", 0, Screen_Words::Hints_Rows},
     {Caption_Tips, 0}}};

/// Behind its "Frm" row the main window reads colours, types of cheese, milks, and words of its
/// own.
constexpr std::size_t Cheese_Types_On_Screen = Cheese_Types.size() + 1;

using Rows = std::vector<const Words_Record*>;

Rows Rows_Of_Form(const Library& library, std::string_view form) {
  Rows rows;
  for (const Words_Record& row : library.Of<Words_Record>())
    if (row.Program == form) rows.push_back(&row);
  return rows;
}

bool Is_Row(const Words_Record& row, const Screen_Words::Row& expected) {
  return row.Variable == expected.Variable && row.types_variable == expected.types_variable;
}

/// Tells the line that does not hold what the screen's table has there. What is missing at the end
/// is told at the last row there is.
void Report_Row(const Library& library, const Form& form, const Rows& rows, std::size_t at,
                Problems& problems) {
  const std::string where =
      rows.empty() ? "words.tsv" : library.Where(*rows[std::min(at, rows.size() - 1)]);
  const std::string place = "row " + std::to_string(at + 1) + " of " + std::string(form.key);
  if (at >= form.table.size()) return problems.Report(where, place + " is one too many");
  const auto& [variable, type] = form.table[at];
  problems.Report(where, place + " must be '" + std::string(variable) + "' of type " +
                             std::string(type) + (at < rows.size() ? "" : ", and is missing"));
}

/// The rows of a screen that takes them by position: all of its table, in its order. A row too many
/// or too few moves all behind it, so only the first place is told then.
void Check_Table(const Library& library, const Form& form, Problems& problems) {
  const Rows rows = Rows_Of_Form(library, form.key);
  for (std::size_t i = 0; i < std::max(rows.size(), form.table.size()); ++i) {
    if (i < rows.size() && i < form.table.size() && Is_Row(*rows[i], form.table[i])) continue;
    Report_Row(library, form, rows, i, problems);
    if (rows.size() != form.table.size()) return;
  }
}

void Check_Forms(const Library& library, Problems& problems) {
  for (const Words_Record& row : library.Of<Words_Record>()) {
    const auto known = [&](const Form& form) { return form.key == row.Program; };
    if (std::none_of(Forms.begin(), Forms.end(), known))
      problems.Report(library.Where(row), "no screen asks for '" + row.Program + "'");
    if (!Is_One_Of(std::array<std::string_view, 3>{"Cap", "Frm", "Head"}, row.types_variable))
      problems.Report(library.Where(row), "unknown type '" + row.types_variable + "'");
  }
  for (const Form& form : Forms) {
    const std::size_t count = Rows_Of_Form(library, form.key).size();
    const std::string name(form.key);
    if (count > Texts_Of_A_Form) problems.Report("words.tsv", name + " has more than 150 texts");
    if (form.rows != 0 && count != 0 && count != form.rows)
      problems.Report("words.tsv", name + " reads " + std::to_string(form.rows) + " texts, not " +
                                       std::to_string(count));
    if (!form.table.empty()) Check_Table(library, form, problems);
  }
}

/// `words` must stand in these rows, in this order.
void Check_Run(const Library& library, std::span<const Words_Record* const> rows,
               std::span<const std::string_view> words, Problems& problems) {
  for (std::size_t i = 0; i < words.size(); ++i)
    if (rows[i]->English != words[i])
      problems.Report(library.Where(*rows[i]), "'" + std::string(words[i]) + "' is expected here");
}

/// The words of one list of the screen, in any language, must lead back to English words of it.
void Check_Way_Back(const Library& library, std::span<const Words_Record* const> rows,
                    Problems& problems) {
  std::map<Text, Text> keys;
  for (const ReplaceKeys_Record& key : library.Of<ReplaceKeys_Record>())
    keys.emplace(key.Foreign_Key, key.English_Key);
  std::set<Text> english;
  for (const Words_Record* row : rows) english.insert(row->English);
  for (const Words_Record* row : rows)
    for (const Text* word : {&row->Spanish, &row->French, &row->German, &row->Italian,
                             &row->Japanese, &row->Portuguese}) {
      const auto found = keys.find(*word);
      if (found == keys.end() || !english.contains(found->second))
        problems.Report(library.Where(*row), "replace_keys.tsv does not lead '" + *word +
                                                 "' back to a word of the same list");
    }
}

/// The lists among the words of the main window, whose rows are in order already.
void Check_Lists(const Library& library, Problems& problems) {
  const Rows rows = Rows_Of_Form(library, Main_Form);
  const auto at =
      static_cast<std::size_t>(Screen_Words::Place_of(Screen_Words::Wine_Cellar_Form, Main_Form));
  if (rows.size() != Screen_Words::Wine_Cellar_Form.size()) return;
  const auto heads = std::span(rows).subspan(at);
  const auto colors = heads.first(Colors.size());
  const auto cheeses = heads.subspan(Colors.size(), Cheese_Types_On_Screen);
  const auto milks = heads.subspan(Colors.size() + Cheese_Types_On_Screen, Milk_Types.size());
  Check_Run(library, colors, Colors, problems);
  Check_Run(library, cheeses, Cheese_Types, problems);
  Check_Run(library, milks, Milk_Types, problems);
  for (const auto& list : {colors, cheeses, milks}) Check_Way_Back(library, list, problems);
}

/// A blank at the end of a caption is meant only where the English one has it too.
void Check_Blanks(const Library& library, Problems& problems) {
  for (const Words_Record& row : library.Of<Words_Record>())
    for (const Text* text :
         {&row.Spanish, &row.French, &row.German, &row.Italian, &row.Japanese, &row.Portuguese})
      if (text->starts_with(' ') || (text->ends_with(' ') && !row.English.ends_with(' ')))
        problems.Report(library.Where(row), "stray blank in '" + *text + "'");
}

/// What the program says where the data is silent must be what the data says in English.
void Check_English(const Library& library, std::string_view form,
                   const std::vector<std::string_view>& english, Problems& problems) {
  const Rows rows = Rows_Of_Form(library, form);
  if (rows.size() == english.size()) Check_Run(library, rows, english, problems);
}

void Check_Program_Texts(const Library& library, Problems& problems) {
  std::vector<std::string_view> english;
  const Forms::Texts_Of_Forms texts;
  english.reserve(std::size(Screen_Words::Form_Texts));
  for (const auto& row : Screen_Words::Form_Texts) english.emplace_back(texts.*row.text);
  Check_English(library, "Form_Texts", english, problems);
  english.clear();
  for (const auto& row : Screen_Words::Hints) english.emplace_back(row.English);
  Check_English(library, "Hints", english, problems);
}

/// %1 and the like stand for something in every language, or in none.
Text Fillings_Of(const Text& text) {
  Text fillings;
  for (const char digit : {'1', '2', '3'})
    if (text.find({'%', digit}) != Text::npos) fillings += digit;
  return fillings;
}

void Check_Fillings(const Library& library, Problems& problems) {
  for (const Words_Record& row : library.Of<Words_Record>())
    for (const auto member : Language_Members<Words_Record>())
      if (Fillings_Of(row.*member) != Fillings_Of(row.English))
        problems.Report(library.Where(row),
                        "other %-signs than in English in '" + row.*member + "'");
}

/// A tip is found by the English caption.
void Check_Caption_Tips(const Library& library, Problems& problems) {
  std::set<Text> seen;
  for (const Words_Record* row : Rows_Of_Form(library, Caption_Tips))
    if (!seen.insert(row->English).second)
      problems.Report(library.Where(*row), "'" + row->English + "' stands twice");
}

/// The first row that holds the word wins.
void Check_Replace_Keys(const Library& library, Problems& problems) {
  std::set<Text> seen;
  for (const ReplaceKeys_Record& row : library.Of<ReplaceKeys_Record>())
    if (!seen.insert(row.Foreign_Key).second)
      problems.Report(library.Where(row), "'" + row.Foreign_Key + "' stands twice");
}

}  // namespace

void Check_Words(const Library& library, Problems& problems) {
  Check_Forms(library, problems);
  Check_Lists(library, problems);
  Check_Blanks(library, problems);
  Check_Program_Texts(library, problems);
  Check_Fillings(library, problems);
  Check_Caption_Tips(library, problems);
  Check_Replace_Keys(library, problems);
}

}  // namespace Data_Compiler
