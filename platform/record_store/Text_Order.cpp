#include "platform/record_store/Text_Order.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/record_store/Text_Order_Tables.h"

namespace Text_Order {
namespace {

using Characters = std::vector<char32_t>;

// ---- what Unicode tells of one character ----

constexpr char32_t last_character = 0x10FFFF;

// Most pages of 256 characters hold nothing of interest: one byte a page saves the search.
class Page_Marks {
 public:
  enum Mark : std::uint8_t { Decomposes = 1, Folds = 2, Combines = 4 };

  Page_Marks() {
    for (const Mapping_Entry& entry : decompositions) Set(entry.from, Decomposes);
    for (const Mapping_Entry& entry : foldings) Set(entry.from, Folds);
    for (const Class_Run& run : combining_classes) {
      for (char32_t c = run.first; c <= run.last; ++c) Set(c, Combines);
    }
  }

  bool Has(char32_t c, Mark mark) const {
    return c <= last_character && (marks_[c >> 8] & mark) != 0;
  }

 private:
  void Set(char32_t c, Mark mark) { marks_[c >> 8] |= mark; }

  std::array<std::uint8_t, (last_character >> 8) + 1> marks_{};
};

const Page_Marks& Pages() {
  static const Page_Marks pages;
  return pages;
}

const Mapping_Entry* Find(std::span<const Mapping_Entry> entries, char32_t c) {
  const auto found = std::ranges::lower_bound(entries, c, {}, &Mapping_Entry::from);
  return found != entries.end() && found->from == c ? &*found : nullptr;
}

constexpr auto plain_folding = [] {
  std::array<unsigned char, 128> folding{};
  for (unsigned char c = 0; c < 128; ++c) {
    folding[c] = c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c + ('a' - 'A')) : c;
  }
  return folding;
}();

const Mapping_Entry* Folding_Of(char32_t c) {
  return Pages().Has(c, Page_Marks::Folds) ? Find(foldings, c) : nullptr;
}

int Class_Of(char32_t c) {
  if (c < 0x300 || !Pages().Has(c, Page_Marks::Combines)) return 0;
  const auto run = std::ranges::lower_bound(combining_classes, c, {}, &Class_Run::last);
  return run != combining_classes.end() && run->first <= c ? run->combining_class : 0;
}

// ---- from bytes to decomposed characters ----

// A byte that is no UTF-8 stands for itself, behind all characters.
char32_t Next_Character(std::string_view text, std::size_t& at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(at);
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 1) return byte(at++);
  char32_t c = length == 0 ? 0 : lead & (0x7F >> length);
  bool whole = length != 0 && at + length <= text.size();
  for (std::size_t i = 1; whole && i < length; ++i) {
    whole = (byte(at + i) & 0xC0) == 0x80;
    c = (c << 6) | (byte(at + i) & 0x3F);
  }
  constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
  whole = whole && c >= smallest[length] && c <= last_character && (c < 0xD800 || c > 0xDFFF);
  if (!whole) return last_character + 1 + byte(at++);
  at += length;
  return c;
}

constexpr char32_t hangul_first = 0xAC00;
constexpr char32_t hangul_count = 11172;

void Append_Hangul(char32_t syllable, Characters& to) {
  constexpr char32_t vowels = 21;
  constexpr char32_t trails = 28;
  const char32_t index = syllable - hangul_first;
  to.push_back(0x1100 + index / (vowels * trails));
  to.push_back(0x1161 + index % (vowels * trails) / trails);
  if (index % trails != 0) to.push_back(0x11A7 + index % trails);
}

void Append_Decomposed(char32_t c, Characters& to) {
  if (c - hangul_first < hangul_count) {
    Append_Hangul(c, to);
    return;
  }
  const Mapping_Entry* entry =
      c >= 0xC0 && Pages().Has(c, Page_Marks::Decomposes) ? Find(decompositions, c) : nullptr;
  if (entry == nullptr) {
    to.push_back(c);
  } else {
    to.insert(to.end(), &decomposition_pool[entry->at],
              &decomposition_pool[entry->at + entry->length]);
  }
}

// Marks behind one letter that do not touch each other may stand in any order: sort them by class.
void Order_Marks(Characters& text) {
  for (auto at = text.begin(); at != text.end();) {
    const auto is_mark = [](char32_t c) { return Class_Of(c) != 0; };
    const auto first = std::find_if(at, text.end(), is_mark);
    const auto last = std::find_if_not(first, text.end(), is_mark);
    if (last - first > 1) std::ranges::stable_sort(first, last, {}, Class_Of);
    at = last;
  }
}

