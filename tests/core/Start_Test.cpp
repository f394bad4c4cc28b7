// Start-up: languages, versions, what cannot be started on.
#include <gmock/gmock.h>

#include <QIcon>
#include <QImage>
#include <QWidget>
#include <filesystem>
#include <fstream>

#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/MultiLanguage_Processes.h"
#include "core/tables/Catalogue.h"
#include "platform/forms/Screens.h"
#include "tests/support/Drive.h"
#include "tests/support/Expect_Failure.h"
#include "tests/support/Program_Folder.h"

namespace {

using testing::ElementsAre;
using testing::EndsWith;

class Start_Up : public Program_Folder {};

TEST_F(Start_Up, The_main_window_is_in_front_in_every_language) {
  const char* columns[] = {"English", "Spanish",  "French",    "German",
                           "Italian", "Japanese", "Portuguese"};
  for (Integer language = 3; language <= 9; ++language) {
    Set_Language(language);
    Restart();
    ASSERT_TRUE(Is_Seen("Wine_Cellar_Form")) << language;
    const std::string column = columns[language - 3];
    const auto rows = Stored("SELECT Variable, types_variable, " + column +
                                 " FROM Words WHERE Program='Wine_Cellar_Form' ORDER BY ID",
                             3);
    std::vector<std::string> words;
    for (const std::string& row : rows) {
      const auto first = row.find('|');
      const auto second = row.find('|', first + 1);
      const std::string text = row.substr(second + 1);
      const std::string type = row.substr(first + 1, second - first - 1);
      if (type == "Head") words.push_back(text);
      if (type == "Frm") {
        EXPECT_EQ(Shown_Text("Wine_Cellar_Form"), text);
      }
      if (type == "Cap") {
        const std::string control = row.substr(0, first);
        EXPECT_EQ(Forms::Screen("Wine_Cellar_Form").Control(control).Caption(), text) << control;
      }
    }
    ASSERT_EQ(words.size(), 5U + 10 + 6 + 8);
    EXPECT_EQ(Color_Names[1], words[0]);
    EXPECT_EQ(Color_Names[5], words[4]);
    EXPECT_EQ(Cheese_Types[1], words[5]);
    EXPECT_EQ(Cheese_Types[10], words[14]);
    EXPECT_EQ(Milk_Types[6], words[20]);
    EXPECT_EQ(Shown_Text("Version_Label"), "V 1.0");
    EXPECT_FALSE(Is_Seen("Wait_Label"));
    EXPECT_EQ(Find("Wine_Cellar_Form").width(),
              std::stoi(Stored("SELECT Width_Main FROM Languages_Available WHERE Language_Number=" +
                                   std::to_string(language),
                               1)
                            .at(0)));
  }
}

TEST_F(Start_Up, The_window_has_the_icon_of_the_program_in_several_sizes) {
  Start();
  const QIcon icon = Find("Wine_Cellar_Form").windowIcon();
  ASSERT_GE(icon.availableSizes().size(), 3);
  for (const QSize size : icon.availableSizes()) {
    const QImage image = icon.pixmap(size).toImage();
    EXPECT_EQ(image.size(), size);
    // Transparent beside the arch of the cellar, dark red below the glass.
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    const QColor room = image.pixelColor(size.width() / 4, size.height() * 3 / 4);
    EXPECT_TRUE(room.alpha() == 255 && room.red() > room.green()) << size.width();
  }
}

TEST_F(Start_Up, The_data_file_stays_one_file_and_is_not_written_by_a_start) {
  std::ifstream before(Data_File(), std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(before), {}};
  Start();
  Stop();
  std::ifstream after(Data_File(), std::ios::binary);
  EXPECT_TRUE(bytes == std::string(std::istreambuf_iterator<char>(after), {}));
}

TEST_F(Start_Up, Without_a_sound_data_file_the_run_ends_with_one_message) {
  struct Case {
    const char* what;
    std::function<void(const std::string&)> harm;
    const char* number;
  };
  const std::vector<Case> cases{
      {"missing", [](const std::string& file) { std::filesystem::remove(file); }, "3024"},
      {"cut off", [](const std::string& file) { std::filesystem::resize_file(file, 40960); },
       "3343"},
      {"plain", [](const std::string& file) { std::ofstream(file) << "not a data file at all\n"; },
       "3343"},
  };
  const std::string whole = Folder() + "/whole";
  std::filesystem::copy_file(Data_File(), whole);
  for (const Case& given : cases) {
    std::filesystem::copy_file(whole, Data_File(),
                               std::filesystem::copy_options::overwrite_existing);
    given.harm(Data_File());
    End_Watch end;
    Box_Script boxes;
    Start();
    EXPECT_EQ(end.Status(), 1) << given.what;
    ASSERT_EQ(boxes.Boxes().size(), 1U) << given.what;
    EXPECT_EQ(boxes.Boxes()[0].title, "Wine Cellar");
    EXPECT_THAT(boxes.Boxes()[0].text,
                testing::StartsWith("Run-time error '" + std::string(given.number) + "':"));
    Stop();
  }
}

TEST_F(Start_Up, The_exit_entry_and_the_frame_end_the_run_at_once) {
  for (const bool by_frame : {false, true}) {
    Restart();
    End_Watch end;
    Box_Script boxes;
    by_frame ? Close_Window("Wine_Cellar_Form") : Pick("Wine_Cellar_Exit");
    EXPECT_EQ(end.Status(), 0);
    EXPECT_TRUE(boxes.Boxes().empty());
  }
}

TEST_F(Start_Up, The_esc_key_does_not_end_the_run) {
  Start();
  const End_Watch end;
  Press("Esc");
  EXPECT_FALSE(end.Ended());
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
}

TEST_F(Start_Up, More_than_one_cellar_by_the_settings_speaks_in_the_title) {
  Change([](Record_Store::Database& file) {
    Record_Store::Recordset system = file.OpenRecordset("Wine_System");
    system.Edit();
    system.Fields("Number_of_Cellars") = 2;
    system.Update();
  });
  Start();
  EXPECT_EQ(Shown_Text("Wine_Cellar_Form"), "My Current Cellar: x");
}

TEST_F(Start_Up, A_part_of_another_product_is_set_up_before_the_main_window_shows) {
  class Set_Up_Screen : public Forms::Form {
   public:
    Set_Up_Screen() : Form("Initialize_Form", "Set-up") { Set_Content(Forms::Stretch()); }
  };
  Forms::Screens::Register<Set_Up_Screen>("Initialize_Form");
  Change([](Record_Store::Database& file) {
    Record_Store::Recordset system = file.OpenRecordset("Wine_System");
    system.Edit();
    system.Fields("Wine_Cellar_as_Option") = true;
    system.Update();
  });
  Start();
  EXPECT_TRUE(First_Run);
  EXPECT_TRUE(Is_Seen("Initialize_Form"));
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  Close_Window("Initialize_Form");
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
  Forms::Screens::Register("Initialize_Form", nullptr);
}

class Words : public Program_Folder {
 protected:
  // A form with one control, which the rows of a test may name.
  class Small_Form : public Forms::Form {
   public:
    Small_Form() : Form("Small_Form", "Small") {}
    Forms::Label Told_Label{*this, "Told_Label", "design"};
  };

