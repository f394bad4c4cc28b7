// Keys, references and the counts of them.
#include "tools/Compile_Library.h"
#include "tools/References.h"

namespace Data_Compiler {

namespace {

struct Range {
  Long first;
  Long last;
};

/// The keys that delivered rows may have. Those of a photo's owners share one column, and cellar
/// and general wines share the table of marks. Keys are of 16 bits in many tables, and the user's
/// rows go on from the delivered ones.
template <class Record>
constexpr Range Keys_Allowed() {
  if constexpr (std::is_same_v<Record, Regions_Record>) return {1, 10000};
  if constexpr (std::is_same_v<Record, Wineries_Record>) return {10001, 20000};
  if constexpr (std::is_same_v<Record, Labels_Record>) return {20001, 32767};
  if constexpr (std::is_same_v<Record, Mobile_Wines_Record>) return {20001, 32767};
  // Nothing refers to these.
  if constexpr (std::is_same_v<Record, Maridages_Per_Mobile_Wines_Record> ||
                std::is_same_v<Record, Mobile_Wines_Per_Cheeses_Record>)
    return {1, 1'000'000};
  return {1, 25000};
}

template <class Record>
void Check_Counter(const Library& library, Problems& problems) {
  const Range allowed = Keys_Allowed<Record>();
  Long last = 0;
  for (const Record& row : library.Of<Record>()) {
    const Long key = Key_Of(row);
    if (key < allowed.first || key > allowed.last || key <= last) {
      problems.Report(library.Where(row), "key " + std::to_string(key) + " lies outside " +
                                              std::to_string(allowed.first) + " to " +
                                              std::to_string(allowed.last) + " or does not rise");
      return;  // all behind it would be told as well
    }
    last = key;
    if constexpr (requires { row.SERIAL_NUMBER; })
      if (!row.SERIAL_NUMBER.starts_with("SYS"))
        problems.Report(library.Where(row), "origin mark '" + row.SERIAL_NUMBER + "'");
  }
}

void Check_Counters(const Library& library, Problems& problems) {
  Tables::For_Each_Table([&]<class Record>(const Tables::Table<Record>& table) {
    for (const auto& field : table.Fields())
      if (field.Schema().counter) Check_Counter<Record>(library, problems);
  });
}

/// -1 as a key, in a number or in a text. A text that is neither is no key at all.
bool Is_None(const Text& value) { return value == "-1"; }
bool Is_None(Long value) { return value == -1; }

void Check_References(const Library& library, Problems& problems) {
  For_Each_Reference(
      [&]<class To, class From, class Value>(const Reference<To, From, Value>& reference) {
        for (const From& row : library.Of<From>()) {
          const Value& value = row.*reference.column;
          if (reference.may_be_none && Is_None(value)) continue;
          if (library.Find<To>(As_Key(value)) == nullptr)
            problems.Report(library.Where(row),
                            "its key into " + Description_Of<To>().Name() + " leads nowhere");
        }
      });
}

void Check_Countries(const Library& library, Problems& problems) {
  std::map<Text, int> known;
  for (const Countries_Record& country : library.Of<Countries_Record>())
    ++known[country.Short_Name];
  For_Each_Country_Column([&]<class From>(Text From::*column) {
    for (const From& row : library.Of<From>()) {
      const bool of_all = std::is_same_v<From, Mobile_Wines_Record> && row.*column == "ALL";
      if (!of_all && !known.contains(row.*column))
        problems.Report(library.Where(row), "its country '" + row.*column + "' is unknown");
    }
  });
}

void Check_Counts(const Library& library, Problems& problems) {
  For_Each_Counted_Table([&]<class Record>() {
    for (const auto& [key, count] : References_To<Record>(library)) {
      const Record* row = library.Find<Record>(key);
      if (row && row->Used < count)
        problems.Report(library.Where(*row), "Used is " + std::to_string(row->Used) + ", but " +
                                                 std::to_string(count) + " rows refer to it");
    }
  });
}

}  // namespace

void Check_Keys(const Library& library, Problems& problems) {
  Check_Counters(library, problems);
  Check_References(library, problems);
  Check_Countries(library, problems);
  Check_Counts(library, problems);
}

}  // namespace Data_Compiler
