// What the screen shows and allows in each of its modes: from its opening over the choice or the
// pick to the button, to other screens and back.

#include <QAbstractItemView>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "links/Varieties_Processes.h"
#include "platform/run_time/Guard.h"
#include "tests/support/Cellar_Program.h"
#include "tests/support/Faults_Mended.h"

namespace {

const Forms::Screen screen("Wine_Form");
constexpr const char* list = "Wine_Cellar_ListView";
constexpr const char* button = "Multi_Functional_Command";
const Text pick_first = "Please Select a Wine from the Cellar first";

// Adds the name of a field, without its kind.
void Add(Text& names, const Text& field) {
  names += (names.empty() ? "" : " ") + field.substr(0, field.rfind('_'));
}

// The fields: those unlocked, or "all but" the others; those required; the colours of the grapes,
// the pairings and the boxes. Any other field's colour says whether it is locked.
Text Fields(const std::function<Text(const char*)>& color_of,
            const std::function<bool(const char*)>& is_locked) {
  Text locked, unlocked, required;
  int open = 0;
  for (const char* field :
       {"Winery_Combo", "Label_Combo", "Region_Combo", "Country_Combo", "Vintage_Combo",
        "Peak_Year_Combo", "Price_Text", "Merit_Combo", "Bottle_Size_Combo", "Total_Bottles_Text",
        "Description_Text", "Color_Combo", "Alcohol_Text", "Classification_Combo", "Comments_Text",
        "Last_Date_Uncorked_Text", "Date_Added_Text"}) {
    Add(is_locked(field) ? locked : unlocked, field);
    if (!is_locked(field)) ++open;
    if (color_of(field) == "required") {
      Add(required, field);
    } else {
      EXPECT_EQ(color_of(field), is_locked(field) ? "locked" : "open") << field;
    }
  }
  return (open > 8 ? "all but " + locked : unlocked) + "; " + required + "; " +
         color_of("Variety_Combo") + " " + color_of("Pairing_List") + " " +
         color_of("Aroma_Check_7");
}

class Modes : public Cellar_Program {
 protected:
  // The button; the fields; a capital letter for each add button, a small one if it is disabled,
  // "." if it is hidden; and the message that stands in place of the aroma boxes.
  static Text Look() {
    Text look = Shown_Text(button);
    if (!Is_Seen(button)) look += " hidden";
    if (!screen.Control(button).Enabled()) look += " disabled";
    look += "; " + Fields(Color_of, Is_Locked) + "; ";
    for (const char* name : {"Winery", "Label", "Classification", "Variety", "Pairings"}) {
      const Text add = name + Text("_Add_Command");
      const int letter = Is_Usable(add) ? *name : std::tolower(*name);
      look += Is_Seen(add) ? static_cast<char>(letter) : '.';
    }
    EXPECT_NE(Is_Seen("Aroma_Frame"), Is_Seen("Message_Label"));
    return look + "; " + (Is_Seen("Message_Label") ? Shown_Text("Message_Label") : "");
  }

