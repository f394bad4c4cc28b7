// Combo boxes, lists and check lists: what raises an event, and what does not.
#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QScreen>
#include <QScrollBar>
#include <QWidget>
#include <algorithm>
#include <map>

#include "platform/forms/Contrast.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"
#include "tests/forms/Row_Clicks.h"
#include "tests/support/Drive.h"
#include "tests/support/Expect_Failure.h"

namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;
using Log = std::vector<std::string>;

constexpr const char* tip = "Typed_Word";

QRect Place_Of(const QWidget& widget) { return {widget.mapToGlobal(QPoint(0, 0)), widget.size()}; }

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

TEST_F(Lists_Test, Code_that_chooses_raises_click_and_code_that_adds_or_removes_nothing) {
  for (Forms::Item_List* any : all_lists) {
    for (const int index : {1, 1, -1, 2}) any->Set_ListIndex(index);
    EXPECT_EQ(Taken().size(), 3U);
    any->AddItem("Austria", 0);
    EXPECT_EQ(std::to_string(any->ListIndex()) + any->Text(), "3Greece");
    any->RemoveItem(0);
    EXPECT_EQ(any->ListIndex(), -1);
    any->Clear();
    any->AddItem("Italy");
    EXPECT_EQ(any->ListIndex(), -1);
    EXPECT_EQ(Shown_Text("Country_Combo"), "");
    EXPECT_EQ(Taken(), Log());
    EXPECT_FAILURE(380, any->Set_ListIndex(1));
    EXPECT_FAILURE(381, any->List(1));
    EXPECT_FAILURE(5, any->RemoveItem(1));
  }
}

TEST_F(Lists_Test, The_user_chooses_in_a_combo_box) {
  Choose("Country_Combo", "Greece");
  Choose("Country_Combo", "Greece");
  EXPECT_EQ(Taken(), Log({"Combo Greece", "Combo Greece"}));
  for (const char* key : {"Down", "Return", "Up", "Home"}) Press(key);
  Hold_Down("Country_Combo", Qt::Key_Return);
  EXPECT_EQ(Taken(), Log({"Combo Spain", "Combo Spain", "Combo Greece", "Combo Chile"}));
  Turn_Wheel("Country_Combo");
  EXPECT_EQ(Taken(), Log({"Combo France"}));
  Click("Other_Text");
  Turn_Wheel("Country_Combo");
  EXPECT_EQ(Taken(), Log());
  Double_Click("Country_Combo");
  EXPECT_EQ(Taken(), Log({"Combo DblClick"}));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Lists_Test, The_list_of_a_combo_box_shows_its_longest_entry_whole) {
  const std::string longest(50, 'W');
  combo.AddItem(longest);
  Click("Country_Combo");
  const QWidget* popup = QApplication::activePopupWidget();
  ASSERT_NE(popup, nullptr);
  const int needed = popup->fontMetrics().horizontalAdvance(QString::fromStdString(longest));
  EXPECT_LT(Find("Country_Combo").width(), needed);
  EXPECT_GT(popup->width(), needed);
  EXPECT_TRUE(popup->screen()->availableGeometry().contains(popup->geometry()));
  Press("Escape");
}

TEST_F(Lists_Test, A_locked_combo_box_can_be_read_copied_and_set_but_not_changed) {
  combo.Set_ListIndex(1);
  combo.Set_Locked(true);
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
  combo.Set_ListIndex(2);
  EXPECT_EQ(Taken(), Log({"Combo Greece"}));
}

TEST_F(Lists_Test, The_user_chooses_in_a_list) {
  Click_Row("Cat_List", 1);
  Click_Row("Cat_List", 1);
  Press("Down");
  Type("s");
  EXPECT_EQ(Taken(), Log({"List France", "List France", "List Greece", "List Spain"}));
  list.Set_Arrow_Keys_Pick(false);
  Press("Home");
  Type_Anew("fr");
  EXPECT_EQ(Taken(), Log());
  EXPECT_EQ(list.Text(), "France");
  for (const char* key : {"Return", "Down", "Space"}) Press(key);
  Click_Row("Cat_List", 3);
  Hold_Down("Cat_List", Qt::Key_Return);
  list.RemoveItem(0);
  Press("Space");
  EXPECT_EQ(Taken(), Log({"List France", "List Greece", "List Spain", "List Spain"}));
  EXPECT_EQ(Chosen_Row("Cat_List"), 2);
}

TEST_F(Lists_Test, Enter_and_delete_are_events_of_a_list_in_which_an_entry_is_chosen) {
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
  EXPECT_EQ(Taken(), Log());  // what can be typed is not lost by one key
  form.Other_Text.Set_Locked(true);
  Press("Esc");
  EXPECT_EQ(Taken(), Log({"Exit"}));
}

