// The screen of wineries: each of its uses from the menu to the stored rows, and what other screens
// do meanwhile.
#include "screens/Row_List.h"
#include "tests/catalogue/Catalogue_Places_Program.h"
#include "tests/support/Faults_Mended.h"

namespace {

constexpr const char* screen = "Wineries_Form";
constexpr const char* list = "Wineries_Form/Wineries_ListView";
constexpr const char* button = "Wineries_Form/General_Command";
constexpr const char* leave = "Wineries_Form/Exit_Command";
constexpr const char* country = "Wineries_Form/Country_Combo";
constexpr const char* region = "Wineries_Form/Region_Combo";
constexpr const char* labels = "Winery_Labels_List";
constexpr const char* all_texts = "SELECT Multi_Language_ID FROM Words_for_Data";
constexpr const char* wines = "Available_Wines_ListView";

class Wineries_Screen : public Catalogue_Places_Program {
 protected:
  /// All rows, or one of them, of what a user can give.
  Texts Rows(const Text& condition = "1") const {
    return Stored(
        "SELECT Winery_ID, Winery_Name, Address1, Address2, City, State, Zip_Code, Country, Region,"
        " Region_ID, Phone, Web, E_Mail, SERIAL_NUMBER, Used, History, Photo FROM Wineries WHERE " +
        condition);
  }
  Text Region_of(const char* of_country) const {
    return One(Text("SELECT Region_Name || '|' || Region_ID FROM Regions WHERE Country = '") +
               of_country + "' ORDER BY Region_Name");
  }
  Text Name_of_Country(const char* short_name) const {
    return One(Text("SELECT Long_Name FROM World_Contries WHERE Short_Name = '") + short_name +
               "'");
  }
  void Set_Counter(const Text& id, int used) const {
    Change([&](Record_Store::Database& file) {
      Record_Store::Recordset rows = file.OpenRecordset("Wineries");
      rows.Index("Winery_ID");
      rows.Seek("=", id);
      rows.Edit();
      rows.Fields("Used") = used;
      rows.Update();
    });
  }
  Texts Labels_of(const Text& winery) const {
    Texts names = Stored(
        "SELECT n.Label_Name FROM Labels_per_Winery l JOIN Labels n ON n.Label_ID = l.Label_ID "
        "WHERE l.Winery_ID = " +
        winery);
    if (!names.empty()) names.insert(names.begin(), "ALL LABELS");
    return names;
  }
  static Text Selected_Winery() {
    auto& rows = Forms::Screen(screen).Get<Row_List>("Wineries_ListView");
    return rows.Key_of(rows.SelectedItem());
  }
  static void Pick_Winery(const Text& id) { Click_Line(list, id, 3); }
};

// ---- one winery from its adding to its deletion ----

TEST_F(Wineries_Screen, A_winery_is_added_modified_refused_and_deleted) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    const Texts before = Rows();
    const std::size_t texts = Stored(all_texts).size();
    Start_With("Winery_Add");
    EXPECT_EQ(Shown_Text(screen), "ADD A NEW Winery");
    EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
    EXPECT_TRUE(Is_Locked(region));
    Type_Into("Name_Text", "   ");
    EXPECT_EQ(Color_of("Name_Text"), "required");
    Type_Into("Name_Text", " O'Neill \"Hill\" ");
    const Text american = Region_of("USA");
    Choose(country, Name_of_Country("USA"));
    EXPECT_EQ(Shown_Text(region), "New Region");
    EXPECT_FALSE(Is_Usable(button));
    EXPECT_TRUE(Is_Usable("Wine_Region_Add_Command"));
    Choose(region, Cells_of(american)[0]);
    EXPECT_TRUE(Is_Usable(button));
    EXPECT_FALSE(Is_Usable("Wine_Region_Add_Command"));
    Choose("State_Combo", "Oregon");
    Type_Into("City_Text", "Salem");
    Type_Into("Phone_Text", "  ");
    Type_Into("History_Text", "Long");
    EXPECT_THAT(Told_By([] { Click(button); }), ElementsAre("WINERY CREATED: Winery was created."));
    EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
    const Text id = One("SELECT max(Winery_ID) FROM Wineries");
    const Text text = One("SELECT max(Multi_Language_ID) FROM Words_for_Data");
    const Text serial =
        "CUS" + One("SELECT trim(Installation_ID) FROM Wine_System") + "-" + id + "|0|";
    EXPECT_EQ(Rows("Winery_ID = " + id)[0], id + "| O'Neill \"Hill\" |x|x|Salem|Oregon|x|USA|" +
                                                american + "|x|x|x|" + serial + text + "|x");
    EXPECT_EQ(Rows().size(), before.size() + 1);

