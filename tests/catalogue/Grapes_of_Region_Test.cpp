// The grapes of a region, by the picker and by the screen that replaces them all.
#include <map>

#include "links/Varieties_Processes.h"
#include "tests/catalogue/Catalogue_Places_Program.h"

namespace {

constexpr const char* form = "Regions_Add_Mod_Varieties_Form";
constexpr const char* entry = "Region_Mod_Var";
constexpr const char* regions = "Regions_Add_Mod_Varieties_Form/Regions_ListView";
constexpr const char* available = "Varieties_AvailableView";
constexpr const char* selected = "Varieties_Selected_ListView";
constexpr const char* proceed = "Regions_Add_Mod_Varieties_Form/General_Command";
constexpr const char* leave = "Regions_Add_Mod_Varieties_Form/Exit_Command";
constexpr const char* matched =
    "VARIETIES MATCHED TO REGION: Vaieties were added to the selected Region.";

class Grapes_of_Region : public Catalogue_Places_Program {
 protected:
  void SetUp() override {
    own_ = Put(Regions_Description, Made_Up_Region("Own"));
    Put(Regions_Description, Made_Up_Region("Other"));
    grapes_ = Stored("SELECT Variety_Name FROM Varieties ORDER BY Variety_ID LIMIT 4");
  }
  void Pick_Own() {
    Open(entry);
    Click_Line(regions, "Own");
  }
  static void Add_Grape(const Text& grape) {
    Click_Line(available, grape);
    Click("Add_Var_Command");
  }
  static void Remove_Grape(const Text& grape) {
    Click_Line(selected, grape);
    Click("Remove_Var_Command");
  }
  static Texts Proceed() {
    return Told_By([] { Click(proceed); });
  }
  /// The names in the two tables: those that the link rows say, and those of the way back.
  Texts Linked() const {
    Texts names;
    for (const Text& row :
         Stored("SELECT \"GROUP\", SUBCATEGO FROM Varieties_Per_Region WHERE " + Of_Own())) {
      const Texts cells = Cells_of(row);
      Long mask = To_Long(cells[1]);
      while (mask > 0) {
        names.push_back(
            One("SELECT Variety_Name FROM Varieties WHERE Variety_Group * 10 = " + cells[0] +
                " AND Variety_SubGr = " + To_Text(Next_Subgroup_of_Mask(mask))));
      }
    }
    return names;
  }
  Texts Way_Back() const {
    return Stored(
        "SELECT Variety_Name FROM Regions_Per_Variety JOIN Varieties USING (Variety_ID) WHERE " +
        Of_Own());
  }
  Text Of_Own() const { return "Region_ID = " + To_Text(own_); }

  Long own_ = 0;
  Texts grapes_;
};

// As designed the picker leaves in the way back what it took out.
TEST_F(Grapes_of_Region, Both_tables_are_right_after_this_screen_whatever_the_picker_left) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    for (const int grape : {0, 1}) {
      Open("Region_Pair_Varieties");
      Click_Line("Regions_Form/Regions_ListView", "Own");
      if (grape == 1) Double_Click_Line("SelectList", grapes_[0]);
      Add(grapes_[grape]);
      Told_By([] { Click("MultSelect"); });
      EXPECT_THAT(Linked(), ElementsAre(grapes_[grape]));
    }
    EXPECT_THAT(Way_Back(), testing::SizeIs(mended ? 1 : 2));

    Open(entry);
    Click_Line(available, grapes_[2]);
    EXPECT_FALSE(Is_Usable("Add_Var_Command"));  // there is no region yet
    Click_Line(regions, "Own");
    EXPECT_THAT(Shown_Column(selected, 0), ElementsAre(grapes_[1]));
    Add_Grape(grapes_[2]);
    EXPECT_FALSE(Is_Usable("Add_Var_Command"));
    EXPECT_THAT(Told_By([this] { Add_Grape(grapes_[2]); }),
                ElementsAre("ERROR DUPLICATE ENTRIES: Error, variety is ALLREADY in the selected "
                            "list"));
    Double_Click_Line(available, grapes_[3]);
    Remove_Grape(grapes_[1]);
    EXPECT_FALSE(Is_Usable("Remove_Var_Command"));
    EXPECT_THAT(Proceed(), ElementsAre(matched));
    EXPECT_FALSE(Is_Usable(proceed));
    EXPECT_THAT(Linked(), UnorderedElementsAre(grapes_[2], grapes_[3]));
    EXPECT_THAT(Way_Back(), UnorderedElementsAre(grapes_[2], grapes_[3]));
    EXPECT_EQ(One("SELECT DISTINCT SERIAL_NUMBER FROM Regions_Per_Variety WHERE " + Of_Own()),
              "CUS" + To_Text(own_));

