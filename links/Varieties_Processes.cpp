#include "links/Varieties_Processes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Languages.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr std::size_t subgroups_of_a_group = 10;

// The place of the first group that is smaller than that of the first entry; 0 where there is none.
int Smaller_than_First() {
  for (int entry = 2; entry <= Sort_Count; ++entry) {
    if (Selected_Groups[entry] < Selected_Groups[1]) return entry;
  }
  return 0;
}

}  // namespace

void Kept_Selection::Restore() const {
  Selected_Count = Count;
  Selected_Names = Names;
  Selected_IDs = IDs;
}

const Text& Decoded_Maridage::Name_in_Language() const { return In_Language(*this); }

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
  return static_cast<Long>(subgroups_of_a_group - first);
}

void Merge_Selected_Groups() {
  while (const int smaller = Smaller_than_First()) {
    std::swap(Selected_Groups[1], Selected_Groups[smaller]);
    std::swap(Selected_Masks[1], Selected_Masks[smaller]);
  }
  Group_Count = 0;
  for (int entry = 1; entry <= Sort_Count; ++entry) {
    if (entry > 1 && Selected_Groups[entry] == Selected_Groups[entry - 1]) {
      Long& mask = Group_Masks[Group_Count];
      mask = To_Long(static_cast<double>(mask) + static_cast<double>(Selected_Masks[entry]));
    } else {
      ++Group_Count;
      Group_Keys[Group_Count] = Selected_Groups[entry];
      Group_Masks[Group_Count] = Selected_Masks[entry];
    }
  }
}
