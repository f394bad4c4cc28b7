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
#include <cstring>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "bench/Bare_Engine.h"
#include "tests/record_store/Watched_Disk.h"

using namespace Record_Store;

namespace {

constexpr int wine_count = 32000;
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

void Compare(const char* what, double target, const std::function<void()>& bare,
             const std::function<void()>& store, int times = rounds) {
  std::vector<double> bare_times;
  std::vector<double> store_times;
  bare();
  store();
  for (int i = 0; i < times; ++i) {
    bare_times.push_back(Milliseconds(bare));
    store_times.push_back(Milliseconds(store));
  }
  const double ratio = Median(store_times) / Median(bare_times);
  std::printf("%-52s bare %9.3f ms  store %9.3f ms  ratio %.2f (target %.2f) %s\n", what,
              Median(bare_times), Median(store_times), ratio, target,
              ratio <= target ? "ok" : "MISSED");
}

// ---- the tables: twenty fields of a wine, and its links ----

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

std::vector<Table_Schema> Tables() {
  Table_Schema wines{.name = "Wines",
                     .fields = {},
                     .indexes = {{.name = "Wine_ID", .fields = {"Wine_ID"}, .unique = true},
                                 {.name = "Name", .fields = {"Name"}}}};
  Wine wine;
  Each_Field(wine, [&](const char* name, auto& member) {
    wines.fields.push_back({.name = name, .type = Type_Of(member)});
  });
  wines.fields.front().counter = true;
  Table_Schema links{.name = "Links",
                     .fields = {{.name = "Link_ID", .type = Field_Type::Long, .counter = true},
                                {.name = "Wine_ID", .type = Field_Type::Long},
                                {.name = "Group", .type = Field_Type::Long},
                                {.name = "Mask", .type = Field_Type::Long}},
                     .indexes = {{.name = "Wine_ID", .fields = {"Wine_ID"}}}};
  return {wines, links};
}

std::string Wine_Name(int i) {
  static const std::array<const char*, 4> words{"Château Bellevue", "Finca del Rio",
                                                "Weingut Keller", "Cantina Rossi"};
  return std::string(words[static_cast<std::size_t>(i) % words.size()]) + " " +
         std::to_string((i * 7919) % wine_count);
}

Wine Made_Wine(int i) {
  Wine wine;
  wine.Name = Wine_Name(i);
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

void Write_Wine(Recordset& wines, Wine& wine) {
  Each_Field(wine, [&](const char* name, auto& member) {
    if (std::strcmp(name, "Wine_ID") != 0) wines[name] = member;
  });
}

void Fill(const std::string& path) {
  const auto database = Create_Database(path, connect, Tables());
  Recordset wines = database->OpenRecordset("Wines");
  Recordset links = database->OpenRecordset("Links");
  for (int i = 0; i < wine_count; ++i) {
    Wine wine = Made_Wine(i);
    wines.AddNew();
    Write_Wine(wines, wine);
    wines.Update();
  }
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
void Read_Wine(const Recordset& rows, Wine& wine) {
  static std::uint64_t layout = 0;
  static std::vector<int> ordinals;
  if (layout != rows.Layout()) {
    layout = rows.Layout();
    ordinals.clear();
    Each_Field(wine, [&](const char* name, auto&) { ordinals.push_back(rows.Ordinal(name)); });
  }
  std::size_t i = 0;
  Each_Field(wine,
             [&](const char*, auto& member) { rows.Fields(ordinals[i++]).Read_Into(member); });
}

void Read_Wine_By_Names(const Recordset& rows, Wine& wine) {
  Each_Field(wine, [&](const char* name, auto& member) { rows.Fields(name).Read_Into(member); });
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

void Read_Bare(sqlite3_stmt* row, Wine& wine) {
  int column = 0;
  Each_Field(wine, [&](const char*, auto& member) { Read_Column(row, column++, member); });
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
  Compare("scan of 32000 rows, 20 fields, names bound once", 1.5, bare_scan, scan_by(Read_Wine));
  Compare("scan of 32000 rows, 20 fields, by name each time", 1.5, bare_scan,
          scan_by(Read_Wine_By_Names));
}

void Bench_Seeks(Bare_Engine& bare, Database& database) {
  constexpr int seeks = 20000;
  const auto key = [](int i) { return (i * 7907) % wine_count; };
  std::vector<std::string> names;
  for (int i = 0; i < seeks; ++i) names.push_back(Wine_Name(key(i)));

  const auto by_number = bare.Prepare("SELECT Name FROM Wines WHERE Wine_ID=?");
  const auto by_name = bare.Prepare("SELECT Wine_ID FROM Wines WHERE Name=?");
  Text name;
  Wine wine;
  const auto bare_number = [&] {
    for (int i = 0; i < seeks; ++i) {
      sqlite3_bind_int(by_number.get(), 1, key(i) + 1);
      sqlite3_step(by_number.get());
      Read_Column(by_number.get(), 0, name);
      sink += static_cast<long>(name.size());
      sqlite3_reset(by_number.get());
    }
  };
  const auto bare_name = [&] {
    for (int i = 0; i < seeks; ++i) {
      const std::string& sought = names[static_cast<std::size_t>(i)];
      sqlite3_bind_text(by_name.get(), 1, sought.data(), static_cast<int>(sought.size()),
                        SQLITE_STATIC);
      sqlite3_step(by_name.get());
      sink += sqlite3_column_int(by_name.get(), 0);
      sqlite3_reset(by_name.get());
    }
  };
  const auto look_up = [&](const char* index, auto sought, auto read) {
    return [&, index, sought, read] {
      Recordset wines;
      for (int i = 0; i < seeks; ++i) {
        wines = database.OpenRecordset("Wines");
        wines.Index(index);
        wines.Seek("=", sought(i));
        read(wines);
        sink += wine.Wine_ID;
        wines.Close();
      }
    };
  };
  const auto number_of = [&](int i) { return key(i) + 1; };
  const auto name_of = [&](int i) { return std::string_view(names[static_cast<std::size_t>(i)]); };
  const auto whole = [&](const Recordset& wines) { Read_Wine(wines, wine); };
  const auto one_name = [&](const Recordset& wines) { wines["Name"].Read_Into(wine.Name); };
  const auto one_number = [&](const Recordset& wines) { wines["Wine_ID"].Read_Into(wine.Wine_ID); };
  Compare("open, index, seek, one field, close: number key", 2.2, bare_number,
          look_up("Wine_ID", number_of, one_name));
  Compare("open, index, seek, all 20 fields, close: number key", 2.2, bare_number,
          look_up("Wine_ID", number_of, whole));
  Compare("open, index, seek, one field, close: text key", 2.2, bare_name,
          look_up("Name", name_of, one_number));
  Compare("open, index, seek, all 20 fields, close: text key", 2.2, bare_name,
          look_up("Name", name_of, whole));
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
        rows.AddNew();
        if (i == 0) {
          Wine wine = Made_Wine(round);
          Write_Wine(rows, wine);
        } else {
          rows["Wine_ID"] = 1;
        }
        rows.Update();
        rows.Close();
      }
      database.Commit();
    }));
    syncs = std::max(syncs, Watched_Disk::Syncs());
  }
  std::printf("%-52s %.3f ms, at most %d syncs (target 4) %s\n", "twenty row writes of one burst",
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
