// A closed list that drops down: the user chooses one of its entries, or none.
#pragma once

#include "platform/forms/Item_List.h"

namespace Forms {

/// The user's choice raises Click, from the list or with the keys; a double click raises DblClick,
/// on a locked box too. The wheel changes only a box that has the focus.
class Combo_Box : public Item_List {
 public:
  Combo_Box(Form& form, std::string_view name);
  ~Combo_Box() override;

 protected:
  void Show_List_Index() override;
};

}  // namespace Forms
