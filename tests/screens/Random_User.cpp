#include "tests/screens/Random_User.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTreeView>

#include "platform/forms/Forms.h"
#include "platform/forms/Screens.h"
#include "platform/run_time/Guard.h"
#include "tests/forms/Row_Clicks.h"
#include "tests/support/Hostile_Texts.h"
#include "tests/support/Program_Folder.h"

namespace {

constexpr const char* main_window = "Wine_Cellar_Form";

// Those that lead to most come more than once.
const Texts entries = Cells_of(
    "Wine_Add Wine_Add Wine_Add Wine_Mod Wine_Mod Wine_Mod Wine_Uncork Wine_Del Wine_Del "
    "Cellar1_View Cellar2_View Wines_Cellar_List Pairing_Search_Cellar Pairing_Search_Cellar "
    "Pairing_Search_Cellar Pairing_Search_Cellar Pairing_Search_Cellar Winery_Del Labels_Add "
    "Pairing_Search_General Pairing_Add Pairing_Mod Pairings_List Cellar_Add Cellar_Mod "
    "Cellar_View Help_Comments Winery_Add Winery_Mod Winery_Mod Winery_Del Winery_Del Winery_List "
    "Region_Add Region_Add "
    "Region_Mod_Var Region_Mod_Other Region_Del Region_Pair_Varieties Labels_Add Labels_Mod "
    "Labels_Mod Labels_Del Region_Mod_Var Region_Pair_Varieties Region_Del "
    "Labels_Del Labels_View Classification_View",
    " ");

// Screens that wait for the entry that is to lead to them, and the commands under which they change
// nothing but what is chosen in them.
const std::vector<std::pair<const char*, const char*>> without_entry{
    {"Search_General_Pairings_Form", "GeneralPairings"},
    {"Select_Mult_Varieties_Form", "GeneralPairings"},
    {"Select_Mult_Wines_Form", "CheeseAdd"}};

const Texts numbers{"0", "1", "2", "7", " 12 ", "1,250", "1e3", "40", "32767"};
const Texts dates{"1/1/2020", "2020-02-29", "6/15/2026 14:30:05", "12/31/2006 23:59", ""};
const Texts keys{"Tab", "Shift+Tab", "Return", "Esc", "Space", "Delete", "Ctrl+Return"};

// What the buttons have in common that store something or lead on with it.
const Texts commits{"Multi_Functional_Command", "MultSelect", "Cat_Add_Now", "General_Command"};

std::vector<QWidget*> Usable_Controls(const std::string& form) {
  std::vector<QWidget*> usable;
  for (QWidget* widget : Find(form).findChildren<QWidget*>()) {
    const QString name = widget->objectName();
    const bool control =
        !name.isEmpty() && !name.startsWith("qt_") && widget->focusPolicy() != Qt::NoFocus;
    if (control && widget->isVisible() && widget->isEnabled()) usable.push_back(widget);
  }
  return usable;
}

}  // namespace

// Where the window with the focus has gone, a desktop gives it to another one.
std::string Random_User::Front() {
  const QWidget* active = QApplication::activeWindow();
  if (active != nullptr) return active->objectName().toStdString();
  Texts names = Forms::Screens::Names_For_Tests();
  names.insert(names.begin(), main_window);
  const auto next = std::ranges::find_if(
      names, [](const std::string& name) { return Forms::Screen(name).Visible(); });
  if (next == names.end()) return main_window;
  Find(*next).activateWindow();
  Settle_Events();
  return *next;
}

// One that waits for another hands the keys on to that.
void Random_User::Switch_Window() {
  Texts names = Forms::Screens::Names_For_Tests();
  std::erase_if(names, [](const std::string& name) { return !Forms::Screen(name).Visible(); });
  if (names.size() < 2) return;
  Find(One_of(names)).activateWindow();
  Settle_Events();
}

void Random_User::Act(bool refused) {
  const std::string form = Front();
  if (form == main_window) {
    Choose_Entry();
  } else if (refused && Random(4) > 0) {
    Paste_Into(form + "/" + Focused(), One_of(Texts{"", "", "6"}));
  } else if (Random(20) == 0) {
    const std::string key = One_of(keys);
    about_to(key);
    Press(key);
  } else if ((Random(2) == 0 && Fill_Required(form)) || (Random(6) == 0 && Commit(form))) {
    return;
  } else {
    const std::vector<QWidget*> usable = Usable_Controls(form);
    const bool labels =
        Current_Command.starts_with("Label") && Is_Usable(form + "/Labels_ListView");
    const bool deletes = Current_Command == "WineryDel";
    const std::string list = form + (labels    ? "/Labels_ListView"
                                     : deletes ? "/Wineries_ListView"
                                               : "/Wine_Cellar_ListView");
    const bool picks =
        Random(deletes ? 2 : 4) == 0 && Is_Usable(list) && Current_Command != "WineAdd";
    if (!usable.empty()) Use(picks ? Find(list) : *One_of(usable));
  }
}

