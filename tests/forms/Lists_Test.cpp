// Combo boxes, lists and check lists: what raises an event, and what does not.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QScreen>
#include <QScrollBar>
#include <QWidget>

#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"
#include "tests/forms/Row_Clicks.h"
#include "tests/support/Drive.h"
#include "tests/support/Expect_Failure.h"

namespace {

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
  Lists_Test() {
    Forms::Screens::Register<Lists_Form>("Lists_Form");
    Run_Guarded([] { Forms::Screen("Lists_Form").Open(); });
    EXPECT_TRUE(Wait_Until([] { return Focused() == "Country_Combo"; }));
    EXPECT_EQ(Taken(), Log());
  }
  ~Lists_Test() override { Forms::Screens::Clear_For_Tests(); }

  static Log Taken() { return std::exchange(Lists_Form::log, {}); }
  static std::vector<Forms::Item_List*> All_Lists() {
    return {&Shown().Country_Combo, &Shown().Cat_List, &Shown().Variety_Combo};
  }
  static Lists_Form& Shown() {
    return dynamic_cast<Lists_Form&>(Forms::Screen("Lists_Form").Instance());
  }
};

TEST_F(Lists_Test, Code_that_chooses_raises_click_and_code_that_adds_or_removes_nothing) {
  for (Forms::Item_List* list : All_Lists()) {
    EXPECT_EQ(list->ListIndex(), -1);
    EXPECT_EQ(list->Text(), "");
    EXPECT_EQ(list->List(3), "Spain");
    for (const int index : {1, 1, -1, 2}) list->Set_ListIndex(index);
    EXPECT_EQ(Taken().size(), 3U);
    list->AddItem("Austria", 0);
    EXPECT_EQ(list->ListIndex(), 3);
    EXPECT_EQ(list->Text(), "Greece");
    list->RemoveItem(0);
    EXPECT_EQ(list->ListIndex(), -1);
    EXPECT_EQ(list->ListCount(), 4);
    list->Clear();
    EXPECT_EQ(list->ListCount(), 0);
    list->AddItem("Italy");
    EXPECT_EQ(list->ListIndex(), -1);
    EXPECT_EQ(Shown_Text("Country_Combo"), "");
    EXPECT_EQ(Taken(), Log());
    EXPECT_FAILURE(380, list->Set_ListIndex(1));
    EXPECT_FAILURE(380, list->Set_ListIndex(-2));
    EXPECT_FAILURE(381, list->List(1));
    EXPECT_FAILURE(5, list->RemoveItem(1));
  }
  EXPECT_FAILURE(381, Shown().Variety_Combo.Selected(1));
}

TEST_F(Lists_Test, The_user_chooses_in_a_combo_box) {
  Choose("Country_Combo", "Greece");
  Choose("Country_Combo", "Greece");
  EXPECT_EQ(Taken(), Log({"Combo Greece", "Combo Greece"}));
  Press("Down");
  Type("f");
  EXPECT_EQ(Taken(), Log({"Combo Spain", "Combo France"}));
  Press("Ctrl+C");
  EXPECT_EQ(QApplication::clipboard()->text(), "France");
  Turn_Wheel("Country_Combo");
  EXPECT_EQ(Taken(), Log({"Combo Greece"}));
  Click("Other_Text");
  Turn_Wheel("Country_Combo");
  EXPECT_EQ(Taken(), Log());
  Double_Click("Country_Combo");
  EXPECT_EQ(Taken(), Log({"Combo DblClick"}));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Lists_Test, The_list_of_a_combo_box_shows_its_longest_entry_whole) {
  const std::string longest(50, 'W');
  Shown().Country_Combo.AddItem(longest);
  Click("Country_Combo");
  const QWidget* list = QApplication::activePopupWidget();
  ASSERT_NE(list, nullptr);
  const int needed = list->fontMetrics().horizontalAdvance(QString::fromStdString(longest));
  EXPECT_LT(Find("Country_Combo").width(), needed);
  EXPECT_GT(list->width(), needed);
  EXPECT_TRUE(list->screen()->availableGeometry().contains(list->geometry()));
  Press("Escape");
}

