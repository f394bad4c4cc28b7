// The memory records against the bare engine: the real table of wines, on the same encrypted file,
// in the same run, in turns. Prints the median of each pair and their ratio.
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "bench/Bare_Engine.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"

namespace {

constexpr Long wine_count = 32000;
constexpr int seeks = 20000;
constexpr int rounds = 9;
long sink = 0;

double Milliseconds(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
      .count();
}

double Median(std::vector<double> times) {
  std::ranges::nth_element(times, times.begin() + rounds / 2);
  return times[rounds / 2];
}

void Compare(const char* what, double target, const std::function<void()>& bare,
             const std::function<void()>& ours) {
  std::vector<double> bare_times, our_times;
  bare();
  ours();
  for (int i = 0; i < rounds; ++i) {
    bare_times.push_back(Milliseconds(bare));
    our_times.push_back(Milliseconds(ours));
  }
  const double ratio = Median(our_times) / Median(bare_times);
  std::printf("%-44s bare %8.3f ms  ours %8.3f ms  ratio %.2f (target %.2f) %s\n", what,
              Median(bare_times), Median(our_times), ratio, target,
              ratio <= target ? "ok" : "MISSED");
}

void Fill() {
  const auto file = Record_Store::Create_Database(
      Wine_Cellar_DB_Path, Connect_Text(Wine_Cellar_DB_Path), Tables::All_Schemas());
  auto rows = file->OpenRecordset("Wines");
  for (Long i = 0; i < wine_count; ++i) {
    Init_Wines_Record();
    Wines.Winery_ID = 10001 + i % 600;
    Wines.Label = "Appellation " + std::to_string(i % 120);
    Wines.Variety = "Cabernet Sauvignon, Merlot";
    Wines.Vintage = static_cast<Integer>(1980 + i % 40);
    Wines.Value_Guide = Currency::Of(i % 90);
    Wines.Alcohol = 13.5F;
    rows.AddNew();
    Wines_Description.Write(rows, Wines);
  }
  file->Commit();
}

/// The columns of a stepped row into the memory record, as by one who knows their order.
void Read_Bare(sqlite3_stmt* row) {
  int column = 0;
  for (const auto& field : Wines_Description.Fields()) {
    if (!field.Is_Stored()) continue;
    std::visit(
        [&](auto member) {
          auto& value = Wines.*member;
          using Value = std::remove_reference_t<decltype(value)>;
          if constexpr (std::is_same_v<Value, Text>)
            value.assign(reinterpret_cast<const char*>(sqlite3_column_text(row, column)),
                         static_cast<std::size_t>(sqlite3_column_bytes(row, column)));
          else if constexpr (std::is_same_v<Value, Single>)
            value = static_cast<Single>(sqlite3_column_double(row, column));
          else if constexpr (std::is_same_v<Value, Currency>)
            value.ten_thousandths = sqlite3_column_int64(row, column);
          else if constexpr (std::is_same_v<Value, Date>)
            value.seconds = sqlite3_column_int64(row, column);
          else
            value = static_cast<Value>(sqlite3_column_int(row, column));
        },
        field.Place());
    ++column;
  }
}

Long Key(int i) { return static_cast<Long>(i) * 7907 % wine_count + 1; }

void Run(const Bare_Engine& bare) {
  const auto all = bare.Prepare("SELECT * FROM Wines");
  Compare(
      "Read of 32000 wines, 20 fields", 1.5,
      [&] {
        while (sqlite3_step(all.get()) == SQLITE_ROW) {
          Read_Bare(all.get());
          sink += Wines.Wine_ID;
        }
        sqlite3_reset(all.get());
      },
      [] {
        Open_Table(Wines_Recordset, "Wines");
        for (; !Wines_Recordset.Eof(); Wines_Recordset.MoveNext()) {
          Read_Wines_Record();
          sink += Wines.Wine_ID;
        }
        Close_Table(Wines_Recordset);
      });
  const auto one = bare.Prepare("SELECT Winery_ID FROM Wines WHERE Wine_ID=?");
  Compare(
      "Open_Table, Index, Seek, Read, Close_Table", 2.2,
      [&] {
        for (int i = 0; i < seeks; ++i) {
          sqlite3_bind_int(one.get(), 1, Key(i));
          sqlite3_step(one.get());
          sink += sqlite3_column_int(one.get(), 0);
          sqlite3_reset(one.get());
        }
      },
      [] {
        for (int i = 0; i < seeks; ++i) {
          Open_Table(Wines_Recordset, "Wines");
          Wines_Recordset.Index("Wine_ID");
          Wines_Recordset.Seek("=", Key(i));
          Read_Wines_Record();
          sink += Wines.Winery_ID;
          Close_Table(Wines_Recordset);
        }
      });
}

}  // namespace

int main() {
  namespace fs = std::filesystem;
  Wine_Cellar_DB_Path =
      fs::temp_directory_path() / ("memory_records_" + std::to_string(getpid()) + ".mdb");
  Fill();
  {
    const Bare_Engine bare(Wine_Cellar_DB_Path, "vinebox31");
    bare.Execute("PRAGMA cache_size=-65536");
    bare.Execute("BEGIN");
    Open_Wine_Cellar_DB();
    Run(bare);
    bare.Execute("COMMIT");
    Wine_Cellar_DB.reset();
  }
  for (const char* rest : {"", "-journal"}) fs::remove(Wine_Cellar_DB_Path + rest);
  return sink == 42 ? 1 : 0;
}
