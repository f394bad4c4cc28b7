// Adding, editing, seeking: what is kept, what is dropped, what is refused.
#include "platform/run_time/Conversions.h"
#include "tests/record_store/Store_Fixture.h"

using namespace Record_Store;

using Names = std::vector<std::string>;
using Change_Test = Store_Test;
using Seek_Test = Store_Test;

// ---- new rows ----

TEST_F(Change_Test, Counters_Grow_By_One_And_Are_Never_Given_Twice) {
  Recordset rows = database_->OpenRecordset("Bottles");
  const auto add = [&](bool store) {
    rows.AddNew();
    const Long number = rows["Bottle_ID"].As_Long();
    EXPECT_EQ(rows["ID"].As_Long(), number);
    if (store) rows.Update();
    return number;
  };
  EXPECT_EQ(add(true), 101);
  EXPECT_EQ(add(true), 102);
  EXPECT_EQ(add(false), 103);
  EXPECT_EQ(add(true), 104);
  rows.MoveLast();
  EXPECT_EQ(rows["Bottle_ID"].As_Text(), "104");
  rows.Delete();
  EXPECT_EQ(add(true), 105);
  rows.MoveLast();
  rows.Delete();
  database_->Commit();
  Reopen();
  rows = database_->OpenRecordset("Bottles");
  EXPECT_EQ(add(true), 106);
}

TEST_F(Change_Test, A_Counter_Ends_With_Its_Type_And_Is_Not_Assigned) {
  Recordset rows = database_->OpenRecordset("Shelves");
  for (const char* shelf : {"left", "right"}) {
    rows.AddNew();
    EXPECT_EQ(Failure_Of([&] { rows["Number"] = 5; }), 3219);
    rows["Shelf"] = shelf;
    rows.Update();
    EXPECT_EQ(rows.Numbers_Left(), shelf == Text("left") ? 1 : 0);
  }
  EXPECT_EQ(Failure_Of([&] { rows.AddNew(); }), 6);
  rows.MoveFirst();
  EXPECT_EQ(Walk(rows, "Number"), (Names{"32766", "32767"}));
}

TEST_F(Change_Test, A_New_Row_Is_Null_Where_Nothing_Was_Assigned) {
  Recordset rows = database_->OpenRecordset("Bottles");
  rows.AddNew();
  rows["Rack"] = 3;
  EXPECT_TRUE(rows["Name"].Is_Null());
  EXPECT_EQ(rows["Rack"].As_Long(), 3);
  rows.Update();
  rows.MoveFirst();
  EXPECT_TRUE(rows["Name"].Is_Null());
  EXPECT_EQ(Failure_Of([&] { rows["Name"].As_Text(); }), 94);
  EXPECT_EQ(Failure_Of([&] { rows["Full"].As_Boolean(); }), 94);
  EXPECT_EQ(rows["ID"].As_Long(), 101);
}

TEST_F(Change_Test, Without_A_Counter_Rows_Stand_As_They_Were_Added) {
  Recordset rows = database_->OpenRecordset("Notes");
  Recordset other = database_->OpenRecordset("Notes");
  const auto add = [&](Long bottle) {
    rows.AddNew();
    rows["Bottle"] = bottle;
    rows.Update();
  };
  for (const Long bottle : {7, 3, 7, 1}) add(bottle);
  other.MoveLast();
  other.Delete();
  add(9);  // behind the deleted row, where the other stands, and never in its place
  EXPECT_EQ(Failure_Of([&] { other["Bottle"].As_Long(); }), 3167);
  other.MoveNext();
  EXPECT_EQ(other["Bottle"].As_Long(), 9);
  rows.MoveFirst();
  EXPECT_EQ(Walk(rows, "Bottle"), (Names{"7", "3", "7", "9"}));
}

// ---- edited rows ----

TEST_F(Change_Test, Only_Assigned_Fields_Are_Written) {
  const Long id = Add_Bottle("a", 1);
  Recordset first = database_->OpenRecordset("Bottles");
  Recordset second = database_->OpenRecordset("Bottles");
  first.Edit();
  second.Edit();
  first["Rack"] = 8;
  second["Name"] = "z";
  first.Update();
  second.Update();
  first.Index("Bottle_ID");
  first.Seek("=", id);
  EXPECT_EQ(first["Name"].As_Text() + first["Rack"].As_Text(), "z8");
}

