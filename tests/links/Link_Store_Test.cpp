// A selection becomes rows: the six stores, what each build writes beside them, what fails and what
// stands then.
#include "links/Link_Store.h"

#include "links/Link_Builds.h"
#include "links/Used_Counters.h"
#include "tests/links/Linked_Rows.h"
#include "tests/support/Faults_Mended.h"

namespace {

const Date fifth_of_march = Date::Of(2024, 3, 5);

/// The group link rows of one kind of owner.
struct Stored_Links {
  const char* table;
  const char* owner;
  void (*set_owner)(Long);
  void (*store)();
  const char* items;   ///< the table that is selected from
  const char* serial;  ///< of owner 30001; "" where the table has none
  const char* pairs;   ///< what the build writes beside for owner 30001; "" for nothing
  const char* pair;    ///< such a row, up to the item's key
};
void Set_Wine(Long key) { Wines.Wine_ID = key; }
void Set_Mobile_Wine(Long key) { Mobile_Wines.Mobile_Wine_ID = key; }
void Set_Variety(Long key) { Varieties.Variety_ID = key; }
void Set_Cheese(Long key) { Cheeses.Cheese_ID = key; }
void Set_Region(Long key) { Regions.Region_ID = key; }

const std::vector<Stored_Links> all_stores{
    {"Maridages_Per_Wines", "Wine_ID", Set_Wine, Store_Wine_Maridages, "Maridages", "", "", ""},
    {"Maridages_Per_Mobile_Wines", "Mobile_Wine_ID", Set_Mobile_Wine, Store_Mobile_Wine_Maridages,
     "Maridages", "", "", ""},
    {"Maridages_Per_Variety", "Variety_ID", Set_Variety, Store_Variety_Maridages, "Maridages",
     "CUS30001-03-05-2024",
     "SELECT \"GROUP\", SUBCATEGO, SERIAL_NUMBER, Maridage_ID FROM Varieties_Per_Maridage "
     "WHERE Variety_ID=30001",
     "-1|0|CUS30001-03-05-2024|"},
    {"Maridages_Per_Cheeses", "Cheese_ID", Set_Cheese, Store_Cheese_Maridages, "Maridages", "", "",
     ""},
    {"Varieties_Per_Region", "Region_ID", Set_Region, Store_Region_Varieties, "Varieties",
     "CUS30001",
     "SELECT \"GROUP\", SUBCATEGO, SERIAL_NUMBER, Variety_ID FROM Regions_Per_Variety "
     "WHERE Region_ID=30001",
     "0|0|CUS30001|"},
    {"Varieties_Per_Cheeses", "Cheese_ID", Set_Cheese, Store_Cheese_Varieties, "Varieties",
     "CUS30001",
     "SELECT \"GROUP\", SUBCATEGO, SERIAL_NUMBER = 'CUS' || Variety_ID, Variety_ID "
     "FROM Cheeses_Per_Variety WHERE Cheese_ID=30001",
     "0|0|1|"},
};

class Link_Store : public Linked_Rows {
 protected:
  Link_Store() { Set_Clock_For_Tests(&fifth_of_march); }
  ~Link_Store() override { Set_Clock_For_Tests(nullptr); }

