// Which varieties grow in which region.
#pragma once

#include <map>
#include <set>

#include "tools/Library.h"

namespace Data_Compiler {

class Grapes {
 public:
  explicit Grapes(const Library& library) {
    for (const auto& row : library.Of<Regions_Per_Variety_Record>()) {
      of_regions_[row.Region_ID].insert(row.Variety_ID);
      grown_.insert(row.Variety_ID);
    }
  }

  /// The keys of the varieties; none for a region that grows nothing or does not exist.
  const std::set<Long>& Of(Long region) const {
    const auto found = of_regions_.find(region);
    return found == of_regions_.end() ? none_ : found->second;
  }
  bool Grown_Anywhere(Long variety) const { return grown_.contains(variety); }

 private:
  std::map<Long, std::set<Long>> of_regions_;
  std::set<Long> grown_;
  std::set<Long> none_;
};

}  // namespace Data_Compiler
