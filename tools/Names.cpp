#include "tools/Names.h"

#include "tools/Source_Table.h"

namespace Data_Compiler {

void Names::Add(std::string_view name, Long key, const Place& place, Problems& problems) {
  if (name == Not_Given) {
    problems.Report(place, "the " + kind_ + " has no name");
    return;
  }
  const auto [entry, added] = entries_.try_emplace(std::string(name), Entry{key, place});
  if (!added)
    problems.Report(place, kind_ + " '" + std::string(name) + "' stands already in " +
                               entry->second.place.Text());
}

Long Names::Find(std::string_view name, const Place& place, Problems& problems) const {
  const auto found = entries_.find(name);
  if (found == entries_.end()) {
    problems.Report(place, "unknown " + kind_ + " '" + std::string(name) + "'");
    return 0;
  }
  if (found->first != name)
    problems.Report(place, kind_ + " '" + std::string(name) + "' is written '" + found->first +
                               "' in " + found->second.place.Text());
  return found->second.key;
}

Long Names::Find(std::string_view name) const {
  const auto found = entries_.find(name);
  return found == entries_.end() ? 0 : found->second.key;
}

std::string Name_Within(std::string_view name, std::string_view owner) {
  if (name == Not_Given) return std::string(Not_Given);
  return std::string(name) + " (" + std::string(owner) + ")";
}

}  // namespace Data_Compiler
