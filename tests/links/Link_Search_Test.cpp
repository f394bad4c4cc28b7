// The searches find what a plain look at every row finds; their limit, and what they say of
// nothing.
#include "links/Link_Search.h"

#include <array>
#include <map>
#include <random>
#include <set>

#include "links/Link_Store.h"
#include "tests/links/Linked_Rows.h"
#include "tests/support/Faults_Mended.h"

namespace {

/// A search, the table it looks at, the one of those it finds, and the one that is selected from.
struct Searched {
  void (*search)();
  const char* table;
  const char* owners;
  const char* owner;
  const char* items;
  Record_Store::Recordset& rows;
};
const std::vector<Searched> searches{
    {Search_Wines_for_Maridages, "Maridages_Per_Wines", "Wines", "Wine_ID", "Maridages",
     Maridages_Per_Wines_Recordset},
    {Search_Mobile_Wines_for_Maridages, "Maridages_Per_Mobile_Wines", "Mobile_Wines",
     "Mobile_Wine_ID", "Maridages", Maridages_Per_Mobile_Wines_Recordset},
    {Search_Regions_for_Varieties, "Varieties_Per_Region", "Regions", "Region_ID", "Varieties",
     Varieties_Per_Region_Recordset}};

struct Address {
  Long group;
  Long subgroup;
};
/// A link row: in one group, up to ten subgroups of it.
struct Link_Row {
  Long owner;
  Long group;
  std::set<Long> subgroups;
};

class Link_Search : public Linked_Rows {
 protected:
  void SetUp() override {
    Linked_Rows::SetUp();
    for (const Searched& searched : searches) Remove_All(searched.table);
    Regions.Region_ID = 30001;
  }
  static Long Add_Item(const Searched& searched, const Address& at) {
    return Text(searched.items) == "Maridages" ? Add_Pairing(at.group, at.subgroup)
                                               : Add_Variety(at.group, at.subgroup);
  }
  static void Link(const Searched& searched, const Link_Row& row) {
    std::string mask(10, '0');
    for (const Long subgroup : row.subgroups) mask[static_cast<std::size_t>(10 - subgroup)] = '1';
    Record_Store::Recordset rows = Wine_Cellar_DB->OpenRecordset(searched.table);
    rows.AddNew();
    rows.Fields(searched.owner) = row.owner;
    rows.Fields("GROUP") = row.group * 10;
    rows.Fields("SUBCATEGO") = mask;
    rows.Update();
  }
  static Texts Found() {
    Texts found;
    for (int item = 1; item <= Found_Count; ++item) found.push_back(Found_IDs[item]);
    return found;
  }

  Box_Script boxes;  // a search that finds nothing says so
};

// ---- against a plain look at every row ----

constexpr Long first_group = 900001;

/// Rows and selections by chance.
class Random_Links {
 public:
  explicit Random_Links(unsigned seed) : random_(seed) {}

  Long Below(Long bound) { return static_cast<Long>(random_() % static_cast<unsigned>(bound)); }

  std::vector<Link_Row> Rows(const Keys& owners, Long groups, std::size_t count) {
    std::vector<Link_Row> rows(count);
    for (Link_Row& row : rows) {
      row.owner = owners[static_cast<std::size_t>(Below(static_cast<Long>(owners.size())))];
      row.group = first_group + Below(groups);
      const Long density = 1 + Below(3);
      for (Long subgroup = 1; subgroup <= 10; ++subgroup) {
        if (Below(12) < density * density) row.subgroups.insert(subgroup);
      }
    }
    return rows;
  }
  /// Addresses without doubles, up to `most` of them.
  std::vector<Address> Selection(Long groups, Long most) {
    std::set<std::pair<Long, Long>> taken;
    std::vector<Address> selection;
    for (Long left = 1 + Below(most); left > 0; --left) {
      const Address at{first_group + Below(groups), 1 + Below(10)};
      if (taken.emplace(at.group, at.subgroup).second) selection.push_back(at);
    }
    return selection;
  }

