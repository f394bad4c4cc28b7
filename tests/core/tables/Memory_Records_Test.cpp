// Init, Read and Write of the memory records, over every table by its description.
#include "core/Globals.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Mobile_Wines_DB.h"
#include "tests/core/tables/New_Data_File.h"
#include "tests/support/Expect_Failure.h"

namespace {

using Memory_Records = New_Data_File;
using Record_Store::Recordset;

// A value for the n-th member that no other member has, near the end of its type's range.
void Set(bool& value, int) { value = true; }
void Set(Integer& value, int n) { value = static_cast<Integer>(32000 + n); }
void Set(Long& value, int n) { value = -2000000000 - n; }
void Set(Single& value, int n) { value = 13.5F + static_cast<Single>(n) / 10; }
void Set(Currency& value, int n) { value = {100000000000000 + n}; }
void Set(Date& value, int n) { value = Date::Of(1947, 3, 5, 23, 59, n); }
void Set(Text& value, int n) { value = "'Rosé' 日本語 \"" + std::to_string(n); }

// Not inlined: g++ would see, for each record, the members of types that it does not have.
template <class Record>
[[gnu::noinline]] void Fill(const Tables::Table<Record>& table, Record& record) {
  int n = 0;
  for (const auto& field : table.Fields()) {
    std::visit([&](auto member) { Set(record.*member, ++n); }, field.Place());
    const auto* whole = std::get_if<Long Record::*>(&field.Place());
    const bool small = field.Schema().type == Record_Store::Field_Type::Integer;
    if (whole != nullptr && small) record.** whole = 32000 + n;
  }
}

template <class Record>
Record Filled(const Tables::Table<Record>& table) {
  Record record;
  Fill(table, record);
  return record;
}

template <class Record>
void Expect_Round_Trip(const Tables::Table<Record>& table) {
  const Record written = Filled(table);
  Recordset rows;
  Open_Table(rows, table.Name());
  rows.AddNew();
  table.Write(rows, written);
  rows.MoveLast();
  Record read;
  table.Read(rows, read);
  for (const auto& field : table.Fields())
    EXPECT_EQ(field.Same(written, read), field.Is_Written())
        << table.Name() << "." << field.Schema().name;
}

TEST_F(Memory_Records, Every_Table_Reads_What_It_Wrote) {
  Tables::For_Each_Table([](const auto& table) { Expect_Round_Trip(table); });
}

// Members without a default keep what the last row left in them; of all keys only that of a variety
// has a default. What is a function is asked anew.
TEST_F(Memory_Records, Init_Sets_Defaults_And_Leaves_Keys_Alone) {
  const Date moment = Date::Of(2026, 5, 1, 12, 30, 15);
  Set_Clock_For_Tests(&moment);
  Current_Cellar_ID = 2;
  Init_Wines_Record();
  Set_Clock_For_Tests(nullptr);
  EXPECT_EQ(Wines.Date_Added, moment);
  EXPECT_EQ(Wines.Cellar_ID, 2);
  Maridages = Filled(Maridages_Description);
  const Long cheese = Maridages.Cheese_ID;
  Init_Maridages_Record();
  EXPECT_EQ(Maridages.Cheese_ID, cheese);
  Tables::For_Each_Table([]<class Record>(const Tables::Table<Record>& table) {
    const Record filled = Filled(table);
    Record record = filled;
    table.Init(record);
    for (const auto& field : table.Fields()) {
      const bool is_key = field.Schema().counter || field.Schema().copy_of_counter;
      if (is_key) {
        EXPECT_EQ(field.Same(record, filled), table.Name() != "Varieties") << table.Name();
      }
    }
  });
}

TEST_F(Memory_Records, Query_Row_Of_A_General_Wine_Keeps_Other_Members) {
  Open_Table(Mobile_Wines_Recordset, "Mobile_Wines");
  Init_Mobile_Wines_Record();
  Mobile_Wines.Mobile_Wine_Name = "Merlot";
  Mobile_Wines_Recordset.AddNew();
  Write_Mobile_Wines_Record();
  Close_Table(Mobile_Wines_Recordset);
  Mobile_Wines = Filled(Mobile_Wines_Description);
  const Mobile_Wines_Record before = Mobile_Wines;
  Open_Query(Mobile_Wines_Query, "SELECT * FROM Mobile_Wines ORDER BY Mobile_Wine_Name");
  Read_Mobile_Wines_Query_Row();
  EXPECT_EQ(Mobile_Wines.Mobile_Wine_Name, "Merlot");
  EXPECT_EQ(Mobile_Wines.Mobile_Wine_ID, 20001);
  EXPECT_EQ(Mobile_Wines.Used, 0);
  EXPECT_EQ(Mobile_Wines.Mobile_Winery_Name, before.Mobile_Winery_Name);
  EXPECT_EQ(Mobile_Wines.Mobile_Wine_Merit, before.Mobile_Wine_Merit);
}

TEST_F(Memory_Records, Failures) {
  Open_Table(Regions_Recordset, "Regions");
  EXPECT_FAILURE(3021, Read_Regions_Record());
  EXPECT_FAILURE(3020, Write_Regions_Record());
  Regions_Recordset.AddNew();
  Regions_Recordset.Update();
  Regions_Recordset.MoveFirst();
  EXPECT_FAILURE(94, Read_Regions_Record());
  EXPECT_FAILURE(3078, Open_Table(Regions_Recordset, "Blends"));
  Recordset never_opened;
  EXPECT_FAILURE(91, Close_Table(never_opened));
  Wine_Cellar_DB.reset();
  EXPECT_FAILURE(91, Open_Table(Regions_Recordset, "Regions"));
}

}  // namespace
