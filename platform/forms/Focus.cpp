#include "platform/forms/Focus.h"

#include <QApplication>
#include <QEvent>
#include <QHelpEvent>

#include "platform/forms/Command_Button.h"
#include "platform/forms/Cut_Text.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Message_Box.h"
#include "platform/forms/Text_Box.h"
#include "platform/run_time/Guard.h"

// The toolkit's focus is not the program's. The toolkit takes it away for every message box, popup
// and other program, gives it to whatever is next when a control is disabled or a window hidden,
// and tells of it late or not at all while a window is not active. So `owner_` is kept here: it
// follows the toolkit only where the user really moved on (Moved, Filter_Press, Settle), and moves
// ahead of it where the user did something to a control without the focus (Go_To). LostFocus is
// raised by a change of `owner_` and by nothing else.
//
// While a LostFocus runs, `loser_` is its box, and `owner_` already the control that the user went
// to. Afterwards one of two marks may stand on that control: `refused_for_` if the handler gave the
// focus back to its box, `interrupted_` if it let the user go but showed a message first.

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

// Inside a handler the toolkit's focus goes to and fro (a form is hidden and another one shown, a
// button disabled): where it ended is looked at when the handler has ended, in Settle.
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

// The marks outlive the handler because the press that moved the focus reaches its widget only
// after it: see Filter_Press.
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
    if (auto* box = dynamic_cast<Text_Box*>(&loser)) box->Select_All();
  } else if (Boxes_Shown() != boxes_before) {
    interrupted_ = target;
  }
}

// Inside a LostFocus the focus is only put where the handler wants it: raising another LostFocus,
// that of the control which just got it or of the same box again, would not come to an end.
// Otherwise LostFocus runs here and now, not when the toolkit tells of the move: what follows the
// call may rely on it. A control that is not in sight does not get the focus from the toolkit
// either before it is.
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

bool Focus_Watch::Go_To(Placed_Control& control) {
  const QWidget& widget = *control.Widget();
  if (!control.Owner().Takes_Input() || !widget.isEnabled() || !widget.isVisible()) return false;
  if (owner_ == &control) return true;
  Run_Guarded([&] {
    Bring_To_Front(control.Owner());
    Set_Focus(control);
  });
  interrupted_ = nullptr;
  return std::exchange(refused_for_, nullptr) != &control;
}

// The user did something to the form although its window is not active. Until it is, no other
// window of the program that had the focus may call it back.
void Focus_Watch::Bring_To_Front(Form& form) {
  if (form.Window()->isActiveWindow()) return;
  awaited_ = &form;
  form.Window()->activateWindow();
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

bool Focus_Watch::Is_Ahead_Of_Window() const {
  return owner_ != nullptr && awaited_ == &owner_->Owner();
}

void Focus_Watch::Settle() {
  QWidget* now = QApplication::focusWidget();
  if (now != nullptr && !Is_Ahead_Of_Window()) Look_Where(now);
  Form* form = Form_Of(QApplication::activeWindow());
  if (form != nullptr && awaited_ == nullptr && form != front_) Activate(*form);
}

// Every press and drop passes here before its widget sees it.
bool Focus_Watch::eventFilter(QObject* object, QEvent* event) {
  if (!object->isWidgetType()) return false;
  auto& widget = *static_cast<QWidget*>(object);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      press_dropped_ = Filter_Press(widget);
      return press_dropped_;
    case QEvent::MouseButtonRelease:  // a text box pastes at the release of the middle button
      return std::exchange(press_dropped_, false);
    case QEvent::Drop:
      return Filter_Drop(widget, *event);
    case QEvent::ToolTip:
      return Show_Cut_Text(widget, static_cast<const QHelpEvent&>(*event));
    default:
      return false;
  }
}

// By the time a press reaches its widget, the toolkit has moved the focus there, and a LostFocus
// has run that may have refused to let it go, or shown a box. Refused, the press is dropped, and
// with it the click. After a box the press cannot become a click any more, because the button's
// release went to the box: the click is made here. So is the click on an exit, which a refusal does
// not stop; it is raised without Go_To, which would leave the field a second time.
bool Focus_Watch::Filter_Press(QWidget& widget) {
  if (!widget.isActiveWindow()) Take_Press_Of_Inactive_Window(widget);
  Placed_Control* control = Control_Of(&widget);
  if (control == nullptr || (control != refused_for_ && control != interrupted_)) return false;
  const bool leaves = control->Owner().Data().exit_button == control || control == interrupted_;
  refused_for_ = nullptr;
  interrupted_ = nullptr;
  auto* button = dynamic_cast<Command_Button*>(control);
  if (button != nullptr && leaves) Raise(*button, button->Click);
  return true;
}

// Some window managers pass the click on that is to bring a window to the front, and bring it there
// afterwards. The toolkit then only notes which widget of the window is to have the focus and tells
// of it when the window is active, which may be after the button was released and its click has
// run.
void Focus_Watch::Take_Press_Of_Inactive_Window(const QWidget& widget) {
  Form* form = Form_Of(&widget);
  if (form == nullptr || !form->Takes_Input()) return;
  Run_Guarded([&] {
    Bring_To_Front(*form);
    if (QWidget* next = form->Window()->focusWidget()) Look_Where(next);
  });
}

// A text that is dropped into a box counts as typed there.
bool Focus_Watch::Filter_Drop(const QWidget& widget, QEvent& drop) {
  Placed_Control* control = Control_Of(&widget);
  if (control == nullptr || Go_To(*control)) return false;
  drop.ignore();
  return true;
}

}  // namespace Forms
