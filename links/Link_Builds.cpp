// A selection becomes addresses, and what belongs to each item is written.
#include "links/Link_Builds.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/Ownership.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Mobile_Wines_DB.h"
#include "links/Link_Decoders.h"
#include "links/Link_Table.h"
#include "links/Used_Counters.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"

using Record_Store::Recordset;

namespace {

// ---- the builds: one pass over the selection ----

enum class Missing_Row { Fails, Is_Left_Out };
enum class Counting { Uses, Nothing };

void Count_Use(Recordset& rows) {
  const Long used = rows.Fields("Used").As_Long();
  if (!Counter_Moves(used, 1)) return;
  rows.Edit();
  rows.Fields("Used") = To_Integer(static_cast<double>(used) + 1);
  rows.Update();
}

// `extras` runs on each row, the current one of the table. A key without a row fails as designed
// alone, and there not in every build.
void Build(const Addressed_Table& from, const std::function<void()>& extras,
           Missing_Row missing = Missing_Row::Fails, Counting counting = Counting::Uses) {
  if (!Is_Kept(Fault::Gone_Row_Ends_The_Run)) missing = Missing_Row::Is_Left_Out;
  Open_Table(from.rows, from.name, from.key);
  Sort_Count = 0;
  for (int item = 1; item <= Selected_Count; ++item) {
    from.rows.Seek("=", Selected_IDs[item]);
    if (from.rows.NoMatch() && missing == Missing_Row::Is_Left_Out) continue;
    ++Sort_Count;
    Selected_Groups[Sort_Count] = from.rows.Fields(from.group).As_Long();
    Selected_Masks[Sort_Count] = Subgroup_Mask(from.rows.Fields(from.subgroup).As_Long());
    extras();
    if (counting == Counting::Uses) Count_Use(from.rows);
  }
  Merge_Selected_Groups();
  Close_Table(from.rows);
}

// ---- pair rows of cheeses, by the wine; each direction has a table of its own ----

constexpr std::array cheeses_of_wines{
    Link_Table{Cheeses_Per_Wines_Recordset, "Cheeses_Per_Wines", "Wine_ID"},
    Link_Table{Wines_Per_Cheeses_Recordset, "Wines_Per_Cheeses", "Wine_ID"}};
constexpr std::array cheeses_of_mobile_wines{
    Link_Table{Cheeses_Per_Mobile_Wines_Recordset, "Cheeses_Per_Mobile_Wines", "Mobile_Wines_ID"},
    Link_Table{Mobile_Wines_Per_Cheeses_Recordset, "Mobile_Wines_Per_Cheeses", "Mobile_Wines_ID"}};

void Add_Pair(const Link_Table& pairs, Long wine_id, Long cheese_id = Maridages.Cheese_ID) {
  pairs.rows.AddNew();
  pairs.rows.Fields("Cheese_ID") = cheese_id;
  pairs.rows.Fields(pairs.owner) = wine_id;
  pairs.rows.Update();
}

// These tables have no index on the wine: the engine looks through all rows much faster than a
// walk does.
std::vector<Long> Cheeses_of_Wine(const Link_Table& pairs) {
  std::vector<Long> cheeses;
  for (Open_Query(pairs.rows, "SELECT Cheese_ID FROM " + Text(pairs.name) + " WHERE " +
                                  pairs.owner + "=" + To_Text(Wines.Wine_ID));
       !pairs.rows.Eof(); pairs.rows.MoveNext()) {
    cheeses.push_back(pairs.rows.Fields(0).As_Long());
  }
  Close_Table(pairs.rows);
  return cheeses;
}

// What stands rightly stays.
void Make_Pairs_of_Wine(const Link_Table& pairs, std::vector<Long> cheeses) {
  if (std::ranges::is_permutation(Cheeses_of_Wine(pairs), cheeses)) return;
  Open_Table(pairs.rows, pairs.name);
  for (; !pairs.rows.Eof(); pairs.rows.MoveNext()) {
    if (pairs.rows.Fields(pairs.owner).As_Long() != Wines.Wine_ID) continue;
    const auto wanted = std::ranges::find(cheeses, pairs.rows.Fields("Cheese_ID").As_Long());
    if (wanted == cheeses.end()) {
      pairs.rows.Delete();
    } else {
      cheeses.erase(wanted);
    }
  }
  for (const Long cheese : cheeses) Add_Pair(pairs, Wines.Wine_ID, cheese);
  Close_Table(pairs.rows);
}

bool Pair_Stands(const Link_Table& pairs, Long wine_id) {
  pairs.rows.Index(pairs.owner);
  return !Each_Row_Of(pairs.rows, pairs.owner, wine_id, [&pairs] {
    return pairs.rows.Fields("Cheese_ID").As_Long() != Maridages.Cheese_ID;
  });
}

void Add_Cheese_of_Mobile_Wine() {
  for (const Link_Table& pairs : cheeses_of_mobile_wines) {
    Open_Table(pairs.rows, pairs.name);
    if (!Pair_Stands(pairs, Mobile_Wines.Mobile_Wine_ID))
      Add_Pair(pairs, Mobile_Wines.Mobile_Wine_ID);
    Close_Table(pairs.rows);
  }
}

bool Command_Is(const char* one, const char* other) {
  return Current_Command == one || Current_Command == other;
}

// The last row of the table has the highest key.
Integer Next_Mobile_Wines_per_Maridage_ID() {
  if (Mobile_Wines_per_Maridage_Recordset.RecordCount() == 0) return 1;
  Mobile_Wines_per_Maridage_Recordset.MoveLast();
  const Long last =
      Mobile_Wines_per_Maridage_Recordset.Fields("Mobile_Wines_per_Maridage_ID").As_Long();
  return To_Integer(static_cast<double>(last) + 1);
}

}  // namespace

