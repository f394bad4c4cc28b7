// The fields of the cellar screen: what their lists hold, what a choice brings about, what opens
// the button, what a text is refused for, and a stored wine on them.

#include "tests/support/Cellar_Program.h"
#include "tests/support/Faults_Mended.h"

namespace {

constexpr const char* grapes = "Variety_Combo";
constexpr const char* bottles = "Total_Bottles_Text";

class Fields : public Cellar_Program {
 protected:
  // The entries that are no rows, then the stored ones.
  Texts List_of(Texts first, const Text& select) const {
    for (const Text& row : Stored("SELECT " + select)) first.push_back(row);
    return first;
  }
  // Of the grapes each digit is a row to tick.
  static void Enter(const Text& field, const Text& value) {
    if (field == grapes) {
      for (const char row : value) Click_Tick(field, row - '0');
    } else if (field.ends_with("_Combo")) {
      Choose(field, value);
    } else {
      Type_Into(field, value);
      Press("Tab");
    }
  }
  static bool Gate_Is_Open() { return Is_Usable("Multi_Functional_Command"); }
};

TEST_F(Fields, Lists_of_years_and_numbers_and_the_peak_years_of_a_vintage) {
  Start_With("Wine_Add");
  EXPECT_EQ(Shown_Rows("Winery_Combo"),
            List_of({"New Winery"}, "Winery_Name FROM Wineries ORDER BY Winery_Name"));
  Choose_Winery();
  const auto expect = [](const char* list, std::size_t count, const char* first, const char* last,
                         const char* shown) {
    const Texts rows = Shown_Rows(list);
    EXPECT_EQ(rows.size(), count) << list;
    EXPECT_THAT((Texts{rows.front(), rows.back(), Shown_Text(list)}),
                ElementsAre(first, last, shown));
  };
  expect("Vintage_Combo", 51, "1976", "2026", "2001");
  expect("Peak_Year_Combo", 16, "2001", "2016", "2009");
  expect("Merit_Combo", 52, " ", "100", " ");
  expect("Bottle_Size_Combo", 14, "200 ml", "18.0 Lt", "750 ml");
  expect("Color_Combo", 5, "Red", "Fortified", "Red");
  Choose("Peak_Year_Combo", "2016");
  Choose("Vintage_Combo", "2026");
  expect("Peak_Year_Combo", 16, "2026", "2041", "2034");
}

TEST_F(Fields, Country_and_winery_bring_what_belongs_to_them) {
  Start_With("Wine_Add");
  EXPECT_EQ(Shown_Rows("Country_Combo"),
            List_of({}, "Long_Name FROM World_Contries ORDER BY Long_Name"));
  EXPECT_EQ(Shown_Text("Country_Combo"), "United States of America");
  for (const int number : {0, 1}) {
    const Sample_Winery& winery = Sample(number);
    const Text of_country = " WHERE Country = '" + winery.country + "' ORDER BY ";
    const Texts classifications =
        List_of({"New Classification", "NO Classification"},
                "Description FROM Classification" + of_country + "Classification_ID");
    Choose("Country_Combo", winery.country_name);
    EXPECT_EQ(Shown_Rows("Winery_Combo"),
              List_of({"New Winery"}, "Winery_Name FROM Wineries" + of_country + "Winery_Name"));
    EXPECT_EQ(Shown_Rows("Region_Combo"),
              List_of({}, "Region_Name FROM Regions" + of_country + "Region_Name"));
    EXPECT_EQ(Shown_Rows("Label_Combo"),
              List_of({"New Label"}, "Label_Name FROM Labels JOIN Regions USING (Region_ID)" +
                                         of_country + "Region_Name, Label_ID"));
    EXPECT_EQ(Shown_Rows("Classification_Combo"), classifications);

    Choose("Winery_Combo", winery.name);
    EXPECT_THAT(Shown_Rows("Region_Combo"), ElementsAre(winery.region));
    EXPECT_EQ(Shown_Rows("Label_Combo"),
              List_of({"New Label", "No Label"}, "Label_Name FROM Labels WHERE Region_ID = " +
                                                     winery.region_id + " ORDER BY Label_ID"));
    EXPECT_EQ(Shown_Rows("Classification_Combo"), classifications);
    Texts expected{"New Variety"};
    expected.insert(expected.end(), winery.varieties.begin(), winery.varieties.end());
    EXPECT_THAT(Shown_Rows(grapes), UnorderedElementsAreArray(expected));
  }
}

TEST_F(Fields, A_country_of_which_nothing_is_known_lets_a_winery_be_added) {
  Start_With("Wine_Add");
  Choose_Winery();
  EXPECT_FALSE(Is_Usable("Winery_Add_Command"));
  Choose("Country_Combo", List_of({},
                                  "Long_Name FROM World_Contries WHERE Short_Name NOT IN "
                                  "(SELECT Country FROM Regions) ORDER BY Long_Name")
                              .front());
  EXPECT_THAT(Shown_Rows("Winery_Combo"), ElementsAre("New Winery"));
  EXPECT_THAT(Shown_Rows("Region_Combo"), ElementsAre());
  EXPECT_THAT(Shown_Rows("Label_Combo"), ElementsAre("New Label"));
  EXPECT_TRUE(Is_Usable("Winery_Add_Command"));
}

TEST_F(Fields, A_label_sets_its_color_and_neither_the_boxes_nor_the_gate) {
  Start_With("Wine_Add");
  Choose_Winery();
  Choose("Label_Combo", Sample().label);
  EXPECT_EQ(Shown_Text("Color_Combo"), "White");
  EXPECT_EQ(Tag_of("Color_Combo") + Color_of("Color_Combo"), "0required");
  Choose("Color_Combo", "Red");
  Click("Taste_Check_5");
  Choose("Label_Combo", Sample().label);
  EXPECT_EQ(Shown_Text("Color_Combo"), "White");
  EXPECT_THAT(Ticked_Boxes(), ElementsAre("Taste_Check_5"));
}

TEST_F(Fields, The_button_opens_when_the_last_of_the_fields_is_filled) {
  const std::pair<Text, Text> fields[] = {{"Label_Combo", "No Label"},
                                          {"Classification_Combo", "NO Classification"},
                                          {grapes, "2"},
                                          {"Bottle_Size_Combo", "750 ml"},
                                          {bottles, "12"},
                                          {"Color_Combo", "Red"}};
  Start_With("Wine_Add");
  for (const auto& last : fields) {
    Choose_Winery(last.first == grapes ? 1 : 0);  // closes it again
    for (const auto& field : fields) {
      if (field != last) Enter(field.first, field.second);
    }
    EXPECT_FALSE(Gate_Is_Open()) << last.first;
    Enter(last.first, last.second);
    EXPECT_TRUE(Gate_Is_Open()) << last.first;
  }
  Choose("Country_Combo", Sample().country_name);
  EXPECT_FALSE(Gate_Is_Open());
}

TEST_F(Fields, What_is_no_choice_closes_the_button_again) {
  struct Way {
    const char *field, *closing, *opening;
  };
  const Way ways[] = {{"Vintage_Combo", "1976", "1977"},
                      {"Label_Combo", "New Label", "No Label"},
                      {"Classification_Combo", "New Classification", "NO Classification"},
                      {grapes, "1", "1"},
                      {grapes, "0", "03"},
                      {bottles, "", "0"}};
  Start_With("Wine_Add");
  Fill_Add({.ticks = {1}});
  for (const auto& [field, closing, opening] : ways) {
    Enter(field, closing);
    EXPECT_FALSE(Gate_Is_Open()) << field;
    EXPECT_EQ(Color_of(field), "required") << field;
    Enter(field, opening);
    EXPECT_TRUE(Gate_Is_Open()) << field;
    EXPECT_EQ(Color_of(field), "open") << field;
  }
  EXPECT_THAT(Ticked_Rows(grapes), ElementsAre(Shown_Rows(grapes)[3]));
}

// The last text of each field is one that it takes.
TEST_F(Fields, A_text_that_is_refused_keeps_the_focus) {
  struct Row {
    const char* field;
    Text message;
    Texts texts;
  };
  const Text numeric = " value is NOT numeric !!!";
  const Text negative = " value MUST be greather than 0 !!!";
  const std::vector<Row> rows{
      {bottles, "Total Bottles" + numeric, {"six", " ", "32768"}},
      {bottles, "Total Bottles" + negative, {"-1", "-2.5"}},
      {bottles, "Total Bottles value MUST be an Integer !!!", {"2.5"}},
      {bottles, "", {"32767", "0"}},
      {"Alcohol_Text", "Alcohol" + numeric, {" ", "12%", "1e39"}},
      {"Alcohol_Text", "Alcohol" + negative, {"-0.5"}},
      {"Alcohol_Text", "", {"", "0", "13.5"}},
      {"Price_Text", "Price" + numeric, {"dear", "1e400", "922337203685478"}},
      {"Price_Text", "Price" + negative, {"-1"}},
      {"Price_Text", "", {" ", "922337203685477", "0"}},
  };
  Start_With("Wine_Add");
  Choose_Winery();
  Box_Script boxes;
  for (const auto& [field, message, texts] : rows) {
    for (const Text& text : texts) {
      boxes.Forget();
      Enter(field, text);
      EXPECT_EQ(boxes.Texts(), message.empty() ? Texts{} : Texts{message}) << field << ": " << text;
      EXPECT_EQ(Focused() == field, !message.empty()) << field << ": " << text;
      for (const Forms::Box& box : boxes.Boxes()) EXPECT_EQ(box.sign, Forms::Sign::Warning);
      EXPECT_EQ(Tag_of(bottles), field == bottles && !message.empty() ? "0" : "1") << text;
    }
  }
  Type_Into("Price_Text", "dear");
  Click("Exit_Command");
  EXPECT_FALSE(Forms::Screen("Wine_Form").Is_Loaded());
}

TEST_F(Fields, A_stored_wine_shows_the_same_in_every_mode) {
  Wines_Record wine = Sample_Wine();
  wine.Description = Put_Text("round");
  wine.Last_Date_Uncorked = Date::Of(2026, 5, 1, 20);
  const Long key = Put_Wine(wine, {Sample().variety_ids[0], Sample().variety_ids[2]});
  Put_Mark(key, "Taste", 1);
  Put_Mark(key, "Aroma", 7);
  Start();
  for (const char* entry : {"Cellar1_View", "Wine_Uncork", "Wine_Del", "Wine_Mod"}) {
    Pick(entry);
    Pick_Wine(key);
    Texts shown;
    for (const char* field :
         {"Winery_Combo", "Country_Combo", "Region_Combo", "Label_Combo", "Classification_Combo",
          "Vintage_Combo", "Peak_Year_Combo", "Merit_Combo", "Bottle_Size_Combo", "Color_Combo",
          bottles, "Price_Text", "Alcohol_Text", "Description_Text", "Comments_Text",
          "Last_Date_Uncorked_Text", "Date_Added_Text"}) {
      shown.push_back(Shown_Text(field));
    }
    EXPECT_EQ(shown, (Texts{Sample().name, Sample().country_name, Sample().region, Sample().label,
                            Sample().classification, "2016", "2021", "90", "1.5 Lt", "Red", "3",
                            "12.5", "13.5", "round", " ", To_Text(wine.Last_Date_Uncorked),
                            To_Text(wine.Date_Added)}))
        << entry;
    EXPECT_THAT(Ticked_Rows(grapes),
                UnorderedElementsAre(Sample().varieties[0], Sample().varieties[2]));
    EXPECT_THAT(Ticked_Boxes(), ElementsAre("Taste_Check_1", "Aroma_Check_7")) << entry;
    Click("Exit_Command");
  }
}

TEST_F(Fields, A_grape_and_a_region_that_have_gone_end_no_run_and_a_word_of_color_may_be_known) {
  Set_Language(german);
  Wines_Record wine = Sample_Wine();
  wine.Color = "bianco";
  const Long key = Put_Wine(wine, {"999999", Sample().variety_ids[0]});
  Remove_Rows("Regions", [this](const Record_Store::Recordset& row) {
    return row.Fields("Region_ID").As_Text() == Sample().region_id;
  });
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Start();
    for (const Text entry : {"Cellar1_View", "Wine_Uncork", "Wine_Del", "Wine_Mod"}) {
      Pick(entry);
      Pick_Wine(key);
      const bool lost = entry == "Wine_Mod" && !mended;
      EXPECT_EQ(Ticked_Rows(grapes), lost ? Texts{} : Texts({"", Sample().varieties[0]})) << entry;
      EXPECT_EQ(Shown_Text("Region_Combo"), lost ? "New Region" : Sample().region) << entry;
      EXPECT_EQ(Shown_Text("Color_Combo"), lost ? "Rot" : entry == "Wine_Mod" ? "Weiß" : "bianco");
      Click("Exit_Command");
    }
  }
}