  using Action = std::function<void()>;
  static void Walk(const char* caption, const std::vector<std::pair<Action, Text>>& steps) {
    int number = 0;
    for (const auto& [act, look] : steps) {
      act();
      EXPECT_EQ(Look(), look) << caption << ", step " << ++number;
      EXPECT_EQ(Shown_Text("Wine_Form"), caption);
    }
  }
  static Action Entry(const char* entry) {
    return [entry] { Pick(entry); };
  }
  static Action Wine(Long wine) {
    return [wine] { Pick_Wine(wine); };
  }
  static void Press_Button() { Click(button); }
  // As on the return from another window of the program.
  static void Activate() {
    Run_Guarded([] { screen.Show(); });
    Settle_Events();
  }
};

TEST_F(Modes, Every_field_and_button_has_a_mnemonic_of_its_own_the_same_in_each) {
  Put_Wine(Sample_Wine());
  std::map<QString, QString> kept;
  const QRegularExpression mnemonic("&([^&])");
  for (const char* entry : {"Wine_Add", "Wine_Mod", "Wine_Uncork", "Wine_Del"}) {
    Start_With(entry);
    if (entry != std::string("Wine_Add")) Pick_Wine(1);
    std::set<QString> letters;
    for (const QWidget* bearer : Find("Wine_Form").findChildren<QWidget*>()) {
      const QString text = bearer->property("text").toString();
      const auto match = mnemonic.match(text);
      const auto* label = qobject_cast<const QLabel*>(bearer);
      const bool is_bearer = qobject_cast<const QPushButton*>(bearer) != nullptr ||
                             (label != nullptr && label->buddy() != nullptr);
      EXPECT_TRUE(match.hasMatch() || !is_bearer) << bearer->objectName().toStdString();
      if (!match.hasMatch() || bearer->objectName().isEmpty()) continue;
      EXPECT_TRUE(letters.insert(match.captured(1).toUpper()).second) << text.toStdString();
      const QString caption = bearer->objectName() + " " + QString(text).remove('&');
      EXPECT_EQ(kept.try_emplace(caption, text).first->second, text);
    }
  }
}

TEST_F(Modes, Adding) {
  const Text no_country = "SAVE disabled; Country; Country; locked locked locked; W...p; ";
  const Text no_winery = "SAVE disabled; Winery Country; Winery; locked locked locked; W...p; ";
  const Text new_winery = "SAVE disabled; Winery; Winery; locked locked locked; W...p; ";
  const Text chosen =
      "SAVE disabled; all but Region; Label Vintage Bottle_Size Total_Bottles Color "
      "Classification; "
      "required open check; wLCVP; ";
  const Text filled = "SAVE; all but Region; Vintage; open open check; wlcvP; ";
  Put_Wine(Sample_Wine());
  Start();
  Box_Script boxes;
  Walk("Add New Wine to the Cellar",
       {{Entry("Wine_Add"), no_country},
        {[] {
           Click_Row(list, 0);
           EXPECT_FALSE(screen.Get<Forms::List_View>(list).Has_Selection());
         },
         no_country},
        {[this] { Choose("Country_Combo", Sample().country_name); }, no_winery},
        {[this] { Choose("Winery_Combo", Sample().name); }, chosen},
        {[] { Choose("Winery_Combo", "New Winery"); }, new_winery},
        {[this] { Choose("Winery_Combo", Sample(1).name); }, chosen},
        {[this] { Fill_Add(); }, filled},
        {Activate, filled},
        {Press_Button, no_country},
        {[this] { Fill_Add({}, 1); }, filled},
        {Press_Button, no_country}});
  EXPECT_EQ(boxes.Boxes().size(), 2U);
}

TEST_F(Modes, Modifying) {
  const Text nothing = "SAVE hidden disabled; ; ; locked locked locked; ";
  const Text picked = "MODIFY; all but Winery Region Country; ; open open check; ";
  const Long wines[] = {Put_Wine(Sample_Wine()), Put_Wine(Sample_Wine())};
  Start();
  Box_Script boxes;
  Walk("MODIFY Wine Information", {{Entry("Wine_Mod"), nothing + "wlcvP; " + pick_first},
                                   {Activate, nothing + "wlcvP; " + pick_first},
                                   {Wine(wines[1]), picked + ".lcvP; "},
                                   {Activate, picked + ".lcvP; "},
                                   {Press_Button, nothing + "....P; " + pick_first},
                                   {Activate, nothing + "....P; " + pick_first},
                                   {Wine(wines[0]), picked + "....P; "},
                                   {Wine(wines[1]), picked + "....P; "}});
  EXPECT_EQ(Shown_Text("Pairings_Add_Command"), "Modify Pairing");
  EXPECT_EQ(boxes.Texts(), Texts{"Wine information was Modified."});
  Type_Into("Comments_Text", "changed");
  screen.Get<Forms::List_View>(list).SetFocus();
  Press("Up");
  EXPECT_EQ(Shown_Text("Comments_Text"), "changed");
  Press("Return");
  EXPECT_NE(Shown_Text("Comments_Text"), "changed");
}

TEST_F(Modes, Looking) {
  const Text look = "SAVE hidden disabled; ; ; locked locked locked; .....; ";
  const char* caption = "Display of Current Cellar";
  const Long wines[] = {Put_Wine(Sample_Wine()), Put_Wine(Sample_Wine(1))};
  Start();
  Walk(caption, {{Entry("Cellar1_View"), look}, {Wine(wines[0]), look}, {Activate, look}});
  screen.Get<Forms::List_View>(list).SetFocus();
  Type(Sample(1).name);
  EXPECT_EQ(Shown_Text("Winery_Combo"), Sample(1).name);
  Stand_In("Wineries_Form");
  Double_Click("Winery_Combo");
  EXPECT_EQ(Current_Command, "WineryList");
  Forms::Screen("Wineries_Form").Unload();
  Activate();
  Click("Exit_Command");
  EXPECT_FALSE(screen.Is_Loaded());
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));

  Stand_In("Cheeses_Form");
  Requested_Wine_Text = std::to_string(wines[1]);
  Walk(caption, {{[] { Open_Under("Wine_Form", "CheeseParingsCellar"); }, look}});
  EXPECT_EQ(Shown_Text("Winery_Combo"), Sample(1).name);
  Click("Exit_Command");
  EXPECT_TRUE(Is_Seen("Cheeses_Form"));
  EXPECT_TRUE(screen.Is_Loaded());
}

