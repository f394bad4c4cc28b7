#include "links/Link_Search.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "links/Link_Builds.h"
#include "links/Link_Table.h"
#include "links/Varieties_Processes.h"
#include "platform/forms/Message_Box.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr int most_found = 100;

using Record_Store::Field;

/// The links and whom they lead to, how the selection becomes groups, and what is said of nothing
/// found.
struct Owner_Search {
  const Link_Table& links;
  Link_Table owners;
  void (*build)();
  const char* text;
  const char* title;
};
const Owner_Search wines{Pairings_of_Wines,
                         {Wines_Recordset, "Wines", "Wine_ID"},
                         Build_Wine_Maridage_Groups,
                         "There are NO wines with\rANY of the pairings selected !!!",
                         "NO Wines found"};
const Owner_Search mobile_wines{Pairings_of_Mobile_Wines,
                                {Mobile_Wines_Recordset, "Mobile_Wines", "Mobile_Wine_ID"},
                                Build_Mobile_Search_Groups,
                                "There are NO Wines with\rANY of the pairings selected !!!",
                                "NO Wines found"};
const Owner_Search regions{Varieties_of_Regions,
                           {Regions_Recordset, "Regions", "Region_ID"},
                           Build_Region_Variety_Groups,
                           "There are NO Regions with\rANY of the varieties selected !!!",
                           "NO Regions found"};

// The sum of two full masks is more than a Long.
bool Masks_Meet(std::int64_t one, std::int64_t other) {
  std::array<char, 24> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), one + other).ptr;
  return std::string_view(digits.begin(), end).find('2') != std::string_view::npos;
}

// Calls `take(owner)` for each row of a merged group that matches. False where that ended the walk.
template <class Take>
bool Each_Match(const Link_Table& links, int group, const Take& take) {
  const Record_Store::Recordset& rows = links.rows;
  const int mask_at = rows.Ordinal("SUBCATEGO");
  const int owner_at = rows.Ordinal(links.owner);
  const Long mask = Group_Masks[group];
  return Each_Row_Of(links.rows, "GROUP", To_Long(Group_Keys[group] * 10.0), [&] {
    return !Masks_Meet(rows.Fields(mask_at).As_Long(), mask) || take(rows.Fields(owner_at));
  });
}

// ---- up to a hundred, as they come ----

// False where the search is full.
bool Take_Found(const Text& key) {
  ++Found_Count;
  if (Found_Count == most_found && !Compact_Found_IDs()) return false;
  Found_IDs[Found_Count] = key;
  return true;
}

void Find_First_Ones(const Link_Table& links) {
  const auto take = [](const Field& owner) { return Take_Found(owner.As_Text()); };
  for (int group = 1; group <= Group_Count && Each_Match(links, group, take); ++group) {
  }
  Compact_Found_IDs();
}

// ---- every one that is still there, in the order of its own table ----

std::vector<Long> Matching_Owners(const Link_Table& links) {
  std::vector<Long> owners;
  const auto take = [&owners](const Field& owner) {
    owners.push_back(owner.As_Long());
    return true;
  };
  for (int group = 1; group <= Group_Count; ++group) Each_Match(links, group, take);
  std::ranges::sort(owners);
  owners.erase(std::unique(owners.begin(), owners.end()), owners.end());
  return owners;
}

void Find_All(const Owner_Search& search) {
  const Link_Table& owners = search.owners;
  Open_Table(owners.rows, owners.name, owners.owner);
  for (const Long owner : Matching_Owners(search.links)) {
    owners.rows.Seek("=", owner);
    if (!owners.rows.NoMatch()) Found_IDs[++Found_Count] = To_Text(owner);
  }
  Close_Table(owners.rows);
}

void Run(const Owner_Search& search) {
  search.build();
  Open_Table(search.links.rows, search.links.name, "GROUP");
  Found_Count = 0;
  if (Is_Kept(Fault::Search_Ends_At_A_Hundred)) {
    Find_First_Ones(search.links);
  } else {
    Find_All(search);
  }
  if (Found_Count > 0) return;
  Forms::Message_Box(search.text, search.title, Forms::Sign::Warning);
  Close_Table(search.links.rows);
}

}  // namespace

void Search_Wines_for_Maridages() { Run(wines); }
void Search_Mobile_Wines_for_Maridages() { Run(mobile_wines); }
void Search_Regions_for_Varieties() { Run(regions); }

// Where the hundredth match brings a double with it, fewer than a hundred are left.
bool Search_Was_Cut() {
  return Is_Kept(Fault::Search_Ends_At_A_Hundred) && Found_Count == most_found;
}

bool Row_Matches_Mask(Long mask) {
  return Masks_Meet(Maridages_Per_Wines_Recordset.Fields("SUBCATEGO").As_Long(), mask);
}

bool Row_Matches_Mobile_Mask(Long mask) {
  return Masks_Meet(Maridages_Per_Mobile_Wines_Recordset.Fields("SUBCATEGO").As_Long(), mask);
}

bool Compact_Found_IDs() {
  std::unordered_set<Text> seen;
  Long kept = 0;
  for (int found = 1; found <= Found_Count; ++found) {
    if (seen.insert(Found_IDs[found]).second) Found_IDs[++kept] = Found_IDs[found];
  }
  const bool dropped = kept < Found_Count;
  Found_Count = kept;
  return dropped;
}
