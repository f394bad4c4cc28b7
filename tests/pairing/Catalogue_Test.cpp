// The catalogue of pairings as it is shown: its three uses, its list, its words.
#include "tests/pairing/Catalogue_Program.h"

namespace {

TEST_F(Catalogue, An_addition_needs_the_first_name_alone) {
  Open("Pairing_Add");
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  EXPECT_EQ(Shown_Text("Cate_Add_Form"), "Add New Categories or Menu Themes");
  EXPECT_EQ(Shown_Text("CatLabel"), "Please type the new Category");
  EXPECT_EQ(Shown_Text("Cat_Add_Now"), "ADD");
  EXPECT_EQ(Shown_Text("Current_Maridages_Label"), "Current Available Pairings");
  EXPECT_FALSE(Is_Seen("System_Label"));
  EXPECT_FALSE(Forms::Screen("Cate_Add_Form").Get<Forms::List_View>(list).Has_Selection());
  EXPECT_EQ(Color_of(list), "locked");
  EXPECT_EQ(Color_of("CAT_Other_Language_Text"), "open");
  const auto waits = [] { return Color_of("CatText") == "required" && !Is_Usable("Cat_Add_Now"); };
  EXPECT_TRUE(waits());
  EXPECT_EQ(Focused(), "CatText");
  Type_Into("CAT_Other_Language_Text", "b");
  EXPECT_TRUE(waits());
  Type_Into("CatText", " ");
  EXPECT_EQ(Color_of("CatText"), "open");
  EXPECT_TRUE(Is_Usable("Cat_Add_Now"));
  Press("Backspace");
  EXPECT_TRUE(waits());
  Click_Pairing(Food(0).name);  // is read, and shown nowhere
  EXPECT_THAT(Boxes(), ElementsAre("", "b"));
  EXPECT_TRUE(waits());
}

TEST_F(Catalogue, The_list_alone_shows_a_pairing_and_lets_nothing_be_written) {
  Put_Pairing(Made_Up("Pie"));
  Open("Pairings_List");
  EXPECT_EQ(Shown_Text("Cate_Add_Form"), "List of Current Available Pairings");
  for (const char* unseen : {"Cat_Add_Now", "CatLabel", "System_Label"}) {
    EXPECT_FALSE(Is_Seen(unseen)) << unseen;
  }
  for (const char* box : {list, "CatText", "CAT_Other_Language_Text"}) {
    EXPECT_EQ(Color_of(box), "locked") << box;
  }
  EXPECT_EQ(Focused(), list);
  Click_Pairing("Pie en");
  EXPECT_THAT(Boxes(), ElementsAre("Pie en", "Pie es"));
  Type_Names({"other", "words"});
  EXPECT_THAT(Boxes(), ElementsAre("Pie en", "Pie es"));
  EXPECT_EQ(Color_of("CatText"), "locked");
  EXPECT_FALSE(Is_Seen("Cat_Add_Now"));
  Click_Row(list, 1);
  Press("Up");
  EXPECT_THAT(Boxes(), ElementsAre(Shown_Column(list, 0)[0], Shown_Column(list, 1)[0]));
  Click_Header(list, 1);  // a pick means the pairing of its row, in any order
  Click_Pairing("Pie en");
  EXPECT_THAT(Boxes(), ElementsAre("Pie en", "Pie es"));
}

TEST_F(Catalogue, A_change_begins_with_a_pick) {
  Put_Pairing(Made_Up("Pie"));
  Open("Pairing_Mod");
  EXPECT_EQ(Shown_Text("CatLabel"), "Please select the Category to modify and type its new text");
  EXPECT_EQ(Shown_Text("Cat_Add_Now"), "MODIFY");
  for (const char* box : {list, "CatText", "CAT_Other_Language_Text"}) {
    EXPECT_EQ(Color_of(box), "open") << box;
  }
  EXPECT_THAT(Boxes(), ElementsAre("", ""));
  EXPECT_FALSE(Is_Usable("Cat_Add_Now"));
  Click_Pairing("Pie en");
  EXPECT_THAT(Boxes(), ElementsAre("Pie en", "Pie es"));
  EXPECT_TRUE(Is_Usable("Cat_Add_Now"));
  Type_Into("CatText", "");
  EXPECT_EQ(Color_of("CatText"), "required");
  EXPECT_FALSE(Is_Usable("Cat_Add_Now"));
  Type("x");
  EXPECT_TRUE(Is_Usable("Cat_Add_Now"));
  Click_Row(list, 1);
  const Texts picked = Boxes();
  Press("Up");
  EXPECT_EQ(Boxes(), picked);
  Press("Return");
  EXPECT_EQ(Boxes()[0], Shown_Column(list, 0)[0]);
}

TEST_F(Catalogue, The_list_names_English_and_beside_it_the_language_in_force) {
  Maridages_Record pairing = Made_Up("Listed");
  pairing.Multiuse = 2;
  const Text listed = Put_Pairing(pairing);
  for (const Integer use : {Integer{0}, Integer{1}}) {
    pairing = Made_Up("Of another use");
    pairing.Multiuse = use;
    Put_Pairing(pairing);
  }
  pairing = Made_Up("No name");
  pairing.Maridage_Name = "x";
  Put_Pairing(pairing);
  for (const auto& [language, field, end] : {std::tuple{english, "Spanish", "es"},
                                             {spanish, "Spanish", "es"},
                                             {french, "French", "fr"},
                                             {japanese, "Japanese", "ja"}}) {
    Texts expected = Stored(Text("SELECT English || ' | ' || ") + field +
                            " || ' | ' || Maridage_ID FROM Maridages "
                            "WHERE Maridage_Group < 900000 ORDER BY Maridage_ID");
    expected.push_back("Listed en | Listed " + Text(end) + " | " + listed);
    Open("Pairings_List", language);
    EXPECT_EQ(Shown_Rows(list), expected) << field;
  }
}

// The labels name the languages that are written. As designed English and Spanish alone are ever
// shown; mended, a change of nothing writes nothing else.
TEST_F(Catalogue, Boxes_and_labels_by_language) {
  Put_Pairing(Made_Up("Pie"));
  struct Case {
    Integer language;
    Two_Names labels, boxes;
    Two_Names mended = boxes;
    Text header = "Spanish";
  };
  for (const Case& by_language :
       {Case{english, {"Category in English:", "Category in Spanish:"}, {"Pie en", "Pie es"}},
        {spanish, {"Categoría en español:", "Categoría en inglés:"}, {"Pie es", "Pie en"}},
        {french,
         {"Catégorie en français :", "Catégorie en anglais :"},
         {"Pie en", "Pie es"},
         {"Pie fr", "Pie en"},
         "French"},
        {japanese,
         {"日本語のカテゴリ:", "英語のカテゴリ:"},
         {"Pie en", "Pie es"},
         {"Pie ja", "Pie en"},
         "Japanese"}}) {
    for (const auto& [entry, mended] : {std::pair{"Pairings_List", false},
                                        {"Pairings_List", true},
                                        {"Pairing_Mod", true},
                                        {"Pairing_Mod", false}}) {
      const Faults_Mended faults(mended);
      Open(entry, by_language.language);
      EXPECT_EQ(Shown_Text("Cat_Language1_Label"), by_language.labels.first);
      EXPECT_EQ(Shown_Text("Cat_Language2_Label"), by_language.labels.second);
      EXPECT_EQ(Forms::Screen("Cate_Add_Form").Get<Forms::List_View>(list).Header_Text(2),
                mended ? by_language.header : "Spanish");
      Click_Pairing("Pie en");
      const Two_Names& boxes = mended ? by_language.mended : by_language.boxes;
      EXPECT_THAT(Boxes(), ElementsAre(boxes.first, boxes.second));
      if (!mended || entry != Text("Pairing_Mod")) continue;
      const Texts before = Whole_Catalogue();
      Told_By([] { Click("Cat_Add_Now"); });
      EXPECT_EQ(Whole_Catalogue(), before);
    }
  }
}

}  // namespace
