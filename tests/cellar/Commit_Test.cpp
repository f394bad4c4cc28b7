// What the button of the cellar's screen writes in each mode, seen in the stored rows, and the
// failures that its writes are known to end with (docs/known-failures.md).

#include <QApplication>
#include <QWidget>

#include "tests/support/Cellar_Program.h"
#include "tests/support/Faults_Mended.h"

namespace {

using testing::_;
using Entries = std::vector<std::pair<const char*, Text>>;

constexpr const char* button = "Multi_Functional_Command";

class Cellar_Commit : public Cellar_Program {
 protected:
  void SetUp() override { counters_ = Counters(); }

  Texts Wine_Rows() const {
    return Stored(
        "SELECT Wine_ID, Winery_ID, Label, Variety, Variety_ID, Vintage, Peak, Value_Guide, "
        "Ranking, Total_Bottles, Bottle_Size, Color, Alcohol, Clasification, Last_Date_Uncorked, "
        "Date_Added, Cellar_ID FROM Wines ORDER BY Wine_ID");
  }
  /// The wines' texts in the seven languages; those without are left out.
  Texts Texts_of(const Text& field) const {
    return Stored(
        "SELECT t.English, t.Spanish, t.French, t.German, t.Italian, t.Japanes, "
        "t.Portuguese FROM Wines w JOIN Words_for_Data t ON t.Multi_Language_ID = w." +
        field + " ORDER BY w.Wine_ID");
  }
  std::size_t Count_of_Texts() const { return Stored("SELECT ID FROM Words_for_Data").size(); }
  Texts Marks_of(Long wine) const {
    return Stored(
        "SELECT Type_Taste, Description FROM Wine_Tasting WHERE Cellar_Wine <> 0 AND "
        "Wine_ID = " +
        To_Text(wine) + " ORDER BY rowid");
  }
  Texts Grapes_of(Long wine) const {
    return Stored("SELECT Variety_ID FROM Varieties_of_Wines WHERE Wine_ID = " + To_Text(wine));
  }
  /// The rows of the counters that have moved since the last call.
  Texts Moved_Counters() {
    const Texts before = std::exchange(counters_, Counters());
    Texts moved;
    for (std::size_t row = 0; row < before.size(); ++row) {
      if (before[row] != counters_[row]) moved.push_back(counters_[row]);
    }
    return moved;
  }

  static void Enter(const Entries& entries) {
    for (const auto& [field, entry] : entries) {
      Text(field).ends_with("_Combo") ? Choose(field, entry) : Type_Into(field, entry);
    }
  }
  static void Expect_Shown(const Entries& entries) {
    for (const auto& [field, entry] : entries) EXPECT_EQ(Shown_Text(field), entry) << field;
  }
  /// The button brings this message and no other.
  static void Commit(const Text& title, const Text& text) {
    EXPECT_THAT(Told_By([] { Click(button); }), ElementsAre(title + ": " + text));
  }
  static void Save() {
    Commit("WINE ADDITION SUCCESSFULLY", "This Wine was successfully ADDED to your Wine Cellar.");
  }
  static void Modify() { Commit("WINE INFORMATION UPDATED", "Wine information was Modified."); }

