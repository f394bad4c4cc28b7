// One data file, worked on in turns by the program as designed and by the mended one.
#include "tests/screens/Shown_Wines.h"
#include "tests/support/Faults_Mended.h"

namespace {

constexpr const char* button = "Multi_Functional_Command";

class Both_Ways : public Shown_Wines {
 protected:
  ~Both_Ways() override { Mend_Known_Faults(false); }

  void Start_As(bool mended, const char* entry) {
    Mend_Known_Faults(mended);
    Start_With(entry);
  }
  void Add_Wine(const char* label) {
    Fill_Add({label, Sample().classification, {1, 2}});
    for (const char* box : {"Taste_Check_2", "Aroma_Check_0"}) Click(box);
    Choose_Pairings({Food(0).name, cheese_});
  }
  static void Choose_Pairings(const Texts& names) {
    Click("Pairings_Add_Command");
    for (const Text& name : names) Add(name);
    Click("MultSelect");
  }
  /// What was just entered is stored, and reads the same in both.
  void Store(Long wine) {
    stored_[wine] = Shown();
    Click(button);
    Expect_Read_By_Both();
  }
  void Expect_Read_By_Both() {
    for (const bool mended : {false, true}) {
      Start_As(mended, "Cellar1_View");
      for (const auto& [wine, shown] : stored_) {
        Pick_Wine(wine);
        EXPECT_THAT(Differences(Shown(), shown), IsEmpty())
            << wine << (mended ? " mended" : " as designed");
      }
    }
  }
  void Uncork(bool mended, Long wine) {
    Start_As(mended, "Wine_Uncork");
    Pick_Wine(wine);
    Click(button);
    stored_[wine] = Shown();
    Expect_Read_By_Both();
  }
  void Expect_Found_By_Both(const Texts& wines) {
    for (const bool mended : {false, true}) {
      Start_As(mended, "Pairing_Search_Cellar");
      Add(cheese_);
      Click("MultSelect");
      EXPECT_EQ(Shown_Column("Wine_Cellar_ListView", mended ? 10 : 9), wines);
    }
  }

  const End_Watch end_;
  const Box_Script boxes_;
  std::map<Long, Shown_Wine> stored_;
  const Text cheese_ = One("SELECT English FROM Maridages WHERE Multiuse >= 2 AND Cheese_ID <> -1");
};

TEST_F(Both_Ways, What_one_stores_the_other_reads_and_works_on) {
  Start_As(false, "Wine_Add");
  Add_Wine("No Label");
  Type_Into("Description_Text", "From the slope");
  Store(1);
  Start_As(true, "Wine_Mod");
  Pick_Wine(1);
  Type_Into("Description_Text", "");
  Type_Into("Comments_Text", "x");
  Click("Aroma_Check_0");
  Click("Aroma_Check_3");
  Choose_Pairings({Food(1).name});
  Store(1);
  Uncork(false, 1);

  Start_As(true, "Wine_Add");
  Add_Wine(Sample().label.c_str());
  Store(2);
  Start_As(false, "Wine_Mod");
  Pick_Wine(2);
  Type_Into("Total_Bottles_Text", "9");
  Click("Aroma_Check_5");
  Choose_Pairings({Food(2).name});
  Store(2);
  Start_As(true, "Wine_Mod");
  Pick_Wine(2);
  Choose("Label_Combo", "No Label");
  Choose("Vintage_Combo", "1976");
  Store(2);
  Uncork(true, 2);

  Expect_Found_By_Both({"1", "2"});
  for (const Long wine : {1, 2}) {
    Start_As(wine == 1, "Wine_Del");
    Pick_Wine(wine);
    Click(button);
    stored_.erase(wine);
    Expect_Read_By_Both();
  }
  EXPECT_FALSE(end_.Ended()) << boxes_.Texts().back();
}

}  // namespace
