#include "screens/Command_Form.h"

#include <algorithm>

#include "core/Globals.h"
#include "platform/forms/Screens.h"

using Forms::Screen;

namespace {

constexpr const char* main_window = "Wine_Cellar_Form";

}  // namespace

Command_Form::Command_Form(std::string_view name, std::string_view caption)
    : Form(name, caption), command_(Current_Command) {}

void Command_Form::Form_Activate() { Current_Command = command_; }

bool Command_Form::Command_Is(std::initializer_list<std::string_view> commands) const {
  return std::ranges::find(commands, command_) != commands.end();
}

void Command_Form::Leave() { Leave_to(main_window); }

void Command_Form::Leave_Beside() {
  const bool in_sight = Screen(main_window).Visible();
  Unload();
  if (in_sight) Screen(main_window).Show();
}

// The next window comes to the front as this one goes, and need not be the one that is shown.
void Command_Form::Leave_to(std::string_view screen) {
  Unload();
  Current_Command = command_;
  Screen(Screen(screen).Exists() ? screen : main_window).Show();
}
