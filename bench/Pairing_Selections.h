// What the benchmark of the search searches for.
#pragma once

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "bench/Bare_Pairings.h"
#include "links/Link_Builds.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"

struct Selection {
  std::string what;
  std::vector<Pairing> pairings;
  std::vector<Group> groups;  ///< as the program merges them, in its order

  int Rows() const {
    int rows = 0;
    for (const Pairing& pairing : pairings) rows += pairing.rows;
    return rows;
  }
  int Wines() const {
    int wines = 0;
    for (const Pairing& pairing : pairings) wines += pairing.wines;
    return wines;
  }
};

/// Makes it the program's selection.
inline void Select(const Selection& selection) {
  Selected_Count = 0;
  for (const Pairing& pairing : selection.pairings) {
    ++Selected_Count;
    Selected_IDs[Selected_Count] = To_Text(pairing.key);
    Selected_Names[Selected_Count] = pairing.text;
  }
}

/// The groups that the program makes of it; counts one use.
inline void Merge_Groups(Selection& selection) {
  Select(selection);
  Build_Wine_Maridage_Groups();
  for (int group = 1; group <= Group_Count; ++group) {
    selection.groups.push_back({Group_Keys[group], Group_Masks[group]});
  }
}

/// Pairings of different groups with thousands of rows, so many that together fewer than 99 wines
/// have one, and as many of these as can be.
inline Selection Rare(const std::vector<Pairing>& offered, std::size_t count) {
  constexpr int fewest_rows = 2000;
  constexpr int most_wines = 98;
  std::vector<Pairing> rare;
  std::set<int> groups;
  std::vector<Pairing> sorted = offered;
  std::ranges::sort(sorted, {}, &Pairing::wines);
  for (const Pairing& pairing : sorted) {
    if (pairing.rows >= fewest_rows && groups.insert(pairing.group).second) rare.push_back(pairing);
  }
  Selection best;
  for (std::size_t from = 0; from + count <= rare.size(); ++from) {
    const auto first = rare.begin() + static_cast<std::ptrdiff_t>(from);
    const Selection some{std::to_string(count) + (count == 1 ? " pairing" : " pairings"),
                         {first, first + static_cast<std::ptrdiff_t>(count)},
                         {}};
    if (some.Wines() <= most_wines) best = some;
  }
  return best;
}

/// The ones that most wines have: the hundredth is found soon.
inline Selection Common(std::vector<Pairing> offered, std::ptrdiff_t count = 3) {
  std::ranges::sort(offered, std::greater{}, &Pairing::wines);
  return {
      std::to_string(count) + " common pairings", {offered.begin(), offered.begin() + count}, {}};
}
