// A fixed array whose subscripts are tested.
#pragma once

#include <array>

#include "platform/run_time/Run_Time_Error.h"

/// An array with the subscripts 0 to `Last`, by value-initialised elements. A subscript outside
/// is failure 9. The lists that live in such arrays count from 1; place 0 stays as it began.
template <class Element, int Last>
class Bounded_Array {
 public:
  Element& operator[](int at) { return elements_[Tested(at)]; }
  const Element& operator[](int at) const { return elements_[Tested(at)]; }
  void Clear() { elements_.fill(Element{}); }
  static constexpr int Bound() { return Last; }

 private:
  static std::size_t Tested(int at) {
    if (at < 0 || at > Last) Fail(Failure::Subscript_Out_Of_Range);
    return static_cast<std::size_t>(at);
  }
  std::array<Element, Last + 1> elements_{};
};
