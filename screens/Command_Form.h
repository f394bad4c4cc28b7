// A screen that serves a value of `Current_Command`, and its ways out.
#pragma once

#include <initializer_list>
#include <string_view>

#include "platform/forms/Form.h"
#include "platform/run_time/Values.h"

/// The command is the screen's own from the moment it is made, whatever is done on other screens
/// meanwhile, and the program's again whenever this screen comes to the front.
class Command_Form : public Forms::Form {
 protected:
  Command_Form(std::string_view name, std::string_view caption);

  /// Puts the command back. An override calls it first.
  void Form_Activate() override;

  const Text& Command() const { return command_; }
  bool Command_Is(std::string_view command) const { return command_ == command; }
  bool Command_Is(std::initializer_list<std::string_view> commands) const;

  // ---- ways out: each unloads this screen ----

  /// Shows the main window, which stepped aside for this screen.
  void Leave();
  /// Of a screen beside which the main window stays: that comes to the front again where it is in
  /// sight. Where another screen hid it meanwhile, it comes back with that one: two screens that
  /// work on the same memory records are never open at once.
  void Leave_Beside();
  /// Shows the other screen as it waits, the main window where there is none of this name.
  void Leave_to(std::string_view screen);

 private:
  Text command_;
};
