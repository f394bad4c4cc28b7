// A query as a recordset, and the variable that holds one; tables are walked in Cursor_Model_Test.
#include "tests/record_store/Store_Fixture.h"

using namespace Record_Store;

// The rows are a, b, c, d, in two racks.
class Query_Cursor_Test : public Store_Test {
 protected:
  Recordset Open() { return database_->OpenRecordset("SELECT * FROM Bottles ORDER BY Name"); }
  void Add_Four() {
    for (const char* name : {"a", "b", "c", "d"}) Add_Bottle(name, *name < 'c' ? 1 : 2);
    database_->Commit();
  }
  static std::string Name(const Recordset& rows) { return rows["Name"].As_Text(); }
  static std::string Ends(const Recordset& rows) {
    return std::string(rows.Bof() ? "B" : "-") + (rows.Eof() ? "E" : "-");
  }
  static int Read_Failure(const Recordset& rows) {
    return Failure_Of([&] { rows["Name"].As_Text(); });
  }
};

TEST_F(Query_Cursor_Test, Walks_To_Both_Ends_And_Back) {
  Add_Four();
  Recordset rows = Open();
  EXPECT_EQ(rows.RecordCount(), 4);
  EXPECT_EQ(Walk(rows), (std::vector<std::string>{"a", "b", "c", "d"}));
  EXPECT_EQ(Ends(rows), "-E");
  EXPECT_EQ(Read_Failure(rows), 3021);
  EXPECT_EQ(Failure_Of([&] { rows.MoveNext(); }), 3021);
  std::string back;
  for (rows.MovePrevious(); !rows.Bof(); rows.MovePrevious()) back += Name(rows);
  EXPECT_EQ(back, "dcba");
  EXPECT_EQ(Ends(rows), "B-");
  EXPECT_EQ(Read_Failure(rows), 3021);
  EXPECT_EQ(Failure_Of([&] { rows.MovePrevious(); }), 3021);
  rows.MoveNext();
  EXPECT_EQ(Name(rows), "a");
  rows.MoveLast();
  EXPECT_EQ(Name(rows), "d");
  rows.MovePrevious();
  rows.MoveFirst();
  EXPECT_EQ(Name(rows) + Ends(rows), "a--");
}

TEST_F(Query_Cursor_Test, Without_Rows_Both_Ends_Are_True) {
  Recordset rows = Open();
  EXPECT_EQ(Ends(rows), "BE");
  EXPECT_EQ(Failure_Of([&] { rows.MoveFirst(); }), 0);
  EXPECT_EQ(Ends(rows), "BE");
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_EQ(Read_Failure(rows), 3021);
  EXPECT_EQ(Failure_Of([&] { rows.MoveLast(); }), 3021);
  EXPECT_EQ(Failure_Of([&] { rows.MoveNext(); }), 3021);
  EXPECT_EQ(Failure_Of([&] { rows.MovePrevious(); }), 3021);
}

TEST_F(Query_Cursor_Test, Fields_Go_By_Name_Of_Any_Case_And_By_Ordinal) {
  Add_Four();
  Recordset rows = Open();
  EXPECT_EQ(rows.Field_Count(), 9);
  EXPECT_EQ(rows.Fields("nAME").As_Text(), "a");
  EXPECT_EQ(rows.Fields(1).As_Text(), "a");
  EXPECT_EQ(rows.Fields(1).Name(), "Name");
  EXPECT_EQ(rows.Fields("Price").Type(), Field_Type::Currency);
  EXPECT_EQ(rows.Fields("Bottle_ID").Type(), Field_Type::Long);
  EXPECT_EQ(rows.Ordinal("RACK"), 2);
  for (const char* name : {"", "Nam", "Name2", "Bottle"}) {
    EXPECT_EQ(Failure_Of([&] { rows.Fields(name); }), 3265) << name;
  }
  EXPECT_EQ(Failure_Of([&] { rows.Fields(9); }), 3265);
  EXPECT_EQ(Failure_Of([&] { rows.Fields(-1); }), 3265);
}

