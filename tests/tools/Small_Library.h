// A data folder of a few rows that obeys every rule, to be broken in one place. Countries,
// languages, settings and the texts of the screens are the delivered ones.
#pragma once

#include <string>
#include <string_view>

#include "tests/support/Temporary_Folder.h"
#include "tools/Compile_Library.h"

class Small_Library {
 public:
  Small_Library();

  /// Writes `to` for the first `from` in a file; a test that names a text that is not there fails.
  void Replace(const std::string& file, std::string_view from, std::string_view to) const;
  void Append(const std::string& file, std::string_view lines) const;

  Data_Compiler::Library Compile(Data_Compiler::Problems& problems) const {
    return Data_Compiler::Compile_Library(Folder(), "English", problems);
  }

  std::string Folder() const { return folder_.Path("data"); }
  /// A place for files beside the data folder.
  std::string Path(std::string_view name) const { return folder_.Path(name); }

 private:
  Temporary_Folder folder_;
};

/// All problems, a line each.
std::string Text_Of(const Data_Compiler::Problems& problems);

std::string Contents(const std::string& path);
