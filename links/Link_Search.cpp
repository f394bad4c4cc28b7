#include "links/Link_Search.h"

#include <array>
#include <charconv>
#include <string_view>
#include <unordered_set>

#include "links/Link_Builds.h"
#include "links/Link_Table.h"
#include "links/Varieties_Processes.h"
#include "platform/forms/Message_Box.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr int most_found = 100;

/// The links, how the selection becomes groups, and what is said of nothing found.
struct Owner_Search {
  const Link_Table& links;
  void (*build)();
  const char* text;
  const char* title;
};
const Owner_Search wines{Pairings_of_Wines, Build_Wine_Maridage_Groups,
                         "There are NO wines with\rANY of the pairings selected !!!",
                         "NO Wines found"};
const Owner_Search mobile_wines{Pairings_of_Mobile_Wines, Build_Mobile_Search_Groups,
                                "There are NO Wines with\rANY of the pairings selected !!!",
                                "NO Wines found"};
const Owner_Search regions{Varieties_of_Regions, Build_Region_Variety_Groups,
                           "There are NO Regions with\rANY of the varieties selected !!!",
                           "NO Regions found"};

// The sum of two full masks is more than a Long.
bool Masks_Meet(std::int64_t one, std::int64_t other) {
  std::array<char, 24> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), one + other).ptr;
  return std::string_view(digits.begin(), end).find('2') != std::string_view::npos;
}

// False where the search is full.
bool Take_Found(const Text& key) {
  ++Found_Count;
  if (Found_Count == most_found && !Compact_Found_IDs()) return false;
  Found_IDs[Found_Count] = key;
  return true;
}

// The rows of one merged group. False where the search is full.
bool Search_Group(const Link_Table& links, Long group, Long mask) {
  const Record_Store::Recordset& rows = links.rows;
  const int mask_at = rows.Ordinal("SUBCATEGO");
  const int owner_at = rows.Ordinal(links.owner);
  return Each_Row_Of(links.rows, "GROUP", group, [&] {
    return !Masks_Meet(rows.Fields(mask_at).As_Long(), mask) ||
           Take_Found(rows.Fields(owner_at).As_Text());
  });
}

void Run(const Owner_Search& search) {
  search.build();
  Open_Table(search.links.rows, search.links.name, "GROUP");
  Found_Count = 0;
  for (int group = 1; group <= Group_Count; ++group) {
    if (!Search_Group(search.links, To_Long(Group_Keys[group] * 10.0), Group_Masks[group])) break;
  }
  if (Found_Count > 0) {
    Compact_Found_IDs();
    return;
  }
  Forms::Message_Box(search.text, search.title, Forms::Sign::Warning);
  Close_Table(search.links.rows);
}

}  // namespace

void Search_Wines_for_Maridages() { Run(wines); }
void Search_Mobile_Wines_for_Maridages() { Run(mobile_wines); }
void Search_Regions_for_Varieties() { Run(regions); }

// Where the hundredth match brings a double with it, fewer than a hundred are left.
bool Search_Was_Cut() { return Found_Count == most_found; }

bool Row_Matches_Mask(Long mask) {
  return Masks_Meet(Maridages_Per_Wines_Recordset.Fields("SUBCATEGO").As_Long(), mask);
}

bool Row_Matches_Mobile_Mask(Long mask) {
  return Masks_Meet(Maridages_Per_Mobile_Wines_Recordset.Fields("SUBCATEGO").As_Long(), mask);
}

bool Compact_Found_IDs() {
  std::unordered_set<Text> seen;
  Integer kept = 0;
  for (int found = 1; found <= Found_Count; ++found) {
    if (seen.insert(Found_IDs[found]).second) Found_IDs[++kept] = Found_IDs[found];
  }
  const bool dropped = kept < Found_Count;
  Found_Count = kept;
  return dropped;
}
