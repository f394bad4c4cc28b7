#include "platform/run_time/Guard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;

// Writes down what the guard does, in order.
class Guard : public testing::Test {
 protected:
  void SetUp() override {
    Hooks().commit = [this] { done.emplace_back("commit"); };
    Hooks().settled = [this] { done.emplace_back("settled"); };
    Hooks().show = [this](const Run_Time_Error& error) {
      done.push_back("show " + std::to_string(error.Number()) + " " + error.Text());
      Run_Guarded([this] { done.emplace_back("a handler while the failure shows"); });
    };
    Hooks().end_process = [this](int status) { done.push_back("end " + std::to_string(status)); };
  }
  void TearDown() override {
    Hooks() = {};
    Reset_After_End_For_Tests();
  }
  std::vector<std::string> done;
};

TEST_F(Guard, The_outermost_handler_alone_commits_and_settles) {
  Run_Guarded([this] {
    done.emplace_back("outer");
    Run_Guarded([this] { done.emplace_back("inner"); });
    EXPECT_TRUE(Inside_Handler());
  });
  EXPECT_THAT(done, ElementsAre("outer", "inner", "commit", "settled"));
  EXPECT_FALSE(Inside_Handler());
}

TEST_F(Guard, A_failure_is_committed_shown_once_and_ends_the_run) {
  Run_Guarded([this] {
    Run_Guarded([] { Fail(Failure::No_Such_Table, "Blends"); });
    done.emplace_back("the outer handler's frame is left by the test's end only");
  });
  Run_Guarded([this] { done.emplace_back("a later handler"); });
  EXPECT_THAT(done,
              ElementsAre("commit", "show 3078 Cannot find the input table or query 'Blends'.",
                          "end 1", "the outer handler's frame is left by the test's end only"));
  EXPECT_TRUE(Process_Has_Ended());
}

TEST_F(Guard, A_commit_that_fails_does_not_hide_the_first_failure) {
  Hooks().commit = [] { Fail(Failure::Not_Enough_Space); };
  Run_Guarded([] { Fail(Failure::No_Current_Record); });
  EXPECT_THAT(done, ElementsAre("show 3021 No current record.", "end 1"));
}

TEST_F(Guard, A_failing_commit_at_the_end_of_a_handler_is_a_failure_of_the_run) {
  Hooks().commit = [] { Fail(Failure::Not_Enough_Space); };
  Run_Guarded([] {});
  EXPECT_THAT(done, ElementsAre("show 3026 Not enough space on disk.", "end 1"));
}

TEST_F(Guard, Foreign_exceptions_end_the_run_as_well) {
  Run_Guarded([] { throw std::bad_alloc(); });
  Reset_After_End_For_Tests();
  Run_Guarded([] { throw std::logic_error("x"); });
  EXPECT_THAT(done, ElementsAre("commit", "show 7 Out of memory", "end 1", "commit",
                                "show 51 Internal error", "end 1"));
}

}  // namespace
