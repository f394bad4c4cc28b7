#include "links/Link_Decoders.h"

#include "core/Known_Faults.h"
#include "core/Languages.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Table.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"

using Record_Store::Recordset;

namespace {

constexpr int rows_looked_at = 10;

// Calls `decode()` for each row of the owner, its group and mask in `Decoded_Group` and
// `Decoded_Mask`. The table is open.
template <class Decode>
void Each_Link(const Link_Table& links, Long owner, const Decode& decode) {
  Decoded_Count = 0;
  links.rows.Index(links.owner);
  Each_Row_Of(links.rows, links.owner, owner, [&] {
    Decoded_Group = links.rows.Fields("GROUP").As_Long() / 10;
    Decoded_Mask = links.rows.Fields("SUBCATEGO").As_Long();
    decode();
  });
}

// ---- pairings, straight from the rows ----

using Maridages_Found = Bounded_Array<Decoded_Maridage, 100>;

// As designed the place behind the last one is a failure.
void Take_Maridage(Maridages_Found& found) {
  if (Decoded_Count == found.Bound() && !Is_Kept(Fault::More_Pairings_End_The_Run)) return;
  Decoded_Maridage& maridage = found[++Decoded_Count];
  maridage.Maridage_ID = Maridages_Recordset.Fields("Maridage_ID").As_Long();
  maridage.Maridage_Name = Maridages_Recordset.Fields("Maridage_Name").As_Text();
  for (std::size_t place = 0; place < Languages.size(); ++place) {
    maridage.*Language_Members<Decoded_Maridage>()[place] =
        Maridages_Recordset.Fields(Languages[place]).As_Text();
  }
}

bool In_Decoded_Group() {
  return !Maridages_Recordset.Eof() &&
         Maridages_Recordset.Fields("Maridage_Group").As_Long() == Decoded_Group;
}

// From the current row of `Maridages` on; as designed past the end of the group, and of the table
// too.
bool Find_Maridage(Long subgroup) {
  const bool past_its_end = Is_Kept(Fault::Missing_Subgroup_Ends_The_Run);
  for (int row = 0; row < rows_looked_at; ++row) {
    if (!past_its_end && !In_Decoded_Group()) return false;
    if (Maridages_Recordset.Fields("Maridage_SubGr").As_Long() == subgroup) return true;
    Maridages_Recordset.MoveNext();
  }
  return false;
}

// Calls `take()` on the row of each pairing. Both tables are open.
template <class Take>
void Each_Maridage(const Link_Table& links, Long owner, const Take& take) {
  Maridages_Recordset.Index("Maridage_GROUP");
  Each_Link(links, owner, [&] {
    Maridages_Recordset.Seek("=", Decoded_Group);
    while (!Maridages_Recordset.NoMatch() && Decoded_Mask >= 1) {
      if (Find_Maridage(Next_Subgroup_of_Mask(Decoded_Mask))) take();
      Maridages_Recordset.Seek("=", Decoded_Group);
    }
  });
}

void Load_Maridages(const Link_Table& links, Long owner, Maridages_Found& found) {
  Each_Maridage(links, owner, [&found] { Take_Maridage(found); });
}

void Fill_Lists(const Link_Table& links, void (*load)(), const Maridages_Found& found,
                Forms::Item_List& texts, Forms::Item_List& keys) {
  Open_Table(links.rows, links.name);
  Open_Table(Maridages_Recordset, "Maridages");
  load();
  texts.Clear();
  keys.Clear();
  for (int item = 1; item <= Decoded_Count; ++item) {
    Selected_Names[item] = found[item].Name_in_Language();
    Selected_IDs[item] = To_Text(found[item].Maridage_ID);
    texts.AddItem(Selected_Names[item]);
    keys.AddItem(Selected_IDs[item]);
  }
  Selected_Count = Decoded_Count;
  Close_Table(links.rows);
  Close_Table(Maridages_Recordset);
}

// ---- by way of a memory record ----

/// Whether the walks behind the first one of a link row look at the group's first row again.
enum class First_Row { Is_Looked_At, Is_Passed_Over };

// From the current row on.
bool Find_Subgroup(const Addressed_Table& items, Long subgroup, First_Row first) {
  const int group_at = items.rows.Ordinal(items.group);
  const int subgroup_at = items.rows.Ordinal(items.subgroup);
  for (int row = 0; row < rows_looked_at; ++row) {
    if (row > 0 || first == First_Row::Is_Looked_At) {
      if (items.rows.Fields(group_at).As_Long() != Decoded_Group) return false;
      if (items.rows.Fields(subgroup_at).As_Long() == subgroup) return true;
    }
    items.rows.MoveNext();
    if (items.rows.Eof()) return false;
    items.read();
  }
  return false;
}

template <class Take>
void Decode_Row(const Addressed_Table& items, First_Row later, const Take& take) {
  items.rows.Seek("=", Decoded_Group);
  if (items.rows.NoMatch()) return;
  items.read();
  First_Row first = First_Row::Is_Looked_At;
  while (Decoded_Mask >= 1) {
    if (Find_Subgroup(items, Next_Subgroup_of_Mask(Decoded_Mask), first)) take();
    items.rows.Seek("=", Decoded_Group);
    first = later;
    if (first == First_Row::Is_Looked_At) items.read();
  }
}

// ---- the rebuilds ----

void Remove_All_Rows(Recordset& rows) {
  for (; !rows.Eof(); rows.MoveNext()) rows.Delete();
}

}  // namespace