// A real message box: closing it is no return to the screen, which would close the button.
TEST_F(Modes, Uncorking) {
  const Text rest = "; ; ; locked locked locked; .....; ";
  const Text empty = "UNCORK disabled; ; Total_Bottles; locked locked locked; .....; ";
  Wines_Record none_left = Sample_Wine();
  none_left.Total_Bottles = 0;
  const Long wines[] = {Put_Wine(Sample_Wine()), Put_Wine(none_left), Put_Wine(Sample_Wine())};
  Start();
  const auto uncork = [] {
    Press_In_Next_Box("Return");
    Press_Button();
  };
  Walk("Select Wine to Uncork", {{Entry("Wine_Uncork"), "SAVE hidden disabled" + rest + pick_first},
                                 {Wine(wines[0]), "UNCORK" + rest},
                                 {uncork, "UNCORK" + rest},
                                 {uncork, "UNCORK" + rest},
                                 {uncork, empty},
                                 {Wine(wines[1]), empty},
                                 {Wine(wines[2]), "UNCORK" + rest},
                                 {Activate, "UNCORK disabled" + rest}});
}

TEST_F(Modes, Removing) {
  const Text rest = "; ; ; locked locked locked; wlcv.; ";
  const char* caption = "Select Wine Delete";
  const Long wine = Put_Wine(Sample_Wine());
  Start();
  Box_Script boxes({false, true});
  Walk(caption, {{Entry("Wine_Del"),
                  "SAVE disabled" + rest + "Please Select the Wine to REMOVE from the Cellar"}});
  for (const char* field : {"Winery_Combo", "Country_Combo", "Vintage_Combo", "Variety_Combo"}) {
    EXPECT_TRUE(Shown_Rows(field).empty()) << field;
  }
  Walk(caption, {{Wine(wine), "REMOVE" + rest},
                 {Press_Button, "REMOVE" + rest},
                 {Activate, "REMOVE disabled" + rest},
                 {Wine(wine), "REMOVE" + rest}});
  Press_Button();
  EXPECT_FALSE(screen.Is_Loaded());
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
}

TEST_F(Modes, A_new_winery_and_a_new_label_are_chosen_on_the_return) {
  for (const char* name : {"Wineries_Form", "Label_Form"}) Stand_In(name);
  Put_Wine(Sample_Wine());
  Start_With("Wine_Add");
  Click("Winery_Add_Command");
  EXPECT_TRUE(Is_Seen("Wineries_Form"));
  EXPECT_FALSE(screen.Is_Loaded());
  Wineries.Winery_ID = Sample(1).id;  // what its screen leaves behind
  screen.Set_Tag("1");
  Activate();
  EXPECT_EQ(Shown_Text("Winery_Combo"), Sample(1).name);
  EXPECT_EQ(Shown_Text("Region_Combo"), Sample(1).region);
  Type_Into("Comments_Text", "typed before");
  Click("Label_Add_Command");
  EXPECT_TRUE(Is_Seen("Label_Form"));
  EXPECT_FALSE(Is_Seen("Wine_Form"));
  Current_Command = "LabelAdd";
  screen.Set_Tag("1");
  Activate();
  EXPECT_EQ(Current_Command, "WineAdd");
  EXPECT_EQ(Shown_Text("Winery_Combo"), Sample(1).name);
  EXPECT_EQ(Shown_Text("Comments_Text"), "typed before");
  EXPECT_EQ(screen.Tag(), "0");
}

