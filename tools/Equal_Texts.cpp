#include <set>

#include "tools/Reports.h"
#include "tools/Source_Table.h"

namespace Data_Compiler {

namespace {

/// Texts that are meant to be the same, and those of them that a row has needed.
class Allowed_Texts {
 public:
  Allowed_Texts(const std::string& folder, Problems& problems)
      : file_(folder, "?same_in_every_language.tsv", "Text Language Reason", problems) {
    for (const Source_Row& row : file_.Rows())
      for (const std::string& language : row.List("Language"))
        unused_.emplace(std::pair{row["Text"], language}, row.Where());
  }

  bool Allow(const Text& text, std::string_view language) {
    const std::pair key{text, std::string(language)};
    if (unused_.erase(key) > 0) used_.insert(key);
    return used_.contains(key);
  }

  const std::map<std::pair<Text, std::string>, Place>& Unused() const { return unused_; }

 private:
  Source_Table file_;
  std::map<std::pair<Text, std::string>, Place> unused_;
  std::set<std::pair<Text, std::string>> used_;
};

template <class Record>
int Report_Table(const Library& library, Allowed_Texts& allowed, std::ostream& out) {
  Text Record::*const members[] = {&Record::Spanish, &Record::French,   &Record::German,
                                   &Record::Italian, &Record::Japanese, &Record::Portuguese};
  int found = 0;
  for (const Record& row : library.Of<Record>())
    for (std::size_t i = 0; i < std::size(members); ++i) {
      const std::string_view language = Languages[i + 1];
      if (row.*members[i] != row.English || allowed.Allow(row.English, language)) continue;
      out << library.Where(row) << ": '" << row.English << "' is the same in " << language << '\n';
      ++found;
    }
  return found;
}

}  // namespace

int Report_Equal_Texts(const Library& library, const std::string& folder, std::ostream& out,
                       Problems& problems) {
  Allowed_Texts allowed(folder, problems);
  int found = Report_Table<Words_Record>(library, allowed, out) +
              Report_Table<Maridages_Record>(library, allowed, out) +
              Report_Table<Glossary_Record>(library, allowed, out);
  for (const auto& [text, place] : allowed.Unused()) {
    out << place.Text() << ": '" << text.first << "' is not the same in " << text.second << '\n';
    ++found;
  }
  return found;
}

}  // namespace Data_Compiler
