// Disks that are full or fail in the middle of a write, and how often a burst makes them sync.
#include "tests/record_store/Store_Fixture.h"
#include "tests/record_store/Watched_Disk.h"

using namespace Record_Store;
using Watched_Disk::Fault;

class Disk_Test : public Store_Test {
 protected:
  Disk_Test() {
    Watched_Disk::Install();
    Reopen();
    for (int i = 0; i < 300; ++i) Add_Bottle("first " + std::to_string(i), i);
    database_->Commit();
  }
  ~Disk_Test() override { Watched_Disk::Repair(); }

  // Rows on many pages, so that the disk has much to do: some new, some changed, some deleted.
  void Burst() {
    for (int i = 0; i < 20; ++i) Add_Bottle("second", -1);
    Recordset rows = database_->OpenRecordset("Bottles");
    for (int i = 0; i < 250; i += 25) {
      rows.Index("Bottle_ID");
      rows.Seek("=", 101 + i);
      rows.Edit();
      rows["Name"] = "second";
      rows.Update();
    }
    rows.MoveFirst();
    rows.MoveNext();
    rows.Delete();
    database_->Commit();
  }
  // "first" where nothing of the burst is there, "second" where all of it is.
  std::string State() {
    Recordset rows = database_->OpenRecordset("Bottles");
    rows.Index("Name");
    rows.Seek("=", "second");
    int second = 0;
    for (; !rows.NoMatch() && !rows.Eof() && rows["Name"].As_Text() == "second"; rows.MoveNext()) {
      ++second;
    }
    const Long count = rows.RecordCount();
    database_->Commit();
    if (second == 0 && count == 300) return "first";
    if (second == 30 && count == 319) return "second";
    return "torn: " + std::to_string(second) + " of " + std::to_string(count);
  }
  void Expect_Sound() {
    database_.reset();
    EXPECT_TRUE(Is_Sound());
  }
};

struct Breakage {
  const char* name;
  Fault fault;
  int number;
};

class Broken_Disk_Test : public Disk_Test, public testing::WithParamInterface<Breakage> {};

// The disk breaks at its first operation in the burst, at its second, and so on, until one burst
// gets through: each time the failure is clear and the file is as before, or, when only the last
// sync of all failed, as after the burst.
TEST_P(Broken_Disk_Test, A_Burst_Is_Stored_Whole_Or_Not_At_All) {
  const std::filesystem::path kept = folder_ / "kept.mdb";
  std::filesystem::copy_file(path_, kept);
  int failures = 0;
  for (int operation = 0;; operation += operation < 12 ? 1 : 5) {
    ASSERT_LT(operation, 500);
    Watched_Disk::Break(GetParam().fault, operation);
    const int failure = Failure_Of([&] { Burst(); });
    Watched_Disk::Repair();
    if (failure == 0) break;
    ++failures;
    ASSERT_EQ(failure, GetParam().number) << operation;
    EXPECT_EQ(Failure_Of([&] { database_->Commit(); }), 0) << operation;
    const std::string here = State();
    Reopen();
    EXPECT_EQ(State(), here) << operation;
    ASSERT_TRUE(here == "first" || (GetParam().fault == Fault::Sync_Fails && here == "second"))
        << operation << here;
    Expect_Sound();
    std::filesystem::copy_file(kept, path_, std::filesystem::copy_options::overwrite_existing);
    Reopen();
  }
  EXPECT_GE(failures, GetParam().fault == Fault::Sync_Fails ? 3 : 10);
  EXPECT_EQ(State(), "second");
  Expect_Sound();
}

INSTANTIATE_TEST_SUITE_P(Faults, Broken_Disk_Test,
                         testing::Values(Breakage{"Full", Fault::Full, 3026},
                                         Breakage{"Write", Fault::Write_Fails, 3043},
                                         Breakage{"Sync", Fault::Sync_Fails, 3043}),
                         [](const auto& breakage) { return std::string(breakage.param.name); });

TEST_F(Disk_Test, A_Burst_Is_Four_Syncs_And_Reading_Is_None) {
  Watched_Disk::Count_From_Zero();
  Burst();
  EXPECT_GE(Watched_Disk::Syncs(), 2);
  EXPECT_LE(Watched_Disk::Syncs(), 4);
  Watched_Disk::Count_From_Zero();
  EXPECT_EQ(State(), "second");
  EXPECT_EQ(Watched_Disk::Syncs() + Watched_Disk::Writes(), 0);
  EXPECT_EQ(std::filesystem::file_size(path_ + "-journal"), 0U);
}
