#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <algorithm>

#include "platform/forms/Command_Button.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Menu.h"
#include "platform/forms/Screens_Inside.h"
#include "platform/forms/Text_Box.h"

namespace Forms {

namespace {

void Open_Menu(QMenuBar& bar) {
  for (QAction* action : bar.actions()) {
    if (action->isVisible() && action->isEnabled()) return bar.setActiveAction(action);
  }
}

bool Is_Open_To_Type(const Control* control) {
  const auto* box = dynamic_cast<const Text_Box*>(control);
  return box != nullptr && !box->Locked() && box->Enabled() && box->Widget()->isVisible();
}

}  // namespace

Form* Form_Of(const QWidget* widget) {
  if (widget == nullptr) return nullptr;
  const auto* window = dynamic_cast<const Form_Window*>(widget->window());
  return window == nullptr ? nullptr : &window->Owner();
}

void Leave(Form& form, bool by_key) {
  const Form_Data& data = form.Data();
  if (!form.Takes_Input() || (by_key && !data.esc_leaves)) return;
  // What was typed is not lost by one key.
  if (by_key && std::ranges::any_of(data.controls, Is_Open_To_Type)) return;
  if (data.exit_button != nullptr) {
    Raise(*data.exit_button, data.exit_button->Click);
  } else if (data.exit_entry != nullptr) {
    Raise(*data.exit_entry, data.exit_entry->Click);
  } else {
    Run_Guarded([&] { form.Unload(); });
  }
}

void Commit(Form& form) {
  const Command_Button* button = form.Data().commit_button;
  if (button == nullptr || !button->Widget()->isVisible()) return;
  static_cast<QAbstractButton*>(button->Widget())->click();
}

bool Form_Window::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    Focus_Watch::The().Came_To_Front(form_);
    Pass_Focus_On(form_);
  }
  return QMainWindow::event(event);
}

void Form_Window::closeEvent(QCloseEvent* event) {
  event->ignore();
  Leave(form_, false);
}

void Form_Window::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    Leave(form_, true);
  } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier) {
    Open_Menu(*menuBar());
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace Forms