// Where a question comes, No keeps all that stands there.
TEST_F(Modes, What_was_entered_is_left_after_a_question_where_that_is_mended) {
  for (int wine = 0; wine < 2; ++wine) Put_Wine(Sample_Wine());
  for (const bool mended : {false, true}) {
    const Faults_Mended faults(mended);
    const auto leave = [mended](const Action& by, bool sure) {
      const Box_Script boxes({sure});
      by();
      EXPECT_THAT(boxes.Said(),
                  testing::Each("WINE NOT STORED? What was entered for this wine is not stored. "
                                "Leave it unstored?"));
      EXPECT_EQ(boxes.Boxes().size(), mended ? 1U : 0U);
    };
    const Action exit = [] { Click("Exit_Command"); };
    const Action new_winery = [] { Choose("Winery_Combo", "New Winery"); };
    Start();
    EXPECT_EQ(Is_Seen("Known_Faults_Label"), mended);
    Pick("Wine_Add");
    Choose_Winery();
    EXPECT_THAT(Told_By(exit), IsEmpty());
    Pick("Wine_Add");
    Press("Esc");
    Choose_Winery();
    Type_Into("Comments_Text", "Good");
    Press("Esc");
    leave(new_winery, false);
    EXPECT_EQ(Shown_Text("Winery_Combo"), mended ? Sample().name : "New Winery");
    EXPECT_EQ(Shown_Text("Comments_Text"), mended ? "Good" : "");
    if (mended) leave(new_winery, true);
    EXPECT_EQ(Shown_Text("Comments_Text"), "");
    EXPECT_THAT(Told_By(exit), IsEmpty());
    Pick("Wine_Add");
    Choose_Winery();
    Choose("Label_Combo", Sample().label);
    EXPECT_THAT(Told_By([this] { Choose("Winery_Combo", Sample().name); }), IsEmpty());
    EXPECT_EQ(Shown_Text("Label_Combo"), mended ? Sample().label : "New Label");
    Choose("Label_Combo", Sample().label);
    leave([this] { Choose("Country_Combo", Sample(1).country_name); }, false);
    EXPECT_EQ(Shown_Text("Country_Combo"), Sample(mended ? 0 : 1).country_name);
    EXPECT_EQ(Shown_Text("Label_Combo"), mended ? Sample().label : "New Label");
    if (mended) leave([this] { Choose_Winery(1); }, true);
    Type_Into("Comments_Text", " ");
    EXPECT_THAT(Told_By(exit), IsEmpty());
    Pick("Wine_Mod");
    Press("Esc");
    Pick_Wine(1);
    EXPECT_THAT(Told_By([] { Pick_Wine(2); }), IsEmpty());
    Click("Aroma_Check_5");
    leave([] { Pick_Wine(1); }, false);
    auto& wines = screen.Get<Forms::List_View>(list);
    EXPECT_EQ(wines.SelectedItem().SubItems(9), mended ? "2" : "1");
    EXPECT_EQ(Is_Ticked("Aroma_Check_5"), mended);
    if (mended) leave(exit, true);
  }
}

TEST_F(Modes, Chosen_pairings_are_taken_over_once) {
  Start();
  Selected_Count = 2;
  for (const int pairing : {1, 2}) {
    Selected_Names[pairing] = "food " + std::to_string(pairing);
    Selected_IDs[pairing] = std::to_string(40 + pairing);
  }
  // Under WineMod the old keys stay ahead of the new ones.
  for (const auto& [entry, keys] : {std::pair{"Wine_Add", 2U}, {"Wine_Mod", 4U}}) {
    Pick(entry);
    for (int visit = 0; visit < 2; ++visit) {
      screen.Control("Pairings_Add_Command").Set_Tag("1");
      Activate();
      EXPECT_EQ(Shown_Rows("Pairing_List"), (Texts{"food 1", "food 2"}));
      EXPECT_EQ(Tag_of("Pairings_Add_Command"), "0");
    }
    EXPECT_EQ(Shown_Rows("Pairing_Index_List").size(), keys) << entry;
    Click("Exit_Command");
  }
}

// The captions stay English: their tips tell them in the language, whatever they become.
TEST_F(Modes, In_another_language_each_caption_has_its_word_for_a_tip) {
  Set_Language(german);
  Start_With("Wine_Uncork");
  EXPECT_EQ(Find(list).accessibleDescription(),
            "Hier sind noch keine Weine. Mit „Weine“, „In den Keller legen“ tragen Sie einen ein.");
  Stop();
  const Long wine = Put_Wine(Sample_Wine());
  Start_With("Wine_Uncork");
  EXPECT_EQ(Find(list).accessibleDescription(), "");
  EXPECT_EQ(Find("Winery_Label").toolTip(), "Weingut");
  EXPECT_TRUE(Find("Winery_Combo").toolTip().startsWith("Weingut\nPlatzhalter: "));
  EXPECT_EQ(Find("Taste_Check_0").toolTip().section('\n', 0, 0), "Süß");
  EXPECT_EQ(Find("Exit_Command").accessibleDescription(), "SCHLIESSEN");
  EXPECT_EQ(Find("Message_Label").toolTip(), "Bitte wählen Sie zuerst einen Wein aus dem Keller");
  const auto& rows = static_cast<const QAbstractItemView&>(Find(list));
  EXPECT_EQ(rows.model()->headerData(8, Qt::Horizontal, Qt::ToolTipRole), "Bestand");
  Click_Line(list, To_Text(wine), 9);
  EXPECT_EQ(Find(button).toolTip(), "ENTKORKEN");
  EXPECT_FALSE(Find("Winery_Combo").toolTip().contains("Platzhalter"));
}

}  // namespace
