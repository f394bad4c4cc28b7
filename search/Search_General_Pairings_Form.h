// From foods to the grapes that suit them, and to the regions that grow these. Ready, but no entry
// of the menu leads here.
#pragma once

#include "screens/Picker_Form.h"
#include "screens/Row_List.h"

class Search_General_Pairings_Form : public List_Picker_Form {
 public:
  Search_General_Pairings_Form();

 protected:
  void Form_Load() override;
  void Proceed() override;

 private:
  void Lay_Out();
  void Show_Varieties();
  void Add_Varieties_of_Pairing(Long maridage_id);
  void Add_Variety();
  void Load_Varieties_Regions();
  void Load_Regions_of_all_Varieties();
  /// What becomes of a region whose name is listed already.
  enum class Same_Name { Is_Listed, Is_Passed_Over };
  void Add_Regions_of_Variety(Long variety_id, Same_Name same_name);
  void Variety_Name_ListView_ItemClick(const Forms::List_Item& item);

  Forms::Label MSelectLab1{*this, "MSelectLab1", "Categories "};
  Forms::Label Label1{*this, "Label1", "Selected Categories"};
  Forms::Label Variety_Name_List_Label{*this, "Variety_Name_List_Label", "Grape Varieties"};
  Row_List Variety_Name_ListView{
      *this,
      "Variety_Name_ListView",
      {{"Grape Variety Name", 26, false, false, 1}, {"Color", 10}, {"Vaiety_ID", 8, true, true}}};
  Forms::Label Recipe_Name{*this, "Recipe_Name"};
  Forms::Label Regions_List_Label{*this, "Regions_List_Label",
                                  "Regions producing the Variety Grape"};
  Row_List Regions_ListView{
      *this,
      "Regions_ListView",
      {{"Region", 26, false, false, 1}, {"Country", 9}, {"Region_ID", 8, true, true}}};
};