TEST_F(Lists_Test, A_locked_combo_box_can_be_read_copied_and_set_but_not_changed) {
  Shown().Country_Combo.Set_ListIndex(1);
  Shown().Country_Combo.Set_Locked(true);
  Taken();
  Click("Other_Text");
  Click("Country_Combo");
  EXPECT_EQ(Focused(), "Country_Combo");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  for (const char* key : {"Down", "End", "F4", "Alt+Down", "Space"}) Press(key);
  Type("s");
  Turn_Wheel("Country_Combo");
  EXPECT_EQ(Taken(), Log());
  Press("Ctrl+C");
  EXPECT_EQ(QApplication::clipboard()->text(), "France");
  Double_Click("Country_Combo");
  Shown().Country_Combo.Set_ListIndex(2);
  EXPECT_EQ(Taken(), Log({"Combo DblClick", "Combo Greece"}));
  Press("Tab");
  EXPECT_EQ(Focused(), "Cat_List");
}

TEST_F(Lists_Test, The_user_chooses_in_a_list) {
  Forms::List_Box& list = Shown().Cat_List;
  Click_Row("Cat_List", 1);
  Click_Row("Cat_List", 1);
  Press("Down");
  Type("s");
  EXPECT_EQ(Taken(), Log({"List France", "List France", "List Greece", "List Spain"}));
  EXPECT_EQ(list.ListIndex(), 3);
  list.Set_Arrow_Keys_Pick(false);
  Press("Home");
  Type_Anew("fr");
  EXPECT_EQ(Taken(), Log());
  EXPECT_EQ(list.Text(), "France");
  Press("Return");
  Press("Down");
  Press("Space");
  Click_Row("Cat_List", 3);
  Hold_Down("Cat_List", Qt::Key_Return);
  list.RemoveItem(0);
  Press("Space");
  EXPECT_EQ(Taken(), Log({"List France", "List Greece", "List Spain", "List Spain"}));
  EXPECT_EQ(Chosen_Row("Cat_List"), 2);
}

TEST_F(Lists_Test, Enter_and_delete_are_events_of_a_list_in_which_an_entry_is_chosen) {
  Forms::List_Box& list = Shown().Cat_List;
  list.SetFocus();
  const auto press_all = [] {
    for (const char* key : {"Return", "Enter", "Delete", "Shift+Delete", "Ctrl+Return"}) Press(key);
  };
  list.Set_ListIndex(1);
  Taken();
  press_all();
  EXPECT_EQ(Taken(), Log());
  list.Enter_Pressed = [&] { Lists_Form::log.push_back("Enter " + list.Text()); };
  list.Delete_Pressed = [&] { Lists_Form::log.push_back("Delete " + list.Text()); };
  press_all();
  EXPECT_EQ(Taken(), Log({"Enter France", "Enter France", "Delete France"}));
  Press("Down");
  Press("Return");
  EXPECT_EQ(Taken(), Log({"List Greece", "Enter Greece"}));
  for (const char* word_and_key : {"gr Return", "fr Down", "ch End"}) {
    Type(std::string(word_and_key, 2));
    Press(word_and_key + 3);
  }
  EXPECT_EQ(Taken(),
            Log({"Enter Greece", "List France", "List Greece", "List Chile", "List Spain"}));
  list.Set_ListIndex(-1);
  press_all();
  Click("Other_Text");
  list.Set_ListIndex(0);
  press_all();
  EXPECT_EQ(Taken(), Log({"List Chile"}));
  list.SetFocus();
  Press("Esc");
  EXPECT_EQ(Taken(), Log({"Exit"}));
}

