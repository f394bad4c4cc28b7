// A program's folder with a copy of the delivered data file, and the program's life in a test: open
// it, end it, open it again.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/record_store/Record_Store.h"
#include "tests/support/Temporary_Folder.h"

/// Every test of the program's screens: the main window on a data file of its own.
class Program_Folder : public testing::Test {
 protected:
  Program_Folder();
  ~Program_Folder() override;

  std::string Folder() const { return folder_.Path(); }
  std::string Data_File() const { return folder_.Path("dbase/Wine_Cellar.mdb"); }

  /// Starts the program, as main does, up to the main window.
  void Start();
  /// Forgets everything that lives in the process; the file stays.
  void Stop();
  void Restart();

  /// The stored rows of a query as lines, the fields parted by "|"; read through a connection of
  /// its own, so only what is committed shows.
  std::vector<std::string> Stored(const std::string& statement, int fields) const;
  /// Changes the data file from outside, before a start.
  void Change(const std::function<void(Record_Store::Database&)>& change) const;
  void Set_Language(Integer number) const;
  /// "Home" and "Office".
  void Name_Cellars_In_File() const;

 private:
  Temporary_Folder folder_;
};
