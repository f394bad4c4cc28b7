// What the screens say beside captions and messages: what an empty list is waiting for, what keys
// do, why an entry cannot be chosen. Found by name; %1 and %2 stand for what the screen puts there.
#pragma once

#include "core/words/Screen_Words.h"

namespace Screen_Words {

struct Hint {
  std::string_view Variable;
  std::string_view English;  ///< stands where the data has no row
};

inline constexpr Hint No_Wines_Yet{"No_Wines_Yet", "No wines here yet. %1, %2 enters one."};
inline constexpr Hint First_Wine{"First_Wine",
                                 "No wines here yet. The one you enter above will be the first."};
inline constexpr Hint No_Wines_Found{"No_Wines_Found",
                                     "No wines to show. %1 leads back to the choice of pairings."};
inline constexpr Hint No_Wines_Fit{"No_Wines_Fit",
                                   "No wine fits. Choose another country, color or grape above."};
inline constexpr Hint Nothing_Chosen{"Nothing_Chosen",
                                     "Nothing chosen yet. Enter or a double click adds an entry."};
inline constexpr Hint No_Suggestions{"No_Suggestions",
                                     "Nothing is suggested for this grape. Choose another option."};
inline constexpr Hint No_Pairings_of_Wine{"No_Pairings_of_Wine",
                                          "No pairings yet. %1 chooses some."};
inline constexpr Hint First_Pairing{"First_Pairing", "No pairings yet. Type the first one below."};
inline constexpr Hint No_Pairings_Yet{"No_Pairings_Yet", "No pairings yet. %1, %2 enters one."};
inline constexpr Hint Pairings_First{"Pairings_First", "Choose pairings above, then %1."};
inline constexpr Hint Name_Cellars_First{"Name_Cellars_First", "Name your cellars first: %1, %2."};
inline constexpr Hint Picker_Keys{
    "Picker_Keys", "Type to find an entry. Enter or a double click adds it, Delete takes it out."};
inline constexpr Hint Picker_Full{"Picker_Full",
                                  "%1 entries are chosen, and more cannot be. Take one out first."};
inline constexpr Hint Picker_Full_Title{"Picker_Full_Title", "NO ROOM FOR MORE"};
inline constexpr Hint First_Shown{"First_Shown", "The first %1 are shown."};
inline constexpr Hint One_Removed{"One_Removed", "%1 of the wines found was removed."};
inline constexpr Hint Several_Removed{"Several_Removed", "%1 of the wines found were removed."};
inline constexpr Hint Leave_Entered_Wine{
    "Leave_Entered_Wine", "What was entered for this wine is not stored. Leave it unstored?"};
inline constexpr Hint Leave_Entered_Row{"Leave_Entered_Row",
                                        "What was entered is not stored. Leave it unstored?"};
inline constexpr Hint Faults_Mended{"Faults_Mended", "known faults mended"};

inline constexpr std::array<Hint, 20> Hints{
    {No_Wines_Yet,    First_Wine,         No_Wines_Found,      No_Wines_Fit,
     Nothing_Chosen,  No_Suggestions,     No_Pairings_of_Wine, First_Pairing,
     No_Pairings_Yet, Pairings_First,     Name_Cellars_First,  Picker_Keys,
     Picker_Full,     Picker_Full_Title,  First_Shown,         One_Removed,
     Several_Removed, Leave_Entered_Wine, Leave_Entered_Row,   Faults_Mended}};
inline constexpr auto Hints_Rows = Rows_Named_As(Hints);

}  // namespace Screen_Words
