// The owner's rows of a link table are replaced by the merged addresses.
#include "links/Link_Store.h"

#include <algorithm>
#include <vector>

#include "core/Known_Faults.h"
#include "core/Ownership.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Builds.h"
#include "links/Link_Decoders.h"
#include "links/Link_Table.h"
#include "links/Region_Varieties.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"
#include "platform/run_time/Run_Time_Error.h"

namespace {

/// Pair rows, which are removed as link rows are.
constexpr Link_Table mobile_wines_of_pairings{Mobile_Wines_per_Maridage_Recordset,
                                              "Mobile_Wines_per_Maridage", "Mobile_Wine_ID"};

void Remove_All(const Link_Table& links, Long owner) {
  Open_Table(links.rows, links.name);
  Remove_Rows_Of(links.rows, links.owner, owner);
  Close_Table(links.rows);
}

// A table with serial numbers is read with them: none may be missing.
void Add_Groups(const Link_Table& links, Long owner, const Text& serial) {
  for (int group = 1; group <= Group_Count; ++group) {
    links.rows.AddNew();
    links.rows.Fields(links.owner) = owner;
    links.rows.Fields("GROUP") = To_Long(Group_Keys[group] * 10.0);
    links.rows.Fields("SUBCATEGO") = Group_Masks[group];
    if (!serial.empty()) links.rows.Fields("SERIAL_NUMBER") = serial;
    links.rows.Update();
  }
}

void Store(const Link_Table& links, Long owner, void (*build)(), const Text& serial = {}) {
  Open_Table(links.rows, links.name);
  build();
  Remove_Rows_Of(links.rows, links.owner, owner);
  Add_Groups(links, owner, serial);
  Close_Table(links.rows);
}

// Whether the selection is what a list shows of the wine's stored pairings: the first hundred.
bool Wine_Has_Selection() {
  std::vector<Text> stored;
  std::vector<Text> selected;
  Each_Maridage_of_Wine([&stored] {
    if (static_cast<int>(stored.size()) == Selected_IDs.Bound()) return;
    stored.push_back(Maridages_Recordset.Fields("Maridage_ID").As_Text());
  });
  for (int item = 1; item <= Selected_Count; ++item) selected.push_back(Selected_IDs[item]);
  return std::ranges::is_permutation(stored, selected);
}

// ---- grapes of a region, as designed ----

void Require_Numbers(const Link_Table& links, int rows) {
  Open_Table(links.rows, links.name);
  if (links.rows.Numbers_Left() < rows) Fail(Failure::Overflow);
  Close_Table(links.rows);
}

// The selection has a row for each group, so at most one for each grape.
void Require_Numbers_for_Region(int pairs_of_each) {
  Require_Numbers(Varieties_of_Regions, Selected_Count);
  Require_Numbers(Pairs_of_Regions, Selected_Count * pairs_of_each);
}

void Add_Region_Varieties() {
  Store(Varieties_of_Regions, Regions.Region_ID, Build_Region_Variety_Groups,
        Serial_of_User(To_Text(Regions.Region_ID)));
}

}  // namespace

void Store_Wine_Maridages() {
  const bool kept_as_it_is = !Is_Kept(Fault::More_Pairings_End_The_Run) && Wine_Has_Selection();
  if (!kept_as_it_is) Store(Pairings_of_Wines, Wines.Wine_ID, Build_Wine_Maridage_Groups);
  if (!Is_Kept(Fault::Cheese_Goes_By_Last_Record)) Build_Cheeses_of_Wine();
}

// The new rows of the pair table are written by the build: the old ones go before it.
void Store_Mobile_Wine_Maridages() {
  Remove_All(Pairings_of_Mobile_Wines, Mobile_Wines.Mobile_Wine_ID);
  Remove_All(mobile_wines_of_pairings, Mobile_Wines.Mobile_Wine_ID);
  Store(Pairings_of_Mobile_Wines, Mobile_Wines.Mobile_Wine_ID, Build_Mobile_Wine_Maridage_Groups);
}

void Store_Variety_Maridages() {
  Store(Pairings_of_Varieties, Varieties.Variety_ID, Build_Variety_Maridage_Groups,
        Dated_Serial_of_User(To_Text(Varieties.Variety_ID)));
}

// Foods of a cheese are no cheeses of a wine: the build of the wines serves both.
void Store_Cheese_Maridages() {
  Store(Pairings_of_Cheeses, Cheeses.Cheese_ID, Build_Wine_Maridage_Groups);
}

void Store_Region_Varieties() {
  if (!Is_Kept(Fault::Grapes_Of_Region_Count_Again)) {
    Make_Varieties_of_Region(Selected_Count);
    return;
  }
  Require_Numbers_for_Region(1);
  Add_Region_Varieties();
}

void Replace_Region_Varieties() {
  if (!Is_Kept(Fault::Grapes_Of_Region_Count_Again)) {
    Make_Varieties_of_Region(Selected_Count);
    return;
  }
  Require_Numbers_for_Region(2);
  Remove_All(Varieties_of_Regions, Regions.Region_ID);
  Add_Region_Varieties();
  Remove_All(Pairs_of_Regions, Regions.Region_ID);
  Build_Region_Variety_Groups();
}

void Remove_Region_Varieties() { Make_Varieties_of_Region(0); }

void Store_Cheese_Varieties() {
  Store(Varieties_of_Cheeses, Cheeses.Cheese_ID, Build_Cheese_Variety_Groups,
        Serial_of_User(To_Text(Cheeses.Cheese_ID)));
}

void Remove_Wine_Maridages() {
  Remove_All(Pairings_of_Wines, Wines.Wine_ID);
  Build_Cheeses_of_Wine();
}

void Remove_Variety_Maridages() { Remove_All(Pairings_of_Varieties, Varieties.Variety_ID); }
