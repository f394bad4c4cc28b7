// Combo boxes, lists and check lists: what raises an event, and what does not.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>

#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"
#include "tests/support/Drive.h"
#include "tests/support/Expect_Failure.h"

namespace {

using Log = std::vector<std::string>;

class Lists_Form : public Forms::Form {
 public:
  Lists_Form() : Form("Lists_Form", "Lists") {
    Country_Combo.Click = [this] { log.push_back("Combo " + Country_Combo.Text()); };
    Country_Combo.DblClick = [this] { log.push_back("Combo DblClick"); };
    Cat_List.Click = [this] { log.push_back("List " + Cat_List.Text()); };
    Variety_Combo.Click = [this] { log.push_back("Checks " + Variety_Combo.Text()); };
    Variety_Combo.ItemCheck = [this](int item) {
      log.push_back("ItemCheck " + std::to_string(item));
      if (undo_ticks && Variety_Combo.Selected(item)) Variety_Combo.Set_Selected(item, false);
    };
    Set_Content(Forms::Column({Country_Combo, Forms::Place(Cat_List).High(8),
                               Forms::Place(Variety_Combo).High(8), Other_Text}));
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
  Forms::Combo_Box Country_Combo{*this, "Country_Combo"};
  Forms::List_Box Cat_List{*this, "Cat_List"};
  Forms::Check_List Variety_Combo{*this, "Variety_Combo"};
  Forms::Text_Box Other_Text{*this, "Other_Text"};
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
  static Lists_Form& Shown() {
    return dynamic_cast<Lists_Form&>(Forms::Screen("Lists_Form").Instance());
  }
};

TEST_F(Lists_Test, Entries_are_added_and_removed_without_events_or_choice) {
  for (Forms::Item_List* list : std::initializer_list<Forms::Item_List*>{
           &Shown().Country_Combo, &Shown().Cat_List, &Shown().Variety_Combo}) {
    EXPECT_EQ(list->ListIndex(), -1);
    EXPECT_EQ(list->Text(), "");
    EXPECT_EQ(list->List(3), "Spain");
    list->Set_ListIndex(2);
    list->AddItem("Austria", 0);
    EXPECT_EQ(list->ListIndex(), 3);
    EXPECT_EQ(list->Text(), "Greece");
    list->RemoveItem(0);
    EXPECT_EQ(list->ListIndex(), -1);
    EXPECT_EQ(list->ListCount(), 4);
    Taken();
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

TEST_F(Lists_Test, A_choice_by_code_raises_click_also_for_the_same_entry) {
  for (const int index : {1, 1, -1, 3}) Shown().Country_Combo.Set_ListIndex(index);
  for (const int index : {1, 1, -1, 0}) Shown().Cat_List.Set_ListIndex(index);
  EXPECT_EQ(Taken(), Log({"Combo France", "Combo France", "Combo Spain", "List France",
                          "List France", "List Chile"}));
  EXPECT_EQ(Shown_Text("Country_Combo"), "Spain");
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
  Click_Row("Cat_List", 1);
  Click_Row("Cat_List", 1);
  Press("Down");
  Type("s");
  EXPECT_EQ(Taken(), Log({"List France", "List France", "List Greece", "List Spain"}));
  EXPECT_EQ(Shown().Cat_List.ListIndex(), 3);
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
