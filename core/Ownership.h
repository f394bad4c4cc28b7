// Whose a row is: what `SERIAL_NUMBER` says, which is a mark and no number.
#pragma once

#include "platform/run_time/Conversions.h"
#include "platform/run_time/Values.h"

/// Of a row that the user brought about: by a key alone, by a key and the day, or by a key and the
/// installation, whose mark the `Wine_System` memory record holds.
Text Serial_of_User(const Text& key);
Text Dated_Serial_of_User(const Text& key);
Text Serial_of_Installation(const Text& key);

/// Whether the row was delivered. Its first three characters alone tell.
inline bool Is_System_Row(const Text& serial) { return Mid(serial, 1, 3) == "SYS"; }
