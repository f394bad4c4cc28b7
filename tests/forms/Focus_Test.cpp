// Who has the focus, who loses it, and which clicks are dropped.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <array>
#include <map>

#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"
#include "tests/support/Drive.h"

namespace {

using Log = std::vector<std::string>;

/// Two fields that write down what happens to them, an action and an exit.
class Entry_Form : public Forms::Form {
 public:
  Entry_Form() : Form("Entry_Form", "Entry") {
    Price_Text.LostFocus = [this] { Price_Text_LostFocus(); };
    Name_Text.LostFocus = [this] { log.push_back("Name LostFocus"); };
    Dry_Check.Click = [this] { log.push_back("Dry " + std::to_string(Dry_Check.Value())); };
    Wine_Add.Click = [] { log.push_back("Add"); };
    General_Command.Click = [this] { log.push_back("Click"); };
    Exit_Command.Click = [this] {
      log.push_back("Exit");
      Unload();
    };
    Set_Exit(Exit_Command);
    Set_Commit(General_Command, Enter_Key::Commits);
    Set_Content(Forms::Column({Forms::Fields({{Price_Label, Price_Text}, {Name_Label, Name_Text}}),
                               Dry_Check, Forms::Buttons({General_Command, Exit_Command})}));
  }

  void Price_Text_LostFocus() {
    log.push_back("Price LostFocus");
    const std::string& text = Price_Text.Text();
    if (text == "on") Name_Text.SetFocus();
    if (text == "told" || text == "bad") Forms::Message_Box("not numeric", "ILLEGAL NUMBER");
    if (text == "bad") Price_Text.SetFocus();
  }

  static inline Log log;
  Forms::Label Price_Label{*this, "Price_Label", "Price"};
  Forms::Text_Box Price_Text{*this, "Price_Text"};
  Forms::Label Name_Label{*this, "Name_Label", "Name"};
  Forms::Text_Box Name_Text{*this, "Name_Text"};
  Forms::Check_Box Dry_Check{*this, "Dry_Check", "Dry"};
  Forms::Menu_Entry Wine_Add{*this, "Wine_Add", "Add"};
  Forms::Command_Button General_Command{*this, "General_Command", "SAVE"};
  Forms::Command_Button Exit_Command{*this, "Exit_Command", "EXIT"};
};

class Picker_Form : public Forms::Form {
 public:
  Picker_Form() : Form("Picker_Form", "Picker") { Set_Content(Forms::Column({Choice_Text})); }
  Forms::Text_Box Choice_Text{*this, "Choice_Text"};
};

class Focus_Test : public testing::Test {
 protected:
  Focus_Test() {
    Forms::Screens::Register<Entry_Form>("Entry_Form");
    Open();
    Entry_Form::log.clear();
  }
  ~Focus_Test() override { Forms::Screens::Clear_For_Tests(); }

