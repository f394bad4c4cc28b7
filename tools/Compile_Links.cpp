// Both directions of every link, each from the one line that tells it.
#include <algorithm>

#include "tools/Compilation.h"

namespace Data_Compiler {

namespace {

using Links = std::map<Long, std::vector<Long>>;

void Add_Once(std::vector<Long>& keys, Long key) {
  if (std::find(keys.begin(), keys.end(), key) == keys.end()) keys.push_back(key);
}

/// A cheese and the pairing that stands for it are one thing: who goes with the one goes with the
/// other.
void Join_Cheeses_And_Their_Pairings(Compilation& c) {
  for (const auto& [cheese, varieties] : c.varieties_of_cheeses)
    for (Long variety : varieties)
      if (c.pairings_of_cheeses.contains(cheese))
        Add_Once(c.pairings_of_varieties[variety], c.pairings_of_cheeses[cheese]);
  for (const auto& [variety, pairings] : c.pairings_of_varieties)
    for (Long pairing : pairings)
      if (c.cheeses_of_pairings.contains(pairing))
        Add_Once(c.varieties_of_cheeses[c.cheeses_of_pairings[pairing]], variety);
  for (const auto& [wine, cheeses] : c.cheeses_of_wines)
    for (Long cheese : cheeses)
      if (c.pairings_of_cheeses.contains(cheese))
        Add_Once(c.pairings_of_wines[wine], c.pairings_of_cheeses[cheese]);
  for (const auto& [wine, pairings] : c.pairings_of_wines)
    for (Long pairing : pairings)
      if (c.cheeses_of_pairings.contains(pairing))
        Add_Once(c.cheeses_of_wines[wine], c.cheeses_of_pairings[pairing]);
}

/// Calls `add(owner, group row)` for the packed rows of all owners.
template <class Adder>
void Pack_All(const Links& links, const std::map<Long, Address>& addresses, Adder&& add) {
  for (const auto& [owner, keys] : links) {
    std::vector<Address> own;
    for (Long key : keys) {
      const auto found = addresses.find(key);
      if (found != addresses.end()) own.push_back(found->second);
    }
    for (const Group_Row& row : Pack(std::move(own))) add(owner, row);
  }
}

/// Calls `add(owner, key)` for every link.
template <class Adder>
void Pair_All(const Links& links, Adder&& add) {
  for (const auto& [owner, keys] : links)
    for (Long key : keys)
      if (owner > 0 && key > 0) add(owner, key);
}

void Link_Regions(Compilation& c) {
  Pack_All(c.varieties_of_regions, c.variety_addresses, [&](Long region, Group_Row row) {
    c.library.Add(Varieties_Per_Region_Record{0, Short(region), row.GROUP, row.SUBCATEGO, {}});
  });
  Pair_All(c.varieties_of_regions, [&](Long region, Long variety) {
    c.library.Add(Regions_Per_Variety_Record{0, Short(variety), 0, 0, {}, Short(region)});
  });
}

void Link_Varieties(Compilation& c) {
  Pack_All(c.pairings_of_varieties, c.pairing_addresses, [&](Long variety, Group_Row row) {
    c.library.Add(Maridages_Per_Variety_Record{0, Short(variety), row.GROUP, row.SUBCATEGO, {}});
  });
  Pair_All(c.pairings_of_varieties, [&](Long variety, Long pairing) {
    c.library.Add(Varieties_Per_Maridage_Record{0, pairing, -1, 0, {}, variety});
  });
}

void Link_Cheeses(Compilation& c) {
  Pack_All(c.foods_of_cheeses, c.pairing_addresses, [&](Long cheese, Group_Row row) {
    c.library.Add(Maridages_Per_Cheeses_Record{cheese, row.GROUP, row.SUBCATEGO});
  });
  Pair_All(c.foods_of_cheeses, [&](Long cheese, Long pairing) {
    c.library.Add(Cheeses_Per_Maridage_Record{cheese, pairing});
  });
  Pack_All(c.varieties_of_cheeses, c.variety_addresses, [&](Long cheese, Group_Row row) {
    c.library.Add(Varieties_Per_Cheeses_Record{0, cheese, row.GROUP, row.SUBCATEGO, {}});
  });
  Pair_All(c.varieties_of_cheeses, [&](Long cheese, Long variety) {
    c.library.Add(Cheeses_Per_Variety_Record{0, 0, {}, Short(variety), Short(cheese)});
  });
}

void Link_Wines(Compilation& c) {
  Pack_All(c.pairings_of_wines, c.pairing_addresses, [&](Long wine, Group_Row row) {
    c.library.Add(Maridages_Per_Mobile_Wines_Record{0, wine, row.GROUP, row.SUBCATEGO});
  });
  // This table's key is no counter: the program goes on from the last row's, so it rises by rows.
  Pair_All(c.pairings_of_wines, [&](Long wine, Long pairing) {
    const auto number = c.library.Of<Mobile_Wines_per_Maridage_Record>().size() + 1;
    const std::string mark = "SYS-" + std::to_string(number);
    c.library
        .Add(Mobile_Wines_per_Maridage_Record{Short(static_cast<Long>(number)), pairing, wine, {}})
        .SERIAL_NUMBER = mark;
  });
  Pair_All(c.cheeses_of_wines, [&](Long wine, Long cheese) {
    c.library.Add(Cheeses_Per_Mobile_Wines_Record{Short(cheese), Short(wine)});
    c.library.Add(Mobile_Wines_Per_Cheeses_Record{0, Short(cheese), Short(wine)});
  });
  for (Mobile_Wines_Record& wine : c.library.Of<Mobile_Wines_Record>())
    wine.Mobile_Wine_Color_3 = c.pairings_of_wines[wine.Mobile_Wine_ID].empty() ? "x" : "Y";
}

}  // namespace

void Add_Links(Compilation& c) {
  Join_Cheeses_And_Their_Pairings(c);
  Link_Regions(c);
  Link_Varieties(c);
  Link_Cheeses(c);
  Link_Wines(c);
}

}  // namespace Data_Compiler
