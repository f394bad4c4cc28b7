// The search by pairings without the program: one prepared statement for each of the groups, on the
// same index, and one for each counter of a pairing. Beside it: what to search for.
#pragma once

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "bench/Bare_Cellar.h"
#include "bench/Bare_Engine.h"

struct Pairing {
  int key;
  std::string text;
  int group;
  int mask;
  int wines = 0;  ///< how many have it
  int rows = 0;   ///< link rows of its group
};

/// Link rows of one group that have a subgroup of the mask.
struct Group {
  int key;
  int mask;
};

class Bare_Pairings {
 public:
  static constexpr const char* password = "vinebox31";

  explicit Bare_Pairings(const std::string& file) : engine_(file, password) {
    engine_.Execute(
        "PRAGMA journal_mode=TRUNCATE; PRAGMA synchronous=FULL; PRAGMA cache_size=-65536; "
        "PRAGMA temp_store=MEMORY; SELECT count(*) FROM Cellars");
    rows_ = engine_.Prepare(
        "SELECT \"GROUP\", SUBCATEGO, Wine_ID FROM Maridages_Per_Wines "
        "INDEXED BY \"Maridages_Per_Wines.GROUP\" WHERE \"GROUP\"=? ORDER BY rowid");
    count_ = engine_.Prepare("UPDATE Maridages SET Used=Used+1 WHERE Maridage_ID=?");
    there_ = engine_.Prepare("SELECT 1 FROM Wines WHERE Wine_ID=?");
    wine_ = engine_.Prepare((std::string(Bare_Cellar::question) + " WHERE Wine_ID=?").c_str());
  }

  void Begin(bool writing) const { engine_.Execute(writing ? "BEGIN IMMEDIATE" : "BEGIN"); }
  void Commit() const { engine_.Execute("COMMIT"); }

  void Count_Uses(const std::vector<Pairing>& pairings) const {
    for (const Pairing& pairing : pairings) {
      sqlite3_bind_int(count_.get(), 1, pairing.key);
      sqlite3_step(count_.get());
      sqlite3_reset(count_.get());
    }
  }
  /// The wines in the order of the rows, doubles among them; ends before the hundredth.
  std::vector<int> Search(const std::vector<Group>& groups) const {
    std::vector<int> found;
    for (const Group& group : groups) {
      if (!Search(group, found, 99)) break;
    }
    return found;
  }
  /// Every wine that is there, once, by its key.
  std::vector<int> Search_All(const std::vector<Group>& groups) const {
    std::vector<int> found;
    for (const Group& group : groups) Search(group, found, std::numeric_limits<std::size_t>::max());
    std::ranges::sort(found);
    found.erase(std::unique(found.begin(), found.end()), found.end());
    std::erase_if(found, [this](int wine) {
      sqlite3_bind_int(there_.get(), 1, wine);
      const bool there = sqlite3_step(there_.get()) == SQLITE_ROW;
      sqlite3_reset(there_.get());
      return !there;
    });
    return found;
  }
  template <class Visit>
  void Each_Wine(const std::vector<int>& wines, const Visit& visit) const {
    for (const int wine : wines) {
      sqlite3_bind_int(wine_.get(), 1, wine);
      Bare_Cellar::Each_Row(wine_.get(), visit);
      sqlite3_reset(wine_.get());
    }
  }

  /// What the picker offers, with how many wines and rows stand behind it.
  std::vector<Pairing> Offered() const;

 private:
  bool Search(const Group& group, std::vector<int>& found, std::size_t most) const {
    sqlite3_stmt* rows = rows_.get();
    bool room = true;
    for (sqlite3_bind_int(rows, 1, group.key * 10); room && sqlite3_step(rows) == SQLITE_ROW;) {
      if (sqlite3_column_int(rows, 0) != group.key * 10) break;
      if (!Meet(sqlite3_column_int(rows, 1), group.mask)) continue;
      room = found.size() < most;
      if (room) found.push_back(sqlite3_column_int(rows, 2));
    }
    sqlite3_reset(rows);
    return room;
  }
  static bool Meet(int one, int other) {
    for (; one > 0 && other > 0; one /= 10, other /= 10) {
      if (one % 10 == 1 && other % 10 == 1) return true;
    }
    return false;
  }

  Bare_Engine engine_;
  Bare_Engine::Statement rows_;
  Bare_Engine::Statement count_;
  Bare_Engine::Statement there_;
  Bare_Engine::Statement wine_;
};

inline std::vector<Pairing> Bare_Pairings::Offered() const {
  std::vector<Pairing> list;
  const auto pairings = engine_.Prepare(
      "SELECT Maridage_ID, English, Maridage_Group, Maridage_SubGr FROM Maridages "
      "WHERE Multiuse BETWEEN 2 AND 3");
  while (sqlite3_step(pairings.get()) == SQLITE_ROW) {
    int mask = 1;
    for (int i = 1; i < sqlite3_column_int(pairings.get(), 3); ++i) mask *= 10;
    list.push_back({sqlite3_column_int(pairings.get(), 0),
                    reinterpret_cast<const char*>(sqlite3_column_text(pairings.get(), 1)),
                    sqlite3_column_int(pairings.get(), 2), mask});
  }
  const auto rows = engine_.Prepare("SELECT \"GROUP\", SUBCATEGO FROM Maridages_Per_Wines");
  while (sqlite3_step(rows.get()) == SQLITE_ROW) {
    for (Pairing& pairing : list) {
      if (pairing.group * 10 != sqlite3_column_int(rows.get(), 0)) continue;
      ++pairing.rows;
      pairing.wines += Meet(sqlite3_column_int(rows.get(), 1), pairing.mask) ? 1 : 0;
    }
  }
  return list;
}
