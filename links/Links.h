// The tables of group link rows, for those who treat them alike.
#pragma once

#include "core/tables/Link_Tables.h"

/// A link table, and the owner's field, which is one of its indexes too. Its other fields are
/// `GROUP` and `SUBCATEGO`.
struct Links {
  Record_Store::Recordset& rows;
  const char* table;
  const char* owner;
};

inline const Links Pairings_of_Wines{Maridages_Per_Wines_Recordset, "Maridages_Per_Wines",
                                     "Wine_ID"};
inline const Links Pairings_of_Mobile_Wines{Maridages_Per_Mobile_Wines_Recordset,
                                            "Maridages_Per_Mobile_Wines", "Mobile_Wine_ID"};
inline const Links Pairings_of_Varieties{Maridages_Per_Variety_Recordset, "Maridages_Per_Variety",
                                         "Variety_ID"};
inline const Links Pairings_of_Cheeses{Maridages_Per_Cheeses_Recordset, "Maridages_Per_Cheeses",
                                       "Cheese_ID"};
inline const Links Varieties_of_Regions{Varieties_Per_Region_Recordset, "Varieties_Per_Region",
                                        "Region_ID"};
inline const Links Varieties_of_Cheeses{Varieties_Per_Cheeses_Recordset, "Varieties_Per_Cheeses",
                                        "Cheese_ID"};
