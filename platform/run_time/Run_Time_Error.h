// The one failure type of the program.
#pragma once

#include <exception>
#include <string>
#include <string_view>

/// Every failure the program knows, by its number. The wording belongs to the number and stands in
/// Run_Time_Error.cpp alone.
enum class Failure : int {
  Invalid_Procedure_Call = 5,
  Overflow = 6,
  Out_Of_Memory = 7,
  Subscript_Out_Of_Range = 9,
  Type_Mismatch = 13,
  Internal_Error = 51,
  File_Not_Found = 53,
  Disk_Full = 61,
  Permission_Denied = 70,
  Path_Not_Found = 76,
  Object_Variable_Not_Set = 91,
  Invalid_Use_Of_Null = 94,
  Invalid_Property_Value = 380,
  Invalid_Property_Array_Index = 381,
  Object_Required = 424,
  Cannot_Create_Object = 429,
  Invalid_Picture = 481,
  Control_Not_Found = 730,
  Not_An_Index = 3015,
  No_Current_Index = 3019,
  No_Add_New_Or_Edit = 3020,
  No_Current_Record = 3021,
  Duplicate_Key = 3022,
  File_Not_There = 3024,
  Not_Enough_Space = 3026,
  Read_Only = 3027,
  Not_A_Valid_Password = 3031,
  Disk_Error = 3043,
  Syntax_Error_In_Query = 3075,
  No_Such_Table = 3078,
  Record_Is_Deleted = 3167,
  Invalid_Operation = 3219,
  Currently_Locked = 3260,
  No_Such_Item = 3265,
  Unrecognized_Format = 3343,
  Object_Invalid = 3420,
  Index_Out_Of_Bounds = 35600,
};

/// A failure on its way to the event border. Nothing between the place that raises it and that
/// border catches it.
class Run_Time_Error : public std::exception {
 public:
  /// `name` takes the place of the name, path or statement that the failure's wording speaks of;
  /// `more` stands behind the wording, on a line of its own.
  explicit Run_Time_Error(Failure failure, std::string_view name = {}, std::string_view more = {});

  int Number() const { return static_cast<int>(failure_); }
  const std::string& Text() const { return text_; }
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  Failure failure_;
  std::string text_;
};

/// Raises `failure`. A function of its own, so that the places that test stay short.
[[noreturn]] void Fail(Failure failure, std::string_view name = {}, std::string_view more = {});
