// Asks for the names of the two cellars, the first time and later to change them.
#pragma once

#include "platform/forms/Command_Button.h"
#include "platform/forms/Label.h"
#include "platform/forms/Text_Box.h"
#include "screens/Command_Form.h"

class Cellar_Names_Form : public Command_Form {
 public:
  Cellar_Names_Form();

 protected:
  void Form_Load() override;

 private:
  void Lay_Out();
  void Name_Text_Change(Forms::Text_Box& changed);
  void General_Command_Click();
  void Name_Cellars();
  void Modify_Names();
  void Set_Commands_Multiple_Cellars();

  bool filling_ = false;

  Forms::Label Cellar1_Name_Label{*this, "Cellar1_Name_Label", "Cellar #1 Name:"};
  Forms::Text_Box Cellar1_Name_Text{*this, "Cellar1_Name_Text"};
  Forms::Label Cellar2_Label{*this, "Cellar2_Label", "Cellar #2 Name:"};
  Forms::Text_Box Cellar2_Name_Text{*this, "Cellar2_Name_Text"};
  Forms::Command_Button General_Command{*this, "General_Command", "SAVE"};
  Forms::Command_Button Exit_Command{*this, "Exit_Command", "EXIT"};
};
