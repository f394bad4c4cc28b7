// Statements of queries, before the engine sees them.
#pragma once

#include <string>
#include <string_view>

namespace Record_Store {

/// Whether the text begins with the word SELECT.
bool Begins_With_Select(std::string_view text);

/// Whether the text could be nothing but a name.
bool Is_Name(std::string_view text);

/// Whether nothing but blanks, and the sign that ends a statement, is left.
bool Is_Only_End(std::string_view text);

/// The statement with its ORDER BY made complete: behind its terms, the plain names among them once
/// more by case, so that texts stand in the full order of Text_Order.h.
std::string With_Full_Order(std::string_view text);

}  // namespace Record_Store
