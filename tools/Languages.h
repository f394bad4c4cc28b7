// The seven languages, and where a record holds its texts in them.
#pragma once

#include <array>
#include <string_view>

#include "platform/run_time/Values.h"

namespace Data_Compiler {

/// The languages in the order of their numbers, 3 to 9, as columns of data/ and of the tables.
inline constexpr std::array<std::string_view, 7> Languages = {
    "English", "Spanish", "French", "German", "Italian", "Japanese", "Portuguese"};

/// The members that hold a text in the order of `Languages`. One table spells Japanese otherwise.
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

}  // namespace Data_Compiler
