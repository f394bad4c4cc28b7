// The delivered file: what the compiler makes of the lines, how it stores it, and its command.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "core/tables/Recipes_Wines_Common_DB.h"
#include "tests/tools/Small_Library.h"
#include "tools/Reports.h"
#include "tools/Stored_Library.h"

namespace {

namespace fs = std::filesystem;
using namespace Data_Compiler;

Library Sound(const Small_Library& small) {
  Problems problems;
  Library library = small.Compile(problems);
  EXPECT_TRUE(problems.None()) << Text_Of(problems);
  return library;
}

/// The rows of a table by the masks and keys they hold, as short texts.
template <class Record, class Owner>
std::string Masks(const Library& library, Owner Record::*owner, Long key) {
  std::ostringstream text;
  for (const Record& row : library.Of<Record>())
    if (row.*owner == key) text << row.GROUP << ':' << row.SUBCATEGO << ' ';
  return text.str();
}

template <class Record, class Owner, class Key>
std::string Keys(const Library& library, Owner Record::*owner, Long of, Key Record::*key) {
  std::ostringstream text;
  for (const Record& row : library.Of<Record>())
    if (row.*owner == of) text << row.*key << ' ';
  return text.str();
}

TEST(Compiled_Library, Keys_Groups_And_Marks_Of_Delivered_Rows) {
  const Library library = Sound(Small_Library());
  const auto& regions = library.Of<Regions_Record>();
  EXPECT_EQ(regions[1].Region_ID, 2);
  EXPECT_EQ(regions[1].Sub_Region_Of, 1);
  EXPECT_EQ(regions[0].Sub_Region_Of, -1);
  EXPECT_EQ(regions[1].SERIAL_NUMBER, "SYS-2");
  EXPECT_EQ(regions[3].Region_Group, 2) << "a group is of one country";
  EXPECT_EQ(regions[3].Region_SubGr, 1);
  const auto* text = library.Find<Words_for_Data_Record>(regions[1].Description);
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->Japanes, "ja Left bank.");
  EXPECT_EQ(text->ID, text->Multi_Language_ID);

  const auto& labels = library.Of<Labels_Record>();
  EXPECT_EQ(labels[0].Label_ID, 20001);
  EXPECT_EQ(labels[1].Appellation_ID, 1);
  EXPECT_EQ(library.Of<Classification_Record>()[0].Glossary_ID, 1);
  EXPECT_EQ(library.Of<Wineries_Record>()[0].Winery_ID, "10001");
  EXPECT_EQ(library.Of<Wineries_Record>()[0].History, "-1");
  EXPECT_EQ(Keys(library, &Labels_per_Winery_Record::Winery_ID, 10001,
                 &Labels_per_Winery_Record::Label_ID),
            "20002 20001 20004 ");
  // A region of the label's winery, the label's region, a general wine.
  EXPECT_EQ(labels[1].Used, 2);
  EXPECT_EQ(library.Of<Wineries_Record>()[0].Used, 4);

  const auto& pairings = library.Of<Maridages_Record>();
  EXPECT_EQ(pairings[10].Maridage_Group, 2) << "the eleventh of a family";
  EXPECT_EQ(pairings[10].Maridage_SubGr, 1);
  EXPECT_EQ(pairings[11].Cheese_ID, 1);
  EXPECT_EQ(pairings[14].Cheese_ID, -1);
  EXPECT_EQ(library.Of<Mobile_Wines_Record>()[0].Mobile_Wine_ID, 20001);
}

