// The grapes of a region where they are made to be what they should be: for the mended stores of
// Link_Store.h.
#pragma once

/// The region in the memory record has the first `count` items of the selection, each once: in
/// both tables, where rows that stand rightly stay. A grape that it has newly is counted, and one
/// that it has no longer counted out. An item without a row is left out. Changes `Decoded_Items`
/// and the memory record of `Varieties`. 9 for a 101st item.
void Make_Varieties_of_Region(int count);
