// Every way in which a row refers to another, written once: the counting of `Used` and the check
// that no key leads nowhere both go by it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tools/Groups.h"
#include "tools/Library.h"

namespace Data_Compiler {

/// A column that holds the key of a row of To's table. -1 stands for none where that is allowed.
template <class To, class From, class Value>
struct Reference {
  Value From::*column;
  bool may_be_none = false;
};

template <class To, class From, class Value>
Reference<To, From, Value> Key_Of_A(Value From::*column) {
  return {column};
}
template <class To, class From, class Value>
Reference<To, From, Value> Key_Or_None(Value From::*column) {
  return {column, true};
}

/// Calls `visit(Reference)` for every key column.
template <class Visitor>
void For_Each_Reference(Visitor&& visit) {
  visit(Key_Or_None<Words_for_Data_Record>(&Regions_Record::Description));
  visit(Key_Or_None<Words_for_Data_Record>(&Regions_Record::History));
  visit(Key_Or_None<Regions_Record>(&Regions_Record::Sub_Region_Of));
  visit(Key_Of_A<Regions_Record>(&Labels_Record::Region_ID));
  visit(Key_Or_None<Classification_Record>(&Labels_Record::Appellation_ID));
  visit(Key_Of_A<Regions_Record>(&Wineries_Record::Region_ID));
  visit(Key_Or_None<Words_for_Data_Record>(&Wineries_Record::History));
  visit(Key_Of_A<Wineries_Record>(&Labels_per_Winery_Record::Winery_ID));
  visit(Key_Of_A<Labels_Record>(&Labels_per_Winery_Record::Label_ID));
  visit(Key_Or_None<Glossary_Record>(&Classification_Record::Glossary_ID));
  visit(Key_Or_None<Cheeses_Record>(&Maridages_Record::Cheese_ID));
  visit(Key_Or_None<Words_for_Data_Record>(&Cheeses_Record::Cheese_Description));
  visit(Key_Or_None<Labels_Record>(&Mobile_Wines_Record::Mobile_Wine_Label_ID));
  visit(Key_Or_None<Varieties_Record>(&Mobile_Wines_Record::Mobile_Wine_Variety_ID));
  visit(Key_Or_None<Wineries_Record>(&Mobile_Wines_Record::Mobile_Wine_Winery_ID));
  visit(Key_Or_None<Words_for_Data_Record>(&Mobile_Wines_Record::Mobile_Wine_Comments));
  visit(Key_Or_None<Words_for_Data_Record>(&Mobile_Wines_Record::Mobile_Wine_Description));
  visit(Key_Of_A<Mobile_Wines_Record>(&Wine_Tasting_Record::Wine_ID));
  visit(Key_Of_A<Mobile_Wines_Record>(&Varieties_of_Mobile_Wines_Record::Mobile_Wine_ID));
  visit(Key_Of_A<Varieties_Record>(&Varieties_of_Mobile_Wines_Record::Variety_ID));
  visit(Key_Of_A<Mobile_Wines_Record>(&Maridages_Per_Mobile_Wines_Record::Mobile_Wine_ID));
  visit(Key_Of_A<Cheeses_Record>(&Maridages_Per_Cheeses_Record::Cheese_ID));
  visit(Key_Of_A<Varieties_Record>(&Maridages_Per_Variety_Record::Variety_ID));
  visit(Key_Of_A<Regions_Record>(&Varieties_Per_Region_Record::Region_ID));
  visit(Key_Of_A<Cheeses_Record>(&Varieties_Per_Cheeses_Record::Cheese_ID));
  visit(Key_Of_A<Maridages_Record>(&Varieties_Per_Maridage_Record::Maridage_ID));
  visit(Key_Of_A<Varieties_Record>(&Varieties_Per_Maridage_Record::Variety_ID));
  visit(Key_Of_A<Varieties_Record>(&Regions_Per_Variety_Record::Variety_ID));
  visit(Key_Of_A<Regions_Record>(&Regions_Per_Variety_Record::Region_ID));
  visit(Key_Of_A<Maridages_Record>(&Mobile_Wines_per_Maridage_Record::Maridage_ID));
  visit(Key_Of_A<Mobile_Wines_Record>(&Mobile_Wines_per_Maridage_Record::Mobile_Wine_ID));
  visit(Key_Of_A<Varieties_Record>(&Cheeses_Per_Variety_Record::Variety_ID));
  visit(Key_Of_A<Cheeses_Record>(&Cheeses_Per_Variety_Record::Cheese_ID));
  visit(Key_Of_A<Cheeses_Record>(&Cheeses_Per_Maridage_Record::Cheese_ID));
  visit(Key_Of_A<Maridages_Record>(&Cheeses_Per_Maridage_Record::Maridage_ID));
  visit(Key_Of_A<Cheeses_Record>(&Cheeses_Per_Mobile_Wines_Record::Cheese_ID));
  visit(Key_Of_A<Mobile_Wines_Record>(&Cheeses_Per_Mobile_Wines_Record::Mobile_Wines_ID));
  visit(Key_Of_A<Cheeses_Record>(&Mobile_Wines_Per_Cheeses_Record::Cheese_ID));
  visit(Key_Of_A<Mobile_Wines_Record>(&Mobile_Wines_Per_Cheeses_Record::Mobile_Wines_ID));
}

/// A column that holds a country's short name.
template <class From>
using Country_Column = Text From::*;

/// Calls `visit(column)` for each of them.
template <class Visitor>
void For_Each_Country_Column(Visitor&& visit) {
  visit(&State_of_Contries_Record::Contry);
  visit(&Regions_Record::Country);
  visit(&Wineries_Record::Country);
  visit(&Classification_Record::Country);
  visit(&Cheeses_Record::Cheese_Country);
  visit(&Wine_System_Record::Country_Target);
  visit(&Mobile_Wines_Record::Mobile_Wine_Country);
  visit(&Mobile_Wines_Available_Countries_Record::Country_Short_Name);
}

/// A table of group link rows: its owner's column, and the table whose rows the masks name.
template <class Node, class From, class Value>
struct Group_Table {
  Value From::*owner;
};

template <class Visitor>
void For_Each_Group_Table(Visitor&& visit) {
  using M = Maridages_Record;
  using V = Varieties_Record;
  using Wines = Maridages_Per_Mobile_Wines_Record;
  visit(Group_Table<M, Wines, Long>{&Wines::Mobile_Wine_ID});
  using Cheeses = Maridages_Per_Cheeses_Record;
  visit(Group_Table<M, Cheeses, Long>{&Cheeses::Cheese_ID});
  using Varieties = Maridages_Per_Variety_Record;
  visit(Group_Table<M, Varieties, Integer>{&Varieties::Variety_ID});
  using Regions = Varieties_Per_Region_Record;
  visit(Group_Table<V, Regions, Integer>{&Regions::Region_ID});
  using Cheese_Varieties = Varieties_Per_Cheeses_Record;
  visit(Group_Table<V, Cheese_Varieties, Long>{&Cheese_Varieties::Cheese_ID});
}

inline Address Address_Of(const Maridages_Record& row) {
  return {row.Maridage_Group, row.Maridage_SubGr};
}
inline Address Address_Of(const Varieties_Record& row) {
  return {row.Variety_Group, row.Variety_SubGr};
}
inline Address Address_Of(const Regions_Record& row) {
  return {row.Region_Group, row.Region_SubGr};
}

/// The keys of a table's rows by their addresses.
template <class Node>
std::map<Address, Long> Keys_By_Address(const Library& library) {
  std::map<Address, Long> keys;
  for (const Node& row : library.Of<Node>()) keys[Address_Of(row)] = Key_Of(row);
  return keys;
}

/// How many rows of the whole library name each row of To's table, by its key: rows that hold the
/// key, and group link rows whose mask holds its address.
template <class To>
std::map<Long, Long> References_To(const Library& library) {
  std::map<Long, Long> count;
  For_Each_Reference(
      [&]<class Other, class From, class Value>(const Reference<Other, From, Value>& reference) {
        if constexpr (std::is_same_v<Other, To>)
          for (const From& row : library.Of<From>()) ++count[As_Key(row.*reference.column)];
      });
  For_Each_Group_Table(
      [&]<class Node, class From, class Value>(const Group_Table<Node, From, Value>&) {
        if constexpr (std::is_same_v<Node, To>) {
          const auto keys = Keys_By_Address<Node>(library);
          for (const From& row : library.Of<From>())
            for (Long subgroup : Subgroups_Of(row.SUBCATEGO)) {
              const auto found = keys.find({row.GROUP / 10, subgroup});
              if (found != keys.end()) ++count[found->second];
            }
        }
      });
  return count;
}

/// Calls `visit.template operator()<Record>()` for every table that counts its references.
template <class Visitor>
void For_Each_Counted_Table(Visitor&& visit) {
  visit.template operator()<Regions_Record>();
  visit.template operator()<Labels_Record>();
  visit.template operator()<Wineries_Record>();
  visit.template operator()<Classification_Record>();
  visit.template operator()<Varieties_Record>();
  visit.template operator()<Maridages_Record>();
  visit.template operator()<Mobile_Wines_Record>();
}

}  // namespace Data_Compiler
