#include "tools/Compile_Library.h"

#include "tools/Compilation.h"
#include "tools/References.h"

namespace Data_Compiler {

namespace {

void Count_References(Library& library) {
  For_Each_Counted_Table([&]<class Record>() {
    const auto count = References_To<Record>(library);
    for (Record& row : library.Of<Record>()) {
      const auto found = count.find(Key_Of(row));
      row.Used = To_Integer(found == count.end() ? 0.0 : static_cast<double>(found->second));
    }
  });
}

}  // namespace

Library Compile_Library(const std::string& folder, std::string_view language, Problems& problems) {
  Compilation c(folder, problems);
  Read_Countries(c);
  Read_System(c, language);
  Read_Words(c);
  Read_Glossary(c);
  Read_Cheeses(c);
  Read_Pairings(c);
  Read_Varieties(c);
  Read_Regions(c);
  Read_Classifications(c);
  Read_Labels(c);
  Read_Wineries(c);
  Read_General_Wines(c);
  Read_Cheese_Links(c);
  Add_Links(c);
  Count_References(c.library);
  // Rows with holes in them would only repeat what is reported already.
  if (problems.None()) {
    Check_Library(c.library, problems);
    Check_Equal_Texts(c);
  }
  return std::move(c.library);
}

void Check_Library(const Library& library, Problems& problems) {
  Check_Keys(library, problems);
  Check_Groups(library, problems);
  Check_Words(library, problems);
  Check_Places(library, problems);
  Check_Pairings(library, problems);
  Check_General_Wines(library, problems);
}

}  // namespace Data_Compiler
