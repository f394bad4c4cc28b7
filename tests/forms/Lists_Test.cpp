// Combo boxes, lists and check lists: what raises an event, and what does not.
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QScreen>
#include <QScrollBar>
#include <QWidget>
#include <algorithm>

#include "platform/forms/Contrast.h"
#include "tests/forms/Lists_Form.h"
#include "tests/support/Expect_Failure.h"

namespace {

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
