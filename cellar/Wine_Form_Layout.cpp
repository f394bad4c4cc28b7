// Where everything stands on the screen, in the order of reading.
#include "cellar/Wine_Form.h"

void Wine_Form::Lay_Out() {
  using namespace Forms;
  constexpr int add_width = 4;
  const Beside add_buttons{
      {&Winery_Combo, Place(Winery_Add_Command).Wide(add_width)},
      {&Label_Combo, Place(Label_Add_Command).Wide(add_width)},
      {&Variety_Combo, Place(Variety_Add_Command).Wide(add_width)},
      {&Pairing_List, Pairings_Add_Command},
      {&Classification_Combo, Place(Classification_Add_Command).Wide(add_width)}};
  Set_Content(Above_Below(Fields_Place(add_buttons, {Message_Label}),
                          Column({Row({Current_Cellar_Label, Wine_Cellar_Name_Label, Stretch()}),
                                  Place(Wine_Cellar_ListView).Grow().High(12, 4)})
                              .Grow()),
              Buttons({Multi_Functional_Command, Exit_Command}));
  Set_Exit(Exit_Command);
  Set_Commit(Multi_Functional_Command);
}
