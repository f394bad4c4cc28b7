// What a wine has in other tables, and the counters of what it uses: through SAVE, MODIFY, REMOVE
// and searches with the known faults mended, and read as designed.

#include <map>
#include <random>

#include "tests/search/Search_Program.h"
#include "tests/support/Faults_Mended.h"

namespace {

constexpr const char* pairings =
    "Maridages_Per_Wines l JOIN Maridages m ON m.Maridage_Group = l.[GROUP] / 10 AND "
    "substr('0000000000' || l.SUBCATEGO, -m.Maridage_SubGr, 1) = '1' ";

class Wine_Rows : public Search_Program {
 protected:
  int At_Random(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
  Text A_Cheese() const {
    return One("SELECT English FROM Maridages WHERE Cheese_ID <> -1 ORDER BY Maridage_ID");
  }
  // By what the stored rows say.
  Texts Uses_of_Wines() const {
    const Text winery = " FROM Wines w JOIN Wineries y ON y.Winery_ID = w.Winery_ID ";
    return Stored("SELECT 'Winery', w.Winery_ID, count(*)" + winery + "GROUP BY 2 UNION ALL " +
                  "SELECT 'Region', y.Region_ID, count(*)" + winery + "GROUP BY 2 UNION ALL " +
                  "SELECT 'Label', l.Label_ID, count(*)" + winery +
                  "JOIN Labels l ON l.Region_ID = y.Region_ID AND l.Label_Name = w.Label "
                  "GROUP BY 2 UNION ALL SELECT 'Class', c.Classification_ID, count(*)" +
                  winery +
                  "JOIN Classification c ON c.Country = y.Country AND c.Description = "
                  "w.Clasification GROUP BY 2 UNION ALL SELECT 'Grape', Variety_ID, count(*) "
                  "FROM Varieties_of_Wines GROUP BY 2 UNION ALL "
                  "SELECT 'Pairing', m.Maridage_ID, count(*) FROM " +
                  pairings + "GROUP BY 2 ORDER BY 1, 2");
  }
  // By how much each counter that moved has moved since the first call.
  Texts Counted() {
    const Texts now = Stored(
        "SELECT 'Winery', Winery_ID, Used FROM Wineries UNION ALL "
        "SELECT 'Region', Region_ID, Used FROM Regions UNION ALL "
        "SELECT 'Label', Label_ID, Used FROM Labels UNION ALL "
        "SELECT 'Class', Classification_ID, Used FROM Classification UNION ALL "
        "SELECT 'Grape', Variety_ID, Used FROM Varieties UNION ALL "
        "SELECT 'Pairing', Maridage_ID, Used FROM Maridages ORDER BY 1, 2");
    if (first_.empty()) first_ = now;
    Texts moved;
    for (std::size_t row = 0; row < now.size(); ++row) {
      if (now[row] == first_[row]) continue;
      const Texts cells = Cells_of(now[row]);
      const Long by = To_Long(cells[2]) - To_Long(Cells_of(first_[row])[2]);
      moved.push_back(cells[0] + "|" + cells[1] + "|" + To_Text(by));
    }
    return moved;
  }
  void Expect_Each_Row_Has_Its_Wine() const {
    for (const char* table : {"Wine_Tasting WHERE Cellar_Wine AND", "Varieties_of_Wines WHERE",
                              "Maridages_Per_Wines WHERE"}) {
      EXPECT_THAT(Stored("SELECT Wine_ID FROM " + Text(table) +
                         " Wine_ID NOT IN (SELECT Wine_ID FROM Wines)"),
                  IsEmpty())
          << table;
    }
    const Texts cheeses = Stored("SELECT m.Cheese_ID, l.Wine_ID FROM " + Text(pairings) +
                                 "WHERE m.Cheese_ID <> -1 ORDER BY 1, 2");
    for (const char* table : {"Cheeses_Per_Wines", "Wines_Per_Cheeses"}) {
      EXPECT_EQ(Stored("SELECT Cheese_ID, Wine_ID FROM " + Text(table) + " ORDER BY 1, 2"), cheeses)
          << table;
    }
    EXPECT_THAT(Stored("SELECT ID FROM Words_for_Data WHERE English LIKE 'Of wine%' AND ID NOT IN "
                       "(SELECT Description FROM Wines)"),
                IsEmpty());
  }
  Texts Marks_of(Long wine) const {
    return Stored(
        "SELECT Type_Taste || '_Check_' || Description FROM Wine_Tasting WHERE "
        "Cellar_Wine AND Wine_ID = " +
        To_Text(wine) + " ORDER BY Type_Taste DESC, Description");
  }

  // The first of the chosen ones goes, and some come.
  void Change_Pairings() {
    Click("Pairings_Add_Command");
    if (!Lines("SelectList").empty()) {
      Click_Row("SelectList", 0);
      Press("Delete");
    }
    const Texts names{Food_at(0, 1).name, Food_at(0, 3).name, Food(1).name, A_Cheese()};
    for (int time = At_Random(3); time > 0; --time)
      Add(names.at(static_cast<std::size_t>(At_Random(4))));
    Click(Is_Usable("MultSelect") ? "MultSelect" : "MultCancel");
  }
  // Whatever of it, and the marks that the boxes show then.
  Texts Change_Fields(int winery) {
    Choose("Label_Combo", At_Random(2) == 0 ? Sample(winery).label : "No Label");
    Choose("Classification_Combo",
           At_Random(2) == 0 ? Sample(winery).classification : "NO Classification");
    Type_Into("Description_Text", "Of wine " + To_Text(Long{At_Random(9)}));
    for (const char* box : {"Taste_Check_0", "Taste_Check_1", "Aroma_Check_1"}) {
      if (At_Random(2) == 0) Click(box);
    }
    if (At_Random(3) > 0) Change_Pairings();
    return Ticked_Boxes();
  }

  std::mt19937 random_{7};
  Texts first_;
};

TEST_F(Wine_Rows, Follow_the_wine_and_each_counter_is_the_number_of_its_uses) {
  const Faults_Mended faults;
  ASSERT_THAT(Counted(), IsEmpty());
  for (const Long general : {1, 2, 3}) Put_Mark(general, "Aroma", 5, false);
  struct Wine {
    int winery;
    Texts marks;
  };
  std::map<Long, Wine> wines;
  for (Long step = 1, added = 0; step <= 20; ++step) {
    const int way = wines.empty() || step < 4 ? 0 : At_Random(4);
    SCOPED_TRACE(To_Text(step) + " by way " + To_Text(Long{way}));
    const Box_Script boxes({true, true});
    if (way == 0) {
      Start_With("Wine_Add");
      const int winery = At_Random(2);
      Fill_Add({.ticks = {1 + At_Random(2), 3}}, winery);
      wines[++added] = {winery, Change_Fields(winery)};
      Click(button);
    } else if (way == 3) {
      Start();
      Search_for({Food_at(0, 1), Food(1)});
    } else {
      const auto wine = std::next(wines.begin(), At_Random(static_cast<int>(wines.size())));
      Start_With(way == 1 ? "Wine_Mod" : "Wine_Del");
      Pick_Wine(wine->first);
      EXPECT_EQ(Ticked_Boxes(), wine->second.marks);
      if (way == 1) wine->second.marks = Change_Fields(wine->second.winery);
      Click(button);
      if (way == 2) wines.erase(wine);
    }
    ASSERT_EQ(Counted(), Uses_of_Wines());
    Expect_Each_Row_Has_Its_Wine();
    for (const auto& [key, wine] : wines) EXPECT_EQ(Marks_of(key), wine.marks) << key;
    EXPECT_EQ(
        Stored("SELECT Wine_ID FROM Wine_Tasting WHERE NOT Cellar_Wine AND Wine_ID < 4").size(),
        3U);
  }
}

TEST_F(Wine_Rows, Of_a_wine_beyond_16_bits_are_stored_mended_and_read_as_designed) {
  Change([this](Record_Store::Database& file) {
    Record_Store::Recordset wineries = file.OpenRecordset("Wineries");
    wineries.Index("Winery_ID");
    wineries.Seek("=", Sample().id);
    wineries.Edit();
    wineries.Fields("Used") = 32767;
    wineries.Update();
    Record_Store::Recordset wines = file.OpenRecordset("Wines");
    for (int number = 0; number < 40000; ++number) wines.AddNew();  // dropped: the number is gone
    Wines_Description.Write(wines, Sample_Wine());
  });
  Start_With("Wine_Add");
  Fill_Add();
  Click("Aroma_Check_1");
  Expect_End(6, [] { Click(button); });
  constexpr Long wine = 40002;
  const Faults_Mended faults;
  Start_With("Wine_Add");
  Fill_Add();
  Click("Aroma_Check_1");
  Click("Pairings_Add_Command");
  Add(A_Cheese());
  Click("MultSelect");
  EXPECT_EQ(Told_By([] { Click(button); }).size(), 1U);
  Expect_Each_Row_Has_Its_Wine();
  Mend_Known_Faults(false);
  Start();
  Pick("Pairing_Search_Cellar");
  Add(A_Cheese());
  Click("MultSelect");
  Pick_Wine(wine);
  EXPECT_THAT(Ticked_Boxes(), ElementsAre("Aroma_Check_1"));
  EXPECT_THAT(Lines("Pairing_List"), ElementsAre(A_Cheese()));
  EXPECT_EQ(Told_By([] { Click(button); }).size(), 1U);
  EXPECT_EQ(Bottles_of(wine), "5");
  Mend_Known_Faults();
  Start_With("Wine_Mod");
  Pick_Wine(wine);
  Click("Aroma_Check_2");
  EXPECT_EQ(Told_By([] { Click(button); }).size(), 1U);
  EXPECT_THAT(Marks_of(wine), ElementsAre("Aroma_Check_1", "Aroma_Check_2"));
  Start_With("Wine_Del");
  Pick_Wine(wine);
  const Box_Script boxes({true});
  Click(button);
  Expect_Each_Row_Has_Its_Wine();
  EXPECT_EQ(One("SELECT Used FROM Wineries WHERE Winery_ID = " + Sample().id), "32767");
  EXPECT_EQ(Stored("SELECT 1 FROM Cheeses_Per_Wines").size(), 0U);
}

}  // namespace
