// Chooses several grape varieties: those that a region grows, or that go with a cheese.
#pragma once

#include "pairing/Select_Mult_Form.h"

class Select_Mult_Varieties_Form : public Select_Mult_Form {
 public:
  Select_Mult_Varieties_Form();

 protected:
  void Form_Load() override;
  void Proceed() override;

 private:
  void Initialize_Select_Mult_Varieties_Language();
  void Load_Varieties();
  void Show_Whose_List();
  void Load_Varieties_of_this_Region();
  void Store_for_Region();
  void Store_for_Cheese();
  void Tag_Varieties_of_Wine();
};
