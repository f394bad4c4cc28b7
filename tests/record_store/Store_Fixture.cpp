#include "tests/record_store/Store_Fixture.h"

#include "platform/record_store/Engine.h"
#include "platform/record_store/Rows.h"
#include "platform/run_time/Run_Time_Error.h"

using namespace Record_Store;

int Failure_Of(const std::function<void()>& action) {
  try {
    action();
  } catch (const Run_Time_Error& error) {
    return error.Number();
  }
  return 0;
}

const std::vector<Table_Schema>& Test_Tables() {
  using enum Field_Type;
  static const std::vector<Table_Schema> tables{
      {.name = "Bottles",
       .fields = {{.name = "Bottle_ID", .type = Long, .counter = true},
                  {.name = "Name"},
                  {.name = "Rack", .type = Long},
                  {.name = "Row", .type = Integer},
                  {.name = "Litres", .type = Single},
                  {.name = "Price", .type = Currency},
                  {.name = "Bought", .type = Date},
                  {.name = "Full", .type = Boolean},
                  {.name = "ID", .type = Long, .copy_of_counter = true}},
       .indexes = {{.name = "Bottle_ID", .fields = {"Bottle_ID"}, .unique = true},
                   {.name = "NAME", .fields = {"Name"}},
                   {.name = "GROUP", .fields = {"Rack", "Name"}}},
       .first_counter = 101},
      {.name = "Notes",
       .fields = {{.name = "Bottle", .type = Long}, {.name = "GROUP", .type = Integer}},
       .indexes = {{.name = "Bottle", .fields = {"Bottle"}}}},
      {.name = "Shelves",
       .fields = {{.name = "Shelf"}, {.name = "Number", .type = Integer, .counter = true}},
       .indexes = {{.name = "Shelf", .fields = {"Shelf"}, .unique = true}},
       .first_counter = 32766},
  };
  return tables;
}

Store_Test::Store_Test() {
  path_ = folder_ / "Test.mdb";
  Create_Database(path_, Right_Connect, Test_Tables())->Commit();
  Reopen();
}

Store_Test::~Store_Test() = default;

void Store_Test::Reopen() {
  database_.reset();
  database_ = OpenDatabase(path_, false, false, Right_Connect);
}

Long Store_Test::Add_Bottle(std::string_view name, Long rack) {
  Recordset bottles = database_->OpenRecordset("Bottles");
  bottles.AddNew();
  const Long id = bottles["Bottle_ID"].As_Long();
  bottles["Name"] = name;
  bottles["Rack"] = rack;
  bottles.Update();
  return id;
}

void Store_Test::Add_Bottles(std::initializer_list<std::string_view> names) {
  for (const std::string_view name : names) Add_Bottle(name, 1);
  database_->Commit();
}

std::vector<std::string> Store_Test::Walk(Recordset& rows, std::string_view field) {
  std::vector<std::string> values;
  for (; !rows.Eof(); rows.MoveNext()) {
    values.push_back(rows[field].Is_Null() ? "(null)" : rows[field].As_Text());
  }
  return values;
}

bool Store_Test::Is_Sound() const {
  const Engine engine(path_, Engine::Mode::Write, "open9sesame");
  const Statement check = engine.Prepare("PRAGMA integrity_check");
  return engine.Step(check.get()) && Column_Value(check.get(), 0).text == "ok";
}
