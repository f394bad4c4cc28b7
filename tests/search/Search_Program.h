// The program with pairings of wines, for the tests of this room: what is stored of them, and the
// user's way from the menu to the wines that were found.
#pragma once

#include "links/Varieties_Processes.h"
#include "tests/support/Pairing_Program.h"

class Search_Program : public Pairing_Program {
 protected:
  static constexpr const char* results = "Wine_Search_Results_Form";
  static constexpr const char* list = "Wine_Cellar_ListView";
  static constexpr const char* button = "Multi_Functional_Command";

  /// As in a program that was just started: no row was read, nothing chosen or found before.
  void SetUp() override {
    Maridages = {};
    Wineries = {};
    Selected_Count = 0;
    Found_IDs.Clear();
  }

  /// The food at this place of the group of Food(`number`).
  const Sample_Pairing& Food_at(int number, Long subgroup) const {
    for (const Sample_Pairing& food : Foods()) {
      if (food.group == Food(number).group && food.subgroup == subgroup) return food;
    }
    throw std::out_of_range("the delivered file has no such food");
  }
  Long Put_Wine_with(const std::vector<Sample_Pairing>& pairings, const Wines_Record& wine) const {
    const Long key = Put_Wine(wine);
    for (const Sample_Pairing& pairing : pairings) Put_Pairing(key, pairing);
    return key;
  }
  Long Put_Wine_with(const std::vector<Sample_Pairing>& pairings) const {
    return Put_Wine_with(pairings, Sample_Wine());
  }
  /// So many wines with this one pairing each.
  void Put_Wines_with(const Sample_Pairing& pairing, int count) const {
    Change([&](Record_Store::Database& file) {
      Record_Store::Recordset wines = file.OpenRecordset("Wines");
      Record_Store::Recordset links = file.OpenRecordset("Maridages_Per_Wines");
      for (int wine = 0; wine < count; ++wine) {
        wines.AddNew();
        links.AddNew();
        links.Fields("Wine_ID") = wines.Fields("Wine_ID").As_Long();
        links.Fields("GROUP") = pairing.group * 10;
        links.Fields("SUBCATEGO") = Subgroup_Mask(pairing.subgroup);
        links.Update();
        Wines_Description.Write(wines, Sample_Wine());
      }
    });
  }

  /// The wine's link rows, "GROUP|SUBCATEGO", in their order.
  Texts Links_of(Long wine) const {
    return Stored("SELECT [GROUP], SUBCATEGO FROM Maridages_Per_Wines WHERE Wine_ID = " +
                  To_Text(wine) + " ORDER BY rowid");
  }
  static Text Link(const Sample_Pairing& pairing, const char* mask) {
    return To_Text(pairing.group * 10) + "|" + mask;
  }
  Text Bottles_of(Long wine) const {
    return One("SELECT Total_Bottles FROM Wines WHERE Wine_ID = " + To_Text(wine));
  }

  /// From the main window to the wines found, or to the boxes that say there are none.
  static void Search_for(const std::vector<Sample_Pairing>& pairings) {
    Pick("Pairing_Search_Cellar");
    for (const Sample_Pairing& pairing : pairings) Add(pairing.name);
    Click("MultSelect");
  }
  /// The keys of the wines that are listed, in their order.
  static std::vector<Long> Wines_Listed() {
    std::vector<Long> keys;
    for (const Text& key : Shown_Column(list, Key_Column(list))) keys.push_back(To_Long(key));
    return keys;
  }
};
