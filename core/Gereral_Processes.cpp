#include "core/Gereral_Processes.h"

#include <algorithm>
#include <array>

#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/Languages.h"
#include "core/MultiLanguage_Processes.h"
#include "core/Ownership.h"
#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"

namespace {

template <int Last, std::size_t Count>
void Fill(Bounded_Array<Text, Last>& list, const std::array<const char*, Count>& words) {
  int entry = 0;
  for (const char* word : words) list[++entry] = word;
}

// The position of `wanted` in the list, 0 where it is not there.
template <int Last>
int Place_Of(std::string_view wanted, const Bounded_Array<Text, Last>& list, int count) {
  for (int entry = 1; entry <= count; ++entry) {
    if (list[entry] == wanted) return entry;
  }
  return 0;
}

Text Country_By(const char* index, std::string_view key, const char* wanted) {
  Open_Table(World_Contries_Recordset, "World_Contries", index);
  World_Contries_Recordset.Seek("=", key);
  const bool blank = World_Contries_Recordset.NoMatch() && !Is_Kept(Fault::Gone_Row_Ends_The_Run);
  Text name = blank ? Text() : World_Contries_Recordset.Fields(wanted).As_Text();
  Close_Table(World_Contries_Recordset);
  return name;
}

constexpr std::array<std::string_view, 5> english_colors{"Red", "White", "Rosé", "Sparkling",
                                                         "Fortified"};
constexpr std::array wine_type_codes{"VA", "LE", "AP"};

// ---- a new pairing; `Maridages` is open ----

struct Pairing_Address {
  Long group;
  Long subgroup;
};

// The highest group, where it is the user's own and has room, or the one behind it.
Pairing_Address Next_Address_of_User() {
  constexpr Long first_group = 1000000;
  constexpr Long subgroups = 10;
  Maridages_Recordset.Index("Maridage_Group");
  if (Maridages_Recordset.Eof()) return {first_group, 1};
  Maridages_Recordset.MoveLast();
  const Long group = Maridages_Recordset.Fields("Maridage_Group").As_Long();
  if (group < first_group) return {first_group, 1};
  Long highest = 0;
  for (; !Maridages_Recordset.Bof(); Maridages_Recordset.MovePrevious()) {
    if (Maridages_Recordset.Fields("Maridage_Group").As_Long() != group) break;
    highest = std::max(highest, Maridages_Recordset.Fields("Maridage_SubGr").As_Long());
  }
  return highest >= subgroups ? Pairing_Address{group + 1, 1} : Pairing_Address{group, highest + 1};
}

// A cheese, a category and the names in the other languages have no default of their own.
void Begin_New_Maridage() {
  if (!Is_Kept(Fault::New_Pairing_Takes_Last_Cheese)) Maridages = {};
  Init_Maridages_Record();
  if (Is_Kept(Fault::New_Pairing_Reads_X)) return;
  for (const auto name : Language_Members<Maridages_Record>()) Maridages.*name = New_Maridage_Text;
}

// The two names are written into the row once it is there and the last one.
void Store_New_Maridage(const Pairing_Address& address) {
  constexpr Long longest_name = 100;
  constexpr Integer for_every_use = 3;
  Maridages_Recordset.AddNew();
  Begin_New_Maridage();
  Maridages.Maridage_Name = Left(New_Maridage_Text, longest_name);
  Maridages.Maridage_Group = address.group;
  Maridages.Maridage_SubGr = address.subgroup;
  Maridages.SERIAL_NUMBER = Dated_Serial_of_User(Trim(Wine_System.Installation_ID));
  Maridages.Used = 0;
  Maridages.Multiuse = for_every_use;
  Write_Maridages_Record();
  Maridages_Recordset.Index("Maridage_ID");
  Maridages_Recordset.MoveLast();
  Maridages_Recordset.Edit();
  Maridages_Recordset.Fields(Maridages_Column()) = New_Maridage_Text;
  Maridages_Recordset.Fields(Maridages_Column(Other_Language())) = New_Maridage_Other_Text;
  Maridages_Recordset.Update();
}

}  // namespace

void Load_Bottle_Sizes() {
  Fill(Bottle_Sizes,
       std::array{"200 ml", "375 ml", "500 ml", "750 ml", "1.0 Lt", "1.5 Lt", "2.25 Lt", "3.0 Lt",
                  "4.5 Lt", "5.0 Lt", "6.0 Lt", "9.0 Lt", "12.0 Lt", "18.0 Lt"});
}

void Load_Cheese_Types() {
  Fill(Cheese_Types, std::array{"Blue-vein", "Fresh", "Hard", "Processed", "Semi-hard", "Semi-soft",
                                "Soft", "Soft/Hard", "Soft-ripened"});
  Cheese_Types_Count = 10;
}

void Load_Milk_Types() {
  Fill(Milk_Types,
       std::array{"Cow", "Cow-Goat", "Cow-Goat-Sheep", "Goat", "Sheep", "Water Buffalo"});
  Milk_Types_Count = 6;
}

void Load_Countries() {
  Open_Table(World_Contries_Recordset, "World_Contries", "Long_Name");
  Integer row = 0;
  for (; !World_Contries_Recordset.Eof(); World_Contries_Recordset.MoveNext()) {
    Read_World_Contries_Record();
    const auto& country = Countries_Memory;
    Countries[++row] = {country.Long_Name,  country.Language,        country.Language_Number,
                        country.Short_Name, country.Zip_Code_Length, country.Zip_Type};
  }
  Countries_Count = row;
  Close_Table(World_Contries_Recordset);
}

