// The wines that a search found: their list, the wine that was clicked, and the bottle uncorked.

#include <QAbstractItemView>
#include <QFont>

#include "tests/search/Search_Program.h"

namespace {

class Search_Results : public Search_Program {
 protected:
  void Start_With_Found(const std::vector<Sample_Pairing>& pairings) {
    Start();
    Search_for(pairings);
  }
  static Long Selected_Wine() {
    auto& view = Forms::Screen(results).Get<Forms::List_View>(list);
    return view.Has_Selection() ? To_Long(view.SelectedItem().SubItems(view.Column_Count() - 1))
                                : -1;
  }
  static void Uncork() {
    EXPECT_THAT(Told_By([] { Click(button); }),
                ElementsAre("WINE UNCORKED: Your Wine Cellar was updated. This bottle of Wine was "
                            "marked as Uncorked"));
  }
};

// ---- the list ----

TEST_F(Search_Results, Headers_sort_as_text_and_two_of_them_only_turn_the_order) {
  struct Row {
    int winery;
    const char *label, *color;
    Integer vintage, ranking, peak, bottles;
  };
  for (const Row& row : {Row{0, "Bravo", "Red", 2001, 90, 2009, 3},
                         {1, "Alpha", "White", 1999, 9, 2010, 20},
                         {0, "Charlie", "Pink", 2003, 100, 2005, 1}}) {
    Wines_Record wine = Sample_Wine(row.winery);
    std::tie(wine.Label, wine.Color, wine.Vintage) = std::tie(row.label, row.color, row.vintage);
    wine.Variety = row.color;
    std::tie(wine.Ranking, wine.Peak, wine.Total_Bottles) =
        std::tie(row.ranking, row.peak, row.bottles);
    Put_Wine_with({Food(0)}, wine);
  }
  Start_With_Found({Food(0)});
  const auto click = [](int column) {
    Click_Header(list, column);
    return Wines_Listed();
  };
  EXPECT_THAT(Wines_Listed(), ElementsAre(1, 2, 3));
  EXPECT_THAT(click(0), ElementsAre(3, 1, 2));
  EXPECT_THAT(click(3), ElementsAre(2, 1, 3));
  EXPECT_THAT(click(4), ElementsAre(3, 1, 2));
  EXPECT_THAT(click(0), ElementsAre(2, 1, 3));
  EXPECT_THAT(click(2), ElementsAre(3, 1, 2));
  EXPECT_THAT(click(5), ElementsAre(3, 1, 2));
  EXPECT_THAT(click(6), ElementsAre(1, 2, 3));
  EXPECT_THAT(click(7), ElementsAre(3, 1, 2));
  EXPECT_THAT(click(8), ElementsAre(1, 2, 3));
  const bool first_is_second = Sample().name < Sample(1).name;
  EXPECT_EQ(click(1).front(), first_is_second ? 1 : 2);
  Pick_Wine(1);
  Uncork();
  EXPECT_THAT(Wines_Listed(), ElementsAre(1, 2, 3));  // filled anew, in the order found
  const Faults_Mended faults;
  Start_With_Found({Food(0)});
  EXPECT_THAT(click(4), ElementsAre(2, 1, 3));
  EXPECT_EQ(click(3).front(), Sample().region < Sample(1).region ? 1 : 2);
  EXPECT_THAT(click(10), ElementsAre(3, 2, 1));
  Pick_Wine(2);
  Uncork();
  EXPECT_THAT(Wines_Listed(), ElementsAre(3, 2, 1));
}

// ---- the wine that was clicked ----

TEST_F(Search_Results, A_click_shows_the_whole_wine_and_nothing_of_it_can_be_changed) {
  const Sample_Winery& winery = Sample();
  Wines_Record wine = Sample_Wine();
  wine.Description = Put_Text("Dry", "Seco");
  wine.Comments = Put_Text("Fine", "Fino");
  wine.Last_Date_Uncorked = Date::Of(2021, 2, 28);
  const Long key = Put_Wine(wine, {winery.variety_ids[0], winery.variety_ids[2]});
  for (const Sample_Pairing& pairing : {Food(0), Food(1)}) Put_Pairing(key, pairing);
  Put_Mark(key, "Taste", 2);
  Put_Mark(key, "Aroma", 7);
  const Long bare = Put_Wine_with({Food(0)}, Sample_Wine(1));
  Set_Language(4);
  Start_With("Pairing_Search_Cellar");
  const Text in_spanish = One("SELECT Spanish FROM Maridages WHERE Maridage_ID = " + Food(0).id);
  const Text other = One("SELECT Spanish FROM Maridages WHERE Maridage_ID = " + Food(1).id);
  const Text country = Stored("SELECT Spanish_Name FROM World_Contries WHERE Short_Name = '" +
                              winery.country + "'")[0];
  Add(in_spanish);
  Click("MultSelect");
  EXPECT_THAT(Lines("Requested_Pairings_List"), ElementsAre(in_spanish));
  const std::vector<std::pair<const char*, Text>> fields{
      {"Winery_Combo", winery.name}, {"Country_Combo", country},   {"Vintage_Combo", "2016"},
      {"Total_Bottles_Text", "3"},   {"Description_Text", "Seco"}, {"Comments_Text", "Fino"}};
  const auto expect_shown = [&](const char* when) {
    for (const auto& [field, text] : fields) EXPECT_EQ(Shown_Text(field), text) << field << when;
    EXPECT_THAT(Ticked_Rows("Variety_Combo"), ElementsAre(winery.varieties[0], winery.varieties[2]))
        << when;
    EXPECT_THAT(Ticked_Boxes(), ElementsAre("Taste_Check_2", "Aroma_Check_7")) << when;
    EXPECT_THAT(Lines("Pairing_List"), ElementsAre(in_spanish, other)) << when;
    const auto& pairings = *static_cast<const QAbstractItemView&>(Find("Pairing_List")).model();
    for (const int row : {0, 1}) {
      const bool asked_for = row == 0;
      EXPECT_EQ(pairings.index(row, 0).data(Qt::FontRole).value<QFont>().bold(), asked_for) << when;
    }
  };
  Pick_Wine(key);
  expect_shown(" after the click");
  EXPECT_EQ(Selected_Wine(), key);
  EXPECT_EQ(Focused(), list);
  EXPECT_EQ(Shown_Text(button), "UNCORK");
  EXPECT_TRUE(Is_Usable(button));
  for (const auto& [field, text] : fields) {
    EXPECT_EQ(Color_of(field), "locked") << field;
    Click(field);
    for (const char* keys : {"Down", "Ctrl+A", "Delete"}) Press(keys);
    Type("7");
  }
  for (const char* box : {"Taste_Check_2", "Taste_Check_0", "Aroma_Check_7"}) Click(box);
  for (const int row : {0, 1}) Click_Tick("Variety_Combo", row);
  expect_shown(" after the attempts");
  Pick_Wine(bare);
  EXPECT_EQ(Shown_Text("Winery_Combo"), Sample(1).name);
  EXPECT_EQ(Shown_Text("Description_Text"), " ");
  EXPECT_EQ(Shown_Text("Last_Date_Uncorked_Text"), " ");
  EXPECT_THAT(Ticked_Boxes(), IsEmpty());
  EXPECT_THAT(Lines("Pairing_List"), ElementsAre(in_spanish));
  Pick_Wine(key);
  expect_shown(" after another wine");
}

// ---- uncorking ----

TEST_F(Search_Results, A_bottle_uncorked_is_stored_and_the_list_goes_by_the_pairings_of_its_wine) {
  Wines_Record two_bottles = Sample_Wine();
  two_bottles.Total_Bottles = 2;
  const Long asked = Put_Wine_with({Food(0)});
  const Long wine = Put_Wine_with({Food(0), Food(2)}, two_bottles);
  const Long not_asked = Put_Wine_with({Food(2)});
  const int used = Used(Food(0));
  const int used_own = Used(Food(2));
  Start_With_Found({Food(0), Food(1)});
  EXPECT_THAT(Wines_Listed(), ElementsAre(asked, wine));
  Pick_Wine(wine);
  EXPECT_EQ(Selection(), Selection_of({Food(0), Food(2)}));
  EXPECT_THAT(Lines("Requested_Pairings_List"), ElementsAre(Food(0).name, Food(1).name));
  now_ = Date::Of(2026, 7, 1, 20, 15);
  Uncork();
  EXPECT_EQ(Bottles_of(wine), "1");
  EXPECT_EQ(Stored("SELECT Last_Date_Uncorked FROM Wines ORDER BY Wine_ID"),
            Texts({To_Text(No_Date), To_Text(now_), To_Text(No_Date)}));
  EXPECT_EQ(Shown_Text("Total_Bottles_Text"), "1");
  EXPECT_EQ(Shown_Text("Last_Date_Uncorked_Text"), To_Text(now_));
  EXPECT_EQ(Color_of("Total_Bottles_Text"), "locked");
  EXPECT_THAT(Wines_Listed(), ElementsAre(asked, wine, not_asked));
  EXPECT_EQ(Shown_Text("Wines_Number"), "3");
  EXPECT_THAT(Lines("Requested_Pairings_List"), ElementsAre(Food(0).name, Food(1).name));
  EXPECT_EQ(Used(Food(0)), used + 3);
  EXPECT_EQ(Used(Food(2)), used_own + 1);
  EXPECT_EQ(Selected_Wine(), wine);
  Uncork();
  EXPECT_EQ(Bottles_of(wine), "0");
  EXPECT_EQ(Shown_Text("Total_Bottles_Text"), "0");
  EXPECT_EQ(Color_of("Total_Bottles_Text"), "required");
  EXPECT_FALSE(Is_Usable(button));
  EXPECT_EQ(Focused(), list);
  EXPECT_THAT(Shown_Rows(list).at(1), testing::EndsWith(" | 0 | " + To_Text(wine)));
  Pick_Wine(not_asked);
  EXPECT_EQ(Color_of("Total_Bottles_Text"), "locked");
  EXPECT_TRUE(Is_Usable(button));
  Pick_Wine(wine);
  EXPECT_EQ(Shown_Text("Total_Bottles_Text"), "0");
  EXPECT_FALSE(Is_Usable(button));
  EXPECT_EQ(Bottles_of(not_asked), "3");
  const Faults_Mended faults;  // the results stay, with what has changed
  Start_With_Found({Food(0), Food(2)});
  Pick_Wine(not_asked);
  Uncork();
  EXPECT_THAT(Wines_Listed(), ElementsAre(asked, wine, not_asked));
  EXPECT_THAT(Shown_Column(list, 8), ElementsAre("3", "0", "2"));
  EXPECT_EQ(Bottles_of(not_asked), "2");
  EXPECT_EQ(Selected_Wine(), not_asked);
  EXPECT_EQ(Shown_Text("Total_Bottles_Text"), "2");
}

TEST_F(Search_Results, A_line_above_the_list_says_what_it_lacks) {
  Put_Wines_with(Food(0), 105);
  const Long both = Put_Wine_with({Food(0), Food(1)});
  const Long gone = Put_Wine_with({Food(1)});
  Start_With_Found({Food(1)});
  const auto line = [] { return Is_Seen("Message_Label") ? Shown_Text("Message_Label") : ""; };
  const int list_top = Find(list).y();
  EXPECT_EQ(line(), "");
  EXPECT_EQ(Shown_Text("Wines_Number"), "2");
  Click("Exit_Command");
  const auto remove = [this](Long wine) {
    Remove_Rows("Wines", [=](const auto& row) { return row.Fields("Wine_ID").As_Long() == wine; });
  };
  remove(gone);
  Click("MultSelect");
  EXPECT_EQ(line(), "1 of the wines found was removed.");
  EXPECT_EQ(Shown_Text("Wines_Number"), "1");
  Pick_Wine(both);
  Uncork();
  EXPECT_EQ(line(), "The first 99 are shown.");
  EXPECT_EQ(Shown_Text("Wines_Number"), "99+");
  for (const Long wine : {1, 2}) remove(wine);
  Uncork();
  EXPECT_EQ(line(), "The first 97 are shown. 2 of the wines found were removed.");
  EXPECT_EQ(Shown_Text("Wines_Number"), "97+");
  EXPECT_EQ(Find(list).accessibleDescription().toStdString(), line());
  EXPECT_EQ(Find(list).y(), list_top);
}

// ---- what has gone ----

TEST_F(Search_Results, A_wine_whose_winery_has_gone_shows_the_one_before) {
  Wines_Record orphan = Sample_Wine();
  orphan.Winery_ID = 30000;
  const Long without = Put_Wine_with({Food(0)}, orphan);
  const Long with = Put_Wine_with({Food_at(0, 2)}, Sample_Wine(1));
  Start_With_Found({Food(0)});  // no winery was read in this run
  EXPECT_THAT(Shown_Rows(list), ElementsAre(StartsWith("2016 |  | " + Sample().label + " |  | ")));
  Pick_Wine(without);
  EXPECT_EQ(Shown_Text("Winery_Combo"), "");
  EXPECT_EQ(Shown_Text("Label_Combo"), Sample().label);
  Uncork();
  EXPECT_EQ(Bottles_of(without), "2");
  Click("Exit_Command");
  Add(Food_at(0, 2).name);
  Click("MultSelect");
  Pick_Wine(with);
  Pick_Wine(without);
  for (const auto& [field, text] : {std::pair<const char*, Text>{"Winery_Combo", Sample(1).name},
                                    {"Region_Combo", Sample(1).region},
                                    {"Country_Combo", Sample(1).country_name}}) {
    EXPECT_EQ(Shown_Text(field), text);
  }
  const Faults_Mended faults;
  Start_With_Found({Food_at(0, 2), Food(0)});
  Pick_Wine(with);
  Pick_Wine(without);
  EXPECT_THAT(Shown_Rows(list).front(), StartsWith("2016 |  | " + Sample().label + " |  | "));
  EXPECT_EQ(Shown_Text("Winery_Combo") + Shown_Text("Country_Combo"), "");
}

TEST_F(Search_Results, A_wine_that_has_gone_meanwhile_ends_the_run) {
  const auto remove_the_wine = [this] {
    Change([](Record_Store::Database& file) { file.OpenRecordset("Wines").Delete(); });
  };
  const Long first = Put_Wine_with({Food(0)});
  const Long second = Put_Wine_with({Food(0)});
  Start_With_Found({Food(0)});
  remove_the_wine();
  Expect_End(3021, [first] { Pick_Wine(first); });
  Start_With_Found({Food(0)});
  Pick_Wine(second);
  remove_the_wine();
  Expect_End(3021, [] { Click(button); });
  const Faults_Mended faults;
  for (const bool uncork : {false, true}) {
    const Long gone = Put_Wine_with({Food(0)});
    const Long stays = Put_Wine_with({Food(0)}, Sample_Wine(1));
    Start_With_Found({Food(0)});
    Pick_Wine(uncork ? gone : stays);
    remove_the_wine();
    if (uncork) {
      Click(button);
    } else {
      Pick_Wine(gone);
    }
    EXPECT_THAT(Wines_Listed(), ElementsAre(stays));
    EXPECT_THAT(Texts({Shown_Text("Winery_Combo"), Shown_Text("Total_Bottles_Text")}),
                ElementsAre("", ""));
    EXPECT_FALSE(Is_Usable(button));
    Pick_Wine(stays);
    EXPECT_EQ(Shown_Text("Winery_Combo"), Sample(1).name);
    Uncork();
    remove_the_wine();
  }
}

}  // namespace
