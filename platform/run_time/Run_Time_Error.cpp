#include "platform/run_time/Run_Time_Error.h"

#include <array>

namespace {

struct Wording {
  Failure failure;
  std::string_view text;  // a % stands for the name
};

constexpr std::array wordings{
    Wording{Failure::Invalid_Procedure_Call, "Invalid procedure call or argument"},
    Wording{Failure::Overflow, "Overflow"},
    Wording{Failure::Out_Of_Memory, "Out of memory"},
    Wording{Failure::Subscript_Out_Of_Range, "Subscript out of range"},
    Wording{Failure::Type_Mismatch, "Type mismatch"},
    Wording{Failure::Internal_Error, "Internal error"},
    Wording{Failure::File_Not_Found, "File not found"},
    Wording{Failure::Disk_Full, "Disk full"},
    Wording{Failure::Permission_Denied, "Permission denied"},
    Wording{Failure::Path_Not_Found, "Path not found"},
    Wording{Failure::Object_Variable_Not_Set, "Object variable or With block variable not set"},
    Wording{Failure::Invalid_Use_Of_Null, "Invalid use of Null"},
    Wording{Failure::Invalid_Property_Value, "Invalid property value"},
    Wording{Failure::Invalid_Property_Array_Index, "Invalid property array index"},
    Wording{Failure::Object_Required, "Object required"},
    Wording{Failure::Cannot_Create_Object, "Can't create object"},
    Wording{Failure::Invalid_Picture, "Invalid picture"},
    Wording{Failure::Control_Not_Found, "Control '%' not found"},
    Wording{Failure::Not_An_Index, "'%' isn't an index in this table."},
    Wording{Failure::No_Current_Index, "Operation invalid without a current index."},
    Wording{Failure::No_Add_New_Or_Edit, "Update or CancelUpdate without AddNew or Edit."},
    Wording{Failure::No_Current_Record, "No current record."},
    Wording{Failure::Duplicate_Key,
            "The changes would create duplicate values in an index or primary key."},
    Wording{Failure::File_Not_There, "Could not find file '%'."},
    Wording{Failure::Not_Enough_Space, "Not enough space on disk."},
    Wording{Failure::Read_Only, "Cannot update. Database or object is read-only."},
    Wording{Failure::Not_A_Valid_Password, "Not a valid password."},
    Wording{Failure::Disk_Error, "Disk or network error."},
    Wording{Failure::Syntax_Error_In_Query, "Syntax error in query expression '%'."},
    Wording{Failure::No_Such_Table, "Cannot find the input table or query '%'."},
    Wording{Failure::Record_Is_Deleted, "Record is deleted."},
    Wording{Failure::Invalid_Operation, "Invalid operation."},
    Wording{Failure::Currently_Locked, "Could not update; currently locked."},
    Wording{Failure::No_Such_Item, "Item not found in this collection."},
    Wording{Failure::Unrecognized_Format, "Unrecognized database format '%'."},
    Wording{Failure::Object_Invalid, "Object invalid or no longer set."},
    Wording{Failure::Index_Out_Of_Bounds, "Index out of bounds"},
};

std::string Text_Of(Failure failure, std::string_view name) {
  for (const Wording& wording : wordings) {
    if (wording.failure != failure) continue;
    std::string text(wording.text);
    if (const auto place = text.find('%'); place != std::string::npos) text.replace(place, 1, name);
    return text;
  }
  return "Application-defined or object-defined error";
}

}  // namespace

Run_Time_Error::Run_Time_Error(Failure failure, std::string_view name, std::string_view more)
    : failure_(failure), text_(Text_Of(failure, name)) {
  if (!more.empty()) text_.append("\n").append(more);
}

void Fail(Failure failure, std::string_view name, std::string_view more) {
  throw Run_Time_Error(failure, name, more);
}
