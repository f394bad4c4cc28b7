// The lists that are filled once at start-up, the conversions between a name and a short name, the
// ordered queries, and small routines that every screen shares.
#pragma once

#include <string_view>

#include "platform/run_time/Bounded_Array.h"
#include "platform/run_time/Values.h"

// ---- lists, filled from entry 1; a further entry than the bound is failure 9 ----

/// A country as the lists keep it. Life of the lists: from start-up to the end of the process.
struct Country_Entry {
  Text Long_Name;
  Text Language;
  Integer Language_Number = 0;
  Text Short_Name;
  Integer Zip_Code_Length = 0;
  Text Zip_Type;
};

inline Bounded_Array<Text, 14> Bottle_Sizes;
/// The colours of wine in the language in force: a wine of the cellar is stored with such a word,
/// labels and grapes with the English one, general wines with the English one in capitals.
inline Bounded_Array<Text, 5> Color_Names;
/// Ten by count. Start-up gives nine English words; the words of the language, read after it, give
/// ten.
inline Bounded_Array<Text, 10> Cheese_Types;
inline Integer Cheese_Types_Count = 0;
inline Bounded_Array<Text, 6> Milk_Types;
inline Integer Milk_Types_Count = 0;
/// In the order of `Long_Name`.
inline Bounded_Array<Country_Entry, 200> Countries;
inline Integer Countries_Count = 0;
/// The distinct countries of the general wine list, in the order of their first wine.
inline Bounded_Array<Text, 200> Mobile_Countries;
inline Integer Mobile_Countries_Count = 0;
/// The country of each run of neighbouring cheeses.
inline Bounded_Array<Text, 200> Cheese_Countries;
inline Integer Cheese_Countries_Count = 0;
/// The words of the language for the wine types "VA", "LE" and "AP".
inline Bounded_Array<Text, 3> Mobile_Type_Words;

void Load_Bottle_Sizes();
void Load_Cheese_Types();
void Load_Milk_Types();
void Load_Countries();
/// Leaves `Mobile_Wines` open.
void Load_Mobile_Countries();
void Load_Cheese_Countries();
/// Reads the one row of `Wine_System` into its memory record.
void Load_Wine_System();

// ---- start-up ----

/// Opens the data file and fills everything that lives for the whole run. Leaves `Words` open.
void Open_Databases();
/// The path of the shared reference file by what the `Wine_System` memory record says at this
/// moment.
void Set_Database_Paths();
/// The data file in the program's folder.
Text Own_Data_File();
/// Everything that precedes the main window's words: paths, data file, lists, cellar menu, first
/// run.
void Start_System();

// ---- look-ups; a key or name without a row is failure 3021, raised by the read ----

void Read_Winery_By_ID(Integer key);
/// Where faults are mended a country without a row has no name.
Text Country_Short_Name(std::string_view long_name);
Text Country_Long_Name(std::string_view short_name);
/// 0 to 4 for "Red", "White", "Rosé", "Sparkling", "Fortified", exactly so written; 0 for any
/// other.
Integer Color_Index(std::string_view color);
/// The way back: the English word of a colour, 0 to 4.
std::string_view English_Color(int index);
/// 0 to 4 for a word of these in any language, whatever its case; -1 for any other.
int Color_Index_In_Any_Language(const Text& color);
/// The English word for a foreign one; one blank for a word that `ReplaceKeys` does not hold.
Text Replace_Key(std::string_view foreign);
/// The program's folder less its last part; "" where the path has no parts.
Text Parent_Folder();
/// "VA", "LE" or "AP" to the language's word and back; any other code or text is taken for "VA".
Text Wine_Type_Word(std::string_view code);
Text Wine_Type_Code(std::string_view word);
/// Whether a "." stands behind the "@" (or "%40") with at least one character after it.
bool Valid_E_Mail(const Text& address);

// ---- the catalogue of pairings ----

/// The names of a pairing to be added, in the language in force and in `Other_Language()`.
inline Text New_Maridage_Text;
inline Text New_Maridage_Other_Text;
/// Adds it at the user's next free address: groups from 1,000,000 on, ten to a group. False, and
/// nothing is added, where the language in force has a pairing of this name, whatever its case. A
/// new row stores what the memory record of `Maridages` holds for `Cheese_ID` and `CAT_ID`, and "x"
/// as the name in the other languages; without these known faults no cheese, and the first name.
bool Add_New_Maridage();

// ---- ordered queries: each opens the table and, beside it, the query; the caller closes both ----

void Open_Regions_Of_Country(std::string_view country);
/// By the name in the language in force; in storage order for a number that is no language's.
void Open_World_Contries_Sorted();
void Open_States_Of_Contry(std::string_view country);
void Open_Labels_Of_Region(Long region_id);
