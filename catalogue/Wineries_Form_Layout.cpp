// Where everything stands on the screen, in the order of reading: the list at the left, what
// belongs to the picked winery at the right.
#include "catalogue/Wineries_Form.h"

void Wineries_Form::Lay_Out() {
  using namespace Forms;
  constexpr int list_width = 48;
  constexpr int field_width = 20;
  constexpr int add_width = 4;
  Winery_List_Label.Set_Buddy(Wineries_ListView);
  Wineries_ListView.Set_Empty_Text("No wineries yet.");
  Winery_Labels_List.Set_Empty_Text("Shown in the list of wineries.");
  Available_Wines_ListView.Set_Empty_Text("Shown in the list of wineries.");
  const auto field = [](Placed_Control& control) { return Place(control).Wide(field_width); };
  const Place list =
      Column({Winery_List_Label, Place(Wineries_ListView).Wide(list_width).High(18, 8).Grow(),
              Row({Wineries_Form_Previous_Command, Wineries_Form_Next_Command, Stretch()})});
  const Place address = Fields({{Name_Label, field(Name_Text)},
                                {Add1_Label, field(Add1_Text)},
                                {Add2_Label, field(Add2_Text)},
                                {Phone_Label, field(Phone_Text)},
                                {Web_Label, field(Web_Text)},
                                {E_Mail_Label, field(E_Mail_Text)}});
  // The word for a state is a long one in some countries.
  const Place origin = Column(
      {Fields({{Country_Label, field(Country_Combo)},
               {Region_Label,
                Row({field(Region_Combo).Grow(), Place(Wine_Region_Add_Command).Wide(add_width)})},
               {City_Label, field(City_Text)},
               {Zip_Code_Label, field(Zip_Code_Text)}}),
       Below(State_Label, One_Place({field(State_Combo), field(Province_Text)}))});
  const Place labels =
      Below(Winery_Labels_Label, Place(Winery_Labels_List).Wide(field_width).High(6, 4).Grow());
  const Place wines = Below(Wines_for_Selected_Label_Label,
                            Place(Available_Wines_ListView).Wide(32).High(6, 4).Grow());
  const Place winery =
      Column({Row({address.Grow(5), origin.Grow(6)}),
              Row({Below(History_Label, Place(History_Text).Wide(40).High(3, 2).Grow()).Grow(3),
                   Place(Winery_Image).Wide(18).High(5, 3).Grow()})
                  .Grow(),
              Row({labels.Grow(), wines.Grow(2)}).Grow(2)});
  Set_Content(Row({list.Grow(4), winery.Grow(5)}), Buttons({General_Command, Exit_Command}));
  Set_Exit(Exit_Command);
  Set_Commit(General_Command);
}
