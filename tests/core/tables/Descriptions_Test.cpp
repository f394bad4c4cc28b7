// The one description of each table: what stands in the file and in which order.
#include <sstream>

#include "tests/core/tables/New_Data_File.h"

namespace {

using Descriptions = New_Data_File;
using Record_Store::Recordset;

Recordset Open(std::string_view table) {
  Recordset rows;
  Open_Table(rows, table);
  return rows;
}

// The screens reach these columns by number.
TEST_F(Descriptions, Columns_Reached_By_Ordinal_Stand_There) {
  const struct {
    const char* table;
    int first;
    const char* columns;
  } cases[] = {
      {"Words", 0, "ID Program Variable"},
      {"Words", 3, "English Spanish French German Italian Japanese Portuguese types_variable"},
      {"Glossary", 0, "ID Keyword Country_of_Origin"},
      {"Glossary", 3, "English Spanish French German Italian Japanese Portuguese"},
      {"Maridages", 5, "English Spanish French German Italian Japanese Portuguese"},
      {"Words_for_Data", 0, "Multi_Language_ID English Spanish French German Italian Japanes"},
      {"Words_for_Data", 7, "Portuguese ID"},
      {"World_Contries", 0, "Short_Name Long_Name Spanish_Name"},
      {"World_Contries", 9, "French German Italian Japanese Portuguese"},
  };
  for (const auto& expected : cases) {
    const Recordset rows = Open(expected.table);
    std::istringstream columns(expected.columns);
    int ordinal = expected.first;
    for (std::string column; columns >> column; ++ordinal)
      EXPECT_EQ(rows.Ordinal(column), ordinal) << expected.table << "." << column;
  }
}

}  // namespace