void Load_Maridages_of_Wine() {
  Load_Maridages(Pairings_of_Wines, Wines.Wine_ID, Decoded_Maridages);
}

void Load_Maridages_of_Mobile_Wine() {
  Load_Maridages(Pairings_of_Mobile_Wines, Mobile_Wines.Mobile_Wine_ID, Decoded_Maridages);
}

void Load_Maridages_of_Variety() {
  Load_Maridages(Pairings_of_Varieties, Varieties.Variety_ID, Decoded_Maridages);
}

void Load_Maridages_of_Cheese() {
  Load_Maridages(Pairings_of_Cheeses, Cheeses.Cheese_ID, Decoded_Cheese_Maridages);
}

void Fill_Lists_with_Wine_Maridages(Forms::Item_List& texts, Forms::Item_List& keys) {
  Fill_Lists(Pairings_of_Wines, Load_Maridages_of_Wine, Decoded_Maridages, texts, keys);
}

void Fill_Lists_with_Variety_Maridages(Forms::Item_List& texts, Forms::Item_List& keys) {
  Fill_Lists(Pairings_of_Varieties, Load_Maridages_of_Variety, Decoded_Maridages, texts, keys);
}

void Fill_Lists_with_Cheese_Maridages(Forms::Item_List& texts, Forms::Item_List& keys) {
  Fill_Lists(Pairings_of_Cheeses, Load_Maridages_of_Cheese, Decoded_Cheese_Maridages, texts, keys);
}

void Each_Maridage_of_Wine(const std::function<void()>& action) {
  Open_Table(Maridages_Per_Wines_Recordset, "Maridages_Per_Wines");
  Open_Table(Maridages_Recordset, "Maridages");
  Each_Maridage(Pairings_of_Wines, Wines.Wine_ID, action);
  Close_Table(Maridages_Per_Wines_Recordset);
  Close_Table(Maridages_Recordset);
}

bool Wine_Has_Maridages() {
  Open_Table(Maridages_Per_Wines_Recordset, "Maridages_Per_Wines", "Wine_ID");
  Maridages_Per_Wines_Recordset.Seek("=", Wines.Wine_ID);
  const bool has = !Maridages_Per_Wines_Recordset.NoMatch();
  Close_Table(Maridages_Per_Wines_Recordset);
  return has;
}

void Load_Varieties_of_Region() {
  Open_Table(Varieties_Recordset, "Varieties", "Variety_GROUP");
  Open_Table(Varieties_Per_Region_Recordset, "Varieties_Per_Region");
  Each_Link(Varieties_of_Regions, Regions.Region_ID, [] {
    Decode_Row(Addressed_Varieties, First_Row::Is_Looked_At, [] {
      Decoded_Items[++Decoded_Count] = {Varieties.Variety_ID, Varieties.Variety_Name,
                                        Varieties.Variety_Color};
    });
  });
  Close_Table(Varieties_Per_Region_Recordset);
  Close_Table(Varieties_Recordset);
}

void Load_Maridage_IDs_of_Variety() {
  Open_Table(Maridages_Recordset, "Maridages", "Maridage_GROUP");
  Open_Table(Maridages_Per_Variety_Recordset, "Maridages_Per_Variety");
  Each_Link(Pairings_of_Varieties, Varieties.Variety_ID, [] {
    Decode_Row(Addressed_Pairings, First_Row::Is_Passed_Over, [] {
      Decoded_Items[++Decoded_Count] = {Maridages.Maridage_ID, Maridages.Maridage_Name, {}};
    });
  });
  Close_Table(Maridages_Per_Variety_Recordset);
  Close_Table(Maridages_Recordset);
}

void Genera_Regions_Per_Variety() {
  Open_Table(Regions_Per_Variety_Recordset, "Regions_Per_Variety");
  Remove_All_Rows(Regions_Per_Variety_Recordset);
  Open_Table(Regions_Recordset, "Regions");
  for (; !Regions_Recordset.Eof(); Regions_Recordset.MoveNext()) {
    Read_Regions_Record();
    Load_Varieties_of_Region();
    for (int item = 1; item <= Decoded_Count; ++item) {
      Init_Regions_Per_Variety_Record();
      Regions_Per_Variety.Region_ID = To_Integer(static_cast<double>(Regions.Region_ID));
      Regions_Per_Variety.Variety_ID = To_Integer(static_cast<double>(Decoded_Items[item].ID));
      Regions_Per_Variety_Recordset.AddNew();
      Write_Regions_Per_Variety_Record();
    }
  }
  Close_Table(Regions_Recordset);
  Close_Table(Regions_Per_Variety_Recordset);
}

void Genera_Varieties_Per_Maridage() {
  Open_Table(Varieties_Per_Maridage_Recordset, "Varieties_Per_Maridage");
  Remove_All_Rows(Varieties_Per_Maridage_Recordset);
  Open_Table(Varieties_Recordset, "Varieties");
  for (; !Varieties_Recordset.Eof(); Varieties_Recordset.MoveNext()) {
    Read_Varieties_Record();
    Load_Maridage_IDs_of_Variety();
    for (int item = 1; item <= Decoded_Count; ++item) {
      Init_Varieties_Per_Maridage_Record();
      Varieties_Per_Maridage.Variety_ID = Varieties.Variety_ID;
      Varieties_Per_Maridage.Maridage_ID = Decoded_Items[item].ID;
      Varieties_Per_Maridage_Recordset.AddNew();
      Write_Varieties_Per_Maridage_Record();
    }
  }
  Close_Table(Varieties_Recordset);
  Close_Table(Varieties_Per_Maridage_Recordset);
}
