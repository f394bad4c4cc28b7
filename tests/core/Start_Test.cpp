// Start-up: languages, versions, what cannot be started on.

#include <QIcon>
#include <QImage>
#include <QWidget>
#include <filesystem>
#include <fstream>

#include "core/Common_Words.h"
#include "core/Gereral_Processes.h"
#include "core/Languages.h"
#include "core/MultiLanguage_Processes.h"
#include "core/words/Form_Texts_Words.h"
#include "platform/forms/Form_Texts.h"
#include "tests/support/Faults_Mended.h"
#include "tests/support/Program_Folder.h"

namespace {

using testing::EndsWith;

class Start_Up : public Program_Folder {};

TEST_F(Start_Up, The_main_window_is_in_front_in_every_language) {
  const char* columns[] = {"English", "Spanish",  "French",    "German",
                           "Italian", "Japanese", "Portuguese"};
  for (Integer language = 3; language <= 9; ++language) {
    Set_Language(language);
    Start();
    ASSERT_TRUE(Is_Seen("Wine_Cellar_Form")) << language;
    const std::string column = columns[language - 3];
    const auto rows = Stored("SELECT Variable, types_variable, " + column +
                             " FROM Words WHERE Program='Wine_Cellar_Form' ORDER BY ID");
    Texts words;
    for (const Text& row : rows) {
      const Texts part = Cells_of(row);
      const Text &control = part[0], &type = part[1], &text = part[2];
      if (type == "Head") words.push_back(text);
      if (type == "Frm") {
        EXPECT_EQ(Shown_Text("Wine_Cellar_Form"), text);
      }
      if (type == "Cap") {
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
              std::stoi(One("SELECT Width_Main FROM Languages_Available WHERE Language_Number=" +
                            std::to_string(language))));
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

// Rows that somebody named so, changed, or uses are no such rows.
TEST_F(Start_Up, Rows_that_a_killed_run_left_unconfirmed_go_where_mended) {
  Start();
  const auto add = [](const auto& table, auto&&... values) {
    table.description.Init(table.record);
    ((table.record.*values.first = values.second), ...);
    Open_By_Key(table);
    table.rows.AddNew();
    table.Write();
  };
  using R = Regions_Record;
  using L = Labels_Record;
  using W = Wineries_Record;
  add(Regions_Table);
  add(Regions_Table, std::pair{&R::Country, "FRA"});
  add(Regions_Table, std::pair{&R::Region_Name, "X"});
  add(Labels_Table);
  add(Labels_Table, std::pair{&L::Region_ID, Integer{7}});
  add(Wineries_Table);
  add(Wineries_Table, std::pair{&W::Used, Integer{1}});
  add(Wineries_Table);
  Wine_Cellar_DB->Commit();
  const auto left = [this] {
    return Stored(
        "SELECT Region_Name, Country, Used FROM Regions WHERE Region_Name='x' UNION ALL "
        "SELECT Label_Name, Region_ID, Used FROM Labels WHERE Label_Name='No Label' UNION "
        "ALL SELECT Winery_Name, Country, Used FROM Wineries WHERE Winery_Name='x'");
  };
  const Texts delivered_and_added = left();
  Start();
  EXPECT_EQ(left(), delivered_and_added);
  const Faults_Mended faults;
  Start();
  Stop();
  EXPECT_THAT(left(), UnorderedElementsAre("x|FRA|0", "X|x|0", "No Label|7|0", "x|x|1"));
}

TEST_F(Start_Up, Without_a_sound_data_file_the_run_ends_with_one_message) {
  struct Case {
    const char* what;
    std::function<void(const std::string&)> harm;
    int number;
  };
  const std::vector<Case> cases{
      {"missing", [](const std::string& file) { std::filesystem::remove(file); }, 3024},
      {"cut off", [](const std::string& file) { std::filesystem::resize_file(file, 40960); }, 3343},
      {"plain", [](const std::string& file) { std::ofstream(file) << "not a data file at all\n"; },
       3343},
  };
  const std::string whole = Folder() + "/whole";
  std::filesystem::copy_file(Data_File(), whole);
  for (const Case& given : cases) {
    std::filesystem::copy_file(whole, Data_File(),
                               std::filesystem::copy_options::overwrite_existing);
    given.harm(Data_File());
    SCOPED_TRACE(given.what);
    Expect_End(given.number, [this] { Start(); });
  }
}

TEST_F(Start_Up, The_exit_entry_and_the_frame_end_the_run_at_once_and_esc_does_not) {
  for (const bool by_frame : {false, true}) {
    Start();
    const End_Watch end;
    Press("Esc");
    EXPECT_FALSE(end.Ended());
    EXPECT_THAT(
        Told_By([&] { by_frame ? Close_Window("Wine_Cellar_Form") : Pick("Wine_Cellar_Exit"); }),
        IsEmpty());
    EXPECT_EQ(end.Status(), 0);
  }
}

TEST_F(Start_Up, More_than_one_cellar_by_the_settings_speaks_in_the_title) {
  Set("Wine_System", {{"Number_of_Cellars", 2}});
  Start();
  EXPECT_EQ(Shown_Text("Wine_Cellar_Form"), "My Current Cellar: x");
}

TEST_F(Start_Up, A_part_of_another_product_is_set_up_before_the_main_window_shows) {
  Stand_In("Initialize_Form");
  Set("Wine_System", {{"Wine_Cellar_as_Option", "True"}});
  Start();
  EXPECT_TRUE(First_Run);
  EXPECT_TRUE(Is_Seen("Initialize_Form"));
  EXPECT_FALSE(Is_Seen("Wine_Cellar_Form"));
  Close_Window("Initialize_Form");
  EXPECT_TRUE(Is_Seen("Wine_Cellar_Form"));
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
    Row words{{"Program", "Small_Form"}, {"Variable", variable}, {"types_variable", type}};
    if (with_text) words.emplace_back("English", "word");
    Change([&](Record_Store::Database& file) {
      Record_Store::Recordset rows = file.OpenRecordset("Words");
      for (int row = 0; row < count; ++row) {
        rows.AddNew();
        for (const Cell& cell : words) rows.Fields(cell.field) = cell.value;
        rows.Update();
      }
    });
  }
};

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

TEST_F(Words, That_name_no_control_or_have_no_text_fail_and_so_does_a_quote_in_a_forms_key) {
  Add_Rows(1, "Nobody", "Cap");
  Start();
  Small_Form form;
  EXPECT_FAILURE(730, Read_Language_Words("Small_Form", form));
  EXPECT_FAILURE(3075, Load_Language_Words("Nobody's form"));
  Wine_Cellar_DB->Commit();
  Remove_Rows("Words");
  Add_Rows(1, "Told_Label", "Cap", false);
  EXPECT_FAILURE(94, Read_Language_Words("Small_Form", form));
}

// Every text that is found by name is the data's, in each language; a file of an earlier time lacks
// them, and has the English ones back whatever the language was before.
TEST_F(Words, That_no_screen_has_to_itself_are_of_the_language_or_english) {
  const auto word = [this](Integer language, const char* key, std::string_view variable) {
    return One("SELECT " + Text(Languages.at(Language_Place(language))) +
               " FROM Words WHERE Program='" + key + "' AND Variable='" + Text(variable) + "'");
  };
  for (Integer language = 3; language <= 9; ++language) {
    Set_Language(language);
    Start();
    for (const auto& row : Screen_Words::Form_Texts) {
      EXPECT_EQ(Forms::Form_Texts().*row.text, word(language, "Form_Texts", row.Variable));
    }
    for (const Screen_Words::Hint& hint : Screen_Words::Hints) {
      EXPECT_EQ(Hint_Text(hint, {"%1", "%2"}), word(language, "Hints", hint.Variable));
      EXPECT_EQ(Hint_Text(hint) == hint.English, language == english) << hint.Variable;
    }
    EXPECT_EQ(Forms::Word_Of_Caption("Winery"),
              language == english ? "" : word(language, "Caption_Tips", "Winery_Label"));
  }
  EXPECT_EQ(Hint_Text(Screen_Words::Name_Cellars_First, {"%2", "b"}),
            "Dê primeiro nome às suas garrafeiras: «%2», «b».");
  Stop();
  Remove_Rows("Words", [](const Record_Store::Recordset& rows) {
    return rows.Fields("Program").As_Text() != "Wine_Cellar_Form";
  });
  Start();
  const Forms::Texts_Of_Forms design;
  for (const auto& row : Screen_Words::Form_Texts) {
    EXPECT_EQ(Forms::Form_Texts().*row.text, design.*row.text);
  }
  EXPECT_EQ(Hint_Text(Screen_Words::First_Pairing), Screen_Words::First_Pairing.English);
  EXPECT_EQ(Forms::Word_Of_Caption("Winery"), "");
}

TEST_F(Words, Languages_are_known_by_name_in_any_case_and_by_number) {
  const char* names[] = {"English INGLES Français x",
                         "español Spanish",
                         "french",
                         "German",
                         "Italian",
                         "jaPANese",
                         "Portuguese"};
  for (int number = 3; number <= 9; ++number) {
    for (const Text& name : Cells_of(names[number - 3], " ")) {
      Wine_System.Language_Name_of_Product = name;
      EXPECT_EQ(Language_Number_From_Name(), number) << name;
    }
  }
  EXPECT_EQ(Language_Name_From_Number(4), "SPANISH");
  EXPECT_EQ(Language_Name_From_Number(9), "PORTUGUESE");
  EXPECT_EQ(Language_Name_From_Number(2), "ENGLISH");
  EXPECT_EQ(Language_Name_From_Number(10), "ENGLISH");
}

}  // namespace
