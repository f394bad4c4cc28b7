// The single controls: text box, check box, picture, menu, message box, colours.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QWidget>

#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"
#include "tests/support/Drive.h"
#include "tests/support/Expect_Failure.h"

namespace {

using Log = std::vector<std::string>;

class Controls_Form : public Forms::Form {
 public:
  Controls_Form() : Form("Controls_Form", "Controls") {
    for (Forms::Text_Box* box : {&Name_Text, &Notes_Text}) {
      box->Change = [box] { log.push_back(box->Text()); };
    }
    Taste_Check.Each([](Forms::Check_Box& box) {
      box.Click = [&box] { log.push_back(box.Name() + " " + std::to_string(box.Value())); };
    });
    Region_Image.Click = [] { log.push_back("Image"); };
    Message_Label.Set_Visible(false);
    Message_Label.Click = [] { log.push_back("Message"); };
    Wine_Add.Click = [] { log.push_back("Add"); };
    Wine_Mod.Click = [] { Fail(Failure::Overflow); };
    Set_Content(Forms::Column(
        {Forms::Fields({{Name_Label, Name_Text}, {Notes_Label, Forms::Place(Notes_Text).High(3)}}),
         Forms::One_Place(
             {Forms::Group(Wine_Taste_Frame, Forms::Grid(2, {Taste_Check[0], Taste_Check[1]})),
              Forms::Place(Message_Label).Centred()}),
         Forms::Place(Region_Image).High(5), Forms::Place(Open_List).High(2)}));
    Open_List.AddItem("Entry");
  }

  static inline Log log;
  Forms::Menu Wine_Main{*this, "Wine_Main", "Wines & Spirits"};
  Forms::Menu_Entry Wine_Add{Wine_Main, "Wine_Add", "Add"};
  Forms::Menu_Separator Line{Wine_Main};
  Forms::Menu Other{Wine_Main, "Other", "Add & Other"};
  Forms::Menu_Entry Wine_Mod{Other, "Wine_Mod", "Modify"};
  Forms::Menu_Entry Wine_Print{Other, "Wine_Print", "サーバー ª２"};
  Forms::Label Name_Label{*this, "Name_Label", "Name"};
  Forms::Text_Box Name_Text{*this, "Name_Text"};
  Forms::Label Notes_Label{*this, "Notes_Label", "Notes"};
  Forms::Text_Box Notes_Text{*this, "Notes_Text", Forms::Text_Box::Lines::Many};
  Forms::Frame Wine_Taste_Frame{*this, "Wine_Taste_Frame", "Taste"};
  Forms::Control_Array<Forms::Check_Box> Taste_Check{*this, "Taste_Check", 0, 1, "Fruity"};
  Forms::Label Message_Label{*this, "Message_Label", "No taste is known"};
  Forms::Picture Region_Image{*this, "Region_Image"};
  Forms::List_Box Open_List{*this, "Open_List"};
  Forms::List_Box Unseen_List{*this, "Unseen_List"};
};

class Controls_Test : public testing::Test {
 protected:
  ~Controls_Test() override { Forms::Screens::Clear_For_Tests(); }

  static Controls_Form& Opened() {
    Forms::Screens::Register<Controls_Form>("Controls_Form");
    Run_Guarded([] { Forms::Screen("Controls_Form").Open(); });
    EXPECT_TRUE(Wait_Until([] { return Focused() == "Name_Text"; }));
    return dynamic_cast<Controls_Form&>(Forms::Screen("Controls_Form").Instance());
  }
  static Log Taken() { return std::exchange(Controls_Form::log, {}); }

