// The tables of places and producers: countries, states, regions, labels, wineries,
// classifications.
#pragma once

#include "core/tables/Rows.h"

// ---- World_Contries: the countries; delivered, never written ----

/// The memory record of World_Contries.
struct Countries_Record {
  Text Language;              ///< main language, by its English name
  Integer Language_Number{};  ///< 3 to 9: the language of the screens that comes nearest
  Text Long_Name;             ///< English name
  Text Short_Name;            ///< three capital letters; what other tables hold as the country
  Text State_Usage;           ///< "Y" where State_of_Contries has rows of the country
  Integer Zip_Code_Length{};
  Text Zip_Location;
  Text Zip_Type;
  Text Spanish_Name;
  Text French;
  Text German;
  Text Italian;
  Text Japanese;
  Text Portuguese;
  Text Description_of_State;  ///< the country's word for a state, "x" for none
};

/// Called so because `Countries` is the pick list that start-up fills from this table.
inline Countries_Record Countries_Memory;
inline Record_Store::Recordset World_Contries_Recordset;  ///< the table, open only while in use
inline Record_Store::Recordset World_Contries_Query;      ///< the same in one language's order

/// The names stand at the ordinals by which the screens fetch them: the English ones at 0 and 1,
/// Spanish at 2, French to Portuguese at 9 to 13.
extern const Tables::Table<Countries_Record> World_Contries_Description;
inline constexpr Tables::Table_In_Use World_Contries_Table{
    World_Contries_Description, World_Contries_Recordset, Countries_Memory, "Short_Name"};

// ---- State_of_Contries: delivered, never written ----

struct State_of_Contries_Record {
  Text Contry;  ///< Short_Name of the country
  Text Long_Name;
  Text Short_Name;
};

inline State_of_Contries_Record State_of_Contries;
inline Record_Store::Recordset State_of_Contries_Recordset;  ///< open only while in use
inline Record_Store::Recordset State_of_Contries_Query;      ///< one country's states by name

extern const Tables::Table<State_of_Contries_Record> State_of_Contries_Description;

// ---- Regions ----

struct Regions_Record {
  Long Region_ID{};
  Text Region_Name;  ///< "x": a row that is not confirmed yet
  Text Country;      ///< Short_Name of the country
  Text SERIAL_NUMBER;
  Integer Used{};
  Integer Description{};  ///< key into Words_for_Data, -1 for none
  Integer History{};      ///< the same
  Text Region_Map;
  Long Region_Group{};
  Long Region_SubGr{};   ///< 1 to 10 within the group
  Long Sub_Region_Of{};  ///< Region_ID of the parent, -1 for none
};

inline Regions_Record Regions;
inline Record_Store::Recordset Regions_Recordset;  ///< open only while in use
inline Record_Store::Recordset Regions_Query;      ///< one country's regions by name

extern const Tables::Table<Regions_Record> Regions_Description;
inline constexpr Tables::Table_In_Use Regions_Table{Regions_Description, Regions_Recordset, Regions,
                                                    "Region_ID"};

// ---- Labels: labels and appellations of a region ----

struct Labels_Record {
  Long Label_ID{};
  Text Label_Name;  ///< "No Label": a wine without one, or a row that is not confirmed yet
  Integer Region_ID{};
  Text SERIAL_NUMBER;
  Integer Used{};
  Text Label_Photo;
  Text Wine_Color;        ///< English colour word where the label's rules fix one, else "x"
  Long Appellation_ID{};  ///< Classification_ID of the label's class, -1 for none
};

inline Labels_Record Labels;
inline Record_Store::Recordset Labels_Recordset;  ///< open only while in use
inline Record_Store::Recordset Labels_Query;      ///< one region's labels by name

extern const Tables::Table<Labels_Record> Labels_Description;
inline constexpr Tables::Table_In_Use Labels_Table{Labels_Description, Labels_Recordset, Labels,
                                                   "Label_ID"};

// ---- Wineries ----

struct Wineries_Record {
  Text Winery_ID;  ///< the key as text
  Text Winery_Name;
  Text Address1;
  Text Address2;
  Text City;
  Text State;
  Text Zip_Code;
  Text Country;  ///< Short_Name of the country
  Text Region;   ///< the region's name
  Long Region_ID{};
  Text Phone;
  Text Web;
  Text E_Mail;
  Text SERIAL_NUMBER;
  Integer Used{};
  Text History;  ///< key into Words_for_Data as text, "-1" for none
  Text Photo;
};

inline Wineries_Record Wineries;
inline Record_Store::Recordset Wineries_Recordset;  ///< open only while in use

extern const Tables::Table<Wineries_Record> Wineries_Description;
inline constexpr Tables::Table_In_Use Wineries_Table{Wineries_Description, Wineries_Recordset,
                                                     Wineries, "Winery_ID"};

// ---- Labels_per_Winery: which labels a winery bottles; delivered, never written ----

struct Labels_per_Winery_Record {
  Long Winery_ID{};
  Long Label_ID{};
};

inline Labels_per_Winery_Record Labels_per_Winery;
inline Record_Store::Recordset Labels_per_Winery_Recordset;  ///< open only while in use

extern const Tables::Table<Labels_per_Winery_Record> Labels_per_Winery_Description;

// ---- Classification: quality classes of a country ----

struct Classification_Record {
  Long Classification_ID{};
  Text Country;      ///< Short_Name of the country
  Text Description;  ///< the class's name
  Text SERIAL_NUMBER;
  Integer Used{};
  Long Glossary_ID{};  ///< ID of the explanation in Glossary, -1 for none
};

inline Classification_Record Classification;
inline Record_Store::Recordset Classification_Recordset;  ///< open only while in use

extern const Tables::Table<Classification_Record> Classification_Description;
inline constexpr Tables::Table_In_Use Classification_Table{
    Classification_Description, Classification_Recordset, Classification, "Classification_ID"};
