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

inline const Tables::Table<Maridages_Per_Wines_Record> Maridages_Per_Wines_Description = [] {
  using R = Maridages_Per_Wines_Record;
  return Tables::Table<R>{"Maridages_Per_Wines",
                          {{"Maridages_per_Wines_ID", &R::Maridages_per_Wines_ID, Tables::Counter},
                           {"Wine_ID", &R::Wine_ID},
                           {"GROUP", &R::GROUP},
                           {"SUBCATEGO", &R::SUBCATEGO}},
                          {{"Wine_ID"}, {"GROUP"}}};
}();

struct Maridages_Per_Mobile_Wines_Record {
  Long Maridages_Per_Mobile_Wine_ID{};
  Long Mobile_Wine_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
};

inline Maridages_Per_Mobile_Wines_Record Maridages_Per_Mobile_Wines;
inline Record_Store::Recordset Maridages_Per_Mobile_Wines_Recordset;  ///< open only while in use

inline const Tables::Table<Maridages_Per_Mobile_Wines_Record>
    Maridages_Per_Mobile_Wines_Description = [] {
      using R = Maridages_Per_Mobile_Wines_Record;
      return Tables::Table<R>{
          "Maridages_Per_Mobile_Wines",
          {{"Maridages_Per_Mobile_Wine_ID", &R::Maridages_Per_Mobile_Wine_ID, Tables::Counter},
           {"Mobile_Wine_ID", &R::Mobile_Wine_ID},
           {"GROUP", &R::GROUP},
           {"SUBCATEGO", &R::SUBCATEGO}},
          {{"Mobile_Wine_ID"}, {"GROUP"}}};
    }();

struct Maridages_Per_Cheeses_Record {
  Long Cheese_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
};

inline Maridages_Per_Cheeses_Record Maridages_Per_Cheeses;
inline Record_Store::Recordset Maridages_Per_Cheeses_Recordset;  ///< open only while in use

inline const Tables::Table<Maridages_Per_Cheeses_Record> Maridages_Per_Cheeses_Description = [] {
  using R = Maridages_Per_Cheeses_Record;
  return Tables::Table<R>{
      "Maridages_Per_Cheeses",
      {{"Cheese_ID", &R::Cheese_ID}, {"GROUP", &R::GROUP}, {"SUBCATEGO", &R::SUBCATEGO}},
      {{"Cheese_ID"}}};
}();

struct Maridages_Per_Variety_Record {
  Integer Maridages_Per_Variety_ID{};
  Integer Variety_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
  Text SERIAL_NUMBER;
};

inline Maridages_Per_Variety_Record Maridages_Per_Variety;
inline Record_Store::Recordset Maridages_Per_Variety_Recordset;  ///< open only while in use

inline const Tables::Table<Maridages_Per_Variety_Record> Maridages_Per_Variety_Description = [] {
  using R = Maridages_Per_Variety_Record;
  return Tables::Table<R>{
      "Maridages_Per_Variety",
      {{"Maridages_Per_Variety_ID", &R::Maridages_Per_Variety_ID, Tables::Counter},
       {"Variety_ID", &R::Variety_ID, 0},
       {"GROUP", &R::GROUP, 0},
       {"SUBCATEGO", &R::SUBCATEGO, 0},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"}},
      {{"Variety_ID"}}};
}();

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

inline const Tables::Table<Varieties_Per_Region_Record> Varieties_Per_Region_Description = [] {
  using R = Varieties_Per_Region_Record;
  return Tables::Table<R>{
      "Varieties_Per_Region",
      {{"Varieties_Per_Region_ID", &R::Varieties_Per_Region_ID, Tables::Counter},
       {"Region_ID", &R::Region_ID},
       {"GROUP", &R::GROUP},
       {"SUBCATEGO", &R::SUBCATEGO},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER}},
      {{"Region_ID"}, {"GROUP"}}};
}();

struct Varieties_Per_Cheeses_Record {
  Integer Varieties_Per_Cheeses_ID{};
  Long Cheese_ID{};
  Long GROUP{};
  Long SUBCATEGO{};
  Text SERIAL_NUMBER;
};

inline Varieties_Per_Cheeses_Record Varieties_Per_Cheeses;
inline Record_Store::Recordset Varieties_Per_Cheeses_Recordset;  ///< open only while in use

