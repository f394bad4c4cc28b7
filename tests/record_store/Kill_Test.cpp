// A program that writes is killed at any instant.
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
  // The writer runs until its first commit and `microseconds` more. Returns the last number that it
  // said was stored.
  Long Run_And_Kill(int microseconds) {
    std::array<int, 2> pipe_ends{};
    EXPECT_EQ(pipe2(pipe_ends.data(), O_CLOEXEC), 0);
    const pid_t writer = fork();
    if (writer == 0) {
      dup2(pipe_ends[1], STDOUT_FILENO);
      execl(WRITE_STREAM, WRITE_STREAM, path_.c_str(), Right_Connect.c_str(), nullptr);
      _exit(127);
    }
    close(pipe_ends[1]);
    pollfd said{pipe_ends[0], POLLIN, 0};
    EXPECT_EQ(poll(&said, 1, 60000), 1);
    usleep(static_cast<useconds_t>(microseconds));
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    std::string lines;
    std::array<char, 4096> part{};
    for (ssize_t length = 0; (length = read(pipe_ends[0], part.data(), part.size())) > 0;) {
      lines.append(part.data(), static_cast<std::size_t>(length));
    }
    close(pipe_ends[0]);
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
