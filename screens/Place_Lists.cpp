#include "screens/Place_Lists.h"

#include "core/Gereral_Processes.h"
#include "core/Languages.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Decoders.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"

namespace {

// Every row of a table, in the order of its index by name.
void Add_All(Keyed_List& list, Record_Store::Recordset& rows, const char* table, const char* name,
             const char* key) {
  Open_Table(rows, table, name);
  list.Add_Rows(rows, name, key);
  Close_Table(rows);
}

// Of the open table, by its index on the region.
void Add_Labels_of_Open_Table(Keyed_List& list, Integer region_id) {
  Each_Row_Of(Labels_Recordset, "Region_ID", region_id, [&list] {
    list.Add(Labels_Recordset.Fields("Label_Name").As_Text(),
             Labels_Recordset.Fields("Label_ID").As_Text());
  });
}

}  // namespace

void Add_Wineries(Keyed_List& list) {
  Add_All(list, Wineries_Recordset, "Wineries", "Winery_Name", "Winery_ID");
}

void Add_Labels(Keyed_List& list) {
  Add_All(list, Labels_Recordset, "Labels", "Label_Name", "Label_ID");
}

void Add_Classifications(Keyed_List& list) {
  Add_All(list, Classification_Recordset, "Classification", "Description", "Classification_ID");
}

void Add_Varieties(Keyed_List& list) {
  Add_All(list, Varieties_Recordset, "Varieties", "Variety_Name", "Variety_ID");
}

void Add_Regions(Keyed_List& list) {
  Add_All(list, Regions_Recordset, "Regions", "Region_Name", "Region_ID");
}

void Add_Countries(Keyed_List& list) {
  Add_Countries(list, [](const Text&) { return true; });
}

void Add_Countries(Keyed_List& list, const std::function<bool(const Text&)>& is_listed) {
  Open_World_Contries_Sorted();
  const int name_at = Country_Name_Column();
  for (; !World_Contries_Query.Eof(); World_Contries_Query.MoveNext()) {
    const Text short_name = World_Contries_Query.Fields(0).As_Text();
    if (is_listed(short_name)) {
      list.Add(World_Contries_Query.Fields(name_at).As_Text(), short_name);
    }
  }
  Close_Table(World_Contries_Query);
  Close_Table(World_Contries_Recordset);
}

void Show_Country_Alone(Keyed_List& list, std::string_view short_name) {
  Open_Table(World_Contries_Recordset, "World_Contries", "Short_Name");
  World_Contries_Recordset.Seek("=", short_name);
  const bool known = !World_Contries_Recordset.NoMatch();
  const auto& row = World_Contries_Recordset;
  list.Show_Alone(known ? row.Fields(Country_Name_Column()).As_Text() : Text(),
                  known ? row.Fields("Short_Name").As_Text() : Text(short_name));
  Close_Table(World_Contries_Recordset);
}

void Add_Wineries_of_Country(Keyed_List& list, const Text& country) {
  Open_Query(Wineries_Recordset,
             "SELECT * FROM Wineries WHERE Country='" + country + "' ORDER  BY Winery_name");
  list.Add_Rows(Wineries_Recordset, "Winery_Name", "Winery_ID");
  Close_Table(Wineries_Recordset);
}

void Add_Regions_of_Country(Keyed_List& list, const Text& country) {
  Open_Regions_Of_Country(country);
  list.Add_Rows(Regions_Query, "Region_Name", "Region_ID");
  Close_Table(Regions_Query);
  Close_Table(Regions_Recordset);
}

void Add_Regions_And_Labels(Keyed_List& regions, Keyed_List& labels, const Text& country) {
  const int first = regions.Shown().ListCount();
  Add_Regions_of_Country(regions, country);
  Open_Table(Labels_Recordset, "Labels", "Region_ID");
  for (int region = first; region < regions.Shown().ListCount(); ++region) {
    Add_Labels_of_Open_Table(labels, To_Integer(regions.Key(region)));
  }
  Close_Table(Labels_Recordset);
}

void Add_Classifications_of_Country(Keyed_List& list, std::string_view country) {
  Open_Table(Classification_Recordset, "Classification", "Country");
  for (; !Classification_Recordset.Eof(); Classification_Recordset.MoveNext()) {
    Read_Classification_Record();
    if (Classification.Country != country) continue;
    list.Add(Classification.Description, To_Text(Classification.Classification_ID));
  }
  Close_Table(Classification_Recordset);
}

void Add_Labels_of_Region(Keyed_List& list, Integer region_id) {
  Open_Table(Labels_Recordset, "Labels", "Region_ID");
  Add_Labels_of_Open_Table(list, region_id);
  Close_Table(Labels_Recordset);
}

void Add_Varieties_of_Region(Keyed_List& list, Long region_id) {
  if (!Find_By_Key(Regions_Table, region_id)) return;
  Load_Varieties_of_Region();
  for (int item = 1; item <= Decoded_Count; ++item) {
    list.Add(Decoded_Items[item].Name, To_Text(Decoded_Items[item].ID));
  }
}

void Fill(Keyed_List& list, std::initializer_list<std::string_view> first_entries,
          const std::function<void(Keyed_List&)>& add) {
  list.Shown().Clear();
  for (const std::string_view entry : first_entries) list.Add(entry);
  add(list);
  list.Shown().Set_ListIndex(0);
}