TEST_F(Change_Test, Nothing_Is_Assigned_Or_Updated_Without_A_Beginning) {
  Add_Bottles({"a"});
  Recordset rows = database_->OpenRecordset("Bottles");
  EXPECT_EQ(Failure_Of([&] { rows["Name"] = "b"; }), 3020);
  EXPECT_EQ(Failure_Of([&] { rows["Name"].Set_Null(); }), 3020);
  EXPECT_EQ(Failure_Of([&] { rows.Update(); }), 3020);
  rows.MoveNext();
  EXPECT_EQ(Failure_Of([&] { rows.Edit(); }), 3021);
  EXPECT_EQ(Failure_Of([&] { rows.Delete(); }), 3021);
}

// What a failure left unfinished goes; what was stored before it in the same burst stays.
TEST_F(Change_Test, A_Unique_Key_Knows_No_Case_And_A_Failed_Update_Takes_Nothing_With_It) {
  Recordset rows = database_->OpenRecordset("Shelves");
  rows.AddNew();
  rows["Shelf"] = "Rosé";
  rows.Update();
  Add_Bottle("before", 1);
  rows.MoveFirst();
  rows.AddNew();
  rows["Shelf"] = "ROSE\u0301";
  EXPECT_EQ(Failure_Of([&] { rows.Update(); }), 3022);
  database_->Commit();
  Reopen();
  Recordset bottles = database_->OpenRecordset("Bottles");
  EXPECT_EQ(Walk(bottles), (Names{"before"}));
}

TEST_F(Change_Test, A_Row_Being_Added_Survives_A_Commit) {
  Recordset rows = database_->OpenRecordset("Bottles");
  rows.AddNew();
  rows["Name"] = "kept";
  database_->Commit();
  rows["Rack"] = 4;
  rows.Update();
  rows.MoveFirst();
  EXPECT_EQ(rows["Name"].As_Text() + rows["Rack"].As_Text(), "kept4");
}

// While a file is being built its rows may bring their own numbers.
TEST_F(Change_Test, Numbers_Are_Assigned_While_A_File_Is_Built) {
  const std::string path = folder_ / "Built.mdb";
  const auto built = Create_Database(path, Right_Connect, Test_Tables());
  Recordset rows = built->OpenRecordset("Bottles");
  for (const Long number : {500, 300, 0}) {
    rows.AddNew();
    if (number != 0) rows["Bottle_ID"] = number;
    EXPECT_EQ(rows["ID"].As_Long(), rows["Bottle_ID"].As_Long());
    rows.Update();
  }
  rows.MoveFirst();
  EXPECT_EQ(Walk(rows, "ID"), (Names{"300", "500", "502"}));
  rows.MoveFirst();
  rows.Edit();
  EXPECT_EQ(Failure_Of([&] { rows["Bottle_ID"] = 7; }), 3219);
}

// ---- search ----

TEST_F(Seek_Test, Keys_Are_Taken_As_The_Type_Of_Their_Field) {
  Add_Bottle("12", 7);
  Add_Bottle("Rosé", 7);
  Add_Bottle("ROSE", 8);
  Recordset rows = database_->OpenRecordset("Bottles");
  const auto found = [&](const char* index, const Key& key) {
    rows.Index(index);
    rows.Seek("=", key);
    return rows.NoMatch() ? "-" : rows["Name"].As_Text();
  };
  EXPECT_EQ(found("name", "ROSÉ"), "Rosé");
  EXPECT_EQ(found("NAME", "rose"), "ROSE");
  EXPECT_EQ(found("Name", "ros"), "-");
  EXPECT_EQ(found("Name", 12), "12");
  EXPECT_EQ(found("Name", 12.0), "12");
  EXPECT_EQ(found("Name", "12 "), "-");
  EXPECT_EQ(found("Bottle_ID", 102), "Rosé");
  EXPECT_EQ(found("Bottle_ID", "102"), "Rosé");
  EXPECT_EQ(found("Bottle_ID", " 102 "), "Rosé");
  EXPECT_EQ(found("Bottle_ID", 102.0), "Rosé");
  EXPECT_EQ(found("Bottle_ID", 102.5), "-");
  EXPECT_EQ(found("Bottle_ID", "x"), "-");
  EXPECT_EQ(found("Bottle_ID", ""), "-");
  EXPECT_EQ(found("Group", "8"), "ROSE");
  EXPECT_EQ(found("Group", "eight"), "-");
}

