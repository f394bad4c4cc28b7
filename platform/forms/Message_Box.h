// The program's modal boxes. What was written so far is durable before one shows; while one is up,
// nothing else of the program can be reached.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

/// What a box is about, shown as the desktop's picture for it: something was done, a value or a
/// wish was refused, the run ends, the user is asked.
enum class Sign { Information, Warning, Critical, Question };
enum class Answer { No, Yes };

/// One box with OK. Esc is OK. A key that is down when a box comes up does nothing in it before it
/// was let go.
void Message_Box(std::string_view text, std::string_view title, Sign sign = Sign::Information);

/// A box with Yes and No: True for Yes. Esc and the frame's close are No; Enter is `by_enter` at
/// first, to be No where Yes removes something.
bool Ask_Yes_No(std::string_view text, std::string_view title, Answer by_enter = Answer::Yes);

/// The box that ends a run: "Run-time error 'N':", an empty line, the failure's text, OK.
void Show_Failure(const Run_Time_Error& error);

/// What a box says, for those who watch.
struct Box {
  std::string title;
  std::string text;
  bool asks = false;  ///< Yes and No, not OK
  Sign sign = Sign::Information;
  Answer by_enter = Answer::Yes;
};

/// For tests: each box is told to `watcher` first. An answer (True: OK or Yes) takes the place of
/// the box; with none the real box is shown. An empty function takes the watcher away.
void Watch_Boxes_For_Tests(std::function<std::optional<bool>(const Box&)> watcher);

/// How many boxes there have been in this run.
int Boxes_Shown();
/// Whether one is up now, or asks a test's watcher.
bool Box_Is_Up();

}  // namespace Forms