  void Add_Rows(int count, const char* variable, const char* type, bool with_text = true) const {
    Change([=](Record_Store::Database& file) {
      Record_Store::Recordset words = file.OpenRecordset("Words");
      for (int row = 0; row < count; ++row) {
        words.AddNew();
        words.Fields("Program") = "Small_Form";
        words.Fields("Variable") = variable;
        words.Fields("types_variable") = type;
        if (with_text) words.Fields("English") = "word";
        words.Update();
      }
    });
  }
};

TEST_F(Words, Are_put_on_the_controls_by_their_type) {
  Add_Rows(1, "told_label", "Cap");
  Add_Rows(1, "nobody", "Head");
  Start();
  Small_Form form;
  Read_Language_Words("Small_Form", form);
  EXPECT_EQ(form.Told_Label.Caption(), "word");
  EXPECT_EQ(form.Caption(), "Small");
  EXPECT_EQ(Word_Type[2], "Head");
}

TEST_F(Words, Of_one_form_are_150_at_most) {
  Add_Rows(150, "nobody", "Head");
  Start();
  Small_Form form;
  Read_Language_Words("Small_Form", form);
  EXPECT_EQ(Word_Text[150], "word");
  Stop();
  Add_Rows(1, "nobody", "Head");
  Start();
  EXPECT_FAILURE(9, Read_Language_Words("Small_Form", form));
}

TEST_F(Words, That_name_no_control_fail_and_so_does_a_quote_in_a_forms_key) {
  Add_Rows(1, "Nobody", "Cap");
  Start();
  Small_Form form;
  EXPECT_FAILURE(730, Read_Language_Words("Small_Form", form));
  EXPECT_FAILURE(3075, Load_Language_Words("Nobody's form"));
}

TEST_F(Words, Without_a_text_in_the_language_fail) {
  Add_Rows(1, "Told_Label", "Cap", false);
  Start();
  Small_Form form;
  EXPECT_FAILURE(94, Read_Language_Words("Small_Form", form));
}

TEST_F(Words, Languages_are_known_by_name_in_any_case_and_by_number) {
  for (const auto& [name, number] : std::vector<std::pair<const char*, int>>{{"English", 3},
                                                                             {"INGLES", 3},
                                                                             {"español", 4},
                                                                             {"Spanish", 4},
                                                                             {"french", 5},
                                                                             {"German", 6},
                                                                             {"Italian", 7},
                                                                             {"jaPANese", 8},
                                                                             {"Portuguese", 9},
                                                                             {"Français", 3},
                                                                             {"", 3}}) {
    Wine_System.Language_Name_of_Product = name;
    EXPECT_EQ(Language_Number_From_Name(), number) << name;
  }
  EXPECT_EQ(Language_Name_From_Number(4), "SPANISH");
  EXPECT_EQ(Language_Name_From_Number(9), "PORTUGUESE");
  EXPECT_EQ(Language_Name_From_Number(2), "ENGLISH");
  EXPECT_EQ(Language_Name_From_Number(10), "ENGLISH");
}

}  // namespace
