// Naming the cellars, changing the names, and the menu that follows them.
#include <gmock/gmock.h>

#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "platform/forms/Screens.h"
#include "tests/support/Drive.h"
#include "tests/support/Program_Folder.h"

namespace {

using testing::ElementsAre;

class Cellar_Names : public Program_Folder {
 protected:
  void SetUp() override { Start(); }

  void Name_Cellars(const char* first, const char* second) {
    Pick("Cellar_Add");
    Type_Into("Cellar1_Name_Text", first);
    Type_Into("Cellar2_Name_Text", second);
    Click("General_Command");
  }
  static std::string Caption(const char* control) {
    return Forms::Screen("Wine_Cellar_Form").Control(control).Caption();
  }
  /// The title of the window, and the entries that speak of the current cellar.
  static std::vector<std::string> Captions() {
    return {Shown_Text("Wine_Cellar_Form"), Caption("Wines_Cellar"),
            Caption("Pairing_Search_Cellar"), Caption("Cheeses_Pairing_Cellar")};
  }
  static bool Is_Shown(const char* control) {
    return Forms::Screen("Wine_Cellar_Form").Control(control).Visible();
  }
  static bool Is_Enabled(const char* control) {
    return Forms::Screen("Wine_Cellar_Form").Control(control).Enabled();
  }
  std::vector<std::string> Stored_Cellars() const {
    return Stored("SELECT ID, Cellar_Name FROM Cellars ORDER BY ID", 2);
  }
};

TEST_F(Cellar_Names, Without_names_the_menu_offers_to_name_and_to_display) {
  for (const char* shown : {"Cellar_Add", "Cellar_View"}) EXPECT_TRUE(Is_Shown(shown)) << shown;
  for (const char* hidden : {"Cellar_Mod", "Cellars_View", "Cellar_Print", "Cellars_Print"}) {
    EXPECT_FALSE(Is_Shown(hidden)) << hidden;
  }
  for (const char* off : {"Wines_Cellar", "Pairing_Search_Cellar", "Cheeses_Pairing_Cellar"}) {
    EXPECT_FALSE(Is_Enabled(off)) << off;
  }
  EXPECT_EQ(Current_Cellar_Name, "x");
  EXPECT_EQ(Shown_Text("Wine_Cellar_Form"), "Wine Cellar");
}

TEST_F(Cellar_Names, The_button_opens_only_with_both_names) {
  Pick("Cellar_Add");
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
  EXPECT_EQ(Shown_Text("Cellar_Names_Form"), "Cellar Names Information");
  const auto Open = [] { return Is_Usable("General_Command"); };
  EXPECT_FALSE(Open());
  Type_Into("Cellar1_Name_Text", "Home");
  EXPECT_FALSE(Open());
  Type_Into("Cellar2_Name_Text", "   ");
  EXPECT_FALSE(Open());
  Type_Into("Cellar2_Name_Text", "Home");
  EXPECT_TRUE(Open());
  Type_Into("Cellar1_Name_Text", " ");
  EXPECT_FALSE(Open());
  Click("Exit_Command");
  EXPECT_FALSE(Forms::Screen("Cellar_Names_Form").Is_Loaded());
  EXPECT_THAT(Stored_Cellars(), ElementsAre("1|x"));
}

TEST_F(Cellar_Names, Names_are_stored_and_the_menu_follows_at_once_and_after_a_restart) {
  Box_Script boxes;
  Name_Cellars("Home", "Büro & 北窖");
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].title, "CELLAR NAMES SAVED");
  EXPECT_EQ(boxes.Boxes()[0].text, "Cellar Names were saved successfully");
  EXPECT_FALSE(Forms::Screen("Cellar_Names_Form").Is_Loaded());
  EXPECT_THAT(Stored_Cellars(), ElementsAre("1|Home", "2|Büro & 北窖"));
  EXPECT_TRUE(Wine_System.System_Initialized);
  EXPECT_THAT(Stored("SELECT System_Initialized FROM Wine_System", 1), ElementsAre("False"));
  for (const bool restarted : {false, true}) {
    if (restarted) Restart();
    EXPECT_EQ(Current_Cellar_ID, 1);
    EXPECT_EQ(Current_Cellar_Name, "Home");
    EXPECT_THAT(Captions(), ElementsAre("My Current Cellar: Home", "Home Cellar",
                                        "For Pairings in Home Cellar", "With Home Cellar Wines"));
    for (const char* entry : {"Cellar1_View", "Cellar1_Print"}) EXPECT_EQ(Caption(entry), "Home");
    for (const char* entry : {"Cellar2_View", "Cellar2_Print"})
      EXPECT_EQ(Caption(entry), "Büro & 北窖");
    for (const char* shown : {"Cellar_Mod", "Cellars_View", "Cellars_Print"})
      EXPECT_TRUE(Is_Shown(shown)) << shown;
    for (const char* hidden : {"Cellar_Add", "Cellar_View", "Cellar_Print"}) {
      EXPECT_FALSE(Is_Shown(hidden)) << hidden;
    }
    for (const char* on : {"Wines_Cellar", "Pairing_Search_Cellar", "Cheeses_Pairing_Cellar"}) {
      EXPECT_TRUE(Is_Enabled(on)) << on;
    }
  }
}

