#include "links/Region_Varieties.h"

#include <algorithm>
#include <array>
#include <map>
#include <span>
#include <vector>

#include "core/Ownership.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Decoders.h"
#include "links/Link_Table.h"
#include "links/Used_Counters.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"

namespace {

// Of the fields below; the others say whose the row is.
using Link_Row = std::vector<Long>;
constexpr std::array fields_of_links{"GROUP", "SUBCATEGO"};
constexpr std::array fields_of_pairs{"GROUP", "SUBCATEGO", "Variety_ID"};
using Fields = std::span<const char* const>;

Link_Row Current_Row(const Link_Table& links, Fields fields) {
  Link_Row row;
  for (const char* field : fields) row.push_back(links.rows.Fields(field).As_Long());
  return row;
}

void Add_Row(const Link_Table& links, Fields fields, const Link_Row& row) {
  links.rows.AddNew();
  links.rows.Fields(links.owner) = Regions.Region_ID;
  for (std::size_t at = 0; at < fields.size(); ++at) links.rows.Fields(fields[at]) = row[at];
  links.rows.Fields("SERIAL_NUMBER") = Serial_of_User(To_Text(Regions.Region_ID));
  links.rows.Update();
}

void Make_Rows(const Link_Table& links, Fields fields, std::vector<Link_Row> wanted) {
  Open_Table(links.rows, links.name, links.owner);
  Each_Row_Of(links.rows, links.owner, Regions.Region_ID, [&] {
    const auto stands = std::ranges::find(wanted, Current_Row(links, fields));
    if (stands == wanted.end()) {
      links.rows.Delete();
    } else {
      wanted.erase(stands);
    }
  });
  for (const Link_Row& row : wanted) Add_Row(links, fields, row);
  Close_Table(links.rows);
}

void Add_Once(Uses& grapes, Long variety_id) {
  const Use grape{Count_Variety, variety_id};
  if (std::ranges::find(grapes, grape) == grapes.end()) grapes.push_back(grape);
}

Uses Stored_Grapes() {
  Load_Varieties_of_Region();
  Uses grapes;
  for (int item = 1; item <= Decoded_Count; ++item) Add_Once(grapes, Decoded_Items[item].ID);
  return grapes;
}

Uses Selected_Grapes(int count) {
  Open_By_Key(Varieties_Table);
  Uses grapes;
  for (int item = 1; item <= count; ++item) {
    if (Find_Row(Varieties_Table, Selected_IDs[item])) Add_Once(grapes, Varieties.Variety_ID);
  }
  Close_Table(Varieties_Recordset);
  return grapes;
}

void Make_Links(const Uses& grapes) {
  std::map<Long, Long> masks;
  Open_By_Key(Varieties_Table);
  for (const Use& grape : grapes) {
    Read_Row(Varieties_Table, grape.key);
    masks[Varieties.Variety_Group] += Subgroup_Mask(Varieties.Variety_SubGr);
  }
  Close_Table(Varieties_Recordset);
  std::vector<Link_Row> rows;
  rows.reserve(masks.size());
  for (const auto& [group, mask] : masks) rows.push_back({To_Long(group * 10.0), mask});
  Make_Rows(Varieties_of_Regions, fields_of_links, rows);
}

void Make_Pairs(const Uses& grapes) {
  std::vector<Link_Row> rows;
  rows.reserve(grapes.size());
  for (const Use& grape : grapes) rows.push_back({0, 0, grape.key});
  Make_Rows(Pairs_of_Regions, fields_of_pairs, rows);
}

}  // namespace

void Make_Varieties_of_Region(int count) {
  const Uses before = Stored_Grapes();
  const Uses after = Selected_Grapes(count);
  Make_Links(after);
  Make_Pairs(after);
  Count_Difference(before, after);
}
