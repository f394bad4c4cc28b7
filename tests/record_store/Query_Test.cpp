// Queries: their order, and the questions that the engine is asked.
#include <sqlite3.h>

#include <algorithm>

#include "platform/record_store/Query_Text.h"
#include "platform/record_store/Rows.h"
#include "platform/record_store/Stored_Table.h"
#include "platform/record_store/Text_Order.h"
#include "tests/record_store/Store_Fixture.h"

using namespace Record_Store;

class Query_Test : public Store_Test {
 protected:
  std::vector<std::string> Rows(std::string_view statement, std::string_view field = "Name") {
    Recordset rows = database_->OpenRecordset(statement);
    return Walk(rows, field);
  }
};

TEST_F(Query_Test, Texts_Are_Found_And_Ordered_As_In_An_Index) {
  Add_Bottles({"Edam", "éclair", "zebra", "Eclair", "ECLAIR", "Éclair", "eclair"});
  const std::vector<std::string> ordered{"eclair", "Eclair", "ECLAIR", "éclair",
                                         "Éclair", "Edam",   "zebra"};
  EXPECT_EQ(Rows("SELECT * FROM Bottles ORDER BY Name"), ordered);
  Recordset rows = database_->OpenRecordset("Bottles");
  rows.Index("Name");
  EXPECT_EQ(Walk(rows), ordered);
  EXPECT_EQ(Rows("SELECT * FROM Bottles WHERE Name='ÉCLAIR' ORDER BY  Rack ASC,  Name ASC"),
            (std::vector<std::string>{"éclair", "Éclair"}));
  EXPECT_EQ(Rows("SELECT * FROM Bottles WHERE Name='eclair' or Name = 'EDAM' ORDER  BY name DESC"),
            (std::vector<std::string>{"Edam", "ECLAIR", "Eclair", "eclair"}));
}

// Whatever index the engine walks for them.
TEST_F(Query_Test, Ties_Stand_In_Storage_Order) {
  for (int i = 0; i < 300; ++i)
    Add_Bottle(std::string(1, static_cast<char>('z' - i % 7)), i * 7 % 3);
  const auto rank_by_rack = [](int row) { return row * 7 % 3; };
  const auto rank_by_name = [](int row) { return row % 7; };
  struct Case {
    const char* statement;
    std::function<int(int)> rank;
  };
  for (const Case& given :
       {Case{"SELECT * FROM Bottles ORDER BY Rack", rank_by_rack},
        Case{"SELECT * FROM Bottles ORDER BY Rack DESC",
             [&](int row) { return -rank_by_rack(row); }},
        Case{"SELECT * FROM Bottles ORDER BY Name DESC", rank_by_name},
        Case{"SELECT * FROM Bottles WHERE Rack=1 OR Rack=0 OR Rack=2", [](int) { return 0; }}}) {
    const std::vector<std::string> numbers = Rows(given.statement, "Bottle_ID");
    std::vector<std::string> sorted = numbers;
    std::ranges::stable_sort(sorted, {}, [&](const std::string& text) {
      return given.rank(std::stoi(text) - 101) * 10000 + std::stoi(text);
    });
    EXPECT_EQ(numbers, sorted) << given.statement;
    EXPECT_EQ(numbers.size(), 300U);
  }
}

TEST_F(Query_Test, Computed_Columns_Have_Values_Too) {
  Add_Bottles({"a", "b"});
  Recordset rows = database_->OpenRecordset(
      "SELECT count(*) AS Number, max(Name) AS Last, 1.5 AS Half, NULL AS Nothing FROM Bottles");
  EXPECT_EQ(rows["Number"].As_Long(), 2);
  EXPECT_EQ(rows["Last"].As_Text(), "b");
  EXPECT_EQ(rows["Half"].As_Double(), 1.5);
  EXPECT_TRUE(rows["Nothing"].Is_Null());
}

TEST(Query_Text_Test, Only_Plain_Names_Are_Ordered_By_Case_As_Well) {
  const std::vector<std::pair<std::string, std::string>> cases{
      {"SELECT a FROM T", ""},
      {"SELECT * FROM T, U", ""},
      {"SELECT * FROM T WHERE a='ORDER BY b'", " ORDER BY rowid"},
      {"SELECT * FROM T ORDER BY a", ", a COLLATE WINE_CASE, rowid"},
      {"SELECT * FROM T WHERE a=1 UNION SELECT * FROM U ORDER BY 1", ""},
      {"SELECT * FROM T order by T.a desc, 2, [b c] ASC",
       ", T.a COLLATE WINE_CASE desc, [b c] COLLATE WINE_CASE ASC, rowid"},
      {"SELECT * FROM T ORDER BY a+1, f(a, b), a COLLATE BINARY", ", rowid"},
      {"SELECT * FROM (SELECT * FROM T ORDER BY a)", ""}};
  for (const auto& [text, added] : cases) EXPECT_EQ(With_Full_Order(text), text + added + " ");
  EXPECT_EQ(With_Full_Order("SELECT a FROM T ORDER BY a LIMIT 3"),
            "SELECT a FROM T ORDER BY a , a COLLATE WINE_CASE LIMIT 3");
}

// The engine must answer every question of a cursor from the index as it lies: by a search where
// rows are bounded, and never by sorting.
TEST_F(Query_Test, No_Question_Of_A_Cursor_Sorts) {
  database_.reset();
  Engine engine(path_, Engine::Mode::Read, "open9sesame");
  for (const Table_Schema& schema : Test_Tables()) {
    Stored_Table table(schema, engine);
    std::vector<const Order*> orders{&table.Storage_Order()};
    for (const Index_Schema& index : schema.indexes) orders.push_back(table.Find_Order(index.name));
    for (const Order* order : orders) {
      const int columns = static_cast<int>(order->sort.size());
      for (int i = 0; i < (columns + 1) * 10; ++i) {
        const Question question{i / 10, static_cast<Question::Range>(i / 2 % 5), i % 2 == 1};
        const bool beyond_columns =
            question.range == Question::From || question.range == Question::Nulls;
        if (question.prefix == columns && beyond_columns) continue;
        const Statement asked = table.Pool_Of(*order, question).Borrow();
        const std::string text = sqlite3_sql(asked.get());
        const Statement plan = engine.Prepare("EXPLAIN QUERY PLAN " + text);
        while (engine.Step(plan.get())) {
          const std::string line(Column_Value(plan.get(), 3).text);
          EXPECT_EQ(line.find("TEMP B-TREE"), std::string::npos) << text << line;
          const bool bounded = text.find(" WHERE ") != std::string::npos;
          EXPECT_EQ(line.starts_with(bounded ? "SEARCH" : "SCAN"), true) << text << line;
        }
      }
    }
  }
}
