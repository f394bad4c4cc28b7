#include "tools/Problems.h"

namespace Data_Compiler {

std::string Place::Text() const { return line > 0 ? file + ":" + std::to_string(line) : file; }

void Problems::Report(const Place& place, std::string_view message) {
  Report(place.Text(), message);
}

void Problems::Report(std::string_view where, std::string_view message) {
  lines_.push_back(std::string(where) + ": " + std::string(message));
}

}  // namespace Data_Compiler
