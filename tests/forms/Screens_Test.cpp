// The life of screens: opened, shown, hidden, unloaded, waiting, in front.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"
#include "tests/support/Drive.h"
#include "tests/support/Expect_Failure.h"

namespace {

using Forms::Screen;
using Log = std::vector<std::string>;

Log events;

class Logging_Form : public Forms::Form {
 public:
  explicit Logging_Form(const char* name) : Form(name, name) {
    Exit_Command.Click = [this] { Exit_Command_Click(); };
    Set_Content(Forms::Column({Name_Text, Exit_Command}));
  }
  ~Logging_Form() override { Note("gone"); }

  void Form_Load() override { Note("Load " + Tag() + (Visible() ? " visible" : "")); }
  void Form_Activate() override { Note("Activate"); }
  void Form_Unload() override { Note("Unload"); }
  virtual void Exit_Command_Click() {
    Unload();
    Note("after Unload");
  }

  void Note(const std::string& what) { events.push_back(Name() + " " + what); }

  Forms::Text_Box Name_Text{*this, "Name_Text"};
  Forms::Command_Button Exit_Command{*this, "Exit_Command", "EXIT"};
};

class Main_Form : public Logging_Form {
 public:
  Main_Form() : Logging_Form("Main_Form") {
    Wine_Add.Click = [this] {
      Screen("Wine_Form").Open();
      if (!stays) Hide();
    };
  }

  bool stays = false;
  Forms::Menu_Entry Wine_Add{*this, "Wine_Add", "Add"};
};

class Wine_Form : public Logging_Form {
 public:
  Wine_Form() : Logging_Form("Wine_Form") {
    Name_Text.LostFocus = [this] { Note("LostFocus"); };
    Name_Text.Change = [this] {
      if (Name_Text.Text() == "p") Screen("Picker_Form").Open_Over(*this);
      if (Name_Text.Text() == "h") Hide();
      if (Name_Text.Text() == "m") Forms::Message_Box("text", "title");
    };
  }
};

class Screens_Test : public testing::Test {
 protected:
  Screens_Test() {
    Forms::Screens::Register<Main_Form>("Main_Form");
    Forms::Screens::Register<Wine_Form>("Wine_Form");
    Forms::Screens::Register("Picker_Form",
                             [] { return std::make_unique<Logging_Form>("Picker_Form"); });
    Forms::Screens::Set_Main("Main_Form");
    events.clear();
  }
  ~Screens_Test() override {
    Forms::Screens::Set_Main("");
    Forms::Screens::Clear_For_Tests();
  }

