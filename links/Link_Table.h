// The link tables and the tables that they name rows of, for those who treat them alike.
#pragma once

#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Link_Tables.h"
#include "core/tables/Pairing_Tables.h"

/// A table of group link rows or of pair rows, or the owners' own, and the field of the owner's
/// key.
struct Link_Table {
  Record_Store::Recordset& rows;
  const char* name;
  const char* owner;
};

// ---- group link rows; the owner's field is an index too ----

inline constexpr Link_Table Pairings_of_Wines{Maridages_Per_Wines_Recordset, "Maridages_Per_Wines",
                                              "Wine_ID"};
inline constexpr Link_Table Pairings_of_Mobile_Wines{
    Maridages_Per_Mobile_Wines_Recordset, "Maridages_Per_Mobile_Wines", "Mobile_Wine_ID"};
inline constexpr Link_Table Pairings_of_Varieties{Maridages_Per_Variety_Recordset,
                                                  "Maridages_Per_Variety", "Variety_ID"};
inline constexpr Link_Table Pairings_of_Cheeses{Maridages_Per_Cheeses_Recordset,
                                                "Maridages_Per_Cheeses", "Cheese_ID"};
inline constexpr Link_Table Varieties_of_Regions{Varieties_Per_Region_Recordset,
                                                 "Varieties_Per_Region", "Region_ID"};
/// Pair rows: the way back.
inline constexpr Link_Table Pairs_of_Regions{Regions_Per_Variety_Recordset, "Regions_Per_Variety",
                                             "Region_ID"};
inline constexpr Link_Table Varieties_of_Cheeses{Varieties_Per_Cheeses_Recordset,
                                                 "Varieties_Per_Cheeses", "Cheese_ID"};

/// A table whose rows have addresses: group and subgroup, by which a mask names them. The group's
/// field is the name of an index too.
struct Addressed_Table {
  Record_Store::Recordset& rows;
  const char* name;
  const char* key;
  const char* group;
  const char* subgroup;
  void (*read)();  ///< the current row into the memory record
};

inline constexpr Addressed_Table Addressed_Pairings{Maridages_Recordset, "Maridages",
                                                    "Maridage_ID",       "Maridage_Group",
                                                    "Maridage_SubGr",    Read_Maridages_Record};
inline constexpr Addressed_Table Addressed_Varieties{Varieties_Recordset, "Varieties",
                                                     "Variety_ID",        "Variety_Group",
                                                     "Variety_SubGr",     Read_Varieties_Record};
