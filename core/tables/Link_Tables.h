// The tables that tie wines, varieties, regions, cheeses and pairings together.
//
// Two kinds. A group link row holds an owner, a group (times ten) and a decimal mask of the
// subgroups in it: up to ten pairings or varieties in one row. A pair row holds two keys. An edge
// that is searched from both sides has a group link row on the owner's side and a pair row for the
// way back, or two pair rows.
#pragma once

#include "core/tables/Table.h"

// ---- group link rows: pairings of an owner ----

struct Maridages_Per_Wines_Record {
  Long Maridages_per_Wines_ID{};
  Long Wine_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
};

inline Maridages_Per_Wines_Record Maridages_Per_Wines;
inline Record_Store::Recordset Maridages_Per_Wines_Recordset;  ///< open only while in use

extern const Tables::Table<Maridages_Per_Wines_Record> Maridages_Per_Wines_Description;

struct Maridages_Per_Mobile_Wines_Record {
  Long Maridages_Per_Mobile_Wine_ID{};
  Long Mobile_Wine_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
};

inline Maridages_Per_Mobile_Wines_Record Maridages_Per_Mobile_Wines;
inline Record_Store::Recordset Maridages_Per_Mobile_Wines_Recordset;  ///< open only while in use

extern const Tables::Table<Maridages_Per_Mobile_Wines_Record>
    Maridages_Per_Mobile_Wines_Description;

struct Maridages_Per_Cheeses_Record {
  Long Cheese_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
};

inline Maridages_Per_Cheeses_Record Maridages_Per_Cheeses;
inline Record_Store::Recordset Maridages_Per_Cheeses_Recordset;  ///< open only while in use

extern const Tables::Table<Maridages_Per_Cheeses_Record> Maridages_Per_Cheeses_Description;

struct Maridages_Per_Variety_Record {
  Integer Maridages_Per_Variety_ID{};
  Integer Variety_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
  Text SERIAL_NUMBER;
};

inline Maridages_Per_Variety_Record Maridages_Per_Variety;
inline Record_Store::Recordset Maridages_Per_Variety_Recordset;  ///< open only while in use

extern const Tables::Table<Maridages_Per_Variety_Record> Maridages_Per_Variety_Description;

// ---- group link rows: varieties of an owner ----

struct Varieties_Per_Region_Record {
  Integer Varieties_Per_Region_ID{};
  Integer Region_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
  Text SERIAL_NUMBER;
};

inline Varieties_Per_Region_Record Varieties_Per_Region;
inline Record_Store::Recordset Varieties_Per_Region_Recordset;  ///< open only while in use

extern const Tables::Table<Varieties_Per_Region_Record> Varieties_Per_Region_Description;

struct Varieties_Per_Cheeses_Record {
  Integer Varieties_Per_Cheeses_ID{};
  Long Cheese_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
  Text SERIAL_NUMBER;
};

inline Varieties_Per_Cheeses_Record Varieties_Per_Cheeses;
inline Record_Store::Recordset Varieties_Per_Cheeses_Recordset;  ///< open only while in use

extern const Tables::Table<Varieties_Per_Cheeses_Record> Varieties_Per_Cheeses_Description;

// ---- pair rows: the way back to a variety, a region, a wine ----

struct Varieties_Per_Maridage_Record {
  Integer Varieties_Per_Maridages{};
  Long Maridage_ID{};
  Long GROUP{};      ///< always -1
  Long SUBCATEGO{};  ///< always 0
  Text SERIAL_NUMBER;
  Long Variety_ID{};
};

inline Varieties_Per_Maridage_Record Varieties_Per_Maridage;
inline Record_Store::Recordset Varieties_Per_Maridage_Recordset;  ///< open only while in use

extern const Tables::Table<Varieties_Per_Maridage_Record> Varieties_Per_Maridage_Description;

struct Regions_Per_Variety_Record {
  Integer Regions_Per_Variety_ID{};
  Integer Variety_ID{};
  Long GROUP{};      ///< always 0
  Long SUBCATEGO{};  ///< always 0
  Text SERIAL_NUMBER;
  Integer Region_ID{};
};

inline Regions_Per_Variety_Record Regions_Per_Variety;
inline Record_Store::Recordset Regions_Per_Variety_Recordset;  ///< open only while in use

extern const Tables::Table<Regions_Per_Variety_Record> Regions_Per_Variety_Description;

