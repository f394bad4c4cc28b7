// The states of an entry field. Its colour tells which one it is in; the `Tag` of a field that must
// be filled is "1" once it is, "0" before.
#pragma once

#include <vector>

#include "platform/forms/Control.h"
#include "platform/forms/Text_Box.h"

/// Display only, in the colour that says so.
void Lock(Forms::Lockable_Control& field);
/// The user can change it.
void Open(Forms::Lockable_Control& field);
/// The colour of its lock: locked, or open.
void Show_Lock(Forms::Lockable_Control& field);

/// A value must be given: the colour that says so, and the gate is closed by it.
void Require(Forms::Placed_Control& field);
/// A value is given.
void Fill_In(Forms::Lockable_Control& field);
/// The rule of a required text box at each change of its text. A locked one requires nothing.
void Require_Unless(bool given, Forms::Text_Box& box);

/// The gate of a screen: whether all of these are filled.
bool All_Filled(const std::vector<Forms::Placed_Control*>& fields);
