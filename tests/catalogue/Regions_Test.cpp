// The screen of the wine regions, from which labels are reached too.
#include "platform/run_time/Guard.h"
#include "tests/catalogue/Catalogue_Places_Program.h"

namespace {

constexpr const char* form = "Regions_Form";
constexpr const char* main_window = "Wine_Cellar_Form";
constexpr const char* regions = "Regions_ListView";
constexpr const char* labels = "Labels_ListView";

class Regions_Screen : public Catalogue_Places_Program {
 protected:
  static void Click_Region(const Text& name) { Click_Line(regions, name); }
  static Texts Commit() {
    return Told_By([] { Click("General_Command"); });
  }
  Text Region(const Text& name, const Text& fields) const {
    return One("SELECT " + fields + " FROM Regions WHERE Region_Name = '" + name + "'");
  }
  Long Put_Own() const { return Put(Regions_Description, Made_Up_Region("Own")); }
};

// Its texts are there in the language in which they were written. As designed they stay behind.
TEST_F(Regions_Screen, A_region_is_added_corrected_seen_and_deleted) {
  Put(Labels_Description, Made_Up_Label("Own label", Put_Own()));
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Set("Wine_System", {{"Installation_ID", " 77 "}, {"Country_Target", "FRA"}});
    Open("Region_Add", german);
    EXPECT_EQ(Color_of("Name_Text"), "required");
    EXPECT_EQ(Shown_Text("Country_Combo"), "Frankreich");
    Type_Into("Name_Text", "  ");
    EXPECT_FALSE(Is_Usable("General_Command"));
    Type_Into("Name_Text", " O'Neuland ");
    Type_Into("Description_Text", "Steil");
    EXPECT_THAT(Commit(),
                ElementsAre("SUCCESSFULL REGION CREATION: Region was created successfully."));
    EXPECT_TRUE(Is_Seen(main_window));
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

    Open("Regions_List");
    Click_Region("Neuland");
    EXPECT_EQ(Shown_Text("Name_Text") + Shown_Text("History_Text"), "Neuland ");
    EXPECT_TRUE(Is_Locked("History_Text"));
    EXPECT_FALSE(Is_Seen("General_Command"));

    const int texts = Rows_in("Words_for_Data");
    Open("Region_Del");
    EXPECT_THAT(Denied_By([] { Click_Region("Own"); }),
                ElementsAre(StartsWith(mended ? "DELETE WINERY ERROR: You have in your Cellar "
                                              : "DELETE REGION WARNING? ")));
    Open("Region_Del");
    EXPECT_THAT(Denied_By([] { Click_Region("Neuland"); }),
                ElementsAre("DELETE REGION WARNING? Are you sure you want to DELETE this Region?"));
    EXPECT_FALSE(Region("Neuland", "Region_ID").empty());
    Open("Region_Del");
    Told_By([] { Click_Region("Neuland"); });
    EXPECT_THAT(Stored("SELECT * FROM Regions WHERE Region_Name = 'Neuland'"), IsEmpty());
    EXPECT_EQ(Rows_in("Words_for_Data"), mended ? texts - 2 : texts);
    EXPECT_TRUE(Forms::Screen(form).Visible());
    EXPECT_FALSE(Forms::Screen("Regions_List_Form").Is_Loaded());
  }
}

TEST_F(Regions_Screen, Ten_regions_fill_a_group) {
  Regions_Record last = Made_Up_Region("Last");
  std::tie(last.Region_Group, last.Region_SubGr) = std::pair{5000, 8};
  Put(Regions_Description, last);
  Start();
  for (const char* name : {"a", "b", "c", "d"}) {
    Pick("Region_Add");
    Type_Into("Name_Text", name);
    Commit();
  }
  EXPECT_THAT(Stored("SELECT Region_Group, Region_SubGr FROM Regions WHERE Region_Group >= 5000 "
                     "ORDER BY Region_ID"),
              ElementsAre("5000|8", "5000|9", "5000|10", "5001|1", "5001|2"));
}