  static void Open() {
    Run_Guarded([] { Forms::Screen("Entry_Form").Open(); });
    EXPECT_TRUE(Wait_Until([] { return Focused() == "Price_Text"; }));
  }
  static Log Taken() { return std::exchange(Entry_Form::log, {}); }
};

// A focus that is not the program's, as long as it lives.
class Other_Program : public QWidget {
 public:
  Other_Program() {
    setFocusPolicy(Qt::StrongFocus);
    show();
    activateWindow();
    setFocus();
    EXPECT_TRUE(Wait_Until([this] { return hasFocus(); }));
  }
};

QAccessibleInterface& Seen_By_Assistive_Programs(const char* name) {
  return *QAccessible::queryAccessibleInterface(&Find(name));
}

void Act_On(const char* name, const QString& action) {
  Seen_By_Assistive_Programs(name).actionInterface()->doAction(action);
}

void Commit_Or_Click(const char* key, const std::string& button) {
  button == "General_Command" ? Press(key) : Click(button);
}

const std::string inactive = "mouse into an inactive window";

/// How a user, or a program for the user, clicks.
const std::map<std::string, void (*)(const char* button)> ways_to_click = {
    {"mouse", [](const char* button) { Click(button); }},
    {"mnemonic", [](const char* button) { Press("Alt+" + Shown_Text(button).substr(0, 1)); }},
    {"action",
     [](const char* button) {
       auto* widget = dynamic_cast<QAbstractButton*>(&Find(button));
       Act_On(button, QAccessibleActionInterface::pressAction());
       EXPECT_TRUE(Wait_Until([widget] { return !widget->isDown(); }));
       Settle_Events();
     }},
    {"Ctrl+Enter", [](const char* button) { Commit_Or_Click("Ctrl+Return", button); }},
    {"Enter in the box", [](const char* button) { Commit_Or_Click("Return", button); }},
    {inactive,
     [](const char* button) {
       const Other_Program other;
       Click(button);
     }},
};

/// How a text comes into a box that does not have the focus.
const std::map<std::string, void (*)(const char* box, const char* text)> ways_to_enter = {
    {"keys",
     [](const char* box, const char* text) {
       Click(box);
       if (Focused() == box) Type(text);
     }},
    {"drop",
     [](const char* box, const char* text) {
       QMimeData word;
       word.setText(text);
       QDragEnterEvent enter({}, Qt::CopyAction, &word, Qt::LeftButton, {});
       QDropEvent drop({}, Qt::CopyAction, &word, Qt::LeftButton, {});
       QApplication::sendEvent(&Find(box), &enter);
       if (enter.isAccepted()) QApplication::sendEvent(&Find(box), &drop);
       EXPECT_EQ(enter.isAccepted() && drop.isAccepted(), Shown_Text(box) == text);
     }},
    {"assistive program",
     [](const char* box, const char* text) {
       Seen_By_Assistive_Programs(box).setText(QAccessible::Value, text);
     }},
};

TEST_F(Focus_Test, A_held_key_presses_ticks_and_chooses_once) {
  for (const auto& [control, key, once] :
       std::vector<std::array<std::string, 3>>{{"General_Command", "Return", "Click"},
                                               {"General_Command", "Space", "Click"},
                                               {"General_Command", "Alt+S", "Click"},
                                               {"General_Command", "Ctrl+Return", "Click"},
                                               {"Name_Text", "Return", "Click"},
                                               {"Dry_Check", "Space", "Dry 1"},
                                               {"Dry_Check", "Alt+D", "Dry 0"},
                                               {"Dry_Check", "Alt+A", "Add"}}) {
    SCOPED_TRACE(testing::Message() << key << " on " << control);
    Find(control).setFocus();
    Taken();
    Press(key);
    Repeat(key);
    Log log = Taken();
    std::erase(log, "Name LostFocus");
    EXPECT_EQ(log, Log({once}));
  }
  Press("F10");
  EXPECT_EQ(Focused(), "Dry_Check");  // there is no menu to open
}

TEST_F(Focus_Test, A_box_takes_no_key_before_the_one_that_brought_it_was_let_go) {
  for (const char* key : {"Return", "Alt+S"}) {
    Type_Into("Price_Text", "told");
    Act_In_Next_Box([key] {
      for (const char* held : {key, "Space", "O"}) Repeat(held);
      EXPECT_NE(QApplication::activeModalWidget(), nullptr);
      Press("Return");
    });
    Press(key);
    Repeat(key);
    EXPECT_EQ(Taken(), Log({"Price LostFocus", "Click"}));
  }
}

// The text of the field says what its LostFocus does; see Price_Text_LostFocus.
TEST_F(Focus_Test, A_field_is_left_before_any_click_and_a_refusal_drops_all_but_the_exit) {
  for (const auto& [entering, enter] : ways_to_enter) {
    for (const auto& [clicking, click] : ways_to_click) {
      for (const std::string text : {"5", "told", "bad"}) {
        SCOPED_TRACE(testing::Message() << text << " by " << entering << ", " << clicking);
        Open();
        Press("Tab");
        enter("Price_Text", text.c_str());
        const bool refused = text == "bad";
        for (const bool on_exit : {false, true}) {
          Taken();
          const bool left_before = on_exit && !refused;
          if (text != "5" && !left_before) Press_In_Next_Box("Return");
          click(on_exit ? "Exit_Command" : "General_Command");
          Log expected;
          if (!left_before) expected.push_back("Price LostFocus");
          if (on_exit) expected.push_back("Exit");
          if (!on_exit && !refused) expected.push_back("Click");
          EXPECT_EQ(Taken(), expected);
          if (on_exit) continue;
          Find("Entry_Form").activateWindow();  // no window manager does it when a box has gone
          EXPECT_TRUE(Wait_Until(
              [&] { return Focused() == (refused ? "Price_Text" : "General_Command"); }));
          EXPECT_FALSE(dynamic_cast<QAbstractButton&>(Find("General_Command")).isDown());
          EXPECT_EQ(dynamic_cast<QLineEdit&>(Find("Price_Text")).selectedText(),
                    refused ? "bad" : "");
        }
        EXPECT_FALSE(Forms::Screen("Entry_Form").Is_Loaded());
      }
    }
  }
}

TEST_F(Focus_Test, Nothing_is_changed_beside_a_field_that_refuses_to_be_left) {
  Box_Script boxes;
  for (const std::string text : {"bad", "5"}) {
    for (const auto& [entering, enter] : ways_to_enter) {
      SCOPED_TRACE(text + ", " + entering);
      Type_Into("Price_Text", text);
      Taken();
      enter("Name_Text", "word");
      const bool refused = text == "bad";
      EXPECT_EQ(Taken(), Log({"Price LostFocus"}));
      EXPECT_EQ(Shown_Text("Name_Text"), refused ? "" : "word");
      EXPECT_EQ(Focused(), refused ? "Price_Text" : "Name_Text");
      Press("Ctrl+A");
      Press("Delete");
    }
    Type_Into("Price_Text", text);
    Taken();
    Act_On("Dry_Check", QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(Taken(),
              text == "bad" ? Log({"Price LostFocus"}) : Log({"Price LostFocus", "Dry 1"}));
    EXPECT_EQ(dynamic_cast<QAbstractButton&>(Find("Dry_Check")).isChecked(), text == "5");
  }
}

TEST_F(Focus_Test, A_form_that_takes_no_input_answers_to_nothing_and_nobody) {
  auto& form = dynamic_cast<Entry_Form&>(Forms::Screen("Entry_Form").Instance());
  const auto try_all = [](bool beside_a_box) {
    for (const auto& [clicking, click] : ways_to_click) {
      if (!beside_a_box || clicking != inactive) click("General_Command");
    }
    for (const auto& [entering, enter] : ways_to_enter) enter("Name_Text", "word");
    Act_On("Dry_Check", QAccessibleActionInterface::toggleAction());
    Find("Entry_Form").findChild<QAction*>("Wine_Add")->trigger();
    Close_Window("Entry_Form");
    EXPECT_EQ(Taken(), Log());
    EXPECT_EQ(Shown_Text("Name_Text"), "");
    EXPECT_FALSE(dynamic_cast<QAbstractButton&>(Find("Dry_Check")).isChecked());
  };
  Act_In_Next_Box([&] {
    try_all(true);
    Press("Return");
  });
  Forms::Message_Box("text\r\nmore", "title");
  form.Set_Enabled(false);
  try_all(false);
  form.Set_Enabled(true);
  Forms::Screens::Register<Picker_Form>("Picker_Form");
  Run_Guarded([&] { Forms::Screen("Picker_Form").Open_Over(form); });
  try_all(false);
  Run_Guarded([] { Forms::Screen("Picker_Form").Unload(); });
  Click("General_Command");
  EXPECT_EQ(Taken(), Log({"Click"}));
}

TEST_F(Focus_Test, Code_that_sets_the_focus_raises_lost_focus_once_and_at_once) {
  Type("on");
  Taken();
  auto& form = dynamic_cast<Entry_Form&>(Forms::Screen("Entry_Form").Instance());
  Run_Guarded([&] {
    form.General_Command.SetFocus();
    Entry_Form::log.push_back("after SetFocus");
  });
  EXPECT_EQ(Taken(), Log({"Price LostFocus", "after SetFocus"}));
  EXPECT_EQ(Focused(), "Name_Text");
  Press("Tab");
  EXPECT_EQ(Taken(), Log({"Name LostFocus"}));
}

}  // namespace