    Start_With("Winery_Mod");
    EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
    EXPECT_TRUE(Is_Locked("Name_Text"));
    Pick_Winery(id);
    EXPECT_EQ(Shown_Text("State_Combo"), "Oregon");
    EXPECT_EQ(Shown_Text("Add1_Text"), " ");
    EXPECT_EQ(Shown_Text("History_Text"), "Long");
    EXPECT_TRUE(Is_Usable(button));
    const Text none =
        One("SELECT Long_Name FROM World_Contries c WHERE NOT EXISTS (SELECT 1 FROM Regions r "
            "WHERE r.Country = c.Short_Name) AND State_Usage <> 'Y'");
    Choose(country, none);  // without regions, without states
    EXPECT_FALSE(Is_Usable(button));
    EXPECT_FALSE(Is_Usable("Wine_Region_Add_Command"));
    Choose(region, "New Region");
    EXPECT_TRUE(Is_Usable("Wine_Region_Add_Command"));
    const Text lebanese = Region_of("LBN");
    Choose(country, Name_of_Country("LBN"));
    Choose(region, Cells_of(lebanese)[0]);
    EXPECT_FALSE(Is_Seen("State_Combo"));
    Type_Into("Province_Text", "Beqaa");
    Type_Into("History_Text", "");
    EXPECT_THAT(Told_By([] { Click(button); }),
                ElementsAre("WINERY MODIFIED: Winery was ModIfied."));
    EXPECT_FALSE(Is_There(screen));
    EXPECT_EQ(Rows("Winery_ID = " + id)[0], id + "| O'Neill \"Hill\" |x|x|Salem|Beqaa|x|LBN|" +
                                                lebanese + "|x|x|x|" + serial + text + "|x");
    EXPECT_EQ(One("SELECT English FROM Words_for_Data WHERE Multi_Language_ID = " + text), "x");

    // As designed the counter alone keeps a winery, mended what refers to it does.
    Wines_Record wine = Sample_Wine();
    wine.Winery_ID = To_Long(id);
    Put_Wine(wine);
    Set_Counter(id, mended ? 0 : 1);
    const Text refusal =
        "DELETE WINERY ERROR: You have in your Cellar one or more wines from this winery.\r\n"
        "You have to remove those wines from your Cellar before you can delete this winery.";
    const Text question = "DELETE WINERY WARNING? Are you sure you want to DELETE this winery?";
    const auto picked = [&](bool answer) {
      Pick("Winery_Del");
      const Box_Script boxes({answer});
      Pick_Winery(id);
      return boxes.Said();
    };
    EXPECT_THAT(picked(true), ElementsAre(refusal));
    EXPECT_TRUE(Is_Seen(screen));
    Remove_Rows("Wines");
    Set_Counter(id, 0);
    EXPECT_THAT(picked(false), ElementsAre(question));
    EXPECT_FALSE(Is_There(screen));
    EXPECT_EQ(Rows().size(), before.size() + 1);
    EXPECT_THAT(picked(true), ElementsAre(question));
    EXPECT_EQ(Rows(), before);
    EXPECT_EQ(Stored(all_texts).size(), texts + (mended ? 0 : 1));
  }
}

// ---- a wine, its new winery, and that one's new region ----

