// The facts of Unicode behind Text_Order.cpp. The tables are sorted by character.
#pragma once

#include <cstdint>
#include <span>

namespace Text_Order {

/// A character and the place of what it becomes in the pool of its table.
struct Mapping_Entry {
  char32_t from;
  std::uint16_t at;
  std::uint16_t length;
};

/// Characters `first` to `last` are combining marks of this class (never 0).
struct Class_Run {
  char32_t first;
  char32_t last;
  std::uint8_t combining_class;
};

extern const std::span<const Mapping_Entry> decompositions;  ///< full and canonical, without Hangul
extern const char32_t decomposition_pool[];
extern const std::span<const Mapping_Entry>
    foldings;  ///< full case folding of decomposed characters
extern const char32_t folding_pool[];
extern const std::span<const Class_Run> combining_classes;

}  // namespace Text_Order
