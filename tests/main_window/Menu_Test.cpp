// The entries of the main window: what they open, and whether the main window stays.
#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolTip>
#include <QWidget>
#include <set>

#include "tests/support/Program_Folder.h"

namespace {

class Menu : public Program_Folder {
 protected:
  // With named cellars nearly every entry can be chosen.
  void SetUp() override {
    Name_Cellars_In_File();
    Start();
  }
  /// What can be chosen now, but for the end.
  static Texts Entries() {
    Texts entries;
    for (const QAction* action : Find("Wine_Cellar_Form").findChildren<QAction*>()) {
      const std::string name = action->objectName().toStdString();
      const bool leads_on = name.empty() || action->menu() != nullptr;
      if (!leads_on && name != "Wine_Cellar_Exit" && Is_Usable(name)) entries.push_back(name);
    }
    return entries;
  }
};

TEST_F(Menu, Entries_open_their_screen_where_it_is_there_and_lead_back_to_the_main_window) {
  const Texts screens = Cells_of(
      "Wine_Form Mobile_Wine_Form Regions_Form Regions_Add_Mod_Varieties_Form Cate_Add_Form "
      "Varieties_Form Select_Mult_Maridages_Form Cheeses_Form Wineries_Form Label_Form "
      "Classification_Form Glossary_Form Mobile_Phone_Form Help_Info_Form Help_Colors_Form "
      "Cellar_Names_Form",
      " ");
  const std::set<Text> beside{"Winery_Mod",       "Winery_View",    "Winery_Del", "Winery_List",
                              "Glossary_Display", "Glossary_Print", "Cellar_Mod"};
  const Texts entries = Entries();
  EXPECT_GT(entries.size(), 50U);
  const Box_Script boxes;
  for (const bool there : {false, true}) {
    std::set<Text> opened;
    for (const Text& screen : screens) {
      if (there) Stand_In(screen);
    }
    for (const Text& entry : entries) {
      Pick(entry);
      const auto open =
          std::ranges::find_if(screens, [](const Text& name) { return Is_Seen(name); });
      if (open == screens.end()) {
        EXPECT_TRUE(Is_Seen("Wine_Cellar_Form")) << entry;
        continue;
      }
      EXPECT_EQ(Is_Seen("Wine_Cellar_Form"), beside.contains(entry)) << entry;
      opened.insert(*open);
      Close_Window(*open);
      EXPECT_FALSE(Forms::Screen(*open).Is_Loaded()) << entry;
      EXPECT_TRUE(Is_Seen("Wine_Cellar_Form")) << entry;
    }
    EXPECT_EQ(opened.size(), there ? screens.size() : 1U);
  }
}

TEST_F(Menu, Alt_alone_goes_to_the_bar_in_sight_and_F10_opens_the_first_menu) {
  auto& bar = *Find("Wine_Cellar_Form").findChild<QMenuBar*>();
  EXPECT_TRUE(Wait_Until([&] { return bar.window()->isActiveWindow(); }));
  const QImage before = bar.grab().toImage();
  const auto alt = [&] {
    QTest::keyClick(bar.window()->windowHandle(), Qt::Key_Alt, Qt::AltModifier);
  };
  alt();
  EXPECT_EQ(bar.activeAction(), bar.actions().front());
  EXPECT_NE(bar.grab().toImage(), before);
  alt();
  Press("F10");
  EXPECT_EQ(QApplication::activePopupWidget(), bar.actions().front()->menu());
}

TEST_F(Menu, Coming_back_clears_the_mark_of_changed_regions) {
  Region_Or_Label_Changed = true;
  Forms::Screen("Wine_Cellar_Form").Show();
  EXPECT_FALSE(Region_Or_Label_Changed);
}

TEST_F(Menu, The_comments_entry_tells_where_to_write) {
  EXPECT_THAT(Told_By([] { Pick("Help_Comments"); }),
              ElementsAre(testing::AllOf(StartsWith("Comments and Suggestions: "),
                                         testing::HasSubstr("@"))));
}

class Unnamed_Cellars : public Program_Folder {};

TEST_F(Unnamed_Cellars, What_cannot_be_chosen_yet_says_what_to_do_first) {
  Set_Language(german);
  Start();
  const QString reason =
      "Benennen Sie zuerst Ihre Weinkeller: „Mein Weinkeller“, „Weinkeller benennen“.";
  auto& wines = *Find("Wine_Cellar_Form").findChild<QMenu*>("Wine_Main");
  wines.popup({});
  for (QAction* action : wines.actions()) {
    const QPoint place = wines.actionGeometry(action).center();
    QHelpEvent rest(QEvent::ToolTip, place, wines.mapToGlobal(place));
    QApplication::sendEvent(&wines, &rest);
    const bool waits = action->objectName() == "Wines_Cellar";
    EXPECT_TRUE(Wait_Until([&] { return QToolTip::text() == (waits ? reason : ""); }))
        << action->text().toStdString();
  }
  wines.hide();
  const auto* search = Find("Wine_Cellar_Form").findChild<QAction*>("Pairing_Search_Cellar");
  EXPECT_EQ(search->whatsThis(), reason);
  Stop();
  Name_Cellars_In_File();
  Start();
  search = Find("Wine_Cellar_Form").findChild<QAction*>("Pairing_Search_Cellar");
  EXPECT_EQ(search->whatsThis(), "");
}

}  // namespace
