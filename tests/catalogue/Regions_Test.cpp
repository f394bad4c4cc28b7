// The screen of the wine regions, from which labels are reached too.
#include "platform/run_time/Guard.h"
#include "tests/catalogue/Catalogue_Places_Program.h"

namespace {

constexpr const char* form = "Regions_Form";
constexpr const char* main_window = "Wine_Cellar_Form";
constexpr const char* regions = "Regions_ListView";
constexpr const char* labels = "Labels_ListView";
constexpr const char* wineries = "Wineries_Form";

class Regions_Screen : public Catalogue_Places_Program {
 protected:
  static void Click_Region(const Text& name) { Click_Line(regions, name); }
  static Texts Commit() {
    return Told_By([] { Click("General_Command"); });
  }
  Text Region(const Text& name, const Text& fields) const {
    return One("SELECT " + fields + " FROM Regions WHERE Region_Name = '" + name + "'");
  }
  Text Put_General_Wine(Long label_id) const {
    Mobile_Wines_Record wine;
    Mobile_Wines_Description.Init(wine);
    wine.Mobile_Wine_Label_ID = label_id;
    Put(Mobile_Wines_Description, wine);
    return One("SELECT MAX(Mobile_Wine_ID) FROM Mobile_Wines");
  }
  /// Stands for the winery that waits behind, with its countries.
  void Put_Winery(const char* country) {
    Stand_In(wineries, {"Country_Combo", "Country_Short_Combo"});
    Give(wineries, "Country_Combo", "Country_Short_Combo", country, country);
    Forms::Screen(wineries).Get<Forms::Item_List>("Country_Combo").Set_ListIndex(0);
  }
};

// Its texts are there in the language in which they were written. As designed they stay behind.
TEST_F(Regions_Screen, A_region_is_added_corrected_seen_and_deleted) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Set("Wine_System", {{"Installation_ID", " 77 "}, {"Country_Target", "FRA"}});
    Open("Region_Add", german);
    EXPECT_EQ(Shown_Text(form), "ADD a new Wine Region");
    EXPECT_EQ(Color_of("Name_Text"), "required");
    EXPECT_EQ(Shown_Text("Country_Combo"), "Frankreich");
    Type_Into("Name_Text", "  ");
    EXPECT_FALSE(Is_Usable("General_Command"));
    Type_Into("Name_Text", " O'Neuland ");
    Type_Into("Description_Text", "Steil");
    EXPECT_THAT(Commit(),
                ElementsAre("SUCCESSFULL REGION CREATION: Region was created successfully."));
    EXPECT_TRUE(Is_Seen(main_window));
    EXPECT_FALSE(Forms::Screen(form).Is_Loaded());
    const Texts row = Cells_of(Region("O''Neuland", "Region_ID, SERIAL_NUMBER, Country, History"));
    EXPECT_THAT(row, ElementsAre(row[0], "CUS77-" + row[0], "FRA", "-1"));

    Open("Region_Mod_Other", german);
    EXPECT_FALSE(Is_Usable("General_Command"));
    Click_Region("O'Neuland");
    EXPECT_EQ(Shown_Text("Description_Text"), "Steil");
    Type_Into("Description_Text", "");
    Type_Into("History_Text", "Alt");
    Type_Into("Name_Text", "Neuland");
    EXPECT_THAT(Commit(),
                ElementsAre("SUCCESSFULL REGION MODIFICATION: Region was MODIFIED successfully."));
    EXPECT_EQ(Shown_Text("Description_Text"), " ");
    EXPECT_EQ(Chosen_Row(regions), Row_With(regions, "Neuland"));
    EXPECT_THAT(Commit(), testing::SizeIs(1));  // what is stored stays as it is

    Open("Regions_List");
    Click_Region("Neuland");
    EXPECT_EQ(Shown_Text("Name_Text") + Shown_Text("History_Text"), "Neuland ");
    EXPECT_TRUE(Is_Locked("History_Text"));
    EXPECT_FALSE(Is_Seen("General_Command"));

    Open("Region_Del");
    const int texts = Rows_in("Words_for_Data");
    const auto pick = [] { Click_Region("Neuland"); };
    EXPECT_THAT(Denied_By(pick),
                ElementsAre("DELETE REGION WARNING? Are you sure you want to DELETE this Region?"));
    EXPECT_FALSE(Region("Neuland", "Region_ID").empty());
    Open("Region_Del");
    Told_By(pick);
    EXPECT_THAT(Stored("SELECT * FROM Regions WHERE Region_Name = 'Neuland'"), IsEmpty());
    EXPECT_EQ(Rows_in("Words_for_Data"), mended ? texts - 2 : texts);
    EXPECT_TRUE(Forms::Screen(form).Visible());
    EXPECT_FALSE(Forms::Screen("Regions_List_Form").Is_Loaded());
  }
}

