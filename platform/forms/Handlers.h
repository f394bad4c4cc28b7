// The way from the toolkit into a handler. For the sources of this room only.
#pragma once

#include <functional>
#include <type_traits>

#include "platform/forms/Control.h"
#include "platform/forms/Form.h"
#include "platform/run_time/Guard.h"

namespace Forms {

/// The user did something to `control`: runs `handler` inside the guard, unless the control or its
/// form takes no input now. Every way of the user's goes through here, also those that the toolkit
/// does not close by itself, as the actions of assistive programs.
template <class... Arguments>
void Raise(const Control& control, const std::function<void(Arguments...)>& handler,
           std::type_identity_t<Arguments>... arguments) {
  if (!handler || !control.Enabled() || !control.Owner().Takes_Input()) return;
  Run_Guarded([&] { handler(arguments...); });
}

}  // namespace Forms
