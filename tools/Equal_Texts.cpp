// Texts that read as in English in another language: most of them were forgotten, not translated.
#include <set>

#include "tools/Compilation.h"

namespace Data_Compiler {

namespace {

/// A text and the English name of a language in which it may be as in English.
using Excuse = std::pair<Text, std::string>;

/// Texts that are meant to be the same, and those of them that a row has needed.
class Excuses {
 public:
  explicit Excuses(Compilation& c) {
    const Source_Table file(c.folder, "?same_in_every_language.tsv", "Text Language Reason",
                            c.problems);
    for (const Source_Row& row : file.Rows())
      for (const std::string& language : row.List("Language"))
        if (!places_.try_emplace({row["Text"], language}, row.Where()).second)
          c.problems.Report(row.Where(), "'" + row["Text"] + "' stands twice for " + language);
  }

  bool Hold(const Text& text, std::string_view language) {
    const Excuse excuse{text, std::string(language)};
    if (!places_.contains(excuse)) return false;
    needed_.insert(excuse);
    return true;
  }

  void Report_Needless(Problems& problems) const {
    for (const auto& [excuse, place] : places_)
      if (!needed_.contains(excuse))
        problems.Report(place, "'" + excuse.first + "' is not the same in " + excuse.second);
  }

 private:
  std::map<Excuse, Place> places_;
  std::set<Excuse> needed_;
};

/// A cheese keeps the name of its home in most languages.
bool Is_Name_Of_A_Cheese(const Maridages_Record& pairing) { return pairing.Cheese_ID != -1; }
template <class Record>
bool Is_Name_Of_A_Cheese(const Record&) {
  return false;
}

template <class Record>
void Check_Table(Compilation& c, Excuses& excuses) {
  const auto members = Language_Members<Record>();
  for (const Record& row : c.library.Of<Record>()) {
    if (Is_Name_Of_A_Cheese(row)) continue;
    const Text& english = row.*members[0];
    for (std::size_t i = 1; i < members.size(); ++i)
      if (row.*members[i] == english && !excuses.Hold(english, Languages[i]))
        c.problems.Report(c.library.Where(row),
                          "'" + english + "' is the same in " + std::string(Languages[i]));
  }
}

}  // namespace

void Check_Equal_Texts(Compilation& c) {
  Excuses excuses(c);
  Check_Table<Words_Record>(c, excuses);
  Check_Table<Maridages_Record>(c, excuses);
  Check_Table<Glossary_Record>(c, excuses);
  Check_Table<Words_for_Data_Record>(c, excuses);
  excuses.Report_Needless(c.problems);
}

}  // namespace Data_Compiler
