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

extern const Tables::Table<Wine_System_Record> Wine_System_Description;

// ---- Cellars: the first two rows are the user's cellars ----

struct Cellars_Record {
  Long ID{};
  Text Cellar_Name;  ///< "x" in the first row: no cellars were named yet
};

inline Cellars_Record Cellars;
inline Record_Store::Recordset Cellars_Recordset;  ///< open only while in use

/// `ID` of the current row of `Cellars`; new wines take it. Set at start-up and by the menu.
inline Integer Current_Cellar_ID = 0;

extern const Tables::Table<Cellars_Record> Cellars_Description;

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

extern const Tables::Table<Photos_Record> Photos_Description;
