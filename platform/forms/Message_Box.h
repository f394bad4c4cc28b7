// The program's modal boxes. What was written so far is durable before one shows; while one is up,
// nothing else of the program can be reached.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

/// One box with OK. Esc is OK.
void Message_Box(std::string_view text, std::string_view title);

/// A box with Yes and No: True for Yes. Esc and the frame's close are No.
bool Ask_Yes_No(std::string_view text, std::string_view title);

/// The box that ends a run: "Run-time error 'N':", an empty line, the failure's text, OK.
void Show_Failure(const Run_Time_Error& error);

/// What a box says, for those who watch.
struct Box {
  std::string title;
  std::string text;
  bool asks = false;  ///< Yes and No, not OK
};

/// For tests: each box is told to `watcher` first. An answer (True: OK or Yes) takes the place of
/// the box; with none the real box is shown. An empty function takes the watcher away.
void Watch_Boxes_For_Tests(std::function<std::optional<bool>(const Box&)> watcher);

/// How many boxes there have been in this run.
int Boxes_Shown();
/// Whether one is up now, or asks a test's watcher.
bool Box_Is_Up();

}  // namespace Forms
