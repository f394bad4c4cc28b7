#include "catalogue/List_Screen.h"

#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/tables/Geography_Tables.h"
#include "platform/forms/Screens.h"
#include "screens/Catalogue_Lists.h"
#include "screens/Field_States.h"

using Forms::Screen;

void List_Screen::Lay_Out() {
  using namespace Forms;
  constexpr int list_width = 90;
  constexpr int list_height = 24;
  Rows_ListView.Set_Empty_Text(description_.empty_text);
  Rows_ListView.Set_Accessible_Name(description_.caption);
  Places places;
  if (description_.of_a_region) {
    places.push_back(Fields({{Region_Label, Region_Text}, {Country_Label, Country_Text}}));
  }
  places.push_back(Place(Rows_ListView).Wide(list_width).High(list_height).Grow());
  Set_Content(Column(places));
}

void List_Screen::Form_Load() {
  const auto caption = description_.captions.find(Command());
  if (caption != description_.captions.end()) Set_Caption(caption->second);
  if (description_.of_a_region) {
    if (description_.screens.contains(Command())) Show_Region();
    return;
  }
  description_.load(Rows_ListView);
  Sort_by_Country(Rows_ListView);
}

void List_Screen::Show_Region() {
  Region_Text.Set_Text(Regions.Region_Name);
  Country_Text.Set_Text(Country_Long_Name(Current_Country_Short));
  Lock(Region_Text);
  Lock(Country_Text);
  description_.load(Rows_ListView);
}

void List_Screen::Form_Activate() {
  Catalogue_Screen::Form_Activate();
  was_seen_ = true;
}

void List_Screen::Form_Unload() {
  Catalogue_Screen::Form_Unload();
  if (was_seen_) Screen("Wine_Cellar_Form").Show();
}

void List_Screen::Rows_ListView_ItemClick(Forms::List_Item item) {
  Own_Row.Pick(Rows_ListView.Key_of(item));
  item.Set_Selected(true);
  if (description_.country != nullptr) Current_Country_Short = *description_.country;
  if (description_.deletion != nullptr && Command_Is(description_.deletes_under)) Delete_Row();
  const auto next = description_.screens.find(Command());
  if (next == description_.screens.end()) return;
  Screen(next->second).Show();
  Hide();
}

void List_Screen::Delete_Row() {
  if (Is_In_Use(*description_.deletion, *description_.used)) return;
  if (Delete_If_Wanted(*description_.deletion)) description_.load(Rows_ListView);
  Leave();
}
