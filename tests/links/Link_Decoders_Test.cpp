// Link rows become lists again: every decoder, what it leaves out and where it fails, the lists of
// a screen, and the reverse tables made anew.
#include "links/Link_Decoders.h"

#include <bitset>
#include <random>

#include "core/tables/Mobile_Wines_DB.h"
#include "links/Link_Store.h"
#include "tests/links/Linked_Rows.h"
#include "tests/support/Faults_Mended.h"

namespace {

constexpr Long all_ten = 1111111111;

/// One of the four decoders of pairings.
struct Decoder {
  const char* table;
  const char* owner;
  void (*set_owner)(Long);
  void (*load)();
  Record_Store::Recordset& rows;
  const Bounded_Array<Decoded_Maridage, 100>& found = Decoded_Maridages;
};
const Decoder of_wines{"Maridages_Per_Wines", "Wine_ID", [](Long key) { Wines.Wine_ID = key; },
                       Load_Maridages_of_Wine, Maridages_Per_Wines_Recordset};
const Decoder of_varieties{"Maridages_Per_Variety", "Variety_ID",
                           [](Long key) { Varieties.Variety_ID = key; }, Load_Maridages_of_Variety,
                           Maridages_Per_Variety_Recordset};
const Decoder of_cheeses{"Maridages_Per_Cheeses",
                         "Cheese_ID",
                         [](Long key) { Cheeses.Cheese_ID = key; },
                         Load_Maridages_of_Cheese,
                         Maridages_Per_Cheeses_Recordset,
                         Decoded_Cheese_Maridages};
const Decoder of_mobile_wines{"Maridages_Per_Mobile_Wines", "Mobile_Wine_ID",
                              [](Long key) { Mobile_Wines.Mobile_Wine_ID = key; },
                              Load_Maridages_of_Mobile_Wine, Maridages_Per_Mobile_Wines_Recordset};

class Link_Decoders : public Linked_Rows {
 protected:
  static void Link(const Decoder& decoder, Long owner, Long group, Long mask) {
    Add(decoder.table, {{decoder.owner, owner}, {"GROUP", group * 10}, {"SUBCATEGO", mask}});
  }
  static Texts Decode(const Decoder& decoder, Long owner) {
    decoder.set_owner(owner);
    Open_Table(decoder.rows, decoder.table);
    Open_Table(Maridages_Recordset, "Maridages");
    decoder.load();
    Texts names;
    for (int item = 1; item <= Decoded_Count; ++item) {
      names.push_back(decoder.found[item].Maridage_Name);
    }
    return names;
  }
  static Texts Decode_IDs_of_Variety(Long variety) {
    Varieties.Variety_ID = variety;
    Load_Maridage_IDs_of_Variety();
    Texts names;
    for (int item = 1; item <= Decoded_Count; ++item) names.push_back(Decoded_Items[item].Name);
    return names;
  }
};

TEST_F(Link_Decoders, What_was_stored_comes_back_for_every_set_of_subgroups) {
  std::mt19937 random(1);
  const Keys keys = Add_Full_Group(900001);
  for (unsigned set = 1; set < 1024; ++set) {
    const std::bitset<10> bits(set);
    Wines.Wine_ID = static_cast<Long>(40000 + set);
    Texts names;
    Keys chosen;
    for (std::size_t subgroup = 10; subgroup >= 1; --subgroup) {
      if (!bits.test(subgroup - 1)) continue;
      names.push_back("Food 900001." + std::to_string(subgroup));
      chosen.push_back(keys[subgroup - 1]);
    }
    std::shuffle(chosen.begin(), chosen.end(), random);
    Select(chosen);
    Store_Wine_Maridages();
    ASSERT_EQ(Rows("SELECT \"GROUP\", SUBCATEGO FROM Maridages_Per_Wines WHERE Wine_ID=" +
                   To_Text(Wines.Wine_ID)),
              Texts{"9000010|" + To_Text(To_Long(bits.to_string()))});
    ASSERT_EQ(Decode(of_wines, Wines.Wine_ID), names) << bits;
  }
}

TEST_F(Link_Decoders, Rows_in_their_order_groups_from_the_highest_subgroup_down) {
  Add_Full_Group(900001);
  Add_Full_Group(900005);
  Decoded_Maridages[1].Maridage_Name = "of another list";
  for (const Decoder* decoder : {&of_cheeses, &of_wines, &of_varieties, &of_mobile_wines}) {
    SCOPED_TRACE(decoder->table);
    Link(*decoder, 30001, 900001, 1);
    Link(*decoder, 30002, 900005, 101);
    Link(*decoder, 30003, 900001, 10);
    Link(*decoder, 30002, 900003, 11);  // a group without rows
    Link(*decoder, 30002, 900001, 1000000001);
    Link(*decoder, 30002, 900005, 10);
    EXPECT_THAT(Decode(*decoder, 30002),
                ElementsAre("Food 900005.3", "Food 900005.1", "Food 900001.10", "Food 900001.1",
                            "Food 900005.2"));
    EXPECT_THAT(Decode(*decoder, 30003), ElementsAre("Food 900001.2"));
    EXPECT_TRUE(Decode(*decoder, 30004).empty());
    if (decoder != &of_cheeses) continue;
    EXPECT_EQ(Decoded_Maridages[1].Maridage_Name, "of another list");
  }
}

TEST_F(Link_Decoders, A_subgroup_is_looked_for_among_ten_rows_whatever_their_group) {
  Add_Pairing(900001, 1);
  Add_Pairing(900001, 3);
  Add_Full_Group(900002);
  for (int row = 0; row < 9; ++row) Add_Pairing(900003, 1);
  Add_Pairing(900003, 2);  // the tenth
  Add_Pairing(900003, 3);
  Add_Pairing(900009, 4);
  Link(of_wines, 30001, 900001, 10000100);  // 8 is the tenth row from here on
  Link(of_wines, 30002, 900001, 100000010);
  Link(of_wines, 30003, 900003, 111);
  EXPECT_THAT(Decode(of_wines, 30001), ElementsAre("Food 900002.8", "Food 900001.3"));
  EXPECT_THAT(Decode(of_wines, 30002), ElementsAre("Food 900002.2"));
  EXPECT_THAT(Decode(of_wines, 30003), ElementsAre("Food 900003.2", "Food 900003.1"));
  Link(of_wines, 30004, 900009, 1000);
  EXPECT_THAT(Decode(of_wines, 30004), ElementsAre("Food 900009.4"));
  Link(of_wines, 30004, 900009, 1);  // nothing behind it
  EXPECT_FAILURE(3021, Decode(of_wines, 30004));
  const Faults_Mended faults;
  EXPECT_THAT(Decode(of_wines, 30001), ElementsAre("Food 900001.3"));
  EXPECT_THAT(Decode(of_wines, 30002), IsEmpty());
  EXPECT_THAT(Decode(of_wines, 30004), ElementsAre("Food 900009.4"));
}

TEST_F(Link_Decoders, A_hundred_are_decoded_and_one_more_is_a_failure) {
  for (Long group = 900001; group <= 900011; ++group) {
    Add_Full_Group(group);
    for (const Decoder* decoder : {&of_cheeses, &of_wines}) {
      if (group < 900011) Link(*decoder, 30001, group, all_ten);
      Link(*decoder, 30002, group, all_ten);
    }
  }
  for (const Decoder* decoder : {&of_cheeses, &of_wines}) {
    EXPECT_EQ(Decode(*decoder, 30001).size(), 100U);
    EXPECT_FAILURE(9, Decode(*decoder, 30002));
  }
  // Mended, the first hundred show, and the rest stays until they are changed.
  const Faults_Mended faults;
  EXPECT_EQ(Decode(of_cheeses, 30002).size(), 100U);
  EXPECT_EQ(Decode(of_wines, 30002).size(), 100U);
  Keys shown;
  for (int item = 1; item <= Decoded_Count; ++item) {
    shown.push_back(Decoded_Maridages[item].Maridage_ID);
  }
  std::reverse(shown.begin(), shown.end());
  for (const std::size_t rest : {1U, 0U}) {
    Select(shown);
    Store_Wine_Maridages();
    EXPECT_EQ(Rows("SELECT 1 FROM Maridages_Per_Wines WHERE Wine_ID = 30002 AND [GROUP] = 9000110")
                  .size(),
              rest);
    shown.pop_back();
  }
}

TEST_F(Link_Decoders, Pairing_keys_of_a_variety_pass_over_a_first_row_behind_the_first_found) {
  Add_Full_Group(900001);
  Add_Pairing(900003, 1);
  Add_Pairing(900003, 3);
  Add_Full_Group(900004);
  Add_Pairing(900009, 1);
  Add_Pairing(900009, 3);
  const auto link = [](Long owner, Long group, Long mask) {
    Link(of_varieties, owner, group, mask);
  };
  link(30001, 900001, 1);
  link(30001, 900001, 11);
  link(30001, 900001, 1000000101);
  EXPECT_THAT(Decode_IDs_of_Variety(30001),
              ElementsAre("Food 900001.1", "Food 900001.2", "Food 900001.10", "Food 900001.3"));
  link(30002, 900003, 1111);  // 4 and 2 stand in the next group
  link(30002, 900002, 1);     // no such group
  link(30002, 900009, 10100);
  link(30002, 900009, 1);
  EXPECT_THAT(Decode_IDs_of_Variety(30002),
              ElementsAre("Food 900003.3", "Food 900009.3", "Food 900009.1"));
  EXPECT_EQ(To_Text(Decoded_Items[1].ID), Rows("SELECT Maridage_ID FROM Maridages "
                                               "WHERE Maridage_Name='Food 900003.3'")[0]);
  EXPECT_FALSE(Maridages_Recordset.Is_Open());
  EXPECT_FALSE(Maridages_Per_Variety_Recordset.Is_Open());
}

// ---- the lists of a screen ----

TEST_F(Link_Decoders, The_lists_show_the_language_in_force_and_the_selection_holds_the_same) {
  Stand_In("Two_Lists_Form", {"Cat_List", "Cat_Index_List"});
  auto& list = Forms::Screen("Two_Lists_Form").Get<Forms::List_Box>("Cat_List");
  auto& keys_beside = Forms::Screen("Two_Lists_Form").Get<Forms::List_Box>("Cat_Index_List");
  const auto shown = [&] {
    Texts rows;
    for (int row = 0; row < list.ListCount(); ++row) {
      rows.push_back(list.List(row) + "|" + keys_beside.List(row));
    }
    for (int item = 1; item <= Selected_Count; ++item) {
      const std::string row = Selected_Names[item] + "|" + Selected_IDs[item];
      EXPECT_EQ(row, rows.at(static_cast<std::size_t>(item) - 1));
    }
    EXPECT_EQ(Selected_Count, list.ListCount());
    return rows;
  };
  const Keys keys = Add_Full_Group(900001);
  Maridages.Cheese_ID = 77;
  using Filling = std::pair<const Decoder*, void (*)(Forms::Item_List&, Forms::Item_List&)>;
  for (const auto& [decoder, fill] : {Filling{&of_wines, Fill_Lists_with_Wine_Maridages},
                                      Filling{&of_varieties, Fill_Lists_with_Variety_Maridages},
                                      Filling{&of_cheeses, Fill_Lists_with_Cheese_Maridages}}) {
    SCOPED_TRACE(decoder->table);
    Link(*decoder, 30001, 900001, 100010);
    decoder->set_owner(30001);
    System_Language = 3;
    for (const char letter : std::string("ESFGIJP")) {
      fill(list, keys_beside);
      const std::string name = std::string(1, letter) + " 900001.";
      EXPECT_EQ(shown(), (Texts{name + "6|" + To_Text(keys[5]), name + "2|" + To_Text(keys[1])}));
      ++System_Language;
    }
    System_Language = 3;
    EXPECT_FALSE(decoder->rows.Is_Open());
    EXPECT_FALSE(Maridages_Recordset.Is_Open());
    EXPECT_TRUE(decoder != &of_wines || Wine_Has_Maridages());
    decoder->set_owner(30002);
    EXPECT_FALSE(decoder == &of_wines && Wine_Has_Maridages());
    fill(list, keys_beside);
    EXPECT_TRUE(shown().empty());
  }
  EXPECT_EQ(Maridages.Cheese_ID, 77) << "the memory record belongs to the builds";
}

// ---- the reverse tables ----

// The engine reads the digits of the masks of the delivered rows.
TEST_F(Link_Decoders, The_reverse_tables_are_made_anew_from_the_link_rows) {
  Add("Regions_Per_Variety", {{"Variety_ID", 1}, {"Region_ID", 30001}});
  Genera_Regions_Per_Variety();
  const Texts regions = Rows(
      "SELECT l.Region_ID, v.Variety_ID, 0, 0, 'CUS' FROM Varieties_Per_Region l JOIN Varieties v "
      "ON v.Variety_Group = l.\"GROUP\" / 10 AND substr(l.SUBCATEGO, -v.Variety_SubGr, 1) = '1' "
      "ORDER BY l.Region_ID, l.Varieties_Per_Region_ID, v.Variety_SubGr DESC");
  EXPECT_GT(regions.size(), 1000U);
  EXPECT_EQ(regions, Rows("SELECT Region_ID, Variety_ID, \"GROUP\", SUBCATEGO, SERIAL_NUMBER "
                          "FROM Regions_Per_Variety ORDER BY Regions_Per_Variety_ID"));

  // Subgroup 1, where it is not alone, is what the decoder passes over.
  Add("Varieties_Per_Maridage", {{"Maridage_ID", 1}, {"Variety_ID", 30001}});
  Genera_Varieties_Per_Maridage();
  const Texts varieties = Rows(
      "SELECT l.Variety_ID, m.Maridage_ID, -1, 0, 'CUS' "
      "FROM Maridages_Per_Variety l JOIN Maridages m "
      "ON m.Maridage_Group = l.\"GROUP\" / 10 AND substr(l.SUBCATEGO, -m.Maridage_SubGr, 1) = '1' "
      "WHERE m.Maridage_SubGr > 1 OR l.SUBCATEGO = 1 "
      "ORDER BY l.Variety_ID, l.Maridages_Per_Variety_ID, m.Maridage_SubGr DESC");
  EXPECT_GT(varieties.size(), 500U);
  EXPECT_EQ(varieties, Rows("SELECT Variety_ID, Maridage_ID, \"GROUP\", SUBCATEGO, SERIAL_NUMBER "
                            "FROM Varieties_Per_Maridage ORDER BY Varieties_Per_Maridages"));
}

}  // namespace
