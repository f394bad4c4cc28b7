#include "links/Referred_Rows.h"

#include <string_view>

#include "core/Data_Text.h"
#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "links/Link_Store.h"
#include "platform/run_time/Conversions.h"

namespace {

bool Any(const Text& rows) {
  Record_Store::Recordset found;
  Open_Query(found, "SELECT 1 FROM " + rows + " LIMIT 1");
  return !found.Eof();
}

bool Any_Names(const char* table, const char* field, const Text& key) {
  return Any(Text(table) + " WHERE " + field + "=" + key);
}

/// The wines of the cellars that name the row of `table` that stands under `key`, and whose winery
/// stands in `place`, as that row does.
Text Wines_That_Name(const char* table, const char* key_field, Long key, const char* wine_field,
                     const char* name, const char* place) {
  return "Wines JOIN Wineries ON Wineries.Winery_ID=Wines.Winery_ID JOIN " + Text(table) +
         " named ON named." + place + "=Wineries." + place + " AND named." + name + "=Wines." +
         wine_field + " WHERE named." + key_field + "=" + To_Text(key);
}

Text Wines_of_Label() {
  return Wines_That_Name("Labels", "Label_ID", Labels.Label_ID, "Label", "Label_Name", "Region_ID");
}

// The rows of another owner that has this key are told by `Photo_of`.
void Remove_Photos(std::string_view photo_of, const Text& key) {
  Record_Store::Recordset photos;  // a screen may stand on the photos of another row
  Open_Table(photos, "Photos", "Relation_ID");
  photos.Seek("=", key);
  for (; !photos.NoMatch() && !photos.Eof(); photos.MoveNext()) {
    if (photos.Fields("Relation_ID").As_Text() != key) break;
    if (photos.Fields("Photo_of").As_Text() == photo_of) photos.Delete();
  }
}

}  // namespace

bool Is_Region_Referred_To() {
  const Text key = To_Text(Regions.Region_ID);
  return Any_Names("Labels", "Region_ID", key) || Any_Names("Wineries", "Region_ID", key) ||
         Any_Names("Regions", "Sub_Region_Of", key);
}

bool Is_Winery_Referred_To() {
  return Any_Names("Wines", "Winery_ID", Wineries.Winery_ID) ||
         Any_Names("Mobile_Wines", "Mobile_Wine_Winery_ID", Wineries.Winery_ID);
}

bool Is_Label_Referred_To() {
  const Text key = To_Text(Labels.Label_ID);
  return Any(Wines_of_Label()) || Any_Names("Mobile_Wines", "Mobile_Wine_Label_ID", key) ||
         Any_Names("Labels_per_Winery", "Label_ID", key);
}

bool Is_Classification_Referred_To() {
  const Long key = Classification.Classification_ID;
  return Any(Wines_That_Name("Classification", "Classification_ID", key, "Clasification",
                             "Description", "Country")) ||
         Any_Names("Labels", "Appellation_ID", To_Text(key));
}

void Rename_Label_in_Wines(const Text& name) {
  if (Is_Kept(Fault::Renamed_Label_Loses_Its_Wines)) return;
  Record_Store::Recordset named;
  Open_Query(named, "SELECT Wines.Wine_ID FROM " + Wines_of_Label());
  Open_By_Key(Wines_Table);
  for (; !named.Eof(); named.MoveNext()) {
    Wines_Recordset.Seek("=", named.Fields(0).As_Long());
    if (Wines_Recordset.NoMatch()) continue;
    Wines_Recordset.Edit();
    Wines_Recordset.Fields("Label") = name;
    Wines_Recordset.Update();
  }
  Close_Table(Wines_Recordset);
}

void Rename_Region_in_Wineries() {
  if (Is_Kept(Fault::Renamed_Region_Loses_Its_Wineries)) return;
  for (Open_Table(Wineries_Recordset, "Wineries"); !Wineries_Recordset.Eof();
       Wineries_Recordset.MoveNext()) {
    if (Wineries_Recordset.Fields("Region_ID").As_Long() != Regions.Region_ID) continue;
    Wineries_Recordset.Edit();
    Wineries_Recordset.Fields("Region") = Regions.Region_Name;
    Wineries_Recordset.Update();
  }
  Close_Table(Wineries_Recordset);
}

void Remove_Rows_of_Region() {
  Remove_Data_Text(Regions.Description);
  Remove_Data_Text(Regions.History);
  Remove_Region_Varieties();
  Remove_Photos("Region", To_Text(Regions.Region_ID));
}

void Remove_Rows_of_Winery() {
  Remove_Data_Text(To_Long(Val(Wineries.History)));
  Remove_Photos("Winery", Wineries.Winery_ID);
  Open_Table(Labels_per_Winery_Recordset, "Labels_per_Winery");
  Remove_Rows_Of(Labels_per_Winery_Recordset, "Winery_ID", To_Long(Wineries.Winery_ID));
  Close_Table(Labels_per_Winery_Recordset);
}

void Remove_Rows_of_Label() { Remove_Photos("Label", To_Text(Labels.Label_ID)); }
