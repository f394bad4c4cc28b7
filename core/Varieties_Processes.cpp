#include "core/Varieties_Processes.h"

#include <algorithm>
#include <cmath>

#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr Long subgroups_of_a_group = 10;

// Lands on the first variety of the group. False where the group has none.
bool Seek_Group(Long group) {
  Varieties_Recordset.Seek("=", group);
  if (Varieties_Recordset.NoMatch()) return false;
  Read_Varieties_Record();
  return true;
}

// Looks for a subgroup from the current row of `Varieties` on.
bool Find_Subgroup(Long subgroup) {
  for (int row = 0; row < subgroups_of_a_group; ++row) {
    if (Varieties.Variety_SubGr == subgroup) return true;
    Varieties_Recordset.MoveNext();
    if (Varieties_Recordset.Eof()) return false;
    Read_Varieties_Record();
  }
  return false;
}

// After each subgroup back to the group's first row, also behind the last one.
void Decode_Varieties(Long group, Long mask) {
  Decoded_Group = group;
  Decoded_Mask = mask;
  bool in_group = Seek_Group(group);
  while (in_group && Decoded_Mask >= 1) {
    if (Find_Subgroup(Next_Subgroup_of_Mask(Decoded_Mask))) {
      Decoded_Items[++Decoded_Count] = {Varieties.Variety_ID, Varieties.Variety_Name,
                                        Varieties.Variety_Color};
    }
    in_group = Seek_Group(group);
  }
}

}  // namespace

Long Subgroup_Mask(Long subgroup) {
  return To_Long(std::pow(10.0, static_cast<double>(subgroup - 1)));
}

Long Next_Subgroup_of_Mask(Long& mask) {
  mask = std::max(mask, Long{0});
  Text digits = Trim(To_Text(mask));
  digits.insert(0, subgroups_of_a_group - digits.size(), '0');
  const auto first = digits.find('1');
  if (first == Text::npos) {
    mask = 0;
    return 0;
  }
  digits[first] = '0';
  mask = To_Long(digits);
  return subgroups_of_a_group - static_cast<Long>(first);
}

void Load_Varieties_of_Region() {
  Decoded_Count = 0;
  Open_Table(Varieties_Recordset, "Varieties");
  Varieties_Recordset.Index("Variety_GROUP");
  Open_Table(Varieties_Per_Region_Recordset, "Varieties_Per_Region");
  Varieties_Per_Region_Recordset.Index("Region_ID");
  Varieties_Per_Region_Recordset.Seek("=", Regions.Region_ID);
  for (; !Varieties_Per_Region_Recordset.NoMatch() && !Varieties_Per_Region_Recordset.Eof();
       Varieties_Per_Region_Recordset.MoveNext()) {
    Read_Varieties_Per_Region_Record();
    if (Varieties_Per_Region.Region_ID != Regions.Region_ID) break;
    Decode_Varieties(Varieties_Per_Region.GROUP / 10, Varieties_Per_Region.SUBCATEGO);
  }
  Close_Table(Varieties_Per_Region_Recordset);
  Close_Table(Varieties_Recordset);
}
