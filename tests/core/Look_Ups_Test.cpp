// The lists of start-up, the look-ups between names, and the ordered queries.

#include "core/Gereral_Processes.h"
#include "core/Languages.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "platform/forms/Application.h"
#include "tests/support/Program_Folder.h"

namespace {

class Look_Ups : public Program_Folder {
 protected:
  void SetUp() override { Start(); }

  /// Rows with "1" in every other field that can hold it.
  void Add_Rows(const char* table, const char* field, const Texts& values) const {
    Change([&](Record_Store::Database& file) {
      Record_Store::Recordset rows = file.OpenRecordset(table);
      for (const Text& value : values) {
        rows.AddNew();
        for (int at = 0; at < rows.Field_Count(); ++at) {
          if (rows.Fields(at).Is_Null()) rows.Fields(at) = "1";
        }
        rows.Fields(field) = value;
        rows.Update();
      }
    });
  }
  static Texts Column(Record_Store::Recordset& rows, const char* field) {
    Texts texts;
    for (; !rows.Eof(); rows.MoveNext()) texts.push_back(rows.Fields(field).As_Text());
    return texts;
  }
};

TEST_F(Look_Ups, The_lists_are_filled_from_entry_1) {
  EXPECT_EQ(Bottle_Sizes[1], "200 ml");
  EXPECT_EQ(Bottle_Sizes[4], "750 ml");
  EXPECT_EQ(Bottle_Sizes[14], "18.0 Lt");
  EXPECT_FAILURE(9, Bottle_Sizes[15]);
  EXPECT_EQ(Cheese_Types_Count, 10);
  Cheese_Types.Clear();
  Load_Cheese_Types();
  EXPECT_EQ(Cheese_Types[9], "Soft-ripened");
  EXPECT_EQ(Cheese_Types[10], "") << "until the words are read";
  EXPECT_EQ(Milk_Types_Count, 6);
  const auto names = Stored("SELECT Long_Name FROM World_Contries ORDER BY Long_Name");
  ASSERT_EQ(static_cast<std::size_t>(Countries_Count), names.size());
  for (int entry = 1; entry <= Countries_Count; ++entry) {
    ASSERT_EQ(Countries[entry].Long_Name, names[static_cast<std::size_t>(entry) - 1]);
  }
}

TEST_F(Look_Ups, Countries_of_wines_stand_once_and_countries_of_cheeses_once_a_run) {
  for (const auto& [table, field] :
       {std::pair{"Mobile_Wines", "Mobile_Wine_Country"}, {"Cheeses", "Cheese_Country"}}) {
    Remove_Rows(table);
    Add_Rows(table, field, {"FRA", "FRA", "ITA", "FRA"});
  }
  Start();
  EXPECT_EQ(Mobile_Countries_Count, 2);
  EXPECT_EQ(Mobile_Countries[2], "ITA");
  EXPECT_EQ(Cheese_Countries_Count, 3);
  EXPECT_EQ(Cheese_Countries[3], "FRA");
}

TEST_F(Look_Ups, Names_and_short_names_of_countries) {
  EXPECT_EQ(Country_Short_Name("France"), "FRA");
  EXPECT_EQ(Country_Short_Name("UNITED STATES OF AMERICA"), "USA");
  EXPECT_EQ(Country_Long_Name("ita"), "Italy");
  EXPECT_FAILURE(3021, Country_Short_Name("Atlantis"));
  EXPECT_FAILURE(3021, Read_Winery_By_ID(1));
  Read_Winery_By_ID(10001);
  EXPECT_EQ(Wineries.Winery_ID, "10001");
}

TEST_F(Look_Ups, Words_and_codes) {
  EXPECT_EQ(Color_Index("Red"), 0);
  EXPECT_EQ(Color_Index("Rosé"), 2);
  EXPECT_EQ(Color_Index("Fortified"), 4);
  EXPECT_EQ(Color_Index("white"), 0);
  EXPECT_EQ(Replace_Key("é"), "e");
  EXPECT_EQ(Replace_Key("É"), "E");
  EXPECT_EQ(Replace_Key("no such word"), " ");
  for (int type = 1; type <= 3; ++type) Mobile_Type_Words[type] = "word " + std::to_string(type);
  for (const char* code : {"VA", "LE", "AP"}) EXPECT_EQ(Wine_Type_Code(Wine_Type_Word(code)), code);
  EXPECT_EQ(Wine_Type_Word("??"), "word 1");
  EXPECT_EQ(Wine_Type_Code("??"), "VA");
  EXPECT_EQ(Other_Language(), 4);
  System_Language = 8;
  EXPECT_EQ(Other_Language(), 3);
}

TEST_F(Look_Ups, E_mail_addresses) {
  for (const char* good : {"a@b.c", "@b.c", "a%40b.c", "a@.c", "a.b@c.d"})
    EXPECT_TRUE(Valid_E_Mail(good)) << good;
  for (const char* bad : {"", "a", "a.b", "a@b", "a@b.", "a.b@c", "a%40b", "a.b%40c"}) {
    EXPECT_FALSE(Valid_E_Mail(bad)) << bad;
  }
}

TEST_F(Look_Ups, Ordered_queries) {
  Open_Regions_Of_Country("fra");
  const auto regions = Column(Regions_Query, "Region_Name");
  EXPECT_GT(regions.size(), 5U);
  EXPECT_TRUE(Is_Sorted(regions));
  Open_Regions_Of_Country("");
  EXPECT_TRUE(Regions_Query.Eof());
  EXPECT_FAILURE(3075, Open_Regions_Of_Country("CÔTE D'IVOIRE"));

  Open_Labels_Of_Region(1);
  const auto labels = Column(Labels_Query, "Region_ID");
  EXPECT_THAT(labels, testing::Each("1"));
  Open_States_Of_Contry("USA");
  EXPECT_EQ(Column(State_of_Contries_Query, "Long_Name").front(), "Alabama");
}

TEST_F(Look_Ups, Countries_are_sorted_by_their_name_in_the_language) {
  const char* columns[] = {"Long_Name", "Spanish_Name", "French",    "German",
                           "Italian",   "Japanese",     "Portuguese"};
  for (System_Language = 3; System_Language <= 9; ++System_Language) {
    Open_World_Contries_Sorted();
    EXPECT_TRUE(Is_Sorted(Column(World_Contries_Query, columns[System_Language - 3])))
        << System_Language;
  }
  System_Language = 2;
  Open_World_Contries_Sorted();
  EXPECT_EQ(Column(World_Contries_Query, "Short_Name"),
            Column(World_Contries_Recordset, "Short_Name"));
}

}  // namespace
