// A form with each kind of list, for the tests of what they do and of finding in them by typing.
#pragma once

#include <gtest/gtest.h>

#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"
#include "tests/forms/Row_Clicks.h"
#include "tests/support/Drive.h"

using Log = std::vector<std::string>;

class Lists_Form : public Forms::Form {
 public:
  Lists_Form() : Form("Lists_Form", "Lists") {
    Country_Combo.Click = [this] { log.push_back("Combo " + Country_Combo.Text()); };
    Country_Combo.DblClick = [] { log.push_back("Combo DblClick"); };
    Cat_List.Click = [this] { Note("List " + Cat_List.Text(), on_click); };
    Cat_List.DblClick = [this] { Note("DblClick " + Cat_List.Text(), on_second); };
    Variety_Combo.Click = [this] { log.push_back("Checks " + Variety_Combo.Text()); };
    Variety_Combo.ItemCheck = [this](int item) {
      log.push_back("ItemCheck " + std::to_string(item));
      if (undo_ticks && Variety_Combo.Selected(item)) Variety_Combo.Set_Selected(item, false);
    };
    Exit_Command.Click = [] { log.push_back("Exit"); };
    Set_Exit(Exit_Command);
    Set_Content(Forms::Column({Country_Combo, Forms::Place(Cat_List).High(8),
                               Forms::Place(Variety_Combo).High(8), Other_Text, Exit_Command}));
  }

  static void Note(const std::string& event, const std::function<void()>& then) {
    log.push_back(event);
    if (then) then();
  }

  void Fill(Forms::Item_List& list) {
    for (const char* entry : {"Chile", "France", "Greece", "Spain"}) list.AddItem(entry);
  }

  void Form_Load() override {
    Fill(Country_Combo);
    Fill(Cat_List);
    Fill(Variety_Combo);
  }

  static inline Log log;
  bool undo_ticks = false;
  std::function<void()> on_click;
  std::function<void()> on_second;
  Forms::Combo_Box Country_Combo{*this, "Country_Combo"};
  Forms::List_Box Cat_List{*this, "Cat_List"};
  Forms::Check_List Variety_Combo{*this, "Variety_Combo"};
  Forms::Text_Box Other_Text{*this, "Other_Text"};
  Forms::Command_Button Exit_Command{*this, "Exit_Command", "EXIT"};
};

class Lists_Test : public testing::Test {
 protected:
  ~Lists_Test() override {
    Forms::Screens::Clear_For_Tests();
    Taken();
  }

  static Log Taken() { return std::exchange(Lists_Form::log, {}); }
  static Lists_Form& Opened() {
    Forms::Screens::Register<Lists_Form>("Lists_Form");
    Run_Guarded([] { Forms::Screen("Lists_Form").Open(); });
    EXPECT_TRUE(Wait_Until([] { return Focused() == "Country_Combo"; }));
    EXPECT_EQ(Taken(), Log());
    return dynamic_cast<Lists_Form&>(Forms::Screen("Lists_Form").Instance());
  }

  Lists_Form& form = Opened();
  Forms::Combo_Box& combo = form.Country_Combo;
  Forms::List_Box& list = form.Cat_List;
  Forms::Check_List& checks = form.Variety_Combo;
  const std::vector<Forms::Item_List*> all_lists{&combo, &list, &checks};
};