TEST_F(Seek_Test, What_Cannot_Be_Sought) {
  Recordset rows = database_->OpenRecordset("Bottles");
  EXPECT_FALSE(rows.NoMatch());
  EXPECT_EQ(Failure_Of([&] { rows.Seek("=", 1); }), 3019);
  EXPECT_EQ(Failure_Of([&] { rows.Index("Price"); }), 3015);
  rows.Index("Group");
  EXPECT_EQ(Failure_Of([&] { rows.Seek(">=", 1); }), 5);
  EXPECT_EQ(Failure_Of([&] { rows.Seek("=", 1, "a", 2); }), 5);
  rows.Seek("=", 99);
  rows.AddNew();
  rows.Update();
  EXPECT_EQ(Failure_Of([&] { rows["Name"].As_Text(); }), 3021);
}

// ---- values ----

TEST_F(Change_Test, Every_Type_Comes_Back_As_It_Was) {
  Recordset rows = database_->OpenRecordset("Bottles");
  rows.AddNew();
  rows["Name"] = "007";
  rows["Rack"] = -2147483647 - 1;
  rows["Row"] = Integer{-32768};
  rows["Litres"] = 0.1F;
  rows["Price"] = Currency{-9223372036854775807};
  rows["Bought"] = Date::Of(1899, 12, 30, 23, 59, 59);
  rows["Full"] = true;
  rows.Update();
  database_->Commit();
  Reopen();
  rows = database_->OpenRecordset("Bottles");
  EXPECT_EQ(rows["Name"].As_Text(), "007");
  EXPECT_EQ(rows["Rack"].As_Long(), -2147483647 - 1);
  EXPECT_EQ(rows["Row"].As_Integer(), -32768);
  EXPECT_EQ(rows["Litres"].As_Single(), 0.1F);
  EXPECT_EQ(rows["Price"].As_Currency().ten_thousandths, -9223372036854775807);
  EXPECT_EQ(rows["Bought"].As_Date(), Date::Of(1899, 12, 30, 23, 59, 59));
  EXPECT_TRUE(rows["Full"].As_Boolean());
  rows.Edit();
  rows["Litres"] = 2.0F;  // lies in the file as a whole number
  rows["Name"] = std::string("a\0b", 3);
  rows.Update();
  rows.MoveFirst();
  EXPECT_EQ(rows["Litres"].As_Single(), 2.0F);
  EXPECT_EQ(rows["Litres"].As_Text(), "2");
  EXPECT_EQ(rows["Full"].As_Text(), "True");
  EXPECT_EQ(rows["Name"].As_Text(), std::string("a\0b", 3));
}

TEST_F(Change_Test, Values_That_Do_Not_Fit_Are_Refused) {
  Add_Bottles({"twelve"});
  Recordset rows = database_->OpenRecordset("Bottles");
  rows.Edit();
  const std::vector<std::pair<std::function<void()>, int>> cases{
      {[&] { rows["Name"].As_Long(); }, 13},
      {[&] { rows["Name"].As_Date(); }, 13},
      {[&] { rows["Rack"] = "many"; }, 13},
      {[&] { rows["Rack"] = std::int64_t{2147483648}; }, 6},
      {[&] { rows["Row"] = 32768; }, 6},
      {[&] { rows["Row"] = "40000"; }, 6},
      {[&] { rows["Litres"] = 1e39; }, 6},
      {[&] { rows["Price"] = 1e15; }, 6},
      {[&] { rows["Price"] = std::int64_t{922337203685478}; }, 6},
      {[&] { rows["Bought"] = 5; }, 13},
      {[&] { rows["Bought"] = "soon"; }, 13},
      {[&] { rows["Rack"] = No_Date; }, 13},
      {[&] { rows["Full"] = "perhaps"; }, 13},
      {[&] { rows["Rack"] = 40000, static_cast<void>(rows["Rack"].As_Integer()); }, 6}};
  for (std::size_t i = 0; i < cases.size(); ++i) {
    EXPECT_EQ(Failure_Of(cases[i].first), cases[i].second) << i;
  }
}