TEST_F(Query_Cursor_Test, The_Rows_Are_Those_Of_The_Opening) {
  Add_Four();
  Recordset rows = Open();
  Recordset table = database_->OpenRecordset("Bottles");
  table.Edit();
  table["Rack"] = -5;
  table.Update();
  table.Delete();
  Add_Bottle("e", 3);
  database_->Commit();
  EXPECT_EQ(rows["Rack"].As_Long(), 1);
  EXPECT_EQ(Walk(rows), (std::vector<std::string>{"a", "b", "c", "d"}));
}

TEST_F(Query_Cursor_Test, Changing_A_Query_Fails) {
  Add_Four();
  Recordset rows = Open();
  EXPECT_EQ(Failure_Of([&] { rows.Index("Name"); }), 3219);
  EXPECT_EQ(Failure_Of([&] { rows.Seek("=", 1); }), 3219);
  EXPECT_EQ(Failure_Of([&] { rows.AddNew(); }), 3219);
  EXPECT_EQ(Failure_Of([&] { rows.Edit(); }), 3219);
  EXPECT_EQ(Failure_Of([&] { rows.Update(); }), 3219);
  EXPECT_EQ(Failure_Of([&] { rows.Delete(); }), 3219);
  EXPECT_EQ(Failure_Of([&] { rows["Rack"] = 1; }), 3020);
}

// ---- the recordset variable ----

using Recordset_Test = Store_Test;

TEST_F(Recordset_Test, Empty_Closed_Replaced) {
  Add_Bottles({"a", "b"});
  Recordset rows;
  EXPECT_FALSE(rows.Is_Open());
  EXPECT_EQ(Failure_Of([&] { rows.MoveNext(); }), 91);
  EXPECT_EQ(Failure_Of([&] { rows.Close(); }), 91);
  rows = database_->OpenRecordset("Bottles");
  rows.MoveNext();
  rows.Edit();
  rows["Name"] = "lost";
  rows = database_->OpenRecordset("bottles");
  EXPECT_EQ(Walk(rows), (std::vector<std::string>{"a", "b"}));
  const std::uint64_t layout = rows.Layout_Number();
  rows.Close();
  EXPECT_EQ(Failure_Of([&] { rows.Eof(); }), 3420);
  EXPECT_EQ(Failure_Of([&] { rows.Fields(0); }), 3420);
  EXPECT_EQ(Failure_Of([&] { rows.Close(); }), 3420);
  rows = database_->OpenRecordset("Bottles");
  EXPECT_EQ(rows.Layout_Number(), layout);
  EXPECT_NE(database_->OpenRecordset("Notes").Layout_Number(), layout);
  database_.reset();
  EXPECT_EQ(Failure_Of([&] { rows.MoveFirst(); }), 3420);
}

TEST_F(Recordset_Test, What_Cannot_Be_Opened) {
  const std::vector<std::pair<std::string, int>> cases{
      {"Bottle", 3078},
      {"Record_Store_Tables", 3078},
      {"", 3075},
      {"DELETE FROM Bottles", 3075},
      {"SELECT * FROM Cellars", 3078},
      {"SELECT * FROM Bottles WHERE Nothing=1", 3075},
      {"SELECT * FROM Bottles WHERE Name='it's'", 3075},
      {"SELECT * FROM Bottles WHERE Name=''; DELETE FROM Bottles", 3075},
      {"SELECT * FROM Bottles WHERE Name=?", 3075},
      {"SELECT FROM", 3075},
      {"SELECTED", 3078}};
  Add_Bottles({"a"});
  for (const auto& refused : cases) {
    EXPECT_EQ(Failure_Of([&] { database_->OpenRecordset(refused.first); }), refused.second)
        << refused.first;
  }
  EXPECT_EQ(database_->OpenRecordset(" select * from BOTTLES where name='A' ;").RecordCount(), 1);
}
