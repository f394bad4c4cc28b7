#include "platform/forms/Menu.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Mnemonics.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

Menu_Item::Menu_Item(Form& form, Menu* menu, std::string_view name, std::string_view caption)
    : Control(form, name, caption), menu_(menu) {}

Menu_Item::~Menu_Item() = default;

QWidget* Menu_Item::Place_Of_Action() const {
  if (menu_ != nullptr) return menu_->Sheet();
  return Owner().Data().window->menuBar();
}

void Menu_Item::Set_Action(QAction* action) {
  action_ = action;
  action_->setObjectName(To_Qt(Name()));
  action_->setMenuRole(QAction::NoRole);
  Show_Caption();
}

void Menu_Item::Show_Caption() {
  Letters letters;
  for (const QAction* other : Place_Of_Action()->actions()) {
    if (other != action_) letters.Take(Letter_Of(other->text()));
  }
  const QChar own = Letter_Of(action_->text());
  if (!own.isNull()) former_letter_ = own.unicode();
  const bool keeps = !own.isNull() && Contains(Caption(), own);
  action_->setText(keeps ? With_Letter(Caption(), own)
                         : letters.Give(Caption(), Name(), QChar(former_letter_)));
}

void Menu_Item::Set_Tool_Tip(std::string_view text) {
  const QString tip = To_Show(text);
  action_->setToolTip(tip);
  action_->setStatusTip(tip);
  action_->setWhatsThis(tip);
}

void Menu_Item::Forget_Mnemonic() { action_->setText(Escaped(Caption())); }

void Menu_Item::Show_Enabled() { action_->setEnabled(Enabled()); }

void Menu_Item::Show_Visible() { action_->setVisible(Visible()); }

Menu::Menu(Form& form, std::string_view name, std::string_view caption)
    : Menu_Item(form, nullptr, name, caption) {
  Make();
}

Menu::Menu(Menu& above, std::string_view name, std::string_view caption)
    : Menu_Item(above.Owner(), &above, name, caption) {
  Make();
}

Menu::~Menu() = default;

void Menu::Make() {
  sheet_ = new QMenu(Place_Of_Action());
  sheet_->setObjectName(To_Qt(Name()));
  sheet_->setToolTipsVisible(true);
  Place_Of_Action()->addAction(sheet_->menuAction());
  Set_Action(sheet_->menuAction());
}

Menu_Entry::Menu_Entry(Form& form, std::string_view name, std::string_view caption)
    : Menu_Item(form, nullptr, name, caption) {
  Make();
}

Menu_Entry::Menu_Entry(Menu& menu, std::string_view name, std::string_view caption)
    : Menu_Item(menu.Owner(), &menu, name, caption) {
  Make();
}

Menu_Entry::~Menu_Entry() = default;

void Menu_Entry::Make() {
  auto* action = new QAction(Place_Of_Action());
  Place_Of_Action()->addAction(action);
  Set_Action(action);
  QObject::connect(action, &QAction::triggered, [this] { Raise(*this, Click); });
}

Menu_Separator::Menu_Separator(Menu& menu, std::string_view name)
    : Menu_Item(menu.Owner(), &menu, name, {}) {
  Set_Action(menu.Sheet()->addSeparator());
}

Menu_Separator::~Menu_Separator() = default;

}  // namespace Forms
