#include "core/Data_Text.h"

#include "core/Known_Faults.h"
#include "core/Languages.h"
#include "core/tables/Text_Tables.h"
#include "platform/run_time/Conversions.h"

Text Data_Text(Long key) {
  if (key == -1) return " ";
  Open_By_Key(Words_for_Data_Table);
  Words_for_Data_Recordset.Seek("=", key);
  const bool blank = Words_for_Data_Recordset.NoMatch() && !Is_Kept(Fault::Gone_Row_Ends_The_Run);
  Text text = blank ? " " : Words_for_Data_Recordset.Fields(Words_for_Data_Column()).As_Text();
  Close_Table(Words_for_Data_Recordset);
  return Given_Or_Blank(text);
}

Long Add_Data_Text(std::string_view text) {
  Init_Words_for_Data_Record();
  In_Language(Words_for_Data) = text;
  Open_Table(Words_for_Data_Recordset, "Words_for_Data");
  Words_for_Data_Recordset.AddNew();
  Write_Words_for_Data_Record();
  Read_Last_Row(Words_for_Data_Table);
  Close_Table(Words_for_Data_Recordset);
  return Words_for_Data.ID;
}

Long Change_Data_Text(Long key, std::string_view text, Edit_First edit) {
  Open_By_Key(Words_for_Data_Table);
  Words_for_Data_Recordset.Seek("=", key);
  if (Words_for_Data_Recordset.NoMatch()) {
    Close_Table(Words_for_Data_Recordset);
    return Add_Data_Text(text);
  }
  if (edit == Edit_First::Yes) Words_for_Data_Recordset.Edit();
  Words_for_Data_Recordset.Fields(Words_for_Data_Column()) = text;
  Words_for_Data_Recordset.Update();
  Close_Table(Words_for_Data_Recordset);
  return key;
}

Long Store_Data_Text(Long key, const Text& entered, Text_Of of, Edit_First edit) {
  const bool lone_x = entered == "x" && !Is_Kept(Fault::Lone_X_Is_No_Text);
  const Text text = lone_x ? "x " : Entered_Or_X(entered);
  if (of == Text_Of::New_Row) return Trim(entered).empty() ? -1 : Add_Data_Text(text);
  const bool stands =
      !Is_Kept(Fault::Stored_Text_Cannot_Change) && Data_Text(key) == Given_Or_Blank(text);
  return stands ? key : Change_Data_Text(key, text, edit);
}

Text Given_Or_Blank(const Text& stored) { return stored == "x" ? " " : stored; }

Text Entered_Or_X(const Text& entered) { return Trim(entered).empty() ? "x" : entered; }

void Remove_Data_Text(Long key) {
  Open_By_Key(Words_for_Data_Table);
  Words_for_Data_Recordset.Seek("=", key);
  if (!Words_for_Data_Recordset.NoMatch()) Words_for_Data_Recordset.Delete();
  Close_Table(Words_for_Data_Recordset);
}
