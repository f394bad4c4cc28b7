#include "tests/support/Every_Screen.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTreeView>

#include "app/Program_Screens.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Guard.h"

namespace {

constexpr const char* main_window = "Wine_Cellar_Form";

// The entries that open a screen now, by their names: a menu is made anew with each form.
Texts Entries_of_Menu() {
  Texts names;
  for (const QAction* action : Find(main_window).findChildren<QAction*>()) {
    const bool leads_on = action->menu() == nullptr && !action->isSeparator();
    if (leads_on && action->isEnabled() && action->isVisible() && !action->objectName().isEmpty() &&
        action->objectName() != "Wine_Cellar_Exit") {
      names.push_back(action->objectName().toStdString());
    }
  }
  return names;
}

Forms::Form* Opened() {
  for (const std::string& name : Forms::Screens::Names_For_Tests()) {
    if (name != main_window && Forms::Screen(name).Visible())
      return &Forms::Screen(name).Instance();
  }
  return nullptr;
}

// The screens that no entry opens say nothing without the command that leads to them.
const char* Command_for(const std::string& screen) {
  if (screen == "Wine_Search_Results_Form") return "WineSearch";
  if (screen == "Select_Maridages_for_Wines_Form") return "WineAdd";
  return "GeneralPairings";
}

void Pick_First_Row(Forms::Form& form) {
  for (const QTreeView* view : form.Window()->findChildren<QTreeView*>()) {
    if (!view->isVisible() || !view->isEnabled() || view->model()->rowCount() == 0) continue;
    Click_Row(form.Name() + "/" + view->objectName().toStdString(), 0);
    return;
  }
}

}  // namespace

Every_Screen::Every_Screen() {
  Register_Program_Screens();
  Wines_Record wine = Sample_Wine();
  wine.Label = "Grand Vin de la Propriété, Réserve du Fondateur, Vieilles Vignes";
  wine.Description = Put_Text("From the slope behind the house.");
  const Long key = Put_Wine(wine, Sample().variety_ids);
  for (int food = 0; food < 2; ++food) Put_Pairing(key, Food(food));
}

void Every_Screen::Each_Screen(Integer language, const std::string& family, int points,
                               const Look& look) {
  const QFont before = QApplication::font();
  QFont font = before;
  if (!family.empty()) font.setFamily(QString::fromStdString(family));
  font.setPointSize(points);
  QApplication::setFont(font);
  Set_Language(language);
  Start();
  SCOPED_TRACE("language " + std::to_string(language) + ", " + family + " " +
               std::to_string(points) + " point");
  const Box_Script boxes(std::vector<bool>(1000, false));
  seen_ = {main_window};
  look(Forms::Screen(main_window).Instance());
  Open_By_Menu(look);
  Open_Others(look);
  Stop();
  QApplication::setFont(before);
}

void Every_Screen::Open_By_Menu(const Look& look) {
  for (const std::string& entry : Entries_of_Menu()) {
    Find(main_window).findChild<QAction*>(QString::fromStdString(entry))->trigger();
    Look_At_Opened(entry, look);
  }
}

void Every_Screen::Open_Others(const Look& look) {
  Selected_Count = 1;
  Selected_IDs[1] = Food(0).id;
  Selected_Names[1] = Food(0).name;
  for (const std::string& name : Forms::Screens::Names_For_Tests()) {
    if (seen_.contains(name)) continue;
    Open_Under(name.c_str(), Command_for(name));
    Look_At_Opened(name, look);
    EXPECT_TRUE(seen_.contains(name)) << name << " does not open";
  }
}

void Every_Screen::Look_At_Opened(const std::string& how, const Look& look) {
  Settle_Events();
  Forms::Form* form = Opened();
  if (form == nullptr) return;
  SCOPED_TRACE(form->Name() + " by " + how);
  seen_.insert(form->Name());
  look(*form);
  Pick_First_Row(*form);
  if (form == Opened()) look(*form);
  Run_Guarded([form] { form->Unload(); });
  Run_Guarded([] { Forms::Screen(main_window).Show(); });
  Settle_Events();
}
