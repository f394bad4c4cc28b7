// How a control shows its colours and its state. For the sources of this room only.
#pragma once

#include "platform/forms/Colors.h"

class QWidget;

namespace Forms {

/// Shows the colours on the widget, exactly and under every style of the desktop, with a border
/// and a mark that tell the state to those who do not see the colour.
void Dress(QWidget* widget, Color back, Color fore);

/// Black or white, whichever reads better on `back`.
Color Readable_On(Color back);

}  // namespace Forms