TEST_F(Regions_Screen, Ten_regions_fill_a_group_and_one_of_a_winery_has_none) {
  Regions_Record last = Made_Up_Region("Last");
  last.Region_Group = 5000;
  last.Region_SubGr = 4;
  Put(Regions_Description, last);
  Texts places{"5000|4"};
  for (int added = 5; added <= 15; ++added) {
    Open("Region_Add");
    Type_Into("Name_Text", "Added " + std::to_string(added));
    Commit();
    places.push_back(added <= 10 ? "5000|" + std::to_string(added)
                                 : "5001|" + std::to_string(added - 10));
  }
  EXPECT_EQ(Stored("SELECT Region_Group, Region_SubGr FROM Regions WHERE Region_Group >= 5000 "
                   "ORDER BY Region_ID"),
            places);
}

// As designed EXIT ends the run, and the screen does not know the two last commands; mended it is
// the same under all four.
TEST_F(Regions_Screen, A_region_on_the_way_to_a_winery) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    for (const char* command : {"WineAdd", "WineryAdd", "WineryMod", "WineOtherAdd"}) {
      SCOPED_TRACE(command + Text(mended ? " mended" : ""));
      const bool adds = mended || Text(command).ends_with("yAdd") || Text(command) == "WineAdd";
      const int rows = Rows_in("Regions");
      const auto open = [&] {
        Start();
        Put_Winery("ITA");
        Current_Country_Short = "ITA";
        Open_Under(form, command);
        EXPECT_EQ(Rows_in("Regions"), adds ? rows + 1 : rows);
      };
      open();
      if (adds && !mended) {
        Expect_End(424, [] { Click("Exit_Command"); });
      } else {
        Type_Into("Name_Text", "Typed");
        EXPECT_THAT(Told_By([] { Close_Window(form); }), testing::SizeIs(mended ? 1 : 0));
        EXPECT_TRUE(Is_Seen(wineries));
      }
      EXPECT_EQ(Rows_in("Regions"), rows);
      if (!adds) continue;
      open();
      EXPECT_EQ(Shown_Text("Country_Combo"), "Italy");
      EXPECT_EQ(Is_Locked("Country_Combo"), Text(command) != "WineAdd");
      Type_Into("Name_Text", command + Text(mended ? "!" : ""));
      Press("Esc");
      Commit();
      EXPECT_TRUE(Is_Seen(wineries));
      EXPECT_EQ(Forms::Screen(wineries).Tag(), "1");
      EXPECT_EQ(Region(command + Text(mended ? "!" : ""), "Region_ID, Country, Region_Group"),
                To_Text(New_Region_ID) + "|ITA|0");
    }
  }
}

// A region picked meanwhile neither gets what was entered nor goes.
TEST_F(Regions_Screen, A_row_clicked_while_another_one_is_added) {
  const Long old = Put(Regions_Description, Made_Up_Region("Old"));
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    const int rows = Rows_in("Regions");
    Open("Region_Add");
    Type_Into("Name_Text", "Typed");
    Click_Region("Old");
    EXPECT_EQ(Shown_Text("Name_Text"), mended ? "Typed" : "Old");
    Denied_By([] { Click("Exit_Command"); });
    EXPECT_EQ(Forms::Screen(form).Is_Loaded(), mended);
    EXPECT_EQ(Rows_in("Regions"), mended ? rows + 1 : rows);
    Open("Region_Add");
    EXPECT_EQ(Rows_in("Regions"), rows + 1);  // what the closed screen held has gone
    Click_Region("Old");
    Type_Into("Name_Text", mended ? "New mended" : "New");
    Commit();
    EXPECT_EQ(Rows_in("Regions"), rows + 1);
    EXPECT_EQ(Region("Old", "Region_ID"), To_Text(old));
  }
}

