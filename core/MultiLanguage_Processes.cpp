#include "core/MultiLanguage_Processes.h"

#include "core/Languages.h"
#include "core/tables/System_Tables.h"
#include "core/tables/Text_Tables.h"
#include "platform/forms/Form.h"
#include "platform/run_time/Conversions.h"

void Load_Language_Words(std::string_view form_key) {
  Open_Query(Words_Query,
             "SELECT * FROM Words WHERE Program='" + Text(form_key) + "' ORDER BY ID ");
}

void Read_Language_Words(std::string_view form_key, Forms::Form& form) {
  Load_Language_Words(form_key);
  Words_Query.MoveFirst();
  for (int row = 1; !Words_Query.Eof(); ++row) {
    Word_Variable[row] = Words_Query.Fields("Variable").As_Text();
    Word_Type[row] = Words_Query.Fields("types_variable").As_Text();
    Word_Text[row] = Next_Language_Word();
  }
  Apply_Language_Words(form);
}

void Apply_Language_Words(Forms::Form& form) {
  Words_Query.MoveFirst();
  for (int row = 1; !Words_Query.Eof(); ++row) {
    if (Word_Type[row] == "Cap") form.Find_Control(Word_Variable[row]).Set_Caption(Word_Text[row]);
    if (Word_Type[row] == "Frm") form.Set_Caption(Word_Text[row]);
    Words_Query.MoveNext();
  }
  form.Choose_Mnemonics();
}

void Move_Behind_Caption() {
  Words_Query.MoveFirst();
  while (Words_Query.Fields("types_variable").As_Text() != "Frm") Words_Query.MoveNext();
  Words_Query.MoveNext();
}

Text Next_Language_Word() {
  Text word = Words_Query.Fields(Words_Column()).As_Text();
  Words_Query.MoveNext();
  return word;
}

Integer Language_Number_From_Name() {
  const Text name = Upper_Case(Wine_System.Language_Name_of_Product);
  constexpr Integer spanish = 4;
  if (name == "ESPAÑOL") return spanish;
  for (Integer number = First_Language; Language_Place(number) < Languages.size(); ++number) {
    if (name == Language_Name_From_Number(number)) return number;
  }
  return First_Language;
}

Text Language_Name_From_Number(Integer number) {
  const std::size_t place = Language_Place(number);
  return Upper_Case(Text(Languages[place < Languages.size() ? place : 0]));
}
