#include "screens/Wine_Screen.h"

#include "screens/Field_States.h"

Wine_Screen::Wine_Screen(std::string_view name, std::string_view caption, Wine_List marks_of,
                         std::vector<Forms::List_Column> columns, std::vector<std::string> words)
    : Command_Form(name, caption),
      Boxes(*this, marks_of, [this] { return Color_Combo.ListIndex(); }),
      Wine_Cellar_ListView(*this, "Wine_Cellar_ListView", std::move(columns), std::move(words)) {
  Message_Label.Set_Visible(false);
}

// ---- the states of the fields ----

std::vector<Forms::Lockable_Control*> Wine_Screen::Entry_Fields() {
  return {&Winery_Combo, &Label_Combo,  &Region_Combo,         &Country_Combo, &Merit_Combo,
          &Color_Combo,  &Alcohol_Text, &Classification_Combo, &Comments_Text, &Description_Text};
}

std::vector<Forms::Text_Box*> Wine_Screen::Text_Fields() {
  return {&Alcohol_Text, &Description_Text, &Comments_Text};
}

void Wine_Screen::Lock_Top_Window() {
  for (Forms::Lockable_Control* field : Entry_Fields()) Lock(*field);
  Pairing_List.Set_BackColor(Forms::Locked_Color);
  Variety_Combo.Set_BackColor(Forms::Locked_Color);
  Boxes.Show_Locked();
}

void Wine_Screen::UnLock_Top_Window(Forms::Color open_checks) {
  for (Forms::Lockable_Control* field : Entry_Fields()) Open(*field);
  Variety_Combo.Set_BackColor(Forms::Window_Color);
  Pairing_List.Set_BackColor(Forms::Window_Color);
  Boxes.Open(open_checks);
}

void Wine_Screen::Should_Multi_Command_Be_Enabled() {
  Multi_Functional_Command.Set_Enabled(All_Filled(Gate_Fields()));
}

// ---- the message ----

void Wine_Screen::Setup_for_Message(const char* message) {
  Boxes.Set_Aroma_Visible(false);
  Message_Label.Set_Caption(message);
  Message_Label.Set_Visible(true);
}

void Wine_Screen::Remove_Message() {
  Boxes.Set_Aroma_Visible(true);
  Message_Label.Set_Visible(false);
}

// ---- the events of the fields ----

void Wine_Screen::Handle(const std::function<void()>& handler) {
  if (Ignore_Events) return;
  const Ignoring_Events ignoring;
  handler();
  Should_Multi_Command_Be_Enabled();
}

void Wine_Screen::Take_Choice(Forms::Combo_Box& combo, Forms::Command_Button& add) {
  const bool chosen = combo.ListIndex() >= 1;
  add.Set_Enabled(!chosen && !combo.Locked());
  if (chosen) {
    Fill_In(combo);
  } else {
    Require(combo);
  }
}

// ---- grapes ----

void Wine_Screen::Each_Ticked_Variety(const std::function<void(int item)>& action) const {
  for (int item = 0; item < Variety_Combo.ListCount(); ++item) {
    if (Variety_Combo.Selected(item)) action(item);
  }
}
