// What every screen shares of start-up: the operation under way, the cellar, the language, the
// file.
#pragma once

#include "platform/run_time/Values.h"

/// The operation under way, set by the menu entry that begins it; keeps its value after a screen
/// closes.
inline Text Current_Command;

/// `Cellar_Name` of the current cellar, "x" while no cellars are named.
inline Text Current_Cellar_Name;

/// The language number in force: 3 English, 4 Spanish, 5 French, 6 German, 7 Italian, 8 Japanese,
/// 9 Portuguese. Set at start-up.
inline Integer System_Language = 0;

/// Carriage return and line feed, joined into messages. Set at start-up.
inline Text New_Line;

/// True from the start until the first set-up has loaded.
inline bool First_Run = false;

/// Set by the catalogue screens when a region or a label changed; cleared when the main window
/// comes to the front.
inline bool Region_Or_Label_Changed = false;

/// A text handed from a list screen to the screen that called it.
inline Text Selected_Text;

/// While True the events of the entry fields do nothing: code is setting their values.
inline bool Ignore_Events = false;

/// Ignore_Events is True as long as this lives, and afterwards what it was before.
class Ignoring_Events {
 public:
  Ignoring_Events() { Ignore_Events = true; }
  ~Ignoring_Events() { Ignore_Events = before_; }
  Ignoring_Events(const Ignoring_Events&) = delete;
  Ignoring_Events& operator=(const Ignoring_Events&) = delete;

 private:
  bool before_ = Ignore_Events;
};

/// While True a click on a taste or aroma box is undone.
inline bool Checks_Locked = false;

/// The key, as text, of the wine that another screen asks the wine screen to show.
inline Text Requested_Wine_Text;

/// The shared reference file, which is named but never opened. Set at start-up.
inline Text Shared_DB_Path;
