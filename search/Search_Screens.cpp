#include "search/Search_Screens.h"

#include "platform/forms/Screens.h"
#include "search/Search_General_Pairings_Form.h"
#include "search/Select_Maridages_for_Wines_Form.h"
#include "search/Wine_Search_Results_Form.h"

void Register_Search_Screens() {
  Forms::Screens::Register<Search_General_Pairings_Form>("Search_General_Pairings_Form");
  Forms::Screens::Register<Select_Maridages_for_Wines_Form>("Select_Maridages_for_Wines_Form");
  Forms::Screens::Register<Wine_Search_Results_Form>("Wine_Search_Results_Form");
}