void Load_Mobile_Countries() {
  Mobile_Countries.Clear();
  Integer count = 0;
  Record_Store::Recordset& rows = Mobile_Wines_Recordset;
  Open_Table(rows, "Mobile_Wines");
  // At start-up some thousand rows pass here, most of them of the same country as the one before:
  // one field of each is enough, and the record of the last.
  const int country_at = rows.Ordinal("Mobile_Wine_Country");
  Text previous;
  for (; !rows.Eof(); rows.MoveNext()) {
    const Text country = rows.Fields(country_at).As_Text();
    if (country != previous && Place_Of(country, Mobile_Countries, count) == 0)
      Mobile_Countries[++count] = country;
    previous = country;
  }
  Mobile_Countries_Count = count;
  if (count == 0) return;
  Read_Last_Row(Mobile_Wines_Table);
  rows.MoveNext();
}

void Load_Cheese_Countries() {
  Integer count = 0;
  Text previous;
  Open_Table(Cheeses_Recordset, "Cheeses");
  for (; !Cheeses_Recordset.Eof(); Cheeses_Recordset.MoveNext()) {
    Read_Cheeses_Record();
    if (Cheeses.Cheese_Country == previous) continue;
    previous = Cheeses.Cheese_Country;
    Cheese_Countries[++count] = previous;
  }
  Cheese_Countries_Count = count;
  Close_Table(Cheeses_Recordset);
}

void Load_Wine_System() {
  Open_Table(Wine_System_Recordset, "Wine_System");
  Read_Wine_System_Record();
  Close_Table(Wine_System_Recordset);
}

void Read_Winery_By_ID(Integer key) { Read_By_Key(Wineries_Table, key); }

Text Country_Short_Name(std::string_view long_name) {
  return Country_By("Long_Name", long_name, "Short_Name");
}

Text Country_Long_Name(std::string_view short_name) {
  return Country_By("Short_Name", short_name, "Long_Name");
}

Integer Color_Index(std::string_view color) {
  const auto* found = std::ranges::find(english_colors, color);
  return found == english_colors.end() ? Integer{0}
                                       : static_cast<Integer>(found - english_colors.begin());
}

std::string_view English_Color(int index) {
  return english_colors.at(static_cast<std::size_t>(index));
}

int Color_Index_In_Any_Language(const Text& color) {
  Load_Language_Words("Wine_Cellar_Form");
  Move_Behind_Caption();
  for (int index = 0; index < Color_Names.Bound(); ++index) {
    for (const std::string_view language : Languages) {
      const Text word = Words_Query.Fields(language).As_Text();
      if (Upper_Case(word) == Upper_Case(color)) return index;
    }
    Words_Query.MoveNext();
  }
  return -1;
}

Text Replace_Key(std::string_view foreign) {
  Text english = " ";
  Open_Table(ReplaceKeys_Recordset, "ReplaceKeys");
  for (; !ReplaceKeys_Recordset.Eof(); ReplaceKeys_Recordset.MoveNext()) {
    if (ReplaceKeys_Recordset.Fields("Foreign_Key").As_Text() != foreign) continue;
    english = ReplaceKeys_Recordset.Fields("English_Key").As_Text();
    break;
  }
  Close_Table(ReplaceKeys_Recordset);
  return english;
}

Text Wine_Type_Word(std::string_view code) {
  for (int type = 2; type <= 3; ++type) {
    if (code == wine_type_codes[static_cast<std::size_t>(type) - 1]) return Mobile_Type_Words[type];
  }
  return Mobile_Type_Words[1];
}

Text Wine_Type_Code(std::string_view word) {
  const int type = Place_Of(word, Mobile_Type_Words, Mobile_Type_Words.Bound());
  return wine_type_codes[static_cast<std::size_t>(type == 0 ? 1 : type) - 1];
}

bool Valid_E_Mail(const Text& address) {
  Long at = In_Str(1, address, "@");
  if (at == 0) at = In_Str(1, address, "%40");
  if (at == 0) return false;
  const Long dot = In_Str(at, address, ".");
  return dot > at && dot < Len(address);
}

bool Add_New_Maridage() {
  Open_Table(Maridages_Recordset, "Maridages");
  const Pairing_Address address = Next_Address_of_User();
  Maridages_Recordset.Index(Language_Name_From_Number(System_Language));
  Maridages_Recordset.Seek("=", New_Maridage_Text);
  const bool is_new = Maridages_Recordset.NoMatch();
  if (is_new) Store_New_Maridage(address);
  Close_Table(Maridages_Recordset);
  return is_new;
}

void Open_Regions_Of_Country(std::string_view country) {
  Open_Table(Regions_Recordset, "Regions");
  Open_Query(Regions_Query, "SELECT * FROM Regions WHERE Country='" + Text(country) +
                                "'  ORDER BY  Country ASC,  Region_Name ASC");
}

void Open_World_Contries_Sorted() {
  Text statement = "SELECT * FROM World_Contries";
  if (Language_Place() < Languages.size()) {
    const auto name = static_cast<std::size_t>(Country_Name_Column());
    statement += " ORDER BY " + World_Contries_Description.Fields()[name].Schema().name + " ASC";
  }
  Open_Table(World_Contries_Recordset, "World_Contries");
  Open_Query(World_Contries_Query, statement);
}

void Open_States_Of_Contry(std::string_view country) {
  Open_Table(State_of_Contries_Recordset, "State_of_Contries");
  Open_Query(State_of_Contries_Query, "SELECT * FROM State_of_Contries WHERE Contry='" +
                                          Text(country) + "'  ORDER BY Long_Name ASC");
}

void Open_Labels_Of_Region(Long region_id) {
  Open_Table(Labels_Recordset, "Labels");
  Open_Query(Labels_Query, "SELECT * FROM Labels WHERE Region_ID=" + To_Text(region_id) +
                               "  ORDER BY Label_Name ASC");
}
