// The list view: its rows, its order, what the user's doings raise, and what code does not.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>
#include <random>

#include "platform/forms/Forms.h"
#include "platform/record_store/Text_Order.h"
#include "platform/run_time/Guard.h"
#include "tests/forms/Row_Clicks.h"
#include "tests/support/Drive.h"
#include "tests/support/Expect_Failure.h"

namespace {

using Log = std::vector<std::string>;
using Forms::List_Item;
using Forms::List_View;

class Regions_Form : public Forms::Form {
 public:
  Regions_Form() : Form("Regions_Form", "Regions") {
    List.ItemClick = [this](List_Item item) {
      log.push_back(item.Text());
      if (takes_focus) Name_Text.SetFocus();
      if (deselects) List.SelectedItem().Set_Selected(false);
      if (on_click) on_click();
    };
    List.DblClick = [](List_Item item) { log.push_back("DblClick " + item.Text()); };
    List.ColumnClick = [](const Forms::Column_Header& header) {
      log.push_back(std::to_string(header.Index) + " " + header.Text);
    };
    Name_Text.LostFocus = [] { log.push_back("LostFocus"); };
    Set_Content(Forms::Column({Name_Text, Forms::Place(List).High(10).Grow()}));
  }

  void Form_Load() override { Fill(); }

  void Fill() {
    List.Clear();
    const char* const rows[][3] = {{"Rioja", "Spain", "7"},
                                   {"alsace", "France", "2"},
                                   {"Éclair", "France", "3"},
                                   {"Loire", "france", "4"},
                                   {"Zitsa", "Greece", "5"}};
    for (const auto& row : rows) {
      List_Item item = List.Add(row[0]);
      item.Set_SubItems(1, row[1]);
      item.Set_SubItems(2, row[2]);
    }
    List.ListItems(1).Set_SubItems(4, "12");
  }

  static inline Log log;
  bool takes_focus = false;
  bool deselects = false;
  std::function<void()> on_click;
  Forms::Text_Box Name_Text{*this, "Name_Text"};
  List_View List{*this,
                 "Regions_ListView",
                 {{"Wine Region Name", 20},
                  {"Country"},
                  {"Region_ID", 4, true},
                  {.text = "Notes"},
                  {.text = "Wines", .number = true}}};
};

class List_View_Test : public testing::Test {
 protected:
  ~List_View_Test() override { Forms::Screens::Clear_For_Tests(); }

  static Log Taken() { return std::exchange(Regions_Form::log, {}); }

  static Regions_Form& Opened() {
    Forms::Screens::Register<Regions_Form>("Regions_Form");
    Run_Guarded([] { Forms::Screen("Regions_Form").Open(); });
    EXPECT_TRUE(Wait_Until([] { return Focused() == "Name_Text"; }));
    return dynamic_cast<Regions_Form&>(Forms::Screen("Regions_Form").Instance());
  }

  Regions_Form& form = Opened();
  List_View& list = form.List;
  QTreeView& view = dynamic_cast<QTreeView&>(Find("Regions_ListView"));

