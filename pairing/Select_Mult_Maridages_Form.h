// Chooses several pairings: to search wines by them, or for a wine, a variety or a cheese.
#pragma once

#include "pairing/Select_Mult_Form.h"

class Select_Mult_Maridages_Form : public Select_Mult_Form {
 public:
  Select_Mult_Maridages_Form();

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void Proceed() override;

 private:
  void Initialize_Select_Mult_Cat_Language();
  bool Is_Search() const;
  void Load_Chosen();
  void Show_Whose_List();
  void Search_Cellar();
  void Search_General_List();
  void Say_No_Wines();
};
