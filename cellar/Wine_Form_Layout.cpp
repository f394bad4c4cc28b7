// Where everything stands on the screen, in the order of reading.
#include "cellar/Wine_Form.h"

void Wine_Form::Lay_Out() {
  using namespace Forms;  // NOLINT(google-build-using-namespace): the words of the layout
  constexpr int name_width = 26;
  constexpr int number_width = 10;
  const auto with_button = [](Item_List& list, Command_Button& button) {
    return Row({Place(list).Grow().Wide(name_width), button});
  };
  const Place origin = Fields(
      {{Winery_Label, with_button(Winery_Combo, Winery_Add_Command)},
       {LabelLabel, with_button(Label_Combo, Label_Add_Command)},
       {Variety_Label,
        Row({Place(Variety_Combo).Grow().Wide(name_width), Variety_Add_Command}).High(5).Grow()},
       {Region_Label, Region_Combo},
       {Country_Label, Country_Combo}});
  const Place bottle = Fields({{Vintage_Label, Place(Vintage_Combo).Wide(number_width)},
                               {Color_Label, Color_Combo},
                               {Merit_Label, Merit_Combo},
                               {Bottle_Size_Label, Bottle_Size_Combo},
                               {Total_Bottles_Label, Total_Bottles_Text},
                               {Alcohol_Label, Alcohol_Text},
                               {Price_Label, Price_Text},
                               {Peak_Year_Label, Peak_Year_Combo}});
  const Place notes = Fields(
      {{Description_Label, Place(Description_Text).High(2).Grow()},
       {Pairing_Label, Row({Place(Pairing_List).High(2).Grow(), Pairings_Add_Command}).Grow()},
       {Classification_Label, with_button(Classification_Combo, Classification_Add_Command)},
       {Comments_Label, Place(Comments_Text).High(2).Grow()},
       {Last_Day_Uncorked_Label, Last_Date_Uncorked_Text},
       {Date_Added_Label, Date_Added_Text}});
  const Place marks = Row({Boxes.Taste_Place(), One_Place({Boxes.Aroma_Place(), Message_Label})});
  Set_Content(
      Column({Above_Below(Row({origin.Grow(3), bottle, notes.Grow(3), marks}),
                          Column({Row({Current_Cellar_Label, Wine_Cellar_Name_Label, Stretch()}),
                                  Place(Wine_Cellar_ListView).Grow().High(8)}))
                  .Grow(),
              Buttons({Multi_Functional_Command, Exit_Command})}));
  Set_Exit(Exit_Command);
}
