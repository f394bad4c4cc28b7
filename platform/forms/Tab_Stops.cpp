#include "platform/forms/Tab_Stops.h"

#include <QWidget>
#include <algorithm>

#include "platform/forms/Focus.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Later.h"

namespace Forms {

namespace {

bool Asks_For_A_Value(const Control* control) {
  const auto* placed = dynamic_cast<const Placed_Control*>(control);
  return placed != nullptr && placed->Is_Placed() && placed->Visible() && placed->Enabled() &&
         placed->BackColor() == Required_Color;
}

void Make_Tab_Stop(QWidget& widget, bool is_one) {
  const Qt::FocusPolicy now = widget.focusPolicy();
  if (now == Qt::NoFocus) return;
  const int wanted = is_one ? now | Qt::TabFocus : now & ~Qt::TabFocus;
  if (wanted != now) widget.setFocusPolicy(static_cast<Qt::FocusPolicy>(wanted));
}

void Settle_Tab_Stops(const Form_Data& form) {
  const bool one_asks = std::ranges::any_of(form.controls, Asks_For_A_Value);
  for (const auto& widget : form.reading_order) {
    const Placed_Control* control = Focus_Watch::The().Control_Of(widget);
    if (control == nullptr) continue;
    Make_Tab_Stop(*widget, !one_asks || !control->Shows_As_Locked());
  }
}

}  // namespace

void Settle_Tab_Stops_Later(Form& form) {
  const Form_Data& data = form.Data();
  Show_Later(&data, [&data] { Settle_Tab_Stops(data); });
}

}  // namespace Forms
