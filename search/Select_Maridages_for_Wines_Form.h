// Chooses the pairings of a wine or of a grape variety: from all of them, from the cheeses among
// them, or from those that a grape suggests.
#pragma once

#include "screens/Picker_Form.h"

class Select_Maridages_for_Wines_Form : public List_Picker_Form {
 public:
  Select_Maridages_for_Wines_Form();

 protected:
  void Form_Load() override;
  std::optional<Entry> Current_Entry() const override;
  bool May_Be_Empty() const override;
  void Proceed() override;
  void MultCancel_Click() override;

 private:
  void Lay_Out();
  bool Is_of_Variety() const;
  /// Whether the second option is the cheeses, whatever the grapes.
  bool Offers_Cheeses() const;
  void Load_Name();
  void Load_Options();
  void Add_Grapes_of(const char* wine_screen, const char* behind_name);
  void Load_Chosen();
  void Selection_Option_List_Click();
  void Load_from_Query(const char* condition, const char* caption);
  void Load_Suggestions();
  void Search_Cellar();

  /// What was selected before this screen: showing a grape's suggestions changes that.
  Kept_Selection kept_;

  Forms::Label Wine_Name_Label{*this, "Wine_Name_Label", "Wine:"};
  Forms::Text_Box Wine_Name_Text{*this, "Wine_Name_Text"};
  Forms::Label Selection_Label{*this, "Selection_Label", "Select an Option"};
  Keyed_List_Box Selection_Option_List{*this, "Selection_Option_List", "Selection_Option_ID_List"};
  Forms::Command_Button Display_Command{*this, "Display_Command", "Display==>"};
  Forms::Label Pairings_Label{*this, "Pairings_Label", "Pairings"};
  Forms::Label Selected_Label{*this, "Selected_Label", "Selected Pairings"};
};
