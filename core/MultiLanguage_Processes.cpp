#include "core/MultiLanguage_Processes.h"

#include <array>

#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/forms/Form.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr std::array language_names{"ENGLISH", "SPANISH",  "FRENCH",    "GERMAN",
                                    "ITALIAN", "JAPANESE", "PORTUGUESE"};
constexpr Integer first_language = 3;

}  // namespace

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
}

Text Next_Language_Word() {
  Text word = Words_Query.Fields(System_Language).As_Text();
  Words_Query.MoveNext();
  return word;
}

Integer Language_Number_From_Name() {
  const Text name = Upper_Case(Wine_System.Language_Name_of_Product);
  if (name == "INGLES") return first_language;
  if (name == "ESPAÑOL") return first_language + 1;
  for (std::size_t place = 0; place < language_names.size(); ++place) {
    if (name == language_names[place]) return static_cast<Integer>(first_language + place);
  }
  return first_language;
}

Text Language_Name_From_Number(Integer number) {
  const bool known = number >= first_language && number < first_language + 7;
  return language_names[known ? static_cast<std::size_t>(number - first_language) : 0];
}

Text Data_Text(Long key) {
  if (key == -1) return " ";
  Open_Table(Words_for_Data_Recordset, "Words_for_Data", "Multi_Language_ID");
  Words_for_Data_Recordset.Seek("=", key);
  Text text = Words_for_Data_Recordset.Fields(System_Language - 2).As_Text();
  Close_Table(Words_for_Data_Recordset);
  return text == "x" ? " " : text;
}

Long Add_Data_Text(std::string_view text) {
  using R = Words_for_Data_Record;
  constexpr std::array columns{&R::English, &R::Spanish, &R::French,    &R::German,
                               &R::Italian, &R::Japanes, &R::Portuguese};
  Init_Words_for_Data_Record();
  Words_for_Data.*columns.at(static_cast<std::size_t>(System_Language - first_language)) = text;
  Open_Table(Words_for_Data_Recordset, "Words_for_Data");
  Words_for_Data_Recordset.AddNew();
  Write_Words_for_Data_Record();
  Words_for_Data_Recordset.MoveLast();
  const Long key = Words_for_Data_Recordset.Fields("ID").As_Long();
  Close_Table(Words_for_Data_Recordset);
  return key;
}