TEST_F(Wineries_Screen, A_wine_gets_a_new_winery_and_that_a_new_region) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    const Text name = mended ? "Mended Hill" : "Designed Hill";
    const auto add_region = [&](const Text& called) {
      Choose(region, "New Region");
      Click("Wine_Region_Add_Command");
      EXPECT_FALSE(Is_Seen(screen));
      Type_Into("Regions_Form/Name_Text", called);
      const Texts said = Told_By([] { Click("Regions_Form/General_Command"); });
      EXPECT_THAT(said, ElementsAre(StartsWith("SUCCESSFULL REGION CREATION")));
      EXPECT_EQ(Shown_Text(region), called);
    };
    Start_With("Wine_Add");
    Choose("Wine_Form/Country_Combo", Sample().country_name);
    Click("Winery_Add_Command");
    EXPECT_FALSE(Is_There("Wine_Form"));
    Type_Into("Name_Text", name);
    Choose(country, Sample().country_name);
    add_region(name + " Valley");
    const Text region_id = One("SELECT max(Region_ID) FROM Regions");
    for (const Text& grapes : Stored("SELECT [GROUP], SUBCATEGO FROM Varieties_Per_Region "
                                     "WHERE Region_ID = " +
                                     Sample().region_id)) {
      const Texts link = Cells_of(grapes);
      Put("Varieties_Per_Region",
          {{"Region_ID", region_id}, {"GROUP", link[0]}, {"SUBCATEGO", link[1]}});
    }
    EXPECT_THAT(Told_By([] { Click(button); }), ElementsAre(StartsWith("WINERY CREATED")));
    EXPECT_EQ(Shown_Text("Winery_Combo"), name);
    EXPECT_EQ(Shown_Text("Wine_Form/Region_Combo"), name + " Valley");
    Fill_Bottle();
    EXPECT_THAT(Told_By([] { Click("Multi_Functional_Command"); }), testing::SizeIs(1));
    const Text id = One("SELECT max(Winery_ID) FROM Wineries");
    EXPECT_EQ(One("SELECT max(Winery_ID) FROM Wines"), id);
    const Text stored =
        "SELECT y.Winery_Name, y.Used, r.Region_Name, r.Used FROM Wineries y JOIN "
        "Regions r ON r.Region_ID = y.Region_ID WHERE y.Winery_ID = " +
        id;
    EXPECT_EQ(One(stored), name + "|1|" + name + " Valley|1");
    if (!mended) continue;
    Start_With("Winery_Mod");
    Pick_Winery(id);
    add_region("Other Valley");
    EXPECT_THAT(Told_By([] { Click(button); }), ElementsAre(StartsWith("WINERY MODIFIED")));
    EXPECT_EQ(One(stored), name + "|1|Other Valley|1");
  }
}

// ---- the list: labels, wines, paging ----

TEST_F(Wineries_Screen, Pages_follow_the_list_as_it_is_seen_to_both_its_ends) {
  Remove_Rows("Wineries", [kept = 0](const auto&) mutable { return ++kept > 6; });
  Start_With("Winery_List");
  const char* next = "Wineries_Form_Next_Command";
  const char* previous = "Wineries_Form_Previous_Command";
  EXPECT_FALSE(Is_Usable(next) || Is_Usable(previous));
  for (const int header : {-1, 0, 0, 2, 1}) {
    if (header >= 0) Click_Header(list, header);
    const Texts names = Shown_Column(list, 0);
    Click_Row(list, 0);
    Texts seen{Shown_Text("Name_Text")};
    EXPECT_FALSE(Is_Usable(previous));
    while (Is_Usable(next) && seen.size() < 10) {
      Click(next);
      seen.push_back(Shown_Text("Name_Text"));
      EXPECT_EQ(Shown_Column(labels, 0), Labels_of(Selected_Winery())) << seen.back();
    }
    EXPECT_EQ(seen, names) << header;
    for (std::size_t steps = 1; steps < names.size(); ++steps) Click(previous);
    EXPECT_EQ(Shown_Text("Name_Text"), names[0]);
    EXPECT_FALSE(Is_Usable(previous));
    EXPECT_TRUE(Is_Usable(next));
  }
  EXPECT_FALSE(Is_Seen("Wineries_List_Form"));
  Click(leave);
  EXPECT_FALSE(Forms::Screen("Wineries_List_Form").Is_Loaded());
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
}

