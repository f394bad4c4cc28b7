#include "platform/record_store/Look_Ups.h"

#include <functional>
#include <string_view>

namespace Record_Store {
namespace {

constexpr std::size_t most_rows = 4096;
constexpr std::size_t places_of_asked = 4096;

std::uint64_t Hash(const Order& order, const Value& key) {
  constexpr std::uint64_t scatter = 0x9E3779B97F4A7C15;
  const std::uint64_t of_key = key.kind == Cell_Kind::Text ? std::hash<std::string_view>{}(key.text)
                               : key.kind == Cell_Kind::Number
                                   ? static_cast<std::uint64_t>(key.number)
                                   : std::hash<double>{}(key.real);
  const std::uint64_t hash = (of_key ^ reinterpret_cast<std::uintptr_t>(&order)) * scatter;
  return hash ^ (hash >> 32);
}

bool Same_Key(const Value& a, const Value& b) {
  if (a.kind != b.kind) return false;
  if (a.kind == Cell_Kind::Text) return a.text == b.text;
  return a.kind == Cell_Kind::Number ? a.number == b.number : a.real == b.real;
}

}  // namespace

std::optional<std::size_t> Look_Ups::Find(const Order& order, const Value& key,
                                          std::uint64_t file_state) {
  if (file_state_ != file_state) Forget();
  file_state_ = file_state;
  missed_ = Hash(order, key);
  if (places_.empty()) return std::nullopt;
  const auto place = places_.find(missed_);
  if (place == places_.end()) return std::nullopt;
  const std::size_t row = place->second;
  if (orders_[row] != &order || !Same_Key(keys_.At(row, 0), key)) return std::nullopt;
  return row;
}

void Look_Ups::Keep_Missed(const Order& order, const Value& key, sqlite3_stmt* statement,
                           int width) {
  if (asked_.empty()) asked_.resize(places_of_asked);
  const auto mark = static_cast<std::uint32_t>(missed_ >> 32) | 1;
  std::uint32_t& asked = asked_[missed_ % places_of_asked];
  if (asked != mark) {
    asked = mark;
    return;
  }
  if (orders_.size() == most_rows || !places_.emplace(missed_, orders_.size()).second) return;
  if (orders_.empty()) {
    keys_.Clear(1);
    rows_.Clear(width);
  }
  orders_.push_back(&order);
  keys_.Append(key);
  rows_.Append(statement);
}

void Look_Ups::Forget() {
  asked_.clear();
  if (orders_.empty()) return;
  places_.clear();
  orders_.clear();
}

}  // namespace Record_Store
