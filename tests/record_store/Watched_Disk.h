// The machine's file system as the engine sees it, counted and, when asked, failing.
#pragma once

namespace Watched_Disk {

/// Stands between the engine and the file system from now on, for files opened later.
void Install();

enum class Fault { None, Full, Write_Fails, Sync_Fails };

/// The operation of this kind (a write, or a sync) after `operations` more goes wrong, and all of
/// its kind after it.
void Break(Fault fault, int operations);
void Repair();

void Count_From_Zero();
int Syncs();
int Writes();

}  // namespace Watched_Disk
