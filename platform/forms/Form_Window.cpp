#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>

#include "platform/forms/Command_Button.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Menu.h"
#include "platform/forms/Mnemonics.h"
#include "platform/forms/Screens_Inside.h"

namespace Forms {

Form* Form_Of(const QWidget* widget) {
  if (widget == nullptr) return nullptr;
  const auto* window = dynamic_cast<const Form_Window*>(widget->window());
  return window == nullptr ? nullptr : &window->Owner();
}

void Leave(Form& form, bool by_key) {
  const Form_Data& data = form.Data();
  if (!form.Takes_Input() || (by_key && !data.esc_leaves)) return;
  if (data.exit_button != nullptr) {
    Raise(*data.exit_button, data.exit_button->Click);
  } else if (data.exit_entry != nullptr) {
    Raise(*data.exit_entry, data.exit_entry->Click);
  } else {
    Run_Guarded([&] { form.Unload(); });
  }
}

// Buttons choose first, then what the user reads first.
void Assign_Mnemonics(Form& form) {
  std::set<QChar> used;
  for (const QAction* action : form.Data().window->menuBar()->actions()) {
    const qsizetype place = action->text().replace("&&", "  ").indexOf('&');
    if (place >= 0) used.insert(action->text()[place + 1].toUpper());
  }
  std::vector<Placed_Control*> bearers;
  std::vector<std::string> captions;
  for (const bool buttons : {true, false}) {
    for (const auto& widget : form.Data().reading_order) {
      Placed_Control* placed = Focus_Watch::The().Control_Of(widget);
      if (placed == nullptr || !placed->Has_Mnemonic()) continue;
      if (buttons != (dynamic_cast<Command_Button*>(placed) != nullptr)) continue;
      bearers.push_back(placed);
      captions.push_back(placed->Caption());
    }
  }
  const std::vector<QString> texts = With_Mnemonics(captions, used);
  for (std::size_t i = 0; i < bearers.size(); ++i) {
    bearers[i]->Show_Mnemonic(texts[i].toStdString());
  }
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
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace Forms
