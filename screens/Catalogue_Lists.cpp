#include "screens/Catalogue_Lists.h"

#include <map>

#include "core/Gereral_Processes.h"
#include "core/Languages.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "links/Link_Decoders.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"
#include "screens/Place_Lists.h"

using Forms::List_Item;

namespace {

/// The names of the countries, by their short names.
using Country_Names = std::map<Text, Text>;

Country_Names Names_at(int column) {
  Country_Names names;
  Open_Table(World_Contries_Recordset, "World_Contries");
  for (auto& row = World_Contries_Recordset; !row.Eof(); row.MoveNext()) {
    names[row.Fields("Short_Name").As_Text()] = row.Fields(column).As_Text();
  }
  Close_Table(World_Contries_Recordset);
  return names;
}

Country_Names English_Names() {
  constexpr int long_name = 1;
  return Names_at(long_name);
}

/// Each row of a table through its memory record.
template <class Record, class Action>
void Each_Row(const Tables::Table_In_Use<Record>& table, const Action& action) {
  Open_Table(table.rows, table.description.Name());
  for (; !table.rows.Eof(); table.rows.MoveNext()) {
    table.Read();
    action();
  }
  Close_Table(table.rows);
}

Text Color_of(const Text& color) { return color == "x" ? Text() : color; }

bool Names(Row_List& list, const Text& grape) {
  for (int place = 1; place <= list.Count(); ++place) {
    if (list.ListItems(place).Text() == grape) return true;
  }
  return false;
}

}  // namespace

void Load_Regions(Row_List& list) {
  list.Clear();
  Country_Names countries = English_Names();
  Each_Row(Regions_Table, [&] {
    if (Regions.Region_Name == "x") return;
    list.Add_Row(To_Text(Regions.Region_ID), {Regions.Region_Name, countries[Regions.Country]});
  });
}

void Load_Wineries(Row_List& list) {
  list.Clear();
  Country_Names countries = English_Names();
  Each_Row(Wineries_Table, [&] {
    list.Add_Row(Wineries.Winery_ID,
                 {Wineries.Winery_Name, countries[Wineries.Country], Wineries.Region});
  });
}

void Load_Classifications(Row_List& list, const std::function<void(List_Item row)>& action) {
  list.Clear();
  Country_Names countries = Names_at(Country_Name_Column());
  Each_Row(Classification_Table, [&] {
    if (Classification.Description == "x") return;
    const List_Item row =
        list.Add_Row(To_Text(Classification.Classification_ID),
                     {Classification.Description, countries[Classification.Country]});
    if (action) action(row);
  });
}

void Load_Varieties(Row_List& list) {
  list.Clear();
  Each_Row(Varieties_Table, [&] {
    list.Add_Row(To_Text(Varieties.Variety_ID),
                 {Varieties.Variety_Name, Color_of(Varieties.Variety_Color)});
  });
}

void Sort_by_Country(Row_List& list) {
  constexpr int country = 1;
  list.Set_SortOrder(0);
  list.Set_Sorted(true);
  list.Set_SortKey(country);
}

void Add_Labels_of_Region(Row_List& list, Long region_id,
                          const std::function<void(List_Item row)>& action) {
  Open_Labels_Of_Region(region_id);
  for (; !Labels_Query.Eof(); Labels_Query.MoveNext()) {
    const List_Item row = list.Add_Row(Labels_Query.Fields("Label_ID").As_Text(),
                                       {Labels_Query.Fields("Label_Name").As_Text()});
    if (action) action(row);
  }
  Close_Table(Labels_Query);
  Close_Table(Labels_Recordset);
}

void Load_Own_Grapes_of_Region(Row_List& list) {
  list.Clear();
  Load_Varieties_of_Region();
  for (int item = 1; item <= Decoded_Count; ++item) {
    const Decoded_Item& grape = Decoded_Items[item];
    list.Add_Row(To_Text(grape.ID), {grape.Name, Color_of(grape.Color)});
  }
}

void Load_Grapes_of_Region(Row_List& list, Long region_id,
                           const std::function<void()>& sub_region) {
  constexpr int color = 1;
  Read_Row(Regions_Table, region_id);
  Load_Own_Grapes_of_Region(list);
  Regions_Recordset.Index("Sub_Region_Of");
  Each_Row_Of(Regions_Recordset, "Sub_Region_Of", region_id, [&] {
    Read_Regions_Record();
    Load_Varieties_of_Region();
    for (int item = 1; item <= Decoded_Count; ++item) {
      const Decoded_Item& grape = Decoded_Items[item];
      if (Names(list, grape.Name)) continue;
      List_Item row = list.Add(grape.Name);
      if (grape.Color != "x") row.Set_SubItems(color, grape.Color);
    }
    if (sub_region) sub_region();
  });
  Regions_Recordset.Index("Region_ID");
  Read_Row(Regions_Table, region_id);
}

void Initialize_Countries(Keyed_List& list, const Text& chosen) {
  list.Shown().Clear();
  Add_Countries(list);
  list.Choose(chosen);
}
