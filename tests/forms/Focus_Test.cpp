// Who has the focus, who loses it, and which clicks are dropped.
#include <gtest/gtest.h>

#include <QPushButton>

#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"
#include "tests/support/Drive.h"

namespace {

using Log = std::vector<std::string>;

/// Two fields that write down what happens to them, an action and an exit.
class Entry_Form : public Forms::Form {
 public:
  Entry_Form() : Form("Entry_Form", "Entry") {
    Price_Text.Change = [this] { log.push_back("Change " + Price_Text.Text()); };
    Price_Text.LostFocus = [this] { Price_Text_LostFocus(); };
    Name_Text.LostFocus = [this] { log.push_back("Name LostFocus"); };
    General_Command.Click = [this] { log.push_back("Click"); };
    Exit_Command.Click = [this] {
      log.push_back("Exit");
      Unload();
    };
    Set_Exit(Exit_Command);
    Set_Content(Forms::Column({Forms::Fields({{Price_Label, Price_Text}, {Name_Label, Name_Text}}),
                               Forms::Buttons({General_Command, Exit_Command})}));
  }

  void Price_Text_LostFocus() {
    log.push_back("Price LostFocus");
    if (Price_Text.Text() == "on") Name_Text.SetFocus();
    if (Price_Text.Text() != "bad") return;
    Forms::Message_Box("not numeric", "ILLEGAL NUMBER");
    Price_Text.SetFocus();
  }

  static inline Log log;
  Forms::Label Price_Label{*this, "Price_Label", "Price"};
  Forms::Text_Box Price_Text{*this, "Price_Text"};
  Forms::Label Name_Label{*this, "Name_Label", "Name"};
  Forms::Text_Box Name_Text{*this, "Name_Text"};
  Forms::Command_Button General_Command{*this, "General_Command", "SAVE"};
  Forms::Command_Button Exit_Command{*this, "Exit_Command", "EXIT"};
};

class Focus_Test : public testing::Test {
 protected:
  Focus_Test() {
    Forms::Screens::Register<Entry_Form>("Entry_Form");
    Run_Guarded([] { Forms::Screen("Entry_Form").Open(); });
    EXPECT_TRUE(Wait_Until([] { return Focused() == "Price_Text"; }));
    Entry_Form::log.clear();
  }
  ~Focus_Test() override { Forms::Screens::Clear_For_Tests(); }

  static Log Taken() { return std::exchange(Entry_Form::log, {}); }
};

TEST_F(Focus_Test, Leaving_a_field_comes_before_the_click_of_the_button) {
  Type("5");
  EXPECT_EQ(Taken(), Log({"Change 5"}));
  Click("General_Command");
  EXPECT_EQ(Taken(), Log({"Price LostFocus", "Click"}));
  EXPECT_EQ(Focused(), "General_Command");
  for (const char* key : {"Return", "Enter", "Space"}) {
    Press(key);
    EXPECT_EQ(Taken(), Log({"Click"})) << key;
  }
  Click("Price_Text");
  Press("Alt+S");
  EXPECT_EQ(Taken(), Log({"Price LostFocus", "Click"}));
  Click("Price_Text");
  Press("Tab");
  EXPECT_EQ(Focused(), "Name_Text");
  EXPECT_EQ(Taken(), Log({"Price LostFocus"}));
}

TEST_F(Focus_Test, A_refused_value_drops_the_click_but_not_the_exit) {
  Box_Script boxes;
  Type("bad");
  for (const bool by_mouse : {true, false}) {
    Taken();
    by_mouse ? Click("General_Command") : Press("Alt+S");
    EXPECT_EQ(Taken(), Log({"Price LostFocus"})) << by_mouse;
    EXPECT_EQ(Focused(), "Price_Text");
  }
  Press("Tab");
  EXPECT_EQ(Focused(), "Price_Text");
  Taken();
  Click("Exit_Command");
  EXPECT_EQ(Taken(), Log({"Price LostFocus", "Exit"}));
  EXPECT_FALSE(Forms::Screen("Entry_Form").Is_Loaded());
}

TEST_F(Focus_Test, A_box_in_the_middle_of_a_press_leaves_no_button_down) {
  Type("bad");
  for (const char* button : {"General_Command", "Exit_Command"}) {
    Taken();
    Press_In_Next_Box("Return");
    Click(button);
    if (button == std::string("General_Command")) {
      EXPECT_EQ(Taken(), Log({"Price LostFocus"}));
      EXPECT_FALSE(dynamic_cast<QPushButton&>(Find(button)).isDown());
      Type("!");
      EXPECT_EQ(Shown_Text("Price_Text"), "bad!");
      Press("Backspace");
    }
  }
  EXPECT_EQ(Taken(), Log({"Price LostFocus", "Exit"}));
}

TEST_F(Focus_Test, Boxes_other_windows_and_a_disabled_form_take_no_focus_away) {
  Press_In_Next_Box("Return");
  Forms::Message_Box("text\r\nmore", "title");
  QWidget other_program;
  other_program.setFocusPolicy(Qt::StrongFocus);
  other_program.show();
  other_program.activateWindow();
  other_program.setFocus();
  EXPECT_TRUE(Wait_Until([&] { return other_program.hasFocus(); }));
  other_program.close();
  Find("Entry_Form").activateWindow();
  EXPECT_TRUE(Wait_Until([] { return Focused() == "Price_Text"; }));
  EXPECT_EQ(Taken(), Log());
  Forms::Screen("Entry_Form").Instance().Set_Enabled(false);
  Settle_Events();
  EXPECT_EQ(Taken(), Log());
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
