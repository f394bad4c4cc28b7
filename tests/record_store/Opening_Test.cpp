// Opening and making data files, and what stands in them for others to see.
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>

#include "platform/record_store/Engine.h"
#include "platform/run_time/Run_Time_Error.h"
#include "tests/record_store/Store_Fixture.h"

using namespace Record_Store;

class Opening_Test : public Store_Test {
 protected:
  Opening_Test() {
    for (int i = 0; i < 400; ++i) Add_Bottle("Pomerol number " + std::to_string(i), i);
    database_->Commit();
    database_.reset();
  }
  std::string Bytes() const {
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void Replace(std::string_view bytes) const {
    std::ofstream(path_, std::ios::binary | std::ios::trunc) << bytes;
  }
  int Open_Failure(std::string_view connect = Right_Connect) const {
    return Failure_Of([&] { OpenDatabase(path_, false, false, connect); });
  }
};

TEST_F(Opening_Test, The_Password_Opens_And_Nothing_Else) {
  for (const char* connect : {"", ";PWD=", ";PWD=open9sesamE", "PWD=open9sesame ", ";DATABASE=x"}) {
    EXPECT_EQ(Open_Failure(connect), 3031) << connect;
  }
  for (const char* connect :
       {";PWD=open9sesame", "; DATABASE=a;pwd=open9sesame", "PWD=open9sesame;x"}) {
    EXPECT_EQ(Open_Failure(connect), 0) << connect;
  }
  Reopen();
  EXPECT_EQ(database_->OpenRecordset("Bottles").RecordCount(), 400);
}

TEST_F(Opening_Test, Nothing_Is_To_Be_Read_Without_It) {
  const std::string bytes = Bytes();
  for (const char* text : {"SQLite", "Pomerol", "Bottles", "CREATE", "Record_Store"}) {
    EXPECT_EQ(bytes.find(text), std::string::npos) << text;
  }
  // Every value of a byte is about as frequent as every other one.
  std::vector<int> counts(256);
  for (const char c : bytes) ++counts[static_cast<unsigned char>(c)];
  const auto [least, most] = std::ranges::minmax(counts);
  EXPECT_LT(most, 2 * least);
}

TEST_F(Opening_Test, Files_That_Are_No_Data_File) {
  const std::string whole = Bytes();
  ASSERT_GT(whole.size(), 8 * 4096U);
  std::string first_page_damaged = whole;
  first_page_damaged[200] ^= 1;
  const std::vector<std::pair<const char*, std::string>> files{
      {"empty", ""},
      {"a text", "This is no data file."},
      {"a text of whole pages", std::string(8192, 'a')},
      {"cut within a page", whole.substr(0, whole.size() - 100)},
      {"cut behind a page", whole.substr(0, 16384)},
      {"its first page only", whole.substr(0, 4096)},
      {"cut within the first page", whole.substr(0, 1000)},
      {"first page damaged", first_page_damaged},
      {"zeros", std::string(whole.size(), '\0')}};
  for (const auto& [what, bytes] : files) {
    Replace(bytes);
    EXPECT_EQ(Open_Failure(), 3343) << what;
    EXPECT_EQ(Bytes(), bytes) << what;
  }
  Replace(whole);
  EXPECT_EQ(Open_Failure(), 0);
}

TEST_F(Opening_Test, Failures_Name_The_File) {
  const auto message = [](const std::string& path) -> std::string {
    try {
      OpenDatabase(path, false, false, Right_Connect);
    } catch (const Run_Time_Error& error) {
      return error.Text();
    }
    return "";
  };
  const std::string absent = folder_ / "absent" / "x.mdb";
  EXPECT_EQ(message(absent), "Could not find file '" + absent + "'.");
  EXPECT_EQ(message(folder_), "Unrecognized database format '" + folder_.string() + "'.");
  EXPECT_FALSE(std::filesystem::exists(absent));
  const std::string loop = folder_ / "loop.mdb";
  std::filesystem::create_symlink(loop, loop);
  EXPECT_EQ(message(loop), "Disk or network error.\n" + loop);
  Engine(path_, Engine::Mode::Write, "open9sesame").Execute("PRAGMA user_version=2");
  EXPECT_EQ(message(path_), "Unrecognized database format '" + path_ +
                                "'.\nIt was made by a newer version of this program.");
}

// Permissions do not bind root, so a process of its own becomes somebody else, who owns the folder,
// and says the failure in which `action` ends.
[[noreturn]] static void Act_As_A_User(const std::filesystem::path& folder,
                                       const std::function<void()>& action) {
  constexpr unsigned nobody = 65534;
  if (geteuid() == 0) {
    bool done = chown(folder.c_str(), nobody, nobody) == 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      done = done && chown(entry.path().c_str(), nobody, nobody) == 0;
    }
    if (!done || setgid(nobody) != 0 || setuid(nobody) != 0) _exit(1);
  }
  try {
    action();
    std::cerr << "no failure";
  } catch (const Run_Time_Error& error) {
    std::cerr << error.Number() << ": " << error.Text();
  }
  _exit(chmod(folder.c_str(), S_IRWXU));
}

