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

/// Removes the row, in all languages; nothing where there is none.
void Remove_Data_Text(Long key);
