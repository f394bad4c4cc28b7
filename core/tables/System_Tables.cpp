#include "core/tables/System_Tables.h"

const Tables::Table<Wine_System_Record> Wine_System_Description = [] {
  using R = Wine_System_Record;
  return Tables::Table<R>{"Wine_System",
                          {{"Country_Target", &R::Country_Target},
                           {"CUS_NAME", &R::CUS_NAME},
                           {"Language_Name_of_Product", &R::Language_Name_of_Product},
                           {"Installation_ID", &R::Installation_ID},
                           {"Version", &R::Version},
                           {"Wine_Cellar_as_Option", &R::Wine_Cellar_as_Option},
                           {"System_Language_Number", &R::System_Language_Number},
                           {"System_Initialized", &R::System_Initialized},
                           {"E_Mail", &R::E_Mail},
                           {"Number_of_Cellars", &R::Number_of_Cellars}},
                          {}};
}();

const Tables::Table<Cellars_Record> Cellars_Description = [] {
  using R = Cellars_Record;
  return Tables::Table<R>{
      "Cellars", {{"ID", &R::ID, Tables::Counter}, {"Cellar_Name", &R::Cellar_Name}}, {}};
}();

const Tables::Table<Photos_Record> Photos_Description = [] {
  using R = Photos_Record;
  return Tables::Table<R>{"Photos",
                          {{"Photo_ID", &R::Photo_ID},
                           {"Photo_NAME", &R::Photo_NAME, "x"},
                           {"Photo_of", &R::Photo_of, "x"},
                           {"Photo_Type", &R::Photo_Type, "x"},
                           {"Relation_ID", &R::Relation_ID, "x"},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"}},
                          {Tables::Primary("Photo_ID"), {"Relation_ID"}}};
}();
