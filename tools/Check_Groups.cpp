// Groups, masks, and the two directions of every link.
#include <algorithm>
#include <set>

#include "tools/Compile_Library.h"
#include "tools/References.h"

namespace Data_Compiler {

namespace {

/// What an array of the program holds at most.
constexpr std::size_t Items_Of_An_Owner = 100;

/// The program can make the pair tables of varieties anew from the masks. The numbers of the old
/// rows never come back, and those of both must be below 32,768.
constexpr std::size_t Rows_Made_Anew = 16383;

using Pairs = std::set<std::pair<Long, Long>>;

template <class Node>
void Check_Addresses(const Library& library, Problems& problems) {
  std::map<Long, std::vector<Long>> groups;
  for (const Node& row : library.Of<Node>()) {
    const Address address = Address_Of(row);
    groups[address.group].push_back(address.subgroup);
    if (address.group < 1 || address.group >= First_Group_Of_Users)
      problems.Report(library.Where(row),
                      "group " + std::to_string(address.group) + " is not one for delivered rows");
  }
  const std::string& table = Description_Of<Node>().Name();
  for (auto& [group, subgroups] : groups) {
    std::sort(subgroups.begin(), subgroups.end());
    for (std::size_t i = 0; i < subgroups.size(); ++i)
      if (subgroups[i] != static_cast<Long>(i) + 1 || subgroups[i] > Group_Size) {
        problems.Report(table, "the subgroups of group " + std::to_string(group) +
                                   " are not 1 to 10 without a hole");
        break;
      }
  }
}

/// Owner and node of each link that a table of masks holds; what is wrong with a row is reported.
template <class Node, class From, class Value>
Pairs Unpack(const Library& library, const Group_Table<Node, From, Value>& table,
             Problems& problems) {
  const auto keys = Keys_By_Address<Node>(library);
  Pairs links;
  for (const From& row : library.Of<From>()) {
    if (!Is_Mask(row.SUBCATEGO) || row.GROUP % 10 != 0)
      problems.Report(library.Where(row), "group " + std::to_string(row.GROUP) + ", mask " +
                                              std::to_string(row.SUBCATEGO) + " is no link row");
    for (Long subgroup : Subgroups_Of(row.SUBCATEGO)) {
      const auto found = keys.find({row.GROUP / 10, subgroup});
      if (found == keys.end())
        problems.Report(library.Where(row), "the mask names subgroup " + std::to_string(subgroup) +
                                                " of group " + std::to_string(row.GROUP / 10) +
                                                ", which is missing");
      else if (!links.emplace(As_Key(row.*table.owner), found->second).second)
        problems.Report(library.Where(row), "the link stands twice");
    }
  }
  return links;
}

template <class From, class Owner, class Key>
Pairs Pairs_Of(const Library& library, Owner From::*owner, Key From::*key) {
  Pairs pairs;
  for (const From& row : library.Of<From>()) pairs.emplace(row.*owner, row.*key);
  return pairs;
}

template <class Owner>
void Check_Owners(const Library& library, const Pairs& links, const std::string& table,
                  Problems& problems) {
  std::map<Long, std::size_t> count;
  for (const auto& [owner, key] : links)
    if (++count[owner] == Items_Of_An_Owner + 1)
      if (const Owner* row = library.Find<Owner>(owner))
        problems.Report(library.Where(*row), "it has more than 100 items in " + table);
}

void Check_Directions(const Pairs& there, const Pairs& back, const std::string& tables,
                      Problems& problems) {
  if (there != back) problems.Report(tables, "the two directions do not agree");
}

/// A table of masks against the table of pairs that leads back.
template <class Owner_Record, class Node, class From, class Value, class Back, class Owner,
          class Key>
void Check_Link(const Library& library, const Group_Table<Node, From, Value>& masks,
                Owner Back::*owner, Key Back::*key, Problems& problems) {
  const Pairs links = Unpack(library, masks, problems);
  const std::string& name = Description_Of<From>().Name();
  Check_Owners<Owner_Record>(library, links, name, problems);
  Check_Directions(links, Pairs_Of(library, owner, key),
                   name + " and " + Description_Of<Back>().Name(), problems);
}

/// Two tables of pairs. Each side is an owner: a wine of its cheeses, a cheese of its wines.
void Check_Cheeses_Of_Wines(const Library& library, Problems& problems) {
  using There = Cheeses_Per_Mobile_Wines_Record;
  using Back = Mobile_Wines_Per_Cheeses_Record;
  const Pairs wines = Pairs_Of(library, &There::Mobile_Wines_ID, &There::Cheese_ID);
  Check_Owners<Mobile_Wines_Record>(library, wines, "Cheeses_Per_Mobile_Wines", problems);
  Check_Owners<Cheeses_Record>(library, Pairs_Of(library, &Back::Cheese_ID, &Back::Mobile_Wines_ID),
                               "Mobile_Wines_Per_Cheeses", problems);
  Check_Directions(wines, Pairs_Of(library, &Back::Mobile_Wines_ID, &Back::Cheese_ID),
                   "Cheeses_Per_Mobile_Wines and Mobile_Wines_Per_Cheeses", problems);
  if (library.Of<There>().size() != wines.size() || library.Of<Back>().size() != wines.size())
    problems.Report("Cheeses_Per_Mobile_Wines", "a pair stands twice");
}

template <class Record>
void Check_Made_Anew(const Library& library, Problems& problems) {
  if (library.Of<Record>().size() > Rows_Made_Anew)
    problems.Report(Description_Of<Record>().Name(),
                    "more than " + std::to_string(Rows_Made_Anew) + " rows cannot be made anew");
}

/// Whose rows own those of a table of masks, and the pair table that leads back to them.
template <class From>
struct Way_Back;
template <>
struct Way_Back<Maridages_Per_Mobile_Wines_Record> {
  using Owner = Mobile_Wines_Record;
  static constexpr auto owner = &Mobile_Wines_per_Maridage_Record::Mobile_Wine_ID;
  static constexpr auto key = &Mobile_Wines_per_Maridage_Record::Maridage_ID;
};
template <>
struct Way_Back<Maridages_Per_Cheeses_Record> {
  using Owner = Cheeses_Record;
  static constexpr auto owner = &Cheeses_Per_Maridage_Record::Cheese_ID;
  static constexpr auto key = &Cheeses_Per_Maridage_Record::Maridage_ID;
};
template <>
struct Way_Back<Maridages_Per_Variety_Record> {
  using Owner = Varieties_Record;
  static constexpr auto owner = &Varieties_Per_Maridage_Record::Variety_ID;
  static constexpr auto key = &Varieties_Per_Maridage_Record::Maridage_ID;
};
template <>
struct Way_Back<Varieties_Per_Region_Record> {
  using Owner = Regions_Record;
  static constexpr auto owner = &Regions_Per_Variety_Record::Region_ID;
  static constexpr auto key = &Regions_Per_Variety_Record::Variety_ID;
};
template <>
struct Way_Back<Varieties_Per_Cheeses_Record> {
  using Owner = Cheeses_Record;
  static constexpr auto owner = &Cheeses_Per_Variety_Record::Cheese_ID;
  static constexpr auto key = &Cheeses_Per_Variety_Record::Variety_ID;
};

}  // namespace

void Check_Groups(const Library& library, Problems& problems) {
  Check_Addresses<Regions_Record>(library, problems);
  Check_Addresses<Varieties_Record>(library, problems);
  Check_Addresses<Maridages_Record>(library, problems);
  For_Each_Group_Table(
      [&]<class Node, class From, class Value>(const Group_Table<Node, From, Value>& table) {
        using Way = Way_Back<From>;
        Check_Link<typename Way::Owner>(library, table, Way::owner, Way::key, problems);
      });
  Check_Cheeses_Of_Wines(library, problems);
  Check_Made_Anew<Regions_Per_Variety_Record>(library, problems);
  Check_Made_Anew<Varieties_Per_Maridage_Record>(library, problems);
}

}  // namespace Data_Compiler