// As designed EXIT ends the run, and the screen does not know two of the commands; mended it is the
// same under all.
TEST_F(Regions_Screen, A_region_on_the_way_to_a_winery) {
  for (const auto& [mended, command, adds] : {std::tuple{false, "WineAdd", true},
                                              {false, "WineryAdd", true},
                                              {false, "WineryMod", false},
                                              {false, "WineOtherAdd", false},
                                              {true, "WineAdd", true},
                                              {true, "WineryMod", true}}) {
    SCOPED_TRACE(command);
    const Faults_Mended faults(mended);
    const int rows = Rows_in("Regions");
    const auto open = [&] {
      Start();
      Open_Under("Wineries_Form", command);
      if (command == Text("WineryMod")) Click_Row("Wineries_ListView", 0);
      Choose("Country_Combo", "Italy");
      Click("Wine_Region_Add_Command");
      EXPECT_EQ(Rows_in("Regions"), adds ? rows + 1 : rows);
      Type_Into("Name_Text", command + Text(mended ? "!" : "."));
    };
    const auto leave = [] { Close_Window(form); };
    open();
    if (adds && !mended) {
      Expect_End(424, leave);
    } else {
      EXPECT_THAT(Told_By(leave), testing::SizeIs(mended ? 1 : 0));
      EXPECT_TRUE(Is_Seen("Wineries_Form"));
    }
    EXPECT_EQ(Rows_in("Regions"), rows);
    if (!adds) continue;
    open();
    Press("Esc");
    EXPECT_EQ(Shown_Text("Country_Combo"), "Italy");
    EXPECT_EQ(Is_Locked("Country_Combo"), mended || command != Text("WineAdd"));
    Commit();
    EXPECT_EQ(Shown_Text("Wineries_Form/Region_Combo"), command + Text(mended ? "!" : "."));
    EXPECT_EQ(One("SELECT Country, Region_Group FROM Regions WHERE Region_ID = " +
                  To_Text(New_Region_ID)),
              "ITA|0");
  }
}

// A region picked meanwhile neither gets what was entered nor goes.
TEST_F(Regions_Screen, A_row_clicked_while_another_one_is_added) {
  const Long old = Put_Own();
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    const int rows = Rows_in("Regions");
    Open("Region_Add");
    Type_Into("Name_Text", "Typed");
    Click_Region("Own");
    EXPECT_EQ(Shown_Text("Name_Text"), mended ? "Typed" : "Own");
    Denied_By([] { Click("Exit_Command"); });
    EXPECT_EQ(Rows_in("Regions"), mended ? rows + 1 : rows);
    Open("Region_Add");
    EXPECT_EQ(Rows_in("Regions"), rows + 1);
    Click_Region("Own");
    Type_Into("Name_Text", mended ? "New mended" : "New");
    Commit();
    EXPECT_EQ(Rows_in("Regions"), rows + 1);
    EXPECT_EQ(Region("Own", "Region_ID"), To_Text(old));
  }
}

