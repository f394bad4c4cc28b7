// The seven languages, and where each table keeps what it says in them.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>

#include "core/Globals.h"
#include "platform/run_time/Values.h"

/// The languages in the order of their numbers, 3 to 9, as the tables name their columns.
inline constexpr std::array<std::string_view, 7> Languages{
    "English", "Spanish", "French", "German", "Italian", "Japanese", "Portuguese"};
inline constexpr Integer First_Language = 3;

/// The place of a language in `Languages`, 0 to 6; beyond it for a number that is no language's.
inline std::size_t Language_Place(Integer language = System_Language) {
  return static_cast<std::size_t>(language - First_Language);
}

/// English, or Spanish under English: the language beside the one in force.
inline Integer Other_Language() {
  constexpr Integer spanish = 4;
  return System_Language == First_Language ? spanish : First_Language;
}

// ---- the ordinals of the columns in the language in force ----

inline int Words_Column() { return System_Language; }  ///< of `Words` and `Glossary`
inline int Words_for_Data_Column() { return System_Language - 2; }
inline int Maridages_Column(Integer language = System_Language) { return language + 2; }
/// Of `World_Contries`, whose columns have no order.
inline int Country_Name_Column() {
  constexpr std::array columns{1, 2, 9, 10, 11, 12, 13};
  return columns.at(Language_Place());
}

// ---- memory records ----

/// The members that hold a text in each language, in the order of `Languages`. One table spells
/// Japanese otherwise.
template <class Record>
constexpr std::array<Text Record::*, 7> Language_Members() {
  constexpr auto japanese = [] {
    if constexpr (requires { &Record::Japanes; })
      return &Record::Japanes;
    else
      return &Record::Japanese;
  }();
  return {&Record::English, &Record::Spanish, &Record::French,    &Record::German,
          &Record::Italian, japanese,         &Record::Portuguese};
}

/// The text of the language in force.
template <class Record>
auto& In_Language(Record& record) {
  return record.*Language_Members<std::remove_const_t<Record>>().at(Language_Place());
}