  static Log Taken() { return std::exchange(events, {}); }
  static void Open(const char* name) {
    Run_Guarded([name] { Screen(name).Open(); });
    EXPECT_TRUE(Wait_Until([name] { return Find(name).isActiveWindow(); }));
  }
};

TEST_F(Screens_Test, Every_opening_loads_anew_and_a_return_keeps_the_state) {
  Screen("Wine_Form").Set_Tag("1");
  Open("Wine_Form");
  EXPECT_EQ(Taken(), Log({"Wine_Form Load 1", "Wine_Form Activate"}));
  Type("x");
  Run_Guarded([] {
    Screen("Main_Form").Show();
    Screen("Wine_Form").Hide();
  });
  Taken();
  Run_Guarded([] { Screen("Wine_Form").Show(); });
  Settle_Events();
  EXPECT_EQ(Taken(), Log({"Wine_Form Activate"}));
  EXPECT_EQ(Shown_Text("Wine_Form/Name_Text"), "x");
  Open("Wine_Form");
  EXPECT_EQ(Taken(),
            Log({"Wine_Form Unload", "Wine_Form Load ", "Wine_Form Activate", "Wine_Form gone"}));
  EXPECT_EQ(Shown_Text("Wine_Form/Name_Text"), "");
}

TEST_F(Screens_Test, A_reference_to_a_control_or_the_caption_loads_it_hidden) {
  EXPECT_EQ(Screen("Wine_Form").Get<Forms::Text_Box>("Name_Text").Text(), "");
  EXPECT_FALSE(Screen("Wine_Form").Visible());
  EXPECT_FAILURE(13, Screen("Wine_Form").Get<Forms::Label>("Name_Text"));
  EXPECT_FAILURE(730, Screen("Wine_Form").Control("Nothing"));
  Screen("Main_Form").Set_Caption("My Current Cellar: Home");
  EXPECT_EQ(Taken(), Log({"Wine_Form Load ", "Main_Form Load "}));
  Screen("Nothing").Open();
  EXPECT_FAILURE(424, Screen("Nothing").Caption());
}

TEST_F(Screens_Test, A_handler_that_unloads_its_form_runs_on_and_the_main_window_comes_back) {
  Open("Main_Form");
  Pick("Wine_Add");
  EXPECT_FALSE(Screen("Main_Form").Visible());
  Taken();
  Click("Wine_Form/Exit_Command");
  EXPECT_EQ(Taken(), Log({"Wine_Form LostFocus", "Wine_Form Unload", "Wine_Form after Unload",
                          "Main_Form Activate", "Wine_Form gone"}));
  EXPECT_TRUE(Screen("Main_Form").Visible());
}

TEST_F(Screens_Test, A_hidden_or_waiting_form_loses_no_focus) {
  for (const char* key : {"h", "p"}) {
    Open("Wine_Form");
    Taken();
    Type(key);
    Settle_Events();
    for (const std::string& event : Taken()) EXPECT_NE(event, "Wine_Form LostFocus") << key;
  }
}

TEST_F(Screens_Test, A_picker_stays_above_its_caller_makes_it_wait_and_goes_with_it) {
  const auto open_picker = [] {
    Open("Wine_Form");
    Type("p");
    EXPECT_TRUE(Wait_Until([] { return Find("Picker_Form").isActiveWindow(); }));
    Taken();
  };
  open_picker();
  EXPECT_TRUE((Find("Picker_Form").windowFlags() & Qt::WindowType_Mask) == Qt::Dialog);
  EXPECT_EQ(Find("Picker_Form").windowHandle()->transientParent(),
            Find("Wine_Form").windowHandle());
  Click("Wine_Form/Exit_Command");
  Close_Window("Wine_Form");
  EXPECT_EQ(Taken(), Log());
  EXPECT_TRUE(Screen("Wine_Form").Visible());
  Click("Picker_Form/Exit_Command");
  EXPECT_TRUE(Wait_Until([] { return Find("Wine_Form").isActiveWindow() && events.size() == 4; }));
  EXPECT_THAT(Taken(),
              testing::UnorderedElementsAre("Picker_Form Unload", "Picker_Form after Unload",
                                            "Wine_Form Activate", "Picker_Form gone"));
  open_picker();
  Open("Wine_Form");
  EXPECT_FALSE(Screen("Picker_Form").Is_Loaded());
  Click("Wine_Form/Exit_Command");
  EXPECT_FALSE(Screen("Wine_Form").Is_Loaded());
}

TEST_F(Screens_Test, Activate_comes_with_the_user_but_not_after_a_message_box) {
  Open("Main_Form");
  dynamic_cast<Main_Form&>(Screen("Main_Form").Instance()).stays = true;
  Pick("Wine_Add");
  EXPECT_TRUE(Wait_Until([] { return Find("Wine_Form").isActiveWindow(); }));
  Taken();
  Box_Script boxes;
  Type("m");
  EXPECT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(Taken(), Log());
  Find("Main_Form").activateWindow();
  EXPECT_TRUE(Wait_Until([] { return Find("Main_Form").isActiveWindow(); }));
  EXPECT_EQ(Taken(), Log({"Main_Form Activate", "Wine_Form LostFocus"}));
}

}  // namespace
