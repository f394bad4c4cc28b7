// The picker of pairings.
#pragma once

#include "core/words/Screen_Words.h"

namespace Screen_Words {

inline constexpr std::array<Row, 22> Select_Mult_Cat{{{"Add_Command", "Cap"},
                                                      {"Label1", "Cap"},
                                                      {"MSelectLab1", "Cap"},
                                                      {"MSelectLab2", "Cap"},
                                                      {"MSelectLab3", "Cap"},
                                                      {"MultCancel", "Cap"},
                                                      {"MultSelect", "Cap"},
                                                      {"Remove_Command", "Cap"},
                                                      {"Keys_Label", "Cap"},
                                                      {"Select_Mult_Maridages_Form", "Frm"},
                                                      {"Add_Command_Tip", "Head"},
                                                      {"Cat_List_Tip", "Head"},
                                                      {"MultCancel_Tip", "Head"},
                                                      {"MultSelect_Tip", "Head"},
                                                      {"Remove_Command_Tip", "Head"},
                                                      {"SelectList_Tip", "Head"},
                                                      {"Selected_Number_Tip", "Head"},
                                                      {"Cheese_Word", "Head"},
                                                      {"Modify_Variety_Caption", "Head"},
                                                      {"Modify_Cheese_Caption", "Head"},
                                                      {"No_Wines_Text", "Head"},
                                                      {"No_Wines_Title", "Head"}}};

}  // namespace Screen_Words