// As designed they are looked for by the words of the list, whose countries are English.
TEST_F(Regions_Screen, Double_names_names_of_none_and_delivered_rows) {
  Regions_Record region = Made_Up_Region("Delivered");
  region.SERIAL_NUMBER = "SYS";
  Put(Regions_Description, region);
  Put_Own();
  Set("Wine_System", {{"Country_Target", "FRA"}});
  for (const bool mended : {true, false}) {
    const Faults_Mended faults(mended);
    Open("Region_Mod_Other");
    Click_Region(mended ? "Own" : "OWN");
    Type_Into("Name_Text", "Delivered");
    EXPECT_THAT(Commit(), ElementsAre("REGION ADD ERROR: This Region ALLREADY exists."));
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
  Put(Labels_Description, Made_Up_Label("Own label", Put_Own()));
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    for (const std::function<void()>& leave : std::initializer_list<std::function<void()>>{
             [] { Click_Region("Bordeaux"); }, [] { Click_Line(labels, "Own label"); },
             [] { Click("Exit_Command"); }}) {
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

TEST_F(Regions_Screen, Grapes_and_labels_of_the_sub_regions_come_and_grapes_are_given) {
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
  Open("Region_Pair_Varieties");
  Press("Down");
  Click_Region("Child");
  EXPECT_FALSE(Is_Seen(form));
  Double_Click_Line("SelectList", grapes[0]);
  Told_By([] { Click("MultSelect"); });
  EXPECT_THAT(Shown_Column("Varieties_ListView", 0), ElementsAre(grapes[1]));
}

TEST_F(Regions_Screen, A_label_is_reached_deleted_and_leads_to_its_general_wine) {
  const Long own = Put_Own();
  Labels_Record label = Made_Up_Label("Mine", own);
  Mobile_Wines_Record wine;
  Mobile_Wines_Description.Init(wine);
  wine.Mobile_Wine_Label_ID = Put(Labels_Description, label);
  Put(Mobile_Wines_Description, wine);
  label.SERIAL_NUMBER = "SYS";
  for (const auto& [name, used] : {std::pair{"Theirs", 0}, {"Used", 1}}) {
    label.Label_Name = name;
    label.Used = static_cast<Integer>(used);
    Put(Labels_Description, label);
  }
  const auto open = [&](const char* entry) {
    Open(entry);
    Click_Region("Own");
  };
  open("Labels_View");
  for (const auto& [row, note] : {std::pair{0, "has a general wine"}, {1, "has no general wine"}}) {
    EXPECT_EQ(View_Of(labels).model()->index(row, 0).data(Qt::AccessibleDescriptionRole), note);
    Click_Row(labels, row);
    EXPECT_EQ(Requested_Wine_Text, One("SELECT MAX(Mobile_Wine_ID) FROM Mobile_Wines"));
  }
  const auto told = [](const char* name) { return Told_By([&] { Click_Line(labels, name); }); };
  open("Labels_Mod");
  EXPECT_THAT(told("Theirs"),
              ElementsAre("ILLEGAL LABEL MODIFY: This is a System Label, you CANNOT MODIFY."));
  open("Labels_Del");
  EXPECT_EQ(Shown_Text("System_Message_Label"),
            "You CANNOT DELETE a Label that was provided by the system");
  EXPECT_THAT(told("Used"), ElementsAre(StartsWith("DELETE LABEL ERROR: You have in your Cell")));
  EXPECT_THAT(told("Theirs"),
              ElementsAre("ILLEGAL LABEL DELETE: This is a System Label, you CANNOT DELETE."));
  EXPECT_THAT(Denied_By([] { Click_Line(labels, "Mine"); }),
              ElementsAre("DELETE LABEL WARNING? Are you sure you want to DELETE this Label?"));
  EXPECT_THAT(Shown_Column(labels, 0), testing::SizeIs(3));
  told("Mine");
  EXPECT_THAT(Shown_Column(labels, 0), ElementsAre("Theirs", "Used"));
}

// By EXIT, the frame and Esc, which leaves nowhere that something can be typed. Mended a question
// comes first.
TEST_F(Regions_Screen, Every_mode_ends_in_the_main_window_and_leaves_no_row) {
  const Faults_Mended faults;
  const int rows = Rows_in("Regions") + Rows_in("Labels");
  Start();
  for (const Text entry :
       {"Region_Add", "Region_Mod_Other", "Region_Del", "Labels_Add", "Regions_List",
        "Region_Pair_Varieties", "Labels_Mod", "Labels_Del", "Labels_View"}) {
    const Text screen = entry == "Labels_Add" ? "Label_Form" : form;
    for (const char* way : {"EXIT", "frame", "Esc"}) {
      Pick(entry);
      const bool adds = entry.ends_with("_Add");
      if (adds) Type_Into(screen + "/Name_Text", "Typed");
      const auto away = [&] {
        if (way == Text("EXIT")) Click("Exit_Command");
        if (way == Text("frame")) Close_Window(screen);
        if (way == Text("Esc")) Press("Esc");
      };
      const bool stays =
          way == Text("Esc") && (adds || entry.starts_with("Region_Mod") || entry == "Region_Del");
      EXPECT_THAT(Told_By(away), testing::SizeIs(adds && !stays ? 1 : 0)) << entry << way;
      EXPECT_EQ(Is_Seen(screen), stays) << entry << way;
      if (stays) Told_By([] { Click("Exit_Command"); });
      EXPECT_TRUE(Is_Seen(main_window));
      EXPECT_FALSE(Forms::Screen("Regions_List_Form").Is_Loaded());
      EXPECT_EQ(Rows_in("Regions") + Rows_in("Labels"), rows) << entry << way;
    }
  }
}

}  // namespace