TEST_F(Opening_Test, What_Cannot_Be_Written_Is_Found_Before_Anything_Is_Read) {
  const std::string journal = path_ + "-journal";
  const auto Expect = [&](const std::string& said, const std::function<void()>& action) {
    EXPECT_EXIT(Act_As_A_User(folder_, action), testing::ExitedWithCode(0), said);
  };
  const auto Read_Only = [](const std::string& path) {
    return "3027: Cannot update. Database or object is read-only.\n" + path + "$";
  };
  const auto Forbid = [](const std::string& path, mode_t left) {
    EXPECT_EQ(chmod(path.c_str(), left), 0);
  };
  const auto Write = [&] {
    Reopen();
    Add_Bottle("late", 1);
    database_->Commit();
  };
  std::filesystem::remove(journal);
  Expect(Read_Only(folder_), [&] { Forbid(folder_, 0500), Write(); });
  Expect("no failure", [&] { Write(), Forbid(folder_, 0500), Write(); });
  Expect(Read_Only(journal), [&] { Forbid(journal, 0400), Write(); });
  std::filesystem::remove(journal);
  Expect(Read_Only(path_), [&] { Forbid(path_, 0400), Write(); });
  Expect("3043: Disk or network error.\n" + path_ + "$", [&] { Forbid(path_, 0200), Write(); });
  Forbid(path_, 0600);
  // The folder is closed while the file is open.
  Expect(Read_Only(folder_), [&] {
    Reopen();
    Forbid(folder_, 0500);
    Add_Bottle("late", 1);
  });
}

TEST_F(Opening_Test, Other_Files_Of_The_Engine_Are_Refused) {
  for (const char* mark : {"PRAGMA user_version=2", "PRAGMA user_version=0",
                           "PRAGMA user_version=1; PRAGMA application_id=7"}) {
    Engine(path_, Engine::Mode::Write, "open9sesame").Execute(mark);
    EXPECT_EQ(Open_Failure(), 3343) << mark;
  }
  const std::string plain = folder_ / "plain.mdb";
  sqlite3* handle = nullptr;
  sqlite3_open(plain.c_str(), &handle);
  sqlite3_exec(handle, "PRAGMA user_version=1; CREATE TABLE t (x)", nullptr, nullptr, nullptr);
  sqlite3_close(handle);
  EXPECT_EQ(Failure_Of([&] { OpenDatabase(plain, false, false, Right_Connect); }), 3343);
}

