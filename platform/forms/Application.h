// The program as the desktop sees it: opened first and once, by main or by a test's main.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace Forms {

class Application {
 public:
  /// Opens the toolkit and sets the guard's hooks for showing a failure and for the end of each
  /// outermost handler. The windows' icon is what the resource folder :/icon holds: a file for
  /// each size, named after the side in pixels, of bare pixels as tools/render_drawing makes them.
  Application(int& argc, char** argv);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// To be asked before `file` is opened. False where the user runs the program on this file
  /// already, by whatever path: that one's windows come to the front, and this start is to end.
  bool Is_Only_One_On(const std::string& file);

  /// Runs `start` inside the guard, then handles events until the program ends.
  int Run(const std::function<void()>& start);

 private:
  struct Data;
  std::unique_ptr<Data> data_;
};

/// The folder of the executable, without a slash at its end.
std::string App_Path();
/// For tests: the folder that App_Path gives from now on.
void Set_App_Path_For_Tests(std::string_view path);

}  // namespace Forms