// As designed they are looked for by the words of the list, whose countries are English.
TEST_F(Regions_Screen, Double_names_names_of_none_and_delivered_rows) {
  Regions_Record region = Made_Up_Region("Delivered");
  region.SERIAL_NUMBER = "SYS";
  Put(Regions_Description, region);
  Put(Regions_Description, Made_Up_Region("Own"));
  Set("Wine_System", {{"Country_Target", "FRA"}});
  for (const bool mended : {true, false}) {
    const Faults_Mended faults(mended);
    Open("Region_Mod_Other");
    Click_Region(mended ? "Own" : "OWN");
    EXPECT_FALSE(Is_Seen("System_Region_Label"));
    Type_Into("Name_Text", "Delivered");
    EXPECT_THAT(Commit(), ElementsAre("REGION ADD ERROR: This Region ALLREADY exists."));
    EXPECT_EQ(Focused(), "Name_Text");
    Type_Into("Name_Text", mended ? "OWN" : "Own");
    Commit();
    EXPECT_EQ(Region(mended ? "OWN" : "Own", "Country"), "FRA");
    Click_Region("Delivered");
    EXPECT_TRUE(Is_Seen("System_Region_Label"));
    EXPECT_TRUE(Is_Locked("Name_Text"));
    Commit();
    EXPECT_EQ(Region("Delivered", "SERIAL_NUMBER").substr(0, 3), mended ? "SYS" : "CUS");
    for (const char* name : {"Delivered", "owN ", "x"}) {
      Open("Region_Add", german);
      Type_Into("Name_Text", name);
      EXPECT_THAT(Commit(), ElementsAre(StartsWith(mended ? "REGION ADD" : "SUCC"))) << name;
    }
  }
}

// Mended, a question comes before another row, a label and EXIT.
TEST_F(Regions_Screen, What_was_entered_goes_only_with_a_word) {
  const Long own = Put(Regions_Description, Made_Up_Region("Own"));
  Put(Labels_Description, Made_Up_Label("Own label", own));
  const std::initializer_list<std::function<void()>> ways = {
      [] { Click_Region("Bordeaux"); }, [] { Click_Line(labels, "Own label"); },
      [] { Click("Exit_Command"); }};
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    for (const auto& leave : ways) {
      Open("Region_Mod_Other");
      Click_Region("Own");
      Type_Into("Description_Text", "Typed");
      EXPECT_THAT(Denied_By(leave), testing::SizeIs(mended ? 1 : 0));
      if (!mended) continue;
      EXPECT_EQ(Shown_Text("Description_Text"), "Typed");
      EXPECT_EQ(Chosen_Row(regions), Row_With(regions, "Own"));
    }
  }
}

TEST_F(Regions_Screen, Grapes_and_labels_of_the_sub_regions_come_with_a_region) {
  const Long parent = Put(Regions_Description, Made_Up_Region("Parent"));
  Regions_Record child = Made_Up_Region("Child");
  child.Sub_Region_Of = parent;
  const Long child_id = Put(Regions_Description, child);
  Put(Labels_Description, Made_Up_Label("Zenith", parent));
  Put(Labels_Description, Made_Up_Label("Azure", child_id));
  for (const Long region : {parent, child_id}) {
    Put("Varieties_Per_Region", {{"Region_ID", region}, {"GROUP", 10}, {"SUBCATEGO", 11}});
  }
  Open("Regions_List");
  Click_Region("Parent");
  EXPECT_THAT(Shown_Column(labels, 0), ElementsAre("Azure", "Zenith"));
  const Texts grapes = Shown_Column("Varieties_ListView", 0);
  EXPECT_THAT(grapes, testing::SizeIs(2));
  Click_Region("Child");
  EXPECT_EQ(Shown_Column("Varieties_ListView", 0), grapes);
  EXPECT_THAT(Shown_Column(labels, 0), ElementsAre("Azure"));
}

TEST_F(Regions_Screen, A_region_on_its_way_to_grapes_comes_back_with_them) {
  Put(Regions_Description, Made_Up_Region("Own"));
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Open("Region_Pair_Varieties");
    Press("Down");
    EXPECT_FALSE(Is_Usable("General_Command"));
    Click_Region("Own");
    EXPECT_FALSE(Is_Seen(form));
    const Text grape = Sample().varieties[mended ? 1 : 0];
    Add(grape);
    Told_By([] { Click("MultSelect"); });
    EXPECT_TRUE(Is_Seen(form));
    EXPECT_THAT(Shown_Column("Varieties_ListView", 0), testing::Contains(grape));
    Click("Exit_Command");
    EXPECT_TRUE(Is_Seen(main_window));
  }
}