  static void Link(const Stored_Links& links, Long owner, Long group, Long mask) {
    Add(links.table, {{links.owner, owner}, {"GROUP", group}, {"SUBCATEGO", mask}});
  }
  static Texts Links_Of(const Stored_Links& links, const Text& owners) {
    const Text serial = *links.serial == '\0' ? "" : ", SERIAL_NUMBER";
    return Rows("SELECT \"GROUP\", SUBCATEGO" + serial + " FROM " + links.table + " WHERE " +
                links.owner + " IN (" + owners + ") ORDER BY rowid");
  }
  static Texts Pairs(const Stored_Links& links) {
    return *links.pairs == '\0' ? Texts() : Rows(links.pairs + Text(" ORDER BY rowid"));
  }
  static Text Used_Of(const Stored_Links& links, Long key) {
    const bool pairings = Text(links.items) == "Maridages";
    return Used(links.items, pairings ? "Maridage_ID" : "Variety_ID", key);
  }
  static Long Add_Item(const Stored_Links& links, Long group, Long subgroup, Long used) {
    return Text(links.items) == "Maridages" ? Add_Pairing(group, subgroup, used)
                                            : Add_Variety(group, subgroup, used);
  }
  static Texts Cheese_Pairs(const char* table, const char* wine_field) {
    return Rows("SELECT Cheese_ID, " + Text(wine_field) + " FROM " + table +
                " ORDER BY Cheese_ID, 2");
  }
};

TEST_F(Link_Store, Every_store_replaces_the_rows_of_its_owner_and_counts_each_use) {
  Current_Command = "CheeseMod";
  for (const Stored_Links& links : all_stores) {
    SCOPED_TRACE(links.table + Text(links.owner));
    const Long first = Add_Item(links, 900002, 10, 0);
    const Long second = Add_Item(links, 900001, 3, 7);
    const Long third = Add_Item(links, 900002, 1, -1);
    Link(links, 30000, 10, 1);
    Link(links, 30001, 20, 11);
    Link(links, 30002, 30, 1);
    Link(links, 30001, 40, 1);
    const Texts others = Links_Of(links, "30000,30002");
    for (const Stored_Links& others_too : all_stores) others_too.set_owner(30000);
    links.set_owner(30001);
    Select({first, second, third});
    const Text serial = *links.serial == '\0' ? "" : Text("|") + links.serial;
    for (int time = 0; time < 2; ++time) {
      links.store();
      EXPECT_EQ(Links_Of(links, "30001"),
                (Texts{"9000010|100" + serial, "9000020|1000000001" + serial}));
    }
    EXPECT_EQ(Links_Of(links, "30000,30002"), others);
    EXPECT_EQ(Used_Of(links, first), "2");
    EXPECT_EQ(Used_Of(links, second), "9");
    EXPECT_EQ(Used_Of(links, third), "-1");
    Texts pairs;
    for (const Long key : {first, second, third, first, second, third}) {
      pairs.push_back(links.pair + To_Text(key));
    }
    EXPECT_EQ(Pairs(links), *links.pairs == '\0' ? Texts() : pairs);
    Select({second});
    links.store();
    EXPECT_EQ(Links_Of(links, "30001"), Texts{"9000010|100" + serial});
    Select({});
    links.store();
    EXPECT_THAT(Links_Of(links, "30001"), IsEmpty());
  }
  EXPECT_THAT(Cheese_Pairs("Cheeses_Per_Wines", "Wine_ID"), IsEmpty());
  EXPECT_THAT(Rows("SELECT 1 FROM Cheeses_Per_Maridage WHERE Cheese_ID=30001"), IsEmpty());
}

TEST_F(Link_Store, The_last_pairing_read_decides_about_the_cheese_of_a_cellar_wine) {
  Remove_All("Cheeses_Per_Wines");
  Remove_All("Wines_Per_Cheeses");
  const auto both = [] {
    Texts pairs = Cheese_Pairs("Cheeses_Per_Wines", "Wine_ID");
    EXPECT_EQ(pairs, Cheese_Pairs("Wines_Per_Cheeses", "Wine_ID"));
    return pairs;
  };
  Wines.Wine_ID = 30001;
  Select({Add_Pairing(900001, 1, 0, 5), Add_Pairing(900001, 2)});
  for (const auto& [command, cheese] :
       {std::pair{"WineAdd", -1}, {"WineSearch", 77}, {"WineOtherAdd", 77}, {"CheeseMod", 77}}) {
    Current_Command = command;
    Maridages.Cheese_ID = static_cast<Integer>(cheese);
    Store_Wine_Maridages();
    EXPECT_THAT(both(), IsEmpty()) << command;
  }
  Current_Command = "WineAdd";
  Store_Wine_Maridages();
  EXPECT_THAT(both(), ElementsAre("77|30001", "77|30001"));
  Current_Command = "WineMod";
  Store_Wine_Maridages();
  EXPECT_EQ(both(), Texts(4, "77|30001"));
}

TEST_F(Link_Store, A_general_wine_has_its_pairings_once_under_one_key_and_each_cheese_once) {
  for (const char* table : {"Cheeses_Per_Mobile_Wines", "Mobile_Wines_Per_Cheeses"}) {
    Remove_All(table);
  }
  const auto pairs = [] {
    return Rows(
        "SELECT Mobile_Wines_per_Maridage_ID, Maridage_ID, Mobile_Wine_ID, SERIAL_NUMBER "
        "FROM Mobile_Wines_per_Maridage ORDER BY rowid");
  };
  const auto cheeses_of = [](const char* table) { return Cheese_Pairs(table, "Mobile_Wines_ID"); };
  const Long food = Add_Pairing(900001, 1, 0);
  const Long one_cheese = Add_Pairing(900002, 2, 0, 5);
  const Long other_cheese = Add_Pairing(900002, 3, 0, 6);
  Add("Mobile_Wines_Per_Cheeses", {{"Cheese_ID", 5}, {"Mobile_Wines_ID", 30001}});
  Add("Mobile_Wines_Per_Cheeses", {{"Cheese_ID", 6}, {"Mobile_Wines_ID", 30002}});
  Add("Cheeses_Per_Mobile_Wines", {{"Cheese_ID", 5}, {"Mobile_Wines_ID", 30000}});
  Mobile_Wines.Mobile_Wine_ID = 30001;
  Select({food, 32000, one_cheese, other_cheese});  // the second has no row

  Texts expected = pairs();
  const Text next = To_Text(To_Long(expected.back().substr(0, expected.back().find('|'))) + 1);
  for (const Long key : {food, one_cheese, other_cheese}) {
    expected.push_back(next + "|" + To_Text(key) + "|30001|CUS30001");
  }
  Current_Command = "WineMod";
  Store_Mobile_Wine_Maridages();
  EXPECT_EQ(pairs(), expected);
  EXPECT_THAT(cheeses_of("Cheeses_Per_Mobile_Wines"), ElementsAre("5|30000"));
  EXPECT_EQ(Rows("SELECT \"GROUP\", SUBCATEGO FROM Maridages_Per_Mobile_Wines "
                 "WHERE Mobile_Wine_ID=30001"),
            (Texts{"9000010|1", "9000020|110"}));
  EXPECT_EQ(Maridages.Maridage_ID, other_cheese);

  for (const char* command : {"WineOtherAdd", "WineOtherMod"}) {
    Current_Command = command;
    Store_Mobile_Wine_Maridages();
    EXPECT_EQ(pairs(), expected);
    EXPECT_THAT(cheeses_of("Cheeses_Per_Mobile_Wines"),
                ElementsAre("5|30000", "5|30001", "6|30001"));
    EXPECT_THAT(cheeses_of("Mobile_Wines_Per_Cheeses"),
                ElementsAre("5|30001", "6|30001", "6|30002"));
  }
  EXPECT_EQ(Used("Maridages", "Maridage_ID", one_cheese), "3");
  Remove_All("Mobile_Wines_per_Maridage");
  Store_Mobile_Wine_Maridages();
  EXPECT_EQ(pairs().at(2), "1|" + To_Text(other_cheese) + "|30001|CUS30001");

  const Texts before = pairs();
  Select({32000, other_cheese, food});
  Build_Mobile_Search_Groups();
  EXPECT_EQ(Group_Count, 2);
  EXPECT_EQ(Group_Keys[2], 900002);
  EXPECT_EQ(pairs(), before);
  EXPECT_EQ(Used("Maridages", "Maridage_ID", food), "4");
}

TEST_F(Link_Store, A_key_without_a_row_is_a_failure_and_what_was_written_stays) {
  for (const Stored_Links& links : all_stores) {
    if (links.store == Store_Mobile_Wine_Maridages) continue;
    SCOPED_TRACE(links.table);
    const Long first = Add_Item(links, 900001, 1, 0);
    const Long second = Add_Item(links, 900001, 2, 0);
    Link(links, 30001, 20, 1);
    const Texts old = Links_Of(links, "30001");
    links.set_owner(30001);
    Select({first, 32000, second});
    EXPECT_FAILURE(3021, links.store());
    EXPECT_EQ(Used_Of(links, first), "1");
    EXPECT_EQ(Used_Of(links, second), "0");
    EXPECT_EQ(Links_Of(links, "30001"), old);
    EXPECT_EQ(Pairs(links).size(), *links.pairs == '\0' ? 0U : 1U);
    const Faults_Mended faults;
    links.store();
    EXPECT_THAT(Links_Of(links, "30001"), ElementsAre(StartsWith("9000010|11")));
  }
}

TEST_F(Link_Store, Bounds_of_arrays_and_numbers) {
  for (const Stored_Links& links : all_stores) {
    SCOPED_TRACE(links.table);
    links.set_owner(30001);
    const Long key = Add_Item(links, 900001, 1, 0);
    for (int item = 1; item <= 100; ++item) Selected_IDs[item] = To_Text(key);
    Selected_Count = 100;
    links.store();
    EXPECT_EQ(Links_Of(links, "30001").size(), 1U);
    EXPECT_EQ(Used_Of(links, key), "100");
    Selected_Count = 101;
    EXPECT_FAILURE(9, links.store());
    EXPECT_EQ(Used_Of(links, key), "200");

    const Long tenth = Add_Item(links, 900001, 10, 0);
    Select({tenth, tenth, tenth});
    EXPECT_FAILURE(6, links.store());
    Select({Add_Item(links, 214748365, 1, 0)});  // times ten is more than a Long
    EXPECT_FAILURE(6, links.store());
    const Long full = Add_Item(links, 900001, 1, 32767);
    Select({full});
    EXPECT_FAILURE(6, links.store());
    {
      const Faults_Mended faults;
      links.store();
      EXPECT_EQ(Used_Of(links, full), "32767");
    }
    if (Text(links.items) == "Varieties") {
      links.set_owner(32768);
      Select({key});
      EXPECT_FAILURE(6, links.store());
    }
  }
}

// Twice what is there already, as a killed run or the other program leaves it, goes too.
TEST_F(Link_Store,
       Grapes_of_a_region_are_counted_once_and_stand_alike_in_both_tables_where_mended) {
  Keys grapes;
  for (const Long subgroup : {1, 2, 3, 4}) grapes.push_back(Add_Variety(900001, subgroup));
  const auto links = [] { return Links_Of(all_stores[4], "30001"); };
  const auto pairs = [] {
    return Rows(
        "SELECT Regions_Per_Variety_ID, Variety_ID FROM Regions_Per_Variety WHERE "
        "Region_ID=30001 AND SERIAL_NUMBER='CUS30001' ORDER BY Variety_ID");
  };
  const auto used = [&] {
    Text all;
    for (const Long grape : grapes) all += Used("Varieties", "Variety_ID", grape);
    return all;
  };
  Set_Region(30001);
  Select({grapes[0], grapes[1]});
  Store_Region_Varieties();
  Replace_Region_Varieties();
  EXPECT_EQ(used(), "3300");
  EXPECT_EQ(pairs().size(), 2U);
  Select({grapes[1], grapes[2]});
  Store_Region_Varieties();
  EXPECT_EQ(pairs().size(), 4U);

  const Faults_Mended faults;
  Select({grapes[1], grapes[2], 32000, grapes[2], grapes[3]});
  Store_Region_Varieties();
  EXPECT_EQ(links(), Texts{"9000010|1110|CUS30001"});
  EXPECT_EQ(used(), "3411");
  const Texts stood = pairs();
  EXPECT_EQ(stood.size(), 3U);
  Replace_Region_Varieties();
  EXPECT_EQ(pairs(), stood) << "rows that stand keep their numbers";
  EXPECT_EQ(used(), "3411");
  Remove_Region_Varieties();
  EXPECT_THAT(links(), IsEmpty());
  EXPECT_THAT(pairs(), IsEmpty());
  EXPECT_EQ(used(), "3300");
}

TEST_F(Link_Store, Without_numbers_for_new_rows_a_region_keeps_its_grapes) {
  const auto leave_numbers = [](const char* table, Long left) {
    Record_Store::Recordset rows = Wine_Cellar_DB->OpenRecordset(table);
    while (rows.Numbers_Left() > left + 1) rows.AddNew();
    Add(table, {});
  };
  Keys grapes;
  for (const Long subgroup : {1, 2, 3}) grapes.push_back(Add_Variety(900001, subgroup));
  Set_Region(30001);
  Select({grapes[0]});
  Replace_Region_Varieties();
  leave_numbers("Regions_Per_Variety", 5);
  Select(grapes);
  EXPECT_FAILURE(6, Replace_Region_Varieties());
  EXPECT_EQ(Links_Of(all_stores[4], "30001"), Texts{"9000010|1|CUS30001"});
  Store_Region_Varieties();
  EXPECT_EQ(Links_Of(all_stores[4], "30001"), Texts{"9000010|111|CUS30001"});
  leave_numbers("Varieties_Per_Region", 0);
  Select({grapes[1]});
  EXPECT_FAILURE(6, Store_Region_Varieties());
  EXPECT_EQ(Links_Of(all_stores[4], "30001"), Texts{"9000010|111|CUS30001"});
  Wine_Cellar_DB->Commit();

  const Faults_Mended faults;
  Start();
  Set_Region(30001);
  Store_Region_Varieties();
  EXPECT_EQ(Links_Of(all_stores[4], "30001"), Texts{"9000010|10|CUS30001"});
  EXPECT_THAT(Rows("SELECT Variety_ID FROM Regions_Per_Variety WHERE Region_ID=30001"),
              ElementsAre(To_Text(grapes[1])));
}

TEST_F(Link_Store, A_grape_with_a_negative_counter_is_not_counted_and_none_falls_below_0) {
  for (const auto& [used, step, after] : std::vector<std::tuple<Long, int, const char*>>{
           {-1, 1, "-1"}, {-1, -1, "-1"}, {0, -1, "0"}, {0, 1, "1"}, {7, -1, "6"}}) {
    const Long grape = Add_Variety(7, 1, used);
    Count_Variety(grape, step);
    EXPECT_EQ(Used("Varieties", "Variety_ID", grape), after) << used << " " << step;
  }
}

}  // namespace