// A page that went bad is found when it is read, not before, and ends the reading.
TEST_F(Opening_Test, A_Damaged_Page_Is_Never_Read_As_Rows) {
  const std::string whole = Bytes();
  int found = 0;
  for (std::size_t page = 1; page < whole.size() / 4096; ++page) {
    std::string damaged = whole;
    damaged[page * 4096 + 1234] ^= 0x10;
    Replace(damaged);
    const int failure = Failure_Of([&] {
      const auto database = OpenDatabase(path_, false, false, Right_Connect);
      Recordset rows = database->OpenRecordset("Bottles");
      const std::vector<std::string> names = Walk(rows);
      EXPECT_EQ(names.size(), 400U);
      EXPECT_EQ(names.back(), "Pomerol number 399");
    });
    if (failure != 0) {
      EXPECT_EQ(failure, 3343) << page;
      ++found;
    }
  }
  EXPECT_GT(found, 3);  // the pages of the rows, between those of other tables and of indexes
}

TEST_F(Opening_Test, Reading_Only) {
  database_ = OpenDatabase(path_, false, true, Right_Connect);
  Recordset rows = database_->OpenRecordset("Bottles");
  EXPECT_EQ(rows["Name"].As_Text(), "Pomerol number 0");
  EXPECT_EQ(Failure_Of([&] { rows.AddNew(); }), 3027);
  EXPECT_EQ(Failure_Of([&] { rows.Delete(); }), 3027);
}

TEST_F(Opening_Test, Two_Open_Files_See_What_The_Other_Committed) {
  Reopen();
  const auto other = OpenDatabase(path_, false, false, Right_Connect);
  Recordset rows = database_->OpenRecordset("Bottles");
  Recordset theirs = other->OpenRecordset("Bottles");
  rows.Index("Bottle_ID");
  theirs.Index("Bottle_ID");
  for (int i = 0; i < 3; ++i) rows.Seek("=", 101);  // remembered
  EXPECT_EQ(rows.RecordCount(), 400);
  database_->Commit();
  theirs.Edit();
  theirs["Name"] = "changed";
  theirs.Update();
  theirs.AddNew();
  EXPECT_EQ(theirs["Bottle_ID"].As_Long(), 501);
  theirs.Update();
  other->Commit();
  rows.Seek("=", 101);
  EXPECT_EQ(rows["Name"].As_Text(), "changed");
  EXPECT_EQ(rows.RecordCount(), 401);
  rows.AddNew();
  EXPECT_EQ(rows["Bottle_ID"].As_Long(), 502);
}

TEST_F(Opening_Test, A_File_That_Another_Holds_Is_Locked) {
  auto holder = OpenDatabase(path_, true, false, Right_Connect);
  EXPECT_EQ(Open_Failure(), 3260);
  holder.reset();
  holder = OpenDatabase(path_, false, false, Right_Connect);
  Reopen();
  Recordset theirs = holder->OpenRecordset("Bottles");
  theirs.Delete();
  EXPECT_EQ(Failure_Of([&] { Add_Bottle("waits", 1); }), 3260);
  holder->Commit();
  EXPECT_EQ(Failure_Of([&] { Add_Bottle("comes", 1); }), 0);
  database_->Commit();
  EXPECT_EQ(theirs.RecordCount(), 400);
}

TEST_F(Opening_Test, New_Files_Replace_Nothing) {
  const std::string before = Bytes();
  const auto make = [](const std::string& path, std::string_view connect) {
    return Failure_Of([&] { Create_Database(path, connect, Test_Tables()); });
  };
  EXPECT_EQ(make(path_, Right_Connect), 3219);
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(make(folder_ / "new.mdb", ""), 3031);
  EXPECT_EQ(make(folder_ / "absent" / "new.mdb", Right_Connect), 76);
  EXPECT_EQ(make(folder_ / "new.mdb", Right_Connect), 0);
}

TEST_F(Opening_Test, The_File_And_Its_Journal_Are_For_Their_Owner_Only) {
  constexpr auto owner_only = std::filesystem::perms{0600};
  Reopen();
  Add_Bottle("private", 1);
  database_->Commit();
  EXPECT_EQ(std::filesystem::status(path_).permissions(), owner_only);
  EXPECT_EQ(std::filesystem::status(path_ + "-journal").permissions(), owner_only);
}