TEST_F(Wineries_Screen, A_label_shows_its_wines_and_a_wine_is_asked_for) {
  Stand_In("Mobile_Wine_Form");
  const Text winery =
      One("SELECT l.Winery_ID FROM Labels_per_Winery l JOIN Mobile_Wines m ON "
          "m.Mobile_Wine_Label_ID = l.Label_ID GROUP BY l.Winery_ID ORDER BY count(*) DESC");
  const Texts all = Stored(
      "SELECT m.Mobile_Wine_Name || ' | ' || ifnull(v.Variety_Name, '') || ' | ' || "
      "m.Mobile_Wine_ID FROM Labels_per_Winery l JOIN Mobile_Wines m ON m.Mobile_Wine_Label_ID = "
      "l.Label_ID LEFT JOIN Varieties v ON v.Variety_ID = m.Mobile_Wine_Variety_ID "
      "WHERE l.Winery_ID = " +
      winery);
  Start_With("Winery_View");
  const Varieties_Record grape = Varieties;
  Pick_Winery(winery);
  EXPECT_THAT(Shown_Rows(wines), UnorderedElementsAreArray(all));
  Texts by_label;
  for (std::size_t row = 1; row < Shown_Column(labels, 0).size(); ++row) {
    Click_Row(labels, static_cast<int>(row));
    for (const Text& wine : Shown_Rows(wines)) by_label.push_back(wine);
  }
  EXPECT_THAT(by_label, UnorderedElementsAreArray(all));
  EXPECT_EQ(Varieties.Variety_ID, grape.Variety_ID);
  Click_Row(labels, 0);
  const Text key = Cells_of(Shown_Rows(wines)[0], " | ")[2];
  Click_Row(wines, 0);
  EXPECT_EQ(Requested_Wine_Text, key);
  EXPECT_TRUE(Is_Seen("Mobile_Wine_Form"));
  EXPECT_FALSE(Is_Seen(screen));
}

// ---- two screens at once ----

TEST_F(Wineries_Screen, What_other_screens_do_meanwhile_stays_theirs) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    const auto regions = [this] { return Stored("SELECT Region_ID, Used FROM Regions"); };
    Texts expected_regions = regions();
    const Texts others = Rows("Winery_ID <> " + Sample().id);
    const Text used = One("SELECT Used FROM Wineries WHERE Winery_ID = " + Sample().id);
    Start_With("Winery_Mod");
    Pick_Winery(Sample().id);
    Type_Into("City_Text", mended ? "Here" : "There");
    if (mended) {
      const Box_Script stays({false});
      Pick("Winery_Add");
      EXPECT_EQ(Shown_Text("City_Text"), "Here");
      EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
    }
    Pick("Wine_Add");
    Fill_Add();
    EXPECT_THAT(Told_By([] { Click("Multi_Functional_Command"); }), testing::SizeIs(1));
    EXPECT_THAT(Told_By([] { Click(button); }), ElementsAre(StartsWith("WINERY MODIFIED")));
    EXPECT_TRUE(Is_Seen("Wine_Form"));
    EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
    EXPECT_EQ(One("SELECT City || Used FROM Wineries WHERE Winery_ID = " + Sample().id),
              (mended ? "Here" : "There") + To_Text(To_Long(used) + 1));
    EXPECT_EQ(Rows("Winery_ID <> " + Sample().id), others);
    // A winery that is looked at from a wine: the wine goes on with its own.
    const auto look_at_other = [this] {
      Fill_Add({.label = Sample().label});
      Double_Click("Winery_Combo");
      Pick_Winery(Sample(1).id);
    };
    look_at_other();
    Labels = {};  // as another screen may leave it
    Click(leave);
    EXPECT_TRUE(Wait_Until([] { return Current_Command == "WineAdd"; }));
    EXPECT_THAT(Told_By([] { Click("Multi_Functional_Command"); }),
                ElementsAre(StartsWith("WINE ADDITION")));
    look_at_other();
    Click("Wine_Form/Comments_Text");  // and back again
    Pick_Winery(Sample(1).id);
    Forms::Screen("Wine_Form").Set_Tag("1");  // a new label comes back
    Click(leave);
    EXPECT_TRUE(Wait_Until([] { return Current_Command == "WineAdd"; }));
    EXPECT_EQ(Shown_Text("Winery_Combo"), Sample().name);
    for (Text& row : expected_regions) {
      const Texts cells = Cells_of(row);
      if (cells[0] == Sample().region_id) row = cells[0] + "|" + To_Text(To_Long(cells[1]) + 2);
    }
    EXPECT_EQ(regions(), expected_regions);
  }
}

// ---- every way out ----