  Controls_Form& form = Opened();
};

TEST_F(Controls_Test, A_text_changes_by_keys_and_by_code_but_not_to_what_it_is) {
  for (Forms::Text_Box* box : {&form.Name_Text, &form.Notes_Text}) {
    box->Set_Text("Rosé");
    box->Set_Text("Rosé");
    EXPECT_EQ(Shown_Text(box->Name()), "Rosé");
    Type_Into(box->Name(), "ab");
    EXPECT_EQ(Taken(), Log({"Rosé", "", "a", "ab"}));
    box->Set_Locked(true);
    Type("c");
    Press("Backspace");
    Press("Ctrl+A");
    Press("Ctrl+C");
    EXPECT_EQ(Taken(), Log());
    EXPECT_EQ(QApplication::clipboard()->text(), "ab");
    EXPECT_EQ(Focused(), box->Name());
    box->Set_Text("d");
    box->Set_Locked(false);
    Press("End");
    Type("e");
    EXPECT_EQ(Taken(), Log({"d", "de"}));
  }
  form.Notes_Text.Set_Text("one\r\ntwo");
  Press("Ctrl+End");
  Press("Return");
  Type("x");
  EXPECT_EQ(form.Notes_Text.Text(), "one\r\ntwo\r\nx");
  Press("Shift+Return");
  EXPECT_EQ(form.Notes_Text.Text(), "one\r\ntwo\r\nx\r\n");
  Press("Tab");
  EXPECT_EQ(Focused(), "Taste_Check_0");
}

TEST_F(Controls_Test, A_check_box_clicks_on_each_change) {
  Taken();
  Click("Taste_Check_1");
  Press("Space");
  form.Taste_Check[0].Set_Value(1);
  form.Taste_Check[0].Set_Value(1);
  EXPECT_EQ(Taken(), Log({"Taste_Check_1 1", "Taste_Check_1 0", "Taste_Check_0 1"}));
  EXPECT_FAILURE(380, form.Taste_Check[0].Set_Value(2));
  EXPECT_FAILURE(9, form.Taste_Check[2]);
  form.Wine_Taste_Frame.Set_Visible(false);
  EXPECT_FALSE(Is_Seen("Taste_Check_1"));
  form.Taste_Check[1].Set_Visible(false);
  form.Wine_Taste_Frame.Set_Visible(true);
  EXPECT_TRUE(Is_Seen("Taste_Check_0") && !Is_Seen("Taste_Check_1") && !Is_Seen("Unseen_List"));
}

TEST_F(Controls_Test, Places_that_share_a_cell_take_turns_and_nothing_around_them_moves) {
  const auto all_places = [] {
    Settle_Events();
    return std::vector<QRect>{Find("Notes_Text").geometry(), Find("Region_Image").geometry()};
  };
  const auto before = all_places();
  const QRect cell = Find("Wine_Taste_Frame").geometry();
  Taken();
  Click("Taste_Check_0");
  form.Wine_Taste_Frame.Set_Visible(false);
  EXPECT_EQ(all_places(), before);
  form.Message_Label.Set_Visible(true);
  EXPECT_EQ(all_places(), before);
  EXPECT_TRUE(cell.contains(Find("Message_Label").geometry()));
  EXPECT_NEAR(Find("Message_Label").geometry().center().x(), cell.center().x(), 1);
  form.Wine_Taste_Frame.Set_Visible(true);
  Click("Message_Label");
  form.Message_Label.Set_Visible(false);
  Click("Taste_Check_1");
  EXPECT_EQ(all_places(), before);
  EXPECT_EQ(Taken(), Log({"Taste_Check_0 1", "Message", "Taste_Check_1 1"}));
}

TEST_F(Controls_Test, A_picture_is_scaled_into_its_place_never_beyond_its_size) {
  const QTemporaryDir folder;
  const auto path = [&](const char* name) { return folder.filePath(name).toStdString(); };
  QImage wide(40, 10, QImage::Format_RGB32);
  wide.fill(Qt::red);
  wide.save(folder.filePath("wide.png"));
  wide.scaled(4000, 1000).save(folder.filePath("large.png"));
  QFile broken(folder.filePath("broken.jpg"));
  ASSERT_TRUE(broken.open(QFile::WriteOnly) && broken.write("no picture") > 0);
  broken.close();
  ASSERT_TRUE(QFile::copy(broken.fileName(), folder.filePath("broken.svg")));

  const auto red_width = [&] {
    Settle_Events();
    QWidget& widget = Find("Region_Image");
    const QImage image = widget.grab().toImage();
    int red = 0;
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, image.height() / 2) == QColor(Qt::red)) ++red;
    }
    return red;
  };
  form.Region_Image.Set_Picture(path("wide.png"));
  EXPECT_EQ(red_width(), 40);
  form.Region_Image.Set_Picture(path("large.png"));
  const QSize place = Find("Region_Image").size();
  EXPECT_NEAR(red_width(), std::min(place.width(), place.height() * 4), 2);
  Click("Region_Image");
  EXPECT_EQ(Taken(), Log({"Image"}));
  EXPECT_FAILURE(53, form.Region_Image.Set_Picture(path("none.png")));
  EXPECT_TRUE(form.Region_Image.Is_Empty());
  EXPECT_FAILURE(76, form.Region_Image.Set_Picture(path("none/none.png")));
  EXPECT_FAILURE(481, form.Region_Image.Set_Picture(path("broken.jpg")));
  EXPECT_FAILURE(481, form.Region_Image.Set_Picture(path("broken.svg")));
  form.Region_Image.Set_Picture(path("wide.png"));
  form.Region_Image.Set_Picture("");
  EXPECT_EQ(red_width(), 0);
}