TEST_F(Fields, Values_that_were_not_given_or_that_no_list_holds) {
  Wines_Record wine = Sample_Wine();
  wine.Label = wine.Clasification = "x";
  wine.Ranking = -1;
  wine.Value_Guide = Currency::Of(-1);
  wine.Alcohol = -1;
  const Long bare = Put_Wine(wine, {});
  wine = Sample_Wine();
  wine.Vintage = 1976;  // the first of its list
  wine.Peak = 1999;
  wine.Bottle_Size = "1 keg";
  const Long odd = Put_Wine(wine);
  wine = Sample_Wine();
  wine.Peak = wine.Vintage;
  const Long early = Put_Wine(wine);
  Start_With("Cellar1_View");
  Pick_Wine(bare);
  EXPECT_EQ(Shown_Text("Label_Combo"), "No Label");
  EXPECT_EQ(Shown_Text("Classification_Combo"), "NO Classification");
  for (const char* field :
       {"Merit_Combo", "Price_Text", "Alcohol_Text", "Last_Date_Uncorked_Text"}) {
    EXPECT_EQ(Shown_Text(field), " ") << field;
  }
  EXPECT_TRUE(Shown_Rows(grapes).empty());
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Start_With("Wine_Mod");
    for (const auto& [picked, years_and_size, mended_ones] :
         {std::tuple{odd, Texts{"2001", "2009", ""}, Texts{"1976", "1999", "1 keg"}},
          {early, Texts{"2016", "2024", "1.5 Lt"}, Texts{"2016", "2016", "1.5 Lt"}}}) {
      Pick_Wine(picked);
      EXPECT_EQ((Texts{Shown_Text("Vintage_Combo"), Shown_Text("Peak_Year_Combo"),
                       Shown_Text("Bottle_Size_Combo")}),
                mended ? mended_ones : years_and_size);
    }
    EXPECT_EQ(Shown_Rows("Bottle_Size_Combo").size(), 14U);
    EXPECT_EQ(Shown_Rows("Peak_Year_Combo").size(), 16U);
  }
}

}  // namespace
