// The entries of the main window: which command each stores, which screen it opens, and whether the
// main window stays.
#include <gmock/gmock.h>

#include "core/Globals.h"
#include "platform/forms/Screens.h"
#include "tests/support/Drive.h"
#include "tests/support/Program_Folder.h"

namespace {

// Stands where a screen of the program will stand, and shows nothing.
std::unique_ptr<Forms::Form> Empty_Screen(const std::string& name) {
  class Empty_Form : public Forms::Form {
   public:
    explicit Empty_Form(const std::string& form) : Form(form, form) {
      Set_Content(Forms::Stretch());
    }
  };
  return std::make_unique<Empty_Form>(name);
}

struct Way {
  const char* entry;
  const char* command;
  const char* screen;  // "" for an entry without action
  bool stays = false;
};

const std::vector<Way> ways{
    {"Cellar1_View", "CellarView", "Wine_Form"},
    {"Cellar2_View", "CellarView", "Wine_Form"},
    {"Wine_Add", "WineAdd", "Wine_Form"},
    {"Wine_Uncork", "WineUncork", "Wine_Form"},
    {"Wine_Mod", "WineMod", "Wine_Form"},
    {"Wine_Del", "WineDel", "Wine_Form"},
    {"Wines_Cellar_List", "CellarView", "Wine_Form"},
    {"Wine_Other_Del", "WineOtherDel", "Mobile_Wine_Form"},
    {"Wine_Other_Mod", "WineOtherMod", "Mobile_Wine_Form"},
    {"Region_Add", "RegionsAdd", "Regions_Form"},
    {"Region_Mod_Other", "RegionsMod", "Regions_Form"},
    {"Region_Del", "RegionsDel", "Regions_Form"},
    {"Regions_List", "RegionsView", "Regions_Form"},
    {"Variety_Add", "VarietyAdd", "Varieties_Form"},
    {"Variety_Mod", "VarietyMod", "Varieties_Form"},
    {"Variety_List", "VarietyList", "Varieties_Form"},
    {"Pairing_Mod", "MaridageMod", "Cate_Add_Form"},
    {"Pairing_Search_Cellar", "WineSearch", "Select_Mult_Maridages_Form"},
    {"Cheeses_Add", "CheeseAdd", "Cheeses_Form"},
    {"Cheeses_List", "CheeseList", "Cheeses_Form"},
    {"Cheeses_Pairing_Cellar", "CheeseParingsCellar", "Cheeses_Form"},
    {"Winery_Add", "WineryAdd", "Wineries_Form"},
    {"Winery_Mod", "WineryMod", "Wineries_Form", true},
    {"Winery_View", "WineryList", "Wineries_Form", true},
    {"Winery_Del", "WineryDel", "Wineries_Form", true},
    {"Winery_List", "WineryList", "Wineries_Form", true},
    {"Wine_Other_Add", "WineOtherAdd", "Mobile_Wine_Form"},
    {"Wines_Other_List", "OtherView", "Mobile_Wine_Form"},
    {"Region_Mod_Var", "RegionsModVar", "Regions_Add_Mod_Varieties_Form"},
    {"Region_Pair_Varieties", "VarietiesAddRegion", "Regions_Form"},
    {"Labels_Add", "LabelAdd", "Label_Form"},
    {"Labels_Del", "LabelDel", "Regions_Form"},
    {"Labels_Mod", "LabelMod", "Regions_Form"},
    {"Labels_View", "LabelView", "Regions_Form"},
    {"Classification_View", "ClassificationView", "Classification_Form"},
    {"Variety_Del", "VarietyDel", "Varieties_Form"},
    {"Pairing_Add", "MaridageAdd", "Cate_Add_Form"},
    {"Pairings_List", "MaridageView", "Cate_Add_Form"},
    {"Pairing_Search_General", "MobileSearch", "Select_Mult_Maridages_Form"},
    {"Pairings_Cheese", "CheeseList", "Cheeses_Form"},
    {"Cheese_Pairings_General", "CheeseList", "Cheeses_Form"},
    {"Cheeses_Mod", "CheeseMod", "Cheeses_Form"},
    {"Glossary_Display", "kept", "Glossary_Form", true},
    {"Glossary_Print", "kept", "Mobile_Phone_Form", true},
    {"Help_Info", "HelpInfo", "Help_Info_Form"},
    {"Help_Color", "HelpColor", "Help_Colors_Form"},
    {"Classification_Add", "kept", ""},
    {"Classification_Del", "kept", ""},
    {"Classification_Mod", "kept", ""},
    {"Pairing_Del", "kept", ""},
    {"Cheses_Del", "kept", ""},
    {"Help_About", "kept", ""},
    {"Wine_Cellar_Remove", "kept", ""},
    {"Cellar1_Print", "kept", ""},
    {"Cellar2_Print", "kept", ""},
};

class Menu : public Program_Folder {
 protected:
  // With named cellars nearly every entry can be chosen.
  void SetUp() override {
    Name_Cellars_In_File();
    Start();
  }
  // The registry keeps what it was told; the next test is to find the screens absent again.
  void TearDown() override {
    for (const Way& way : ways) Forms::Screens::Register(way.screen, nullptr);
  }
};

TEST_F(Menu, Entries_whose_screen_is_not_there_leave_the_main_window_up) {
  for (const Way& way : ways) {
    Current_Command = "kept";
    Pick(way.entry);
    EXPECT_EQ(Current_Command, way.command) << way.entry;
    EXPECT_TRUE(Is_Seen("Wine_Cellar_Form")) << way.entry;
  }
}

TEST_F(Menu, Entries_open_their_screen_and_the_main_window_steps_aside_or_stays) {
  for (const Way& way : ways) {
    if (*way.screen == '\0') continue;
    const std::string screen = way.screen;
    Forms::Screens::Register(screen, [screen] { return Empty_Screen(screen); });
    Current_Command = "kept";
    Pick(way.entry);
    EXPECT_EQ(Current_Command, way.command) << way.entry;
    EXPECT_TRUE(Is_Seen(screen)) << way.entry;
    EXPECT_EQ(Is_Seen("Wine_Cellar_Form"), way.stays) << way.entry;
    Close_Window(
        screen);  // a screen without an exit button is unloaded, and the main window comes back
    EXPECT_FALSE(Forms::Screen(screen).Is_Loaded()) << way.entry;
    EXPECT_TRUE(Is_Seen("Wine_Cellar_Form")) << way.entry;
  }
}

TEST_F(Menu, Coming_back_clears_the_mark_of_changed_regions) {
  Region_Or_Label_Changed = true;
  Forms::Screen("Wine_Cellar_Form").Show();
  EXPECT_FALSE(Region_Or_Label_Changed);
}

TEST_F(Menu, The_comments_entry_tells_where_to_write) {
  Box_Script boxes;
  Pick("Help_Comments");
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].title, "Comments and Suggestions");
  EXPECT_THAT(boxes.Boxes()[0].text, testing::HasSubstr("@"));
  EXPECT_EQ(Current_Command, "HelpComments");
}

}  // namespace
