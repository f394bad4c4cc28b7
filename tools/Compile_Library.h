// From the data folder to the rows of the delivered file.
#pragma once

#include <string>
#include <string_view>

#include "tools/Library.h"
#include "tools/Problems.h"

namespace Data_Compiler {

/// Reads the files of `folder`, resolves all names, and checks every rule. Problems are gathered;
/// the library is fit to be delivered only if there are none. `language` is an English name and
/// becomes the language in force.
Library Compile_Library(const std::string& folder, std::string_view language, Problems& problems);

/// Everything that must hold of the rows, however they came about. Names and cells are the business
/// of the compilation.
void Check_Library(const Library& library, Problems& problems);

// The parts of Check_Library.
void Check_Keys(const Library& library, Problems& problems);
void Check_Groups(const Library& library, Problems& problems);
void Check_Words(const Library& library, Problems& problems);
void Check_Places(const Library& library, Problems& problems);
void Check_Pairings(const Library& library, Problems& problems);
void Check_General_Wines(const Library& library, Problems& problems);

}  // namespace Data_Compiler
