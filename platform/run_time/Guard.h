// The event border: the one place where a failure ends its way.
#pragma once

#include <functional>

#include "platform/run_time/Run_Time_Error.h"

/// What the guard needs of the layers above. Each is set once by the layer that owns it.
struct Guard_Hooks {
  /// Makes every write durable and gives up all locks on the data file. Called at the end of each
  /// outermost handler, before each message box and before a failure ends the run.
  std::function<void()> commit = [] {};
  /// Shows a failure in one message box.
  std::function<void(const Run_Time_Error&)> show = [](const Run_Time_Error&) {};
  /// Called at the end of each outermost handler, after the commit.
  std::function<void()> settled = [] {};
  /// Called before the process ends by End_Process, which closes nothing.
  std::function<void()> ending = [] {};
  /// Ends the process at once with this exit status. A test's own function may return; then nothing
  /// else of the program runs until Reset_After_End_For_Tests.
  std::function<void(int status)> end_process;
};

Guard_Hooks& Hooks();

/// Runs one event handler, or the start of the program. A Run_Time_Error (or any other exception)
/// that reaches this border: what was written is committed, the failure is shown once, the process
/// ends with status 1. A handler that runs inside another one's call is part of that one: only the
/// outermost commits at its end.
void Run_Guarded(const std::function<void()>& handler);

/// True while any handler runs.
bool Inside_Handler();

/// Commits now, from inside a handler: what was written is durable before anything is shown.
void Commit_Before_Showing();

/// Ends the process at once with this status, nothing closed, nothing asked.
void End_Process(int status);

/// True after End_Process returned in a test: handlers are no longer run.
bool Process_Has_Ended();
void Reset_After_End_For_Tests();
