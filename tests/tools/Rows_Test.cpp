// Each rule of the rows, broken in one place of a sound library: the checker finds it whatever the
// compiler does.
#include <gtest/gtest.h>

#include <functional>

#include "tests/tools/Small_Library.h"
#include "tools/Groups.h"
#include "tools/References.h"

namespace {

using Data_Compiler::Library;
using Data_Compiler::Problems;

struct Fault {
  const char* name;
  std::function<void(Library&)> break_it;
  const char* problem;
};

template <class Record>
Record& First(Library& library) {
  return library.Of<Record>().front();
}

const Fault Faults[] = {
    {"Key_Out_Of_Range", [](Library& l) { First<Wineries_Record>(l).Winery_ID = "10000"; },
     "key 10000 lies outside 10001 to 20000"},
    {"Keys_Out_Of_Order", [](Library& l) { First<Labels_Record>(l).Label_ID = 20003; },
     "or does not rise"},
    {"Origin", [](Library& l) { First<Regions_Record>(l).SERIAL_NUMBER = "CUS1-1"; },
     "origin mark 'CUS1-1'"},
    {"Key_Leads_Nowhere", [](Library& l) { First<Labels_per_Winery_Record>(l).Label_ID = 20999; },
     "its key into Labels leads nowhere"},
    {"History_Is_No_Key", [](Library& l) { First<Wineries_Record>(l).History = "x"; },
     "its key into Words_for_Data leads nowhere"},
    {"Country", [](Library& l) { First<Classification_Record>(l).Country = "FRX"; },
     "its country 'FRX' is unknown"},
    {"Used", [](Library& l) { --First<Maridages_Record>(l).Used; }, "rows refer to it"},
    {"Group_Of_Users", [](Library& l) { First<Regions_Record>(l).Region_Group = 1000000; },
     "group 1000000 is not one for delivered rows"},
    {"Hole_In_Group", [](Library& l) { First<Regions_Record>(l).Region_SubGr = 4; },
     "Regions: the subgroups of group 1 are not 1 to 10 without a hole"},
    {"Eleven_In_Group",
     [](Library& l) {
       auto& last = l.Of<Varieties_Record>().back();
       last.Variety_Group = 1;
       last.Variety_SubGr = 11;
     },
     "Varieties: the subgroups of group 1 are not"},
    {"Missing_Subgroup",
     [](Library& l) { l.Of<Varieties_Per_Region_Record>().back().SUBCATEGO = 10; },
     "the mask names subgroup 2 of group 2, which is missing"},
    {"No_Mask", [](Library& l) { First<Maridages_Per_Variety_Record>(l).SUBCATEGO = 20; },
     "group 10, mask 20 is no link row"},
    {"Directions", [](Library& l) { l.Of<Regions_Per_Variety_Record>().pop_back(); },
     "Varieties_Per_Region and Regions_Per_Variety: the two directions do not agree"},
    {"Directions_Of_Cheeses",
     [](Library& l) { l.Of<Mobile_Wines_Per_Cheeses_Record>().pop_back(); },
     "Cheeses_Per_Mobile_Wines and Mobile_Wines_Per_Cheeses: the two directions"},
    {"Parent_Lacks_A_Variety",
     [](Library& l) {
       // Malbec of the region around Médoc, in both directions.
       auto& masks = First<Varieties_Per_Region_Record>(l);
       masks.SUBCATEGO -= 100;
       std::erase_if(l.Of<Regions_Per_Variety_Record>(),
                     [](const auto& row) { return row.Region_ID == 1 && row.Variety_ID == 3; });
     },
     "Bordeaux lacks variety 3 of Médoc"},
    {"Region_Of_A_Winery", [](Library& l) { First<Wineries_Record>(l).Region = "Sud"; },
     "its region is not 'Sud' of FRA"},
    {"Label_Of_Another_Country",
     [](Library& l) { First<Labels_per_Winery_Record>(l).Label_ID = 20005; },
     "Reserve is a label of another country"},
    {"Parent_In_Another_Country", [](Library& l) { l.Of<Regions_Record>()[1].Country = "USA"; },
     "Médoc lies in another country than Bordeaux"},
    {"Label_Of_A_Winery_Twice",
     [](Library& l) {
       l.Add(Labels_per_Winery_Record{10001, 20001});
     },
     "a label of the winery stands twice"},
    {"Link_Twice",
     [](Library& l) {
       l.Add(Maridages_Per_Cheeses_Record{1, 10, 1});
     },
     "the link stands twice"},
    {"Colour_Without_Marks",
     [](Library& l) {
       std::erase_if(l.Of<Wine_Taste_Type_Record>(),
                     [](const auto& row) { return row.Color == "Fortified"; });
     },
     "wine_taste_type.tsv: no marks for Fortified"},
    {"More_Marks_Than_Boxes",
     [](Library& l) {
       l.Add(Wine_Taste_Type_Record{"Red", "Taste"});
     },
     "more marks than the screens have boxes"},
    {"Last_Pairing", [](Library& l) { l.Of<Maridages_Record>().back().Cheese_ID = 1; },
     "the last pairing must be a food"},
    {"Pairings_Without_Numbers",
     [](Library& l) { l.Of<Mobile_Wines_per_Maridage_Record>().clear(); },
     "Mobile_Wines_per_Maridage: the table is empty"},
    {"Pairings_Out_Of_Order",
     [](Library& l) {
       First<Mobile_Wines_per_Maridage_Record>(l).Mobile_Wines_per_Maridage_ID = 9;
     },
     "Mobile_Wines_per_Maridage: out of order at number 2"},
    {"Too_Many_Pairings",
     [](Library& l) { l.Of<Mobile_Wines_per_Maridage_Record>().resize(25001); },
     "more than 25000 rows"},
    {"Too_Many_To_Make_Anew",
     [](Library& l) { l.Of<Varieties_Per_Maridage_Record>().resize(16384); },
     "Varieties_Per_Maridage: more than 16383 rows"},
    {"Type_Of_A_Wine", [](Library& l) { First<Mobile_Wines_Record>(l).Mobile_Wine_Type = "ZZ"; },
     "unknown type 'ZZ'"},
    {"Country_Of_A_Variety_Wine",
     [](Library& l) { First<Mobile_Wines_Record>(l).Mobile_Wine_Country = "FRA"; },
     "variety wines alone are of all countries"},
    {"Two_Wines_Of_One_Name",
     [](Library& l) { First<Mobile_Wines_Record>(l).Mobile_Wine_Name = "Pauillac"; },
     "no winery tells 'Pauillac' from another wine"},
    {"Country_Of_The_List",
     [](Library& l) { l.Of<Mobile_Wines_Available_Countries_Record>().clear(); },
     "FRA is missing from the countries of the list"},
    {"Mark_Without_A_Box", [](Library& l) { First<Wine_Tasting_Record>(l).Description = 8; },
     "a mark of a box that the colour does not open"},
};

class Rows : public testing::TestWithParam<Fault> {
 protected:
  /// Compiled once: every case breaks a copy.
  static void SetUpTestSuite() {
    Problems problems;
    sound_ = Small_Library().Compile(problems);
    ASSERT_TRUE(problems.None()) << Text_Of(problems);
  }
  static inline Library sound_;
};

TEST_P(Rows, Fault_Is_Found) {
  Library broken = sound_;
  GetParam().break_it(broken);
  Problems problems;
  Check_Library(broken, problems);
  EXPECT_NE(Text_Of(problems).find(GetParam().problem), std::string::npos) << Text_Of(problems);
}

INSTANTIATE_TEST_SUITE_P(Each, Rows, testing::ValuesIn(Faults),
                         [](const auto& fault) { return std::string(fault.param.name); });

TEST_F(Rows, Owner_Of_More_Than_A_Hundred) {
  Library large = sound_;
  for (int i = 0; i < 100; ++i) {
    Mobile_Wines_Record wine;
    Mobile_Wines_Description.Init(wine);
    const auto key = static_cast<Integer>(large.Add(std::move(wine)).Mobile_Wine_ID);
    large.Add(Cheeses_Per_Mobile_Wines_Record{1, key});
    large.Add(Mobile_Wines_Per_Cheeses_Record{0, 1, key});
  }
  Problems problems;
  Data_Compiler::Check_Groups(large, problems);
  EXPECT_EQ(Text_Of(problems),
            "cheeses.tsv:2: it has more than 100 items in Mobile_Wines_Per_Cheeses\n");
}

TEST(Groups, Ten_To_A_Group_And_A_Digit_For_Each) {
  Data_Compiler::Group_Giver giver;
  std::vector<Data_Compiler::Address> addresses;
  addresses.reserve(11);
  for (int i = 0; i < 11; ++i) addresses.push_back(giver.Next("Beef"));
  EXPECT_EQ(giver.Next("Fish"), (Data_Compiler::Address{3, 1}));
  EXPECT_EQ(giver.Next("Beef"), (Data_Compiler::Address{2, 2}));
  const auto all = Data_Compiler::Pack(addresses);
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0].GROUP, 10);
  EXPECT_EQ(all[0].SUBCATEGO, 1111111111);
  EXPECT_EQ(all[1].SUBCATEGO, 1);
  EXPECT_EQ(Data_Compiler::Pack({{37, 5}, {37, 2}})[0].SUBCATEGO, 10010);
  EXPECT_EQ(Data_Compiler::Subgroups_Of(1000000001), (std::vector<Long>{1, 10}));
}

}  // namespace
