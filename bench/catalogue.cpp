// The catalogues of places on the delivered library, beside the bare engine and the bare toolkit in
// the same run.
//
//   catalogue_bench             measures on a copy of the delivered file
//   catalogue_bench PART...     opening, clicks, keys, paging, writes: only these
#include <unistd.h>

#include <QKeyEvent>
#include <filesystem>
#include <optional>
#include <set>

#include "bench/Bare_Lists.h"
#include "bench/Cellar_Program.h"
#include "catalogue/Catalogue_Screens.h"
#include "platform/forms/Forms.h"
#include "tests/record_store/Watched_Disk.h"

namespace {

namespace fs = std::filesystem;
using Cellar_Program::Choose_Entry;
using Cellar_Program::Found;
using Times = std::vector<double>;

constexpr int rounds = 15;
constexpr const char* password = "vinebox31";
constexpr const char* regions_list = "Regions_ListView";
constexpr const char* wineries_list = "Wineries_ListView";

bool all_met = true;
const char* Met(bool met) {
  all_met = all_met && met;
  return met ? "ok" : "MISSED";
}

void Print(const char* what, const Times& bare, const Times& ours, double most) {
  const double ratio = Median(ours) / Median(bare);
  std::printf("%-46s bare %6.2f ms, ours %6.2f ms, ratio %.2f (at most %.2f) %s\n", what,
              Median(bare), Median(ours), ratio, most, Met(ratio <= most));
}

QTreeView& List(const char* name) { return Found<QTreeView>(name); }

// The list painted, and nothing of the window left to be laid out or painted.
template <class Work>
double Until_It_Stands(const char* list, int rows, const Work& work) {
  return Until_Painted(list, rows, work) + Milliseconds(Settle_Events);
}

// ---- from the menu entry to the painted screen ----

struct Opening {
  const char* entry;
  const char* list;  ///< "" where the screen has none: its window is waited for
  std::vector<std::string> statements;
  const char* write = nullptr;  ///< what the opening stores, durably
};

const std::string all_regions =
    "SELECT Region_Name, Long_Name, Region_ID, '', '', '', '', '', '', '' FROM Regions r JOIN "
    "World_Contries c ON c.Short_Name=r.Country ORDER BY Region_ID";
const std::string all_varieties =
    "SELECT Variety_Name, Variety_Color, Variety_ID, '', '', '', '', '', '', '' FROM Varieties";
const std::string all_countries =
    "SELECT Long_Name, Short_Name, '', '', '', '', '', '', '', '' FROM World_Contries ORDER BY "
    "Long_Name";
const std::string nothing = "SELECT 1 WHERE 0";

const std::vector<Opening> openings{
    {"Regions_List", regions_list, {all_regions, nothing, nothing}},
    {"Winery_List",
     wineries_list,
     {"SELECT Winery_Name, Long_Name, w.Region, Winery_ID, '', '', '', '', '', '' FROM Wineries w "
      "JOIN World_Contries c ON c.Short_Name=w.Country ORDER BY Winery_ID",
      nothing}},
    {"Region_Mod_Var", regions_list, {all_regions, all_varieties, nothing}},
    {"Labels_Add",
     "",
     {all_countries},
     "INSERT INTO Labels (Label_ID, Label_Name) VALUES ((SELECT max(Label_ID)+1 FROM Labels), "
     "'x')"}};

void Open(const Opening& opening) { Choose_Entry(opening.entry); }

void Measure_Opening(const Opening& opening, const Bare_Engine& engine) {
  Open(opening);
  Settle_Events();
  const bool listed = *opening.list != 0;
  const QWidget& screen =
      listed ? *List(opening.list).window() : *Found<QLineEdit>("Name_Text").window();
  const int rows = listed ? List(opening.list).model()->rowCount() : 0;
  const Bare_Window::Makers controls = Bare_Window::Controls_Of(screen);
  Cellar_Program::Leave_Screen();
  Times bare;
  Times ours;
  for (int round = 0; round < rounds; ++round) {
    std::optional<Bare_Lists::Window> window;
    bare.push_back(Milliseconds([&] {
      if (opening.write != nullptr) engine.Execute(opening.write);
      std::vector<Bare_Lists::Rows> lists;
      for (const std::string& statement : opening.statements) {
        lists.push_back(Bare_Lists::Filled(engine, statement));
      }
      window.emplace(controls, std::move(lists));
      Settle_Events();
    }));
    window.reset();
    Settle_Events();
    ours.push_back(listed ? Until_It_Stands(opening.list, rows, [&] { Open(opening); })
                          : Milliseconds([&] {
                              Open(opening);
                              Settle_Events();
                            }));
    Cellar_Program::Leave_Screen();
  }
  Print(opening.entry, bare, ours, 1.5);
}

// ---- from the click on a row to the painted row ----

/// The key of the region with the most sub-regions, or of the one in the middle by its labels.
std::string Region(const Bare_Engine& engine, bool most) {
  const char* statement =
      most ? "SELECT Sub_Region_Of FROM Regions WHERE Sub_Region_Of<>-1 GROUP BY 1 ORDER BY "
             "count(*) DESC LIMIT 1"
           : "SELECT Region_ID FROM (SELECT Region_ID, count(*) AS n FROM Labels GROUP BY 1) ORDER "
             "BY n LIMIT 1 OFFSET (SELECT count(DISTINCT Region_ID)/2 FROM Labels)";
  const auto asked = engine.Prepare(statement);
  sqlite3_step(asked.get());
  return reinterpret_cast<const char*>(sqlite3_column_text(asked.get(), 0));
}

QModelIndex Row_of(const QTreeView& list, const std::string& key) {
  const int keys = list.model()->columnCount() - 1;
  for (int row = 0; row < list.model()->rowCount(); ++row) {
    if (list.model()->index(row, keys).data().toString().toStdString() == key) {
      return list.model()->index(row, 0);
    }
  }
  std::fprintf(stderr, "no row %s\n", key.c_str());
  std::_Exit(1);
}

// All that the program's screen shows of the region, in statements as few as it takes.
class Bare_Click {
 public:
  Bare_Click(const Bare_Engine& engine, const std::string& key) : engine_(engine), key_(key) {}

