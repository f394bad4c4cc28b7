// The screen of a label: added by its menu entry and on the way to a wine, renamed from the screen
// of the regions.
#include "tests/catalogue/Catalogue_Places_Program.h"

namespace {

constexpr const char* form = "Label_Form";
constexpr const char* regions_form = "Regions_Form";
constexpr const char* main_window = "Wine_Cellar_Form";
constexpr const char* country = "Label_Form/Country_Combo";
constexpr const char* region = "Label_Form/Region_Combo";
constexpr const char* name = "Label_Form/Name_Text";
constexpr const char* button = "Label_Form/General_Command";
constexpr const char* leave = "Label_Form/Exit_Command";
constexpr const char* labels = "Regions_Form/Labels_ListView";
constexpr const char* refused = "LABEL ADD ERROR: This Label ALLREADY exists.";

class Label_Screen : public Catalogue_Places_Program {
 protected:
  void SetUp() override {
    own_ = Put(Regions_Description, Made_Up_Region("Own"));
    first_ = Put(Labels_Description, Made_Up_Label("First", own_));
  }
  static Texts Commit() {
    return Told_By([] { Click(button); });
  }
  /// Over what stands there, which is never empty meanwhile.
  static void Retype(const Text& text) {
    Click(name);
    Press("Ctrl+A");
    Type(text);
  }
  static Text State_of_Boxes() {
    return Color_of(country) + " " + Color_of(region) + " " + Color_of(name) +
           (Is_Usable(button) ? " usable" : "");
  }
  static void Choose_Own_Region() {
    Choose(country, "France");
    Choose(region, "Own");
  }
  Texts Labels_of_Own(const Text& fields = "Label_Name") const {
    return Stored("SELECT " + fields + " FROM Labels WHERE Region_ID = " + To_Text(own_) +
                  " ORDER BY Label_ID");
  }
  /// From the screen of the regions, by either way there.
  void Open_Label(const char* entry, const char* label) {
    Open(entry);
    Click_Line("Regions_Form/Regions_ListView", "Own");
    Click_Line(labels, label);
  }

  Long own_ = 0, first_ = 0;
};

// The country and the region on show are still to be chosen, and an emptied name has the region
// chosen again.
TEST_F(Label_Screen, A_label_is_added_once_its_boxes_are_not_red) {
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Set("Wine_System", {{"Installation_ID", " 77 "}, {"Country_Target", "ITA"}});
    Open("Labels_Add", mended ? german : english);
    EXPECT_EQ(Shown_Text(form), "ADD a new Label for a Wine Region");
    EXPECT_EQ(Shown_Text(country), mended ? "Italien" : "Italy");
    EXPECT_NE(Shown_Text(region), "");
    Type_Into(name, " \"O'Neu\"");
    EXPECT_EQ(State_of_Boxes(), "required required open");
    Choose(country, mended ? "Frankreich" : "France");
    EXPECT_EQ(State_of_Boxes(), "open required open");
    Choose(region, "Own");
    EXPECT_EQ(State_of_Boxes(), "open open open usable");
    EXPECT_EQ(Shown_Text("Current_Labels_Combo"), "First");
    Type_Into(name, "");
    Type("  ");
    EXPECT_EQ(State_of_Boxes(), "open required open");
    Type_Into(name, "First ");
    EXPECT_EQ(State_of_Boxes(), "open required open");
    Choose(region, "Own");
    for (int again = 0; again < 2; ++again) EXPECT_THAT(Commit(), ElementsAre(refused));
    EXPECT_EQ(Focused(), "Name_Text");
    if (mended) {
      Retype("fIRST");
      EXPECT_THAT(Commit(), ElementsAre(refused));
      Retype("No Label");
      EXPECT_THAT(Commit(), ElementsAre("LABEL ADD ERROR: \"No Label\" CANNOT be a name."));
    }
    const Text typed = mended ? "\"O'Neu\" " : "fIRST ";
    Retype(typed);
    EXPECT_THAT(Commit(),
                ElementsAre("SUCCESSFULL LABEL CREATION: Label was created successfully."));
    EXPECT_TRUE(Is_Seen(main_window));
    EXPECT_FALSE(Forms::Screen(form).Is_Loaded());
    const Text key = Labels_of_Own("Label_ID").back();
    EXPECT_EQ(Labels_of_Own("Label_Name, Used, SERIAL_NUMBER").back(), typed + "|0|CUS77-" + key);
  }
}

