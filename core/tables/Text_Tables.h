// The tables of texts by language: screens, long texts of the data, glossary, and the languages.
#pragma once

#include "core/tables/Rows.h"

// ---- Words: the texts of the screens; delivered, never written ----

struct Words_Record {
  Long ID{};
  Text Program;   ///< key of the screen that reads the row
  Text Variable;  ///< name of a control
  Text English;
  Text Spanish;
  Text French;
  Text German;
  Text Italian;
  Text Japanese;
  Text Portuguese;
  Text types_variable;  ///< "Cap", "Frm" or "Head"
};

inline Words_Record Words;
inline Record_Store::Recordset Words_Recordset;  ///< open from start-up on, and not read
inline Record_Store::Recordset Words_Query;      ///< a screen's rows; open until the next screen's

/// A language's number, 3 to 9, is its column's ordinal.
extern const Tables::Table<Words_Record> Words_Description;

// ---- Words_for_Data: long texts that other rows point to ----

struct Words_for_Data_Record {
  Long Multi_Language_ID{};
  Text English;  ///< "x" in a language that has no text
  Text Spanish;
  Text French;
  Text German;
  Text Italian;
  Text Japanes;
  Text Portuguese;
  Long ID{};  ///< always Multi_Language_ID
};

inline Words_for_Data_Record Words_for_Data;
inline Record_Store::Recordset Words_for_Data_Recordset;  ///< open only while in use

/// A language's number less 2 is its column's ordinal. Some screens take the key by the name ID.
extern const Tables::Table<Words_for_Data_Record> Words_for_Data_Description;
inline constexpr Tables::Table_In_Use Words_for_Data_Table{
    Words_for_Data_Description, Words_for_Data_Recordset, Words_for_Data, "Multi_Language_ID"};

// ---- Glossary: delivered, never written ----

struct Glossary_Record {
  Long ID{};
  Text Keyword;
  Text Country_of_Origin;
  Text English;
  Text Spanish;
  Text French;
  Text German;
  Text Italian;
  Text Japanese;
  Text Portuguese;
};

inline Glossary_Record Glossary;
inline Record_Store::Recordset Glossary_Recordset;  ///< open only while in use

/// A language's number, 3 to 9, is its column's ordinal.
extern const Tables::Table<Glossary_Record> Glossary_Description;

// ---- ReplaceKeys: words of the screens back into the English words of the data; never written
// ----

struct ReplaceKeys_Record {
  Text Foreign_Key;
  Text English_Key;
};

inline ReplaceKeys_Record ReplaceKeys;
inline Record_Store::Recordset ReplaceKeys_Recordset;  ///< open only while in use

extern const Tables::Table<ReplaceKeys_Record> ReplaceKeys_Description;

// ---- Languages_Available: delivered, never written ----

struct Languages_Available_Record {
  Long ID{};
  Text Language_Name;
  Integer Language_Number{};  ///< 3 to 9
  Integer Width_Main{};       ///< width of the main window in this language
};

inline Languages_Available_Record Languages_Available;
inline Record_Store::Recordset Languages_Available_Recordset;  ///< open only while in use

extern const Tables::Table<Languages_Available_Record> Languages_Available_Description;
inline constexpr Tables::Table_In_Use Languages_Available_Table{
    Languages_Available_Description, Languages_Available_Recordset, Languages_Available,
    "Language_Number"};
