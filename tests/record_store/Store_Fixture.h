// A data file of its own for each test, in a folder that goes with it.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/record_store/Record_Store.h"
#include "tests/support/Temporary_Folder.h"

inline const std::string Right_Connect = "; DATABASE=x;PWD=open9sesame";

/// The number of the failure that `action` ends in, 0 where it does not fail.
int Failure_Of(const std::function<void()>& action);

/// Bottles: a counter from 101, its copy, one field of each type, an index of each kind.
/// Notes: no counter. Shelves: a unique text key.
const std::vector<Record_Store::Table_Schema>& Test_Tables();

class Store_Test : public testing::Test {
 protected:
  Store_Test();
  ~Store_Test() override;

  /// Closes the open file and opens it anew.
  void Reopen();
  /// Adds a row to Bottles.
  Long Add_Bottle(std::string_view name, Long rack);
  /// Bottles of these names, committed.
  void Add_Bottles(std::initializer_list<std::string_view> names);
  /// The names of all rows that the recordset walks over, from where it stands.
  static std::vector<std::string> Walk(Record_Store::Recordset& rows,
                                       std::string_view field = "Name");

  /// Whether the engine finds the closed file sound.
  bool Is_Sound() const;

  const Temporary_Folder own_folder_;
  const std::filesystem::path folder_ = own_folder_.Path();
  std::string path_;
  std::unique_ptr<Record_Store::Database> database_;
};
