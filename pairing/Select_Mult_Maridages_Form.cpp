#include "pairing/Select_Mult_Maridages_Form.h"

#include "core/tables/Catalogue.h"
#include "core/words/Select_Mult_Cat_Words.h"
#include "links/Link_Search.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr Integer offered_multiuse = 3;

}  // namespace

Select_Mult_Maridages_Form::Select_Mult_Maridages_Form()
    : Select_Mult_Form("Select_Mult_Maridages_Form", "Select Recipe's Categories",
                       {"Select_Mult_Cat", Screen_Words::Select_Mult_Cat}) {
  MSelectLab1.Set_Caption("Categories ");
  Label1.Set_Caption("Selected Categories");
  MSelectLab3.Set_Caption("Grape Variety:");
}

void Select_Mult_Maridages_Form::Form_Load() {
  Initialize_Select_Mult_Cat_Language();
  Hide_All_Visible();
  Load_Pairings(offered_multiuse);
  Load_Chosen();
  Turn_Boxes_On();
  Show_Whose_List();
  Cat_List.SetFocus();
}

void Select_Mult_Maridages_Form::Initialize_Select_Mult_Cat_Language() { Initialize_Language(); }

bool Select_Mult_Maridages_Form::Is_Search() const {
  return Command_Is({"WineSearch", "MobileSearch"});
}

// Once, at the load: the user who comes back from the results finds what was chosen before.
void Select_Mult_Maridages_Form::Load_Chosen() {
  Clear_Chosen();
  Choose_Pairings_of_Wine();
  if (Command_Is({"VarietyMod", "VarietyPairings"})) {
    Choose_Those_of("Varieties_Form", "Suggested_Pairings_List", "Suggested_Pairings_Index_List");
  }
  if (Command_Is("CheeseMod")) {
    Choose_Those_of("Cheeses_Form", "Food_Parings_List", "Food_Parings_Index_List");
  }
  if (Command_Is("VarietyMod")) {
    Set_Caption(Words.Of("Modify_Variety_Caption", "MODIFY Maridages of Grape Variety"));
  }
  if (Command_Is("CheeseMod")) {
    Set_Caption(Words.Of("Modify_Cheese_Caption", "MODIFY Maridages of Grape Cheeses"));
  }
}

// The names may have changed on the screen that this one belongs to.
void Select_Mult_Maridages_Form::Form_Activate() {
  Select_Mult_Form::Form_Activate();
  Show_Whose_List();
}

void Select_Mult_Maridages_Form::Show_Whose_List() {
  MSelectLab3.Set_Visible(!Is_Search());
  Recipe_Name.Set_Visible(!Is_Search());
  if (Command_Is({"WineAdd", "WineMod"})) {
    Show_Owner(Wines.Variety + " - " + Wines.Label + " - " + To_Text(Wines.Vintage));
  }
  if (Command_Is({"VarietyAdd", "VarietyMod", "VarietyPairings"})) {
    Show_Owner(Varieties.Variety_Name);
  }
  if (Command_Is({"CheeseAdd", "CheeseMod"})) {
    Show_Owner(Words.Of("Cheese_Word", "Cheese: "), Cheeses.Cheese_Name);
  }
}

void Select_Mult_Maridages_Form::Proceed() {
  if (Command_Is("WineSearch")) {
    Search_Cellar();
    return;
  }
  if (Command_Is("MobileSearch")) {
    Search_General_List();
    return;
  }
  if (Command_Is({"WineAdd", "WineMod"})) Tag_Pairings_of("Wine_Form");
  if (Command_Is({"VarietyAdd", "VarietyMod", "VarietyPairings"})) Variety_Pairings_Changed = true;
  if (Command_Is({"CheeseAdd", "CheeseMod"})) Cheese_Foods_Changed = true;
  Leave_to(Caller());
}

void Select_Mult_Maridages_Form::Search_Cellar() {
  if (!Show_Found_Wines()) Say_No_Wines();
}

void Select_Mult_Maridages_Form::Search_General_List() {
  Search_Mobile_Wines_for_Maridages();
  if (Found_Count == 0) Say_No_Wines();
  Leave_to("Mobile_Wine_Form");
}

// The search has said so already, in words of its own.
void Select_Mult_Maridages_Form::Say_No_Wines() {
  Forms::Message_Box(Words.Of("No_Wines_Text", "Thera are NO wines matching any of your pairings."),
                     Words.Of("No_Wines_Title", "NO WINES PAIRINGS"), Forms::Sign::Warning);
}
