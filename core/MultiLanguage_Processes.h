// The texts of the screens in the language in force.
#pragma once

#include <string_view>

#include "platform/run_time/Bounded_Array.h"
#include "platform/run_time/Values.h"

namespace Forms {
class Form;
}

/// The rows of the form read last, from entry 1; a form's 151st row is failure 9.
inline Bounded_Array<Text, 150> Word_Text;
inline Bounded_Array<Text, 150> Word_Variable;  ///< the control that the row names
inline Bounded_Array<Text, 150> Word_Type;      ///< "Cap", "Frm" or "Head"

/// Opens the rows of a form as `Words_Query`, in their order. It stays open until the next form's.
void Load_Language_Words(std::string_view form_key);

/// Reads a form's rows into the word arrays and applies them.
void Read_Language_Words(std::string_view form_key, Forms::Form& form);

/// Walks through `Words_Query` once more: "Cap" captions the control that the row names (730 where
/// the form has none of this name), "Frm" the form, "Head" nothing.
void Apply_Language_Words(Forms::Form& form);

/// Moves to the row behind the form's own caption ("Frm"): there the words begin that name no
/// control, for the main window the five colours first.
void Move_Behind_Caption();

/// The text of the current row of `Words_Query` in the language in force; moves to the next row.
Text Next_Language_Word();

/// The number of `Language_Name_of_Product`, whatever its case; 3 for a name it does not know.
Integer Language_Number_From_Name();

/// The language's name in capitals; "ENGLISH" for a number that is no language's.
Text Language_Name_From_Number(Integer number);
