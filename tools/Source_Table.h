// One file of data/: lines of cells between tabs, the first line naming the columns.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/Problems.h"

namespace Data_Compiler {

/// Stands in a cell whose value is not given.
inline constexpr std::string_view Not_Given = "x";

class Source_Table;

/// One line. Columns that the file lacks read as not given.
class Source_Row {
 public:
  const std::string& operator[](std::string_view column) const;
  bool Given(std::string_view column) const { return (*this)[column] != Not_Given; }
  /// The parts of a cell, separated by semicolons and blanks; none where it is not given.
  std::vector<std::string> List(std::string_view column) const;
  /// The cell as a whole number between 0 and 32767; anything else is a problem, and 0.
  int Number(std::string_view column, Problems& problems) const;
  /// One of two words; any other is a problem, and False.
  bool Flag(std::string_view column, std::string_view yes, std::string_view no,
            Problems& problems) const;
  const Place& Where() const { return place_; }

 private:
  friend class Source_Table;
  const Source_Table* table_ = nullptr;
  std::vector<std::string> cells_;
  Place place_;
};

/// Whether blanks at the ends of cells and in a row are faults, or are kept as they were written.
enum class Blanks { Checked, As_Written };

class Source_Table {
 public:
  /// Reads FOLDER/FILE. `columns` are separated by blanks; those behind a "?" may be missing, and
  /// so may a file whose name has a "?" before it. Problems: a missing file or column, an unknown
  /// or doubled column, a line with another number of cells, an empty cell, a text that is no
  /// UTF-8 or not in normal form C, stray blanks.
  Source_Table(const std::string& folder, std::string_view file, std::string_view columns,
               Problems& problems, Blanks blanks = Blanks::Checked);
  Source_Table(const Source_Table&) = delete;

  const std::vector<Source_Row>& Rows() const { return rows_; }
  const std::string& File() const { return file_; }
  int Column(std::string_view name) const;  ///< -1 where the file lacks it

 private:
  void Read_Header(std::string_view line, std::string_view columns, Problems& problems);
  void Read_Row(std::string_view line, const Place& place, Problems& problems, Blanks blanks);

  std::string file_;
  std::map<std::string, int, std::less<>> columns_;
  std::vector<Source_Row> rows_;
};

/// The parts of `text` between `separator`s.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

}  // namespace Data_Compiler
