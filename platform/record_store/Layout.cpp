#include "platform/record_store/Layout.h"

#include <array>
#include <bit>

namespace Record_Store {
namespace {

constexpr std::array<std::string_view, 7> type_names{"Boolean",  "Integer", "Long", "Single",
                                                     "Currency", "Date",    "Text"};

unsigned char Small(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 'A' && byte <= 'Z' ? byte | 0x20 : byte;
}

std::uint64_t next_number = 1;

}  // namespace

bool Same_Name(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i] && Small(a[i]) != Small(b[i])) return false;
  }
  return true;
}

std::size_t Hash_Of_Name(std::string_view name) {
  std::uint32_t hash = 2166136261U;
  for (const char c : name) hash = (hash ^ Small(c)) * 16777619U;
  return hash ^ (hash >> 15);
}

std::string_view Type_Name(Field_Type type) { return type_names[static_cast<std::size_t>(type)]; }

std::optional<Field_Type> Type_By_Name(std::string_view name) {
  for (std::size_t i = 0; i < type_names.size(); ++i) {
    if (Same_Name(type_names[i], name)) return static_cast<Field_Type>(i);
  }
  return std::nullopt;
}

Layout::Layout(std::vector<Column> columns) : number_(next_number++), columns_(std::move(columns)) {
  slots_.assign(std::bit_ceil(columns_.size() * 2 + 1), -1);
  for (int ordinal = 0; ordinal < Count(); ++ordinal) {
    if (At(ordinal).counter) counter_ = ordinal;
    if (Find(At(ordinal).name) >= 0) continue;
    std::size_t slot = Hash_Of_Name(At(ordinal).name) & (slots_.size() - 1);
    while (slots_[slot] >= 0) slot = (slot + 1) & (slots_.size() - 1);
    slots_[slot] = static_cast<std::int16_t>(ordinal);
  }
}

int Layout::Find(std::string_view name) const {
  if (slots_.empty()) return -1;
  std::size_t slot = Hash_Of_Name(name) & (slots_.size() - 1);
  for (; slots_[slot] >= 0; slot = (slot + 1) & (slots_.size() - 1)) {
    if (Same_Name(columns_[static_cast<std::size_t>(slots_[slot])].name, name)) return slots_[slot];
  }
  return -1;
}

}  // namespace Record_Store