  Log Names() {
    Log names;
    for (int i = 1; i <= list.Count(); ++i) names.push_back(list.ListItems(i).Text());
    return names;
  }
};

TEST_F(List_View_Test, Rows_and_sub_items_are_counted_from_one) {
  EXPECT_EQ(Shown_Rows("Regions_ListView")[0], "Rioja | Spain | 7 |  | 12");
  EXPECT_TRUE(view.isColumnHidden(2));
  List_Item last = list.ListItems(5);
  EXPECT_FAILURE(35600, last.ListSubItems(3));
  EXPECT_FAILURE(35600, list.ListItems(0));
  EXPECT_FAILURE(35600, list.Remove(6));
  EXPECT_FAILURE(380, last.SubItems(5));
  EXPECT_FAILURE(91, list.SelectedItem());
  last.Set_SubItems(1, "a longer text than there was");
  last.Set_SubItems(2, "");
  list.Remove(1);
  Settle_Events();
  EXPECT_EQ(Shown_Rows("Regions_ListView")[3], "Zitsa | a longer text than there was |  |  | ");
  EXPECT_EQ(Taken(), Log());
  const QVariant right = static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  EXPECT_EQ(view.model()->headerData(4, Qt::Horizontal, Qt::TextAlignmentRole), right);
  EXPECT_EQ(view.model()->index(0, 4).data(Qt::TextAlignmentRole), right);
}

TEST_F(List_View_Test, Agrees_with_a_plain_stable_sort_over_many_rows) {
  std::mt19937 random(7);
  std::vector<std::pair<std::string, int>> wanted;
  list.Clear();
  for (int i = 0; i < 3000; ++i) {
    const char* const beginnings[] = {"Wine ", "wine ", "Châ", "Cha", "Chat", "Cha\u0302", "CHÂ"};
    const char* const ends[] = {"", "t", "\u0302t", "ât", "at"};
    const std::string text = beginnings[random() % 7] + std::to_string(random() % 30) + "é" +
                             beginnings[random() % 7] + ends[random() % 5];
    wanted.emplace_back(text, i);
    list.Add(text).Set_SubItems(1, std::to_string(i));
  }
  std::ranges::stable_sort(
      wanted, [](const auto& a, const auto& b) { return Compare_Keys(a.first, b.first) < 0; });
  list.Set_Sorted(true);
  for (int i = 0; i < 3000; ++i) {
    const auto place = static_cast<std::size_t>(i);
    ASSERT_EQ(list.ListItems(i + 1).SubItems(1), std::to_string(wanted[place].second)) << i;
  }
}

TEST_F(List_View_Test, Finds_one_item_or_nothing) {
  using Where = List_View::Where;
  using Match = List_View::Match;
  Log found;
  const auto find = [&](const char* text, Where where, Match match) {
    const auto item = list.FindItem(text, where, match);
    found.push_back(item ? item->Text() : "nothing");
  };
  for (const char* text : {"ÉCLAIR", "Eclair", "écl"}) find(text, Where::Text, Match::Whole);
  find("écl", Where::Text, Match::Beginning);
  for (const char* text : {"FRANCE", "Rioja"}) find(text, Where::Sub_Items, Match::Whole);
  EXPECT_EQ(found, Log({"Éclair", "nothing", "nothing", "Éclair", "alsace", "nothing"}));
}

TEST_F(List_View_Test, Selection_by_code_raises_nothing_and_follows_the_row) {
  List_Item loire = *list.FindItem("Loire");
  list.Set_SelectedItem(loire);
  list.Set_Sorted(true);
  Settle_Events();
  EXPECT_EQ(Chosen_Row("Regions_ListView"), 2);
  EXPECT_EQ(list.SelectedItem(), loire);
  list.ListItems(1).Set_Selected(true);
  EXPECT_FALSE(loire.Selected());
  list.SelectedItem().Set_Selected(false);
  for (int i = 0; i < 60; ++i) list.Add("Zitsa");
  list.Set_SelectedItem(list.ListItems(64));
  list.SelectedItem().EnsureVisible();
  EXPECT_GT(view.verticalScrollBar()->value(), 0);
  form.Fill();
  for (int i = 0; i < 60; ++i) list.Add("Zitsa");
  Settle_Events();
  EXPECT_EQ(view.verticalScrollBar()->value(), 0);
  EXPECT_FALSE(list.Has_Selection());
  EXPECT_EQ(Chosen_Row("Regions_ListView"), -1);
  EXPECT_EQ(Taken(), Log());
}

TEST_F(List_View_Test, Browsing_goes_on_though_the_handler_moves_the_focus_deselects_or_removes) {
  list.SetFocus();
  Taken();
  form.takes_focus = true;
  for (int i = 0; i < 4; ++i) Press("Down");
  EXPECT_EQ(Taken(), Log({"Rioja", "alsace", "Éclair", "Loire"}));
  EXPECT_EQ(Focused(), "Regions_ListView");
  form.takes_focus = false;
  form.deselects = true;
  Press("Up");
  Press("Up");
  EXPECT_EQ(Taken(), Log({"Éclair", "alsace"}));
  EXPECT_FALSE(list.Has_Selection());
  form.deselects = false;
  form.on_click = [&] { list.Remove(list.SelectedItem().Index()); };
  for (const char* key : {"Down", "Down", "Down", "Up"}) Press(key);
  EXPECT_EQ(Taken(), Log({"Éclair", "Loire", "Zitsa", "alsace"}));
}

TEST_F(List_View_Test, Nothing_follows_a_pick_that_took_the_row_or_the_screen_away) {
  const auto both = [&](int row) {
    Double_Click_Row("Regions_ListView", row);
    Press("Return");
    Hold_Down("Regions_ListView", Qt::Key_Return);
    return Taken();
  };
  list.SetFocus();
  Taken();
  form.on_click = [&] { list.Remove(list.SelectedItem().Index()); };
  EXPECT_EQ(both(0), Log({"Rioja", "alsace", "Éclair"}));
  form.on_click = [&] { form.Fill(); };
  EXPECT_EQ(both(1), Log({"Zitsa", "alsace"}));
  Click_Row("Regions_ListView", 4);
  list.SetFocus();
  Press("Down");
  Press("Return");
  EXPECT_EQ(Taken(), Log({"Zitsa", "Rioja"}));
  form.on_click = [&] { list.Clear(); };
  EXPECT_EQ(both(2), Log({"Éclair"}));
  form.Fill();
  Settle_Events();
  form.on_click = {};
  Click_Row("Regions_ListView", 3);
  form.on_click = [&] { form.Hide(); };
  Press("Return");
  EXPECT_EQ(Taken(), Log({"Loire", "Loire"}));
}

TEST_F(List_View_Test, Typing_goes_to_a_row_as_an_arrow_key_does) {
  for (const char* name : {"Saint Émilion", "Saint Julien", "日本 一"}) list.Add(name);
  list.SetFocus();
  Taken();
  const auto typed = [](const char* word) {
    Type_Anew(word);
    return Taken();
  };
  EXPECT_EQ(typed("r"), Log({"Rioja"}));
  EXPECT_EQ(typed("ri"), Log());
  EXPECT_EQ(typed("julien"), Log({"Saint Julien"}));
  Compose_Anew("Regions_ListView", "日本");
  EXPECT_EQ(Taken(), Log({"日本 一"}));
  list.Set_Search_Column(1);
  form.takes_focus = true;
  EXPECT_EQ(typed("france"), Log({"alsace"}));
  EXPECT_EQ(Shown_Text("Typed_Word"), "france – 1 of 3");
  for (const char* key : {"F3", "Down", "Down", "Shift+F3"}) Press(key);
  EXPECT_EQ(Taken(), Log({"Éclair", "Loire", "alsace", "Loire"}));
  form.takes_focus = false;
  list.Set_Sorted(true);
  EXPECT_EQ(typed("rio"), Log({"Rioja"}));
  list.Set_Arrow_Keys_Pick(false);
  EXPECT_EQ(typed("saint"), Log());
  Press("Space");
  EXPECT_EQ(Taken(), Log());
  Type("j");
  EXPECT_EQ(list.SelectedItem().Text(), "Saint Julien");
  Press("Space");
  EXPECT_EQ(Taken(), Log({"Saint Julien"}));
}

TEST_F(List_View_Test, A_menu_of_the_columns_is_a_click_on_a_header) {
  const auto entries = [] {
    Log texts;
    const QWidget* menu = QApplication::activePopupWidget();
    if (menu == nullptr) return texts;
    for (const QAction* entry : menu->actions()) {
      texts.push_back((entry->isChecked() ? "* " : "") + entry->text().toStdString());
    }
    return texts;
  };
  const Log columns{"&Wine Region Name", "&Country", "&Notes", "W&ines"};
  Click_Row("Regions_ListView", 0);
  Taken();
  for (const char* key : {"Shift+F10", "Menu"}) {
    Press(key);
    EXPECT_EQ(entries(), columns) << key;
    for (const char* then : {"Down", "Return", key, "N", key, "Esc"}) Press(then);
    EXPECT_EQ(Taken(), Log({"2 Country", "4 Notes"}));
    EXPECT_EQ(Focused(), "Regions_ListView");
  }
  list.Set_SortKey(1);
  list.Set_Sorted(true);
  for (QWidget* place : {view.viewport(), view.header()->viewport()}) {
    QTest::mouseClick(place->window()->windowHandle(), Qt::RightButton, {},
                      place->mapTo(place->window(), place->rect().center()));
    EXPECT_EQ(entries(), Log({columns[0], "* " + columns[1], columns[2], columns[3]}));
    Press("Return");
    EXPECT_EQ(Taken(), Log({"1 Wine Region Name"}));
  }
  EXPECT_EQ(list.SelectedItem().Text(), "Rioja");
}

TEST_F(List_View_Test, Several_rows_are_selected_by_mouse_and_keys_where_the_screen_asks_for_it) {
  const auto selected = [&] {
    Log names;
    for (const List_Item& item : list.Selected_Items()) names.push_back(item.Text());
    return names;
  };
  list.Set_MultiSelect(true);
  list.SetFocus();
  Press("Ctrl+Down");
  EXPECT_EQ(selected(), Log());
  Click_Row("Regions_ListView", 3);
  Click_Row("Regions_ListView", 1, true);
  EXPECT_EQ(selected(), Log({"alsace", "Loire"}));
  EXPECT_EQ(list.SelectedItem().Text(), "alsace");
  Click_Row("Regions_ListView", 1, true);
  EXPECT_EQ(list.SelectedItem().Text(), "Loire");
  Taken();
  Type_Anew("alsace");
  Press("Ctrl+Up");
  EXPECT_EQ(Taken(), Log());
  Press("Ctrl+Space");
  Type_Anew("zi");
  Press("Space");
  EXPECT_EQ(Taken(), Log({"Rioja", "Zitsa"}));
  list.Set_Sorted(true);
  EXPECT_EQ(selected(), Log({"Loire", "Rioja", "Zitsa"}));
  Settle_Events();
  Press("Ctrl+Up");
  Press("Ctrl+Space");
  EXPECT_EQ(selected(), Log({"Loire", "Zitsa"}));
  list.Deselect_All();
  Settle_Events();
  EXPECT_FALSE(list.Has_Selection());
  EXPECT_EQ(Chosen_Row("Regions_ListView"), -1);
  Press("Ctrl+A");
  EXPECT_EQ(selected(), Names());
  EXPECT_EQ(Taken(), Log({"Rioja"}));
}

}  // namespace
