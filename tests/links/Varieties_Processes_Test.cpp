// Merged addresses of group link rows, and the grapes of a region as its rows tell them.
#include "links/Varieties_Processes.h"

#include <map>
#include <random>

#include "links/Link_Decoders.h"
#include "tests/support/Program_Folder.h"

namespace {

using Addresses = std::vector<std::pair<Long, Long>>;

Addresses Merged(const Addresses& selected) {
  Sort_Count = 0;
  for (const auto& [group, mask] : selected) {
    Selected_Groups[++Sort_Count] = group;
    Selected_Masks[Sort_Count] = mask;
  }
  Merge_Selected_Groups();
  Addresses merged;
  for (int entry = 1; entry <= Group_Count; ++entry) {
    merged.emplace_back(Group_Keys[entry], Group_Masks[entry]);
  }
  return merged;
}

TEST(Merge, The_smallest_group_comes_first_and_neighbours_become_one) {
  EXPECT_EQ(Merged({{9, 1}, {2, 1}, {9, 10}}), (Addresses{{2, 1}, {9, 11}}));
  EXPECT_EQ(Merged({{3, 1}, {5, 10}, {4, 1}, {5, 1}}),
            (Addresses{{3, 1}, {5, 10}, {4, 1}, {5, 1}}));
  // One after the other comes to the front, each to where the next one was.
  EXPECT_EQ(Merged({{7, 1}, {4, 1}, {2, 1}, {7, 10}}),
            (Addresses{{2, 1}, {7, 1}, {4, 1}, {7, 10}}));
  EXPECT_EQ(Merged({{5, 100}, {5, 1}, {5, 1000000000}}), (Addresses{{5, 1000000101}}));
  EXPECT_EQ(Merged({}), Addresses());
  const Long ten = 1000000000;
  EXPECT_FAILURE(6, Merged({{5, ten}, {5, ten}, {5, ten}}));
}

TEST(Merge, Whatever_is_selected_the_masks_of_a_group_add_up_and_neighbours_differ) {
  std::mt19937 random(7);
  for (int round = 0; round < 500; ++round) {
    Addresses selected(1 + random() % 100);
    std::map<Long, Long> sums;
    for (auto& [group, mask] : selected) {
      group = static_cast<Long>(random() % 12);
      mask = Subgroup_Mask(static_cast<Long>(1 + random() % 6));
      sums[group] += mask;
    }
    const Addresses merged = Merged(selected);
    EXPECT_EQ(merged.front().first, sums.begin()->first) << round;
    EXPECT_EQ(std::adjacent_find(
                  merged.begin(), merged.end(),
                  [](const auto& one, const auto& next) { return one.first == next.first; }),
              merged.end());
    std::map<Long, Long> merged_sums;
    for (const auto& [group, mask] : merged) merged_sums[group] += mask;
    EXPECT_EQ(merged_sums, sums) << round;
  }
}

class Varieties_of_Region : public Program_Folder {
 protected:
  static int Decode(Long region) {
    Regions.Region_ID = region;
    Load_Varieties_of_Region();
    return Decoded_Count;
  }
  // A row that links the region with all ten subgroups of a group.
  static void Link(Record_Store::Database& file, Long region, Long group) {
    Record_Store::Recordset links = file.OpenRecordset("Varieties_Per_Region");
    links.AddNew();
    links.Fields("Region_ID") = region;
    links.Fields("GROUP") = group * 10;
    links.Fields("SUBCATEGO") = 1111111111;
    links.Fields("SERIAL_NUMBER") = "CUS";
    links.Update();
  }
};

TEST_F(Varieties_of_Region, A_subgroup_that_no_row_holds_is_left_out_and_the_101st_is_a_failure) {
  const auto groups = Stored(
      "SELECT Variety_Group FROM Varieties GROUP BY Variety_Group "
      "HAVING count(*) = 10 ORDER BY 1");
  const auto last = Stored("SELECT max(Variety_Group) FROM Varieties");
  const auto in_last = Stored("SELECT Variety_ID FROM Varieties WHERE Variety_Group = " + last[0]);
  ASSERT_GT(groups.size(), 11U);
  Change([&](Record_Store::Database& file) {
    Record_Store::Recordset varieties = file.OpenRecordset("Varieties");
    varieties.Index("Variety_GROUP");
    varieties.Seek("=", groups[0]);
    while (varieties.Fields("Variety_SubGr").As_Long() != 4) varieties.MoveNext();
    varieties.Delete();
    Link(file, 20001, To_Long(groups[0]));
    Link(file, 20001, To_Long(last[0]));  // its search ends with the table
    for (std::size_t group = 1; group <= 11; ++group) {
      if (group <= 10) Link(file, 20002, To_Long(groups[group]));
      Link(file, 20003, To_Long(groups[group]));
    }
  });
  Start();
  EXPECT_EQ(Decode(20001), 9 + static_cast<int>(in_last.size()));
  EXPECT_EQ(To_Text(Varieties.Variety_ID), in_last[0]);  // the group's first one is read last
  EXPECT_EQ(Decode(20002), 100);
  EXPECT_FAILURE(9, Decode(20003));
}

}  // namespace
