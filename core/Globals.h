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

// ---- what the catalogues of places hand to each other ----

/// The short name of the country of the region, winery or class picked last, and the country that
/// a region is to be added in.
inline Text Current_Country_Short;
/// The key of a region just added on the way to a winery.
inline Integer New_Region_ID = 0;
/// The region that is worked on.
inline Long Selected_Region_ID = 0;
/// The label clicked last; its text comes back changed from a renaming, which sets the flag.
inline Integer Selected_Label_ID = 0;
inline Text Selected_Label_Text;
inline bool Label_Renamed_Flag = false;
/// The place of the class on show in the list, from 1.
inline Integer Selected_Classification_Index = 0;
/// Set where a photo was added to a region.
inline bool Photo_Added_Flag = false;

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
