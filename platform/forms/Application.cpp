#include "platform/forms/Application.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QResource>

#include "platform/forms/Desktop_Style.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Held_Keys.h"
#include "platform/forms/Later.h"
#include "platform/forms/Message_Box.h"
#include "platform/forms/Only_Start.h"
#include "platform/forms/Qt_Text.h"
#include "platform/forms/Screens.h"
#include "platform/forms/Screens_Inside.h"
#include "platform/run_time/Guard.h"

namespace Forms {

namespace {

std::string& App_Path_For_Tests() {
  static std::string path;
  return path;
}

// Each file of the folder is the icon in one size. A drawing would be rendered at every start.
QIcon Icon_Of_The_Program() {
  QIcon icon;
  for (const QString& name : QDir(":/icon").entryList()) {
    const QResource pixels(":/icon/" + name);
    const int side = name.toInt();
    const qsizetype line = qsizetype{4} * side;
    if (pixels.size() != line * side) continue;
    icon.addPixmap(QPixmap::fromImage(
        QImage(pixels.data(), side, side, line, QImage::Format_ARGB32_Premultiplied)));
  }
  return icon;
}

void Settle() {
  Settle_Screens();
  Focus_Watch::The().Settle();
  Show_Now();
}

}  // namespace

struct Application::Data {
  Data(int& argc, char** argv) : toolkit(argc, argv) {}
  QApplication toolkit;
  QStyle* style = new Desktop_Style;  ///< the toolkit owns it
  Only_Start only_start;
};

Application::Application(int& argc, char** argv) : data_(std::make_unique<Data>(argc, argv)) {
  QApplication::setOrganizationName("Wine Cellar");
  QApplication::setOrganizationDomain("winecellar.org");
  QApplication::setApplicationName("wine-cellar");
  QApplication::setDesktopFileName("org.winecellar.Wine_Cellar");
  QApplication::setWindowIcon(Icon_Of_The_Program());
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(data_->style);
  Focus_Watch::The().Begin();
  Held_Keys::The().Begin();
  Hooks().show = Show_Failure;
  Hooks().settled = Settle;
  Hooks().ending = Remember_Windows;
}

Application::~Application() {
  Hooks().show = [](const Run_Time_Error&) {};
  Hooks().settled = [] {};
  Hooks().ending = [] {};
  Screens::Clear_For_Tests();
}

bool Application::Is_Only_One_On(const std::string& file) { return data_->only_start.Take(file); }

int Application::Run(const std::function<void()>& start) {
  Run_Guarded(start);
  return QApplication::exec();
}

std::string App_Path() {
  if (!App_Path_For_Tests().empty()) return App_Path_For_Tests();
  return From_Qt(QApplication::applicationDirPath());
}

void Set_App_Path_For_Tests(std::string_view path) { App_Path_For_Tests() = path; }

}  // namespace Forms
