// The tables of the installation: settings, the names of the cellars, the photos.
#pragma once

#include "core/tables/Table.h"

// ---- Wine_System: one row, the settings; read once at start-up ----

struct Wine_System_Record {
  Text Country_Target;  ///< Short_Name of the user's country
  Text CUS_NAME;
  Text Language_Name_of_Product;
  Text Installation_ID;  ///< stands in the origin mark of each row that the user makes
  Text Version;
  bool Wine_Cellar_as_Option{};
  Integer System_Language_Number{};  ///< 3 to 9: the language in force
  bool System_Initialized{};
  Text E_Mail;
  Integer Number_of_Cellars{};  ///< 1 or 2
};

inline Wine_System_Record Wine_System;
inline Record_Store::Recordset Wine_System_Recordset;  ///< open only while in use

inline const Tables::Table<Wine_System_Record> Wine_System_Description = [] {
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

// ---- Cellars: the first two rows are the user's cellars ----

struct Cellars_Record {
  Long ID{};
  Text Cellar_Name;  ///< "x" in the first row: no cellars were named yet
};

inline Cellars_Record Cellars;
inline Record_Store::Recordset Cellars_Recordset;  ///< open only while in use

inline const Tables::Table<Cellars_Record> Cellars_Description = [] {
  using R = Cellars_Record;
  return Tables::Table<R>{
      "Cellars", {{"ID", &R::ID, Tables::Counter}, {"Cellar_Name", &R::Cellar_Name}}, {}};
}();

// ---- Photos: every key of this table is text, given by the program ----

struct Photos_Record {
  Text Photo_ID;
  Text Photo_NAME;   ///< file name
  Text Photo_of;     ///< "Region", "Winery" or "Label"
  Text Photo_Type;   ///< "JPG" or "GIF"
  Text Relation_ID;  ///< key of the owner's row
  Text SERIAL_NUMBER;
};

inline Photos_Record Photos;
inline Record_Store::Recordset Photos_Recordset;  ///< stays open while an owner's photos are paged

inline const Tables::Table<Photos_Record> Photos_Description = [] {
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