  std::vector<Bare_Lists::Rows> Rows() const {
    const std::string these = "(SELECT Region_ID FROM Regions WHERE Region_ID=" + key_ +
                              " OR Sub_Region_Of=" + key_ + ")";
    const auto region = Bare_Lists::Filled(
        engine_,
        "SELECT Region_Name, Country, Description, History, Used, SERIAL_NUMBER, "
        "Region_Group, Region_SubGr, Sub_Region_Of, '' FROM Regions WHERE Region_ID=" +
            key_);
    for (const int text : {2, 3}) {
      const std::string id = region->rows[0][static_cast<std::size_t>(text)].toStdString();
      if (id == "-1") continue;
      Bare_Lists::Filled(engine_,
                         "SELECT English, '', '', '', '', '', '', '', '', '' FROM Words_for_Data "
                         "WHERE Multi_Language_ID=" +
                             id);
    }
    std::vector<Bare_Lists::Rows> lists;
    lists.push_back(
        Bare_Lists::Filled(engine_,
                           "SELECT Label_Name, Label_ID, EXISTS(SELECT 1 FROM Mobile_Wines WHERE "
                           "Mobile_Wine_Label_ID=Label_ID), '', '', '', '', '', '', '' FROM Labels "
                           "WHERE Region_ID IN " +
                               these + " ORDER BY Label_Name"));
    lists.push_back(Bare_Lists::Filled(
        engine_,
        "SELECT DISTINCT Variety_Name, Variety_Color, '', '', '', '', '', '', '', '' FROM "
        "Varieties_Per_Region l JOIN Varieties v ON v.Variety_Group=l.[GROUP]/10 AND "
        "substr(l.SUBCATEGO, -v.Variety_SubGr, 1)='1' WHERE l.Region_ID IN " +
            these + " ORDER BY Variety_Name"));
    return lists;
  }

