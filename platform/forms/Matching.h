// Who gets what, where each would like several things. For the sources of this room only.
#pragma once

#include <cstddef>
#include <vector>

namespace Forms {

/// The column that each row gets, no two rows the same, so that all prices together are the least.
/// Prices are not negative, the rows of one length, and the columns at least as many as the rows.
std::vector<std::size_t> Cheapest_Matching(const std::vector<std::vector<int>>& prices);

}  // namespace Forms
