#include "tests/pairing/Pickers_Program.h"

#include <algorithm>

#include "platform/record_store/Text_Order.h"

Pickers_Program::Texts Pickers_Program::In_Order(const Text& statement) const {
  Texts texts = Stored(statement, 1);
  std::ranges::stable_sort(texts,
                           [](const Text& a, const Text& b) { return Compare_Texts(a, b) < 0; });
  return texts;
}
