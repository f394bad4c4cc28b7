// The tables of grapes, pairings and cheeses. What links them stands in Link_Tables.h.
#pragma once

#include "core/tables/Table.h"

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

inline const Tables::Table<Varieties_Record> Varieties_Description = [] {
  using R = Varieties_Record;
  return Tables::Table<R>{
      "Varieties",
      {{"Variety_ID", &R::Variety_ID, Tables::Counter, 0},
       {"Variety_Name", &R::Variety_Name, "x"},
       {"Variety_Group", &R::Variety_Group},
       {"Variety_SubGr", &R::Variety_SubGr},
       {"Variety_Color", &R::Variety_Color, "x"},
       {"Other_Names", &R::Other_Names, "x"},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
       {"Used", &R::Used, 0},
       {"Blend_ID", &R::Blend_ID, -1}},
      {Tables::Primary("Variety_ID"), {"Variety_Name"}, {"Variety_GROUP", {"Variety_Group"}}}};
}();

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
inline const Tables::Table<Maridages_Record> Maridages_Description = [] {
  using R = Maridages_Record;
  return Tables::Table<R>{"Maridages",
                          {{"Maridage_ID", &R::Maridage_ID, Tables::Counter},
                           {"Maridage_Name", &R::Maridage_Name, "x"},
                           {"Maridage_Group", &R::Maridage_Group, 0},
                           {"Maridage_SubGr", &R::Maridage_SubGr, 0},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"English", &R::English, "x"},
                           {"Spanish", &R::Spanish, "x"},
                           {"French", &R::French, "x"},
                           {"German", &R::German, "x"},
                           {"Italian", &R::Italian, "x"},
                           {"Japanese", &R::Japanese, "x"},
                           {"Portuguese", &R::Portuguese, "x"},
                           {"Multiuse", &R::Multiuse, 0},
                           {"CAT_ID", &R::CAT_ID},
                           {"Used", &R::Used, 0},
                           {"Cheese_ID", &R::Cheese_ID}},
                          {Tables::Primary("Maridage_ID"),
                           {"Maridage_Group", {"Maridage_Group", "Maridage_SubGr"}},
                           {"ENGLISH", {"English"}},
                           {"SPANISH", {"Spanish"}},
                           {"FRENCH", {"French"}},
                           {"GERMAN", {"German"}},
                           {"ITALIAN", {"Italian"}},
                           {"JAPANESE", {"Japanese"}},
                           {"PORTUGUESE", {"Portuguese"}}}};
}();

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

inline const Tables::Table<Cheeses_Record> Cheeses_Description = [] {
  using R = Cheeses_Record;
  return Tables::Table<R>{"Cheeses",
                          {{"Cheese_ID", &R::Cheese_ID, Tables::Counter},
                           {"Cheese_Country", &R::Cheese_Country, "x"},
                           {"Cheese_Description", &R::Cheese_Description, "x"},
                           {"Cheese_Name", &R::Cheese_Name, "x"},
                           {"Cheese_Type", &R::Cheese_Type, "x"},
                           {"Eat_With", &R::Eat_With, "x"},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"Varieties", &R::Varieties, "x"},
                           {"Type_Milk", &R::Type_Milk, "x"}},
                          {Tables::Primary("Cheese_ID")}};
}();
