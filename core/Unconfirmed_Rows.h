// Rows that a catalogue screen had put into its table and that were never confirmed, because the
// run was killed.
#pragma once

/// Mended alone: those of regions, labels and wineries go. A row that is being added by another
/// process at this moment goes too.
void Remove_Unconfirmed_Rows();
