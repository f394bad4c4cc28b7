// The search for wines by pairings, and its screens, beside the bare engine and the bare toolkit in
// the same run: 30,000 wines with five pairings each.
//
//   pairing_search_bench             makes the cellar in a folder of its own, and measures
//   pairing_search_bench PART...     search, all (the search without its known faults), proceed,
//                                    picker: only these
//
// Each side has a file of its own, with the same rows: a side that writes would make the other one
// read its pages again. What a commit takes is the disk's affair and is told apart.
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <set>

#include "bench/Bare_Window.h"
#include "bench/Cellar_Program.h"
#include "bench/Large_Cellar.h"
#include "bench/Pairing_Picker.h"
#include "bench/Pairing_Selections.h"
#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "links/Link_Search.h"
#include "pairing/Pairing_Screens.h"
#include "search/Search_Screens.h"

namespace {

namespace fs = std::filesystem;

constexpr int rounds = 31;
constexpr double most_of_search = 1.5;
constexpr double most_of_proceed = 1.3;

bool all_met = true;
const char* Met(bool met) {
  all_met = all_met && met;
  return met ? "ok" : "MISSED";
}

using Times = std::vector<double>;

void Print_Ratio(const Selection& selection, const char* what, const Times& ours, const Times& bare,
                 double most = most_of_search) {
  const double ratio = Median(ours) / Median(bare);
  std::printf("%-18s %-24s bare %6.3f ms, ours %6.3f ms, ratio %.2f (at most %.2f) %s\n",
              selection.what.c_str(), what, Median(bare), Median(ours), ratio, most,
              Met(ratio <= most));
}

// ---- the search alone ----

enum class Uses { Counted, Not_Counted };

class Searching {
 public:
  explicit Searching(std::string file) : file_(std::move(file)), bare_(std::in_place, file_) {}

  void Run(const Selection& selection, Uses uses) {
    for (const Pairing& pairing : selection.pairings) Set_Used(pairing.key, uses);
    Side ours;
    Side bare;
    for (int round = 0; round < rounds; ++round) {
      Bare(selection, uses, bare);
      Ours(selection, ours);
    }
    Check_Found(selection);
    Print_Ratio(selection, uses == Uses::Counted ? "search, uses counted" : "search, reading alone",
                ours.search, bare.search);
    if (uses == Uses::Counted) {
      std::printf("%-18s %-24s bare %6.3f ms, ours %6.3f ms\n", "", "  and its commit",
                  Median(bare.commit), Median(ours.commit));
    }
  }

  /// The search that finds every wine, which counts no use.
  void Run_for_All(const Selection& selection) {
    for (const Pairing& pairing : selection.pairings) Set_Used(pairing.key, Uses::Not_Counted);
    Mend_Known_Faults();
    Side ours;
    Times bare;
    for (int round = 0; round < rounds; ++round) {
      bare.push_back(Milliseconds([&] {
        bare_->Begin(false);
        found_ = bare_->Search_All(selection.groups);
      }));
      bare_->Commit();
      Ours(selection, ours);
    }
    Mend_Known_Faults(false);
    Check_Found(selection);
    std::printf("%s: %d wines\n", selection.what.c_str(), Found_Count);
    Print_Ratio(selection, "search for all", ours.search, bare);
  }

  /// The first search after the start: each page is read from the file.
  void Run_Cold(const Selection& selection) {
    Side ours;
    Side bare;
    for (int round = 0; round < rounds; ++round) {
      bare_.emplace(file_);
      Bare(selection, Uses::Counted, bare);
      Cellar_Program::Open_File_Anew();
      Ours(selection, ours);
    }
    Print_Ratio(selection, "search, file just opened", ours.search, bare.search);
  }

 private:
  struct Side {
    Times search;
    Times commit;
  };

  // A counter below 0 is not counted on.
  static void Set_Used(int pairing, Uses uses) {
    Open_Table(Maridages_Recordset, "Maridages");
    Maridages_Recordset.Index("Maridage_ID");
    Maridages_Recordset.Seek("=", pairing);
    Maridages_Recordset.Edit();
    Maridages_Recordset.Fields("Used") = uses == Uses::Counted ? 0 : -1;
    Maridages_Recordset.Update();
    Close_Table(Maridages_Recordset);
    Wine_Cellar_DB->Commit();
  }

  void Bare(const Selection& selection, Uses uses, Side& side) {
    const bool counted = uses == Uses::Counted;
    side.search.push_back(Milliseconds([&] {
      bare_->Begin(counted);
      if (counted) bare_->Count_Uses(selection.pairings);
      found_ = bare_->Search(selection.groups);
    }));
    side.commit.push_back(Milliseconds([&] { bare_->Commit(); }));
  }

  static void Ours(const Selection& selection, Side& side) {
    Select(selection);
    side.search.push_back(Milliseconds(Search_Wines_for_Maridages));
    side.commit.push_back(Milliseconds([] { Wine_Cellar_DB->Commit(); }));
  }