void Build_Wine_Maridage_Groups() {
  const bool with_cheeses =
      Command_Is("WineAdd", "WineMod") && Is_Kept(Fault::Cheese_Goes_By_Last_Record);
  const bool counts = Is_Kept(Fault::Pairings_Count_Again) || Command_Is("CheeseAdd", "CheeseMod");
  const auto extras = [with_cheeses] {
    if (!with_cheeses || Maridages.Cheese_ID == -1) return;
    for (const Link_Table& pairs : cheeses_of_wines) {
      Open_Table(pairs.rows, pairs.name);
      Add_Pair(pairs, Wines.Wine_ID);
      Close_Table(pairs.rows);
    }
  };
  Build(Addressed_Pairings, extras, Missing_Row::Fails,
        counts ? Counting::Uses : Counting::Nothing);
}

void Build_Cheeses_of_Wine() {
  std::vector<Long> cheeses;
  Each_Maridage_of_Wine([&cheeses] {
    const Long cheese = Maridages_Recordset.Fields("Cheese_ID").As_Long();
    if (cheese != -1) cheeses.push_back(cheese);
  });
  for (const Link_Table& pairs : cheeses_of_wines) Make_Pairs_of_Wine(pairs, cheeses);
}

void Build_Mobile_Wine_Maridage_Groups() {
  Open_Table(Mobile_Wines_per_Maridage_Recordset, "Mobile_Wines_per_Maridage");
  const Integer next_id = Next_Mobile_Wines_per_Maridage_ID();
  const bool with_cheeses = Command_Is("WineOtherAdd", "WineOtherMod");
  const auto extras = [&] {
    Read_Maridages_Record();
    if (with_cheeses && Maridages.Cheese_ID != -1) Add_Cheese_of_Mobile_Wine();
    Init_Mobile_Wines_per_Maridage_Record();
    Mobile_Wines_per_Maridage = {next_id, Maridages.Maridage_ID, Mobile_Wines.Mobile_Wine_ID,
                                 Serial_of_User(To_Text(Mobile_Wines.Mobile_Wine_ID))};
    Mobile_Wines_per_Maridage_Recordset.AddNew();
    Write_Mobile_Wines_per_Maridage_Record();
  };
  Build(Addressed_Pairings, extras, Missing_Row::Is_Left_Out);
  Close_Table(Mobile_Wines_per_Maridage_Recordset);
}

void Build_Mobile_Search_Groups() {
  Build(
      Addressed_Pairings, [] { Read_Maridages_Record(); }, Missing_Row::Is_Left_Out,
      Counting::Nothing);
}

void Build_Variety_Maridage_Groups() {
  Open_Table(Varieties_Per_Maridage_Recordset, "Varieties_Per_Maridage");
  Build(Addressed_Pairings, [] {
    Init_Varieties_Per_Maridage_Record();
    Varieties_Per_Maridage.Maridage_ID = Maridages_Recordset.Fields("Maridage_ID").As_Long();
    Varieties_Per_Maridage.Variety_ID = Varieties.Variety_ID;
    Varieties_Per_Maridage.SERIAL_NUMBER = Dated_Serial_of_User(To_Text(Varieties.Variety_ID));
    Varieties_Per_Maridage_Recordset.AddNew();
    Write_Varieties_Per_Maridage_Record();
  });
  Close_Table(Varieties_Per_Maridage_Recordset);
}

void Build_Region_Variety_Groups() {
  Open_Table(Regions_Per_Variety_Recordset, "Regions_Per_Variety");
  Build(Addressed_Varieties, [] {
    Init_Regions_Per_Variety_Record();
    Regions_Per_Variety.Region_ID = To_Integer(static_cast<double>(Regions.Region_ID));
    Regions_Per_Variety.Variety_ID = Varieties_Recordset.Fields("Variety_ID").As_Integer();
    Regions_Per_Variety.SERIAL_NUMBER = Serial_of_User(To_Text(Regions.Region_ID));
    Regions_Per_Variety_Recordset.AddNew();
    Write_Regions_Per_Variety_Record();
  });
  Close_Table(Regions_Per_Variety_Recordset);
}

void Build_Cheese_Variety_Groups() {
  Open_Table(Cheeses_Per_Variety_Recordset, "Cheeses_Per_Variety");
  Build(Addressed_Varieties, [] {
    const Text variety_id = Varieties_Recordset.Fields("Variety_ID").As_Text();
    Init_Cheeses_Per_Variety_Record();
    Cheeses_Per_Variety.Cheese_ID = To_Integer(static_cast<double>(Cheeses.Cheese_ID));
    Cheeses_Per_Variety.Variety_ID = To_Integer(variety_id);
    Cheeses_Per_Variety.SERIAL_NUMBER = Serial_of_User(variety_id);
    Cheeses_Per_Variety_Recordset.AddNew();
    Write_Cheeses_Per_Variety_Record();
  });
  Close_Table(Cheeses_Per_Variety_Recordset);
}
