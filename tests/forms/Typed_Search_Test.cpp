// Finding by typing, in combo boxes, lists and check lists.
#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QScrollBar>
#include <QWidget>
#include <algorithm>
#include <map>

#include "tests/forms/Lists_Form.h"

namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;

constexpr const char* tip = "Typed_Word";

QRect Place_Of(const QWidget& widget) { return {widget.mapToGlobal(QPoint(0, 0)), widget.size()}; }

class Typed_Search_Test : public Lists_Test {};

TEST_F(Typed_Search_Test, Typing_finds_entries_in_every_script) {
  for (Forms::Item_List* any : {all_lists[1], all_lists[2]}) {
    for (const char* entry : {"São Tomé", "South Africa", "Éire", "日本", "日本酒", "𠮷野",
                              "Rôti d'agneau", "Roast chicken", "Chili"}) {
      any->AddItem(entry);
    }
    any->Click = [any] { Lists_Form::log.push_back(any->Text()); };
    any->SetFocus();
    for (const char* word : {"s", "s", "sss", "SOUTH A", "sao t", "é", "日本酒"}) Type_Anew(word);
    EXPECT_EQ(Taken(), Log({"Spain", "São Tomé", "South Africa", "Spain", "São Tomé",
                            "South Africa", "Spain", "São Tomé", "Éire", "日本", "日本酒"}));
    for (const char* word : {"ж", "chicken", "AGN", "hicken", "tom"}) Type_Anew(word);
    EXPECT_EQ(Taken(),
              Log({"Chili", "Roast chicken", "South Africa", "Rôti d'agneau", "São Tomé"}));
    Type_Anew("roast");
    Press("Space");
    Type("c");
    EXPECT_EQ(Taken(), Log({"Rôti d'agneau", "Roast chicken"}));
    Compose_Anew(any->Name(), "𠮷");
    Compose_Anew(any->Name(), "酒");
    EXPECT_EQ(Taken(), Log({"𠮷野", "日本酒"}));
  }
}

TEST_F(Typed_Search_Test, A_word_finds_its_entry_in_every_kind_of_list_wherever_that_stands) {
  const std::vector<std::pair<const char*, const char*>> entries{
      {"Chanson Père & Fils", "chanson pere"},
      {"Château Latour", "latour"},
      {"Château Margaux", "CHATEAU MARG"},
      {"Château Marojallia", "Château Maro"},
      {"Marchesi Antinori", "anti"},
      {"Port", "port"},
      {"Port Ellen", "port e"}};
  const auto count = static_cast<int>(entries.size());
  for (Forms::Item_List* any : {all_lists[0], all_lists[0], all_lists[1], all_lists[2]}) {
    const bool is_box = any == &combo;
    const bool open = is_box && any->ListCount() == count;
    any->Clear();
    for (const auto& [entry, word] : entries) any->AddItem(entry);
    any->SetFocus();
    for (int i = 0; i < count * count; ++i) {
      const auto& [entry, word] = entries[static_cast<std::size_t>(i / count)];
      any->Set_ListIndex(i % count);
      Taken();
      if (open) Press("Alt+Down");
      Type(word);
      EXPECT_THAT(Shown_Text(tip), StartsWith(word));
      if (open) {
        EXPECT_FALSE(Place_Of(*QApplication::activePopupWidget()).intersects(Place_Of(Find(tip))));
      }
      EXPECT_EQ(any->ListIndex() == i % count, is_box || i % count == i / count) << word;
      EXPECT_EQ(is_box ? Taken() : Log(), Log());
      if (is_box && !open) {
        EXPECT_EQ(Shown_Text("Country_Combo"), entry);
      }
      Press("Return");
      EXPECT_EQ(any->Text(), entry) << any->Name() << open;
      EXPECT_EQ(is_box ? Taken() : Log{"Combo " + any->Text()}, Log{"Combo " + any->Text()});
      EXPECT_FALSE(Is_There(tip));
    }
    EXPECT_EQ(checks.SelCount(), 0);
  }
}

TEST_F(Typed_Search_Test, A_word_is_a_choice_when_it_is_finished_and_otherwise_given_up) {
  const auto pause = [&] {
    QApplication::setKeyboardInputInterval(1);
    Type("k");
    QApplication::setKeyboardInputInterval(-1);
    EXPECT_TRUE(Wait_Until([] { return !Is_There(tip); }));
  };
  const auto press = [](const char* key) { return [key] { Press(key); }; };
  const struct {
    const char* word;
    std::function<void()> then;
    const char* focus;
    bool chosen;
  } ways[]{{"greek", press("Return"), "Country_Combo", true},
           {"GREEK W", press("Tab"), "Cat_List", true},
           {"gree", pause, "Country_Combo", true},
           {"wine", press("Shift+Tab"), "Exit_Command", true},
           {"greek", press("Alt+7"), "Country_Combo", true},
           {"greek", press("Esc"), "Country_Combo", false},
           {"greekz", press("Return"), "Country_Combo", false},
           {"g", press("Backspace"), "Country_Combo", false},
           {"greek", [] { Click("Other_Text"); }, "Other_Text", false},
           {"greek", [&] { form.Other_Text.SetFocus(); }, "Other_Text", false},
           {"greek", [&] { combo.Set_ListIndex(-1), combo.Set_ListIndex(1), Taken(); },
            "Country_Combo", false}};
  combo.Set_List(2, "Greek wine");
  for (const auto& way : ways) {
    combo.Set_ListIndex(1);
    combo.SetFocus();
    Taken();
    Type(way.word);
    const bool hit = std::string_view(way.word) != "greekz";
    EXPECT_EQ(Shown_Text("Country_Combo"), hit ? "Greek wine" : "France");
    EXPECT_EQ(Shown_Text(tip), way.word + std::string(hit ? " – 1 of 1" : " – nothing found"));
    EXPECT_EQ(combo.ListIndex(), 1);
    way.then();
    EXPECT_EQ(Taken(), way.chosen ? Log{"Combo Greek wine"} : Log()) << way.word;
    EXPECT_EQ(Shown_Text("Country_Combo"), way.chosen ? "Greek wine" : "France") << way.word;
    EXPECT_EQ(Focused(), way.focus) << way.word;
    EXPECT_FALSE(Is_There(tip));
  }
}