 private:
  const Bare_Engine& engine_;
  std::string key_;
};

void Measure_Click(const char* what, const Bare_Engine& engine, bool most) {
  const std::string key = Region(engine, most);
  const std::string other = most ? Region(engine, false) : Region(engine, true);
  Choose_Entry("Regions_List");
  Settle_Events();
  QTreeView& list = List(regions_list);
  const auto click = [&](const std::string& region) {
    const QPoint place = list.visualRect(Row_of(list, region)).center();
    Click_At(*list.viewport(), place);
  };
  const auto come_to = [&](const std::string& region) {
    list.scrollTo(Row_of(list, region));
    Settle_Events();
  };
  come_to(key);
  click(key);
  Settle_Events();
  const int labels = List("Labels_ListView").model()->rowCount();
  std::vector<Bare_Lists::Rows> empty;
  for (const std::string& statement : {all_regions, nothing, nothing}) {
    empty.push_back(Bare_Lists::Filled(engine, statement));
  }
  Bare_Lists::Window window({}, std::move(empty));
  Settle_Events();
  const Bare_Click bare_click(engine, key);
  Times bare;
  Times ours;
  for (int round = 0; round < rounds; ++round) {
    come_to(other);
    click(other);
    come_to(key);
    ours.push_back(Until_It_Stands("Labels_ListView", labels, [&] { click(key); }));
    bare.push_back(Until_It_Stands("Bare_List_1", labels, [&] {
      std::vector<Bare_Lists::Rows> rows = bare_click.Rows();
      window.Fill(1, std::move(rows[0]));
      window.Fill(2, std::move(rows[1]));
    }));
  }
  Cellar_Program::Leave_Screen();
  Print(what, bare, ours, 2);
}

// ---- an arrow key that is held down ----

void Measure_Keys() {
  constexpr double between_repeats = 1000.0 / 30;
  constexpr int presses = 300;
  Choose_Entry("Regions_List");
  Settle_Events();
  QTreeView& list = List(regions_list);
  list.setFocus();
  const double time = Milliseconds([&] {
    for (int press = 0; press < presses; ++press) {
      QKeyEvent key(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, {}, press > 0);
      QApplication::sendEvent(&list, &key);
      Settle_Events();
    }
  });
  const std::string shown = Found<QLineEdit>("Name_Text").text().toStdString();
  const bool arrived =
      list.currentIndex().siblingAtColumn(0).data().toString().toStdString() == shown;
  std::printf("%-46s %.2f ms each, to the painted row (a repeat every %.0f ms) %s\n",
              "the arrow key held down through 300 regions", time / presses, between_repeats,
              Met(arrived && time / presses < between_repeats));
  Cellar_Program::Leave_Screen();
}

// ---- paging ----

void Measure_Paging() {
  Choose_Entry("Winery_List");
  Settle_Events();
  QTreeView& list = List(wineries_list);
  const auto click = [&](int row) {
    const QModelIndex index = list.model()->index(row, 0);
    list.scrollTo(index);
    Settle_Events();
    return Milliseconds([&] {
      Click_At(*list.viewport(), list.visualRect(index).center());
      Settle_Events();
    });
  };
  auto& next = Found<QAbstractButton>("Wineries_Form_Next_Command");
  const auto step = [&] {
    return Milliseconds([&] {
      next.click();
      Settle_Events();
    });
  };
  click(0);
  const double first = step();
  Times clicks;
  Times steps;
  for (int round = 0; round < rounds; ++round) {
    clicks.push_back(click(40 + 2 * round));
    steps.push_back(step());
  }
  std::printf("%-46s %.1f ms\n", "the first step, which loads the hidden list", first);
  Print("the next winery by paging, to a click on it", clicks, steps, 1.25);
  Cellar_Program::Leave_Screen();
}

// ---- what is stored is one commit ----

void Measure_Writes(const Bare_Engine& engine) {
  Forms::Watch_Boxes_For_Tests([](const Forms::Box&) { return true; });
  const auto asked =
      engine.Prepare("SELECT Region_ID FROM Regions_Per_Variety GROUP BY 1 ORDER BY count(*) DESC");
  sqlite3_step(asked.get());
  const std::string richest = reinterpret_cast<const char*>(sqlite3_column_text(asked.get(), 0));
  Choose_Entry("Region_Mod_Var");
  Settle_Events();
  QTreeView& list = List(regions_list);
  list.scrollTo(Row_of(list, richest));
  Settle_Events();
  Click_At(*list.viewport(), list.visualRect(Row_of(list, richest)).center());
  Settle_Events();
  QTreeView& available = List("Varieties_AvailableView");
  Click_At(*available.viewport(), available.visualRect(available.model()->index(0, 0)).center());
  Found<QAbstractButton>("Add_Var_Command").click();
  const int grapes = List("Varieties_Selected_ListView").model()->rowCount();
  Watched_Disk::Count_From_Zero();
  const double proceed = Milliseconds([] { Found<QAbstractButton>("General_Command").click(); });
  int syncs = Watched_Disk::Syncs();
  std::printf("PROCEED of %d grapes: %.1f ms, %d syncs (one commit: at most 4) %s\n", grapes,
              proceed, syncs, Met(syncs <= 4));
  Cellar_Program::Leave_Screen();

  Choose_Entry("Region_Add");
  Settle_Events();
  Found<QLineEdit>("Name_Text").setText("Measured");
  for (const char* text : {"Description_Text", "History_Text"}) {
    Forms::Screen("Regions_Form").Get<Forms::Text_Box>(text).Set_Text("A text of some length.");
  }
  Settle_Events();
  Watched_Disk::Count_From_Zero();
  const double save = Milliseconds([] { Found<QAbstractButton>("General_Command").click(); });
  syncs = Watched_Disk::Syncs();
  std::printf("SAVE of a region with two texts: %.1f ms, %d syncs (one commit: at most 4) %s\n",
              save, syncs, Met(syncs <= 4));
  Settle_Events();
  Forms::Watch_Boxes_For_Tests({});
}

void Measure(const std::set<std::string>& parts, const fs::path& folder) {
  const auto wanted = [&](const char* part) { return parts.empty() || parts.contains(part); };
  Register_Catalogue_Screens();
  Cellar_Program::Start(folder);
  const Bare_Engine engine(folder / "bare.mdb", password);
  if (wanted("opening")) {
    for (const Opening& opening : openings) Measure_Opening(opening, engine);
  }
  if (wanted("clicks")) {
    Measure_Click("a click on the region with most sub-regions", engine, true);
    Measure_Click("a click on the region in the middle", engine, false);
  }
  if (wanted("keys")) Measure_Keys();
  if (wanted("paging")) Measure_Paging();
  if (wanted("writes")) Measure_Writes(engine);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("XDG_CONFIG_HOME", "/tmp/wine_cellar_bench_settings");  // never the user's
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREEN_FILE);
  // What the offscreen platform cannot do is told at every window.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  Watched_Disk::Install();
  const std::vector<std::string> words(argv + 1, argv + argc);
  const Forms::Application application(argc, argv);
  const fs::path folder =
      fs::temp_directory_path() / ("catalogue_bench_" + std::to_string(getpid()));
  fs::create_directories(folder / "dbase");
  for (const char* file : {"dbase/Wine_Cellar.mdb", "bare.mdb"}) {  // one for each side
    fs::copy_file(DELIVERED_FOLDER "/dbase/Wine_Cellar.mdb", folder / file);
  }
  Measure({words.begin(), words.end()}, folder);
  Wine_Cellar_DB.reset();
  fs::remove_all(folder);
  return all_met ? 0 : 1;
}
