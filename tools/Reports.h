// What a person wants to know of the library: how much it holds, and which texts want a look.
#pragma once

#include <ostream>
#include <string>

#include "tools/Library.h"
#include "tools/Problems.h"

namespace Data_Compiler {

/// The rows of each table, and what each country has of regions, labels, classes, wineries, cheeses
/// and general wines.
void Print_Summary(const Library& library, std::ostream& out);

/// Every text of a screen, pairing and definition that reads as in English in another language,
/// unless FOLDER/same_in_every_language.tsv says that it is so in that language; and the lines of
/// that file that nothing needs. Gives their number.
int Report_Equal_Texts(const Library& library, const std::string& folder, std::ostream& out,
                       Problems& problems);

}  // namespace Data_Compiler
