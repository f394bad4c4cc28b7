#include "platform/forms/Later.h"

#include <QApplication>
#include <QTimer>
#include <unordered_map>
#include <utility>

namespace Forms {

namespace {

using Waiting = std::unordered_map<const void*, std::function<void()>>;

Waiting& The_Waiting() {
  static Waiting waiting;
  return waiting;
}

}  // namespace

void Show_Later(const void* who, std::function<void()> show) {
  if (The_Waiting().empty()) QTimer::singleShot(0, qApp, Show_Now);
  The_Waiting().try_emplace(who, std::move(show));
}

void Forget_Later(const void* who) { The_Waiting().erase(who); }

void Show_Now() {
  for (const auto& [who, show] : std::exchange(The_Waiting(), {})) show();
}

}  // namespace Forms
