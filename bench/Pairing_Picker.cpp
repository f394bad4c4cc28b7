#include "bench/Pairing_Picker.h"

#include <QKeyEvent>
#include <functional>
#include <vector>

#include "bench/Cellar_Program.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "platform/run_time/Conversions.h"

namespace Pairing_Picker {

namespace {

using Cellar_Program::Found;

constexpr const char* candidates = "Cat_List";
constexpr const char* chosen = "SelectList";
constexpr int offered = 1000;
constexpr double longest = 100;  // milliseconds

QAbstractItemView& List(const char* name) { return Found<QAbstractItemView>(name); }

void Click_Row(const char* name, int row) {
  QAbstractItemView& list = List(name);
  const QModelIndex entry = list.model()->index(row, 0);
  list.scrollTo(entry);
  Settle_Events();
  Click_At(*list.viewport(), list.visualRect(entry).center());
  Settle_Events();
}

void Press(const char* name, int key, const QString& text = {}) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&List(name), &press);
}

// Letters that follow each other at once are one word.
void Wait_for_New_Word() {
  double waited = 0;
  while (waited < 2) waited += Milliseconds(Settle_Events);
}

// ---- a thousand pairings ----

int Offered_Now() {
  int count = 0;
  for (Open_Table(Maridages_Recordset, "Maridages"); !Maridages_Recordset.Eof();
       Maridages_Recordset.MoveNext()) {
    count += Maridages_Recordset.Fields("Multiuse").As_Long() >= 2 ? 1 : 0;
  }
  Close_Table(Maridages_Recordset);
  return count;
}

// Named after dishes that are there, in other groups.
void Fill_Catalogue() {
  std::vector<Maridages_Record> dishes;
  for (Open_Table(Maridages_Recordset, "Maridages"); !Maridages_Recordset.Eof();
       Maridages_Recordset.MoveNext()) {
    Read_Maridages_Record();
    dishes.push_back(Maridages);
  }
  Close_Table(Maridages_Recordset);
  int missing = offered - Offered_Now();
  Open_Table(Maridages_Recordset, "Maridages");
  for (Long round = 2; missing > 0; ++round) {
    for (const Maridages_Record& dish : dishes) {
      if (missing-- <= 0) break;
      Maridages = dish;
      Maridages.Maridage_Group += 1000 * round;
      Maridages.English += " " + To_Text(round);
      Maridages.Multiuse = 3;
      Maridages_Recordset.AddNew();
      Write_Maridages_Record();
    }
  }
  Close_Table(Maridages_Recordset);
  Wine_Cellar_DB->Commit();
}

// ---- what the user does ----

bool Print(const char* what, const std::vector<double>& times) {
  const double worst = std::ranges::max(times);
  const bool met = worst < longest;
  std::printf("%-52s median %6.1f ms, worst of %3d %6.1f ms (below %.0f) %s\n", what, Median(times),
              static_cast<int>(times.size()), worst, longest, met ? "ok" : "MISSED");
  return met;
}

bool Measure_Opening() {
  std::vector<double> times(15);
  for (double& time : times) {
    time = Until_Painted(candidates, offered,
                         [] { Cellar_Program::Choose_Entry("Pairing_Search_Cellar"); });
    Settle_Events();
    Leave();
  }
  return Print("the picker with 1,000 pairings, from the menu", times);
}

// Letters that entries begin with, each as a new word that leads away from the first entry.
bool Measure_Letters() {
  QApplication::setKeyboardInputInterval(0);
  std::vector<double> times;
  for (int row = 40; row < offered; row += 40) {
    const QAbstractItemModel& entries = *List(candidates).model();
    const QString letter = entries.index(row, 0).data().toString().left(1).toLower();
    Click_Row(candidates, 0);
    Wait_for_New_Word();
    times.push_back(Until_Painted(candidates, offered, [&] { Press(candidates, 0, letter); }));
    Settle_Events();
  }
  QApplication::setKeyboardInputInterval(-1);
  return Print("a typed letter, to the list at its entry", times);
}

bool Measure_Adding() {
  std::vector<double> times;
  for (int count = 1; count <= 100; ++count) {
    Click_Row(candidates, 9 * count);
    times.push_back(Until_Painted(chosen, count, [] { Press(candidates, Qt::Key_Return); }));
    Settle_Events();
  }
  return Print("an entry added by Enter, 1st to 100th", times);
}

bool Measure_Removing() {
  std::vector<double> times;
  Click_Row(chosen, 50);
  for (int count = 99; count >= 50; --count) {
    times.push_back(Until_Painted(chosen, count, [] { Press(chosen, Qt::Key_Delete); }));
    Settle_Events();
  }
  return Print("an entry taken out by Delete", times);
}

// The picker of a wine's or a grape's pairings has options that fill its list anew.
bool Measure_Options() {
  std::vector<double> opening(9);
  std::vector<double> again(9);
  for (std::size_t round = 0; round < opening.size(); ++round) {
    Current_Command = "VarietyPairings";
    opening[round] = Until_Painted(candidates, offered, [] {
      Run_Guarded([] { Forms::Screen("Select_Maridages_for_Wines_Form").Open(); });
    });
    Settle_Events();
    Click_Row("Selection_Option_List", 1);
    QAbstractItemView& options = List("Selection_Option_List");
    const QPoint first = options.visualRect(options.model()->index(0, 0)).center();
    again[round] =
        Until_Painted(candidates, offered, [&] { Click_At(*options.viewport(), first); });
    Settle_Events();
    Leave();
  }
  const bool opens = Print("the picker of a grape's pairings", opening);
  return Print("its option of all pairings", again) && opens;
}

}  // namespace

void Open() {
  Cellar_Program::Choose_Entry("Pairing_Search_Cellar");
  Settle_Events();
}

void Add(const std::string& text) {
  const QAbstractItemModel& entries = *List(candidates).model();
  for (int row = 0; row < entries.rowCount(); ++row) {
    if (entries.index(row, 0).data().toString() != QString::fromStdString(text)) continue;
    Click_Row(candidates, row);
    Found<QAbstractButton>("Add_Command").click();
    Settle_Events();
    return;
  }
  std::fprintf(stderr, "the picker does not offer %s\n", text.c_str());
  std::_Exit(1);
}

void Proceed() { Found<QAbstractButton>("MultSelect").click(); }

void Leave() {
  Found<QAbstractButton>("MultCancel").click();
  Settle_Events();
}

bool Measure() {
  Fill_Catalogue();
  bool met = Measure_Opening();
  Open();
  for (const auto& part : {Measure_Letters, Measure_Adding, Measure_Removing}) {
    met = part() && met;
  }
  Leave();
  return Measure_Options() && met;
}

}  // namespace Pairing_Picker
