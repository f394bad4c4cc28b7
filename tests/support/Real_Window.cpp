#include "tests/support/Real_Window.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QThread>
#include <functional>
#include <stdexcept>

namespace Real_Window {

namespace {

constexpr int patience = 10'000;  // milliseconds
constexpr int pause = 20;

// Another process is asked again and again: it cannot tell when it is ready.
bool Comes_True(const std::function<bool()>& condition) {
  const QDeadlineTimer deadline(patience);
  while (!condition()) {
    if (deadline.hasExpired()) return false;
    QThread::msleep(pause);
  }
  return true;
}

}  // namespace

Display::Display() {
  server_.setProcessChannelMode(QProcess::SeparateChannels);
  server_.start("Xvfb",
                {"-displayfd", "1", "-noreset", "-screen", "0", "1280x720x24", "-nolisten", "tcp"});
  QByteArray number;
  while (!number.contains('\n')) {
    if (!server_.waitForReadyRead(patience)) throw std::runtime_error("Xvfb does not start");
    number += server_.readAllStandardOutput();
  }
  name_ = ":" + QString::fromLatin1(number).trimmed();
}

Display::~Display() {
  server_.terminate();
  server_.waitForFinished(patience);
}

std::unique_ptr<QProcess> Display::Begin(const QString& command,
                                         const QStringList& arguments) const {
  auto process = std::make_unique<QProcess>();
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DISPLAY", name_);
  environment.insert("XDG_CONFIG_HOME", settings_.path());
  process->setProcessEnvironment(environment);
  process->start(command, arguments);
  return process;
}

QString Display::Run(const QString& command, const QStringList& arguments) const {
  const auto process = Begin(command, arguments);
  process->waitForFinished(patience);
  return QString::fromUtf8(process->readAllStandardOutput()).trimmed();
}

// Without a word about the background it would look for a program to paint one, and complain.
Window_Manager::Window_Manager(const Display& display) {
  const auto write = [this](const QString& name, const QString& text) {
    QFile file(home_.filePath(name));
    if (file.open(QFile::WriteOnly)) file.write(text.toUtf8());
  };
  write("style", "background: none\n");
  write("init", "session.styleOverlay: " + home_.filePath("style") + "\n");
  process_ = display.Begin(
      "env", {"HOME=" + home_.path(), "fluxbox", "-no-toolbar", "-rc", home_.filePath("init")});
  const bool ready = Comes_True([&] {
    return display.Run("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}).contains("window id");
  });
  if (!ready) throw std::runtime_error("fluxbox does not start");
}

Window_Manager::~Window_Manager() {
  process_->terminate();
  process_->waitForFinished(patience);
}

Program::Program(const Display& display) : display_(display) {
  const QDir delivered(DELIVERED_FOLDER);
  const QDir folder(folder_.path());
  folder.mkpath("dbase");
  folder.mkpath("photos");
  const bool copied =
      QFile::copy(delivered.filePath("wine_cellar"), folder.filePath("wine_cellar")) &&
      QFile::copy(delivered.filePath("dbase/Wine_Cellar.mdb"),
                  folder.filePath("dbase/Wine_Cellar.mdb"));
  if (!copied) throw std::runtime_error("no delivered program to copy in " DELIVERED_FOLDER);
}

Program::~Program() { Kill(); }

void Program::Start(const QStringList& options) {
  process_ = std::make_unique<QProcess>();
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DISPLAY", display_.Name());
  environment.insert("QT_QPA_PLATFORM", "xcb");
  environment.remove("WAYLAND_DISPLAY");
  process_->setProcessEnvironment(environment);
  process_->setProcessChannelMode(QProcess::ForwardedChannels);
  process_->start(QDir(folder_.path()).filePath("wine_cellar"), options);
  if (!process_->waitForStarted(patience)) throw std::runtime_error("the program does not start");
}

void Program::Kill() {
  if (!process_) return;
  process_->kill();
  process_->waitForFinished(patience);
}

int Program::Wait_For_End() {
  if (!process_->waitForFinished(patience)) return -1;
  return process_->exitStatus() == QProcess::NormalExit ? process_->exitCode() : -1;
}

bool Program::Is_Running() const { return process_ && process_->state() == QProcess::Running; }

bool Program::Has_Keys() const {
  const QString own = QString::number(process_->processId());
  return Comes_True([&] {
    return display_.Run("xdotool", {"getwindowfocus", "getwindowpid"}) == own;
  });
}

// The search takes an apostrophe that is escaped for the end of the text.
QString Program::Window_Of(const QString& title) const {
  const QString exactly = "^" + QRegularExpression::escape(title).replace("\\'", "'") + "$";
  return display_.Run("xdotool", {"search", "--onlyvisible", "--name", exactly});
}

bool Program::Sees_Window(const QString& title) const {
  QString window;
  if (!Comes_True([&] { return !(window = Window_Of(title)).isEmpty(); })) return false;
  Focus(window);
  return true;
}

bool Program::Window_Has_Gone(const QString& title) const {
  return Comes_True([&] { return Window_Of(title).isEmpty(); });
}

bool Program::Answer_Box(const QString& title) const {
  return Sees_Window(title) && Comes_True([&] {
           const QString window = Window_Of(title);
           if (window.isEmpty()) return true;
           Focus(window);
           Press({"Return"});
           return false;
         });
}

// There is no window manager to do it.
void Program::Focus(const QString& window) const {
  display_.Run("xdotool", {"windowfocus", window});
}

void Program::Press(const QStringList& keys) const {
  display_.Run("xdotool", QStringList{"key", "--delay", "30"} + keys);
}

void Program::Type(const QString& text) const {
  display_.Run("xdotool", {"type", "--delay", "15", text});
}

void Program::Click(const QString& title, int from_right, int from_below) const {
  const QString window = Window_Of(title);
  const QString place = display_.Run("xdotool", {"getwindowgeometry", window}).section(": ", -1);
  const int x = place.section('x', 0, 0).toInt() - from_right;
  const int y = place.section('x', 1, 1).toInt() - from_below;
  display_.Run("xdotool", {"mousemove", "--window", window, QString::number(x), QString::number(y),
                           "click", "1"});
}

void Program::Take_Picture(const QString& file) const {
  display_.Run("import", {"-window", "root", file});
}

}  // namespace Real_Window