 private:
  Texts Counters() const {
    return Stored(
        "SELECT 'Winery', Winery_ID, Used FROM Wineries UNION ALL "
        "SELECT 'Region', Region_ID, Used FROM Regions UNION ALL "
        "SELECT 'Label', Label_ID, Used FROM Labels UNION ALL "
        "SELECT 'Class', Classification_ID, Used FROM Classification UNION ALL "
        "SELECT 'Grape', Variety_ID, Used FROM Varieties ORDER BY 1, 2");
  }
  Texts counters_;
};

// ---- add ----

TEST_F(Cellar_Commit, A_wine_added_with_everything_is_stored_counted_and_shown_after_a_restart) {
  const Sample_Winery& winery = Sample();
  const auto key = [this](const Text& field, const Text& rows) {
    return One("SELECT " + field + " FROM " + rows);
  };
  const auto counted = [&](const Text& kind, const Text& field, const Text& rows) {
    return kind + "|" + key(field, rows) + "|" + To_Text(1 + To_Long(key("Used", rows)));
  };
  const Text grapes = "Varieties WHERE Variety_Name = '";
  Start_With("Wine_Add");
  Fill_Add({winery.label, winery.classification, {1, 3}, "1.0 Lt", "40", "Red"});
  Enter({{"Vintage_Combo", "2019"}, {"Peak_Year_Combo", "2031"}, {"Merit_Combo", "93"}});
  Enter({{"Price_Text", "12.3456"}, {"Alcohol_Text", "13.5"}, {"Date_Added_Text", "1/31/2020"}});
  Enter({{"Last_Date_Uncorked_Text", "2/28/2021"}, {"Description_Text", "It's \"dry\""}});
  Enter({{"Comments_Text", "Ma foi; très bon -- 北"}});
  // A taste is stored once it was clicked and not cleared by another, an aroma while it is ticked.
  for (const char* box : {"Taste_Check_0", "Taste_Check_2", "Taste_Check_4", "Taste_Check_4",
                          "Aroma_Check_1", "Aroma_Check_3", "Aroma_Check_3", "Aroma_Check_7"}) {
    Click(box);
  }
  const Texts ticked = Ticked_Rows("Variety_Combo");
  const Text first_grape = key("Variety_ID", grapes + ticked.at(0) + "'");
  const Text second_grape = key("Variety_ID", grapes + ticked.at(1) + "'");
  // Of classes and grapes the one is counted that was read last: of the grapes, the first one of
  // the region's last group.
  const Texts to_count{
      counted("Winery", "Winery_ID", "Wineries WHERE Winery_ID = " + winery.id),
      counted("Region", "Region_ID", "Regions WHERE Region_ID = " + winery.region_id),
      counted(
          "Label", "Label_ID",
          "Labels WHERE Label_Name = '" + winery.label + "' AND Region_ID = " + winery.region_id),
      counted("Class", "Classification_ID",
              "Classification ORDER BY Country DESC, Classification_ID DESC"),
      counted("Grape", "Variety_ID",
              "Varieties WHERE Variety_GROUP = (SELECT [GROUP] / 10 FROM Varieties_Per_Region "
              "WHERE Region_ID = " +
                  winery.region_id + " ORDER BY rowid DESC LIMIT 1) ORDER BY Variety_ID")};
  now_ = Date::Of(2026, 6, 15, 23, 59, 58);
  Save();
  EXPECT_THAT(
      Wine_Rows(),
      ElementsAre("1|" + winery.id + "|" + winery.label + "|" + ticked[0] + ", " + ticked[1] + "|" +
                  second_grape + "|2019|2031|12.3456|93|40|1.0 Lt|Red|13.5|" +
                  winery.classification + "|" + To_Text(No_Date) + "|" + To_Text(now_) + "|1"));
  EXPECT_THAT(Texts_of("Description"), ElementsAre("It's \"dry\"|x|x|x|x|x|x"));
  EXPECT_THAT(Texts_of("Comments"), ElementsAre("Ma foi; très bon -- 北|x|x|x|x|x|x"));
  EXPECT_THAT(Marks_of(1), ElementsAre("Taste|2", "Taste|4", "Aroma|1", "Aroma|7"));
  EXPECT_THAT(Grapes_of(1), ElementsAre(first_grape, second_grape));
  EXPECT_THAT(Moved_Counters(), UnorderedElementsAreArray(to_count));
  Start_With("Cellar1_View");
  Pick_Wine(1);
  Expect_Shown({{"Winery_Combo", winery.name}, {"Label_Combo", winery.label}});
  Expect_Shown({{"Price_Text", "12.3456"}, {"Peak_Year_Combo", "2031"}, {"Merit_Combo", "93"}});
  Expect_Shown({{"Description_Text", "It's \"dry\""}, {"Last_Date_Uncorked_Text", " "}});
  EXPECT_EQ(Ticked_Rows("Variety_Combo"), ticked);
  EXPECT_THAT(Ticked_Boxes(), UnorderedElementsAre("Taste_Check_2", "Taste_Check_4",
                                                   "Aroma_Check_1", "Aroma_Check_7"));
}

// ---- modify ----

TEST_F(Cellar_Commit, A_modified_wine_keeps_its_old_marks_unless_it_has_the_lowest_number) {
  const Sample_Winery& winery = Sample();
  Wines_Record wine = Sample_Wine();
  wine.Label = One("SELECT Label_Name FROM Labels WHERE Region_ID = " + winery.region_id +
                   " ORDER BY Label_ID DESC");
  for (const Long key : {Put_Wine(wine), Put_Wine(wine)}) {
    Put_Mark(key, "Taste", 1);
    Put_Mark(key, "Aroma", 0);
  }
  Set_Language(6);  // what is stored as a text goes into the language in force alone
  Start_With("Wine_Mod");
  const Text first = Wine_Rows()[0];
  for (const Long key : {2, 1}) {
    EXPECT_EQ(Wine_Rows()[0], first);
    Pick_Wine(key);
    Enter({{"Label_Combo", winery.label}, {"Classification_Combo", "NO Classification"}});
    Enter({{"Vintage_Combo", "2010"}, {"Merit_Combo", " "}, {"Total_Bottles_Text", "12"}});
    Enter({{"Price_Text", " "}, {"Description_Text", "Süß"}});
    Click("Taste_Check_4");
    const Texts grapes = Shown_Rows("Variety_Combo");
    for (const Text& grape : {winery.varieties[0], winery.varieties[1]}) {
      const auto row = std::find(grapes.begin(), grapes.end(), grape) - grapes.begin();
      Click_Tick("Variety_Combo", static_cast<int>(row));
    }
    Modify();
    EXPECT_FALSE(Is_Seen(button));
    EXPECT_EQ(Shown_Text("Total_Bottles_Text"), "");
    EXPECT_EQ(Wine_Rows().at(static_cast<std::size_t>(key - 1)),
              To_Text(key) + "|" + winery.id + "|" + winery.label + "|" + winery.varieties[1] +
                  "|" + winery.variety_ids[1] +
                  "|2010|2018|-1|-1|12|1.5 Lt|Weiß|13.5|NO Classification|" + To_Text(No_Date) +
                  "|" + To_Text(wine.Date_Added) + "|1");
    EXPECT_THAT(Grapes_of(key), ElementsAre(winery.variety_ids[1]));
  }
  EXPECT_THAT(Marks_of(1), ElementsAre("Taste|4", "Aroma|0"));
  EXPECT_THAT(Marks_of(2), ElementsAre("Taste|1", "Aroma|0", "Taste|4", "Aroma|0"));
  EXPECT_THAT(Texts_of("Description"), testing::Each("x|x|x|Süß|x|x|x"));
  EXPECT_THAT(Texts_of("Comments"), ElementsAre("x|x|x|x|x|x|x", "x|x|x|x|x|x|x"));
  EXPECT_THAT(Moved_Counters(), IsEmpty());
  for (const auto& [language, shown] : {std::pair{6, "Süß"}, {3, " "}}) {
    Set_Language(static_cast<Integer>(language));
    Start_With("Cellar1_View");
    Pick_Wine(1);
    EXPECT_EQ(Shown_Text("Description_Text"), shown) << language;
  }
}

// ---- the failures that are kept ----

TEST_F(Cellar_Commit, Picking_to_modify_ends_for_a_label_or_a_class_that_its_list_does_not_hold) {
  for (const bool label : {true, false}) {
    Wines_Record wine = Sample_Wine();
    (label ? wine.Label : wine.Clasification) = label ? "x" : "No longer there";
    const Long key = Put_Wine(wine);
    const Texts before = Wine_Rows();
    Start_With("Wine_Mod");
    Expect_End(380, [key] { Pick_Wine(key); });
    EXPECT_EQ(Wine_Rows(), before);
  }
}

TEST_F(Cellar_Commit, A_text_once_stored_cannot_be_modified_and_one_not_given_is_stored_as_x) {
  Wines_Record commented = Sample_Wine();
  commented.Comments = Put_Text("Good");
  Put_Wine(commented);
  Put_Wine(Sample_Wine());
  const Texts before = Wine_Rows();
  const std::size_t texts = Count_of_Texts();
  Start_With("Wine_Mod");
  Pick_Wine(1);
  Enter({{"Total_Bottles_Text", "7"}, {"Description_Text", "Belongs to no wine"}});
  Expect_End(3020, [] { Click(button); });
  EXPECT_EQ(Wine_Rows(), before);
  EXPECT_EQ(Count_of_Texts(), texts + 1);
  EXPECT_THAT(Texts_of("Comments"), ElementsAre("Good|x|x|x|x|x|x"));
  Start_With("Wine_Mod");
  Pick_Wine(2);
  Modify();
  Pick_Wine(2);
  EXPECT_EQ(Shown_Text("Description_Text"), " ");
  Expect_End(3020, [] { Click(button); });
  EXPECT_THAT(Texts_of("Description"), ElementsAre("x|x|x|x|x|x|x"));
}

TEST_F(Cellar_Commit, Mended_a_text_changes_and_a_lone_x_is_one) {
  const Faults_Mended faults;
  Wines_Record commented = Sample_Wine();
  commented.Comments = Put_Text("Good", "Bueno");
  Put_Wine(commented);
  const std::size_t texts = Count_of_Texts();
  Start_With("Wine_Mod");
  for (const auto& [description, comments] :
       {std::pair{" ", "Better"}, {"", ""}, {"x", " "}, {"x ", "X"}}) {
    Pick_Wine(1);
    Enter({{"Description_Text", description}, {"Comments_Text", comments}});
    Modify();
    EXPECT_EQ(Count_of_Texts(), texts + (*description == 'x' ? 1 : 0));
    const bool described = *description == 'x';
    EXPECT_EQ(Texts_of("Description"), described ? Texts{"x |x|x|x|x|x|x"} : Texts{});
    const Text stored = Trim(comments).empty() ? "x" : comments;
    EXPECT_THAT(Texts_of("Comments"), ElementsAre(stored + "|Bueno|x|x|x|x|x"));
  }
  Mend_Known_Faults(false);
  Start_With("Cellar1_View");
  Pick_Wine(1);
  Expect_Shown({{"Description_Text", "x "}, {"Comments_Text", "X"}});
}

// Each is seen, and stays stored by a MODIFY that changes nothing.
TEST_F(Cellar_Commit, Mended_what_has_gone_or_stands_in_no_list_shows_and_is_kept) {
  const Faults_Mended faults;
  const Text gone = "999999";
  const Text grape =
      One("SELECT Variety_ID FROM Varieties WHERE Variety_ID NOT IN (SELECT Variety_ID FROM "
          "Regions_Per_Variety WHERE Region_ID = " +
          Sample().region_id + ")");
  Wines_Record wine = Sample_Wine();
  wine.Label = wine.Clasification = "No longer there";
  std::tie(wine.Vintage, wine.Peak, wine.Ranking) = std::tuple(1950, 1940, 30);
  wine.Variety = One("SELECT Variety_Name FROM Varieties WHERE Variety_ID = " + grape);
  wine.Variety_ID = To_Long(grape);
  wine.Bottle_Size = "1 keg";
  wine.Color = "amber";
  wine.Date_Added = Date::Of(1999, 12, 31, 23, 59, 58);
  Put_Wine(wine, {gone, grape});
  wine.Label = "x";
  wine.Winery_ID = wine.Description = wine.Comments = To_Long(gone);
  Put_Wine(wine, {gone, grape});
  Wines_Description.Init(wine);  // its save was cut off
  wine.Cellar_ID = 1;
  wine.Variety_ID = To_Long(gone);
  Put_Wine(wine, {gone});
  Texts stored = Wine_Rows();
  Start();
  for (const Text entry : {"Cellar1_View", "Wine_Uncork", "Wine_Del", "Wine_Mod"}) {
    Pick(entry);
    const bool modifies = entry == "Wine_Mod";
    for (const Long key : {1, 2, 3}) {
      SCOPED_TRACE(entry + " " + To_Text(key));
      Pick_Wine(key);
      const bool whole = key < 3;
      Expect_Shown({{"Winery_Combo", key == 1 ? Sample().name : ""},
                    {"Country_Combo", key == 1 ? Sample().country_name : ""},
                    {"Region_Combo", key == 1 ? Sample().region : ""},
                    {"Label_Combo", key == 1 ? "No longer there" : "No Label"},
                    {"Classification_Combo", whole ? "No longer there" : "NO Classification"},
                    {"Vintage_Combo", whole ? "1950" : "-1"},
                    {"Peak_Year_Combo", whole ? "1940" : "-1"},
                    {"Merit_Combo", whole ? "30" : " "},
                    {"Bottle_Size_Combo", whole ? "1 keg" : "x"},
                    {"Color_Combo", whole ? "amber" : "x"},
                    {"Description_Text", " "}});
      EXPECT_THAT(Ticked_Rows("Variety_Combo").size(), whole ? 2U : 1U);
      if (!modifies) continue;
      if (key == 1) Enter({{"Label_Combo", Sample().label}, {"Label_Combo", "No longer there"}});
      if (key == 1) Enter({{"Color_Combo", "White"}, {"Color_Combo", "amber"}});
      Modify();
    }
    EXPECT_EQ(Shown_Rows("Wine_Cellar_ListView").size(), 3U);
    Click("Exit_Command");
  }
  stored[2].replace(stored[2].find("|x|x|"), 5, "|x||");  // no names of grapes
  stored[2].replace(stored[2].find("|x|-1|x|"), 8, "|x|-1|NO Classification|");
  EXPECT_EQ(Wine_Rows(), stored);
}

TEST_F(Cellar_Commit, Dates_are_stored_and_what_was_shown_is_accepted_where_that_is_mended) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Wines_Record wine = Sample_Wine();
    wine.Alcohol = -1;
    wine.Date_Added = Date::Of(1999, 12, 31, 23, 59, 58);
    wine.Last_Date_Uncorked = now_;
    const Long old = Put_Wine(wine);
    const auto dates = [&](Long key) {
      return One("SELECT Date_Added, Last_Date_Uncorked FROM Wines WHERE Wine_ID = " +
                 To_Text(key));
    };
    Start_With("Wine_Add");
    Fill_Add();
    Choose("Vintage_Combo", "1976");
    EXPECT_EQ(Is_Usable(button), mended);
    Choose("Vintage_Combo", "1977");
    Enter({{"Date_Added_Text", "1/31/2020"}, {"Last_Date_Uncorked_Text", "2/28/2021"}});
    Save();
    EXPECT_EQ(Is_Usable("Wine_Cellar_ListView"), mended);
    EXPECT_EQ(dates(old + 1), mended ? "1/31/2020 00:00:00|2/28/2021 00:00:00"
                                     : To_Text(now_) + "|" + To_Text(No_Date));
    Start_With("Wine_Mod");
    Pick_Wine(old);
    for (const char* field : {"Alcohol_Text", "Date_Added_Text"}) {
      Click(field);
      EXPECT_EQ(Told_By([] { Press("Tab"); }).size(), mended ? 0U : 1U) << field;
      if (!mended) Type_Into(field, "");
    }
    Enter({{"Date_Added_Text", ""}, {"Last_Date_Uncorked_Text", ""}});
    Modify();
    EXPECT_EQ(dates(old), To_Text(wine.Date_Added) + "|" + To_Text(mended ? No_Date : now_));
  }
}

