// The menu bar of a form: menus, submenus, entries, separators. They appear in the order in which
// they are made. Each one's action carries the control's name; a menu too.
#pragma once

#include <memory>

#include "platform/forms/Control.h"

class QAction;
class QMenu;

namespace Forms {

class Menu;

/// What a menu bar or a menu consists of. A caption that changes keeps its mnemonic where it
/// contains it, and moves that of no other entry.
class Menu_Item : public Control {
 public:
  ~Menu_Item() override;

  /// What the menu says of the item when the pointer rests on it, one that is not enabled too.
  void Set_Tool_Tip(std::string_view text);

  /// For this room and the tests.
  QAction* Action() const { return action_; }
  void Forget_Mnemonic();
  void Show_Caption() override;

 protected:
  Menu_Item(Form& form, Menu* menu, std::string_view name, std::string_view caption);
  void Set_Action(QAction* action);
  QWidget* Place_Of_Action() const;  ///< the menu bar or menu it stands in

  void Show_Enabled() override;
  void Show_Visible() override;

 private:
  Menu* menu_;
  char16_t former_letter_ = 0;  ///< its last mnemonic
  QAction* action_ = nullptr;
};

class Menu : public Menu_Item {
 public:
  Menu(Form& form, std::string_view name, std::string_view caption);   ///< on the menu bar
  Menu(Menu& above, std::string_view name, std::string_view caption);  ///< a submenu
  ~Menu() override;

  QMenu* Sheet() const { return sheet_; }

 private:
  void Make();
  QMenu* sheet_ = nullptr;
};

class Menu_Entry : public Menu_Item {
 public:
  Menu_Entry(Form& form, std::string_view name, std::string_view caption);  ///< on the menu bar
  Menu_Entry(Menu& menu, std::string_view name, std::string_view caption);
  ~Menu_Entry() override;

  /// On the user's choice. An entry without a handler can be chosen and does nothing.
  std::function<void()> Click;

 private:
  void Make();
};

class Menu_Separator : public Menu_Item {
 public:
  explicit Menu_Separator(Menu& menu, std::string_view name = "Separator");
  ~Menu_Separator() override;
  void Show_Caption() override {}
};

}  // namespace Forms
