#include "core/Data_Text.h"

#include "core/Known_Faults.h"
#include "core/Languages.h"
#include "core/tables/Text_Tables.h"

Text Data_Text(Long key) {
  if (key == -1) return " ";
  Open_By_Key(Words_for_Data_Table);
  Words_for_Data_Recordset.Seek("=", key);
  const bool blank = Words_for_Data_Recordset.NoMatch() && !Is_Kept(Fault::Gone_Row_Ends_The_Run);
  Text text = blank ? " " : Words_for_Data_Recordset.Fields(Words_for_Data_Column()).As_Text();
  Close_Table(Words_for_Data_Recordset);
  return text == "x" ? " " : text;
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

void Remove_Data_Text(Long key) {
  Open_By_Key(Words_for_Data_Table);
  Words_for_Data_Recordset.Seek("=", key);
  if (!Words_for_Data_Recordset.NoMatch()) Words_for_Data_Recordset.Delete();
  Close_Table(Words_for_Data_Recordset);
}
