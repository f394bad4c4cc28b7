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

/// The main window: a caption for each of its controls, the form's own, and behind it the words
/// that it reads by position: colours, types of cheese, milks, and eight of its own.
inline constexpr std::array<Row, 113> Wine_Cellar_Form{{{"Cellar_Main", "Cap"},
                                                        {"Cellar_View", "Cap"},
                                                        {"Cellar_Add", "Cap"},
                                                        {"Cellar_Mod", "Cap"},
                                                        {"Cellars_View", "Cap"},
                                                        {"Cellar1_View", "Cap"},
                                                        {"Cellar2_View", "Cap"},
                                                        {"Cellar_Print", "Cap"},
                                                        {"Cellars_Print", "Cap"},
                                                        {"Cellar1_Print", "Cap"},
                                                        {"Cellar2_Print", "Cap"},
                                                        {"Wine_Main", "Cap"},
                                                        {"Wines_Cellar", "Cap"},
                                                        {"Wine_Add", "Cap"},
                                                        {"Wine_Uncork", "Cap"},
                                                        {"Wine_Mod", "Cap"},
                                                        {"Wine_Cellar_Remove", "Cap"},
                                                        {"Wine_Del", "Cap"},
                                                        {"Wines_Cellar_List", "Cap"},
                                                        {"Wines_Other", "Cap"},
                                                        {"Wine_Other_Add", "Cap"},
                                                        {"Wine_Other_Del", "Cap"},
                                                        {"Wine_Other_Mod", "Cap"},
                                                        {"Wines_Other_List", "Cap"},
                                                        {"Wineries_Main", "Cap"},
                                                        {"Winery_Add", "Cap"},
                                                        {"Winery_Mod", "Cap"},
                                                        {"Winery_View", "Cap"},
                                                        {"Winery_Del", "Cap"},
                                                        {"Winery_List", "Cap"},
                                                        {"Regions_Main", "Cap"},
                                                        {"Region_Add", "Cap"},
                                                        {"Region_Mod", "Cap"},
                                                        {"Region_Mod_Var", "Cap"},
                                                        {"Region_Mod_Other", "Cap"},
                                                        {"Region_Del", "Cap"},
                                                        {"Regions_List", "Cap"},
                                                        {"Region_Pair_Varieties", "Cap"},
                                                        {"Labels_Main", "Cap"},
                                                        {"Labels_Add", "Cap"},
                                                        {"Labels_Del", "Cap"},
                                                        {"Labels_Mod", "Cap"},
                                                        {"Labels_View", "Cap"},
                                                        {"Classifications_Main", "Cap"},
                                                        {"Classification_Add", "Cap"},
                                                        {"Classification_Del", "Cap"},
                                                        {"Classification_Mod", "Cap"},
                                                        {"Classification_View", "Cap"},
                                                        {"Variety_Main", "Cap"},
                                                        {"Variety_Add", "Cap"},
                                                        {"Variety_Mod", "Cap"},
                                                        {"Variety_Del", "Cap"},
                                                        {"Variety_List", "Cap"},
                                                        {"Pairings_Main", "Cap"},
                                                        {"Pairing_Add", "Cap"},
                                                        {"Pairing_Mod", "Cap"},
                                                        {"Pairing_Del", "Cap"},
                                                        {"Pairings_List", "Cap"},
                                                        {"Pairing_Search", "Cap"},
                                                        {"Pairing_Search_Cellar", "Cap"},
                                                        {"Pairing_Search_General", "Cap"},
                                                        {"Pairings_Hints", "Cap"},
                                                        {"Pairings_Temp", "Cap"},
                                                        {"Pairings_Cheese", "Cap"},
                                                        {"Cheeses_Main", "Cap"},
                                                        {"Cheeses_Add", "Cap"},
                                                        {"Cheeses_Mod", "Cap"},
                                                        {"Cheses_Del", "Cap"},
                                                        {"Cheeses_List", "Cap"},
                                                        {"Cheese_Pairings", "Cap"},
                                                        {"Cheese_Pairings_General", "Cap"},
                                                        {"Cheeses_Pairing_Cellar", "Cap"},
                                                        {"Glossary_Main", "Cap"},
                                                        {"Glossary_Display", "Cap"},
                                                        {"Glossary_Print", "Cap"},
                                                        {"Help_Main", "Cap"},
                                                        {"Help_Info", "Cap"},
                                                        {"Help_Color", "Cap"},
                                                        {"Help_Comments", "Cap"},
                                                        {"Help_About", "Cap"},
                                                        {"Wine_Cellar_Exit", "Cap"},
                                                        {"Language_Version_Label", "Cap"},
                                                        {"Wait_Label", "Cap"},
                                                        {"Wine_Cellar_Form", "Frm"},
                                                        {"Color_Red", "Head"},
                                                        {"Color_White", "Head"},
                                                        {"Color_Rose", "Head"},
                                                        {"Color_Sparkling", "Head"},
                                                        {"Color_Fortified", "Head"},
                                                        {"Cheese_Blue_Vein", "Head"},
                                                        {"Cheese_Fresh", "Head"},
                                                        {"Cheese_Hard", "Head"},
                                                        {"Cheese_Processed", "Head"},
                                                        {"Cheese_Semi_Hard", "Head"},
                                                        {"Cheese_Semi_Soft", "Head"},
                                                        {"Cheese_Soft", "Head"},
                                                        {"Cheese_Soft_Hard", "Head"},
                                                        {"Cheese_Soft_Ripened", "Head"},
                                                        {"Cheese_Whey", "Head"},
                                                        {"Milk_Cow", "Head"},
                                                        {"Milk_Cow_Goat", "Head"},
                                                        {"Milk_Cow_Goat_Sheep", "Head"},
                                                        {"Milk_Goat", "Head"},
                                                        {"Milk_Sheep", "Head"},
                                                        {"Milk_Water_Buffalo", "Head"},
                                                        {"Current_Cellar_Word", "Head"},
                                                        {"Cellar_Word", "Head"},
                                                        {"For_Pairings_Word", "Head"},
                                                        {"With_Word", "Head"},
                                                        {"Comments_Line_1", "Head"},
                                                        {"Comments_Line_2", "Head"},
                                                        {"Comments_Line_3", "Head"},
                                                        {"Comments_Title", "Head"}}};

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
