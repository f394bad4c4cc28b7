#include "pairing/Select_Mult_Varieties_Form.h"

#include "core/Gereral_Processes.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/words/Select_Mult_Varieties_Words.h"
#include "links/Link_Decoders.h"
#include "links/Link_Search.h"
#include "links/Link_Store.h"
#include "platform/run_time/Conversions.h"
#include "screens/Place_Lists.h"

using Forms::Screen;

Select_Mult_Varieties_Form::Select_Mult_Varieties_Form()
    : Select_Mult_Form("Select_Mult_Varieties_Form", "Select Region's Grape Varieties",
                       {"Select_Mult_Varieties", Screen_Words::Select_Mult_Varieties}) {
  MSelectLab1.Set_Caption("Available Grape Varieties");
  Label1.Set_Caption("Selected Grape Varieties");
  MSelectLab3.Set_Caption("Region:");
}

void Select_Mult_Varieties_Form::Form_Load() {
  Initialize_Select_Mult_Varieties_Language();
  Hide_All_Visible();
  Load_Varieties();
  Show_Whose_List();
  Clear_Chosen();
  if (Command_Is("VarietiesAddRegion")) Load_Varieties_of_this_Region();
  Turn_Boxes_On();
  Cat_List.SetFocus();
}

void Select_Mult_Varieties_Form::Initialize_Select_Mult_Varieties_Language() {
  Initialize_Language();
}

void Select_Mult_Varieties_Form::Load_Varieties() {
  Cat_List.Clear();
  Add_Varieties(Cat_List);
  Show_Candidates();
}

void Select_Mult_Varieties_Form::Show_Whose_List() {
  if (Command().starts_with("Cheese")) {
    Show_Owner(Words.Of("Cheese_Word", "Cheese: "), Cheeses.Cheese_Name);
  } else if (Command_Is("VarietiesAddRegion")) {
    Show_Owner(Country_Long_Name(Regions.Country) + " - " + Regions.Region_Name);
  }
}

void Select_Mult_Varieties_Form::Load_Varieties_of_this_Region() {
  Load_Varieties_of_Region();
  for (int item = 1; item <= Decoded_Count; ++item) {
    Choose({Decoded_Items[item].Name, To_Text(Decoded_Items[item].ID)});
  }
}

void Select_Mult_Varieties_Form::Proceed() {
  if (Command_Is("WineSearch")) {
    Search_Regions_for_Varieties();
    return;
  }
  if (Command_Is("VarietiesAddRegion")) Store_for_Region();
  if (Command_Is("CheeseAdd")) Store_for_Cheese();
  if (Command_Is({"WineAdd", "WineMod"})) Tag_Varieties_of_Wine();
  Leave_to(Caller());
}

void Select_Mult_Varieties_Form::Store_for_Region() {
  Store_Region_Varieties();
  Varieties_Changed_Flag = true;
  Forms::Message_Box(Words.Of("Region_Text", "Vaieties were added to the selected Region."),
                     Words.Of("Region_Title", "VARIETIES MATCHED TO REGION"));
}

void Select_Mult_Varieties_Form::Store_for_Cheese() {
  Store_Cheese_Varieties();
  Forms::Message_Box(Words.Of("Cheese_Text", "Vaieties were added to the selected Cheese."),
                     Words.Of("Cheese_Title", "VARIETIES MATCHED TO CHEESE"));
}

void Select_Mult_Varieties_Form::Tag_Varieties_of_Wine() {
  if (!Screen("Wine_Form").Is_Loaded()) return;
  Screen("Wine_Form").Control("Variety_Combo").Set_Tag("1");
  Screen("Wine_Form").Control("Variety_Add_Command").Set_Tag("1");
}
