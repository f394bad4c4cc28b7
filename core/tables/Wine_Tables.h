// The tables of wines: the user's own, the general list, and their tasting marks.
#pragma once

#include "core/tables/Rows.h"

// ---- Wines: the wines of the user's cellars ----

struct Wines_Record {
  Long Wine_ID{};
  Long Winery_ID{};
  Text Label;         ///< the label's name
  Text Variety;       ///< names of the grapes, joined by ", "
  Long Variety_ID{};  ///< the last of them
  Integer Vintage{};
  Integer Peak{};
  Currency Value_Guide{};  ///< of a bottle
  Integer Ranking{};
  Integer Total_Bottles{};
  Text Bottle_Size;
  Long Description{};  ///< key into Words_for_Data, -1 for none
  Text Color;
  Single Alcohol{};  ///< percent
  Text Clasification;
  Long Comments{};  ///< key into Words_for_Data, -1 for none
  Date Last_Date_Uncorked{};
  Date Date_Added{};
  bool In_Cellar{};
  Long Cellar_ID{};

  // These two live in memory only.
  Text SERIAL_NUMBER;
  Integer Used{};
};

inline Wines_Record Wines;
inline Record_Store::Recordset Wines_Recordset;  ///< open only while in use

extern const Tables::Table<Wines_Record> Wines_Description;
inline constexpr Tables::Table_In_Use Wines_Table{Wines_Description, Wines_Recordset, Wines,
                                                  "Wine_ID"};

// ---- Mobile_Wines: the general list, wines that are known but not owned ----

struct Mobile_Wines_Record {
  Text Mobile_Wine_Color;    ///< in capitals: RED, WHITE, ROSE, SPARKLING, FORTIFIED
  Text Mobile_Wine_Country;  ///< Short_Name of the country, "ALL" for a variety wine
  Text Mobile_Winery_Name;
  Long Mobile_Wine_ID{};
  Long Mobile_Wine_Label_ID{};
  Text Mobile_Wine_Name;
  Text Mobile_Wine_Type;  ///< "VA", "LE" or "AP": by variety, label or appellation
  Long Mobile_Wine_Variety_ID{};
  Text SERIAL_NUMBER;
  Text Mobile_Wine_Color_2;
  Text Mobile_Wine_Color_3;  ///< "Y" where the wine has pairings, else "x"
  Long Mobile_Wine_Winery_ID{};
  Single Mobile_Wine_Alcohol{};
  Long Mobile_Wine_Comments{};     ///< key into Words_for_Data, -1 for none
  Long Mobile_Wine_Description{};  ///< the same
  Integer Mobile_Wine_Merit{};
  Integer Used{};
};

inline Mobile_Wines_Record Mobile_Wines;
inline Record_Store::Recordset Mobile_Wines_Recordset;  ///< open only while in use
inline Record_Store::Recordset Mobile_Wines_Query;      ///< the rows of one list, in its order

extern const Tables::Table<Mobile_Wines_Record> Mobile_Wines_Description;
inline constexpr Tables::Table_In_Use Mobile_Wines_Table{
    Mobile_Wines_Description, Mobile_Wines_Recordset, Mobile_Wines, "Mobile_Wine_ID"};

/// What the lists of general wines need of a row: a query that reads no more is enough for it.
extern const Tables::Table<Mobile_Wines_Record> Mobile_Wines_Query_Description;

// ---- Mobile_Wines_Available_Countries: delivered, never written ----

struct Mobile_Wines_Available_Countries_Record {
  Text Country_Short_Name;
};

inline Mobile_Wines_Available_Countries_Record Mobile_Wines_Available_Countries;
/// Open only while in use.
inline Record_Store::Recordset Mobile_Wines_Available_Countries_Recordset;

extern const Tables::Table<Mobile_Wines_Available_Countries_Record>
    Mobile_Wines_Available_Countries_Description;

// ---- Wine_Taste_Type: how many marks a colour offers; delivered, never written ----

struct Wine_Taste_Type_Record {
  Text Color;
  Text Type;  ///< "Taste" or "Aroma"; a colour's n-th row of a kind opens the n-th box of the kind
};

inline Wine_Taste_Type_Record Wine_Taste_Type;
inline Record_Store::Recordset Wine_Taste_Type_Recordset;  ///< open only while in use

extern const Tables::Table<Wine_Taste_Type_Record> Wine_Taste_Type_Description;

// ---- Wine_Tasting: the marks of a wine ----

struct Wine_Tasting_Record {
  Integer Description{};  ///< the box, from 0
  Text Type_Taste;        ///< "Taste" or "Aroma"
  Long Wine_ID{};         ///< key in Wines or Mobile_Wines
  bool Cellar_Wine{};     ///< True: of Wines; False: of Mobile_Wines
};

inline Wine_Tasting_Record Wine_Tasting;
inline Record_Store::Recordset Wine_Tasting_Recordset;  ///< open only while in use

extern const Tables::Table<Wine_Tasting_Record> Wine_Tasting_Description;
