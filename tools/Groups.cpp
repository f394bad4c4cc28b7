#include "tools/Groups.h"

#include <algorithm>

namespace Data_Compiler {

Address Group_Giver::Next(std::string_view family) {
  auto found = last_.find(family);
  if (found == last_.end()) found = last_.emplace(std::string(family), Address{}).first;
  Address& last = found->second;
  if (last.group == 0 || last.subgroup == Group_Size) last = {++groups_, 0};
  ++last.subgroup;
  return last;
}

std::vector<Group_Row> Pack(std::vector<Address> addresses) {
  std::sort(addresses.begin(), addresses.end());
  std::vector<Group_Row> rows;
  for (const Address& address : addresses) {
    if (rows.empty() || rows.back().GROUP != address.group * 10)
      rows.push_back({address.group * 10, 0});
    Long digit = 1;
    for (Long subgroup = 1; subgroup < address.subgroup; ++subgroup) digit *= 10;
    rows.back().SUBCATEGO += digit;
  }
  return rows;
}

std::vector<Long> Subgroups_Of(Long mask) {
  std::vector<Long> subgroups;
  for (Long subgroup = 1; mask > 0; ++subgroup, mask /= 10)
    if (mask % 10 == 1) subgroups.push_back(subgroup);
  return subgroups;
}

bool Is_Mask(Long mask) {
  if (mask <= 0) return false;
  for (; mask > 0; mask /= 10)
    if (mask % 10 > 1) return false;
  return true;
}

}  // namespace Data_Compiler