inline const Tables::Table<Varieties_Per_Cheeses_Record> Varieties_Per_Cheeses_Description = [] {
  using R = Varieties_Per_Cheeses_Record;
  return Tables::Table<R>{
      "Varieties_Per_Cheeses",
      {{"Varieties_Per_Cheeses_ID", &R::Varieties_Per_Cheeses_ID, Tables::Counter},
       {"Cheese_ID", &R::Cheese_ID},
       {"GROUP", &R::GROUP},
       {"SUBCATEGO", &R::SUBCATEGO},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER}},
      {{"Cheese_ID"}}};
}();

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

inline const Tables::Table<Varieties_Per_Maridage_Record> Varieties_Per_Maridage_Description = [] {
  using R = Varieties_Per_Maridage_Record;
  return Tables::Table<R>{
      "Varieties_Per_Maridage",
      {{"Varieties_Per_Maridages", &R::Varieties_Per_Maridages, Tables::Counter},
       {"Maridage_ID", &R::Maridage_ID, 0},
       {"GROUP", &R::GROUP, -1},
       {"SUBCATEGO", &R::SUBCATEGO, 0},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
       {"Variety_ID", &R::Variety_ID, 0}},
      {{"Maridage_ID"}}};
}();

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

inline const Tables::Table<Regions_Per_Variety_Record> Regions_Per_Variety_Description = [] {
  using R = Regions_Per_Variety_Record;
  return Tables::Table<R>{"Regions_Per_Variety",
                          {{"Regions_Per_Variety_ID", &R::Regions_Per_Variety_ID, Tables::Counter},
                           {"Variety_ID", &R::Variety_ID, 0},
                           {"GROUP", &R::GROUP, 0},
                           {"SUBCATEGO", &R::SUBCATEGO, 0},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"Region_ID", &R::Region_ID, 0}},
                          {{"Region_ID"}, {"Variety_ID"}}};
}();

struct Mobile_Wines_per_Maridage_Record {
  Integer Mobile_Wines_per_Maridage_ID{};  ///< given by the program: the last row's plus 1
  Long Maridage_ID{};
  Long Mobile_Wine_ID{};
  Text SERIAL_NUMBER;
};

inline Mobile_Wines_per_Maridage_Record Mobile_Wines_per_Maridage;
inline Record_Store::Recordset Mobile_Wines_per_Maridage_Recordset;  ///< open only while in use

