#include "core/tables/Text_Tables.h"

const Tables::Table<Words_Record> Words_Description = [] {
  using R = Words_Record;
  return Tables::Table<R>{"Words",
                          {{"ID", &R::ID, Tables::Counter},
                           {"Program", &R::Program},
                           {"Variable", &R::Variable},
                           {"English", &R::English},
                           {"Spanish", &R::Spanish},
                           {"French", &R::French},
                           {"German", &R::German},
                           {"Italian", &R::Italian},
                           {"Japanese", &R::Japanese},
                           {"Portuguese", &R::Portuguese},
                           {"types_variable", &R::types_variable}},
                          {}};
}();

const Tables::Table<Words_for_Data_Record> Words_for_Data_Description = [] {
  using R = Words_for_Data_Record;
  return Tables::Table<R>{"Words_for_Data",
                          {{"Multi_Language_ID", &R::Multi_Language_ID, Tables::Counter},
                           {"English", &R::English, "x"},
                           {"Spanish", &R::Spanish, "x"},
                           {"French", &R::French, "x"},
                           {"German", &R::German, "x"},
                           {"Italian", &R::Italian, "x"},
                           {"Japanes", &R::Japanes, "x"},
                           {"Portuguese", &R::Portuguese, "x"},
                           {"ID", &R::ID, Tables::Copy_Of_Counter}},
                          {Tables::Primary("Multi_Language_ID")}};
}();

const Tables::Table<Glossary_Record> Glossary_Description = [] {
  using R = Glossary_Record;
  return Tables::Table<R>{"Glossary",
                          {{"ID", &R::ID, Tables::Counter},
                           {"Keyword", &R::Keyword},
                           {"Country_of_Origin", &R::Country_of_Origin},
                           {"English", &R::English},
                           {"Spanish", &R::Spanish},
                           {"French", &R::French},
                           {"German", &R::German},
                           {"Italian", &R::Italian},
                           {"Japanese", &R::Japanese},
                           {"Portuguese", &R::Portuguese}},
                          {Tables::Primary("ID")}};
}();

const Tables::Table<ReplaceKeys_Record> ReplaceKeys_Description = [] {
  using R = ReplaceKeys_Record;
  return Tables::Table<R>{
      "ReplaceKeys", {{"Foreign_Key", &R::Foreign_Key}, {"English_Key", &R::English_Key}}, {}};
}();

const Tables::Table<Languages_Available_Record> Languages_Available_Description = [] {
  using R = Languages_Available_Record;
  return Tables::Table<R>{"Languages_Available",
                          {{"ID", &R::ID},
                           {"Language_Name", &R::Language_Name},
                           {"Language_Number", &R::Language_Number},
                           {"Width_Main", &R::Width_Main}},
                          {{"Language_Number"}}};
}();