TEST_F(Regions_Screen, Labels_are_reached_changed_and_deleted_from_here) {
  const Long own = Put(Regions_Description, Made_Up_Region("Own"));
  const auto put = [&](const char* name, const char* serial, Integer used) {
    Labels_Record label = Made_Up_Label(name, own);
    label.SERIAL_NUMBER = serial;
    label.Used = used;
    return Put(Labels_Description, label);
  };
  const Long mine = put("Mine", "CUS", 0);
  put("Used", "SYS", 1);
  put("Theirs", "SYS", 0);
  Put_General_Wine(mine);
  Stand_In("Label_Form");
  const auto open = [&](const char* entry) {
    Open(entry);
    Click_Region("Own");
  };
  for (const auto& [entry, mode] : {std::pair{"Labels_Mod", "MODIFY"}, {"Labels_Del", "DELETE"}}) {
    open(entry);
    EXPECT_EQ(Shown_Text("System_Message_Label"),
              Text("You CANNOT ") + mode + " a Label that was provided by the system");
    EXPECT_FALSE(Is_Seen("History_Text"));
    EXPECT_FALSE(Is_Usable("General_Command"));
    const auto told = [&](const char* label) {
      return Told_By([&] { Click_Line(labels, label); });
    };
    EXPECT_THAT(told("Theirs"), ElementsAre(Text("ILLEGAL LABEL ") + mode +
                                            ": This is a System Label, you CANNOT " + mode + "."));
  }
  EXPECT_THAT(Told_By([] { Click_Line(labels, "Used"); }),
              ElementsAre(StartsWith("DELETE LABEL ERROR: You have in your Cellar one or more")));
  EXPECT_THAT(Denied_By([] { Click_Line(labels, "Mine"); }),
              ElementsAre("DELETE LABEL WARNING? Are you sure you want to DELETE this Label?"));
  EXPECT_THAT(Shown_Column(labels, 0), ElementsAre("Mine", "Theirs", "Used"));
  Told_By([] { Click_Line(labels, "Mine"); });
  EXPECT_THAT(Shown_Column(labels, 0), ElementsAre("Theirs", "Used"));
}

// The one that has a general wine asks for it, and tells so; another one changes nothing.
TEST_F(Regions_Screen, A_label_leads_to_its_general_wine_or_to_its_own_screen) {
  const Long own = Put(Regions_Description, Made_Up_Region("Own"));
  const Long leads = Put(Labels_Description, Made_Up_Label("Leads", own));
  Put(Labels_Description, Made_Up_Label("Nowhere", own));
  const Text wine = Put_General_Wine(leads);
  Open("Labels_View");
  Click_Region("Own");
  const QAbstractItemModel& rows = *View_Of(labels).model();
  EXPECT_EQ(rows.index(0, 0).data(Qt::AccessibleDescriptionRole), "has a general wine");
  EXPECT_EQ(rows.index(1, 0).data(Qt::AccessibleDescriptionRole), "has no general wine");
  for (const char* label : {"Leads", "Nowhere"}) {
    Click_Line(labels, label);
    EXPECT_EQ(Requested_Wine_Text, wine);
  }
  Stand_In("Label_Form");
  Open("Labels_Mod");
  Click_Region("Own");
  Click_Line(labels, "Leads");
  EXPECT_TRUE(Is_Seen("Label_Form"));
  EXPECT_FALSE(Is_Seen(form));
  Label_Renamed_Flag = true;
  Selected_Label_Text = "Zoom";
  Run_Guarded([] { Forms::Screen(form).Show(); });
  EXPECT_THAT(Shown_Column(labels, 0), ElementsAre("Nowhere", "Zoom"));
}

// By EXIT, the frame and Esc, which leaves nowhere that something can be typed.
TEST_F(Regions_Screen, Every_mode_ends_in_the_main_window_and_leaves_no_row) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    for (const char* entry : {"Region_Add", "Region_Mod_Other", "Region_Del", "Regions_List",
                              "Region_Pair_Varieties", "Labels_Mod", "Labels_Del", "Labels_View"}) {
      const int rows = Rows_in("Regions");
      const bool esc_leaves =
          !Text(entry).starts_with("Region_") || entry == Text("Region_Pair_Varieties");
      for (int way = 0; way < 3; ++way) {
        Start_With(entry);
        if (way == 0) Click("Exit_Command");
        if (way == 1) Close_Window(form);
        if (way == 2) Press("Esc");
        const bool left = way < 2 || esc_leaves;
        EXPECT_EQ(Is_Seen(main_window), left) << entry << way;
        EXPECT_EQ(Forms::Screen(form).Is_Loaded(), !left) << entry << way;
        if (!left) Click("Exit_Command");
        EXPECT_EQ(Rows_in("Regions"), rows) << entry << way;
      }
    }
  }
}

// As designed a text that has gone ends the run.
TEST_F(Regions_Screen, A_region_whose_country_and_text_have_gone) {
  Regions_Record region = Made_Up_Region("Lost", "?");
  Put(Regions_Description, region);
  region.Region_Name = "Mute";
  region.Description = 32000;
  Put(Regions_Description, region);
  Open("Region_Mod_Other");
  Click_Region("Lost");
  EXPECT_EQ(Shown_Text("Country_Combo"), "");
  Commit();
  EXPECT_EQ(Region("Lost", "Country"), "?");
  Expect_End(3021, [] { Click_Region("Mute"); });
  const Faults_Mended faults;
  Open("Region_Mod_Other");
  Click_Region("Mute");
  EXPECT_EQ(Shown_Text("Description_Text"), " ");
}

}  // namespace
