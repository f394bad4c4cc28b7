#include "platform/forms/Matching.h"

#include <limits>

namespace Forms {

namespace {

constexpr std::size_t nobody = std::numeric_limits<std::size_t>::max();

/// Rows come one after another. To a column that is held the way leads on: its holder moves.
class Matching {
 public:
  explicit Matching(const std::vector<std::vector<int>>& prices)
      : prices_(prices), holders_(prices.empty() ? 0 : prices[0].size(), nobody) {}

  void Enter(std::size_t row) {
    ways_ = prices_[row];
    before_.assign(holders_.size(), nobody);
    while (Shorten()) {
    }
    std::size_t column = Nearest_Free();
    for (; before_[column] != nobody; column = before_[column]) {
      holders_[column] = holders_[before_[column]];
    }
    holders_[column] = row;
  }

  std::vector<std::size_t> Columns() const {
    std::vector<std::size_t> columns(prices_.size());
    for (std::size_t column = 0; column < holders_.size(); ++column) {
      if (holders_[column] != nobody) columns[holders_[column]] = column;
    }
    return columns;
  }

 private:
  bool Shorten() {
    bool shorter = false;
    for (std::size_t held = 0; held < holders_.size(); ++held) {
      if (holders_[held] == nobody) continue;
      const std::vector<int>& prices = prices_[holders_[held]];
      for (std::size_t column = 0; column < holders_.size(); ++column) {
        const int way = ways_[held] - prices[held] + prices[column];
        if (way >= ways_[column]) continue;
        ways_[column] = way;
        before_[column] = held;
        shorter = true;
      }
    }
    return shorter;
  }

  std::size_t Nearest_Free() const {
    std::size_t nearest = nobody;
    for (std::size_t column = 0; column < holders_.size(); ++column) {
      if (holders_[column] != nobody) continue;
      if (nearest == nobody || ways_[column] < ways_[nearest]) nearest = column;
    }
    return nearest;
  }

  const std::vector<std::vector<int>>& prices_;
  std::vector<std::size_t> holders_;  ///< of the columns
  std::vector<int> ways_;             ///< what each column costs the new row and those that move
  std::vector<std::size_t> before_;   ///< the column that its holder gives up for this one
};

}  // namespace

std::vector<std::size_t> Cheapest_Matching(const std::vector<std::vector<int>>& prices) {
  Matching matching(prices);
  for (std::size_t row = 0; row < prices.size(); ++row) matching.Enter(row);
  return matching.Columns();
}

}  // namespace Forms