// One line tells a link; that its other tables agree is what the checker looks at.
TEST(Compiled_Library, Links_Of_Each_Kind) {
  const Library library = Sound(Small_Library());
  const auto varieties_of = [&](Long region) {
    return Masks(library, &Varieties_Per_Region_Record::Region_ID, region);
  };
  EXPECT_EQ(varieties_of(2), "10:101 ");
  EXPECT_EQ(varieties_of(1), "10:111 ") << "with those of its sub-region";
  EXPECT_EQ(varieties_of(4), "10:1 20:1 ");
  // Merlot: steak, short ribs and picnic by its own line, two cheeses by theirs.
  EXPECT_EQ(Masks(library, &Maridages_Per_Variety_Record::Variety_ID, 1), "10:1 20:1 30:101 40:1 ");
  EXPECT_EQ(Masks(library, &Varieties_Per_Cheeses_Record::Cheese_ID, 1), "10:1 ");
  EXPECT_EQ(Masks(library, &Maridages_Per_Cheeses_Record::Cheese_ID, 1), "10:1 40:1 ");
  // Pauillac: three foods by its own line, Roquefort by the cheese's.
  using Wine_Pairing = Mobile_Wines_per_Maridage_Record;
  EXPECT_EQ(Masks(library, &Maridages_Per_Mobile_Wines_Record::Mobile_Wine_ID, 20002),
            "10:11 20:1 30:1 ");
  EXPECT_EQ(Keys(library, &Wine_Pairing::Mobile_Wine_ID, 20002,
                 &Wine_Pairing::Mobile_Wines_per_Maridage_ID),
            "2 3 4 5 ");
  EXPECT_EQ(Keys(library, &Mobile_Wines_Per_Cheeses_Record::Cheese_ID, 1,
                 &Mobile_Wines_Per_Cheeses_Record::Mobile_Wines_ID),
            "20002 ");
  EXPECT_EQ(library.Of<Mobile_Wines_Record>()[2].Mobile_Wine_Color_3, "Y");
  EXPECT_EQ(library.Of<Mobile_Wines_Record>()[3].Mobile_Wine_Color_3, "x");
  EXPECT_EQ(Keys(library, &Varieties_of_Mobile_Wines_Record::Mobile_Wine_ID, 20002,
                 &Varieties_of_Mobile_Wines_Record::Variety_ID),
            "3 1 ");
  EXPECT_EQ(Keys(library, &Wine_Tasting_Record::Wine_ID, 20002, &Wine_Tasting_Record::Description),
            "2 2 0 ");
}

template <class Record>
bool Same(const Record& a, const Record& b) {
  for (const auto& field : Description_Of<Record>().Fields())
    if (field.Is_Stored() && !field.Same(a, b)) return false;
  return true;
}

void Expect_Same(const Library& a, const Library& b) {
  Tables::For_Each_Table([&]<class Record>(const Tables::Table<Record>& table) {
    const auto &rows = a.Of<Record>(), &others = b.Of<Record>();
    ASSERT_EQ(rows.size(), others.size()) << table.Name();
    for (std::size_t i = 0; i < rows.size(); ++i)
      EXPECT_TRUE(Same(rows[i], others[i])) << table.Name() << " row " << i + 1;
  });
}

Library Stored(const std::string& path) {
  const auto database = Record_Store::OpenDatabase(path, false, true, Connect_Text(path));
  return Read_Library(*database);
}

TEST(Stored_Library, Reads_Back_As_It_Was_Written) {
  const Small_Library small;
  const Library library = Sound(small);
  Write_Library(library, small.Path("new.mdb"));
  Expect_Same(library, Stored(small.Path("new.mdb")));
  // The next row of a user goes on from the delivered ones.
  const auto path = small.Path("new.mdb");
  const auto database = Record_Store::OpenDatabase(path, false, false, Connect_Text(path));
  auto wineries = database->OpenRecordset("Wineries");
  wineries.AddNew();
  EXPECT_EQ(wineries["Winery_ID"].As_Long(), 10003);
}

/// Runs the command; gives its exit status. What it says goes to `said`.
int Run_Command(const Small_Library& small, const std::string& words, std::string& said) {
  const std::string out = small.Path("said");
  const int status = std::system((DATA_COMPILER " " + words + " >" + out + " 2>&1").c_str());
  said = Contents(out);
  return WEXITSTATUS(status);
}

