// The rows of `Words` of the screens that take their texts by position: which row stands for what.
// The screens and the checks of the data share these tables. Rows count from 1.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace Screen_Words {

/// A row as the data has it. "Cap" rows caption the control, the "Frm" row the form; "Head" rows
/// hold what a screen says in boxes and tips, or only keep the place.
struct Row {
  std::string_view Variable;
  std::string_view types_variable;
};

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

inline constexpr std::array<Row, 22> Select_Mult_Varieties{
    {{"Add_Command", "Cap"},          {"Label1", "Cap"},
     {"MSelectLab1", "Cap"},          {"MSelectLab2", "Cap"},
     {"MSelectLab3", "Cap"},          {"MultCancel", "Cap"},
     {"MultSelect", "Cap"},           {"Remove_Command", "Cap"},
     {"Keys_Label", "Cap"},           {"Select_Mult_Varieties_Form", "Frm"},
     {"Add_Command_Tip", "Head"},     {"Cat_List_Tip", "Head"},
     {"MultCancel_Tip", "Head"},      {"MultSelect_Tip", "Head"},
     {"Remove_Command_Tip", "Head"},  {"SelectList_Tip", "Head"},
     {"Selected_Number_Tip", "Head"}, {"Cheese_Word", "Head"},
     {"Region_Text", "Head"},         {"Region_Title", "Head"},
     {"Cheese_Text", "Head"},         {"Cheese_Title", "Head"}}};

/// The place of a row in its table, from 1; 0 where the table has no such row.
constexpr int Place_of(std::span<const Row> rows, std::string_view variable) {
  int place = 0;
  for (const Row& row : rows) {
    ++place;
    if (row.Variable == variable) return place;
  }
  return 0;
}

}  // namespace Screen_Words
