// What a person wants to know of the library: how much it holds.
#pragma once

#include <ostream>

#include "tools/Library.h"

namespace Data_Compiler {

/// The rows of each table, and what each country has of regions, labels, classes, wineries, cheeses
/// and general wines.
void Print_Summary(const Library& library, std::ostream& out);

}  // namespace Data_Compiler
