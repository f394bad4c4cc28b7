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
  std::function<void(Library&)> break_it;
  const char* problem;
};

using Harm = std::function<void(Library&)>;
template <class Record, class Value, class Given>
Harm First(Value Record::*member, Given value) {
  return
      [=](Library& library) { library.Of<Record>().front().*member = static_cast<Value>(value); };
}
template <class Record, class Value, class Given>
Harm Last(Value Record::*member, Given value) {
  return [=](Library& library) { library.Of<Record>().back().*member = static_cast<Value>(value); };
}
template <class Record>
Harm One_More(const Record& record) {
  return [=](Library& library) { library.Add(Record(record)); };
}
template <class Record>
void Without_Last(Library& library) {
  library.Of<Record>().pop_back();
}
template <class Record>
Harm So_Many(std::size_t count) {
  return [=](Library& library) { library.Of<Record>().resize(count); };
}

const Fault faults[] = {
    {First(&Wineries_Record::Winery_ID, "10000"), "key 10000 lies outside 10001 to 20000"},
    {First(&Labels_Record::Label_ID, 20003), "or does not rise"},
    {First(&Regions_Record::SERIAL_NUMBER, "CUS1-1"), "origin mark 'CUS1-1'"},
    {First(&Labels_per_Winery_Record::Label_ID, 20999), "its key into Labels leads nowhere"},
    {First(&Wineries_Record::History, "x"), "its key into Words_for_Data leads nowhere"},
    {First(&Classification_Record::Country, "FRX"), "its country 'FRX' is unknown"},
    {[](Library& l) { --l.Of<Maridages_Record>().front().Used; }, "rows refer to it"},
    {First(&Regions_Record::Region_Group, 1000000), "group 1000000 is not one for delivered rows"},
    {First(&Regions_Record::Region_SubGr, 4),
     "Regions: the subgroups of group 1 are not 1 to 10 without a hole"},
    {[](Library& l) {
       auto& last = l.Of<Varieties_Record>().back();
       last.Variety_Group = 1;
       last.Variety_SubGr = 11;
     },
     "Varieties: the subgroups of group 1 are not"},
    {Last(&Varieties_Per_Region_Record::SUBCATEGO, 10),
     "the mask names subgroup 2 of group 2, which is missing"},
    {First(&Maridages_Per_Variety_Record::SUBCATEGO, 20), "group 10, mask 20 is no link row"},
    {Without_Last<Regions_Per_Variety_Record>,
     "Varieties_Per_Region and Regions_Per_Variety: the two directions do not agree"},
    {Without_Last<Mobile_Wines_Per_Cheeses_Record>,
     "Cheeses_Per_Mobile_Wines and Mobile_Wines_Per_Cheeses: the two directions"},
    {[](Library& l) {
       // Malbec of the region around Médoc, in both directions.
       auto& masks = l.Of<Varieties_Per_Region_Record>().front();
       masks.SUBCATEGO -= 100;
       std::erase_if(l.Of<Regions_Per_Variety_Record>(),
                     [](const auto& row) { return row.Region_ID == 1 && row.Variety_ID == 3; });
     },
     "Bordeaux lacks variety 3 of Médoc"},
    {First(&Wineries_Record::Region, "Sud"), "its region is not 'Sud' of FRA"},
    {First(&Labels_per_Winery_Record::Label_ID, 20005), "Reserve is a label of another country"},
    {[](Library& l) { l.Of<Regions_Record>()[1].Country = "USA"; },
     "Médoc lies in another country than Bordeaux"},
    {One_More(Labels_per_Winery_Record{10001, 20001}), "a label of the winery stands twice"},
    {One_More(Maridages_Per_Cheeses_Record{1, 10, 1}), "the link stands twice"},
    {[](Library& l) {
       std::erase_if(l.Of<Wine_Taste_Type_Record>(),
                     [](const auto& row) { return row.Color == "Fortified"; });
     },
     "wine_taste_type.tsv: no marks for Fortified"},
    {One_More(Wine_Taste_Type_Record{"Red", "Taste"}), "more marks than the screens have boxes"},
    {Last(&Maridages_Record::Cheese_ID, 1), "the last pairing must be a food"},
    {So_Many<Mobile_Wines_per_Maridage_Record>(0), "Mobile_Wines_per_Maridage: the table is empty"},
    {First(&Mobile_Wines_per_Maridage_Record::Mobile_Wines_per_Maridage_ID, 9),
     "Mobile_Wines_per_Maridage: out of order at number 2"},
    {So_Many<Mobile_Wines_per_Maridage_Record>(25001), "more than 25000 rows"},
    {So_Many<Varieties_Per_Maridage_Record>(16384), "Varieties_Per_Maridage: more than 16383 rows"},
    {First(&Mobile_Wines_Record::Mobile_Wine_Type, "ZZ"), "unknown type 'ZZ'"},
    {First(&Mobile_Wines_Record::Mobile_Wine_Country, "FRA"),
     "variety wines alone are of all countries"},
    {First(&Mobile_Wines_Record::Mobile_Wine_Name, "Pauillac"),
     "no winery tells 'Pauillac' from another wine"},
    {So_Many<Mobile_Wines_Available_Countries_Record>(0),
     "FRA is missing from the countries of the list"},
    {First(&Wine_Tasting_Record::Description, 8), "a mark of a box that the colour does not open"},
};

class Rows : public testing::Test {
 protected:
  Rows() { EXPECT_TRUE(problems_.None()) << Text_Of(problems_); }
  Problems problems_;
  const Library sound_ = Small_Library().Compile(problems_);
};

TEST_F(Rows, Each_Fault_Is_Found) {
  for (const Fault& fault : faults) {
    Library broken = sound_;
    fault.break_it(broken);
    Problems problems;
    Check_Library(broken, problems);
    EXPECT_NE(Text_Of(problems).find(fault.problem), std::string::npos)
        << fault.problem << Text_Of(problems);
  }
}

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
