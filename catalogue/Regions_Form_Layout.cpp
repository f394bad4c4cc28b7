// Where everything stands on the screen, in the order of reading.
#include "catalogue/Regions_Form.h"

void Regions_Form::Lay_Out() {
  using namespace Forms;
  constexpr int list_width = 42;
  constexpr int text_width = 30;
  constexpr int picture_width = 18;
  constexpr int link_width = 20;
  Labels_Label.Set_Buddy(Labels_ListView);
  Varieties_Label.Set_Buddy(Varieties_ListView);
  Regions_ListView.Set_Accessible_Name("Wine Regions");
  Region_Image.Set_Accessible_Name("Photo of the Region");
  const Place list = Column({Place(Regions_ListView).Wide(list_width).High(24, 6).Grow()});
  const Place fields =
      Fields({{Name_Label, Name_Text},
              {Country_Label, Country_Combo},
              {Descriptio_Label, Place(Description_Text).Wide(text_width).High(5, 2).Grow(2)},
              {History_Label, Place(History_Text).High(5, 2).Grow()}});
  const Place links =
      Row({Column({Labels_Label, Place(Labels_ListView).Wide(link_width).High(8, 4).Grow()}).Grow(),
           Column({Varieties_Label, Place(Varieties_ListView).Wide(link_width).High(8, 4).Grow()})
               .Grow()});
  const Place picture =
      Column({System_Region_Label, Place(Region_Image).Wide(picture_width).Grow()});
  const Place region = Column({Row({fields.Grow(), picture}).Grow(), links.Grow()});
  Set_Content(Column({Label_Message_Label, System_Message_Label,
                      Side_By_Side(list.Grow(), region.Grow()).Grow()}),
              Buttons({General_Command, Exit_Command}));
  Set_Exit(Exit_Command);
  Set_Commit(General_Command);
}
