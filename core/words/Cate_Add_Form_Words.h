// The catalogue of pairings.
#pragma once

#include "core/words/Screen_Words.h"

namespace Screen_Words {

inline constexpr std::array<Row, 16> Cate_Add_Form{{{"Double_Line_1", "Head"},
                                                    {"Double_Line_2", "Head"},
                                                    {"Double_Title", "Head"},
                                                    {"Current_Maridages_Label", "Head"},
                                                    {"View_Caption", "Head"},
                                                    {"Modify_CatLabel", "Head"},
                                                    {"Modify_Cat_Add_Now", "Head"},
                                                    {"System_Label", "Head"},
                                                    {"Modify_Text", "Head"},
                                                    {"Cat_Add_Cancel", "Cap"},
                                                    {"Cat_Add_Now", "Cap"},
                                                    {"Cat_Language1_Label", "Cap"},
                                                    {"Cat_Language2_Label", "Cap"},
                                                    {"CatLabel", "Cap"},
                                                    {"Add_Text", "Head"},
                                                    {"Cate_Add_Form", "Frm"}}};

}  // namespace Screen_Words