inline const Tables::Table<Mobile_Wines_per_Maridage_Record> Mobile_Wines_per_Maridage_Description =
    [] {
      using R = Mobile_Wines_per_Maridage_Record;
      return Tables::Table<R>{"Mobile_Wines_per_Maridage",
                              {{"Mobile_Wines_per_Maridage_ID", &R::Mobile_Wines_per_Maridage_ID},
                               {"Maridage_ID", &R::Maridage_ID, -1},
                               {"Mobile_Wine_ID", &R::Mobile_Wine_ID, -1},
                               {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"}},
                              {{"Mobile_Wine_ID"}}};
    }();

// ---- pair rows: varieties of a wine ----

struct Varieties_of_Wines_Record {
  Long Wine_ID{};
  Long Variety_ID{};
};

inline Varieties_of_Wines_Record Varieties_of_Wines;
inline Record_Store::Recordset Varieties_of_Wines_Recordset;  ///< open only while in use

inline const Tables::Table<Varieties_of_Wines_Record> Varieties_of_Wines_Description = [] {
  using R = Varieties_of_Wines_Record;
  return Tables::Table<R>{"Varieties_of_Wines",
                          {{"Wine_ID", &R::Wine_ID}, {"Variety_ID", &R::Variety_ID}},
                          {{"Wine_ID"}}};
}();

struct Varieties_of_Mobile_Wines_Record {
  Long Mobile_Wine_ID{};
  Long Variety_ID{};
  Long Varieties_of_Mobile_Wines_ID{};
};

inline Varieties_of_Mobile_Wines_Record Varieties_of_Mobile_Wines;
inline Record_Store::Recordset Varieties_of_Mobile_Wines_Recordset;  ///< open only while in use

inline const Tables::Table<Varieties_of_Mobile_Wines_Record> Varieties_of_Mobile_Wines_Description =
    [] {
      using R = Varieties_of_Mobile_Wines_Record;
      return Tables::Table<R>{
          "Varieties_of_Mobile_Wines",
          {{"Mobile_Wine_ID", &R::Mobile_Wine_ID},
           {"Variety_ID", &R::Variety_ID},
           {"Varieties_of_Mobile_Wines_ID", &R::Varieties_of_Mobile_Wines_ID, Tables::Counter}},
          {{"Mobile_Wine_ID"}}};
    }();

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

inline const Tables::Table<Cheeses_Per_Variety_Record> Cheeses_Per_Variety_Description = [] {
  using R = Cheeses_Per_Variety_Record;
  return Tables::Table<R>{"Cheeses_Per_Variety",
                          {{"GROUP", &R::GROUP, 0},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"SUBCATEGO", &R::SUBCATEGO, 0},
                           {"Variety_ID", &R::Variety_ID, 0},
                           {"Cheese_ID", &R::Cheese_ID, 0}},
                          {}};
}();

struct Cheeses_Per_Maridage_Record {
  Long Cheese_ID{};
  Long Maridage_ID{};
};

inline Cheeses_Per_Maridage_Record Cheeses_Per_Maridage;
inline Record_Store::Recordset Cheeses_Per_Maridage_Recordset;  ///< open only while in use

inline const Tables::Table<Cheeses_Per_Maridage_Record> Cheeses_Per_Maridage_Description = [] {
  using R = Cheeses_Per_Maridage_Record;
  return Tables::Table<R>{"Cheeses_Per_Maridage",
                          {{"Cheese_ID", &R::Cheese_ID}, {"Maridage_ID", &R::Maridage_ID}},
                          {{"Cheese_ID"}}};
}();

struct Cheeses_Per_Wines_Record {
  Integer Cheese_ID{};
  Integer Wine_ID{};
};

inline Cheeses_Per_Wines_Record Cheeses_Per_Wines;
inline Record_Store::Recordset Cheeses_Per_Wines_Recordset;  ///< open only while in use

inline const Tables::Table<Cheeses_Per_Wines_Record> Cheeses_Per_Wines_Description = [] {
  using R = Cheeses_Per_Wines_Record;
  return Tables::Table<R>{
      "Cheeses_Per_Wines", {{"Cheese_ID", &R::Cheese_ID}, {"Wine_ID", &R::Wine_ID}}, {}};
}();

struct Wines_Per_Cheeses_Record {
  Integer Cheese_ID{};
  Integer Wine_ID{};
};

inline Wines_Per_Cheeses_Record Wines_Per_Cheeses;
inline Record_Store::Recordset Wines_Per_Cheeses_Recordset;  ///< open only while in use

inline const Tables::Table<Wines_Per_Cheeses_Record> Wines_Per_Cheeses_Description = [] {
  using R = Wines_Per_Cheeses_Record;
  return Tables::Table<R>{"Wines_Per_Cheeses",
                          {{"Cheese_ID", &R::Cheese_ID}, {"Wine_ID", &R::Wine_ID}},
                          {{"Cheese_ID"}}};
}();

struct Cheeses_Per_Mobile_Wines_Record {
  Integer Cheese_ID{};
  Integer Mobile_Wines_ID{};
};

inline Cheeses_Per_Mobile_Wines_Record Cheeses_Per_Mobile_Wines;
inline Record_Store::Recordset Cheeses_Per_Mobile_Wines_Recordset;  ///< open only while in use

inline const Tables::Table<Cheeses_Per_Mobile_Wines_Record> Cheeses_Per_Mobile_Wines_Description =
    [] {
      using R = Cheeses_Per_Mobile_Wines_Record;
      return Tables::Table<R>{
          "Cheeses_Per_Mobile_Wines",
          {{"Cheese_ID", &R::Cheese_ID}, {"Mobile_Wines_ID", &R::Mobile_Wines_ID}},
          {{"Cheese_ID"}, {"Mobile_Wines_ID"}}};
    }();

struct Mobile_Wines_Per_Cheeses_Record {
  Long Mobile_Wines_Per_Cheeses_ID{};
  Integer Cheese_ID{};
  Integer Mobile_Wines_ID{};
};

inline Mobile_Wines_Per_Cheeses_Record Mobile_Wines_Per_Cheeses;
inline Record_Store::Recordset Mobile_Wines_Per_Cheeses_Recordset;  ///< open only while in use

inline const Tables::Table<Mobile_Wines_Per_Cheeses_Record> Mobile_Wines_Per_Cheeses_Description =
    [] {
      using R = Mobile_Wines_Per_Cheeses_Record;
      return Tables::Table<R>{
          "Mobile_Wines_Per_Cheeses",
          {{"Mobile_Wines_Per_Cheeses_ID", &R::Mobile_Wines_Per_Cheeses_ID, Tables::Counter},
           {"Cheese_ID", &R::Cheese_ID},
           {"Mobile_Wines_ID", &R::Mobile_Wines_ID}},
          {{"Cheese_ID"}, {"Mobile_Wines_ID"}}};
    }();