TEST_F(Lists_Test, A_double_click_comes_after_its_click_and_only_on_one_entry) {
  Double_Click_Row("Cat_List", 2);
  EXPECT_EQ(Taken(), Log({"List Greece", "DblClick Greece"}));
  Double_Click_Row("Cat_List", 99);
  Double_Click_Row("Cat_List", 1, Qt::RightButton);
  EXPECT_EQ(Taken(), Log());
  EXPECT_EQ(Chosen_Row("Cat_List"), 2);
  Double_Click_Row("Cat_List", 2, Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(Taken(), Log({"List Greece", "DblClick Greece"}));
  EXPECT_EQ(Chosen_Row("Cat_List"), 2);
  Drag_Row("Cat_List", 1, 3);
  EXPECT_EQ(Taken(), Log({"List France"}));
  EXPECT_EQ(Chosen_Row("Cat_List"), 1);
}

TEST_F(Lists_Test, A_handler_may_take_the_entries_away) {
  Lists_Form& form = Shown();
  Forms::List_Box& list = form.Cat_List;
  form.on_click = [&] { list.RemoveItem(list.ListIndex()); };
  Double_Click_Row("Cat_List", 0);
  EXPECT_EQ(Taken(), Log({"List Chile", "List France"}));
  form.on_click = [&] {
    list.Clear();
    list.AddItem("Italy");
  };
  Double_Click_Row("Cat_List", 0);
  EXPECT_EQ(Taken(), Log({"List Greece", "List Italy"}));
  EXPECT_EQ(list.ListIndex(), -1);
  form.on_click = {};
  form.on_second = [&] { list.Clear(); };
  Double_Click_Row("Cat_List", 0);
  EXPECT_EQ(Taken(), Log({"List Italy", "DblClick Italy"}));
  form.Fill(list);
  list.Set_ListIndex(3);
  list.Enter_Pressed = [&] { list.Clear(); };
  list.Delete_Pressed = [&] { list.RemoveItem(list.ListIndex()); };
  Press("Delete");
  EXPECT_EQ(list.ListCount(), 3);
  list.Set_ListIndex(2);
  Press("Return");
  Press("Return");
  EXPECT_EQ(list.ListCount(), 0);
  for (const char* key : {"Down", "End", "Space", "Delete", "x"}) Press(key);
  EXPECT_EQ(Taken(), Log({"List Spain", "List Greece"}));
  form.Fill(list);
  form.on_second = [&] { form.Unload(); };
  Double_Click_Row("Cat_List", 1);
  EXPECT_EQ(Taken(), Log({"List France", "DblClick France"}));
}

TEST_F(Lists_Test, Keys_go_on_where_the_chosen_entry_was_removed) {
  Forms::List_Box& list = Shown().Cat_List;
  list.SetFocus();
  list.AddItem("Sweden");
  const auto remove = [&](int index) {
    list.Set_ListIndex(index);
    list.RemoveItem(index);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(Chosen_Row("Cat_List"), -1);
    Taken();
  };
  remove(2);
  Press("Down");
  Press("Down");
  EXPECT_EQ(Taken(), Log({"List Spain", "List Sweden"}));
  remove(3);
  Type("s");
  EXPECT_EQ(Taken(), Log({"List Spain"}));
  EXPECT_EQ(Chosen_Row("Cat_List"), 2);
  remove(1);
  list.Set_ListIndex(1);
  EXPECT_EQ(Chosen_Row("Cat_List"), 1);
  Press("Up");
  EXPECT_EQ(Taken(), Log({"List Spain", "List Chile"}));
  remove(0);
  remove(0);
  list.AddItem("Italy");
  Press("Down");
  EXPECT_EQ(Taken(), Log({"List Italy"}));
}

TEST_F(Lists_Test, The_first_key_chooses_what_the_focus_stands_on) {
  Forms::List_Box& list = Shown().Cat_List;
  list.SetFocus();
  Press("Shift+F5");
  EXPECT_EQ(Taken(), Log());
  Press("Down");
  list.Set_ListIndex(-1);
  Press("Down");
  EXPECT_EQ(Taken(), Log({"List Chile", "List France"}));
  for (const char* key : {"Home", "PgUp", "Space", "c"}) {
    list.Clear();
    Shown().Fill(list);
    Click("Other_Text");
    list.SetFocus();
    Press(key);
    EXPECT_EQ(Taken(), Log({"List Chile"})) << key;
    EXPECT_EQ(Chosen_Row("Cat_List"), 0) << key;
  }
}

TEST_F(Lists_Test, Typing_finds_entries_in_every_script) {
  for (Forms::Item_List* list :
       std::initializer_list<Forms::Item_List*>{&Shown().Cat_List, &Shown().Variety_Combo}) {
    for (const char* entry : {"São Tomé", "South Africa", "Éire", "日本", "日本酒", "𠮷野",
                              "Rôti d'agneau", "Roast chicken", "Chili"}) {
      list->AddItem(entry);
    }
    list->Click = [list] { Lists_Form::log.push_back(list->Text()); };
    list->SetFocus();
    const auto typed = [](const char* word) {
      Type_Anew(word);
      return Taken();
    };
    EXPECT_EQ(typed("s"), Log({"Spain"}));
    EXPECT_EQ(typed("s"), Log({"São Tomé"}));
    EXPECT_EQ(typed("sss"), Log({"South Africa", "Spain", "São Tomé"}));
    EXPECT_EQ(typed("SOUTH A"), Log({"South Africa"}));
    EXPECT_EQ(typed("sao t"), Log({"Spain", "São Tomé"}));
    EXPECT_EQ(typed("é"), Log({"Éire"}));
    EXPECT_EQ(typed("日本酒"), Log({"日本", "日本酒"}));
    EXPECT_EQ(typed("ж"), Log());
    EXPECT_EQ(typed("chicken"), Log({"Chili", "Roast chicken"}));
    EXPECT_EQ(typed("AGN"), Log({"South Africa", "Rôti d'agneau"}));
    EXPECT_EQ(typed("hicken"), Log());
    EXPECT_EQ(typed("tom"), Log({"São Tomé"}));
    Type_Anew("roast");
    Press("Space");
    Type("c");
    EXPECT_EQ(Taken(), Log({"Rôti d'agneau", "Roast chicken"}));
    Compose_Anew(list->Name(), "𠮷");
    Compose_Anew(list->Name(), "酒");
    EXPECT_EQ(Taken(), Log({"𠮷野", "日本酒"}));
  }
}

TEST_F(Lists_Test, A_list_that_is_filled_anew_stands_at_its_top) {
  for (Forms::Item_List* list : All_Lists()) {
    auto* combo = dynamic_cast<QComboBox*>(&Find(list->Name()));
    const auto filled_to = [&](int chosen) {
      list->Clear();
      for (int i = 0; i < 60; ++i) list->AddItem("Entry " + std::to_string(i));
      list->Set_ListIndex(chosen);
      Settle_Events();
      if (combo == nullptr) return View_Of(list->Name()).verticalScrollBar()->value();
      combo->showPopup();
      const int scrolled = combo->view()->verticalScrollBar()->value();
      combo->hidePopup();
      return scrolled;
    };
    EXPECT_GT(filled_to(59), 0) << list->Name();
    EXPECT_EQ(filled_to(-1), 0) << list->Name();
  }
  Taken();
}

TEST_F(Lists_Test, Ticks_raise_item_check_by_the_user_and_by_code_that_changes_one) {
  Forms::Check_List& list = Shown().Variety_Combo;
  Click_Tick("Variety_Combo", 2);
  EXPECT_TRUE(list.Selected(2));
  EXPECT_EQ(list.ListIndex(), 2);
  Press("Space");
  EXPECT_FALSE(list.Selected(2));
  list.Set_Selected(0, true);
  list.Set_Selected(0, true);
  list.Set_Selected(3, true);
  EXPECT_EQ(list.SelCount(), 2);
  const Log wanted{"ItemCheck 2", "Checks Greece", "ItemCheck 2", "ItemCheck 0", "ItemCheck 3"};
  EXPECT_EQ(Taken(), wanted);
  list.Set_Locked(true);
  Click_Tick("Variety_Combo", 1);
  Press("Space");
  EXPECT_EQ(list.SelCount(), 2);
  list.Set_Selected(3, false);
  list.Set_Locked(false);
  Taken();
  Shown().undo_ticks = true;
  Click_Tick("Variety_Combo", 1);
  EXPECT_FALSE(list.Selected(1));
  EXPECT_EQ(Taken(), Log({"ItemCheck 1", "ItemCheck 1", "Checks France"}));
}

}  // namespace