    Pick_Own();
    for (const int grape : {3, 2}) Remove_Grape(grapes_[grape]);
    Proceed();
    EXPECT_THAT(Linked(), IsEmpty());
    EXPECT_THAT(Way_Back(), IsEmpty());
  }
}

// A grape of a sub-region has no key, and a 101st one no place: as designed both end the run before
// anything is written.
TEST_F(Grapes_of_Region, What_cannot_be_stored) {
  Regions_Record child = Made_Up_Region("Child");
  child.Sub_Region_Of = own_;
  const Long child_id = Put(Regions_Description, child);
  Put("Varieties_Per_Region", {{"Region_ID", own_}, {"GROUP", 10}, {"SUBCATEGO", 1}});
  Put("Varieties_Per_Region", {{"Region_ID", child_id}, {"GROUP", 10}, {"SUBCATEGO", 11}});
  const Texts before = Linked();
  Pick_Own();
  const Texts shown = Shown_Column(selected, 0);
  ASSERT_THAT(shown, testing::SizeIs(2));
  Add_Grape(shown[1]);  // the sub-region's becomes the region's own too
  Remove_Grape(shown[0]);
  Expect_End(35600, [] { Click(proceed); });
  EXPECT_EQ(Linked(), before);
  Mend_Known_Faults();
  Pick_Own();
  Add_Grape(shown[1]);
  Proceed();
  EXPECT_EQ(Linked().size(), 2U);

  Mend_Known_Faults(false);
  Remove_Rows("Varieties_Per_Region");
  for (int group = 1; group <= 10; ++group) {
    Put("Varieties_Per_Region",
        {{"Region_ID", own_}, {"GROUP", group * 10}, {"SUBCATEGO", 1111111111}});
  }
  const Text one_more = One("SELECT Variety_Name FROM Varieties WHERE Variety_Group = 11");
  Pick_Own();
  Add_Grape(one_more);
  Expect_End(9, [] { Click(proceed); });
  EXPECT_EQ(Linked().size(), 100U);
  const Faults_Mended faults;
  Pick_Own();
  EXPECT_THAT(Told_By([&] { Add_Grape(one_more); }), ElementsAre(StartsWith("NO ROOM FOR MORE")));
  EXPECT_EQ(Shown_Column(selected, 0).size(), 100U);
}

TEST_F(Grapes_of_Region, Another_region_and_CANCEL_throw_away_what_was_changed) {
  const std::initializer_list<std::function<void()>> ways = {
      [] { Click_Line(regions, "Other"); }, [] { Click(leave); }, [] { Close_Window(form); }};
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    for (const auto& away : ways) {
      Pick_Own();
      Add_Grape(grapes_[0]);
      Click_Header(selected, 1);
      Press("Esc");
      if (mended) {
        EXPECT_THAT(Denied_By(away), testing::SizeIs(1));
        EXPECT_THAT(Shown_Column(selected, 0), ElementsAre(grapes_[0]));
        EXPECT_EQ(Chosen_Row(regions), Row_With(regions, "Own"));
      }
      EXPECT_THAT(Told_By(away), testing::SizeIs(mended ? 1 : 0));
      EXPECT_NE(Forms::Screen(form).Is_Loaded(), Is_Seen("Wine_Cellar_Form"));
      EXPECT_THAT(Linked(), IsEmpty());
      if (!Forms::Screen(form).Is_Loaded()) continue;
      for (const char* closed : {"Add_Var_Command", "Remove_Var_Command", proceed}) {
        EXPECT_FALSE(Is_Usable(closed)) << closed;
      }
    }
  }
}

}  // namespace
