// From the start of the process to the painted main window: the program beside a bare window with a
// menu of the same size that opens the same encrypted file. Both run as processes of their own, in
// turn; what is printed is the median of each and the ratio.
//
//   start_up FOLDER     FOLDER is a program's folder with dbase/Wine_Cellar.mdb
#include <sqlcipher/sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "main_window/Main_Window_Screens.h"
#include "platform/forms/Application.h"
#include "platform/forms/Screens.h"

namespace {

constexpr int rounds = 15;

struct Cost {
  double milliseconds = 0;
  double kilobytes = 0;
};

std::int64_t Nanoseconds_Now() {
  return std::chrono::steady_clock::now().time_since_epoch().count();
}

long Peak_Kilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmHWM:", 0) == 0) return std::stol(line.substr(6));
  }
  return 0;
}

// Says what it cost as soon as the window has been painted, and ends the process.
class Paint_Watcher : public QObject {
 public:
  explicit Paint_Watcher(std::int64_t started) : started_(started) {}
  bool eventFilter(QObject* object, QEvent* event) override {
    const bool painted = event->type() == QEvent::Paint && object->isWidgetType() &&
                         static_cast<QWidget*>(object)->isWindow();
    if (painted) {
      QTimer::singleShot(0, [this] {
        std::printf("%lld %ld\n", static_cast<long long>(Nanoseconds_Now() - started_),
                    Peak_Kilobytes());
        std::fflush(stdout);
        std::_Exit(0);
      });
    }
    return false;
  }

 private:
  std::int64_t started_;
};

int Run_Program(int argc, char** argv, std::int64_t started, const std::string& folder) {
  Forms::Application application(argc, argv);
  Forms::Set_App_Path_For_Tests(folder);
  Paint_Watcher watcher(started);
  qApp->installEventFilter(&watcher);
  Register_Main_Window_Screens();
  return application.Run([] { Forms::Screen("Wine_Cellar_Form").Open(); });
}

int Run_Bare(int argc, char** argv, std::int64_t started, const std::string& folder) {
  constexpr int menus = 11;
  constexpr int entries = 8;
  QApplication application(argc, argv);
  Paint_Watcher watcher(started);
  application.installEventFilter(&watcher);
  sqlite3* file = nullptr;
  sqlite3_open((folder + "/dbase/Wine_Cellar.mdb").c_str(), &file);
  sqlite3_exec(
      file,
      "PRAGMA key='vinebox31'; PRAGMA cipher_page_size=4096; SELECT count(*) FROM sqlite_master;",
      nullptr, nullptr, nullptr);
  QMainWindow window;
  for (int menu = 0; menu < menus; ++menu) {
    QMenu* sheet = window.menuBar()->addMenu("Menu " + QString::number(menu));
    for (int entry = 0; entry < entries; ++entry)
      sheet->addAction("Entry " + QString::number(entry));
  }
  window.setCentralWidget(new QLabel("Wine Cellar"));
  window.resize(1000, 640);
  window.show();
  return application.exec();
}

// Starts this program anew in the given mode and reads what it says.
Cost Started(const char* self, const char* mode, const char* folder) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return {};
  const std::string started = std::to_string(Nanoseconds_Now());
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execl(self, self, mode, folder, started.c_str(), nullptr);
    _exit(1);
  }
  close(ends[1]);
  FILE* said = fdopen(ends[0], "r");
  long long nanoseconds = 0;
  long kilobytes = 0;
  if (std::fscanf(said, "%lld %ld", &nanoseconds, &kilobytes) != 2)
    std::fprintf(stderr, "%s: no answer\n", mode);
  std::fclose(said);
  waitpid(child, nullptr, 0);
  return {static_cast<double>(nanoseconds) / 1e6, static_cast<double>(kilobytes)};
}

double Median(std::vector<Cost> costs, double Cost::*part) {
  std::sort(costs.begin(), costs.end(),
            [part](const Cost& a, const Cost& b) { return a.*part < b.*part; });
  return costs[costs.size() / 2].*part;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("XDG_CONFIG_HOME", "/tmp/wine_cellar_bench_settings");  // never the user's
  const std::string mode = argc > 1 ? argv[1] : "";
  if (argc == 4 && mode == "--program")
    return Run_Program(argc, argv, std::stoll(argv[3]), argv[2]);
  if (argc == 4 && mode == "--bare") return Run_Bare(argc, argv, std::stoll(argv[3]), argv[2]);
  if (argc != 2) {
    std::fprintf(stderr, "usage: start_up FOLDER\n");
    return 2;
  }
  std::vector<Cost> program;
  std::vector<Cost> bare;
  for (int round = 0; round < rounds; ++round) {
    program.push_back(Started(argv[0], "--program", argv[1]));
    bare.push_back(Started(argv[0], "--bare", argv[1]));
  }
  const double time = Median(program, &Cost::milliseconds);
  const double bare_time = Median(bare, &Cost::milliseconds);
  const double memory = Median(program, &Cost::kilobytes);
  const double bare_memory = Median(bare, &Cost::kilobytes);
  std::printf("to the painted window: %.1f ms, bare %.1f ms, ratio %.2f (at most 1.3)\n", time,
              bare_time, time / bare_time);
  std::printf("memory at its highest: %.1f MB, bare %.1f MB, ratio %.2f (at most 1.5)\n",
              memory / 1024, bare_memory / 1024, memory / bare_memory);
}
