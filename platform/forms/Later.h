// What a handler changes many times is shown once: at the handler's end, or as soon as events are
// handled, as while a message box is up. For the sources of this room only.
#pragma once

#include <functional>

namespace Forms {

/// `show` runs once, soon. A second call for the same `who` before that changes nothing.
void Show_Later(const void* who, const std::function<void()>& show);
/// `who` goes: what was to be shown of it is not.
void Forget_Later(const void* who);
/// Shows all that is waiting.
void Show_Now();

}  // namespace Forms
