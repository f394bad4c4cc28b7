// An empty data file with every table of the catalogue, open in the program's own variable.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "core/tables/Catalogue.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "tests/support/Temporary_Folder.h"

class New_Data_File : public testing::Test {
 protected:
  New_Data_File();
  ~New_Data_File() override;

  /// Makes the file anew with these tables instead.
  void Make(const std::vector<Record_Store::Table_Schema>& tables);

 private:
  Temporary_Folder folder_;
};
