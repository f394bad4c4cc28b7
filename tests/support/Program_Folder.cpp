#include "tests/support/Program_Folder.h"

#include <algorithm>
#include <filesystem>

#include "core/Gereral_Processes.h"
#include "main_window/Main_Window_Screens.h"
#include "platform/forms/Application.h"
#include "platform/record_store/Text_Order.h"
#include "platform/run_time/Guard.h"

namespace fs = std::filesystem;

namespace {

class Stand_In_Form : public Forms::Form {
 public:
  Stand_In_Form(const Text& name, const Texts& fields) : Form(name, name) {
    Forms::Places places;
    for (const Text& field : fields) {
      if (field.ends_with("_Text")) {
        boxes_.push_back(std::make_unique<Forms::Text_Box>(*this, field));
        places.emplace_back(*boxes_.back());
      } else {
        lists_.push_back(std::make_unique<Forms::List_Box>(*this, field));
        places.emplace_back(*lists_.back());
      }
    }
    places.emplace_back(Forms::Stretch());
    Set_Content(Forms::Column(places));
  }

 private:
  std::vector<std::unique_ptr<Forms::Text_Box>> boxes_;
  std::vector<std::unique_ptr<Forms::List_Box>> lists_;
};

}  // namespace

Texts Cells_of(const Text& row, const Text& separator) {
  Texts cells;
  std::size_t begin = 0;
  for (std::size_t end; (end = row.find(separator, begin)) != Text::npos;) {
    cells.push_back(row.substr(begin, end - begin));
    begin = end + separator.size();
  }
  cells.push_back(row.substr(begin));
  return cells;
}

bool Is_Sorted(const Texts& texts, bool descending) {
  return std::ranges::is_sorted(texts, [&](const Text& a, const Text& b) {
    return descending ? Compare_Texts(a, b) > 0 : Compare_Texts(a, b) < 0;
  });
}

Texts Rows_of(Record_Store::Database& file, const Text& statement) {
  Record_Store::Recordset rows = file.OpenRecordset(statement);
  Texts lines;
  for (; !rows.Eof(); rows.MoveNext()) {
    lines.emplace_back();
    for (int at = 0; at < rows.Field_Count(); ++at) {
      lines.back() += (at == 0 ? "" : "|") + rows.Fields(at).As_Text();
    }
  }
  return lines;
}

Program_Folder::Program_Folder() {
  fs::create_directories(folder_.Path("dbase"));
  fs::copy_file(DELIVERED_FOLDER "/dbase/Wine_Cellar.mdb", Data_File());
  Forms::Set_App_Path_For_Tests(Folder());
  Register_Main_Window_Screens();
}

Program_Folder::~Program_Folder() {
  Stop();
  for (const Text& name : stand_ins_) Forms::Screens::Register(name, nullptr);
}

void Program_Folder::Start() {
  Stop();
  Run_Guarded([] { Forms::Screen("Wine_Cellar_Form").Open(); });
}

void Program_Folder::Stop() {
  Forms::Screens::Clear_For_Tests();
  Hooks().commit = [] {};
  Wine_Cellar_DB.reset();
  Wine_System = {};
  Current_Command.clear();
  Cheese_Types.Clear();
}

void Program_Folder::Start_With(const char* entry) {
  Start();
  Pick(entry);
}

void Program_Folder::Open_Under(const char* screen, const char* command) {
  Current_Command = command;
  Run_Guarded([screen] { Forms::Screen(screen).Open(); });
  Settle_Events();
}

void Program_Folder::Stand_In(const Text& name, const Texts& fields) {
  Forms::Screens::Register(name, [=] { return std::make_unique<Stand_In_Form>(name, fields); });
  stand_ins_.push_back(name);
}

// One connection for the life of the test: to open one takes as long as a hundred statements.
Record_Store::Database& Program_Folder::File() const {
  if (!file_) {
    file_ = Record_Store::OpenDatabase(Data_File(), false, false, Connect_Text(Data_File()));
  }
  return *file_;
}

Texts Program_Folder::Stored(const Text& statement) const {
  Texts rows = Rows_of(File(), statement);
  if (changes_ == 0) File().Commit();
  return rows;
}

void Program_Folder::Change(const std::function<void(Record_Store::Database&)>& change) const {
  ++changes_;
  change(File());
  if (--changes_ == 0) File().Commit();
}

Long Program_Folder::Put(const char* table, const Row& row) const {
  Long key = 0;
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset rows = file.OpenRecordset(table);
    rows.AddNew();
    for (const Cell& cell : row) rows.Fields(cell.field) = cell.value;
    key = rows.Fields(0).Is_Null() ? 0 : rows.Fields(0).As_Long();
    rows.Update();
  });
  return key;
}

void Program_Folder::Set(const char* table, const Row& row) const {
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset rows = file.OpenRecordset(table);
    rows.Edit();
    for (const Cell& cell : row) rows.Fields(cell.field) = cell.value;
    rows.Update();
  });
}

void Program_Folder::Set_Language(Integer number) const {
  Set("Wine_System", {{"System_Language_Number", number}});
}

void Program_Folder::Remove_Rows(const char* table, const Condition& condition) const {
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset rows = file.OpenRecordset(table);
    for (; !rows.Eof(); rows.MoveNext()) {
      if (!condition || condition(rows)) rows.Delete();
    }
  });
}

void Program_Folder::Name_Cellars_In_File() const {
  Set("Cellars", {{"Cellar_Name", "Home"}});
  Put("Cellars", {{"Cellar_Name", "Office"}});
}
