// One program on one data file. For the sources of this room only.
#pragma once

#include <QSocketNotifier>
#include <memory>
#include <string>

namespace Forms {

class Only_Start {
 public:
  Only_Start() = default;
  ~Only_Start();
  Only_Start(const Only_Start&) = delete;
  Only_Start& operator=(const Only_Start&) = delete;

  /// Takes the file for this process, for as long as it lives. False where another process of the
  /// same user has it: that one was asked to come to the front.
  bool Take(const std::string& file);

 private:
  void Answer() const;

  int socket_ = -1;
  std::unique_ptr<QSocketNotifier> calls_;
};

}  // namespace Forms