TEST_F(Typed_Search_Test, A_key_with_another_one_changes_no_combo_box_but_opens_it) {
  combo.Set_ListIndex(1);
  Taken();
  for (const bool open : {false, true}) {
    if (open) Press("Alt+Down");
    for (const char* key :
         {"Alt+S", "Ctrl+S", "Meta+S", "Ctrl+Alt+G", "Alt+Shift+G", "Ctrl+Down", "Ctrl+Up",
          "Meta+End", "Alt+Home", "Alt+PgDown", "Ctrl+Space", "Ctrl+Return", "Alt+Return"}) {
      Press(key);
      EXPECT_EQ(QApplication::activePopupWidget() != nullptr, open) << key;
    }
    if (open) Press("Return");
    EXPECT_EQ(Taken(), open ? Log{"Combo France"} : Log());
  }
  for (const char* key : {"Alt+Down", "F4", "Space"}) {
    Press(key);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr) << key;
    Press(*key == 'S' ? "Esc" : key);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << key;
  }
  for (const char* key : {"Return", "Tab"}) {
    combo.SetFocus();
    Press("F4");
    Type("nowhere");
    Press(key);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << key;
  }
  EXPECT_EQ(Focused(), "Cat_List");
  EXPECT_EQ(Taken(), Log());
}

TEST_F(Typed_Search_Test, The_hits_of_a_word_are_gone_through_and_stand_in_the_middle) {
  for (Forms::Item_List* any : all_lists) {
    any->Clear();
    for (int i = 0; i < 60; ++i)
      any->AddItem((i % 20 == 7 ? "Lamb " : "Soup ") + std::to_string(i));
    any->AddItem("Roast lamb");
    any->SetFocus();
    const auto here = [&] { return any == &combo ? Shown_Text("Country_Combo") : any->Text(); };
    Type("lamb");
    Texts way;
    for (const char* key : {"", "Down", "F3", "F3", "F3", "Up", "Return", "F3", "Shift+F3"}) {
      if (*key != 0) Press(key);
      way.push_back(here());
    }
    EXPECT_EQ(Shown_Text(tip), "lamb – 4 of 4");
    EXPECT_EQ(way, Texts({"Lamb 7", "Lamb 27", "Lamb 47", "Roast lamb", "Lamb 7", "Roast lamb",
                          "Roast lamb", "Lamb 7", "Roast lamb"}));
    for (const char* key : {"Esc", "x", "y", "Backspace", "F3"}) Press(key);
    EXPECT_EQ(Shown_Text(tip), "x – nothing found");
    Press("Esc");
    Press("Home");
    if (any == &combo) Press("Alt+Down");
    QAbstractItemView& view =
        any == &combo ? *dynamic_cast<QComboBox&>(Find(any->Name())).view() : View_Of(any->Name());
    Type("lamb 27");
    const int middle = view.visualRect(view.currentIndex()).center().y();
    EXPECT_NEAR(middle, view.viewport()->height() / 2, view.sizeHintForRow(0));
    Press("Esc");
    EXPECT_EQ(QApplication::activePopupWidget() != nullptr, any == &combo);
    if (any == &combo) Press("Esc");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_THAT(Taken(), Not(Contains("Exit")));
  }
}

TEST_F(Typed_Search_Test, A_blank_in_a_word_ticks_nothing_and_ticks_by_code_are_in_sight) {
  checks.SetFocus();
  for (const char* words : {"gre ece", "zz france", "spain sp"}) {
    Type(words);
    Press("Return");
  }
  EXPECT_EQ(checks.SelCount(), 0);
  Type("s");
  Press("Return");
  Press("Space");
  EXPECT_TRUE(checks.Selected(3));
  const auto first_tick_is_seen = [&] {
    Run_Guarded([&] {
      checks.Clear();
      for (int i = 0; i < 60; ++i) checks.AddItem("Entry " + std::to_string(i));
      for (const int i : {50, 30}) checks.Set_Selected(i, true);
    });
    const QAbstractItemView& view = View_Of("Variety_Combo");
    return view.viewport()->rect().contains(view.visualRect(view.model()->index(30, 0)));
  };
  EXPECT_FALSE(first_tick_is_seen());
  Click("Other_Text");
  EXPECT_TRUE(first_tick_is_seen());
}

}  // namespace
