// The engine without the store, as the other side of a comparison: same file, same key, same order
// of texts.
#pragma once

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "platform/record_store/Text_Order.h"

class Bare_Engine {
 public:
  struct End {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  using Statement = std::unique_ptr<sqlite3_stmt, End>;

  Bare_Engine(const std::string& path, const std::string& password) {
    Check(sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                          nullptr));
    Check(sqlite3_key(handle_, password.data(), static_cast<int>(password.size())));
    Execute("PRAGMA cipher_page_size=4096");
    sqlite3_create_collation(handle_, "WINE", SQLITE_UTF8, nullptr, Collate<Compare_Keys>);
    sqlite3_create_collation(handle_, "WINE_CASE", SQLITE_UTF8, nullptr, Collate<Compare_Texts>);
  }
  ~Bare_Engine() { sqlite3_close(handle_); }
  Bare_Engine(const Bare_Engine&) = delete;
  Bare_Engine& operator=(const Bare_Engine&) = delete;

  Statement Prepare(const char* text) const {
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(handle_, text, -1, &statement, nullptr));
    return Statement(statement);
  }
  void Execute(const char* text) const {
    Check(sqlite3_exec(handle_, text, nullptr, nullptr, nullptr));
  }

 private:
  template <int (*compare)(std::string_view, std::string_view)>
  static int Collate(void*, int a_length, const void* a, int b_length, const void* b) {
    return compare({static_cast<const char*>(a), static_cast<std::size_t>(a_length)},
                   {static_cast<const char*>(b), static_cast<std::size_t>(b_length)});
  }
  void Check(int result) const {
    if (result == SQLITE_OK) return;
    std::fprintf(stderr, "%s\n", sqlite3_errmsg(handle_));
    std::abort();
  }

  sqlite3* handle_ = nullptr;
};
