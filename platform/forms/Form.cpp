#include "platform/forms/Form.h"

#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/forms/Command_Button.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Later.h"
#include "platform/forms/Layout_Building.h"
#include "platform/forms/Menu.h"
#include "platform/forms/Message_Box.h"
#include "platform/forms/Qt_Text.h"
#include "platform/forms/Screens_Inside.h"
#include "platform/forms/Window_Memory.h"
#include "platform/forms/Window_Place.h"
#include "platform/run_time/Guard.h"

namespace Forms {

namespace {

bool Same_Name(std::string_view a, std::string_view b) {
  return To_Qt(a).compare(To_Qt(b), Qt::CaseInsensitive) == 0;
}

// A form never needs more room than the desktop has: what does not fit can be scrolled to.
void Make_Parts(Form_Data& form) {
  auto* parts = new QWidget(form.window);
  auto* area = new QScrollArea(parts);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  form.content = new QWidget(area);
  area->setWidget(form.content);
  form.below = new QWidget(parts);
  auto* column = new QVBoxLayout(parts);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(area, 1);
  column->addWidget(form.below);
  form.window->setCentralWidget(parts);
}

}  // namespace

Form::Form(std::string_view name, std::string_view caption) : data_(std::make_unique<Form_Data>()) {
  data_->name = name;
  data_->window = new Form_Window(*this);
  data_->window->setObjectName(To_Qt(name));
  Set_Caption(caption);
  Make_Parts(*data_);
}

Form::~Form() {
  Focus_Watch::The().Forget(*this);
  Forget_Later(data_.get());
  if (data_->caller != nullptr) --data_->caller->Data().waiting_for;
  delete data_->window;
}

const std::string& Form::Name() const { return data_->name; }
const std::string& Form::Caption() const { return data_->caption; }
const std::string& Form::Tag() const { return data_->tag; }
void Form::Set_Tag(std::string_view tag) { data_->tag = tag; }
bool Form::Visible() const { return data_->window->isVisible(); }
QWidget* Form::Window() const { return data_->window; }

void Form::Set_Caption(std::string_view caption) {
  data_->caption = caption;
  data_->window->setWindowTitle(To_Qt(caption));
}

void Form::Set_Enabled(bool enabled) {
  if (!enabled) Focus_Watch::The().Forget(*this);
  data_->window->setEnabled(enabled);
}

void Form::Set_Width(int pixels) {
  data_->opening_width = pixels;
  if (data_->was_shown) Fit_To_Desktop(*data_);
}

bool Form::Is_Live() const { return data_->loaded && !data_->unloaded && !Process_Has_Ended(); }

bool Form::Takes_Input() const {
  return Is_Live() && Visible() && data_->window->isEnabled() && data_->waiting_for == 0 &&
         !Box_Is_Up();
}

void Form::Load() {
  if (data_->loaded) return;
  data_->loaded = true;
  data_->loading = true;
  Form_Load();
  data_->loading = false;
}

void Form::Show() {
  Load();
  if (data_->unloaded || Process_Has_Ended()) return;
  if (std::exchange(data_->hidden_while_loading, false)) return;
  const bool first_time = !std::exchange(data_->was_shown, true);
  if (first_time) {
    Assign_Mnemonics(*this);
    Show_Now();  // what changes on a window in sight is laid out and painted twice
    Fit_To_Desktop(*data_);
    Restore_Parts(*data_);
    if (Was_Maximised(*data_)) data_->window->setWindowState(Qt::WindowMaximized);
    Focus_First(*data_);
  }
  data_->window->show();
  // How high a label is in another script shows only now.
  if (first_time) Fit_To_Desktop(*data_);
  data_->window->raise();
  data_->window->activateWindow();
  Focus_Watch::The().Shown(*this);
  Form_Activate();
}

void Form::Hide() {
  data_->hidden_while_loading = data_->loading;
  Focus_Watch::The().Forget(*this);
  if (Visible()) Remember_Window(*data_);
  data_->window->hide();
  if (Form* caller = std::exchange(data_->caller, nullptr)) {
    --caller->Data().waiting_for;
    caller->Window()->activateWindow();
  }
}

void Form::Unload() {
  if (data_->unloading) return;
  data_->unloading = true;
  if (data_->loaded) Form_Unload();
  data_->unloaded = true;
  Hide();
  Bury(*this);
}

Control& Form::Find_Control(std::string_view name) const {
  const auto found = std::ranges::find_if(
      data_->controls, [name](const Control* control) { return Same_Name(control->Name(), name); });
  if (found == data_->controls.end()) Fail(Failure::Control_Not_Found, name);
  return **found;
}

// The letters of the design hold in every mode that the form is shown in.
void Form::Set_Content(const Place& content, const Place& below) {
  Build_Layout(*data_, content, below);
  Assign_Mnemonics(*this);
}

void Form::Choose_Mnemonics() {
  Forget_Mnemonics(*this);
  Assign_Mnemonics(*this);
}

void Form::Set_Commit(Command_Button& button, Enter_Key enter) {
  data_->commit_button = &button;
  data_->enter_commits = enter == Enter_Key::Commits;
  static_cast<QPushButton*>(button.Widget())->setDefault(data_->enter_commits);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* shortcut = new QShortcut(Qt::CTRL | key, data_->window);
    QObject::connect(shortcut, &QShortcut::activated, [this] { Commit(*this); });
  }
}

void Form::Set_Exit(Command_Button& button, Exit exit) {
  data_->exit_button = &button;
  data_->esc_leaves = exit == Exit::Leaves;
}

void Form::Set_Exit(Menu_Entry& entry, Exit exit) {
  data_->exit_entry = &entry;
  data_->esc_leaves = exit == Exit::Leaves;
}

void Form::Stay_On_Esc() { data_->esc_leaves = false; }

}  // namespace Forms