TEST_F(Wineries_Screen, A_row_clicked_and_any_way_out_leave_no_row_behind) {
  const Texts before = Rows();
  struct Use {
    const char* entry;
    const char* command;
    const char* ends_in;
  };
  for (const auto& [entry, command, ends_in] :
       {Use{"Winery_Add", "WineryAdd", "Wine_Cellar_Form"},
        {nullptr, "WineAdd", "Wine_Form"},
        {nullptr, "WineOtherAdd", "Wine_Cellar_Form"},
        {"Winery_Mod", "WineryMod", "Wine_Cellar_Form"},
        {"Winery_List", "WineryList", "Wine_Cellar_Form"}}) {
    const bool adds = Text(command).ends_with("Add");
    for (const Text way : {"EXIT", "frame", "Esc"}) {
      Start();
      if (entry != nullptr) Pick(entry);
      if (entry == nullptr) Open_Under(screen, command);
      EXPECT_EQ(Rows().size(), before.size() + (adds ? 1 : 0));
      if (adds) Type_Into("Name_Text", "typed");
      Click_Row(list, 3);
      EXPECT_EQ(Shown_Text("Name_Text"), adds ? "typed" : Shown_Column(list, 0)[3]);
      const bool stays = way == "Esc" && Text(command) != "WineryList";
      if (way == "EXIT") Click(leave);
      if (way == "frame") Close_Window(screen);
      if (way == "Esc") Press("Esc");
      EXPECT_EQ(Is_There(screen), stays) << command << way;
      if (stays) Click(leave);
      EXPECT_TRUE(Is_Seen(ends_in)) << command << way;
      EXPECT_EQ(Rows(), before);
    }
  }
}

// ---- mended ----

TEST_F(Wineries_Screen, Mended_no_name_is_double_or_x_and_nothing_goes_without_a_word) {
  const Faults_Mended faults;
  const Texts winery = Cells_of(Rows("Winery_ID = " + Sample().id)[0]);
  Start_With("Winery_Mod");
  Pick_Winery(Sample().id);
  Type_Into("City_Text", "Elsewhere");
  {
    const Box_Script stay({false, false});
    Pick_Winery(Sample(1).id);
    Click(leave);
    EXPECT_THAT(stay.Said(), testing::Each(StartsWith("ENTRY NOT STORED?")));
    EXPECT_EQ(stay.Boxes().size(), 2);
  }
  EXPECT_EQ(Shown_Text("Name_Text"), Sample().name);
  EXPECT_THAT(Told_By([] { Click(button); }), ElementsAre(StartsWith("WINERY MODIFIED")));
  EXPECT_EQ(One("SELECT SERIAL_NUMBER FROM Wineries WHERE Winery_ID = " + Sample().id), winery[13]);
  Open_Under(screen, "WineOtherAdd");
  Type_Into("Name_Text", "x");
  Choose(country, Sample().country_name);
  Choose(region, Sample().region);
  EXPECT_THAT(Told_By([] { Click(button); }),
              ElementsAre("WINERY ADD ERROR: \"x\" CANNOT be a name."));
  Type_Into("Name_Text", " " + Upper_Case(Sample().name));
  EXPECT_THAT(Told_By([] { Click(button); }),
              ElementsAre("WINERY ADD ERROR: This Winery ALLREADY exists."));
  EXPECT_EQ(Focused(), "Name_Text");
  Type_Into("Name_Text", "Newly found");
  EXPECT_THAT(Told_By([] { Click(button); }), ElementsAre(StartsWith("WINERY CREATED")));
  EXPECT_EQ(Wineries.Winery_Name, "Newly found");
  EXPECT_EQ(Stored("SELECT Country FROM Wineries WHERE Winery_Name = 'Newly found'"),
            Texts{Sample().country});
  const Text id = One("SELECT max(Winery_ID) FROM Wineries");
  for (const bool moves_there : {false, true}) {
    Start_With("Winery_Mod");
    Pick_Winery(id);
    Type_Into("Name_Text", Sample().name);
    Choose(country, moves_there ? Sample().country_name : Name_of_Country("LBN"));
    Choose(region, moves_there ? Sample().region : Cells_of(Region_of("LBN"))[0]);
    EXPECT_THAT(Told_By([] { Click(button); }),
                ElementsAre(StartsWith(moves_there ? "WINERY ADD ERROR" : "WINERY MODIFIED")));
  }
}

}  // namespace