void Decompose(std::string_view text, Characters& to) {
  to.clear();
  for (std::size_t at = 0; at < text.size();) Append_Decomposed(Next_Character(text, at), to);
  Order_Marks(to);
}

void Fold(const Characters& text, Characters& to) {
  to.clear();
  for (const char32_t c : text) {
    if (c < plain_folding.size()) {
      to.push_back(plain_folding[c]);
    } else if (const Mapping_Entry* entry = Folding_Of(c)) {
      to.insert(to.end(), &folding_pool[entry->at], &folding_pool[entry->at + entry->length]);
    } else {
      to.push_back(c);
    }
  }
  Order_Marks(to);
}

// ---- the three levels ----

int Sign(bool less) { return less ? -1 : 1; }

int Compare_Letters(const Characters& a, const Characters& b) {
  auto x = a.begin();
  auto y = b.begin();
  for (;; ++x, ++y) {
    while (x != a.end() && Class_Of(*x) != 0) ++x;
    while (y != b.end() && Class_Of(*y) != 0) ++y;
    if (x == a.end() || y == b.end()) break;
    if (*x != *y) return Sign(*x < *y);
  }
  return (x != a.end()) - (y != b.end());
}

// Both have the same letters. A letter without a mark comes before the same letter with one.
int Compare_Accents(const Characters& a, const Characters& b) {
  auto x = a.begin();
  auto y = b.begin();
  for (; x != a.end() && y != b.end(); ++x, ++y) {
    if (*x == *y) continue;
    const bool x_mark = Class_Of(*x) != 0;
    const bool y_mark = Class_Of(*y) != 0;
    return x_mark && y_mark ? Sign(*x < *y) : Sign(y_mark);
  }
  return (x != a.end()) - (y != b.end());
}

// A small letter comes before its capital.
int Compare_Case(const Characters& a, const Characters& b) {
  const auto [x, y] = std::ranges::mismatch(a, b);
  if (x == a.end() || y == b.end()) return (x != a.end()) - (y != b.end());
  const bool x_capital = Folding_Of(*x) != nullptr;
  const bool y_capital = Folding_Of(*y) != nullptr;
  return x_capital != y_capital ? Sign(y_capital) : Sign(*x < *y);
}

// What stands behind a common beginning of plain letters.
int Compare_Rest(std::string_view a, std::string_view b, bool with_case, int case_before) {
  thread_local Characters a_whole;
  thread_local Characters b_whole;
  thread_local Characters a_folded;
  thread_local Characters b_folded;
  Decompose(a, a_whole);
  Decompose(b, b_whole);
  Fold(a_whole, a_folded);
  Fold(b_whole, b_folded);
  if (const int letters = Compare_Letters(a_folded, b_folded)) return letters;
  if (const int accents = Compare_Accents(a_folded, b_folded)) return accents;
  if (!with_case || case_before != 0) return with_case ? case_before : 0;
  return Compare_Case(a_whole, b_whole);
}

// Behind a plain letter a text can be cut: nothing after it changes what stands before.
std::size_t Last_Cut(std::string_view text, std::size_t at) {
  while (at > 0 && (static_cast<unsigned char>(text[at - 1]) & 0x80) != 0) --at;
  return at;
}

// Texts are compared as they lie until they differ in something else than plain letters.
int Compare(std::string_view a, std::string_view b, bool with_case) {
  const std::size_t common = std::min(a.size(), b.size());
  int case_before = 0;
  std::size_t i = 0;
  for (; i < common; ++i) {
    const auto x = static_cast<unsigned char>(a[i]);
    const auto y = static_cast<unsigned char>(b[i]);
    if (x == y) continue;
    if (((x | y) & 0x80) != 0) break;
    if (plain_folding[x] != plain_folding[y]) return Sign(plain_folding[x] < plain_folding[y]);
    if (case_before == 0) case_before = Sign(x > y);
  }
  if (i == common) {
    if (a.size() == b.size()) return with_case ? case_before : 0;
    const std::string_view longer = a.size() > b.size() ? a : b;
    if ((static_cast<unsigned char>(longer[i]) & 0x80) == 0) return Sign(a.size() < b.size());
  }
  const std::size_t cut = Last_Cut(a, i);
  return Compare_Rest(a.substr(cut), b.substr(cut), with_case, case_before);
}

}  // namespace
}  // namespace Text_Order

int Compare_Texts(std::string_view a, std::string_view b) {
  return Text_Order::Compare(a, b, true);
}

int Compare_Keys(std::string_view a, std::string_view b) {
  return Text_Order::Compare(a, b, false);
}
