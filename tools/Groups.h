// Addresses of pairings, varieties and regions: groups of at most ten, and the masks of link rows.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/run_time/Values.h"

namespace Data_Compiler {

/// Members that a group holds at most: a mask has one decimal digit for each.
inline constexpr Long Group_Size = 10;
/// Groups from here on are those that the program itself makes.
inline constexpr Long First_Group_Of_Users = 1000000;

struct Address {
  Long group = 0;
  Long subgroup = 0;  ///< 1 to 10

  // NOLINTNEXTLINE(modernize-use-nullptr): the checker stumbles over the comparison with zero
  auto operator<=>(const Address&) const = default;
};

/// Hands out addresses: what is of one family shares groups, ten to a group.
class Group_Giver {
 public:
  Address Next(std::string_view family);

 private:
  std::map<std::string, Address, std::less<>> last_;
  Long groups_ = 0;
};

/// A group link row without its owner.
struct Group_Row {
  Long GROUP = 0;
  Long SUBCATEGO = 0;
};

/// The rows that hold these addresses, by rising group.
std::vector<Group_Row> Pack(std::vector<Address> addresses);

/// The subgroups that a mask names, from low to high. A digit other than 0 and 1 names none.
std::vector<Long> Subgroups_Of(Long mask);

/// Whether every decimal digit of the mask is 0 or 1.
bool Is_Mask(Long mask);

}  // namespace Data_Compiler