TEST_F(Cellar_Names, The_main_window_comes_back_with_the_screen_that_hid_it) {
  const Box_Script boxes;
  Name_Cellars("Home", "Office");
  Pick("Cellar_Mod");
  Forms::Screens::Register("Wine_Form",
                           [] { return std::make_unique<Forms::Form>("Wine_Form", "Wines"); });
  Pick("Wine_Add");
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  Click("Cellar_Names_Form/Exit_Command");
  EXPECT_FALSE(Forms::Screen("Cellar_Names_Form").Is_Loaded());
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  Close_Window("Wine_Form");
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
  Forms::Screens::Register("Wine_Form", {});
}

TEST_F(Cellar_Names, A_change_of_names_opens_the_button_when_both_boxes_have_changed) {
  Box_Script boxes;
  Name_Cellars("Home", "Office");
  Pick("Cellar_Mod");
  EXPECT_EQ(Shown_Text("Cellar1_Name_Text"), "Home");
  EXPECT_EQ(Shown_Text("Cellar2_Name_Text"), "Office");
  EXPECT_TRUE(Is_Usable("General_Command"));
  Type_Into("Cellar1_Name_Text", "House");
  EXPECT_FALSE(Is_Usable("General_Command"));
  Type_Into("Cellar2_Name_Text", "Work");
  Pick("Cellar2_View");  // the main window stays usable beside the screen
  EXPECT_EQ(Current_Cellar_ID, 2);
  EXPECT_EQ(Current_Command, "CellarView");
  boxes.Forget();
  Click("General_Command");
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].title, "CELLAR NAMES MODIFIED");
  EXPECT_EQ(boxes.Boxes()[0].text, "Cellar Names were MODIFIED successfully");
  EXPECT_THAT(Stored_Cellars(), ElementsAre("1|House", "2|Work"));
  EXPECT_EQ(Current_Cellar_Name, "Work");
  EXPECT_EQ(Caption("Wines_Cellar"), "Work Cellar");
  EXPECT_EQ(Caption("Cellar1_View"), "House");
  EXPECT_EQ(Caption("Cellar2_View"), "Work");
  EXPECT_EQ(Shown_Text("Wine_Cellar_Form"), "My Current Cellar: Work");
}

TEST_F(Cellar_Names, What_speaks_of_the_cellar_speaks_the_language_at_a_start_a_name_and_a_choice) {
  const Box_Script boxes;
  const auto german = [](const std::string& name) {
    const std::string wines = name + " (Weinkeller)";
    return std::vector<std::string>{"Mein aktueller Weinkeller: " + name, wines,
                                    "zu Speisen in: " + wines, "Mit Weinen aus: " + wines};
  };
  Set_Language(6);
  Restart();
  Name_Cellars("Haus", "Büro");
  EXPECT_EQ(Captions(), german("Haus"));
  Restart();
  EXPECT_EQ(Captions(), german("Haus"));
  Pick("Cellar2_View");
  EXPECT_EQ(Current_Cellar_ID, 2);
  EXPECT_EQ(Captions(), german("Büro"));
  Set_Language(3);
  Restart();
  EXPECT_EQ(Current_Cellar_ID, 1);
  EXPECT_EQ(Captions().back(), "With Haus Cellar Wines");
  Pick("Cellar2_View");
  EXPECT_THAT(Captions(), ElementsAre("My Current Cellar: Büro", "Büro Cellar",
                                      "For Pairings in Büro Cellar", "With Büro Cellar"));
}

TEST_F(Cellar_Names, A_locked_cellar_table_ends_the_run_and_keeps_the_old_names) {
  Pick("Cellar_Add");
  Type_Into("Cellar1_Name_Text", "Home");
  Type_Into("Cellar2_Name_Text", "Office");
  End_Watch end;
  Box_Script boxes;
  const auto other = Record_Store::OpenDatabase(Data_File(), false, false, ";PWD=vinebox31");
  Record_Store::Recordset cellars = other->OpenRecordset("Cellars");
  cellars.Edit();
  cellars.Fields("Cellar_Name") = "Elsewhere";
  cellars.Update();
  Click("General_Command");
  EXPECT_EQ(end.Status(), 1);
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].text, "Run-time error '3260':\n\nCould not update; currently locked.");
  other->Commit();
  EXPECT_THAT(Stored_Cellars(), ElementsAre("1|Elsewhere"));
}

}  // namespace
