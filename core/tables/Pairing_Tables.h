// The tables of grapes, pairings and cheeses. What links them stands in Link_Tables.h.
#pragma once

#include "core/tables/Rows.h"

// ---- Varieties: grape varieties ----

struct Varieties_Record {
  Long Variety_ID{};
  Text Variety_Name;  ///< "x": a row that is never listed
  Long Variety_Group{};
  Long Variety_SubGr{};  ///< 1 to 10 within the group
  Text Variety_Color;
  Text Other_Names;
  Text SERIAL_NUMBER;
  Integer Used{};
  Integer Blend_ID{};
};

inline Varieties_Record Varieties;
inline Record_Store::Recordset Varieties_Recordset;  ///< open only while in use

extern const Tables::Table<Varieties_Record> Varieties_Description;
inline constexpr Tables::Table_In_Use Varieties_Table{Varieties_Description, Varieties_Recordset,
                                                      Varieties, "Variety_ID"};

// ---- Maridages: the pairing catalogue ----

struct Maridages_Record {
  Integer Maridage_ID{};
  Text Maridage_Name;
  Long Maridage_Group{};  ///< below 1,000,000 in delivered rows
  Long Maridage_SubGr{};  ///< 1 to 10 within the group
  Text SERIAL_NUMBER;
  Text English;  ///< "x" in a language that has no name
  Text Spanish;
  Text French;
  Text German;
  Text Italian;
  Text Japanese;
  Text Portuguese;
  Integer Multiuse{};  ///< 0 to 3; 2 and 3 are offered as pairings of wines
  Integer CAT_ID{};    ///< carried, not interpreted
  Integer Used{};
  Integer Cheese_ID = -1;  ///< the cheese that the row stands for, -1 for a food or an occasion
};

inline Maridages_Record Maridages;
inline Record_Store::Recordset Maridages_Recordset;  ///< open only while in use

/// A language's number plus 2 is its column's ordinal, and its name in capitals its index.
extern const Tables::Table<Maridages_Record> Maridages_Description;
inline constexpr Tables::Table_In_Use Maridages_Table{Maridages_Description, Maridages_Recordset,
                                                      Maridages, "Maridage_ID"};

// ---- Cheeses ----

struct Cheeses_Record {
  Long Cheese_ID{};
  Text Cheese_Country;      ///< Short_Name of the country
  Text Cheese_Description;  ///< key into Words_for_Data as text, "-1" for none
  Text Cheese_Name;
  Text Cheese_Type;
  Text Eat_With;
  Text SERIAL_NUMBER;
  Text Varieties;
  Text Type_Milk;
};

inline Cheeses_Record Cheeses;
inline Record_Store::Recordset Cheeses_Recordset;  ///< open only while in use

extern const Tables::Table<Cheeses_Record> Cheeses_Description;
