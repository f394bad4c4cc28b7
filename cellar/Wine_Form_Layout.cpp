// Where everything stands on the screen, in the order of reading.
#include "cellar/Wine_Form.h"

void Wine_Form::Lay_Out() {
  using namespace Forms;  // NOLINT(google-build-using-namespace): the words of the layout
  constexpr int name_width = 20;
  constexpr int number_width = 9;
  constexpr int text_width = 22;
  constexpr int add_width = 6;
  constexpr int opening_width = 1264;
  const auto with_button = [](Item_List& list, Command_Button& button) {
    return Row({Place(list).Grow().Wide(name_width), Place(button).Wide(add_width)});
  };
  const Place origin =
      Fields({{Winery_Label, with_button(Winery_Combo, Winery_Add_Command)},
              {LabelLabel, with_button(Label_Combo, Label_Add_Command)},
              {Variety_Label, Row({Place(Variety_Combo).Grow().Wide(name_width).High(6),
                                   Place(Variety_Add_Command).Wide(add_width)})
                                  .Grow()},
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
  const Place notes =
      Fields({{Description_Label, Place(Description_Text).Wide(text_width).High(2).Grow()},
              {Pairing_Label,
               Row({Place(Pairing_List).Wide(12).High(2).Grow(), Pairings_Add_Command}).Grow()},
              {Classification_Label, Row({Place(Classification_Combo).Grow(),
                                          Place(Classification_Add_Command).Wide(add_width)})},
              {Comments_Label, Place(Comments_Text).High(2).Grow()},
              {Last_Day_Uncorked_Label, Last_Date_Uncorked_Text},
              {Date_Added_Label, Date_Added_Text}});
  const Place marks = Row({Boxes.Taste_Place(), One_Place({Boxes.Aroma_Place(), Message_Label})});
  Set_Content(
      Column({Above_Below(Row({origin.Grow(5), bottle, notes.Grow(4), marks}),
                          Column({Row({Current_Cellar_Label, Wine_Cellar_Name_Label, Stretch()}),
                                  Place(Wine_Cellar_ListView).Grow().High(17)})
                              .Grow())
                  .Grow(),
              Buttons({Multi_Functional_Command, Exit_Command})}));
  Set_Exit(Exit_Command);
  Set_Width(opening_width);
}