 private:
  std::mt19937 random_;
};

std::set<Text> Plain_Set(const std::vector<Link_Row>& rows, const std::vector<Address>& selection) {
  std::set<Text> owners;
  for (const Link_Row& row : rows) {
    for (const Address& at : selection) {
      if (row.group == at.group && row.subgroups.contains(at.subgroup)) {
        owners.insert(To_Text(row.owner));
      }
    }
  }
  return owners;
}

// The order: that of the merged groups, which have their own test, and of the rows in each.
Texts First_Found_Order(const std::vector<Link_Row>& rows) {
  Texts order;
  for (int entry = 1; entry <= Group_Count; ++entry) {
    const Text wanted = To_Text(Group_Masks[entry]);
    for (const Link_Row& row : rows) {
      if (row.group != Group_Keys[entry]) continue;
      const bool meets =
          std::any_of(row.subgroups.begin(), row.subgroups.end(), [&](Long subgroup) {
            const auto at = static_cast<std::size_t>(subgroup);
            return at <= wanted.size() && wanted[wanted.size() - at] == '1';
          });
      const Text key = To_Text(row.owner);
      if (meets && std::find(order.begin(), order.end(), key) == order.end()) order.push_back(key);
    }
  }
  return order;
}

void Expect_Found(const std::vector<Link_Row>& rows, const std::vector<Address>& selection) {
  Texts order = First_Found_Order(rows);
  EXPECT_EQ(std::set<Text>(order.begin(), order.end()), Plain_Set(rows, selection));
  ASSERT_LE(Found_Count, 100);
  Texts found;
  for (int item = 1; item <= Found_Count; ++item) {
    if (item < 100 || !Found_IDs[item].empty()) found.push_back(Found_IDs[item]);
  }
  if (order.size() <= 98) {
    EXPECT_EQ(Found_Count, static_cast<int>(order.size()));
  }
  order.resize(std::min<std::size_t>(order.size(), 99));
  EXPECT_EQ(found, order);
}

// Every owner that has a row, in the order of these.
void Expect_All_Found(const Texts& owners, const std::set<Text>& matching) {
  Texts expected, found;
  std::ranges::copy_if(owners, std::back_inserter(expected),
                       [&](const Text& owner) { return matching.contains(owner); });
  for (int item = 1; item <= Found_Count; ++item) found.push_back(Found_IDs[item]);
  EXPECT_EQ(found, expected);
}

TEST_F(Link_Search, Random_cellars_and_selections_are_found_as_a_plain_set_tells) {
  // Wines without a bottle, in another cellar; most others are no wines at all any more.
  for (int wine = 0; wine < 400; ++wine) Add("Wines", {{"Total_Bottles", 0}, {"Cellar_ID", 9}});
  std::array<int, 3> nothing_few_many{};
  int many_mended = 0;
  for (std::size_t cellar = 0; cellar < 12; ++cellar) {
    const auto seed = static_cast<unsigned>(20261 + cellar);
    Random_Links random(seed);
    const Searched& searched = searches[cellar % 3];
    Remove_All(searched.table);
    // In few groups most wines match many times; then as many wines as the limit lets through.
    const bool crowded = cellar >= 6;
    const Long groups = crowded ? 6 : 40;
    const auto others = static_cast<Long>(crowded ? 80 + cellar : 1600);
    const Texts with_rows =
        Rows("SELECT " + Text(searched.owner) + " FROM " + searched.owners + " ORDER BY 1");
    Keys owners;
    for (const Text& owner : with_rows) {
      if (owners.size() < (crowded ? 10 : 400)) owners.push_back(To_Long(owner));
    }
    for (Long owner = 0; owner < others; ++owner) owners.push_back(31000 - owner);
    const auto rows = random.Rows(owners, groups, 2500);
    for (const Link_Row& row : rows) Link(searched, row);
    std::map<std::pair<Long, Long>, Long> keys;
    for (int turn = 0; turn < 40; ++turn) {
      SCOPED_TRACE("seed " + std::to_string(seed) + ", selection " + std::to_string(turn));
      const auto selection = random.Selection(groups * 5 / 4, turn % 4 == 0 ? 40 : 4);
      Keys selected;
      for (const Address& at : selection) {
        Long& key = keys[{at.group, at.subgroup}];
        if (key == 0) key = Add_Item(searched, at);
        selected.push_back(key);
      }
      Select(selected);
      searched.search();
      Expect_Found(rows, selection);
      ++nothing_few_many.at(Found_Count == 0 ? 0U : Found_Count < 99 ? 1U : 2U);
      const Faults_Mended faults;
      searched.search();
      Expect_All_Found(with_rows, Plain_Set(rows, selection));
      if (HasFailure()) return;
      if (Found_Count > 100) ++many_mended;
      Found_IDs.Clear();  // place 100 is to be no key
    }
  }
  EXPECT_THAT(nothing_few_many, testing::Each(testing::Gt(10)));
  EXPECT_GT(many_mended, 10);
}

// ---- single cases ----

TEST_F(Link_Search, Keys_without_a_row_and_groups_beyond_a_number) {
  Link(searches[1], {30001, 900001, {1}});
  Select({32000, Add_Pairing(900001, 1)});
  Search_Mobile_Wines_for_Maridages();
  EXPECT_THAT(Found(), ElementsAre("30001"));
  EXPECT_FAILURE(3021, Search_Wines_for_Maridages());
  Select({Add_Pairing(214748365, 1)});
  EXPECT_FAILURE(6, Search_Mobile_Wines_for_Maridages());
}

}  // namespace