TEST_F(Cellar_Commit, A_modify_that_finds_no_grapes_or_no_marks_ends_behind_the_wines_own_row) {
  Put_Wine(Sample_Wine(), {});
  Put_Wine(Sample_Wine());
  for (const Long wine : {1, 2}) {
    if (wine == 2) Remove_Rows("Wine_Tasting");
    const Texts grapes = Grapes_of(wine);
    Start_With("Wine_Mod");
    Pick_Wine(wine);
    Enter({{"Total_Bottles_Text", "7"}, {"Description_Text", "Stays"}});
    Click("Aroma_Check_5");
    Expect_End(3021, [] { Click(button); });
    EXPECT_THAT(Wine_Rows().at(static_cast<std::size_t>(wine - 1)), testing::HasSubstr("|7|"));
    EXPECT_EQ(Texts_of("Description").size(), static_cast<std::size_t>(wine));
    EXPECT_EQ(Marks_of(wine), wine == 1 ? Texts{"Aroma|5"} : Texts{});
    EXPECT_EQ(Grapes_of(wine), grapes);
    const Faults_Mended faults;
    Start_With("Wine_Mod");
    Pick_Wine(wine);
    Modify();
  }
}

// ---- uncork and remove ----

TEST_F(Cellar_Commit, Uncorking_takes_bottle_by_bottle_down_to_none) {
  Wines_Record wine = Sample_Wine();
  wine.Total_Bottles = 2;
  for (int count = 0; count < 2; ++count) Put_Wine(wine);
  const Text first = Wine_Rows()[0];
  Start_With("Wine_Uncork");
  Pick_Wine(2);
  for (const Text left : {"1", "0"}) {
    now_.seconds += 61;
    Wines.Wine_ID = 1;            // another screen read another wine
    Click("Total_Bottles_Text");  // looked at, and left again
    Commit("WINE UNCORKED",
           "Your Wine Cellar was updated. This bottle of Wine was marked as Uncorked");
    EXPECT_THAT(Stored("SELECT Total_Bottles, Last_Date_Uncorked FROM Wines ORDER BY Wine_ID"),
                ElementsAre(_, left + "|" + To_Text(now_)));
    EXPECT_EQ(Wine_Rows()[0], first);
    Expect_Shown({{"Total_Bottles_Text", left}, {"Last_Date_Uncorked_Text", To_Text(now_)}});
    EXPECT_EQ(Color_of("Total_Bottles_Text"), left == "0" ? "required" : "locked");
    EXPECT_EQ(Is_Usable(button), left == "1");
    auto& list = Forms::Screen("Wine_Form").Get<Forms::List_View>("Wine_Cellar_ListView");
    EXPECT_EQ(list.SelectedItem().SubItems(8) + list.SelectedItem().SubItems(9), left + "2");
  }
  EXPECT_THAT(Moved_Counters(), IsEmpty());
  Start_With("Wine_Uncork");
  for (const Long key : {2, 1}) {
    Pick_Wine(key);
    EXPECT_TRUE(Is_Seen(button));
    EXPECT_EQ(Is_Usable(button), key == 1);
  }
}

