// Whatever is pasted for a region, a label or a winery, and whatever its row refers to.
#include <QApplication>
#include <QClipboard>
#include <QWidget>
#include <array>

#include "tests/catalogue/Catalogue_Places_Program.h"
#include "tests/support/Hostile_Texts.h"

namespace {

constexpr const char* regions = "Regions_Form/Regions_ListView";
constexpr const char* labels = "Regions_Form/Labels_ListView";
constexpr const char* wineries = "Wineries_Form/Wineries_ListView";

/// How a row is added, changed and found; the first of the fields is the name.
struct Way {
  const char *add, *change, *key, *list;
  Text screen;
  Texts fields;
  std::size_t key_column;
};

const std::array<Way, 3> ways{
    Way{"Region_Add", "Region_Mod_Other", "max(Region_ID) FROM Regions", regions, "Regions_Form",
        Cells_of("Name_Text Description_Text History_Text", " "), 2},
    Way{"Labels_Add", "Labels_Mod", "max(Label_ID) FROM Labels", labels, "Label_Form",
        Texts(1, "Name_Text"), 1},
    Way{"Winery_Add", "Winery_Mod", "max(Winery_ID) FROM Wineries", wineries, "Wineries_Form",
        Cells_of("Name_Text Add1_Text Add2_Text City_Text Province_Text Zip_Code_Text Phone_Text "
                 "Web_Text E_Mail_Text History_Text",
                 " "),
        3}};

class Bad_Input : public Catalogue_Places_Program {
 protected:
  static Texts Held(const Way& way) {
    Texts held;
    for (const Text& field : way.fields) {
      held.push_back(Forms::Screen(way.screen).Get<Forms::Text_Box>(field).Text());
    }
    return held;
  }
  /// Pasted over what stands there: no field is empty meanwhile. What the fields took: a line has
  /// room for so many letters.
  static Texts Enter(const Way& way, const Text& text, const Text& name) {
    for (const Text& field : way.fields) {
      QApplication::clipboard()->setText(
          QString::fromStdString(field == "Name_Text" ? name : text));
      Click(way.screen + "/" + field);
      Press("Ctrl+A");
      Press("Ctrl+V");
    }
    const Texts held = Held(way);
    EXPECT_EQ(held[0], name.substr(0, 32'767));
    for (std::size_t at = 1; at < held.size(); ++at) {
      EXPECT_EQ(held[at], text.substr(0, held[at].size() < 32'767 ? text.size() : held[at].size()));
    }
    return held;
  }
  static void Choose_By_Keys(const Text& list, const char* entry) {
    Click(list);
    Type(entry);
    Press("Return");
  }
  static Texts Commit(const Way& way) {
    return Told_By([&] { Click(way.screen + "/General_Command"); });
  }
  static void Leave() {
    for (const char* screen : {"Label_Form", "Regions_Form", "Wineries_Form"}) {
      if (Is_Seen(screen)) Told_By([&] { Click(screen + Text("/Exit_Command")); });
    }
  }
  /// Blanks alone are no text, and "x" stands for none.
  static void Expect_Shown(const Way& way, const Text& key, const Texts& taken) {
    Pick(way.change);
    if (way.screen == "Label_Form") Click_Line(regions, "Own");
    Click_Line(way.list, key, way.key_column);
    const Texts shown = Held(way);
    EXPECT_EQ(shown[0], way.screen == "Regions_Form" ? Trim(taken[0]) : taken[0]);
    for (std::size_t at = 1; at < taken.size(); ++at) {
      const bool many = way.fields[at] == "History_Text" || way.fields[at] == "Description_Text";
      const char* x = many && !Is_Kept(Fault::Lone_X_Is_No_Text) ? "x " : " ";
      EXPECT_EQ(shown[at], Trim(taken[at]).empty() ? " " : taken[at] == "x" ? x : taken[at]);
    }
  }
  void Add_and_Change(const Way& way, const Text& text, const Text& other) const {
    SCOPED_TRACE(way.add + (" " + text.substr(0, 40)));
    Pick(way.add);
    if (way.screen != "Regions_Form") Choose_By_Keys(way.screen + "/Country_Combo", "Leb");
    const Texts taken = Enter(way, text, text);
    if (way.screen != "Regions_Form") Choose_By_Keys(way.screen + "/Region_Combo", "Own");
    const bool named = !Trim(text).empty();
    EXPECT_EQ(Is_Usable(way.screen + "/General_Command"), named);
    const bool stored = named && (text != "x" || Is_Kept(Fault::Row_Can_Be_Named_X));
    const Text title = !named ? "" : stored ? "CREAT.*: " : " ADD ERROR: ";
    EXPECT_THAT(Commit(way),
                testing::Conditional(named, ElementsAre(testing::ContainsRegex(title)), IsEmpty()));
    Leave();
    if (!stored || (text == "x" && way.screen == "Regions_Form")) return;  // that one is not listed
    const Text key = One(Text("SELECT ") + way.key);
    Expect_Shown(way, key, taken);
    const Texts changed = Enter(way, other, other + "'\"");
    EXPECT_THAT(Commit(way), ElementsAre(testing::ContainsRegex("MODIFI")));
    Leave();
    Expect_Shown(way, key, changed);
    Leave();
  }
  /// Each entry of the list is chosen once.
  static void Go_Through(const Text& list) {
    const Texts entries = Shown_Rows(list);
    Find(list).setFocus();
    for (std::size_t times = 0; times < entries.size(); ++times) Press("Down");
    EXPECT_EQ(Shown_Text(list), entries.back());
  }
};

TEST_F(Bad_Input, What_is_stored_shows_again_and_its_name_goes_through_every_list) {
  Put(Regions_Description, Made_Up_Region("Own", "LBN"));
  Set("Wine_System", {{"Country_Target", "LBN"}});
  Texts texts = Hostile_Texts();
  texts.push_back(Repeated("endless", 15'000));
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    if (mended) texts = {" ", "x", "It's \"x\"; -- ' OR 1=1"};
    Start();
    for (std::size_t at = 0; at < texts.size(); ++at) {
      const Text other = at == 0 ? "Other" : texts[at - 1];
      for (const Way& way : ways) Add_and_Change(way, texts[at], other + (mended ? "!" : "?"));
    }
    for (const Way& way : {ways[1], ways[2]}) {
      Pick(way.add);
      Choose_By_Keys(way.screen + "/Country_Combo", "Leb");
      Go_Through(way.screen + "/Region_Combo");
      Leave();
    }
    Pick("Wine_Add");
    Choose_By_Keys("Wine_Form/Country_Combo", "Leb");
    for (const char* list : {"Winery_Combo", "Region_Combo", "Label_Combo"}) Go_Through(list);
  }
}

// As designed a text that has gone ends the run, and the picker of grapes where the country has.
TEST_F(Bad_Input, A_row_whose_links_dangle_leaves_blanks) {
  constexpr Integer gone = 32000;
  Regions_Record region = Made_Up_Region("Mute");
  region.Description = region.History = gone;
  region.Sub_Region_Of = Put(Regions_Description, region) + 1;  // its own parent
  region.Region_Name = "No country";
  region.Country = "?";
  region.Description = region.History = -1;
  const Long own = Put(Regions_Description, region);
  Mobile_Wines_Record wine;
  Mobile_Wines_Description.Init(wine);
  wine.Mobile_Wine_Label_ID = Put(Labels_Description, Made_Up_Label("Of none", own));
  wine.Mobile_Wine_Variety_ID = gone;
  Put(Mobile_Wines_Description, wine);
  for (const Integer group : {Integer{10}, gone}) {
    Put("Varieties_Per_Region", {{"Region_ID", own}, {"GROUP", group}, {"SUBCATEGO", 1111111111}});
  }
  for (const auto& [name, history] : {std::pair{"No country", "x"}, {"Mute", "32000"}}) {
    Wineries_Record winery;
    Wineries_Description.Init(winery);
    std::tie(winery.Winery_Name, winery.History) = std::pair{name, history};
    std::tie(winery.Country, winery.Region_ID) = std::pair{"?", gone};
    const Long key = Put(Wineries_Description, winery);
    for (const Long label : {Long{gone}, Long{wine.Mobile_Wine_Label_ID}}) {
      Put("Labels_per_Winery", {{"Winery_ID", key}, {"Label_ID", label}});
    }
  }
  // The list of each entry, and that of the picked row.
  std::vector<std::array<Text, 3>> entries{
      {"Region_Mod_Var", "Regions_Add_Mod_Varieties_Form/Regions_ListView"},
      {"Winery_List", wineries, "Winery_Labels_List"}};
  for (const Text& entry : Cells_of("Winery_Mod Winery_Del", " ")) {
    entries.push_back({entry, wineries});
  }
  for (const Text& entry : Cells_of("Region_Del Region_Pair_Varieties Region_Mod_Other "
                                    "Regions_List Labels_View Labels_Mod Labels_Del",
                                    " ")) {
    entries.push_back({entry, regions, labels});
  }
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    for (const auto& [entry, list, list_of_row] : entries) {
      for (const char* name : {"No country", "Mute"}) {
        SCOPED_TRACE(entry + " " + name);
        Open(entry.c_str());
        const auto pick = [&list, &name] { Click_Line(list, name); };
        const bool no_texts = entry == "Region_Mod_Var";
        const bool ends = name == Text("Mute") ? !no_texts : entry == "Region_Pair_Varieties";
        if (ends && !mended) {
          Expect_End(3021, pick);
          continue;
        }
        const End_Watch end;
        Denied_By(pick);
        const bool more = !list_of_row.empty() && Is_Seen(list_of_row);
        const int rows = more ? static_cast<int>(Shown_Rows(list_of_row).size()) : 0;
        for (int row = 0; row < rows && Is_Seen(list_of_row); ++row) {
          Denied_By([&] { Click_Row(list_of_row, row); });
        }
        EXPECT_FALSE(end.Ended());
      }
    }
  }
}

}  // namespace
