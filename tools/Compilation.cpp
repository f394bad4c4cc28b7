#include "tools/Compilation.h"

#include <algorithm>

namespace Data_Compiler {

std::string Label_Within(std::string_view label, Long region) {
  return Name_Within(label, "region " + std::to_string(region));
}

std::vector<Long> Compilation::Keys_In(const Source_Row& row, std::string_view column,
                                       const Names& names) {
  std::vector<Long> keys;
  for (const std::string& name : row.List(column)) {
    const Long key = names.Find(name, row.Where(), problems);
    if (key == 0) continue;
    if (std::find(keys.begin(), keys.end(), key) != keys.end())
      problems.Report(row.Where(), std::string(column) + " names '" + name + "' twice");
    else
      keys.push_back(key);
  }
  return keys;
}

Long Compilation::Add_Text(const Source_Row& row) {
  if (std::none_of(Languages.begin(), Languages.end(),
                   [&](std::string_view language) { return row.Given(language); }))
    return -1;
  Words_for_Data_Record text;
  Fill_Languages(row, text);
  return library.Add(std::move(text), row.Where()).Multi_Language_ID;
}

}  // namespace Data_Compiler
