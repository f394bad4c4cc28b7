#include "platform/forms/List_Rows.h"

#include <algorithm>

#include "platform/record_store/Text_Order.h"

namespace Forms {

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
  std::ranges::stable_sort(order_, [&](int a, int b) {
    const int order = Compare_Keys(Cell(a, column), Cell(b, column));
    return descending ? order > 0 : order < 0;
  });
  places_.clear();
}

}  // namespace Forms
