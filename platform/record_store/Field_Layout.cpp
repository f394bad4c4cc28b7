#include "platform/record_store/Field_Layout.h"

#include <array>
#include <bit>
#include <cstring>

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
  if (std::memcmp(a.data(), b.data(), a.size()) == 0) return true;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i] && Small(a[i]) != Small(b[i])) return false;
  }
  return true;
}

// Both ends of a name tell it from the others of its table; the bit of the case is left out. Two
// names that fall together cost a comparison more.
std::size_t Hash_Of_Name(std::string_view name) {
  constexpr std::uint64_t no_case = 0xDFDFDFDFDFDFDFDF;
  std::uint64_t head = 0;
  std::uint64_t tail = 0;
  if (name.size() >= sizeof head) {
    std::memcpy(&head, name.data(), sizeof head);
    std::memcpy(&tail, name.data() + name.size() - sizeof tail, sizeof tail);
  } else {
    for (const char c : name) head = head << 8 | static_cast<unsigned char>(c);
  }
  constexpr std::uint64_t scatter = 0x9E3779B97F4A7C15;
  std::uint64_t hash = (head & no_case) * scatter;
  hash = (hash ^ (hash >> 32) ^ (tail & no_case)) * scatter;
  return static_cast<std::size_t>((hash >> 32) + name.size());
}

std::string_view Type_Name(Field_Type type) { return type_names[static_cast<std::size_t>(type)]; }

std::optional<Field_Type> Type_By_Name(std::string_view name) {
  for (std::size_t i = 0; i < type_names.size(); ++i) {
    if (Same_Name(type_names[i], name)) return static_cast<Field_Type>(i);
  }
  return std::nullopt;
}

Field_Layout::Field_Layout(std::vector<Column> columns)
    : number_(next_number++), columns_(std::move(columns)) {
  slots_.assign(std::bit_ceil(columns_.size() * 2 + 1), -1);
  for (int ordinal = 0; ordinal < Count(); ++ordinal) {
    if (At(ordinal).counter) counter_ = ordinal;
    if (Find(At(ordinal).name) >= 0) continue;
    std::size_t slot = Hash_Of_Name(At(ordinal).name) & (slots_.size() - 1);
    while (slots_[slot] >= 0) slot = (slot + 1) & (slots_.size() - 1);
    slots_[slot] = static_cast<std::int16_t>(ordinal);
  }
}

int Field_Layout::Find(std::string_view name) const {
  if (slots_.empty()) return -1;
  std::size_t slot = Hash_Of_Name(name) & (slots_.size() - 1);
  for (; slots_[slot] >= 0; slot = (slot + 1) & (slots_.size() - 1)) {
    if (Same_Name(columns_[static_cast<std::size_t>(slots_[slot])].name, name)) return slots_[slot];
  }
  return -1;
}

}  // namespace Record_Store