TEST_F(Lists_Test, A_double_click_comes_after_its_click_and_only_on_one_entry) {
  Double_Click_Row("Cat_List", 2);
  EXPECT_EQ(Taken(), Log({"List Greece", "DblClick Greece"}));
  Double_Click_Row("Cat_List", 99);
  Double_Click_Row("Cat_List", 1, Qt::RightButton);
  EXPECT_EQ(Taken(), Log());
  Double_Click_Row("Cat_List", 2, Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(Taken(), Log({"List Greece", "DblClick Greece"}));
  EXPECT_EQ(Chosen_Row("Cat_List"), 2);
  Drag_Row("Cat_List", 1, 3);
  EXPECT_EQ(Taken(), Log({"List France"}));
  EXPECT_EQ(Chosen_Row("Cat_List"), 1);
}

TEST_F(Lists_Test, A_handler_may_take_the_entries_away) {
  form.on_click = [&] { list.RemoveItem(list.ListIndex()); };
  Double_Click_Row("Cat_List", 0);
  EXPECT_EQ(Taken(), Log({"List Chile", "List France"}));
  form.on_click = [&] {
    list.Clear();
    list.AddItem("Italy");
  };
  Double_Click_Row("Cat_List", 0);
  EXPECT_EQ(Taken(), Log({"List Greece", "List Italy"}));
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
  for (const char* key : {"Return", "Return", "Down", "End", "Space", "Delete", "x"}) Press(key);
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(Taken(), Log({"List Spain", "List Greece"}));
  form.Fill(list);
  form.on_second = [&] { form.Unload(); };
  Double_Click_Row("Cat_List", 1);
  EXPECT_EQ(Taken(), Log({"List France", "DblClick France"}));
}

TEST_F(Lists_Test, Keys_go_on_where_the_chosen_entry_was_removed) {
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
  remove(0);
  remove(0);
  list.AddItem("Italy");
  Press("Down");
  EXPECT_EQ(Taken(), Log({"List Italy"}));
}

TEST_F(Lists_Test, The_first_key_chooses_what_the_focus_stands_on) {
  list.SetFocus();
  Press("Shift+F5");
  EXPECT_EQ(Taken(), Log());
  Press("Down");
  list.Set_ListIndex(-1);
  Press("Down");
  EXPECT_EQ(Taken(), Log({"List Chile", "List France"}));
  for (const char* key : {"Home", "PgUp", "Space", "c"}) {
    list.Clear();
    form.Fill(list);
    Click("Other_Text");
    list.SetFocus();
    Press(key);
    EXPECT_EQ(Taken(), Log({"List Chile"})) << key;
    EXPECT_EQ(Chosen_Row("Cat_List"), 0) << key;
  }
}

TEST_F(Lists_Test, Typing_finds_entries_in_every_script) {
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

TEST_F(Lists_Test, A_word_finds_its_entry_in_every_kind_of_list_wherever_that_stands) {
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

TEST_F(Lists_Test, A_word_is_a_choice_when_it_is_finished_and_otherwise_given_up) {
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

TEST_F(Lists_Test, A_key_with_another_one_changes_no_combo_box_but_opens_it) {
  combo.Set_ListIndex(1);
  Taken();
  for (const bool open : {false, true}) {
    if (open) Press("Alt+Down");
    for (const char* key : {"Alt+S", "Ctrl+S", "Meta+S", "Ctrl+Alt+G", "Alt+Shift+G", "Ctrl+Down",
                            "Ctrl+Up", "Meta+End", "Alt+Home", "Alt+PgDown", "Ctrl+Space"}) {
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

TEST_F(Lists_Test, The_hits_of_a_word_are_gone_through_and_stand_in_the_middle) {
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

TEST_F(Lists_Test, A_blank_in_a_word_ticks_nothing_and_ticks_by_code_are_in_sight) {
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

TEST_F(Lists_Test, A_list_that_is_filled_anew_stands_at_its_top) {
  for (Forms::Item_List* any : all_lists) {
    auto* box = dynamic_cast<QComboBox*>(&Find(any->Name()));
    const auto filled_to = [&](int chosen) {
      any->Clear();
      for (int i = 0; i < 60; ++i) any->AddItem("Entry " + std::to_string(i));
      any->Set_ListIndex(chosen);
      Settle_Events();
      if (box == nullptr) return View_Of(any->Name()).verticalScrollBar()->value();
      box->showPopup();
      const int scrolled = box->view()->verticalScrollBar()->value();
      box->hidePopup();
      return scrolled;
    };
    EXPECT_GT(filled_to(59), 0) << any->Name();
    EXPECT_EQ(filled_to(-1), 0) << any->Name();
  }
}

TEST_F(Lists_Test, Ticks_raise_item_check_by_the_user_and_by_code_that_changes_one) {
  Click_Tick("Variety_Combo", 2);
  Press("Space");
  for (const int item : {0, 0, 3}) checks.Set_Selected(item, true);
  EXPECT_EQ(checks.SelCount(), 2);
  const Log wanted{"ItemCheck 2", "Checks Greece", "ItemCheck 2", "ItemCheck 0", "ItemCheck 3"};
  EXPECT_EQ(Taken(), wanted);
  checks.Set_Locked(true);
  Click_Tick("Variety_Combo", 1);
  Press("Space");
  EXPECT_EQ(checks.SelCount(), 2);
  checks.Set_Selected(3, false);
  checks.Set_Locked(false);
  Taken();
  form.undo_ticks = true;
  Click_Tick("Variety_Combo", 1);
  EXPECT_FALSE(checks.Selected(1));
  EXPECT_EQ(Taken(), Log({"ItemCheck 1", "ItemCheck 1", "Checks France"}));
}

// How the strongest pixel stands out from the ground, which is the colour of most.
double Contrast_In(const QWidget& widget) {
  const QRect inside = widget.rect().adjusted(12, 4, -12, -4);
  const QImage image = const_cast<QWidget&>(widget).grab(inside).toImage();
  std::map<QRgb, int> pixels;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ++pixels[image.pixel(x, y)];
  const auto more = [](const auto& one, const auto& other) { return one.second < other.second; };
  const QRgb ground = std::ranges::max_element(pixels, more)->first;
  double contrast = 1;
  for (const auto& [pixel, count] : pixels) {
    contrast = std::max(contrast, Forms::Contrast(pixel, ground));
  }
  return contrast;
}

TEST_F(Lists_Test, An_empty_list_says_what_it_waits_for) {
  list.Set_Empty_Text("Nothing chosen yet. Enter or a double click adds an entry.");
  const auto& view = static_cast<const QAbstractItemView&>(*list.Widget());
  EXPECT_EQ(view.accessibleDescription(), "");
  const QPalette theme = QApplication::palette();
  for (const QColor& ground : {theme.color(QPalette::Window), QColor(40, 40, 48)}) {
    QApplication::setPalette(QPalette(ground));
    for (const Forms::Color color : {Forms::Window_Color, Forms::Locked_Color,
                                     Forms::Required_Color, Forms::Active_List_Color}) {
      list.Clear();
      list.Set_BackColor(color);
      Settle_Events();
      EXPECT_GE(Contrast_In(*view.viewport()), 4.5) << color.red << " on " << ground.red();
      EXPECT_TRUE(view.accessibleDescription().contains("Nothing chosen yet."));
      EXPECT_EQ(view.toolTip().indexOf("Nothing"), -1);
      list.AddItem("");
      Settle_Events();
      EXPECT_LT(Contrast_In(*view.viewport()), 1.5);
      EXPECT_EQ(view.accessibleDescription().indexOf("Nothing"), -1);
    }
  }
  QApplication::setPalette(theme);
}

TEST_F(Lists_Test, A_stand_in_is_fainter_and_the_same_to_code) {
  combo.Set_ListIndex(1);
  Forms::Lockable_Control& field = combo;
  field.Set_Locked(true);
  field.Set_BackColor(Forms::Locked_Color);
  Settle_Events();
  const double before = Contrast_In(*combo.Widget());
  combo.Set_Stand_In(true);
  Settle_Events();
  const double faint = Contrast_In(*combo.Widget());
  EXPECT_LT(faint, before - 2);
  EXPECT_GE(faint, 4.5);
  EXPECT_EQ(combo.Text(), "France");
  EXPECT_TRUE(combo.Widget()->accessibleDescription().startsWith("A placeholder"));
}

TEST_F(Lists_Test, An_entry_in_bold_stays_the_same_one) {
  list.Set_Bold(2, true);
  list.AddItem("Argentina", 0);
  list.RemoveItem(1);
  const auto& entries = *static_cast<const QAbstractItemView&>(*list.Widget()).model();
  for (int row = 0; row < entries.rowCount(); ++row) {
    const bool bold = list.List(row) == "Greece";
    EXPECT_EQ(entries.index(row, 0).data(Qt::FontRole).isValid(), bold) << row;
    EXPECT_EQ(entries.index(row, 0).data(Qt::AccessibleDescriptionRole).isValid(), bold) << row;
  }
  EXPECT_FAILURE(381, list.Set_Bold(4, true));
}

}  // namespace
