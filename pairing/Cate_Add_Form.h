// The catalogue of pairings: listed, added to, and changed, in the language in force and in one
// other (Spanish beside English, English beside every other).
#pragma once

#include "core/words/Cate_Add_Form_Words.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Values.h"
#include "screens/Command_Form.h"
#include "screens/Form_Words.h"
#include "screens/Row_List.h"

class Cate_Add_Form : public Command_Form {
 public:
  Cate_Add_Form();

 protected:
  void Form_Load() override;

 private:
  void Lay_Out();
  void Cate_Add_Form_Language_Initialize();
  static Text Second_Header();
  void Load_Current_Maridages();
  void Define_Other_Language();
  void Load_for_Add();
  void Load_for_View();
  void Load_for_Mod();
  void CatText_Change();
  void Show_Boxes();
  void Maridages_ListView_ItemClick(Forms::List_Item item);
  void Cat_Add_Now_Click();
  void Add_Maridage();
  void Modify_Maridage();

  /// The key of the pairing that is to be changed; "" before one is picked.
  Text picked_;
  Form_Words Words{"Cate_Add_Form", Screen_Words::Cate_Add_Form};

  Forms::Label Current_Maridages_Label{*this, "Current_Maridages_Label",
                                       "Current Available Pairings"};
  Row_List Maridages_ListView{*this,
                              "Maridages_ListView",
                              {{"English", 40, false, false, 1},
                               {Second_Header(), 40, false, false, 1},
                               {"Maridage_ID", 8, true, true}}};
  Forms::Label CatLabel{*this, "CatLabel", "Please type the new Category"};
  Forms::Label Cat_Language1_Label{*this, "Cat_Language1_Label", "Category in English:"};
  Forms::Text_Box CatText{*this, "CatText"};
  Forms::Label Cat_Language2_Label{*this, "Cat_Language2_Label", "Category in Spanish:"};
  Forms::Text_Box CAT_Other_Language_Text{*this, "CAT_Other_Language_Text"};
  Forms::Label System_Label{*this, "System_Label",
                            "System Categories CANNOT be MODIFIED or DELETED"};
  Forms::Command_Button Cat_Add_Now{*this, "Cat_Add_Now", "ADD"};
  Forms::Command_Button Cat_Add_Cancel{*this, "Cat_Add_Cancel", "CANCEL"};
};
