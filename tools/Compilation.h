// The state of one run over the data folder, and its steps. Each step reads the files of one field
// of the library and adds their rows; a step may use the names that earlier ones have found.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Languages.h"
#include "tools/Groups.h"
#include "tools/Library.h"
#include "tools/Names.h"
#include "tools/Problems.h"
#include "tools/Source_Table.h"

namespace Data_Compiler {

struct Compilation {
  Compilation(std::string data_folder, Problems& found)
      : folder(std::move(data_folder)), problems(found) {}

  std::string folder;
  Problems& problems;
  Library library;

  Names countries{"country"};      ///< by short name
  Names country_names{"country"};  ///< by English name
  Names states{"state"};           ///< by name within the country
  Names keywords{"keyword"};
  Names regions{"region"};         ///< by name within the country
  Names classifications{"class"};  ///< by name within the country
  Names labels{"label"};           ///< by name within the region's key
  Names wineries{"winery"};        ///< by name within the country
  Names varieties{"variety"};
  Names pairings{"pairing"};  ///< by English name
  Names cheeses{"cheese"};
  Names wines{"general wine"};  ///< by name, or "name - [winery]"

  /// The lines of the cheeses: read early for their names, and again when all they name is known.
  std::unique_ptr<Source_Table> cheese_lines;

  /// The labels of a name within a country: one name may stand in several of its regions.
  std::map<std::string, std::vector<Long>> labels_of_countries;

  std::map<Long, Address> variety_addresses;
  std::map<Long, Address> pairing_addresses;
  std::map<Long, Long> pairings_of_cheeses;  ///< the pairing that stands for a cheese
  std::map<Long, Long> cheeses_of_pairings;  ///< the same the other way

  /// What grows where and what goes with what, by the owner's key, as the lines tell it; made into
  /// link rows by Add_Links once all files are read.
  std::map<Long, std::vector<Long>> pairings_of_varieties;
  std::map<Long, std::vector<Long>> foods_of_cheeses;
  std::map<Long, std::vector<Long>> pairings_of_wines;
  std::map<Long, std::vector<Long>> varieties_of_regions;
  std::map<Long, std::vector<Long>> varieties_of_cheeses;
  std::map<Long, std::vector<Long>> cheeses_of_wines;

  /// The keys behind the names in a list cell. A name that stands twice in it is a problem.
  std::vector<Long> Keys_In(const Source_Row& row, std::string_view column, const Names& names);

  /// Adds a text in seven languages from a row's language columns and gives its key; -1 where no
  /// language has one. A text in some languages only is a problem.
  Long Add_Text(const Source_Row& row);

  /// Fills the seven members of a record from a row's language columns; a missing one is a problem.
  template <class Record>
  void Fill_Languages(const Source_Row& row, Record& record);
};

/// The name of a label, which is unique within its region alone.
std::string Label_Within(std::string_view label, Long region);

void Read_Countries(Compilation& c);
void Read_System(Compilation& c, std::string_view language);
void Read_Words(Compilation& c);
void Read_Glossary(Compilation& c);

void Read_Varieties(Compilation& c);
void Read_Pairings(Compilation& c);
void Read_Cheeses(Compilation& c);

void Read_Regions(Compilation& c);
void Read_Classifications(Compilation& c);
void Read_Labels(Compilation& c);
void Read_Wineries(Compilation& c);

void Read_General_Wines(Compilation& c);

/// What the cheeses' lines tell beyond their names.
void Read_Cheese_Links(Compilation& c);

/// Adds both directions of every link that the steps before have gathered.
void Add_Links(Compilation& c);

/// Refuses texts that are as in English in another language, unless
/// FOLDER/same_in_every_language.tsv says that they are so there, and lines of it that nothing
/// needs.
void Check_Equal_Texts(Compilation& c);

template <class Record>
void Compilation::Fill_Languages(const Source_Row& row, Record& record) {
  constexpr auto members = Language_Members<Record>();
  for (std::size_t i = 0; i < Languages.size(); ++i) {
    record.*members[i] = row[Languages[i]];
    if (!row.Given(Languages[i]))
      problems.Report(row.Where(), "no text in " + std::string(Languages[i]));
  }
}

}  // namespace Data_Compiler
