#include "platform/forms/Check_Box.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include "platform/forms/Clicked_At_Once.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Qt_Text.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

Check_Box::Check_Box(Form& form, std::string_view name, std::string_view caption)
    : Placed_Control(form, name, caption) {
  auto* box = new Clicked_At_Once<QCheckBox>(Widget_Parent());
  QObject::connect(box, &QCheckBox::toggled, [this](bool ticked) { Ticked_By_User(ticked); });
  Set_Widget(box);
}

Check_Box::~Check_Box() = default;

void Check_Box::Set_Value(int value) {
  if (value != 0 && value != 1) Fail(Failure::Invalid_Property_Value);
  if (value == value_) return;
  value_ = value;
  Show_Value();
  if (Click) Click();
}

void Check_Box::Ticked_By_User(bool ticked) {
  if (!Focus_Watch::The().Go_To(*this)) return Show_Value();
  value_ = ticked ? 1 : 0;
  Raise(*this, Click);
}

void Check_Box::Show_Value() {
  const QSignalBlocker no_signals(Widget());
  static_cast<QCheckBox*>(Widget())->setChecked(value_ == 1);
}

void Check_Box::Show_Mnemonic(const std::string& text) {
  static_cast<QCheckBox*>(Widget())->setText(To_Qt(text));
}

void Check_Box::Show_Caption() {
  Placed_Control::Show_Caption();
  static_cast<QCheckBox*>(Widget())->setText(Escaped(Caption()));
}

}  // namespace Forms
