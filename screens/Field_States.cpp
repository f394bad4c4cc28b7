#include "screens/Field_States.h"

#include <algorithm>

#include "platform/forms/Colors.h"
#include "platform/run_time/Conversions.h"

void Lock(Forms::Lockable_Control& field) {
  field.Set_Locked(true);
  field.Set_BackColor(Forms::Locked_Color);
}

void Open(Forms::Lockable_Control& field) {
  field.Set_Locked(false);
  field.Set_BackColor(Forms::Window_Color);
}

void Show_Lock(Forms::Lockable_Control& field) {
  field.Set_BackColor(field.Locked() ? Forms::Locked_Color : Forms::Window_Color);
}

void Require(Forms::Placed_Control& field) {
  field.Set_BackColor(Forms::Required_Color);
  field.Set_Tag("0");
}

void Fill_In(Forms::Lockable_Control& field) {
  Show_Lock(field);
  field.Set_Tag("1");
}

void Require_Unless(bool given, Forms::Text_Box& box) {
  if (given || box.Locked()) {
    Fill_In(box);
  } else {
    Require(box);
  }
}

bool All_Filled(const std::vector<Forms::Placed_Control*>& fields) {
  return std::ranges::all_of(
      fields, [](const Forms::Placed_Control* field) { return Val(field->Tag()) != 0; });
}
