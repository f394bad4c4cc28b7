// Countries, languages, settings, and the texts of the screens.
#include <algorithm>

#include "tools/Compilation.h"

namespace Data_Compiler {

namespace {

/// The number of a language by its English name: 3 to 9, 0 for any other.
Integer Number_Of_Language(std::string_view name) {
  const auto found = std::find(Languages.begin(), Languages.end(), name);
  return found == Languages.end()
             ? Integer{0}
             : static_cast<Integer>(found - Languages.begin() + First_Language);
}

void Check_Language_Number(const Source_Row& row, std::string_view name, Integer number,
                           Problems& problems) {
  const Integer own = Number_Of_Language(name);
  if (number < 3 || number > 9 || (own != 0 && own != number))
    problems.Report(row.Where(), "language number " + std::to_string(number) + " for '" +
                                     std::string(name) + "'");
}

void Read_States(Compilation& c) {
  const Source_Table file(c.folder, "states.tsv", "Contry Long_Name Short_Name", c.problems);
  std::map<Text, bool> with_states;
  Names short_names("short name");
  for (const Source_Row& row : file.Rows()) {
    State_of_Contries_Record state{row["Contry"], row["Long_Name"], row["Short_Name"]};
    c.countries.Find(state.Contry, row.Where(), c.problems);
    c.states.Add(Name_Within(state.Long_Name, state.Contry), 1, row.Where(), c.problems);
    short_names.Add(Name_Within(state.Short_Name, state.Contry), 1, row.Where(), c.problems);
    with_states[state.Contry] = true;
    c.library.Add(std::move(state), row.Where());
  }
  for (const Countries_Record& country : c.library.Of<Countries_Record>())
    if ((country.State_Usage == "Y") != with_states.contains(country.Short_Name))
      c.problems.Report(c.library.Where(country),
                        "State_Usage '" + country.State_Usage + "' does not fit states.tsv");
}

void Read_Languages(Compilation& c) {
  const Source_Table file(c.folder, "languages.tsv", "Language_Name Language_Number Width_Main",
                          c.problems);
  Names numbers("language number");
  for (const Source_Row& row : file.Rows()) {
    Languages_Available_Record language;
    language.ID = static_cast<Long>(c.library.Of<Languages_Available_Record>().size()) + 1;
    language.Language_Name = row["Language_Name"];
    language.Language_Number = static_cast<Integer>(row.Number("Language_Number", c.problems));
    language.Width_Main = static_cast<Integer>(row.Number("Width_Main", c.problems));
    Check_Language_Number(row, language.Language_Name, language.Language_Number, c.problems);
    numbers.Add(row["Language_Number"], language.ID, row.Where(), c.problems);
    c.library.Add(std::move(language), row.Where());
  }
  if (c.library.Of<Languages_Available_Record>().size() != Languages.size())
    c.problems.Report({file.File(), 0}, "the languages are not seven");
}

void Read_Settings(Compilation& c, std::string_view language) {
  const Source_Table file(c.folder, "wine_system.tsv",
                          "Country_Target CUS_NAME Language_Name_of_Product Installation_ID "
                          "Version Wine_Cellar_as_Option System_Language_Number "
                          "System_Initialized E_Mail Number_of_Cellars",
                          c.problems);
  for (const Source_Row& row : file.Rows()) {
    Wine_System_Record system;
    system.Country_Target = row["Country_Target"];
    system.CUS_NAME = row["CUS_NAME"];
    system.Language_Name_of_Product = language;
    system.Installation_ID = row["Installation_ID"];
    system.Version = row["Version"];
    system.Wine_Cellar_as_Option = row.Flag("Wine_Cellar_as_Option", "True", "False", c.problems);
    system.System_Language_Number = Number_Of_Language(language);
    system.System_Initialized = row.Flag("System_Initialized", "True", "False", c.problems);
    system.E_Mail = row["E_Mail"];
    system.Number_of_Cellars = static_cast<Integer>(row.Number("Number_of_Cellars", c.problems));
    c.countries.Find(system.Country_Target, row.Where(), c.problems);
    c.library.Add(std::move(system), row.Where());
  }
  if (file.Rows().size() != 1) c.problems.Report({file.File(), 0}, "the settings are not one row");
  if (Number_Of_Language(language) == 0)
    c.problems.Report("--language", "no such language: '" + std::string(language) + "'");
}

void Read_Taste_Types(Compilation& c) {
  const Source_Table file(c.folder, "wine_taste_type.tsv", "Color Type Word", c.problems);
  for (const Source_Row& row : file.Rows())
    c.library.Add(Wine_Taste_Type_Record{row["Color"], row["Type"]}, row.Where());
}

}  // namespace

void Read_Countries(Compilation& c) {
  const Source_Table file(c.folder, "countries.tsv",
                          "Short_Name Long_Name Spanish_Name French German Italian Japanese "
                          "Portuguese Language Language_Number State_Usage Zip_Code_Length "
                          "Zip_Location Zip_Type Description_of_State",
                          c.problems);
  for (const Source_Row& row : file.Rows()) {
    Countries_Record country;
    country.Short_Name = row["Short_Name"];
    country.Long_Name = row["Long_Name"];
    country.Spanish_Name = row["Spanish_Name"];
    country.French = row["French"];
    country.German = row["German"];
    country.Italian = row["Italian"];
    country.Japanese = row["Japanese"];
    country.Portuguese = row["Portuguese"];
    country.Language = row["Language"];
    country.Language_Number = static_cast<Integer>(row.Number("Language_Number", c.problems));
    country.State_Usage = row.Flag("State_Usage", "Y", "N", c.problems) ? "Y" : "N";
    country.Zip_Code_Length = static_cast<Integer>(row.Number("Zip_Code_Length", c.problems));
    country.Zip_Location = row["Zip_Location"];
    country.Zip_Type = row["Zip_Type"];
    country.Description_of_State = row["Description_of_State"];
    for (const char* name :
         {"Spanish_Name", "French", "German", "Italian", "Japanese", "Portuguese"})
      if (!row.Given(name)) c.problems.Report(row.Where(), std::string("no ") + name);
    Check_Language_Number(row, country.Language, country.Language_Number, c.problems);
    c.countries.Add(country.Short_Name, 1, row.Where(), c.problems);
    c.country_names.Add(country.Long_Name, 1, row.Where(), c.problems);
    c.library.Add(std::move(country), row.Where());
  }
  Read_States(c);
}

void Read_System(Compilation& c, std::string_view language) {
  Read_Languages(c);
  Read_Settings(c, language);
  const Source_Table cellars(c.folder, "cellars.tsv", "Cellar_Name", c.problems);
  for (const Source_Row& row : cellars.Rows()) {
    Cellars_Record cellar;
    cellar.Cellar_Name = row["Cellar_Name"];
    c.library.Add(std::move(cellar), row.Where());
  }
  if (cellars.Rows().size() != 1 || cellars.Rows().front().Given("Cellar_Name"))
    c.problems.Report({cellars.File(), 0}, "the cellars are not the one row 'x'");
  Read_Taste_Types(c);
}

void Read_Words(Compilation& c) {
  const std::string languages = "English Spanish French German Italian Japanese Portuguese";
  const Source_Table file(c.folder, "words.tsv", "Program Variable types_variable " + languages,
                          c.problems, Blanks::As_Written);
  for (const Source_Row& row : file.Rows()) {
    Words_Record words;
    words.Program = row["Program"];
    words.Variable = row["Variable"];
    words.types_variable = row["types_variable"];
    c.Fill_Languages(row, words);
    c.library.Add(std::move(words), row.Where());
  }
  const Source_Table keys(c.folder, "replace_keys.tsv", "Foreign_Key English_Key", c.problems);
  for (const Source_Row& row : keys.Rows())
    c.library.Add(ReplaceKeys_Record{row["Foreign_Key"], row["English_Key"]}, row.Where());
}

void Read_Glossary(Compilation& c) {
  const Source_Table file(
      c.folder, "?glossary.tsv",
      "Keyword Country_of_Origin English Spanish French German Italian Japanese Portuguese",
      c.problems);
  for (const Source_Row& row : file.Rows()) {
    Glossary_Record entry;
    entry.Keyword = row["Keyword"];
    entry.Country_of_Origin = row["Country_of_Origin"];
    if (row.Given("Country_of_Origin"))
      c.country_names.Find(entry.Country_of_Origin, row.Where(), c.problems);
    c.Fill_Languages(row, entry);
    const Glossary_Record& added = c.library.Add(std::move(entry), row.Where());
    c.keywords.Add(added.Keyword, added.ID, row.Where(), c.problems);
  }
}

}  // namespace Data_Compiler
