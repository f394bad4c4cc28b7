// What is wrong with the data, each with the line where a person mends it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Data_Compiler {

/// A line of a data file, counted from 1; line 0 means the file as a whole.
struct Place {
  std::string file;
  int line = 0;

  /// "labels.tsv:12", or the file's name alone for line 0.
  std::string Text() const;
};

/// Gathers all problems, so that one run shows every line to mend.
class Problems {
 public:
  void Report(const Place& place, std::string_view message);
  void Report(std::string_view where, std::string_view message);

  bool None() const { return lines_.empty(); }
  const std::vector<std::string>& Lines() const { return lines_; }

 private:
  std::vector<std::string> lines_;
};

}  // namespace Data_Compiler