struct Mobile_Wines_per_Maridage_Record {
  Integer Mobile_Wines_per_Maridage_ID{};  ///< given by the program: the last row's plus 1
  Long Maridage_ID{};
  Long Mobile_Wine_ID{};
  Text SERIAL_NUMBER;
};

inline Mobile_Wines_per_Maridage_Record Mobile_Wines_per_Maridage;
inline Record_Store::Recordset Mobile_Wines_per_Maridage_Recordset;  ///< open only while in use

extern const Tables::Table<Mobile_Wines_per_Maridage_Record> Mobile_Wines_per_Maridage_Description;

// ---- pair rows: varieties of a wine ----

struct Varieties_of_Wines_Record {
  Long Wine_ID{};
  Long Variety_ID{};
};

inline Varieties_of_Wines_Record Varieties_of_Wines;
inline Record_Store::Recordset Varieties_of_Wines_Recordset;  ///< open only while in use

extern const Tables::Table<Varieties_of_Wines_Record> Varieties_of_Wines_Description;

struct Varieties_of_Mobile_Wines_Record {
  Long Mobile_Wine_ID{};
  Long Variety_ID{};
  Long Varieties_of_Mobile_Wines_ID{};
};

inline Varieties_of_Mobile_Wines_Record Varieties_of_Mobile_Wines;
inline Record_Store::Recordset Varieties_of_Mobile_Wines_Recordset;  ///< open only while in use

extern const Tables::Table<Varieties_of_Mobile_Wines_Record> Varieties_of_Mobile_Wines_Description;

// ---- pair rows: cheeses, each direction with a table of its own ----

struct Cheeses_Per_Variety_Record {
  Long GROUP{};      ///< always 0
  Long SUBCATEGO{};  ///< always 0
  Text SERIAL_NUMBER;
  Integer Variety_ID{};
  Integer Cheese_ID{};
};

inline Cheeses_Per_Variety_Record Cheeses_Per_Variety;
inline Record_Store::Recordset Cheeses_Per_Variety_Recordset;  ///< open only while in use

extern const Tables::Table<Cheeses_Per_Variety_Record> Cheeses_Per_Variety_Description;

struct Cheeses_Per_Maridage_Record {
  Long Cheese_ID{};
  Long Maridage_ID{};
};

inline Cheeses_Per_Maridage_Record Cheeses_Per_Maridage;
inline Record_Store::Recordset Cheeses_Per_Maridage_Recordset;  ///< open only while in use

extern const Tables::Table<Cheeses_Per_Maridage_Record> Cheeses_Per_Maridage_Description;

struct Cheeses_Per_Wines_Record {
  Integer Cheese_ID{};
  Long Wine_ID{};
};

inline Cheeses_Per_Wines_Record Cheeses_Per_Wines;
inline Record_Store::Recordset Cheeses_Per_Wines_Recordset;  ///< open only while in use

extern const Tables::Table<Cheeses_Per_Wines_Record> Cheeses_Per_Wines_Description;

struct Wines_Per_Cheeses_Record {
  Integer Cheese_ID{};
  Long Wine_ID{};
};

inline Wines_Per_Cheeses_Record Wines_Per_Cheeses;
inline Record_Store::Recordset Wines_Per_Cheeses_Recordset;  ///< open only while in use

extern const Tables::Table<Wines_Per_Cheeses_Record> Wines_Per_Cheeses_Description;

struct Cheeses_Per_Mobile_Wines_Record {
  Integer Cheese_ID{};
  Integer Mobile_Wines_ID{};
};

inline Cheeses_Per_Mobile_Wines_Record Cheeses_Per_Mobile_Wines;
inline Record_Store::Recordset Cheeses_Per_Mobile_Wines_Recordset;  ///< open only while in use

extern const Tables::Table<Cheeses_Per_Mobile_Wines_Record> Cheeses_Per_Mobile_Wines_Description;

struct Mobile_Wines_Per_Cheeses_Record {
  Long Mobile_Wines_Per_Cheeses_ID{};
  Integer Cheese_ID{};
  Integer Mobile_Wines_ID{};
};

inline Mobile_Wines_Per_Cheeses_Record Mobile_Wines_Per_Cheeses;
inline Record_Store::Recordset Mobile_Wines_Per_Cheeses_Recordset;  ///< open only while in use

extern const Tables::Table<Mobile_Wines_Per_Cheeses_Record> Mobile_Wines_Per_Cheeses_Description;