void Random_User::Choose_Entry() {
  if (Random(20) == 0) {
    const auto [screen, command] = One_of(without_entry);
    about_to(screen);
    Current_Command = command;
    Run_Guarded([screen] { Forms::Screen(screen).Open(); });
    Settle_Events();
  } else if (const std::string entry = One_of(entries); Is_Usable(entry)) {
    about_to(entry);
    Pick(entry);
  }
}

bool Random_User::Fill_Required(const std::string& form) {
  std::vector<QWidget*> required;
  for (QWidget* control : Usable_Controls(form)) {
    const std::string name = control->objectName().toStdString();
    const bool colored = name.ends_with("_Combo") || name.ends_with("Text");
    if (colored && Color_of(form + "/" + name) == "required") required.push_back(control);
  }
  if (required.empty()) return false;
  Use(*One_of(required));
  return true;
}

bool Random_User::Commit(const std::string& form) {
  for (const std::string& button : commits) {
    const std::string name = form + "/" + button;
    if (!Is_Usable(name)) continue;
    about_to(name);
    Click(name);
    return true;
  }
  return false;
}

// Screens beside it have controls of the same names.
void Random_User::Use(QWidget& control) {
  const std::string name =
      (control.window()->objectName() + "/" + control.objectName()).toStdString();
  about_to(name);
  if (qobject_cast<QComboBox*>(&control) != nullptr) {
    Choose_By_Keys(name);
  } else if (const auto* list = qobject_cast<QAbstractItemView*>(&control)) {
    Use_List(name, list->model()->rowCount());
  } else if (name.ends_with("Text")) {
    Fill(name);
  } else {
    Click(name);
  }
}

// One of the first rows that this user has named, often; else any.
int Random_User::One_of_Rows(const Texts& names) {
  std::vector<int> own;
  for (std::size_t row = 0; row < names.size(); ++row) {
    if (names[row].starts_with('#')) own.push_back(static_cast<int>(row));
  }
  const bool any = Current_Command.ends_with("Del");
  const std::size_t first_ones = any ? own.size() : std::min<std::size_t>(own.size(), 3);
  return own.empty() || Random(3) == 0 ? Random(names.size()) : own[Random(first_ones)];
}

// The list of a combo box opens by a click; typing in it goes to what begins so. The first entry is
// seldom a choice.
void Random_User::Choose_By_Keys(const std::string& name) {
  const Texts entries = Shown_Rows(name);
  std::vector<std::string> wanted(entries.begin() + (entries.size() > 1 && Random(20) > 0 ? 1 : 0),
                                  entries.end());
  if (name.ends_with("/Country_Combo") && Random(4) > 0) {
    std::erase_if(wanted,
                  [this](const std::string& country) { return !countries_.contains(country); });
  }
  Click(name);
  if (!wanted.empty()) {
    const std::string& entry = wanted[static_cast<std::size_t>(One_of_Rows(wanted))];
    const auto dash = entry.starts_with('#') ? entry.find('-') : std::string::npos;
    const bool own = dash != std::string::npos;
    Type(own ? entry.substr(0, dash + 1) : QString::fromStdString(entry).left(6).toStdString());
  }
  Press(Random(20) > 0 ? "Return" : "Esc");
}

void Random_User::Use_List(const std::string& name, int rows) {
  const bool has_header = qobject_cast<QTreeView*>(&Find(name)) != nullptr;
  if (has_header && Random(10) == 0) {
    Click_Header(name, Random(3));
  } else if (rows > 0) {
    const bool named = name.ends_with("ListView");
    const int row =
        named ? One_of_Rows(Shown_Column(name, 0)) : Random(static_cast<std::size_t>(rows));
    if (name == "Wine_Form/Variety_Combo") {
      Click_Tick(name, row);
    } else {
      Click_Row(name, row);
      if (Random(3) == 0 && Is_Usable(name)) Double_Click_Row(name, row);
    }
  }
}

void Random_User::Fill(const std::string& control) {
  const std::string name = control.substr(control.find('/') + 1);
  static const std::set<std::string> of_numbers{"Total_Bottles_Text", "Price_Text", "Alcohol_Text"};
  const bool of_a_date = name.starts_with("Date") || name.starts_with("Last_Date");
  const Texts& fitting = of_a_date ? dates : of_numbers.contains(name) ? numbers : Hostile_Texts();
  std::string text = One_of(Random(4) > 0 ? fitting : Hostile_Texts());
  // A name that the bar of the menus has room for.
  if (name.starts_with("Cellar")) text = QString::fromStdString(text).left(20).toStdString();
  // No two pairings of one name: their names are what the test knows them by. Other names are what
  // this user finds its rows by.
  const bool pairing = name.starts_with("CAT") || name.starts_with("Cat");
  const bool numbered = pairing || (name == "Name_Text" && Random(10) > 0);
  Paste_Into(control, numbered ? "#" + std::to_string(++typed_) + "-" + text : text);
  if (Random(2) == 0) Press("Tab");
}
