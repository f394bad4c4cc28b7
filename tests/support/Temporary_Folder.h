// A folder of its own for a test, which goes with everything in it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

class Temporary_Folder {
 public:
  Temporary_Folder() {
    // The six letters at the end make room for those of the new folder's name.
    path_ =
        (std::filesystem::temp_directory_path() / ("wine_cellar_" + std::string(6, 'X'))).string();
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder");
  }
  ~Temporary_Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Temporary_Folder(const Temporary_Folder&) = delete;
  Temporary_Folder& operator=(const Temporary_Folder&) = delete;

  const std::string& Path() const { return path_; }
  std::string Path(std::string_view name) const { return path_ + "/" + std::string(name); }

 private:
  std::string path_;
};
