#include "platform/forms/List_Rows.h"

#include <algorithm>
#include <bit>

#include "platform/record_store/Text_Order.h"

namespace Forms {

namespace {

bool Is_Plain(std::string_view text, std::size_t at) {
  return at >= text.size() || static_cast<unsigned char>(text[at]) < 0x80;
}

// What two texts begin with in common does not tell them apart; the comparison is much faster on
// the rest where that is plain. The rest must not begin with a mark on the last common letter.
int Compare(std::string_view a, std::string_view b) {
  const std::size_t shorter = std::min(a.size(), b.size());
  std::size_t at = 0;
  while (at < shorter && a[at] == b[at]) ++at;
  while (at > 0 && !(Is_Plain(a, at) && Is_Plain(b, at))) --at;
  return Compare_Keys(a.substr(at), b.substr(at));
}

constexpr int key_length = 8;

/// A row with the beginning of its text at hand: most pairs of texts are told apart by it.
struct Sorted_Row {
  std::uint64_t key = 0;  ///< the first characters in small letters, as far as they are plain
  std::int32_t row = 0;
  std::int32_t known = key_length;  ///< how many of them are
};

Sorted_Row With_Key(std::string_view text, std::int32_t row) {
  Sorted_Row entry{0, row};
  for (int i = 0; i < key_length; ++i) {
    const auto at = static_cast<std::size_t>(i);
    if (!Is_Plain(text, at)) {
      entry.known = i;
      break;
    }
    const char letter = at < text.size() ? text[at] : '\0';
    const bool capital = letter >= 'A' && letter <= 'Z';
    const auto byte = static_cast<unsigned char>(capital ? letter + ('a' - 'A') : letter);
    entry.key |= static_cast<std::uint64_t>(byte) << (8 * (key_length - 1 - i));
  }
  return entry;
}

// Letters come before accents and case in the order of texts: the first plain letter that differs
// decides. 0 where the keys do not tell.
int Compare(const Sorted_Row& a, const Sorted_Row& b) {
  const int same = std::countl_zero(a.key ^ b.key) / 8;
  if (same >= std::min(a.known, b.known)) return 0;
  return a.key < b.key ? -1 : 1;
}

}  // namespace

int List_Rows::Place_Of(int row) const {
  if (places_.empty()) {
    places_.assign(cells_.size() / static_cast<std::size_t>(columns_), -1);
    for (std::size_t place = 0; place < order_.size(); ++place) {
      places_[static_cast<std::size_t>(order_[place])] = static_cast<std::int32_t>(place);
    }
  }
  return static_cast<std::size_t>(row) < places_.size() ? places_[static_cast<std::size_t>(row)]
                                                        : -1;
}

int List_Rows::Add(std::string_view text) {
  const int row = static_cast<int>(cells_.size() / static_cast<std::size_t>(columns_));
  cells_.resize(cells_.size() + static_cast<std::size_t>(columns_));
  order_.push_back(row);
  places_.clear();
  Set_Cell(row, 0, text);
  return row;
}

void List_Rows::Remove(int row) {
  std::erase(order_, row);
  marks_.erase(row);
  places_.clear();
}

void List_Rows::Clear() {
  block_.clear();
  lost_ = 0;
  cells_.clear();
  order_.clear();
  places_.clear();
  marks_.clear();
}

std::string_view List_Rows::Cell(int row, int column) const {
  const Span& span = At(row, column);
  if (span.start == unset) return {};
  return std::string_view(block_).substr(span.start, span.length);
}

void List_Rows::Set_Cell(int row, int column, std::string_view text) {
  Span& span = const_cast<Span&>(At(row, column));
  if (span.start != unset && text.size() <= span.length) {
    lost_ += span.length - text.size();
    text.copy(block_.data() + span.start, text.size());
  } else {
    lost_ += span.length;
    span.start = static_cast<std::uint32_t>(block_.size());
    block_.append(text);
  }
  span.length = static_cast<std::uint32_t>(text.size());
  if (lost_ > 4096 && lost_ > block_.size() / 2) Pack();
}

void List_Rows::Pack() {
  std::string packed;
  packed.reserve(block_.size() - lost_);
  for (Span& span : cells_) {
    if (span.start == unset) continue;
    const std::size_t start = packed.size();
    packed.append(block_, span.start, span.length);
    span.start = static_cast<std::uint32_t>(start);
  }
  block_ = std::move(packed);
  lost_ = 0;
}

const Row_Marks& List_Rows::Marks(int row) const {
  static const Row_Marks none;
  const auto found = marks_.find(row);
  return found == marks_.end() ? none : found->second;
}

void List_Rows::Sort(int column, bool descending) {
  std::vector<Sorted_Row> rows;
  rows.reserve(order_.size());
  for (const std::int32_t row : order_) rows.push_back(With_Key(Cell(row, column), row));
  std::ranges::stable_sort(rows, [&](const Sorted_Row& a, const Sorted_Row& b) {
    int order = Compare(a, b);
    if (order == 0) order = Compare(Cell(a.row, column), Cell(b.row, column));
    return descending ? order > 0 : order < 0;
  });
  std::ranges::transform(rows, order_.begin(), &Sorted_Row::row);
  places_.clear();
}

}  // namespace Forms
