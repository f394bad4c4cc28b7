// What a form consists of inside. For the sources of this room only.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <map>
#include <string>
#include <vector>

namespace Forms {

class Command_Button;
class Control;
class Form;
class Menu_Entry;
class Menu_Item;

/// The window of a form: its close button and Esc are the form's exit.
class Form_Window : public QMainWindow {
 public:
  explicit Form_Window(Form& form) : form_(form) {}
  Form& Owner() const { return form_; }

  bool event(QEvent* event) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Form& form_;
};

struct Form_Data {
  std::string name;
  std::string caption;
  std::string tag;
  Form_Window* window = nullptr;
  QWidget* content = nullptr;  ///< what scrolls if the desktop is too small for it; parent of the
                               ///< controls' widgets
  QWidget* below = nullptr;    ///< what always stays in sight
  std::vector<Control*> controls;  ///< in the order of their making
  std::vector<QPointer<QWidget>> reading_order;
  Command_Button* exit_button = nullptr;
  Menu_Entry* exit_entry = nullptr;
  Command_Button* commit_button = nullptr;
  bool enter_commits = false;
  std::map<std::pair<const Control*, std::string>, QChar> letters;  ///< mnemonics, by caption
  std::map<const Control*, QChar> former_letters;                   ///< of captions that went
  bool esc_leaves = true;
  Form* caller = nullptr;  ///< the form that waits for this one, while this one is shown
  int waiting_for = 0;     ///< how many forms this one waits for
  bool loaded = false;
  bool unloading = false;
  bool unloaded = false;
  bool loading = false;
  bool hidden_while_loading = false;  // the Show that made it load leaves it hidden
  bool was_shown = false;
  int opening_width = 0;  // 0: as wide as the layout asks for
  bool has_growing_list = false;
};

/// The form whose window, or a popup of whose window, `widget` belongs to; nullptr for others.
Form* Form_Of(const QWidget* widget);
/// Does what the form's exit does.
void Leave(Form& form, bool by_key);
/// Presses the form's committing button, as a click does, where it can be clicked.
void Commit(Form& form);
/// Gives the captions of the form's controls their mnemonics: those that have none yet.
void Assign_Mnemonics(Form& form);
void Forget_Mnemonics(Form& form);
}  // namespace Forms
