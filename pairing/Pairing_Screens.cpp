#include "pairing/Pairing_Screens.h"

#include "pairing/Cate_Add_Form.h"
#include "pairing/Select_Mult_Maridages_Form.h"
#include "pairing/Select_Mult_Varieties_Form.h"
#include "pairing/Select_Mult_Wines_Form.h"
#include "platform/forms/Screens.h"

void Register_Pairing_Screens() {
  Forms::Screens::Register<Cate_Add_Form>("Cate_Add_Form");
  Forms::Screens::Register<Select_Mult_Maridages_Form>("Select_Mult_Maridages_Form");
  Forms::Screens::Register<Select_Mult_Varieties_Form>("Select_Mult_Varieties_Form");
  Forms::Screens::Register<Select_Mult_Wines_Form>("Select_Mult_Wines_Form");
}