TEST_F(Controls_Test, Menus_show_plain_captions_with_mnemonics_of_their_own) {
  EXPECT_EQ(Find("Controls_Form").findChild<QAction*>("Wine_Main")->text(), "&Wines && Spirits");
  EXPECT_EQ(Find("Controls_Form").findChild<QAction*>("Other")->text(), "Add && &Other");
  EXPECT_EQ(Shown_Text("Other"), "Add & Other");
  EXPECT_EQ(Find("Controls_Form").findChild<QAction*>("Wine_Print")->text(), "サーバー ª２");
  form.Find_Control("wine_add").Set_Caption("Add to Oak Cellar");
  EXPECT_EQ(form.Wine_Add.Caption(), "Add to Oak Cellar");
  EXPECT_EQ(Shown_Text("Wine_Add"), "Add to Oak Cellar");
  EXPECT_FAILURE(730, form.Find_Control("Wine_Del"));
  Pick("Wine_Add");
  Pick("Wine_Print");
  EXPECT_EQ(Taken(), Log({"Add"}));
  form.Wine_Add.Set_Visible(false);
  form.Other.Set_Enabled(false);
  EXPECT_FALSE(Is_Seen("Wine_Add"));
  EXPECT_FALSE(Is_Usable("Other"));
}

TEST_F(Controls_Test, A_failure_in_a_handler_shows_one_box_and_ends_the_run) {
  Box_Script boxes;
  End_Watch end;
  Pick("Wine_Mod");
  EXPECT_EQ(end.Status(), 1);
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].title, "Wine Cellar");
  EXPECT_EQ(boxes.Boxes()[0].text, "Run-time error '6':\n\nOverflow");
  EXPECT_FALSE(boxes.Boxes()[0].asks);
  Pick("Wine_Add");
  EXPECT_EQ(Taken(), Log());
}

TEST_F(Controls_Test, Message_boxes_are_modal_and_esc_is_no_or_ok) {
  const auto answered_by = [&](const char* key, bool asks) {
    std::string title;
    QTimer::singleShot(0, [&] {
      auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      title = (box->windowTitle() + ": " + box->text()).toStdString();
      Click("Taste_Check_0");
      Press(key);
    });
    bool answer = true;
    if (asks) answer = Forms::Ask_Yes_No("Delete <b>it</b>?", "DELETE");
    if (!asks) Forms::Message_Box("Done & over", "SAVED");
    EXPECT_EQ(title, asks ? "DELETE: Delete <b>it</b>?" : "SAVED: Done & over");
    return answer;
  };
  int commits = 0;
  Hooks().commit = [&] { ++commits; };
  EXPECT_FALSE(answered_by("Esc", true));
  EXPECT_TRUE(answered_by("Return", true));
  EXPECT_TRUE(answered_by("Esc", false));
  Hooks().commit = [] {};
  EXPECT_EQ(commits, 3);
  EXPECT_EQ(Taken(), Log());
}

TEST_F(Controls_Test, Each_line_break_of_the_program_is_one_that_is_seen) {
  const char* const text = "Your cellar\rhas\r\nno wine.\r\r<b>None</b>";
  const std::string lines = "Your cellar\nhas\nno wine.\n\n<b>None</b>";
  std::string shown;
  Act_In_Next_Box([&] {
    shown = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget()).text().toStdString();
    Press("Return");
  });
  Forms::Message_Box(text, "EMPTY");
  EXPECT_EQ(shown, lines);
  form.Message_Label.Set_Caption(text);
  EXPECT_EQ(Shown_Text("Message_Label"), lines);
  form.Name_Label.Set_Caption("one\rtwo");
  EXPECT_EQ(Shown_Text("Name_Label"), "one\ntwo");
}

