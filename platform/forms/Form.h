// One screen of the program: a window, its controls, its life.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/forms/Control.h"
#include "platform/forms/Layout.h"

class QMenuBar;
class QWidget;

namespace Forms {

class Command_Button;
class Menu_Entry;
struct Form_Data;

/// The base of every screen. A screen's controls are its members; its constructor builds the
/// design: captions, events, layout, what is hidden, disabled or tagged at first. It may keep a
/// global as it stands when the screen is opened, such as the command, but opens no table and asks
/// no other screen: that is for Form_Load. A screen is made and owned by the registry (Screens.h).
///
/// Life: made; Form_Load, once, before it is visible; any number of Show and Hide; Unload, which
/// runs Form_Unload at once and forgets everything. A handler of the form that unloads it runs on
/// to its end; the object goes afterwards.
class Form {
 public:
  Form(std::string_view name, std::string_view caption);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const;
  const std::string& Caption() const;  ///< the window's title
  void Set_Caption(std::string_view caption);
  const std::string& Tag() const;
  void Set_Tag(std::string_view tag);
  bool Visible() const;
  /// A form that is not enabled takes no input. No control of it raises LostFocus by that.
  void Set_Enabled(bool enabled);
  /// The width in which the window opens, in pixels of an unscaled desktop: more where the content
  /// needs more, less where the desktop has less. The user can change it.
  void Set_Width(int pixels);
  /// All captions were set anew, as in another language: the mnemonics are chosen for these. A
  /// single caption that changes moves the mnemonic of no other control.
  void Choose_Mnemonics();

  /// Loads the form if that has not been, shows it, brings it to the front; then Form_Activate.
  void Show();
  /// Takes it off the desktop; keeps everything. Inside its own Form_Load: the Show that made it
  /// load leaves it hidden.
  void Hide();
  /// Form_Unload, then off the desktop and out of the registry.
  void Unload();

  /// The control of this name, without regard to case; a menu or menu entry too. 730 if none.
  Control& Find_Control(std::string_view name) const;

  /// Once per load, before the form is visible.
  virtual void Form_Load() {}
  /// After each Show, and when the user comes here from another window of the program; never on
  /// the return from a message box or from another program.
  virtual void Form_Activate() {}
  /// At the unload.
  virtual void Form_Unload() {}
  /// Asked where this form is to be opened anew: whether it may go.
  virtual bool May_Be_Replaced() { return true; }

  /// For this room and the tests.
  Form_Data& Data() const { return *data_; }
  QWidget* Window() const;
  /// Runs Form_Load if that has not been.
  void Load();
  /// Loaded and not yet unloaded.
  bool Is_Live() const;
  /// Whether the user's doings reach handlers now: the form is live, in sight and enabled, waits
  /// for no other form and stands behind no message box.
  bool Takes_Input() const;

 protected:
  /// The layout of everything that is seen. Called once, at the end of the constructor. What does
  /// not fit the desktop can be scrolled to, but for what stands `below`, which stays in sight: the
  /// buttons that commit and leave.
  void Set_Content(const Place& content, const Place& below = Row({}));
  /// The way out: the window's close button does what this button or entry does, and so does Esc,
  /// unless that ends the run or a text box is open, whose text would be lost.
  enum class Exit { Leaves, Ends_The_Run };
  void Set_Exit(Command_Button& button, Exit exit = Exit::Leaves);
  void Set_Exit(Menu_Entry& entry, Exit exit = Exit::Ends_The_Run);
  /// Of a form on which something is entered to be stored: Esc does not leave it, whatever is open
  /// at the moment.
  void Stay_On_Esc();
  /// The button that commits what was entered or chosen: Ctrl+Enter clicks it, wherever the focus
  /// is; on a form of one page, where nothing is picked by Enter, so does Enter in a box of one
  /// line.
  enum class Enter_Key { Commits_With_Ctrl, Commits };
  void Set_Commit(Command_Button& button, Enter_Key enter = Enter_Key::Commits_With_Ctrl);

 private:
  friend class Control;
  std::unique_ptr<Form_Data> data_;
};

}  // namespace Forms
