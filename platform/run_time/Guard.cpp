#include "platform/run_time/Guard.h"

#include <cstdlib>
#include <new>

namespace {

int depth = 0;
bool ended = false;

// The failure's box is a modal dialog: while it is up, timers and paint events still arrive, and a
// second failure among them must not put up a second box.
void End_By(const Run_Time_Error& error) {
  if (ended) return;
  ended = true;
  try {
    Hooks().commit();
  } catch (const std::exception&) {
    // The file cannot take more; what it holds is what was durable before. The first failure is
    // the one to show.
  }
  Hooks().show(error);
  End_Process(1);
}

struct Depth_Mark {
  Depth_Mark() { ++depth; }
  ~Depth_Mark() { --depth; }
  Depth_Mark(const Depth_Mark&) = delete;
  Depth_Mark& operator=(const Depth_Mark&) = delete;
};

}  // namespace

Guard_Hooks& Hooks() {
  static Guard_Hooks hooks;
  return hooks;
}

void Run_Guarded(const std::function<void()>& handler) {
  if (ended) return;
  const Depth_Mark mark;
  try {
    handler();
    if (depth > 1 || ended) return;
    Hooks().commit();
    Hooks().settled();
  } catch (const Run_Time_Error& error) {
    End_By(error);
  } catch (const std::bad_alloc&) {
    End_By(Run_Time_Error(Failure::Out_Of_Memory));
  } catch (const std::exception&) {
    End_By(Run_Time_Error(Failure::Internal_Error));
  }
}

bool Inside_Handler() { return depth > 0; }

void Commit_Before_Showing() { Hooks().commit(); }

void End_Process(int status) {
  if (!ended) Hooks().ending();
  ended = true;
  if (Hooks().end_process) {
    Hooks().end_process(status);
    return;
  }
  std::_Exit(status);
}

bool Process_Has_Ended() { return ended; }

void Reset_After_End_For_Tests() { ended = false; }