TEST(Command, Makes_The_File_In_The_Language_Asked_For) {
  const Small_Library small;
  const std::string data = small.Folder(), path = small.Path("new.mdb");
  std::string said;
  ASSERT_EQ(Run_Command(small, data + " " + path + " --language Japanese", said), 0) << said;
  const Library stored = Stored(path);
  const auto& system = stored.Of<Wine_System_Record>();
  ASSERT_EQ(system.size(), 1U);
  EXPECT_EQ(system[0].System_Language_Number, 8);
  EXPECT_EQ(system[0].Language_Name_of_Product, "Japanese");
  EXPECT_EQ(Run_Command(small, data + " " + path, said), 1) << "the file stands already";
  EXPECT_EQ(Run_Command(small, data + " " + small.Path("2.mdb") + " --language Latin", said), 1);
  EXPECT_NE(said.find("no such language: 'Latin'"), std::string::npos) << said;
  int files = 0;
  for (const auto& entry : fs::directory_iterator(small.Path(""))) files += entry.is_regular_file();
  EXPECT_EQ(files, 2) << "the data file and what was said, nothing unfinished";
}

TEST(Command, Checks_And_Reports) {
  const Small_Library small;
  const std::string data = small.Folder();
  std::string said;
  EXPECT_EQ(Run_Command(small, data + " --check", said), 0);
  EXPECT_EQ(said, "");
  EXPECT_EQ(Run_Command(small, data + " --summary", said), 0);
  EXPECT_NE(said.find("FRA              3        1        1        4        2        1        2    "
                      "    3        1\n"),
            std::string::npos)
      << said;
  EXPECT_EQ(Run_Command(small, data, said), 2);
  EXPECT_EQ(Run_Command(small, data + " --chekc", said), 2);
  small.Replace("regions.tsv", "Malbec", "Mlbec");
  EXPECT_EQ(Run_Command(small, data + " " + small.Path("new.mdb"), said), 1);
  EXPECT_NE(said.find(data + "/regions.tsv:3: unknown variety 'Mlbec'"), std::string::npos) << said;
  EXPECT_FALSE(fs::exists(small.Path("new.mdb")));
}

TEST(Delivered_Data, Is_Sound_And_Small) {
  Problems problems;
  const Library library = Compile_Library(DATA_FOLDER, "German", problems);
  ASSERT_TRUE(problems.None()) << Text_Of(problems);
  const Small_Library place;
  Write_Library(library, place.Path("new.mdb"));
  EXPECT_LT(fs::file_size(place.Path("new.mdb")), 20'000'000U);
  Expect_Same(library, Stored(place.Path("new.mdb")));
}

TEST(Delivered_Data, Is_Counted_On_Its_Page) {
  Problems problems;
  std::ostringstream summary;
  Print_Summary(Compile_Library(DATA_FOLDER, "English", problems), summary);
  EXPECT_NE(Contents(DATA_PAGE).find("```\n" + summary.str() + "```\n"), std::string::npos)
      << "run scripts/summary";
}

// A word for a caption that no screen shows would never be seen.
TEST(Delivered_Data, Each_Word_For_A_Caption_Is_For_One_That_A_Screen_Has) {
  std::string screens;
  for (const char* room : {"cellar", "main_window", "pairing", "screens", "search"})
    for (const auto& file : fs::directory_iterator(DATA_FOLDER "/../" + std::string(room)))
      screens += Contents(file.path());
  Problems problems;
  const Library library = Compile_Library(DATA_FOLDER, "English", problems);
  int words = 0;
  for (const Words_Record& row : library.Of<Words_Record>()) {
    if (row.Program != "Caption_Tips") continue;
    ++words;
    EXPECT_NE(screens.find('"' + row.English + '"'), std::string::npos) << row.English;
  }
  EXPECT_GT(words, 0);
}

}  // namespace
