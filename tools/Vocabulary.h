// The English words that rows hold where the program compares texts.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace Data_Compiler {

inline constexpr std::array<std::string_view, 5> Colors = {"Red", "White", "Rosé", "Sparkling",
                                                           "Fortified"};
/// The same as general wines hold them.
inline constexpr std::array<std::string_view, 5> Wine_Colors = {"RED", "WHITE", "ROSE", "SPARKLING",
                                                                "FORTIFIED"};
inline constexpr std::array<std::string_view, 3> Wine_Types = {"VA", "LE", "AP"};

inline constexpr std::array<std::string_view, 9> Cheese_Types = {
    "Blue-vein", "Fresh", "Hard",      "Processed",   "Semi-hard",
    "Semi-soft", "Soft",  "Soft/Hard", "Soft-ripened"};
inline constexpr std::array<std::string_view, 6> Milk_Types = {"Cow",  "Cow-Goat", "Cow-Goat-Sheep",
                                                               "Goat", "Sheep",    "Water Buffalo"};

/// The boxes of the wine screens, by their indexes.
inline constexpr std::array<std::string_view, 6> Taste_Marks = {
    "Sweet", "Medium Dry", "Dry", "Low Tannings", "Medium Tannings", "Strong Tannings"};
inline constexpr std::array<std::string_view, 8> Aroma_Marks = {
    "Earthy", "Vegetive", "Woody", "Caramelized", "Nutty", "Spicy", "Floral", "Fruity"};

template <class List>
bool Is_One_Of(const List& list, std::string_view word) {
  return std::find(list.begin(), list.end(), word) != list.end();
}

}  // namespace Data_Compiler
