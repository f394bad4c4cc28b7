#include "platform/forms/Check_Box.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include "platform/forms/Handlers.h"
#include "platform/forms/Qt_Text.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

Check_Box::Check_Box(Form& form, std::string_view name, std::string_view caption)
    : Placed_Control(form, name, caption) {
  auto* box = new QCheckBox(Widget_Parent());
  QObject::connect(box, &QCheckBox::toggled, [this](bool ticked) {
    value_ = ticked ? 1 : 0;
    Raise(*this, Click);
  });
  Set_Widget(box);
}

Check_Box::~Check_Box() = default;

void Check_Box::Set_Value(int value) {
  if (value != 0 && value != 1) Fail(Failure::Invalid_Property_Value);
  if (value == value_) return;
  value_ = value;
  {
    const QSignalBlocker no_signals(Widget());
    static_cast<QCheckBox*>(Widget())->setChecked(value == 1);
  }
  if (Click) Click();
}

void Check_Box::Show_Mnemonic(const std::string& text) {
  static_cast<QCheckBox*>(Widget())->setText(To_Qt(text));
}

void Check_Box::Show_Caption() {
  Placed_Control::Show_Caption();
  static_cast<QCheckBox*>(Widget())->setText(Escaped(Caption()));
}

}  // namespace Forms
