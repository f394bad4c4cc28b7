// Chooses several wines of the general list, which three lists narrow down: country, colour and
// main grape.
#pragma once

#include "screens/Picker_Form.h"
#include "screens/Row_List.h"

class Select_Mult_Wines_Form : public Picker_Form {
 public:
  Select_Mult_Wines_Form();

 protected:
  void Form_Load() override;
  std::optional<Entry> Current_Entry() const override;
  void Proceed() override;

 private:
  void Lay_Out();
  void Set_Up_Handlers();
  void Initialize_Countries();
  void Initialize_Colors();
  void Initialize_Varieties();
  void Clear_Busqueda();
  void Clear_Mobile_Wine_List();
  void Country_Combo_Click();
  void Wine_Color_Combo_Click();
  void Grape_Variety_Combo_Click();
  /// The colours of a wine that a chosen one is compared with.
  enum class Colors { First, All };
  Text Place_And_Color(Colors colors) const;
  void Show_Wines(Colors colors);
  void Load_Main_Grapes_of_Selected_Wines(const Text& condition);
  void Display_Mobile_Wine_Listview(Text condition);
  void Add_Wine();
  Text Color_of_Wine() const;
  void Mobile_Wines_ListView_ItemClick(Forms::List_Item item);

  /// The wine picked last.
  std::optional<Entry> current_;
  /// While True the filters' Click does nothing: code is filling them.
  bool filling_ = false;

  Forms::Label Country_Label{*this, "Country_Label", "Country"};
  Keyed_Combo_Box Country_Combo{*this, "Country_Combo", "Country_Short_Combo"};
  Forms::Label Wine_Color_Label{*this, "Wine_Color_Label", "Color"};
  Forms::Combo_Box Wine_Color_Combo{*this, "Wine_Color_Combo"};
  Forms::Label Grape_Variety_Label{*this, "Grape_Variety_Label", "Grape Variety"};
  Keyed_Combo_Box Grape_Variety_Combo{*this, "Grape_Variety_Combo", "Grape_Variety_ID_Combo"};
  Forms::Text_Box Search_Text{*this, "Search_Text"};
  Forms::Label Wines_Label{*this, "Wines_Label", "Wines"};
  Forms::Label Wines_Number{*this, "Wines_Number"};
  Row_List Mobile_Wines_ListView{*this,
                                 "Mobile_Wines_ListView",
                                 {{"Wine Name", 30, false, false, 2},
                                  {"Country", 9},
                                  {"Type", 12},
                                  {"GRAPE", 20, false, false, 1},
                                  {"ID", 8, true, true}}};
  Forms::Label Selected_Label{*this, "Selected_Label", "Selected Wines"};
};
