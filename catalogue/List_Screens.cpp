#include "catalogue/List_Screens.h"

#include "catalogue/Deletions.h"
#include "catalogue/List_Screen.h"
#include "core/tables/Geography_Tables.h"
#include "platform/forms/Screens.h"
#include "screens/Catalogue_Lists.h"

namespace {

List_Description List_of_Regions() {
  return {.name = "Regions_List_Form",
          .caption = "Current Wine Regions",
          .list = "Regions_ListView",
          .columns = {{"Wine Region Name", 40, false, false, 2},
                      {"Country", 26, false, false, 1},
                      {"Region_ID", 8, true, true}},
          .words = {},
          .empty_text = "No wine regions yet.",
          .load = Load_Regions,
          .captions = {{"RegionsDel", "DELETE a Region"}, {"LabelMod", "Select a Region"}},
          .screens = {{"RegionsMod", "Regions_Form"},
                      {"RegionsView", "Regions_Form"},
                      {"LabelAdd", "Label_Form"},
                      {"LabelView", "Label_List_Form"},
                      {"LabelMod", "Label_List_Form"}},
          .deletes_under = "RegionsDel",
          .deletion = &Deletion_of_Region,
          .used = &Regions.Used,
          .country = &Regions.Country};
}

List_Description List_of_Labels() {
  return {.name = "Label_List_Form",
          .caption = "List of current Labels for the Wine Region",
          .list = "Label_ListView",
          .columns = {{"Label", 40, false, false, 1}, {"ID", 8, true, true}},
          .words = {},
          .empty_text = "No labels in this region yet.",
          .load =
              [](Row_List& list) {
                list.Clear();
                Add_Labels_of_Region(list, Regions.Region_ID);
              },
          .captions = {},
          .screens = {{"LabelView", "Label_Form"}, {"LabelMod", "Label_Form"}},
          .of_a_region = true};
}

List_Description List_of_Classifications() {
  return {.name = "Classification_List_Form",
          .caption = "Classification List",
          .list = "Classification_ListView",
          .columns = {{"Description", 40, false, false, 2},
                      {"Country", 26, false, false, 1},
                      {"Classification_ID", 8, true, true}},
          .words = {},
          .empty_text = "No classifications yet.",
          .load = [](Row_List& list) { Load_Classifications(list); },
          .captions = {},
          .screens = {{"ClassificationMod", "Classification_Form"},
                      {"ClassificationView", "Classification_Form"}},
          .deletes_under = "ClassificationDel",
          .deletion = &Deletion_of_Classification,
          .used = &Classification.Used,
          .country = &Classification.Country};
}

// As designed the header of the third column is none that the list knows: it turns the order, and
// the column by which the list is sorted stays.
List_Description List_of_Wineries() {
  return {.name = "Wineries_List_Form",
          .caption = "Wineries List",
          .list = "Wineries_ListView",
          .columns = {{"Winery Name", 40, false, false, 2},
                      {"Country", 26, false, false, 1},
                      {"Wine Region", 26, false, false, 1},
                      {"Winery_ID", 8, true, true}},
          .words = {"Winery Name", "Country", "Region", "Winery_ID"},
          .empty_text = "No wineries yet.",
          .load = Load_Wineries,
          .captions = {},
          .screens = {{"WineryMod", "Wineries_Form"}, {"WineryView", "Wineries_Form"}},
          .deletes_under = "WineryDel",
          .deletion = &Deletion_of_Winery,
          .used = &Wineries.Used};
}

template <class Record>
void Register(const Tables::Table_In_Use<Record>& table, List_Description (*describe)()) {
  Forms::Screens::Register(describe().name, [&table, describe] {
    return std::make_unique<List_Screen>(table, describe());
  });
}

}  // namespace

void Register_List_Screens() {
  Register(Regions_Table, List_of_Regions);
  Register(Labels_Table, List_of_Labels);
  Register(Classification_Table, List_of_Classifications);
  Register(Wineries_Table, List_of_Wineries);
}
