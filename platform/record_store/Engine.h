// The connection to the engine: statements, bursts and the way from its results to failures.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/run_time/Run_Time_Error.h"

struct sqlite3;
struct sqlite3_stmt;

namespace Record_Store {

struct Statement_End {
  void operator()(sqlite3_stmt* statement) const;
};
using Statement = std::unique_ptr<sqlite3_stmt, Statement_End>;

/// Pages of the data file, which the engine has to be told before it reads the first one.
inline constexpr int Page_Size = 4096;
inline constexpr int Application_Id = 0x57434D42;

/// Fails with 3027, and the path that stands in the way, where the file's content, or the journal
/// that each write needs beside it, cannot be written by this process.
void Require_Writable(const std::string& path);

class Engine {
 public:
  enum class Mode { Read, Write, Create };

  /// Opens the connection and gives it its key. Nothing of the file is read.
  Engine(const std::string& path, Mode mode, std::string_view password);
  ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  /// Kept statements live as long as the connection; others for one use.
  Statement Prepare(const std::string& text) const;
  void Execute(const char* text) const;
  std::int64_t Number_Of(const std::string& query) const;  ///< first column of the first row, or 0

  /// True on a row, False at the end. Fails by the engine's result.
  bool Step(sqlite3_stmt* statement) const;
  /// Steps a statement that gives no rows, and makes it ready again. Rows changed.
  int Run(sqlite3_stmt* statement) const;

  bool In_Burst() const;
  [[noreturn]] void Fail_By(int result) const;
  sqlite3* Handle() const { return handle_; }
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
  sqlite3* handle_ = nullptr;
};

}  // namespace Record_Store
