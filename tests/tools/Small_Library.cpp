#include "tests/tools/Small_Library.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

Small_Library::Small_Library() {
  fs::copy(SMALL_LIBRARY_FOLDER, Folder());
  for (const char* file : {"countries", "states", "languages", "wine_system", "cellars",
                           "wine_taste_type", "words", "replace_keys"})
    fs::copy(std::string(DATA_FOLDER "/") + file + ".tsv", Folder());
}

std::string Contents(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

void Small_Library::Replace(const std::string& file, std::string_view from,
                            std::string_view to) const {
  std::string text = Contents(Folder() + "/" + file);
  const std::size_t at = text.find(from);
  ASSERT_NE(at, std::string::npos) << file << " holds no '" << from << "'";
  text.replace(at, from.size(), to);
  std::ofstream(Folder() + "/" + file, std::ios::binary) << text;
}

void Small_Library::Append(const std::string& file, std::string_view lines) const {
  std::ofstream(Folder() + "/" + file, std::ios::binary | std::ios::app) << lines;
}

std::string Text_Of(const Data_Compiler::Problems& problems) {
  std::string text;
  for (const std::string& line : problems.Lines()) text += line + "\n";
  return text;
}