TEST_F(Label_Screen, A_label_is_renamed_and_its_row_behind_follows) {
  Labels_Record label = Made_Up_Label("Mine", own_);
  label.Wine_Color = "White";
  label.Used = 2;
  const Long mine = Put(Labels_Description, label);
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    Open_Label(mended ? "Region_Mod_Other" : "Labels_Mod", "Mine");
    EXPECT_EQ(Shown_Text(form), "MODIFY Label Information");
    EXPECT_EQ(Shown_Text(button), "MODIFY");
    EXPECT_EQ(State_of_Boxes(), "locked locked open usable");
    EXPECT_EQ(Shown_Text(country) + Shown_Text(region), "FranceOwn");
    EXPECT_EQ(Shown_Text("Current_Labels_Combo"), "Mine");
    Retype("First");
    for (int again = 0; again < 2; ++again) EXPECT_THAT(Commit(), ElementsAre(refused));
    for (const Text renamed : {"Mine", "Renamed", "Mine"}) {
      Retype(renamed);
      EXPECT_THAT(Commit(),
                  ElementsAre("SUCCESSFULL LABEL MODIFICATION: Label was modified successfully."));
      EXPECT_FALSE(Forms::Screen(form).Is_Loaded());
      EXPECT_TRUE(Is_Seen(regions_form));
      EXPECT_THAT(Shown_Column(labels, 0), UnorderedElementsAre("First", renamed));
      EXPECT_EQ(Labels_of_Own("Label_ID, Label_Name, Wine_Color, Used, SERIAL_NUMBER").back(),
                To_Text(mine) + "|" + renamed + "|White|2|CUS");
      Click_Line(labels, renamed);
    }
    Type_Into(name, "Again");  // empty at first: as designed MODIFY stays closed after that
    EXPECT_EQ(Is_Usable(button), mended);
  }
  // What is left behind goes on with its own row.
  Click(leave);
  Click_Line("Regions_Form/Regions_ListView", "Own");
  Retype("Left behind");
  Commit();
  EXPECT_THAT(Labels_of_Own(), ElementsAre("First", "Left behind"));
}

// As designed both ends end the run, and EXIT takes a region along that is not the screen's.
TEST_F(Label_Screen, A_label_on_the_way_to_a_wine) {
  const auto open = [this] {
    Open("Wine_Add");
    Choose_Winery();
    Type_Into("Wine_Form/Comments_Text", "typed before");
    Click("Label_Add_Command");
    EXPECT_FALSE(Is_Seen("Wine_Form"));
    Press("Esc");
    Choose_Own_Region();
    Type_Into(name, "Of a wine");
  };
  const int regions = Rows_in("Regions");
  open();
  Expect_End(424, [] { Click(button); });
  EXPECT_EQ(One("SELECT Label_Name FROM Labels ORDER BY Label_ID DESC"), "No Label");
  open();
  Expect_End(424, [] { Close_Window(form); });
  EXPECT_EQ(Rows_in("Regions"), regions - 1);
  EXPECT_THAT(Stored("SELECT * FROM Regions WHERE Region_ID = " + To_Text(own_)), IsEmpty());

  own_ = Put(Regions_Description, Made_Up_Region("Own"));
  const int rows = Rows_in("Labels");
  const Faults_Mended faults;
  open();
  EXPECT_THAT(Told_By([] { Click(leave); }), testing::SizeIs(1));
  EXPECT_EQ(Rows_in("Labels"), rows - 2);  // what the two runs that ended left went at this start
  EXPECT_EQ(Rows_in("Regions"), regions);
  EXPECT_EQ(Shown_Text("Wine_Form/Comments_Text"), "typed before");
  EXPECT_EQ(Shown_Text("Wine_Form/Label_Combo"), "New Label");
  for (const bool of_the_wine : {true, false}) {
    Click("Label_Add_Command");
    Choose(country, of_the_wine ? Sample().country_name : "France");
    Choose(region, of_the_wine ? Sample().region : "Own");
    Type_Into(name, "Of a wine");
    EXPECT_THAT(Commit(),
                ElementsAre("SUCCESSFULL LABEL CREATION: Label was created successfully."));
    EXPECT_FALSE(Forms::Screen(form).Is_Loaded());
    EXPECT_EQ(Shown_Text("Wine_Form/Label_Combo"), "Of a wine");
    EXPECT_EQ(Color_of("Wine_Form/Label_Combo"), "open");
    EXPECT_EQ(Shown_Text("Wine_Form/Comments_Text"), "typed before");
    EXPECT_EQ(One("SELECT Region_ID FROM Labels ORDER BY Label_ID DESC"),
              of_the_wine ? Sample().region_id : To_Text(own_));
    Choose("Wine_Form/Label_Combo", "New Label");
  }
}

}  // namespace
