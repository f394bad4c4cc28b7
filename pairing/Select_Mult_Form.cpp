#include "pairing/Select_Mult_Form.h"

#include <initializer_list>
#include <utility>

Select_Mult_Form::Select_Mult_Form(std::string_view name, std::string_view caption,
                                   const Form_Words& words)
    : List_Picker_Form(name, caption), Words(words) {
  using namespace Forms;
  constexpr int list_width = 54;
  Set_Content(Column({Row({MSelectLab3, Recipe_Name, MSelectLab2, Stretch()}),
                      Row({Under_Heading(MSelectLab1, Cat_Number, Cat_List, list_width).Grow(),
                           Moves_Place(),
                           Under_Heading(Label1, Selected_Number, SelectList, list_width).Grow()})
                          .Grow()}),
              Ways_Out_Place());
}

void Select_Mult_Form::Initialize_Language() {
  Words.Read();
  Words.Caption(*this);
  for (const auto& [control, tip] :
       std::initializer_list<std::pair<Forms::Placed_Control*, std::string_view>>{
           {&Add_Command, "Add_Command_Tip"},
           {&Cat_List, "Cat_List_Tip"},
           {&MultCancel, "MultCancel_Tip"},
           {&MultSelect, "MultSelect_Tip"},
           {&Remove_Command, "Remove_Command_Tip"},
           {&SelectList, "SelectList_Tip"},
           {&Selected_Number, "Selected_Number_Tip"}}) {
    control->Set_Tool_Tip(Words.Of(tip));
  }
}

void Select_Mult_Form::Set_Loaded(bool loaded) {
  for (Forms::Control* control : std::initializer_list<Forms::Control*>{
           &MultSelect, &MultCancel, &SelectList, &MSelectLab1, &MSelectLab3, &Recipe_Name}) {
    control->Set_Visible(loaded);
  }
  MSelectLab2.Set_Visible(!loaded);
}

void Select_Mult_Form::Hide_All_Visible() { Set_Loaded(false); }
void Select_Mult_Form::Turn_Boxes_On() { Set_Loaded(true); }

void Select_Mult_Form::Show_Owner(std::string_view owner) { Recipe_Name.Set_Caption(owner); }

void Select_Mult_Form::Show_Owner(std::string_view word, std::string_view owner) {
  MSelectLab3.Set_Caption(word);
  Show_Owner(owner);
}