  // Both sides are to have found the same, or the times say nothing.
  void Check_Found(const Selection& selection) const {
    std::set<int> seen;
    std::vector<int> different;
    for (const int wine : found_) {
      if (seen.insert(wine).second) different.push_back(wine);
    }
    for (std::size_t i = 0; i < different.size(); ++i) {
      if (Found_IDs[static_cast<int>(i) + 1] == To_Text(different[i])) continue;
      std::fprintf(stderr, "%s: another wine was found\n", selection.what.c_str());
      std::_Exit(1);
    }
  }

  std::string file_;
  std::optional<Bare_Pairings> bare_;
  std::vector<int> found_;
};

void Measure_Search(const std::string& file, const std::vector<Selection>& selections) {
  Searching searching(file);
  for (const Selection& selection : selections) {
    std::printf("%s: groups of %d rows, %d of them match\n", selection.what.c_str(),
                selection.Rows(), selection.Wines());
    searching.Run(selection, Uses::Not_Counted);
    searching.Run(selection, Uses::Counted);
    searching.Run_Cold(selection);
  }
}

void Measure_Search_for_All(const std::string& file, const std::vector<Pairing>& offered) {
  Searching searching(file);
  for (const int count : {3, 10, 100}) {
    Selection selection = Common(offered, count);
    Merge_Groups(selection);
    Wine_Cellar_DB->Commit();
    searching.Run_for_All(selection);
  }
}

// ---- from PROCEED to the painted results ----

/// Tells what the commits of the handlers take.
class Commit_Watch {
 public:
  Commit_Watch() : commit_(Hooks().commit) {
    Hooks().commit = [this] { milliseconds += Milliseconds(commit_); };
  }
  ~Commit_Watch() { Hooks().commit = commit_; }

  double milliseconds = 0;

 private:
  std::function<void()> commit_;
};

class Proceeding {
 public:
  Proceeding(const std::string& file, const Selection& selection)
      : bare_(file), selection_(selection) {}

  void Run() {
    Pairing_Picker::Open();
    for (const Pairing& pairing : selection_.pairings) Pairing_Picker::Add(pairing.text);
    Count_Rows_And_Controls();
    // Each begins a round as often as the others: what comes first finds the caches of another.
    for (int turn = 0; turn < 3 * rounds; ++turn) {
      if (turn % 3 == turn / 3 % 3) Ours();
      if ((turn + 1) % 3 == turn / 3 % 3) Bare_List();
      if ((turn + 2) % 3 == turn / 3 % 3) Bare_Controls();
    }
    Print();
    if (rows_ < 99) Run_Both_Ways();  // as many wines either way
    Pairing_Picker::Leave();
  }

 private:
  void Count_Rows_And_Controls() {
    Pairing_Picker::Proceed();
    Settle_Events();
    const QTreeView& list = Cellar_Program::Shown_List();
    rows_ = list.model()->rowCount();
    list_height_ = list.height();
    controls_ = Bare_Window::Controls_Of(*list.window());
    Cellar_Program::Leave_Screen();
  }

  // The list painted, and nothing of the window left to be laid out or painted.
  template <class Work>
  double Until_It_Stands(const char* list, const Work& work) const {
    return Until_Painted(list, rows_, work) + Milliseconds(Settle_Events);
  }

  void Bare_List() {
    list_.push_back(Bare([&](auto rows) { screen_.emplace(std::move(rows)); }));
  }

  void Bare_Controls() {
    window_.push_back(Bare([&](auto rows) {
      full_.emplace(controls_, std::move(rows), Bare_Cellar::list_name, list_height_);
    }));
  }

  // The screen's own search is the second one.
  template <class Show>
  double Bare(const Show& show) {
    double commit = 0;
    const double time = Until_It_Stands(Bare_Cellar::list_name, [&] {
      std::vector<int> found;
      bare_.Begin(true);
      for (int search = 0; search < 2; ++search) {
        bare_.Count_Uses(selection_.pairings);
        found = bare_.Search(selection_.groups);
      }
      show(Rows_Of(found));
      commit = Milliseconds([&] { bare_.Commit(); });
    });
    screen_.reset();
    full_.reset();
    Settle_Events();
    bare_commit_.push_back(commit);
    return time - commit;
  }

  std::unique_ptr<QAbstractItemModel> Rows_Of(std::vector<int> found) const {
    std::set<int> seen;
    std::erase_if(found, [&](int wine) { return !seen.insert(wine).second; });
    auto items = std::make_unique<QStandardItemModel>(0, Bare_Cellar::columns);
    bare_.Each_Wine(found, [&](const auto& row) { Bare_Cellar::Append(*items, row); });
    return items;
  }

