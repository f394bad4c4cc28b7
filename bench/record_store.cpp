// The record store against the bare engine: on the same encrypted file, in the same run, in turns.
// Prints the median of each pair and their ratio. An argument (scan, seek, links, writes, opening)
// picks one part.
#include "platform/record_store/Record_Store.h"

#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "bench/Bare_Engine.h"
#include "tests/record_store/Watched_Disk.h"

using namespace Record_Store;

namespace {

constexpr int wine_count = 32000;
constexpr int region_count = 4000;
constexpr int links_per_wine = 4;
constexpr int rounds = 9;
const std::string password = "open9sesame";
const std::string connect = ";PWD=" + password;

using Clock = std::chrono::steady_clock;

double Milliseconds(const std::function<void()>& work) {
  const auto begin = Clock::now();
  work();
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

double Median(std::vector<double> values) {
  std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
  return values[values.size() / 2];
}

void Compare(
    const char* what, double target, const std::function<void()>& bare,
    const std::function<void()>& store, int times = rounds,
    const std::function<void()>& prepare = [] {}) {
  std::vector<double> bare_times;
  std::vector<double> store_times;
  bare();
  store();
  for (int i = 0; i < times; ++i) {
    prepare();
    bare_times.push_back(Milliseconds(bare));
    store_times.push_back(Milliseconds(store));
  }
  const double ratio = Median(store_times) / Median(bare_times);
  std::printf("%-56s bare %9.3f ms  store %9.3f ms  ratio %.2f (target %.2f) %s\n", what,
              Median(bare_times), Median(store_times), ratio, target,
              ratio <= target ? "ok" : "MISSED");
}

// ---- the tables: twenty fields of a wine, its links, and a table of look-ups ----

struct Region {
  Long Region_ID = 0;
  Text Region_Name, Country, Serial;
  Integer Used = 0, Description = 0, History = 0;
  Text Map;
  Long Group = 0, Sub_Group = 0, Sub_Region_Of = 0;
};

template <class Visit>
void Each_Field(Region& region, Visit visit) {
  visit("Region_ID", region.Region_ID);
  visit("Region_Name", region.Region_Name);
  visit("Country", region.Country);
  visit("Serial", region.Serial);
  visit("Used", region.Used);
  visit("Description", region.Description);
  visit("History", region.History);
  visit("Map", region.Map);
  visit("Group", region.Group);
  visit("Sub_Group", region.Sub_Group);
  visit("Sub_Region_Of", region.Sub_Region_Of);
}

struct Wine {
  Long Wine_ID = 0;
  Text Name, Country, Region, Label, Winery, Color, Notes, Serial;
  Integer Year = 0, Bottles = 0, Rating = 0;
  Long Region_ID = 0, Label_ID = 0, Winery_ID = 0;
  Single Alcohol = 0;
  Currency Price;
  Date Bought;
  bool Sparkling = false, Finished = false;
};

template <class Visit>
void Each_Field(Wine& wine, Visit visit) {
  visit("Wine_ID", wine.Wine_ID);
  visit("Name", wine.Name);
  visit("Country", wine.Country);
  visit("Region", wine.Region);
  visit("Label", wine.Label);
  visit("Winery", wine.Winery);
  visit("Color", wine.Color);
  visit("Notes", wine.Notes);
  visit("Serial", wine.Serial);
  visit("Year", wine.Year);
  visit("Bottles", wine.Bottles);
  visit("Rating", wine.Rating);
  visit("Region_ID", wine.Region_ID);
  visit("Label_ID", wine.Label_ID);
  visit("Winery_ID", wine.Winery_ID);
  visit("Alcohol", wine.Alcohol);
  visit("Price", wine.Price);
  visit("Bought", wine.Bought);
  visit("Sparkling", wine.Sparkling);
  visit("Finished", wine.Finished);
}

Field_Type Type_Of(const Text&) { return Field_Type::Text; }
Field_Type Type_Of(const Long&) { return Field_Type::Long; }
Field_Type Type_Of(const Integer&) { return Field_Type::Integer; }
Field_Type Type_Of(const Single&) { return Field_Type::Single; }
Field_Type Type_Of(const Currency&) { return Field_Type::Currency; }
Field_Type Type_Of(const Date&) { return Field_Type::Date; }
Field_Type Type_Of(const bool&) { return Field_Type::Boolean; }

template <class Record>
Table_Schema Table_Of(std::string name, std::vector<Index_Schema> indexes) {
  Table_Schema table{.name = std::move(name), .fields = {}, .indexes = std::move(indexes)};
  Record record;
  Each_Field(record, [&](const char* field, auto& member) {
    table.fields.push_back({.name = field, .type = Type_Of(member)});
  });
  table.fields.front().counter = true;
  return table;
}

std::vector<Table_Schema> Tables() {
  return {
      Table_Of<Wine>("Wines", {{.name = "Wine_ID", .fields = {"Wine_ID"}, .unique = true},
                               {.name = "Name", .fields = {"Name"}}}),
      Table_Of<Region>("Regions", {{.name = "Region_ID", .fields = {"Region_ID"}, .unique = true},
                                   {.name = "Region_Name", .fields = {"Region_Name"}}}),
      {.name = "Links",
       .fields = {{.name = "Link_ID", .type = Field_Type::Long, .counter = true},
                  {.name = "Wine_ID", .type = Field_Type::Long},
                  {.name = "Group", .type = Field_Type::Long},
                  {.name = "Mask", .type = Field_Type::Long}},
       .indexes = {{.name = "Wine_ID", .fields = {"Wine_ID"}}}}};
}

std::string Some_Name(int i, int count) {
  static const std::array<const char*, 4> words{"Château Bellevue", "Finca del Rio",
                                                "Weingut Keller", "Cantina Rossi"};
  return std::string(words[static_cast<std::size_t>(i) % words.size()]) + " " +
         std::to_string((i * 7919) % count);
}

Wine Made_Wine(int i) {
  Wine wine;
  wine.Name = Some_Name(i, wine_count);
  wine.Country = "FRA";
  wine.Region = "Bordeaux and around";
  wine.Label = "Appellation " + std::to_string(i % 120);
  wine.Winery = "Winery " + std::to_string(i % 600);
  wine.Color = "Red";
  wine.Notes = "x";
  wine.Serial = "CUS10001-" + std::to_string(i);
  wine.Year = static_cast<Integer>(1980 + i % 40);
  wine.Bottles = 6;
  wine.Region_ID = i % 40;
  wine.Label_ID = 20001 + i % 120;
  wine.Winery_ID = 10001 + i % 600;
  wine.Alcohol = 13.5F;
  wine.Price = Currency::Of(i % 90);
  wine.Bought = Date::Of(2020, 1 + i % 12, 1);
  wine.Sparkling = i % 9 == 0;
  return wine;
}

Region Made_Region(int i) {
  Region region;
  region.Region_Name = Some_Name(i, region_count);
  region.Country = "ITA";
  region.Serial = "SYS-" + std::to_string(i);
  region.Map = "x";
  region.Group = i / 10 * 10;
  region.Sub_Group = i % 10;
  region.Sub_Region_Of = -1;
  return region;
}

// A Write routine: all but the key.
template <class Record>
void Write(Recordset& rows, Record& record) {
  bool key = true;
  Each_Field(record, [&](const char* name, auto& member) {
    if (!key) rows[name] = member;
    key = false;
  });
}

template <class Record>
void Add(Recordset& rows, Record record) {
  rows.AddNew();
  Write(rows, record);
  rows.Update();
}

void Fill(const std::string& path) {
  const auto database = Create_Database(path, connect, Tables());
  Recordset wines = database->OpenRecordset("Wines");
  Recordset links = database->OpenRecordset("Links");
  for (int i = 0; i < wine_count; ++i) {
    Add(wines, Made_Wine(i));
  }
  Recordset regions = database->OpenRecordset("Regions");
  for (int i = 0; i < region_count; ++i) Add(regions, Made_Region(i));
  for (int i = 0; i < wine_count * links_per_wine; ++i) {
    links.AddNew();
    links["Wine_ID"] = i % wine_count + 1;
    links["Group"] = i % 40 * 10;
    links["Mask"] = 3;
    links.Update();
  }
  database->Commit();
}

// A Read routine: names are bound once for all recordsets on the table, then ordinals are used.
template <class Record>
void Read(const Recordset& rows, Record& record) {
  static std::uint64_t layout = 0;
  static std::vector<int> ordinals;
  if (layout != rows.Layout_Number()) {
    layout = rows.Layout_Number();
    ordinals.clear();
    Each_Field(record, [&](const char* name, auto&) { ordinals.push_back(rows.Ordinal(name)); });
  }
  std::size_t i = 0;
  Each_Field(record,
             [&](const char*, auto& member) { rows.Fields(ordinals[i++]).Read_Into(member); });
}

template <class Record>
void Read_By_Names(const Recordset& rows, Record& record) {
  Each_Field(record, [&](const char* name, auto& member) { rows.Fields(name).Read_Into(member); });
}

// What somebody would write who has nothing but the engine.
void Read_Column(sqlite3_stmt* row, int column, Text& to) {
  to.assign(reinterpret_cast<const char*>(sqlite3_column_text(row, column)),
            static_cast<std::size_t>(sqlite3_column_bytes(row, column)));
}
void Read_Column(sqlite3_stmt* row, int column, Long& to) { to = sqlite3_column_int(row, column); }
void Read_Column(sqlite3_stmt* row, int column, Integer& to) {
  to = static_cast<Integer>(sqlite3_column_int(row, column));
}
void Read_Column(sqlite3_stmt* row, int column, Single& to) {
  to = static_cast<Single>(sqlite3_column_double(row, column));
}
void Read_Column(sqlite3_stmt* row, int column, Currency& to) {
  to.ten_thousandths = sqlite3_column_int64(row, column);
}
void Read_Column(sqlite3_stmt* row, int column, Date& to) {
  to.seconds = sqlite3_column_int64(row, column);
}
void Read_Column(sqlite3_stmt* row, int column, bool& to) {
  to = sqlite3_column_int(row, column) != 0;
}

template <class Record>
void Read_Bare(sqlite3_stmt* row, Record& record) {
  int column = 0;
  Each_Field(record, [&](const char*, auto& member) { Read_Column(row, column++, member); });
}

long sink = 0;

// ---- what is measured ----

void Bench_Scan(Bare_Engine& bare, Database& database) {
  Wine wine;
  const auto bare_scan = [&] {
    const auto statement = bare.Prepare("SELECT * FROM Wines");
    while (sqlite3_step(statement.get()) == SQLITE_ROW) {
      Read_Bare(statement.get(), wine);
      sink += wine.Wine_ID;
    }
  };
  const auto scan_by = [&](auto read) {
    return [&wine, &database, read] {
      Recordset wines = database.OpenRecordset("Wines");
      for (; !wines.Eof(); wines.MoveNext()) {
        read(wines, wine);
        sink += wine.Wine_ID;
      }
      wines.Close();
    };
  };
  Compare("scan of 32000 rows, 20 fields, names bound once", 1.5, bare_scan, scan_by(Read<Wine>));
  Compare("scan of 32000 rows, 20 fields, by name each time", 1.5, bare_scan,
          scan_by(Read_By_Names<Wine>));
}

// Look-ups in one handler: `asked` are the row numbers, from 1, in the order of asking.
struct Look_Ups {
  const char* what;
  const char* table;
  const char* index;
  bool by_name;
  int rows;
  std::vector<int> asked;
  bool whole_row = false;  // the engine reads all columns too
};

// Each of `rows` once, in any order; or some of them again and again, `times` look-ups in all.
std::vector<int> Asked(int rows, int times) {
  std::vector<int> asked;
  for (int i = 0; i < times; ++i) asked.push_back(i % rows + 1);
  std::mt19937 chance(11);
  std::ranges::shuffle(asked, chance);
  return asked;
}

// The engine reads one column, unless told otherwise, the store what `read` reads.
template <class Record>
void Bench_Look_Ups(const Bare_Engine& bare, Database& database, const Look_Ups& look_ups,
                    bool first_time, void (*read)(const Recordset&, Record&)) {
  const auto statement = bare.Prepare(
      (std::string("SELECT Country FROM ") + look_ups.table + " WHERE " + look_ups.index + "=?")
          .c_str());
  std::vector<std::string> names;
  for (const int number : look_ups.asked) names.push_back(Some_Name(number - 1, look_ups.rows));
  const auto bare_seeks = [&] {
    Record record;
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (look_ups.by_name) {
        sqlite3_bind_text(statement.get(), 1, names[i].data(), static_cast<int>(names[i].size()),
                          SQLITE_STATIC);
      } else {
        sqlite3_bind_int(statement.get(), 1, look_ups.asked[i]);
      }
      if (sqlite3_step(statement.get()) != SQLITE_ROW) std::abort();
      if (look_ups.whole_row) {
        Read_Bare(statement.get(), record);
      } else {
        Read_Column(statement.get(), 0, record.Country);
      }
      sink += static_cast<long>(record.Country.size());
      sqlite3_reset(statement.get());
    }
  };
  const auto store_seeks = [&] {
    database.Commit();  // a handler begins
    Record record;
    Recordset rows;
    for (std::size_t i = 0; i < names.size(); ++i) {
      rows = database.OpenRecordset(look_ups.table);
      rows.Index(look_ups.index);
      if (look_ups.by_name) {
        rows.Seek("=", names[i]);
      } else {
        rows.Seek("=", look_ups.asked[i]);
      }
      read(rows, record);
      sink += static_cast<long>(record.Country.size());
      rows.Close();
    }
  };
  // What the store remembers of a table goes with a write to it.
  const auto forget = [&] {
    if (!first_time) return;
    bare.Execute("COMMIT");
    Recordset rows = database.OpenRecordset(look_ups.table);
    rows.Edit();
    rows["Country"] = "FRA";
    rows.Update();
    database.Commit();
    bare.Execute("BEGIN");
    bare_seeks();  // the change emptied the engine's own cache
  };
  Compare(look_ups.what, 2.2, bare_seeks, store_seeks, 2 * rounds + 1, forget);
}

template <class Record>
void Read_Country(const Recordset& rows, Record& record) {
  rows["Country"].Read_Into(record.Country);
}

void Bench_Seeks(const Bare_Engine& bare, Database& database) {
  const auto run = [&]<class Record>(void (*read)(const Recordset&, Record&), bool first_time,
                                     const Look_Ups& look_ups) {
    Bench_Look_Ups<Record>(bare, database, look_ups, first_time, read);
  };
  const std::vector<int> some = Asked(300, 20000);
  const std::vector<int> all = Asked(region_count, region_count);
  const std::vector<int> wines = Asked(wine_count, 20000);
  run(Read<Region>, false,
      {"look-ups of a list, 300 rows, 11 fields: number", "Regions", "Region_ID", false,
       region_count, some});
  run(Read<Region>, false,
      {"look-ups of a list, 300 rows, 11 fields: text", "Regions", "Region_Name", true,
       region_count, some});
  run(Read_Country<Region>, true,
      {"first look-up of 4000 rows, 1 field: number", "Regions", "Region_ID", false, region_count,
       all});
  run(Read_Country<Region>, true,
      {"first look-up of 4000 rows, 1 field: text", "Regions", "Region_Name", true, region_count,
       all});
  run(Read<Region>, true,
      {"first look-up of 4000 rows, 11 fields: number", "Regions", "Region_ID", false, region_count,
       all});
  run(Read<Region>, true,
      {"  the same, the engine reads 11 columns: number", "Regions", "Region_ID", false,
       region_count, all, true});
  run(Read<Region>, true,
      {"first look-up of 4000 rows, 11 fields: text", "Regions", "Region_Name", true, region_count,
       all});
  run(Read<Wine>, true,
      {"first look-up of 20000 rows, 20 fields: number", "Wines", "Wine_ID", false, wine_count,
       wines});
  run(Read<Wine>, true,
      {"  the same, the engine reads 20 columns: number", "Wines", "Wine_ID", false, wine_count,
       wines, true});
  run(Read<Wine>, true,
      {"first look-up of 20000 rows, 20 fields: text", "Wines", "Name", true, wine_count, wines});
}

void Bench_Links(Bare_Engine& bare, Database& database) {
  constexpr int walks = 8000;
  const auto join = bare.Prepare("SELECT \"Group\", Mask FROM Links WHERE Wine_ID=?");
  const auto bare_walk = [&] {
    for (int i = 0; i < walks; ++i) {
      sqlite3_bind_int(join.get(), 1, (i * 7907) % wine_count + 1);
      while (sqlite3_step(join.get()) == SQLITE_ROW) {
        sink += sqlite3_column_int(join.get(), 0) + sqlite3_column_int(join.get(), 1);
      }
      sqlite3_reset(join.get());
    }
  };
  const auto store_walk = [&] {
    for (int i = 0; i < walks; ++i) {
      const Long wine = (i * 7907) % wine_count + 1;
      Recordset links = database.OpenRecordset("Links");
      links.Index("Wine_ID");
      links.Seek("=", wine);
      while (!links.NoMatch() && !links.Eof() && links["Wine_ID"].As_Long() == wine) {
        sink += links["Group"].As_Long() + links["Mask"].As_Long();
        links.MoveNext();
      }
      links.Close();
    }
  };
  Compare("seek and walk of the equal keys of a link table", 4, bare_walk, store_walk);
}

void Bench_Writes(Database& database) {
  std::vector<double> times;
  int syncs = 0;
  for (int round = 0; round < rounds; ++round) {
    database.Commit();
    Watched_Disk::Count_From_Zero();
    times.push_back(Milliseconds([&] {
      for (int i = 0; i < 20; ++i) {
        Recordset rows = database.OpenRecordset(i == 0 ? "Wines" : "Links");
        if (i == 0) {
          Add(rows, Made_Wine(round));
        } else {
          rows.AddNew();
          rows["Wine_ID"] = 1;
          rows.Update();
        }
        rows.Close();
      }
      database.Commit();
    }));
    syncs = std::max(syncs, Watched_Disk::Syncs());
  }
  std::printf("%-56s %.3f ms, at most %d syncs (target 4) %s\n", "twenty row writes of one burst",
              Median(times), syncs, syncs <= 4 ? "ok" : "MISSED");
}

void Bench_Opening(const std::string& path) {
  Compare(
      "opening against the engine's opening and key", 1.1,
      [&] {
        const Bare_Engine bare(path, password);
        const auto statement = bare.Prepare("SELECT count(*) FROM sqlite_master");
        sqlite3_step(statement.get());
      },
      [&] { OpenDatabase(path, false, false, connect); }, 15);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view only = argc > 1 ? argv[1] : "";
  const auto wanted = [&](std::string_view part) { return only.empty() || only == part; };
  const std::string path = std::filesystem::temp_directory_path() /
                           ("record_store_bench_" + std::to_string(getpid()) + ".mdb");
  Fill(path);
  Watched_Disk::Install();
  {
    Bare_Engine bare(path, password);
    bare.Execute("PRAGMA cache_size=-65536");
    bare.Execute("BEGIN");
    const auto database = OpenDatabase(path, false, false, connect);
    if (wanted("scan")) Bench_Scan(bare, *database);
    if (wanted("seek")) Bench_Seeks(bare, *database);
    if (wanted("links")) Bench_Links(bare, *database);
    bare.Execute("COMMIT");
    if (wanted("writes")) Bench_Writes(*database);
  }
  if (wanted("opening")) Bench_Opening(path);
  if (!wanted("keep")) std::filesystem::remove(path);
  std::filesystem::remove(path + "-journal");
  return sink == 42 ? 1 : 0;
}
