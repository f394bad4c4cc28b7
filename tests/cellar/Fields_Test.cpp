// The fields of the cellar screen: what their lists hold, what a choice brings about, what opens
// the button, what a text is refused for, and a stored wine on them.
#include <gmock/gmock.h>

#include <functional>
#include <map>

#include "platform/forms/Screens.h"
#include "platform/run_time/Conversions.h"
#include "tests/cellar/Cellar_Program.h"

namespace {

using testing::ElementsAre;
using Texts = std::vector<Text>;

class Fields : public Cellar_Program {
 protected:
  // The entries that are no rows, then the stored ones.
  Texts List_of(Texts first, const Text& select) const {
    for (const Text& row : Stored(select, 1)) first.push_back(row);
    return first;
  }
  static Texts Told(const Box_Script& boxes) {
    Texts told;
    for (const Forms::Box& box : boxes.Boxes()) told.push_back(box.title + ": " + box.text);
    return told;
  }
  static bool Gate_Is_Open() { return Is_Usable("Multi_Functional_Command"); }
};

TEST_F(Fields, The_lists_begin_with_the_country_of_the_program) {
  Start_With("Wine_Add");
  EXPECT_EQ(Shown_Rows("Country_Combo"),
            List_of({}, "SELECT Long_Name FROM World_Contries ORDER BY Long_Name"));
  EXPECT_EQ(Stored("SELECT Country_Target FROM Wine_System", 1).front(), "USA");
  EXPECT_EQ(Shown_Text("Country_Combo"),
            Stored("SELECT Long_Name FROM World_Contries WHERE Short_Name = 'USA'", 1).front());
  EXPECT_EQ(Shown_Rows("Winery_Combo"),
            List_of({"New Winery"}, "SELECT Winery_Name FROM Wineries ORDER BY Winery_Name"));
  const std::tuple<const char*, std::size_t, Text, Text, Text> fixed_lists[] = {
      {"Vintage_Combo", 51, "1976", "2026", "2001"},
      {"Peak_Year_Combo", 16, "2001", "2016", "2009"},
      {"Merit_Combo", 52, " ", "100", " "},
      {"Bottle_Size_Combo", 14, "200 ml", "18.0 Lt", "750 ml"},
      {"Color_Combo", 5, "Red", "Fortified", "Red"}};
  for (const auto& [list, count, first, last, shown] : fixed_lists) {
    const Texts rows = Shown_Rows(list);
    ASSERT_EQ(rows.size(), count) << list;
    EXPECT_EQ(rows.front(), first) << list;
    EXPECT_EQ(rows.back(), last) << list;
    EXPECT_EQ(Shown_Text(list), shown) << list;
  }
}

TEST_F(Fields, Country_and_winery_bring_what_belongs_to_them) {
  Start_With("Wine_Add");
  for (const int number : {0, 1}) {
    const Sample_Winery& winery = Sample(number);
    const Text of_country = " WHERE Country = '" + winery.country + "' ";
    const Texts classifications = List_of(
        {"New Classification", "NO Classification"},
        "SELECT Description FROM Classification" + of_country + "ORDER BY Classification_ID");
    Choose("Country_Combo", winery.country_name);
    EXPECT_EQ(Shown_Rows("Winery_Combo"),
              List_of({"New Winery"},
                      "SELECT Winery_Name FROM Wineries" + of_country + "ORDER BY Winery_Name"));
    EXPECT_EQ(Shown_Rows("Region_Combo"),
              List_of({}, "SELECT Region_Name FROM Regions" + of_country + "ORDER BY Region_Name"));
    EXPECT_EQ(Shown_Rows("Label_Combo"),
              List_of({"New Label"},
                      "SELECT l.Label_Name FROM Labels l JOIN Regions r ON r.Region_ID = "
                      "l.Region_ID WHERE r.Country = '" +
                          winery.country + "' ORDER BY r.Region_Name, l.Label_ID"));
    EXPECT_EQ(Shown_Rows("Classification_Combo"), classifications);

    Choose("Winery_Combo", winery.name);
    EXPECT_THAT(Shown_Rows("Region_Combo"), ElementsAre(winery.region));
    EXPECT_EQ(Shown_Rows("Label_Combo"),
              List_of({"New Label", "No Label"},
                      "SELECT Label_Name FROM Labels WHERE Region_ID = " + winery.region_id +
                          " ORDER BY Label_ID"));
    EXPECT_EQ(Shown_Rows("Classification_Combo"), classifications);
    const Texts names = Shown_Rows("Variety_Combo");
    const Texts keys = Shown_Rows("Variety_ID_Combo");
    std::map<Text, Text> grapes, expected{{"New Variety", "New Variety"}};
    for (std::size_t at = 0; at < names.size(); ++at) grapes[keys.at(at)] = names[at];
    for (std::size_t at = 0; at < winery.varieties.size(); ++at) {
      expected[winery.variety_ids[at]] = winery.varieties[at];
    }
    EXPECT_EQ(grapes, expected);
    EXPECT_EQ(names.size(), expected.size());
  }
}

TEST_F(Fields, A_label_sets_its_color_and_neither_the_boxes_nor_the_gate) {
  Start_With("Wine_Add");
  Choose_Winery();
  Choose("Label_Combo", Sample().label);
  EXPECT_EQ(Shown_Text("Color_Combo"), "White");
  EXPECT_EQ(Tag_of("Color_Combo"), "0");
  EXPECT_EQ(Color_of("Color_Combo"), "required");
  Choose("Color_Combo", "Red");
  Click("Taste_Check_5");
  Choose("Label_Combo", Sample().label);
  EXPECT_EQ(Shown_Text("Color_Combo"), "White");
  EXPECT_THAT(Ticked_Boxes(), ElementsAre("Taste_Check_5"));
}

TEST_F(Fields, The_button_opens_when_the_last_of_the_fields_is_filled) {
  const std::function<void()> fields[] = {
      [] { Choose("Label_Combo", "No Label"); },
      [] { Choose("Classification_Combo", "NO Classification"); },
      [] { Click_Tick("Variety_Combo", 2); },
      [] { Choose("Bottle_Size_Combo", "750 ml"); },
      [] { Type_Into("Total_Bottles_Text", "12"), Press("Tab"); },
      [] { Choose("Color_Combo", "Red"); },
  };
  Start_With("Wine_Add");
  for (std::size_t last = 0; last < std::size(fields); ++last) {
    Choose_Winery(static_cast<int>(last) % 2);  // closes it again
    for (std::size_t field = 0; field < std::size(fields); ++field) {
      if (field != last) fields[field]();
    }
    EXPECT_FALSE(Gate_Is_Open()) << last;
    fields[last]();
    EXPECT_TRUE(Gate_Is_Open()) << last;
  }
  Choose("Country_Combo", Sample().country_name);
  EXPECT_FALSE(Gate_Is_Open());
}

TEST_F(Fields, What_is_no_choice_closes_the_button_again) {
  const auto tick = [](int row) { return [row] { Click_Tick("Variety_Combo", row); }; };
  const auto choose = [](const char* combo, const char* entry) {
    return [combo, entry] { Choose(combo, entry); };
  };
  const auto bottles = [](const char* text) {
    return [text] { Type_Into("Total_Bottles_Text", text), Press("Tab"); };
  };
  const std::tuple<const char*, std::function<void()>, std::function<void()>> ways[] = {
      {"Vintage_Combo", choose("Vintage_Combo", "1976"), choose("Vintage_Combo", "1977")},
      {"Label_Combo", choose("Label_Combo", "New Label"), choose("Label_Combo", "No Label")},
      {"Classification_Combo", choose("Classification_Combo", "New Classification"),
       choose("Classification_Combo", "NO Classification")},
      {"Variety_Combo", tick(1), tick(1)},
      {"Variety_Combo", tick(0), [tick] { tick(0)(), tick(3)(); }},
      {"Total_Bottles_Text", bottles(""), bottles("0")},
  };
  Start_With("Wine_Add");
  Fill_Add({.ticks = {1}});
  for (const auto& [field, close, open] : ways) {
    close();
    EXPECT_FALSE(Gate_Is_Open()) << field;
    EXPECT_EQ(Color_of(field), "required") << field;
    open();
    EXPECT_TRUE(Gate_Is_Open()) << field;
    EXPECT_EQ(Color_of(field), "open") << field;
  }
  EXPECT_THAT(Ticked_Varieties(), ElementsAre(Shown_Rows("Variety_Combo")[3]));
}

TEST_F(Fields, The_peak_years_follow_the_vintage) {
  Start_With("Wine_Add");
  Choose_Winery();
  for (const auto& [vintage, last, peak] :
       {std::tuple{"1990", "2005", "1998"}, {"2026", "2041", "2034"}}) {
    Choose("Vintage_Combo", vintage);
    const Texts years = Shown_Rows("Peak_Year_Combo");
    EXPECT_EQ(years.size(), 16U);
    EXPECT_EQ(years.front(), vintage);
    EXPECT_EQ(years.back(), last);
    EXPECT_EQ(Shown_Text("Peak_Year_Combo"), peak);
    Choose("Peak_Year_Combo", vintage);
  }
}

TEST_F(Fields, A_text_that_is_refused_keeps_the_focus) {
  const Text no_date = "This is an Illegal Date !!!";
  const Text future = "This date is in the FUTURE !!!";
  const Text past = "This date is TOO far into the PAST !!!";
  const std::vector<std::pair<Text, Text>> dates = {{"soon", no_date},
                                                    {"2/30/2020", no_date},
                                                    {"6/15/2026 14:30:06", future},
                                                    {"6/16/2026", future},
                                                    {"12/31/2005", past},
                                                    {"1/1/2006", ""},
                                                    {"6/15/2026 14:30:05", ""},
                                                    {" ", ""}};
  const Text numeric = " value is NOT numeric !!!";
  const Text negative = " value MUST be greather than 0 !!!";
  const std::tuple<const char*, Text, std::vector<std::pair<Text, Text>>> fields[] = {
      {"Total_Bottles_Text",
       "ILLEGAL NUMBER",
       {{"six", "Total Bottles" + numeric},
        {" ", "Total Bottles" + numeric},
        {"32768", "Total Bottles" + numeric},
        {"-1", "Total Bottles" + negative},
        {"-2.5", "Total Bottles" + negative},
        {"2.5", "Total Bottles value MUST be an Integer !!!"},
        {"", ""},
        {"32767", ""},
        {"0", ""}}},
      {"Alcohol_Text",
       "ILLEGAL NUMBER",
       {{" ", "Alcohol" + numeric},
        {"12%", "Alcohol" + numeric},
        {"1e39", "Alcohol" + numeric},
        {"-0.5", "Alcohol" + negative},
        {"", ""},
        {"0", ""},
        {"13.5", ""}}},
      {"Price_Text",
       "ILLEGAL NUMBER",
       {{"dear", "Price" + numeric},
        {"1e400", "Price" + numeric},
        {"922337203685478", "Price" + numeric},
        {"-1", "Price" + negative},
        {" ", ""},
        {"922337203685477", ""},
        {"0", ""}}},
      {"Date_Added_Text", "ILLEGAL DATE", dates},
      {"Last_Date_Uncorked_Text", "ILLEGAL DATE", dates},
  };
  Start_With("Wine_Add");
  Choose_Winery();
  Box_Script boxes;
  for (const auto& [field, title, texts] : fields) {
    for (const auto& [text, message] : texts) {
      boxes.Forget();
      Type_Into(field, text);
      Press("Tab");
      const Texts told = message.empty() ? Texts{} : Texts{title + ": " + message};
      EXPECT_EQ(Told(boxes), told) << field << ": " << text;
      EXPECT_EQ(Focused() == field, !message.empty()) << field << ": " << text;
      if (field == Text("Total_Bottles_Text")) {
        EXPECT_EQ(Tag_of(field), text.empty() || !message.empty() ? "0" : "1") << text;
      }
    }
  }
  Type_Into("Price_Text", "dear");
  Click("Exit_Command");
  EXPECT_FALSE(Forms::Screen("Wine_Form").Is_Loaded());
}

TEST_F(Fields, A_locked_list_of_grapes_undoes_a_tick_and_an_untick) {
  const Long wine = Put_Wine(Sample_Wine());
  Start_With("Wine_Add");
  Click_Tick("Variety_Combo", 1);
  EXPECT_THAT(Ticked_Varieties(), ElementsAre());
  Click("Exit_Command");
  Pick("Cellar1_View");
  Pick_Wine(wine);
  Click_Tick("Variety_Combo", 0);
  EXPECT_THAT(Ticked_Varieties(), ElementsAre(Sample().varieties[0]));
}

TEST_F(Fields, A_stored_wine_shows_the_same_in_every_mode) {
  Wines_Record wine = Sample_Wine();
  wine.Description = Put_Text("round");
  wine.Last_Date_Uncorked = Date::Of(2026, 5, 1, 20);
  const Long given = Put_Wine(wine, {Sample().variety_ids[0], Sample().variety_ids[2]});
  Put_Mark(given, "Taste", 1);
  Put_Mark(given, "Aroma", 7);
  const std::pair<const char*, Text> fields[] = {
      {"Winery_Combo", Sample().name},
      {"Country_Combo", Sample().country_name},
      {"Region_Combo", Sample().region},
      {"Label_Combo", Sample().label},
      {"Classification_Combo", Sample().classification},
      {"Vintage_Combo", "2016"},
      {"Peak_Year_Combo", "2021"},
      {"Merit_Combo", "90"},
      {"Bottle_Size_Combo", "1.5 Lt"},
      {"Color_Combo", "Red"},
      {"Total_Bottles_Text", "3"},
      {"Price_Text", "12.5"},
      {"Alcohol_Text", "13.5"},
      {"Description_Text", "round"},
      {"Comments_Text", " "},
      {"Last_Date_Uncorked_Text", To_Text(wine.Last_Date_Uncorked)},
      {"Date_Added_Text", To_Text(wine.Date_Added)},
  };
  Start();
  for (const char* entry : {"Cellar1_View", "Wine_Uncork", "Wine_Del", "Wine_Mod"}) {
    Pick(entry);
    Pick_Wine(given);
    for (const auto& [field, text] : fields) EXPECT_EQ(Shown_Text(field), text) << entry << field;
    EXPECT_THAT(Ticked_Varieties(),
                testing::UnorderedElementsAre(Sample().varieties[0], Sample().varieties[2]));
    EXPECT_THAT(Ticked_Boxes(), ElementsAre("Taste_Check_1", "Aroma_Check_7")) << entry;
    Click("Exit_Command");
  }
}

TEST_F(Fields, Values_that_were_not_given_or_that_no_list_holds) {
  Wines_Record wine = Sample_Wine();
  wine.Label = "x";
  wine.Clasification = "x";
  wine.Ranking = -1;
  wine.Value_Guide = Currency::Of(-1);
  wine.Alcohol = -1;
  const Long bare = Put_Wine(wine, {});
  wine = Sample_Wine();
  wine.Vintage = 1976;
  wine.Peak = 1999;
  wine.Bottle_Size = "1 keg";
  const Long odd = Put_Wine(wine);
  wine = Sample_Wine();
  wine.Peak = wine.Vintage;  // the first of the peak years
  const Long early = Put_Wine(wine);
  Start_With("Cellar1_View");
  Pick_Wine(bare);
  for (const auto& [field, text] : {std::pair{"Label_Combo", "No Label"},
                                    {"Classification_Combo", "NO Classification"},
                                    {"Merit_Combo", " "},
                                    {"Price_Text", " "},
                                    {"Alcohol_Text", " "},
                                    {"Last_Date_Uncorked_Text", " "}}) {
    EXPECT_EQ(Shown_Text(field), text) << field;
  }
  EXPECT_TRUE(Shown_Rows("Variety_Combo").empty());
  Click("Exit_Command");
  Pick("Wine_Mod");
  Pick_Wine(odd);
  EXPECT_EQ(Shown_Text("Vintage_Combo"), "2001");
  EXPECT_EQ(Shown_Text("Peak_Year_Combo"), "2009");
  EXPECT_EQ(Shown_Text("Bottle_Size_Combo"), "");
  Pick_Wine(early);
  EXPECT_EQ(Shown_Text("Vintage_Combo"), "2016");
  EXPECT_EQ(Shown_Text("Peak_Year_Combo"), "2024");
}

}  // namespace
