#include "platform/forms/Focus.h"

#include <QApplication>
#include <QEvent>

#include "platform/forms/Command_Button.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Message_Box.h"
#include "platform/run_time/Guard.h"

namespace Forms {

Focus_Watch& Focus_Watch::The() {
  static Focus_Watch watch;
  return watch;
}

void Focus_Watch::Begin() {
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Moved(now); });
}

void Focus_Watch::Remove(const QWidget* widget, const Placed_Control& control) {
  controls_.erase(widget);
  for (Placed_Control** kept : {&owner_, &loser_, &refused_for_, &interrupted_}) {
    if (*kept == &control) *kept = nullptr;
  }
}

Placed_Control* Focus_Watch::Control_Of(const QWidget* widget) const {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (const auto found = controls_.find(widget); found != controls_.end()) return found->second;
  }
  return nullptr;
}

void Focus_Watch::Moved(QWidget* now) {
  if (now == nullptr || by_code_ || loser_ != nullptr || Inside_Handler()) return;
  if (Form_Of(now) != nullptr) Run_Guarded([&] { Look_Where(now); });
}

// A message box is no form of the program, and a form that is hidden or waits holds no focus.
void Focus_Watch::Look_Where(QWidget* now) {
  const Form* form = Form_Of(now);
  if (form == nullptr || !form->Visible() || form->Data().waiting_for > 0) return;
  Change_Owner(Control_Of(now));
}

void Focus_Watch::Change_Owner(Placed_Control* target) {
  if (target == owner_) return;
  Placed_Control* loser = owner_;
  owner_ = target;
  refused_for_ = nullptr;
  interrupted_ = nullptr;
  if (loser != nullptr) Raise_Lost_Focus(*loser, target);
}

void Focus_Watch::Raise_Lost_Focus(Placed_Control& loser, Placed_Control* target) {
  struct Mark {
    Placed_Control*& place;
    ~Mark() { place = nullptr; }
  } const mark{loser_};
  loser_ = &loser;
  refused_ = false;
  const int boxes_before = Boxes_Shown();
  loser.Raise_Lost_Focus();
  if (refused_) {
    refused_for_ = target;
  } else if (Boxes_Shown() != boxes_before) {
    interrupted_ = target;
  }
}

void Focus_Watch::Set_Focus(Placed_Control& control) {
  {
    struct Mark {
      bool& flag;
      bool before;
      ~Mark() { flag = before; }
    } const mark{by_code_, by_code_};
    by_code_ = true;
    control.Widget()->setFocus(Qt::OtherFocusReason);
  }
  if (loser_ != nullptr) {
    if (&control == loser_) refused_ = true;
    owner_ = &control;
  } else if (control.Widget()->isVisible() && control.Widget()->isEnabled()) {
    Change_Owner(&control);
  }
}

void Focus_Watch::Give_Back(Placed_Control& control) {
  const Form& form = control.Owner();
  if (!form.Is_Live() || !form.Visible() || front_ != &form || form.Data().waiting_for > 0) return;
  if (owner_ == &control || !control.Widget()->isEnabled()) return;
  by_code_ = true;
  control.Widget()->setFocus(Qt::OtherFocusReason);
  by_code_ = false;
  owner_ = &control;
}

void Focus_Watch::Forget(const Form& form) {
  if (owner_ != nullptr && &owner_->Owner() == &form) owner_ = nullptr;
  if (front_ == &form) front_ = nullptr;
  if (awaited_ == &form) awaited_ = nullptr;
}

void Focus_Watch::Shown(Form& form) {
  front_ = &form;
  awaited_ = QApplication::activeWindow() == form.Window() ? nullptr : &form;
}

void Focus_Watch::Came_To_Front(Form& form) {
  if (awaited_ == &form) awaited_ = nullptr;
  // A window that comes to the front only in passing, while the desktop goes from one that was
  // hidden to the one that was shown, is not the user's change.
  if (awaited_ != nullptr || front_ == &form || Inside_Handler()) return;
  Run_Guarded([&] { Activate(form); });
}

void Focus_Watch::Activate(Form& form) {
  if (!form.Is_Live() || form.Data().waiting_for > 0) return;
  front_ = &form;
  form.Form_Activate();
}

void Focus_Watch::Settle() {
  if (QWidget* now = QApplication::focusWidget()) Look_Where(now);
  Form* form = Form_Of(QApplication::activeWindow());
  if (form != nullptr && awaited_ == nullptr && form != front_) Activate(*form);
}

bool Focus_Watch::eventFilter(QObject* object, QEvent* event) {
  const bool press =
      event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
  if (!press || !object->isWidgetType()) return false;
  return Filter_Press(static_cast<QWidget*>(object));
}

// By the time a press reaches its widget, the focus has moved there, and a LostFocus has run that
// may have refused to let it go, or shown a box that the button's release went to.
bool Focus_Watch::Filter_Press(QWidget* widget) {
  if (Form* form = Form_Of(widget); form != nullptr && !widget->window()->isActiveWindow() &&
                                    widget->window() == form->Window()) {
    awaited_ = nullptr;
    form->Window()->activateWindow();
  }
  Placed_Control* control = Control_Of(widget);
  if (control == nullptr || (control != refused_for_ && control != interrupted_)) return false;
  const bool leaves = control->Owner().Data().exit_button == control || control == interrupted_;
  refused_for_ = nullptr;
  interrupted_ = nullptr;
  if (auto* button = dynamic_cast<Command_Button*>(control); button != nullptr && leaves) {
    if (button->Enabled()) button->Clicked();
  }
  return true;
}

}  // namespace Forms
