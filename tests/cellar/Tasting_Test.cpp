// The boxes of taste and aroma: how many a colour offers, which exclude each other, what a click
// means for what is stored, and the marks of a stored wine.

#include <set>

#include "tests/support/Cellar_Program.h"
#include "tests/support/Faults_Mended.h"

namespace {

using Boxes = std::vector<int>;

Text Taste(int box) { return "Taste_Check_" + std::to_string(box); }

class Tasting : public Cellar_Program {
 protected:
  // The number of boxes that can be seen.
  static int Shown(const Text& kind) {
    int shown = 0;
    while (Is_There(kind + std::to_string(shown)) && Is_Seen(kind + std::to_string(shown))) ++shown;
    return shown;
  }
  // Of a colour the file then offers only so many marks of each kind.
  void Keep_Marks_of(const Text& color, int taste, int aroma) const {
    Remove_Rows("Wine_Taste_Type", [&](const Record_Store::Recordset& row) {
      if (row.Fields("Color").As_Text() != color) return false;
      return --(row.Fields("Type").As_Text() == "Taste" ? taste : aroma) < 0;
    });
  }
};

TEST_F(Tasting, Boxes_of_one_set_exclude_each_other) {
  // By colour: the boxes with one digit exclude each other, those with 0 exclude none.
  const std::pair<const char*, Text> colors[] = {{"Red", "111222"},
                                                 {"White", "111000"},
                                                 {"Rosé", "111000"},
                                                 {"Sparkling", "111111"},
                                                 {"Fortified", "000000"}};
  Start_With("Wine_Add");
  Choose_Winery();
  for (const auto& [color, sets] : colors) {
    Choose("Color_Combo", color);
    std::set<Text> ticked;
    for (std::size_t pair = 0; pair < 36; ++pair) {
      for (const std::size_t box : {pair / 6, pair % 6}) {
        for (std::size_t other = 0; other < 6; ++other) {
          if (other != box && sets[other] == sets[box] && sets[box] != '0') {
            ticked.erase(Taste(static_cast<int>(other)));
          }
        }
        const Text name = Taste(static_cast<int>(box));
        if (!ticked.insert(name).second) ticked.erase(name);
        Click(name);
        ASSERT_THAT(Ticked_Boxes(), testing::ElementsAreArray(ticked)) << color << ": " << name;
      }
    }
  }
}

TEST_F(Tasting, What_was_clicked_is_stored_and_a_click_that_clears_counts_as_well) {
  struct Clicks {
    const char* color;
    Boxes clicked, ticked, stored;
  };
  // Of a white wine "Sweet" loses its own mark and leaves those of the boxes that it clears.
  const Clicks ways[] = {
      {"Red", {5, 5}, {}, {5}},
      {"Red", {0, 1, 4}, {1, 4}, {1, 4}},
      {"White", {1, 0}, {0}, {1}},
      {"White", {0, 2, 3}, {2, 3}, {2, 3}},
      {"Rosé", {1, 0}, {0}, {0}},
      {"Sparkling", {0, 5, 2}, {2}, {2}},
      {"Fortified", {3, 0, 1}, {0, 1, 3}, {0, 1, 3}},
  };
  int wine = 0;
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Start_With("Wine_Add");
    const Box_Script boxes;
    for (const Clicks& way : ways) {
      Fill_Add({.color = way.color});
      for (const int box : way.clicked) Click(Taste(box));
      Texts ticked, stored;
      for (const int box : way.ticked) ticked.push_back(Taste(box));
      for (const int box : mended ? way.ticked : way.stored) stored.push_back(std::to_string(box));
      EXPECT_EQ(Ticked_Boxes(), ticked) << way.color;
      Click("Multi_Functional_Command");
      EXPECT_EQ(
          Stored("SELECT Description FROM Wine_Tasting WHERE Type_Taste = 'Taste' AND Wine_ID = " +
                 std::to_string(++wine) + " AND Cellar_Wine ORDER BY Description"),
          stored)
          << way.color;
    }
  }
}

TEST_F(Tasting, A_color_offers_as_many_boxes_as_the_file_has_rows_of_it_and_none_is_a_failure) {
  Keep_Marks_of("White", 2, 3);
  Keep_Marks_of("Rosé", 0, 0);
  Start_With("Wine_Add");
  Choose_Winery();
  for (const auto& [color, taste, aroma] : {std::tuple{"White", 2, 3}, {"Red", 6, 8}}) {
    Choose("Color_Combo", color);
    EXPECT_EQ(Shown("Taste_Check_"), taste) << color;
    EXPECT_EQ(Shown("Aroma_Check_"), aroma) << color;
    EXPECT_THAT(Ticked_Boxes(), IsEmpty()) << color;
    for (const char* box : {"Taste_Check_1", "Aroma_Check_0", "Aroma_Check_2"}) Click(box);
    EXPECT_THAT(Ticked_Boxes(), ElementsAre("Taste_Check_1", "Aroma_Check_0", "Aroma_Check_2"));
  }
  Expect_End(3021, [] { Choose("Color_Combo", "Rosé"); });
  const Faults_Mended faults;
  Start_With("Wine_Add");
  Choose_Winery();
  Choose("Color_Combo", "Rosé");
  EXPECT_EQ(Shown("Taste_Check_"), 0);
}

TEST_F(Tasting, Marks_of_a_wine_are_shown_and_locked_boxes_stay_as_they_are) {
  const Long wine = Put_Wine(Sample_Wine());
  for (const int box : {2, 6, -1}) Put_Mark(wine, "Taste", box);
  Put_Mark(wine, "Odour", 3);
  Put_Mark(wine + 1, "Taste", 4);
  Put_Mark(wine, "Aroma", 0, false);  // of a general wine with the same number
  const Texts shown{"Taste_Check_2", "Aroma_Check_0"};
  Start();
  for (const char* entry : {"Cellar1_View", "Wine_Uncork", "Wine_Del"}) {
    Pick(entry);
    Pick_Wine(wine);
    EXPECT_EQ(Ticked_Boxes(), shown) << entry;
    for (const char* box : {"Taste_Check_2", "Taste_Check_5", "Aroma_Check_0", "Aroma_Check_5"}) {
      Click(box);
      EXPECT_EQ(Ticked_Boxes(), shown) << entry << ": " << box;
    }
    Click("Exit_Command");
  }
  Pick("Wine_Add");
  Click("Aroma_Check_0");
  EXPECT_THAT(Ticked_Boxes(), IsEmpty());
  const Faults_Mended faults;
  Start_With("Cellar1_View");
  Pick_Wine(wine);
  EXPECT_THAT(Ticked_Boxes(), ElementsAre("Taste_Check_2"));
}

TEST_F(Tasting, A_picked_wine_offers_the_boxes_of_its_color_and_its_marks_where_that_is_mended) {
  Keep_Marks_of("White", 2, 3);
  Wines_Record wine = Sample_Wine();
  wine.Color = "White";
  Put_Mark(Put_Wine(wine), "Taste", 4);
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Start_With("Wine_Mod");
    Pick_Wine(1);
    EXPECT_EQ(Shown("Taste_Check_"), mended ? 2 : 6);
    EXPECT_EQ(Shown("Aroma_Check_"), mended ? 3 : 8);
    EXPECT_TRUE(Is_Seen("Taste_Check_4"));
  }
}

}  // namespace
