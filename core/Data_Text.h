// The long texts of the data: rows of Words_for_Data, named by their key. Each holds a text in the
// language in force and "x" in those that have none.
#pragma once

#include <string_view>

#include "platform/run_time/Values.h"

/// The text of the row in the language in force; one blank for the key -1 and where the row has no
/// text in this language. A key without a row is 3021, or one blank where faults are mended.
Text Data_Text(Long key);

/// Adds a row that holds `text` in the language in force alone, and returns its key.
Long Add_Data_Text(std::string_view text);

/// Whether the change of a stored text is begun: without it the change fails with 3020, and the
/// table stays open.
enum class Edit_First { Yes, No };

/// Stores `text` over that of the row in the language in force, and returns the key; adds a row,
/// and returns its key, where there is none of this key.
Long Change_Data_Text(Long key, std::string_view text, Edit_First edit = Edit_First::Yes);

/// Whether the row that the text belongs to is being added or stands already.
enum class Text_Of { New_Row, Stored_Row };

/// Stores what was entered and returns the key to keep, -1 for a new row without a text. Of a
/// stored row an emptied text becomes "x", in a row of texts of its own where there was none;
/// mended, a text that stays as it was is not touched, and a lone "x" is stored with a blank behind
/// it.
Long Store_Data_Text(Long key, const Text& entered, Text_Of of, Edit_First edit = Edit_First::Yes);

// ---- short texts, of which "x" means that none was given ----

/// One blank for "x".
Text Given_Or_Blank(const Text& stored);
/// "x" for blanks alone.
Text Entered_Or_X(const Text& entered);

/// Removes the row, in all languages; nothing where there is none.
void Remove_Data_Text(Long key);
