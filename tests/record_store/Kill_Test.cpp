// A program that writes is killed at any instant, or lets this one wait.
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <random>

#include "tests/record_store/Store_Fixture.h"

using namespace Record_Store;

class Kill_Test : public Store_Test {
 protected:
  struct Writer {
    pid_t process;
    int said;  // what it says can be read here
  };
  // Starts the writer, for ever or for one burst, and waits until it has said something.
  Writer Start_Writer(const char* once) const {
    std::array<int, 2> pipe_ends{};
    EXPECT_EQ(pipe2(pipe_ends.data(), O_CLOEXEC), 0);
    const pid_t writer = fork();
    if (writer == 0) {
      dup2(pipe_ends[1], STDOUT_FILENO);
      execl(WRITE_STREAM, WRITE_STREAM, path_.c_str(), Right_Connect.c_str(), once, nullptr);
      _exit(127);
    }
    close(pipe_ends[1]);
    pollfd said{pipe_ends[0], POLLIN, 0};
    EXPECT_EQ(poll(&said, 1, 60000), 1);
    return {writer, pipe_ends[0]};
  }

  // The writer runs until its first commit and `microseconds` more. Returns the last number that it
  // said was stored.
  Long Run_And_Kill(int microseconds) const {
    const Writer writer = Start_Writer(nullptr);
    usleep(static_cast<useconds_t>(microseconds));
    kill(writer.process, SIGKILL);
    waitpid(writer.process, nullptr, 0);
    std::string lines;
    std::array<char, 4096> part{};
    for (ssize_t length = 0; (length = read(writer.said, part.data(), part.size())) > 0;) {
      lines.append(part.data(), static_cast<std::size_t>(length));
    }
    close(writer.said);
    // A line that the kill cut off is no word given.
    const std::size_t end = lines.rfind('\n');
    if (end == std::string::npos) return 0;
    const std::size_t begin = end == 0 ? std::string::npos : lines.rfind('\n', end - 1);
    return std::stoi(lines.substr(begin == std::string::npos ? 0 : begin + 1));
  }

  // Bottles 101 to the last one, each with three notes, only the last one full: the bursts are
  // there without a gap and whole. Returns the last one.
  Long Check_Bursts() {
    Recordset bottles = database_->OpenRecordset("Bottles");
    Recordset notes = database_->OpenRecordset("Notes");
    notes.Index("Bottle");
    Long last = 100;
    for (; !bottles.Eof(); bottles.MoveNext()) {
      EXPECT_EQ(bottles["Bottle_ID"].As_Long(), ++last);
      EXPECT_EQ(bottles["Name"].As_Text().size(), static_cast<std::size_t>(last % 700));
      EXPECT_EQ(bottles["Full"].As_Boolean(), last == 100 + bottles.RecordCount());
      notes.Seek("=", last);
      int count = 0;
      for (; !notes.Eof() && notes["Bottle"].As_Long() == last; notes.MoveNext()) ++count;
      EXPECT_EQ(count, 3);
    }
    EXPECT_EQ(notes.RecordCount(), 3 * (last - 100));
    return last;
  }
};

TEST_F(Kill_Test, Every_Row_That_Was_Acknowledged_Is_There) {
  std::mt19937 chance(std::random_device{}());
  database_.reset();
  int bursts = 0;
  for (int kills = 0; kills < 50; ++kills) {
    const Long said = Run_And_Kill(static_cast<int>(chance() % 40000));
    ASSERT_GT(said, 100);
    // Whoever comes with a wrong password does no harm to a file that waits to be mended.
    if (kills % 10 == 0) {
      EXPECT_EQ(Failure_Of([&] { OpenDatabase(path_, false, false, ";PWD=wrong"); }), 3031);
    }
    Reopen();
    const Long last = Check_Bursts();
    EXPECT_GE(last, said);
    EXPECT_LE(last, said + 1);
    bursts = last - 100;
    database_.reset();
    ASSERT_TRUE(Is_Sound());
    if (HasFailure()) break;
  }
  EXPECT_GE(bursts, 50);
}

// The other one has the file for its writing, and commits as soon as this one lets go of what it
// reads: which is between its reading and its own first write.
TEST_F(Kill_Test, What_Was_Read_Before_Another_Wrote_Is_Not_Written_Back) {
  Add_Bottle("of both", 1);
  database_->Commit();
  Recordset bottles = database_->OpenRecordset("Bottles");
  const auto Take_One = [&] {
    bottles.MoveFirst();
    bottles.Edit();
    bottles["Rack"] = bottles["Rack"].As_Long() - 1;
    bottles.Update();
    database_->Commit();
  };
  EXPECT_EQ(bottles["Rack"].As_Long(), 1);
  const Writer other = Start_Writer("once");
  EXPECT_EQ(Failure_Of(Take_One), 3260);
  int status = -1;
  waitpid(other.process, &status, 0);
  close(other.said);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Failure_Of(Take_One), 0);
  Reopen();
  Recordset stored = database_->OpenRecordset("Bottles");
  EXPECT_EQ(stored["Rack"].As_Long(), 0);
  EXPECT_EQ(stored.RecordCount(), 2);
}
