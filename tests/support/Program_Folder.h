// A program's folder with a copy of the delivered data file, and the program's life in a test: open
// it, end it, open it again. All that the tests of a screen need comes with it.
#pragma once

#include <gmock/gmock.h>

#include <concepts>
#include <memory>
#include <string>
#include <vector>

#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Conversions.h"
#include "tests/support/Drive.h"
#include "tests/support/Expect_Failure.h"
#include "tests/support/Temporary_Folder.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

/// The value of a field; all values convert from text.
struct Cell {
  Cell(const char* name, const Text& text) : field(name), value(text) {}
  template <std::integral Number>
  Cell(const char* name, Number number) : field(name), value(To_Text(std::int64_t{number})) {}

  const char* field;
  Text value;
};
using Row = std::vector<Cell>;

/// The parts of a row as `Stored` and `Shown_Rows` tell it.
Texts Cells_of(const Text& row, const Text& separator = "|");
/// By the one order of texts, or against it; no two alike.
bool Is_Sorted(const Texts& texts, bool descending = false);
/// The rows of a query, the fields parted by "|".
Texts Rows_of(Record_Store::Database& file, const Text& statement);

/// Every test of the program's screens: the main window on a data file of its own.
class Program_Folder : public testing::Test {
 protected:
  static constexpr Integer english = 3, spanish = 4, french = 5, german = 6, japanese = 8;

  Program_Folder();
  ~Program_Folder() override;

  std::string Folder() const { return folder_.Path(); }
  std::string Data_File() const { return folder_.Path("dbase/Wine_Cellar.mdb"); }

  /// Starts the program anew, as main does, up to the main window.
  void Start();
  /// Forgets everything that lives in the process; the file stays.
  void Stop();
  /// Starts the program and chooses the menu entry.
  void Start_With(const char* entry);
  /// Opens a screen under a command that no menu entry stores.
  static void Open_Under(const char* screen, const char* command);
  /// From now on a screen of this name is there that shows nothing but these fields: text boxes
  /// where the name ends in "_Text", else list boxes.
  void Stand_In(const Text& name, const Texts& fields = {});

  /// The stored rows of a query, the fields parted by "|"; read through a connection of its own, so
  /// only what is committed shows.
  Texts Stored(const Text& statement) const;
  /// The first of them.
  Text One(const Text& statement) const { return Stored(statement).at(0); }

  /// Changes the data file from outside: all that `change` does, what it calls here included, is
  /// committed at once.
  void Change(const std::function<void(Record_Store::Database&)>& change) const;
  /// Adds a row, and returns its first field.
  Long Put(const char* table, const Row& row) const;
  template <class Record>
  Long Put(const Tables::Table<Record>& table, const Record& record) const {
    Long key = 0;
    Change([&](Record_Store::Database& file) {
      Record_Store::Recordset rows = file.OpenRecordset(table.Name());
      rows.AddNew();
      key = rows.Fields(0).Is_Null() ? 0 : rows.Fields(0).As_Long();
      table.Write(rows, record);
    });
    return key;
  }
  /// Changes the first row.
  void Set(const char* table, const Row& row) const;
  void Set_Language(Integer number) const;
  using Condition = std::function<bool(const Record_Store::Recordset&)>;
  void Remove_Rows(const char* table, const Condition& condition = {}) const;
  /// "Home" and "Office".
  void Name_Cellars_In_File() const;

 private:
  Record_Store::Database& File() const;

  Temporary_Folder folder_;
  mutable std::unique_ptr<Record_Store::Database> file_;
  mutable int changes_ = 0;
  Texts stand_ins_;
};
