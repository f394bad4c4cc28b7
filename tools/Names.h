// Names of rows and the keys behind them: how a cell that names a row finds it.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/record_store/Text_Order.h"
#include "platform/run_time/Values.h"
#include "tools/Problems.h"

namespace Data_Compiler {

/// The names of one kind of thing. Two names are the same where the store takes them for equal.
class Names {
 public:
  /// `kind` stands in messages: "region", "label".
  explicit Names(std::string_view kind) : kind_(kind) {}

  /// A name used twice, or one that is not given, is a problem, and is not added.
  void Add(std::string_view name, Long key, const Place& place, Problems& problems);

  /// The key behind `name`; 0 and a problem where there is none, or where it is written otherwise.
  Long Find(std::string_view name, const Place& place, Problems& problems) const;
  /// The same, without a problem.
  Long Find(std::string_view name) const;

 private:
  struct Entry {
    Long key;
    Place place;
  };
  struct Order {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return Compare_Keys(a, b) < 0; }
  };

  std::string kind_;
  std::map<std::string, Entry, Order> entries_;
};

/// The name of a thing that is unique only within another: "Bordeaux (FRA)". None stays none.
std::string Name_Within(std::string_view name, std::string_view owner);

}  // namespace Data_Compiler
