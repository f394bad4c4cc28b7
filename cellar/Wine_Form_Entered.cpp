// What the user entered for a wine and has not stored, and the question before it goes.
#include "cellar/Wine_Form.h"
#include "core/Known_Faults.h"
#include "platform/run_time/Conversions.h"

Text Wine_Form::Entered() {
  Text entered;
  const auto add = [&entered](const Text& part) { entered += part + "\n"; };
  for (const Forms::Combo_Box* combo : std::initializer_list<const Forms::Combo_Box*>{
           &Label_Combo, &Classification_Combo, &Vintage_Combo, &Peak_Year_Combo, &Merit_Combo,
           &Bottle_Size_Combo, &Color_Combo}) {
    add(combo->Tag() == "0" ? "" : To_Text(combo->ListIndex()));  // a default is no choice
  }
  for (const Forms::Text_Box* box : Text_Fields()) add(Trim(box->Text()));
  Each_Ticked_Variety([&](int grape) { add(Variety_Combo.Key(grape)); });
  add(Boxes.Ticks());
  for (int pairing = 0; pairing < Pairing_List.ListCount(); ++pairing) {
    add(Pairing_List.List(pairing));
  }
  return entered;
}

bool Wine_Form::May_Lose_Entered() const {
  return !Command_Is({"WineAdd", "WineMod"}) || entry_.May_Be_Lost();
}

bool Wine_Form::Is_Followed(Keyed_Combo_Box& place, Text& before) {
  const bool asks = !Is_Kept(Fault::Entered_Wine_Goes_Without_A_Word);
  if (asks && place.Key() == before) return false;
  const bool others_chosen = Label_Combo.ListIndex() > 0 || Classification_Combo.ListIndex() > 0 ||
                             Variety_Combo.SelCount() > 0;
  if (asks && !before.empty() && others_chosen && !entry_.Is_Left()) {
    place.Choose(before);
    return false;
  }
  before = place.Key();
  return true;
}
