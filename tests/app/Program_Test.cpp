// The built program in a real window: a user's keys from outside, its windows, and what the data
// file holds after it was killed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>

#include "core/tables/Recipes_Wines_Common_DB.h"
#include "tests/support/Real_Window.h"

namespace {

using testing::ElementsAre;

class Program : public testing::Test {
 protected:
  std::vector<std::string> Stored_Cellars() {
    const auto file = Record_Store::OpenDatabase(program.Data_File(), false, false,
                                                 Connect_Text(program.Data_File()));
    Record_Store::Recordset cellars = file->OpenRecordset("Cellars");
    std::vector<std::string> names;
    for (; !cellars.Eof(); cellars.MoveNext()) {
      names.push_back(cellars.Fields("Cellar_Name").As_Text());
    }
    return names;
  }

  void Name_Cellars_Up_To_The_Message() {
    program.Start();
    ASSERT_TRUE(program.Sees_Window("Wine Cellar"));
    program.Press({"alt+m", "n"});
    ASSERT_TRUE(program.Sees_Window("Cellar Names Information"));
    program.Type("Home");
    program.Press({"Tab"});
    program.Type("Office");
    program.Press({"alt+s"});
    ASSERT_TRUE(program.Sees_Window("CELLAR NAMES SAVED"));
  }

  Real_Window::Display display;
  Real_Window::Program program{display};
};

TEST_F(Program, Names_the_cellars_by_keyboard_and_finds_them_after_a_restart) {
  Name_Cellars_Up_To_The_Message();
  program.Press({"Return"});
  ASSERT_TRUE(program.Sees_Window("My Current Cellar: Home"));
  EXPECT_TRUE(program.Window_Has_Gone("Cellar Names Information"));
  program.Press({"alt+x"});
  EXPECT_EQ(program.Wait_For_End(), 0);
  program.Start();
  EXPECT_TRUE(program.Sees_Window("My Current Cellar: Home"));
  EXPECT_THAT(Stored_Cellars(), ElementsAre("Home", "Office"));
}

TEST_F(Program, What_a_message_says_was_saved_survives_a_kill) {
  Name_Cellars_Up_To_The_Message();
  program.Kill();
  EXPECT_THAT(Stored_Cellars(), ElementsAre("Home", "Office"));
  program.Start();
  EXPECT_TRUE(program.Sees_Window("My Current Cellar: Home"));
}

TEST_F(Program, Without_its_data_file_says_so_once_and_ends_with_status_1) {
  QFile::remove(QString::fromStdString(program.Data_File()));
  program.Start();
  ASSERT_TRUE(program.Sees_Window("Wine Cellar"));
  program.Press({"Return"});
  EXPECT_EQ(program.Wait_For_End(), 1);
}

}  // namespace
