// What the pickers of pairings and of varieties have in common: what they are for at the top, what
// can be chosen at the left, what is chosen at the right, texts in the language in force.
#pragma once

#include <string_view>

#include "screens/Form_Words.h"
#include "screens/Picker_Form.h"

class Select_Mult_Form : public List_Picker_Form {
 protected:
  Select_Mult_Form(std::string_view name, std::string_view caption, const Form_Words& words);

  /// The captions and tips in the language in force.
  void Initialize_Language();
  /// While the list loads, which is before the window is seen, only the request to wait shows.
  void Hide_All_Visible();
  void Turn_Boxes_On();
  /// Whose list this is.
  void Show_Owner(std::string_view owner);
  void Show_Owner(std::string_view word, std::string_view owner);

  Form_Words Words;

  Forms::Label MSelectLab1{*this, "MSelectLab1"};
  Forms::Label Label1{*this, "Label1"};
  Forms::Label MSelectLab2{*this, "MSelectLab2", "Please Wait while we load the Categories"};
  Forms::Label MSelectLab3{*this, "MSelectLab3"};
  Forms::Label Recipe_Name{*this, "Recipe_Name"};

 private:
  void Set_Loaded(bool loaded);
};