  void Ours() {
    const Commit_Watch commit;
    double handler = 0;
    const double time = Until_It_Stands(Cellar_Program::list_name,
                                        [&] { handler = Milliseconds(Pairing_Picker::Proceed); });
    const double committing = commit.milliseconds;
    Cellar_Program::Leave_Screen();
    commit_.push_back(committing);
    handler_.push_back(handler - committing);
    ours_.push_back(time - committing);
    paint_.push_back(time - handler);
  }

  void Run_Both_Ways() {
    std::array<Times, 2> times;
    for (int turn = 0; turn < 2 * rounds; ++turn) {
      Mend_Known_Faults(turn % 2 == 1);
      Ours();
      times[turn % 2].push_back(ours_.back());
    }
    Mend_Known_Faults(false);
    const double ratio = Median(times[1]) / Median(times[0]);
    std::printf("%-18s %-24s designed %6.3f ms, mended %6.3f ms, ratio %.2f (at most 1.10) %s\n",
                "", "PROCEED to painted", Median(times[0]), Median(times[1]), ratio,
                Met(ratio <= 1.1));
  }

  void Print() {
    std::printf("%-18s %d rows on the screen, %d controls beside the list\n",
                selection_.what.c_str(), rows_, static_cast<int>(controls_.size()));
    Print_Ratio(selection_, "PROCEED to painted: list", ours_, list_, most_of_proceed);
    std::printf(
        "%-18s   beside the list among as many bare controls: bare %.3f ms, ratio %.2f\n"
        "%-18s   ours: handler %.2f ms, then to the end of the paint %.2f ms; commit ours %.2f ms, "
        "bare %.2f ms\n",
        "", Median(window_), Median(ours_) / Median(window_), "", Median(handler_), Median(paint_),
        Median(commit_), Median(bare_commit_));
  }

  Bare_Pairings bare_;
  const Selection& selection_;
  int rows_ = 0;
  int list_height_ = 0;
  Bare_Window::Makers controls_;
  std::optional<Bare_Cellar::Screen> screen_;
  std::optional<Bare_Window> full_;
  Times list_, window_, bare_commit_;
  Times ours_, handler_, paint_, commit_;
};

// There is a search in the cellar once the cellars have names.
void Name_Cellars() {
  Open_Wine_Cellar_DB();
  Open_Table(Cellars_Recordset, "Cellars");
  Cellars_Recordset.Edit();
  Cellars_Recordset.Fields("Cellar_Name") = "House";
  Cellars_Recordset.Update();
  Cellars_Recordset.AddNew();
  Cellars_Recordset.Fields("Cellar_Name") = "Office";
  Cellars_Recordset.Update();
  Close_Table(Cellars_Recordset);
  Wine_Cellar_DB->Commit();
  Wine_Cellar_DB.reset();
}

void Measure(const std::set<std::string>& parts, const std::string& folder) {
  const auto wanted = [&](const char* part) { return parts.empty() || parts.contains(part); };
  const std::string file = folder + "/bare.mdb";
  Name_Cellars();
  fs::copy_file(folder + "/dbase/Wine_Cellar.mdb", file);
  Register_Pairing_Screens();
  Register_Search_Screens();
  Cellar_Program::Start(folder);
  std::printf(
      "%d wines with %d pairings each, medians of %d rounds in turns, without the commits.\n"
      "Bare: a prepared statement for each group on the same index, one for each counter; from "
      "PROCEED on twice, as\nthe picker and the screen of the results each search, then the join "
      "for each wine found and a list of\nstandard items. Every time there ends when nothing is "
      "left to be laid out or painted.\n",
      Cellar_Size{}.wines, Cellar_Size{}.pairings, rounds);
  const std::vector<Pairing> offered = Bare_Pairings(file).Offered();
  std::vector<Selection> selections{Rare(offered, 1), Rare(offered, 3), Rare(offered, 10),
                                    Common(offered)};
  for (Selection& selection : selections) Merge_Groups(selection);
  Wine_Cellar_DB->Commit();
  if (wanted("search")) Measure_Search(file, selections);
  if (wanted("all")) Measure_Search_for_All(file, offered);
  if (wanted("proceed")) {
    for (const Selection& selection : selections) Proceeding(file, selection).Run();
  }
  if (wanted("picker")) Met(Pairing_Picker::Measure());
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("XDG_CONFIG_HOME", "/tmp/wine_cellar_bench_settings");  // never the user's
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREEN_FILE);
  // What the offscreen platform cannot do is told at every window.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const std::vector<std::string> words(argv + 1, argv + argc);
  setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  const Forms::Application application(argc, argv);
  const fs::path folder =
      fs::temp_directory_path() / ("pairing_search_bench_" + std::to_string(getpid()));
  Make_Large_Cellar(folder);
  Measure({words.begin(), words.end()}, folder);
  Wine_Cellar_DB.reset();
  fs::remove_all(folder);
  return all_met ? 0 : 1;
}
