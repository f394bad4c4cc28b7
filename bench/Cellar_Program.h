// The program on a folder of its own, and the way of its user: from the main window's menu into the
// screen of the cellar and back.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QTreeView>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/Painted_List.h"
#include "cellar/Cellar_Screens.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "main_window/Main_Window_Screens.h"
#include "platform/forms/Application.h"
#include "platform/forms/Screens.h"
#include "platform/run_time/Guard.h"

namespace Cellar_Program {

inline constexpr const char* list_name = "Wine_Cellar_ListView";

/// Opens the main window. A failure, which the program would show, ends the process.
inline void Start(const std::string& folder) {
  Hooks().show = [](const Run_Time_Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    std::_Exit(1);
  };
  Forms::Set_App_Path_For_Tests(folder);
  Register_Main_Window_Screens();
  Register_Cellar_Screens();
  Run_Guarded([] { Forms::Screen("Wine_Cellar_Form").Open(); });
  Settle_Events();
}

/// What the engine has read of the file is forgotten.
inline void Open_File_Anew() {
  Wine_Cellar_DB.reset();
  Open_Wine_Cellar_DB();
}

template <class Kind>
Kind& Found(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* found = window->findChild<Kind*>(name)) return *found;
  }
  std::fprintf(stderr, "there is no %s\n", name);
  std::_Exit(1);
}

inline void Choose_Entry(const char* entry) { Found<QAction>(entry).trigger(); }

inline QTreeView& Shown_List() { return Found<QTreeView>(list_name); }

inline void Leave_Screen() {
  Found<QAbstractButton>("Exit_Command").click();
  Settle_Events();
}

}  // namespace Cellar_Program
