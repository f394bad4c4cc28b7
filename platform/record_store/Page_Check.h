// Why the engine refused a file: the password or the file itself.
#pragma once

#include <string>
#include <string_view>

namespace Record_Store {

/// Whether the file can be an encrypted one at all: whole pages, and bytes as mixed as only
/// encrypted ones are.
bool Looks_Encrypted(const std::string& path);

/// Whether the seal of any page fits the password: then the password is right and the file is
/// damaged. Costs as much as an opening.
bool Some_Page_Fits(const std::string& path, std::string_view password);

}  // namespace Record_Store
