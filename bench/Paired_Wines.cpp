#include "bench/Paired_Wines.h"

#include <algorithm>
#include <map>
#include <random>

#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "links/Varieties_Processes.h"

namespace {

struct Pairing {
  Long group;
  Long subgroup;
  unsigned one_in;  ///< how often it is taken where chance comes upon it
};

using Masks = std::map<Long, Long>;  // by group

std::vector<Pairing> Catalogue_of_Pairings() {
  std::vector<Pairing> list;
  std::map<Long, Long> last;  // subgroups, by group
  for (Open_Table(Maridages_Recordset, "Maridages"); !Maridages_Recordset.Eof();
       Maridages_Recordset.MoveNext()) {
    Read_Maridages_Record();
    list.push_back({Maridages.Maridage_Group, Maridages.Maridage_SubGr, 1});
    Long& highest = last[Maridages.Maridage_Group];
    highest = std::max(highest, Maridages.Maridage_SubGr);
  }
  Close_Table(Maridages_Recordset);
  for (Pairing& pairing : list) {
    const bool rare = pairing.subgroup > 1 && pairing.subgroup == last[pairing.group];
    if (rare) pairing.one_in = 6 + 8 * static_cast<unsigned>(pairing.group % 10);
  }
  return list;
}

class Chance {
 public:
  Chance() : catalogue_(Catalogue_of_Pairings()) {}

  Masks Some_Pairings(int wanted) {
    Masks masks;
    for (int had = 0; had < wanted;) had += Take(Any_Pairing(), masks) ? 1 : 0;
    return masks;
  }

 private:
  const Pairing& Any_Pairing() {
    while (true) {
      const Pairing& pairing = catalogue_[chance_() % catalogue_.size()];
      if (chance_() % pairing.one_in == 0) return pairing;
    }
  }

  // False where the wine has it already.
  static bool Take(const Pairing& pairing, Masks& masks) {
    const Long mask = Subgroup_Mask(pairing.subgroup);
    Long& taken = masks[pairing.group];
    if (taken / mask % 10 == 1) return false;
    taken += mask;
    return true;
  }

  std::mt19937 chance_{1855};
  std::vector<Pairing> catalogue_;
};

void Add_Rows(Long wine, const Masks& masks) {
  for (const auto& [group, mask] : masks) {
    Maridages_Per_Wines_Recordset.AddNew();
    Maridages_Per_Wines_Recordset.Fields("Wine_ID") = wine;
    Maridages_Per_Wines_Recordset.Fields("GROUP") = group * 10;
    Maridages_Per_Wines_Recordset.Fields("SUBCATEGO") = mask;
    Maridages_Per_Wines_Recordset.Update();
  }
}

}  // namespace

void Pair_Wines(const std::vector<Long>& wines, int pairings) {
  Chance chance;
  Open_Table(Maridages_Per_Wines_Recordset, "Maridages_Per_Wines");
  for (const Long wine : wines) Add_Rows(wine, chance.Some_Pairings(pairings));
  Close_Table(Maridages_Per_Wines_Recordset);
}