// What the user reads when the mouse rests on the control.
std::string Tip_Of(const char* name) {
  QWidget& widget = Find(name);
  QTest::mouseMove(&widget, widget.rect().center());
  const QPoint place = widget.rect().center();
  QWidget* inside = widget.childAt(place);
  QWidget& target = inside == nullptr ? widget : *inside;
  QHelpEvent rest(QEvent::ToolTip, target.mapFrom(&widget, place), widget.mapToGlobal(place));
  QApplication::sendEvent(&target, &rest);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* tip = qobject_cast<QLabel*>(window);
    if (tip == nullptr || !tip->isVisible() || !tip->windowFlags().testFlag(Qt::ToolTip)) continue;
    QString text = tip->text();
    if (Qt::mightBeRichText(text)) text = QTextDocumentFragment::fromHtml(text).toPlainText();
    return text.toStdString();
  }
  return {};
}

TEST_F(Controls_Test, A_tool_tip_is_plain_text_with_the_state_below_it) {
  EXPECT_EQ(Tip_Of("Name_Text"), "");
  form.Name_Text.Set_Tool_Tip("A <b>name</b> & more\rof   it");
  const std::string own = "A <b>name</b> & more\nof   it";
  EXPECT_EQ(Tip_Of("Name_Text"), own);
  form.Name_Text.Set_Locked(true);
  EXPECT_EQ(Tip_Of("Name_Text"), own + "\n" + Forms::State_Words().locked);
  EXPECT_EQ(Find("Name_Text").accessibleDescription().toStdString(),
            own + "\n" + Forms::State_Words().locked);
  form.Name_Text.Set_Tool_Tip("");
  EXPECT_EQ(Tip_Of("Name_Text"), Forms::State_Words().locked);
  form.Region_Image.Set_Tool_Tip("A map");
  EXPECT_EQ(Tip_Of("Region_Image"), "A map");
  form.Open_List.Set_Tool_Tip("A list");
  EXPECT_EQ(Tip_Of("Open_List"), "A list");
}

TEST_F(Controls_Test, Colours_are_exact_and_tell_their_state_in_words_too) {
  const auto colour_of = [](const char* name) {
    Settle_Events();
    QWidget& widget = Find(name);
    return widget.grab().toImage().pixelColor(widget.width() - 12, widget.height() / 2);
  };
  const QColor of_the_theme = colour_of("Name_Text");
  QPalette dark;
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  const QPalette light = QApplication::palette();
  for (const QPalette& palette : {light, dark}) {
    QApplication::setPalette(palette);
    form.Name_Text.Set_BackColor(Forms::Required_Color);
    EXPECT_EQ(colour_of("Name_Text"), QColor(255, 128, 128));
    EXPECT_EQ(Find("Name_Text").accessibleDescription().toStdString(),
              Forms::State_Words().required);
    EXPECT_EQ(Find("Name_Text").toolTip().toStdString(), Forms::State_Words().required);
    form.Notes_Text.Set_BackColor(Forms::Locked_Color);
    EXPECT_EQ(colour_of("Notes_Text"), QColor(255, 192, 255));
    EXPECT_EQ(Find("Notes_Text").accessibleDescription().toStdString(),
              Forms::State_Words().locked);
    form.Taste_Check[0].Set_BackColor(Forms::Open_Check_Color);
    EXPECT_EQ(colour_of("Taste_Check_0"), QColor(255, 255, 192));
    for (Forms::Text_Box* box : {&form.Name_Text, &form.Notes_Text}) {
      box->Set_BackColor(Forms::Window_Color);
      EXPECT_EQ(Find(box->Name()).toolTip(), "");
    }
  }
  QApplication::setPalette(light);
  EXPECT_EQ(colour_of("Name_Text"), of_the_theme);
}

TEST_F(Controls_Test, Every_control_has_an_accessible_name_and_labels_lead_to_their_fields) {
  EXPECT_EQ(Find("Name_Text").accessibleName(), "Name");
  EXPECT_EQ(Find("Region_Image").accessibleName(), "Region Image");
  EXPECT_EQ(Find("Taste_Check_0").accessibleName(), "Fruity");
  form.Notes_Label.Set_Caption("Remarks");
  EXPECT_EQ(Find("Notes_Text").accessibleName(), "Remarks");
  Press("Alt+R");
  EXPECT_EQ(Focused(), "Notes_Text");
}

}  // namespace