TEST_F(Cellar_Commit, A_wine_is_removed_on_yes_alone_and_only_winery_and_region_count_it_out) {
  Wines_Record described = Sample_Wine();
  described.Description = Put_Text("Stays");
  for (int count = 0; count < 2; ++count) Put_Wine(described);
  Put_Mark(1, "Taste", 1);
  Change([this](Record_Store::Database& file) {
    Record_Store::Recordset wineries = file.OpenRecordset("Wineries");
    wineries.Index("Winery_ID");
    wineries.Seek("=", Sample().id);
    wineries.Edit();
    wineries.Fields("Used") = 1;
    wineries.Update();
  });
  Moved_Counters();
  const Texts before = Wine_Rows();
  const auto links = [this] { return std::tuple(Grapes_of(1), Marks_of(1), Count_of_Texts()); };
  const auto links_before = links();
  Start_With("Wine_Del");
  Pick_Wine(1);
  const Box_Script boxes({false, true});
  Click(button);
  const Text warning =
      "WINE DELETE WARNING? Are you sure yo want to REMOVE this wine from Wine Cellar?";
  EXPECT_THAT(boxes.Said(), ElementsAre(warning));
  EXPECT_EQ(boxes.Boxes()[0].by_enter, Forms::Answer::No);
  EXPECT_EQ(boxes.Boxes()[0].sign, Forms::Sign::Question);
  EXPECT_EQ(Wine_Rows(), before);
  EXPECT_EQ(Row_With("Wine_Cellar_ListView", "1", 9), 0);
  Click(button);
  EXPECT_THAT(boxes.Said(),
              ElementsAre(warning, warning,
                          "WINE DELETE NOTICE: This wine was REMOVED from your Wine Cellar."));
  EXPECT_FALSE(Forms::Screen("Wine_Form").Is_Loaded());
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
  EXPECT_THAT(Wine_Rows(), ElementsAre(before[1]));
  const Text region = "Region|" + Sample().region_id + "|";
  EXPECT_THAT(Moved_Counters(),
              UnorderedElementsAre("Winery|" + Sample().id + "|0", StartsWith(region)));
  EXPECT_EQ(links(), links_before);
  Start_With("Wine_Del");
  Pick_Wine(2);
  Click(button);
  EXPECT_THAT(Wine_Rows(), IsEmpty());
  EXPECT_THAT(Moved_Counters(), ElementsAre(StartsWith(region)));
  const Faults_Mended faults;
  const Long wine = Put_Wine(described);
  Put("Maridages_Per_Wines", {{"Wine_ID", wine}, {"GROUP", 10}, {"SUBCATEGO", 0}});  // to nothing
  Start_With("Wine_Del");
  Pick_Wine(wine);
  Click(button);
  const Text its_rows = " WHERE Wine_ID = " + To_Text(wine);
  EXPECT_THAT(Stored("SELECT 1 FROM Maridages_Per_Wines" + its_rows), IsEmpty());
  EXPECT_THAT(Grapes_of(wine), IsEmpty());
}

}  // namespace
