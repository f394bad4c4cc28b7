// Naming the cellars, changing the names, and the menu that follows them.
#include "tests/support/Faults_Mended.h"
#include "tests/support/Program_Folder.h"

namespace {

class Cellar_Names : public Program_Folder {
 protected:
  void SetUp() override { Start(); }

  static void Type_Names(const char* first, const char* second) {
    Type_Into("Cellar1_Name_Text", first);
    Type_Into("Cellar2_Name_Text", second);
  }
  static Texts Name_Cellars(const char* first, const char* second) {
    Pick("Cellar_Add");
    Type_Names(first, second);
    return Told_By([] { Click("General_Command"); });
  }
  static bool Can_Save() { return Is_Usable("General_Command"); }
  /// The entries that follow the names: those shown without any, those with, those opened.
  static void Expect_Menu(bool named) {
    const auto& menu = Forms::Screen("Wine_Cellar_Form");
    for (const char* entry : {"Cellar_Mod", "Cellars_View", "Cellars_Print"}) {
      EXPECT_EQ(menu.Control(entry).Visible(), named) << entry;
    }
    for (const char* entry : {"Cellar_Add", "Cellar_View"}) {
      EXPECT_EQ(menu.Control(entry).Visible(), !named) << entry;
    }
    EXPECT_FALSE(menu.Control("Cellar_Print").Visible());
    for (const char* entry : {"Wines_Cellar", "Pairing_Search_Cellar", "Cheeses_Pairing_Cellar"}) {
      EXPECT_EQ(menu.Control(entry).Enabled(), named) << entry;
    }
  }
  /// The title of the window, and the entries that speak of the cellars.
  static Texts Captions() {
    Texts captions{Shown_Text("Wine_Cellar_Form")};
    for (const char* entry : {"Wines_Cellar", "Pairing_Search_Cellar", "Cheeses_Pairing_Cellar",
                              "Cellar1_View", "Cellar1_Print", "Cellar2_View", "Cellar2_Print"}) {
      captions.push_back(Forms::Screen("Wine_Cellar_Form").Control(entry).Caption());
    }
    return captions;
  }
  Texts Stored_Cellars() const { return Stored("SELECT ID, Cellar_Name FROM Cellars ORDER BY ID"); }
};

TEST_F(Cellar_Names, The_button_opens_only_with_both_names) {
  Expect_Menu(false);
  EXPECT_EQ(Current_Cellar_Name, "x");
  EXPECT_EQ(Shown_Text("Wine_Cellar_Form"), "Wine Cellar");
  Pick("Cellar_Add");
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
  EXPECT_EQ(Shown_Text("Cellar_Names_Form"), "Cellar Names Information");
  EXPECT_FALSE(Can_Save());
  for (const auto& [first, second] : {std::pair{"Home", ""}, {"Home", "   "}, {" ", "Home"}}) {
    Type_Names(first, second);
    EXPECT_FALSE(Can_Save()) << first << second;
  }
  for (const auto& [first, second] : {std::pair{"x", "Home"}, {"Home", " x "}, {"X", "Home"}}) {
    const Faults_Mended faults;
    Type_Names(first, second);
    EXPECT_EQ(Can_Save(), first == Text("X")) << first << second;
    EXPECT_EQ(Color_of("Cellar1_Name_Text"), first == Text("x") ? "required" : "open");
  }
  Type_Names("Home", "Home");
  EXPECT_TRUE(Can_Save());
  Click("Exit_Command");
  EXPECT_FALSE(Forms::Screen("Cellar_Names_Form").Is_Loaded());
  EXPECT_THAT(Stored_Cellars(), ElementsAre("1|x"));
}

TEST_F(Cellar_Names, Names_are_stored_and_the_menu_follows_at_once_and_after_a_restart) {
  EXPECT_THAT(Name_Cellars("Home", "Büro & 北窖"),
              ElementsAre("CELLAR NAMES SAVED: Cellar Names were saved successfully"));
  EXPECT_FALSE(Forms::Screen("Cellar_Names_Form").Is_Loaded());
  EXPECT_THAT(Stored_Cellars(), ElementsAre("1|Home", "2|Büro & 北窖"));
  EXPECT_TRUE(Wine_System.System_Initialized);
  EXPECT_EQ(One("SELECT System_Initialized FROM Wine_System"), "False");
  for (const bool restarted : {false, true}) {
    if (restarted) Start();
    EXPECT_EQ(Current_Cellar_ID, 1);
    EXPECT_EQ(Current_Cellar_Name, "Home");
    EXPECT_THAT(Captions(), ElementsAre("My Current Cellar: Home", "Home Cellar",
                                        "For Pairings in Home Cellar", "With Home Cellar Wines",
                                        "Home", "Home", "Büro & 北窖", "Büro & 北窖"));
    Expect_Menu(true);
  }
}

TEST_F(Cellar_Names, Naming_anew_changes_the_second_cellar_or_adds_one) {
  Name_Cellars("x", "Office");
  {
    const Faults_Mended faults;
    Start();
    Expect_Menu(false);
    Name_Cellars("Home", "Work");
    EXPECT_THAT(Stored_Cellars(), ElementsAre("1|Home", "2|Work"));
  }
  Start();
  Pick("Cellar_Mod");
  Type_Names("x", "Office");
  Told_By([] { Click("General_Command"); });
  Start();
  Name_Cellars("Home", "Work");
  EXPECT_THAT(Stored_Cellars(), ElementsAre("1|Home", "2|Office", "3|Work"));
}

TEST_F(Cellar_Names, The_main_window_comes_back_with_the_screen_that_hid_it) {
  Name_Cellars("Home", "Office");
  Pick("Cellar_Mod");
  Stand_In("Wine_Form");
  Pick("Wine_Add");
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  Click("Cellar_Names_Form/Exit_Command");
  EXPECT_FALSE(Forms::Screen("Cellar_Names_Form").Is_Loaded());
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  Close_Window("Wine_Form");
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
}

TEST_F(Cellar_Names, A_change_of_names_opens_the_button_when_both_boxes_have_changed) {
  Name_Cellars("Home", "Office");
  Pick("Cellar_Mod");
  EXPECT_EQ(Shown_Text("Cellar1_Name_Text"), "Home");
  EXPECT_EQ(Shown_Text("Cellar2_Name_Text"), "Office");
  EXPECT_TRUE(Can_Save());
  Type_Into("Cellar1_Name_Text", "House");
  EXPECT_FALSE(Can_Save());
  Type_Into("Cellar2_Name_Text", "Work");
  Pick("Cellar2_View");  // the main window stays usable beside the screen
  EXPECT_EQ(Current_Command, "CellarView");
  EXPECT_THAT(Told_By([] { Click("General_Command"); }),
              ElementsAre("CELLAR NAMES MODIFIED: Cellar Names were MODIFIED successfully"));
  EXPECT_THAT(Stored_Cellars(), ElementsAre("1|House", "2|Work"));
  EXPECT_EQ(Current_Cellar_ID, 2);
  EXPECT_EQ(Current_Cellar_Name, "Work");
  EXPECT_THAT(Captions(), ElementsAre("My Current Cellar: Work", "Work Cellar", testing::_,
                                      testing::_, "House", "House", "Work", "Work"));
}

TEST_F(Cellar_Names, What_speaks_of_the_cellar_speaks_the_language_at_a_start_a_name_and_a_choice) {
  const auto in_german = [](const Text& name) {
    const Text wines = name + " (Weinkeller)";
    return ElementsAre("Mein aktueller Weinkeller: " + name, wines, "zu Speisen in: " + wines,
                       "Mit Weinen aus: " + wines, "Haus", "Haus", "Büro", "Büro");
  };
  Set_Language(german);
  Start();
  Name_Cellars("Haus", "Büro");
  EXPECT_THAT(Captions(), in_german("Haus"));
  Start();
  EXPECT_THAT(Captions(), in_german("Haus"));
  Pick("Cellar2_View");
  EXPECT_EQ(Current_Cellar_ID, 2);
  EXPECT_THAT(Captions(), in_german("Büro"));
  Set_Language(english);
  Start();
  EXPECT_EQ(Current_Cellar_ID, 1);
  EXPECT_EQ(Captions()[3], "With Haus Cellar Wines");
  Pick("Cellar2_View");
  EXPECT_EQ(Captions()[3], "With Büro Cellar");
}

TEST_F(Cellar_Names, A_locked_cellar_table_ends_the_run_and_keeps_the_old_names) {
  Pick("Cellar_Add");
  Type_Names("Home", "Office");
  const auto other = Record_Store::OpenDatabase(Data_File(), false, false, ";PWD=vinebox31");
  Record_Store::Recordset cellars = other->OpenRecordset("Cellars");
  cellars.Edit();
  cellars.Fields("Cellar_Name") = "Elsewhere";
  cellars.Update();
  Expect_End(3260, [] { Click("General_Command"); });
  other->Commit();
  EXPECT_THAT(Stored_Cellars(), ElementsAre("1|Elsewhere"));
}

}  // namespace
