// The rows that a wine beyond 16 bits has in other tables: stored with the known faults mended, and
// read as designed.

#include "tests/search/Search_Program.h"
#include "tests/support/Faults_Mended.h"

namespace {

constexpr const char* pairings =
    "Maridages_Per_Wines l JOIN Maridages m ON m.Maridage_Group = l.[GROUP] / 10 AND "
    "substr('0000000000' || l.SUBCATEGO, -m.Maridage_SubGr, 1) = '1' ";

class Wine_Rows : public Search_Program {
 protected:
  Text A_Cheese() const {
    return One("SELECT English FROM Maridages WHERE Cheese_ID <> -1 ORDER BY Maridage_ID");
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
  }
  Texts Marks_of(Long wine) const {
    return Stored(
        "SELECT Type_Taste || '_Check_' || Description FROM Wine_Tasting WHERE "
        "Cellar_Wine AND Wine_ID = " +
        To_Text(wine) + " ORDER BY Type_Taste DESC, Description");
  }
};

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
