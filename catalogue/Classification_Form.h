// The classifications of wines: each country's official grades, with what the glossary says of
// them. Only looking is offered; two commands that no entry of the menu gives change or delete.
#pragma once

#include "platform/forms/Forms.h"
#include "screens/Catalogue_Screen.h"
#include "screens/Keyed.h"
#include "screens/Pager.h"
#include "screens/Row_List.h"

class Classification_Form : public Catalogue_Screen {
 public:
  Classification_Form();

 protected:
  void Form_Load() override;

 private:
  void Lay_Out();
  void Load_List();
  void Lock_All();
  /// Shows the row of this key, under the command that does so. Whether it is still there.
  bool Show_Row(const Text& key);
  void Memory_to_Form();
  /// The classes of the country of the one in the memory record.
  void Initialize_Current_Classification();
  void Classification_ListView_ItemClick(Forms::List_Item item);
  void Delete_Classification();

  Row_List Classification_ListView{*this,
                                   "Classification_ListView",
                                   {{"Description", 34, false, false, 3},
                                    {"Country", 18, false, false, 1},
                                    {"Classification_ID", 8, true, true},
                                    {"Short", 6}},
                                   {"Description", "Country", "Classification_ID"}};
  Forms::Label Name_Label{*this, "Name_Label", "Classification"};
  Forms::Text_Box Name_Text{*this, "Name_Text"};
  Forms::Label Description_Label{*this, "Description_Label", "Descripcion"};
  Forms::Text_Box Description_Text{*this, "Description_Text", Forms::Text_Box::Lines::Many};
  Forms::Label Country_Label{*this, "Country_Label", "Country"};
  Keyed_Combo_Box Country_Combo{*this, "Country_Combo", "Country_Short_Combo"};
  Forms::Label Current_Classification_Label{*this, "Current_Classification_Label",
                                            "Current Classifications for the Country"};
  Forms::Combo_Box Current_Classification_Combo{*this, "Current_Classification_Combo"};
  Forms::Command_Button Classification_Form_Previous_Command{
      *this, "Classification_Form_Previous_Command", "<==Previous"};
  Forms::Command_Button Classification_Form_Next_Command{*this, "Classification_Form_Next_Command",
                                                         "Next==>"};
  Pager Paging{Classification_Form_Previous_Command, Classification_Form_Next_Command};
};
