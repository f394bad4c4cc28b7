// The list view against the toolkit's own item widget: the same rows in the same run. Prints the
// medians of several rounds and their ratios; each ratio is to stay at or below its limit.
#include <malloc.h>

#include <QApplication>
#include <QTableWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/forms/Application.h"
#include "platform/forms/Forms.h"

namespace {

constexpr int row_count = 32000;
constexpr int column_count = 10;
constexpr int rounds = 9;

using Rows = std::vector<std::vector<std::string>>;

Rows Wines() {
  const char* const colors[] = {"Red", "White", "Rosé", "Sparkling", "Fortified"};
  const char* const grapes[] = {"Cabernet Sauvignon, Merlot", "Chardonnay", "Garnacha, Syrah",
                                "Touriga Nacional"};
  const char* const houses[] = {"Château ", "Bodegas ", "Domaine ", "Quinta do ", "Weingut ",
                                "Tenuta ",  "Viña ",    "Clos ",    "Cantina ",   "Estate "};
  Rows rows;
  for (int i = 0; i < row_count; ++i) {
    const unsigned mixed = static_cast<unsigned>(i) * 2654435761U >> 8;
    const std::string number = std::to_string(mixed % 90000);
    rows.push_back({std::to_string(1970 + mixed % 55), houses[mixed % 10] + number,
                    "Appellation " + std::to_string(mixed % 700),
                    "Region " + std::to_string(mixed % 300), grapes[mixed % 4], colors[mixed % 5],
                    std::to_string(50 + mixed % 51), std::to_string(1980 + mixed % 60),
                    std::to_string(mixed % 24), std::to_string(i)});
  }
  return rows;
}

double Milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

double Heap() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

/// One of the two sides: a widget that is filled anew, sorted, and painted at once.
struct Side {
  virtual ~Side() = default;
  virtual void Fill(const Rows& rows) = 0;
  virtual void Sort(int column, bool descending) = 0;
  virtual QWidget& Widget() = 0;
  void Paint() { Widget().repaint(); }
};

class Our_Side : public Side {
 public:
  Our_Side() { form_.Show(); }
  void Fill(const Rows& rows) override {
    Forms::List_View& list = form_.List;
    list.Clear();
    for (const auto& row : rows) {
      Forms::List_Item item = list.Add(row[0]);
      for (int column = 1; column < column_count; ++column) {
        item.Set_SubItems(column, row[static_cast<std::size_t>(column)]);
      }
    }
    list.Refresh();
  }
  void Sort(int column, bool descending) override {
    form_.List.Set_SortKey(column);
    form_.List.Set_SortOrder(descending ? 1 : 0);
    form_.List.Set_Sorted(true);
    form_.List.Refresh();
  }
  QWidget& Widget() override { return *form_.List.Widget(); }

 private:
  struct List_Form : Forms::Form {
    List_Form() : Form("List_Form", "List") {
      Set_Content(Forms::Column({Forms::Place(List).Grow()}));
    }
    Forms::List_View List{*this, "List", std::vector<Forms::List_Column>(column_count)};
  };
  List_Form form_;
};

class Item_Side : public Side {
 public:
  Item_Side() { table_.show(); }
  void Fill(const Rows& rows) override {
    table_.setRowCount(0);
    table_.setRowCount(row_count);
    for (int row = 0; row < row_count; ++row) {
      for (int column = 0; column < column_count; ++column) {
        const std::string& text =
            rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
        table_.setItem(row, column, new QTableWidgetItem(QString::fromStdString(text)));
      }
    }
  }
  void Sort(int column, bool descending) override {
    table_.sortItems(column, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
  }
  QWidget& Widget() override { return table_; }

 private:
  QTableWidget table_{0, column_count};
};

struct Figures {
  double fill = 0;
  double sort_names = 0;
  double sort_colors = 0;
  double memory = 0;
};

double Sorted(Side& side, int column) {
  std::vector<double> times;
  for (int i = 0; i < rounds; ++i) {
    side.Sort(0, i % 2 == 0);
    QApplication::processEvents();
    times.push_back(Milliseconds([&] {
      side.Sort(column, i % 2 == 1);
      side.Paint();
    }));
  }
  return Median(times);
}

Figures Measure(std::unique_ptr<Side> side, const Rows& rows) {
  side->Widget().window()->resize(1200, 640);
  QApplication::processEvents();
  Figures figures;
  const double before = Heap();
  std::vector<double> times;
  for (int i = 0; i < rounds; ++i) {
    times.push_back(Milliseconds([&] {
      side->Fill(rows);
      side->Paint();
    }));
    QApplication::processEvents();
  }
  figures.fill = Median(times);
  figures.memory = (Heap() - before) / (1024 * 1024);
  figures.sort_names = Sorted(*side, 1);
  figures.sort_colors = Sorted(*side, 5);
  return figures;
}

bool Print(const char* what, double ours, double items, double limit) {
  std::printf("%-34s %8.1f %8.1f %7.2f  (at most %.2f)\n", what, ours, items, ours / items, limit);
  return ours / items <= limit;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("XDG_CONFIG_HOME", "/tmp/wine_cellar_bench_settings");  // never the user's
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const Forms::Application application(argc, argv);
  const Rows rows = Wines();
  const Figures ours = Measure(std::make_unique<Our_Side>(), rows);
  const Figures items = Measure(std::make_unique<Item_Side>(), rows);
  std::printf("%d rows of %d columns, median of %d\n", row_count, column_count, rounds);
  std::printf("%-34s %8s %8s %7s\n", "", "ours", "items", "ratio");
  bool good = Print("fill and paint, ms", ours.fill, items.fill, 0.5);
  good &= Print("sort by names and repaint, ms", ours.sort_names, items.sort_names, 1.0 / 3);
  good &= Print("sort by colours and repaint, ms", ours.sort_colors, items.sort_colors, 1.0 / 3);
  good &= Print("memory, MB", ours.memory, items.memory, 0.5);
  return good ? 0 : 1;
}
