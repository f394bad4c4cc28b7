// What the main window says of the user's cellars: the entries of its menu, and its title.
#pragma once

#include <string_view>

#include "platform/run_time/Values.h"

/// The words of the language that the captions are put together from. The main window reads them
/// with its own.
inline Text Current_Cellar_Word;
inline Text Cellar_Word;
inline Text For_Pairings_Word;
inline Text With_Word;

/// Brings the menu into line with `Cellars`, and makes the first cellar the current one. Leaves
/// `Cellars` open where no cellars are named.
void Set_Cellar_Menu();
/// The menu of a user who has named cellars: entries shown and captioned. `first` and `second` are
/// the cellars' names; what speaks of the current cellar takes `Current_Cellar_Name`.
void Show_Named_Cellars(std::string_view first, std::string_view second);
/// The title, and the entries that speak of the current cellar.
void Caption_Current_Cellar();
/// The title alone.
void Caption_Main_Window();
