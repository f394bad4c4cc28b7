// The one place where screens know each other: by name.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/forms/Form.h"

namespace Forms {

/// A screen by its name, loaded or not. A cheap value: name it where it is used.
class Screen {
 public:
  explicit Screen(std::string_view name) : name_(name) {}

  /// Whether a screen of this name is registered. One that is not counts as not loaded, not visible
  /// and without a tag, and to open, show, hide, unload or tag it does nothing. Only Load and what
  /// needs the screen itself (Caption, Set_Caption, Control, Get, Instance) fail: with 424.
  bool Exists() const;
  bool Is_Loaded() const;
  bool Visible() const;

  /// Loads it anew and shows it: an instance left behind is unloaded first. Where that
  /// does not let go of what was entered on it, it comes to the front instead, and the answer is
  /// False.
  bool Open() const;
  /// As Open, with `caller` waiting: that one takes no input as long as this screen is shown, stays
  /// below it, and takes it along when it is unloaded.
  void Open_Over(Form& caller) const;
  /// Shows the screen as it waits behind; loads it if it is not loaded.
  void Show() const;
  void Hide() const;    ///< nothing if it is not loaded
  void Unload() const;  ///< nothing if it is not loaded
  /// Loads it, hidden, if it is not loaded.
  void Load() const;

  /// The tag of the loaded screen, or the one that it will have at its next load.
  std::string Tag() const;
  void Set_Tag(std::string_view tag) const;
  /// These load the screen, hidden, if it is not loaded.
  const std::string& Caption() const;
  void Set_Caption(std::string_view caption) const;
  Forms::Control& Control(std::string_view name) const;  ///< 730 if it has none of this name
  /// The control of this name as what it is: `Get<Combo_Box>("Label_Combo")`. 13 if it is not.
  template <class Kind>
  Kind& Get(std::string_view name) const {
    Kind* control = dynamic_cast<Kind*>(&Control(name));
    if (control == nullptr) Fail_As_Other_Kind();
    return *control;
  }
  /// The loaded screen itself, for those who share its class; loads it, hidden.
  Form& Instance() const;

 private:
  [[noreturn]] static void Fail_As_Other_Kind();
  std::string name_;
};

namespace Screens {

using Factory = std::function<std::unique_ptr<Form>()>;

/// Makes a screen known. A second one of the same name takes the place of the first; an
/// empty factory makes it unknown again.
void Register(std::string_view name, Factory factory);

template <class Screen_Form>
void Register(std::string_view name) {
  Register(name, [] { return std::make_unique<Screen_Form>(); });
}

/// The screen that is shown when a handler ends with no window visible.
void Set_Main(std::string_view name);

/// For tests: the names of all screens that are registered.
std::vector<std::string> Names_For_Tests();

/// For tests: unloads every screen without running Form_Unload, and forgets tags. The registered
/// factories stay.
void Clear_For_Tests();

}  // namespace Screens
}  // namespace Forms
