#include "platform/forms/Later.h"

#include <unordered_map>
#include <utility>

#include "platform/forms/Soon.h"

namespace Forms {

namespace {

using Waiting = std::unordered_map<const void*, std::function<void()>>;

Waiting& The_Waiting() {
  static Waiting waiting;
  return waiting;
}

}  // namespace

void Show_Later(const void* who, const std::function<void()>& show) {
  static Soon soon(Show_Now);
  soon.Set_Off();
  The_Waiting().try_emplace(who, show);
}

void Forget_Later(const void* who) { The_Waiting().erase(who); }

void Show_Now() {
  for (const auto& [who, show] : std::exchange(The_Waiting(), {})) show();
}

}  // namespace Forms
