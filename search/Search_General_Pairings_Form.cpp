#include "search/Search_General_Pairings_Form.h"

#include <limits>

#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/tables/Rows.h"
#include "platform/run_time/Conversions.h"

Search_General_Pairings_Form::Search_General_Pairings_Form()
    : List_Picker_Form("Search_General_Pairings_Form", "General Pairings") {
  for (Row_List* list : {&Variety_Name_ListView, &Regions_ListView}) {
    list->Set_Empty_Text(Hint_Text(Screen_Words::Pairings_First, {MultSelect.Caption()}));
  }
  Lay_Out();
  Variety_Name_ListView.ItemClick = [this](const Forms::List_Item& item) {
    Variety_Name_ListView_ItemClick(item);
  };
}

void Search_General_Pairings_Form::Lay_Out() {
  using namespace Forms;
  Variety_Name_List_Label.Set_Buddy(Variety_Name_ListView);
  Regions_List_Label.Set_Buddy(Regions_ListView);
  Set_Content(
      Column({Row({Under_Heading(MSelectLab1, Cat_Number, Cat_List).Grow(), Moves_Place(),
                   Under_Heading(Label1, Selected_Number, SelectList).Grow()})
                  .Grow(),
              Row({Column({Variety_Name_List_Label, Place(Variety_Name_ListView).High(10).Grow()})
                       .Grow(),
                   Column({Row({Regions_List_Label, Stretch(), Recipe_Name}),
                           Place(Regions_ListView).High(10).Grow()})
                       .Grow()})
                  .Grow()}),
      Ways_Out_Place());
}

void Search_General_Pairings_Form::Form_Load() {
  Load_Pairings(std::numeric_limits<Integer>::max());
  Clear_Chosen();
  Cat_List.SetFocus();
}

void Search_General_Pairings_Form::Proceed() {
  if (Command_Is("GeneralPairings")) Show_Varieties();
  if (Command_Is("WineSearch")) Show_Found_Wines();
}

// ---- from pairings to varieties ----

void Search_General_Pairings_Form::Show_Varieties() {
  Variety_Name_ListView.Clear();
  Regions_ListView.Clear();
  Recipe_Name.Set_Caption("");
  Open_Table(Varieties_Per_Maridage_Recordset, "Varieties_Per_Maridage", "Maridage_ID");
  Open_Table(Maridages_Recordset, "Maridages", "Maridage_ID");
  Open_By_Key(Varieties_Table);
  for (int item = 1; item <= Selected_Count; ++item) {
    Maridages_Recordset.Seek("=", Selected_IDs[item]);
    if (Maridages_Recordset.NoMatch()) continue;
    Add_Varieties_of_Pairing(Maridages_Recordset.Fields("Maridage_ID").As_Long());
  }
  Close_Table(Varieties_Per_Maridage_Recordset);
  Close_Table(Maridages_Recordset);
  Close_Table(Varieties_Recordset);
  Load_Regions_of_all_Varieties();
}

void Search_General_Pairings_Form::Add_Varieties_of_Pairing(Long maridage_id) {
  Each_Row_Of(Varieties_Per_Maridage_Recordset, "Maridage_ID", maridage_id, [this] {
    const Long key = Varieties_Per_Maridage_Recordset.Fields("Variety_ID").As_Long();
    if (Find_Row(Varieties_Table, key)) Add_Variety();
  });
}

void Search_General_Pairings_Form::Add_Variety() {
  if (Variety_Name_ListView.FindItem(Varieties.Variety_Name)) return;
  Variety_Name_ListView.Add_Row(To_Text(Varieties.Variety_ID),
                                {Varieties.Variety_Name, Varieties.Variety_Color});
}

// ---- from varieties to regions ----

void Search_General_Pairings_Form::Variety_Name_ListView_ItemClick(const Forms::List_Item& item) {
  Recipe_Name.Set_Caption(item.Text());
  Read_By_Key(Varieties_Table, Variety_Name_ListView.Key_of(item));
  Load_Varieties_Regions();
}

void Search_General_Pairings_Form::Load_Varieties_Regions() {
  Regions_ListView.Clear();
  Add_Regions_of_Variety(Varieties.Variety_ID, Same_Name::Is_Listed);
}

void Search_General_Pairings_Form::Load_Regions_of_all_Varieties() {
  Regions_ListView.Clear();
  for (int place = 1; place <= Variety_Name_ListView.Count(); ++place) {
    const Forms::List_Item variety = Variety_Name_ListView.ListItems(place);
    Add_Regions_of_Variety(To_Long(Variety_Name_ListView.Key_of(variety)),
                           Same_Name::Is_Passed_Over);
  }
}

void Search_General_Pairings_Form::Add_Regions_of_Variety(Long variety_id, Same_Name same_name) {
  Record_Store::Recordset& pairs = Regions_Per_Variety_Recordset;
  Open_Table(Regions_Recordset, "Regions", "Region_ID");
  Open_Table(pairs, "Regions_Per_Variety", "Variety_ID");
  Each_Row_Of(pairs, "Variety_ID", variety_id, [&] {
    Regions_Recordset.Seek("=", pairs.Fields("Region_ID").As_Long());
    if (Regions_Recordset.NoMatch()) return;
    const Text name = Regions_Recordset.Fields("Region_Name").As_Text();
    if (same_name == Same_Name::Is_Passed_Over && Regions_ListView.FindItem(name)) return;
    Regions_ListView.Add_Row(Regions_Recordset.Fields("Region_ID").As_Text(),
                             {name, Regions_Recordset.Fields("Country").As_Text()});
  });
  Close_Table(Regions_Recordset);
  Close_Table(pairs);
}
