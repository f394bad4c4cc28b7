// The single controls: text box, check box, picture, menu, message box, colours.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTextDocumentFragment>
#include <QWidget>

#include "platform/forms/Contrast.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"
#include "tests/support/Drive.h"
#include "tests/support/Expect_Failure.h"
#include "tests/support/Pixels.h"

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
    Message_Label.Set_Visible(false);
    Message_Label.Click = [] { log.push_back("Message"); };
    Wine_Add.Click = [] { log.push_back("Add"); };
    Set_Content(Forms::Column(
        {Forms::Fields({{Name_Label, Name_Text}, {Notes_Label, Forms::Place(Notes_Text).High(3)}}),
         Forms::One_Place(
             {Forms::Group(Wine_Taste_Frame, Forms::Grid(2, {Taste_Check[0], Taste_Check[1]})),
              Forms::Place(Message_Label).Centred()}),
         Country_Combo, Forms::Place(Region_Image).High(5)}));
  }

  static inline Log log;
  Forms::Menu Wine_Main{*this, "Wine_Main", "Wines & Spirits"};
  Forms::Menu_Entry Wine_Add{Wine_Main, "Wine_Add", "Add"};
  Forms::Menu_Separator Line{Wine_Main};
  Forms::Menu Other{Wine_Main, "Other", "Add & Other"};
  Forms::Menu_Entry Wine_Print{Other, "Wine_Print", "サーバー ª２"};
  Forms::Label Name_Label{*this, "Name_Label", "Name"};
  Forms::Text_Box Name_Text{*this, "Name_Text"};
  Forms::Label Notes_Label{*this, "Notes_Label", "Notes"};
  Forms::Text_Box Notes_Text{*this, "Notes_Text", Forms::Text_Box::Lines::Many};
  Forms::Combo_Box Country_Combo{*this, "Country_Combo"};
  Forms::Frame Wine_Taste_Frame{*this, "Wine_Taste_Frame", "Taste"};
  Forms::Control_Array<Forms::Check_Box> Taste_Check{*this, "Taste_Check", 0, 1, "Fruity"};
  Forms::Label Message_Label{*this, "Message_Label", "No taste is known"};
  Forms::Picture Region_Image{*this, "Region_Image"};
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
    Type_Into(box->Name(), "ab");
    EXPECT_EQ(Taken(), Log({"Rosé", "", "a", "ab"}));
    box->Set_Locked(true);
    Type("c");
    for (const char* key : {"Backspace", "Ctrl+A", "Ctrl+C"}) Press(key);
    EXPECT_EQ(Taken(), Log());
    EXPECT_EQ(QApplication::clipboard()->text(), "ab");
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
  Press("Return");
  Repeat("Return", 2);
  EXPECT_EQ(form.Notes_Text.Text(), "one\r\ntwo\r\nx\r\n\r\n\r\n\r\n");
  Press("Tab");
  EXPECT_EQ(Focused(), "Taste_Check_0");
}

TEST_F(Controls_Test, Places_that_share_a_cell_take_turns_and_nothing_around_them_moves) {
  const auto all_places = [] {
    Settle_Events();
    return std::vector<QRect>{Find("Notes_Text").geometry(), Find("Region_Image").geometry()};
  };
  const auto before = all_places();
  const QRect cell = Find("Wine_Taste_Frame").geometry();
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
  EXPECT_FAILURE(53, form.Region_Image.Set_Picture(path("none.png")));
  EXPECT_TRUE(form.Region_Image.Is_Empty());
  EXPECT_FAILURE(481, form.Region_Image.Set_Picture(path("broken.jpg")));
  form.Region_Image.Set_Picture(path("wide.png"));
  form.Region_Image.Set_Picture("");
  EXPECT_EQ(red_width(), 0);
}

TEST_F(Controls_Test, Menus_show_plain_captions_with_mnemonics_of_their_own) {
  Log texts;
  for (const char* name : {"Wine_Main", "Other", "Wine_Print"}) {
    texts.push_back(Find("Controls_Form").findChild<QAction*>(name)->text().toStdString());
  }
  EXPECT_EQ(texts, Log({"&Wines && Spirits", "Add && &Other", "サーバー ª２(&W)"}));
  EXPECT_EQ(Shown_Text("Other"), "Add & Other");
  Pick("Wine_Add");
  Pick("Wine_Print");
  EXPECT_EQ(Taken(), Log({"Add"}));
}

TEST_F(Controls_Test,
       A_message_box_comes_after_the_commit_shows_each_line_break_and_esc_is_no_or_ok) {
  const char* const text = "Your cellar\rhas\r\nno wine.\r\r<b>None</b>";
  const std::string lines = "Your cellar\nhas\nno wine.\n\n<b>None</b>";
  int commits = 0;
  int boxes = 0;
  Hooks().commit = [&] { ++commits; };
  for (const char* key : {"Esc", "Return"}) {
    for (const bool asks : {true, false}) {
      Act_In_Next_Box([&] {
        const auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
        EXPECT_EQ((box.windowTitle() + ": " + box.text()).toStdString(), "EMPTY: " + lines);
        EXPECT_EQ(box.icon(), asks ? QMessageBox::Question : QMessageBox::Warning);
        EXPECT_EQ(commits, ++boxes);
        Press(key);
      });
      const Forms::Answer by_enter = boxes == 0 ? Forms::Answer::No : Forms::Answer::Yes;
      const bool yes = asks && Forms::Ask_Yes_No(text, "EMPTY", by_enter);
      if (!asks) Forms::Message_Box(text, "EMPTY", Forms::Sign::Warning);
      EXPECT_EQ(yes, asks && key == std::string("Return"));
    }
  }
  Hooks().commit = [] {};
  EXPECT_EQ(boxes, 4);
  form.Message_Label.Set_Caption(text);
  EXPECT_EQ(Shown_Text("Message_Label"), lines);
}

TEST_F(Controls_Test, A_field_is_painted_in_the_colour_of_its_state) {
  const QColor base = QApplication::palette().color(QPalette::Base);
  for (Forms::Placed_Control* field : std::initializer_list<Forms::Placed_Control*>{
           &form.Name_Text, &form.Country_Combo, &form.Notes_Text}) {
    for (const Forms::Color back :
         {Forms::Required_Color, Forms::Locked_Color, Forms::Window_Color}) {
      field->Set_BackColor(back);
      Settle_Events();
      const QImage image = Find(field->Name()).grab().toImage();
      const Pixels seen(image, image.rect(), image.rect().adjusted(9, 5, -20, -5));
      const QColor exact(back.red, back.green, back.blue);
      const QColor shown = back.of_the_theme ? base : exact;
      EXPECT_EQ(seen.edge, shown) << field->Name();
      EXPECT_EQ(seen.ground, back == Forms::Locked_Color ? Forms::Mixed(base, exact, 0.12) : shown);
    }
  }
}

TEST_F(Controls_Test, A_tool_tip_is_plain_text_with_the_state_below_it) {
  const auto shown = [] {
    const QString tip = Find("Name_Text").toolTip();
    const bool rich = Qt::mightBeRichText(tip);
    return (rich ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip).toStdString();
  };
  form.Name_Text.Set_Tool_Tip("A <b>name</b> & more\rof   it");
  form.Name_Text.Set_Locked(true);
  EXPECT_EQ(shown(), "A <b>name</b> & more\nof   it\n" + Forms::Form_Texts().locked);
  form.Name_Text.Set_Tool_Tip("");
  EXPECT_EQ(shown(), Forms::Form_Texts().locked);
}

}  // namespace
