// What the user made of each form's window: its size, whether it fills the screen, where the bars
// between its parts stand and how wide its columns are. Kept in the desktop's place for settings.
// For the sources of this room only.
#pragma once

#include <QSize>

namespace Forms {

struct Form_Data;

/// The size that the window had last; an invalid one if it was never open.
QSize Remembered_Size(const Form_Data& form);
bool Was_Maximised(const Form_Data& form);
/// Bars and columns as they stood last.
void Restore_Parts(const Form_Data& form);
/// Keeps all of it as it is now.
void Remember_Window(const Form_Data& form);

}  // namespace Forms
