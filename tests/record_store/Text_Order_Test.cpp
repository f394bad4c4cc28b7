// The order of texts: samples, and what must hold for any three texts.
#include "platform/record_store/Text_Order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

int Sign_Of(int value) { return (value > 0) - (value < 0); }

std::string Encoded(char32_t c) {
  std::string text;
  const auto add = [&](unsigned value) { text += static_cast<char>(value); };
  if (c < 0x80) {
    add(c);
  } else if (c < 0x800) {
    add(0xC0 | c >> 6);
    add(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    add(0xE0 | c >> 12);
    add(0x80 | (c >> 6 & 0x3F));
    add(0x80 | (c & 0x3F));
  } else {
    add(0xF0 | c >> 18);
    add(0x80 | (c >> 12 & 0x3F));
    add(0x80 | (c >> 6 & 0x3F));
    add(0x80 | (c & 0x3F));
  }
  return text;
}

}  // namespace

TEST(Text_Order_Test, Base_Letters_Then_Accents_Then_Case) {
  const std::vector<std::string> ordered{
      "",       " a",      "1",      "a",     "A",    "A b",   "à la carte", "ab",     "Åland",
      "cote",   "Cote",    "coté",   "côte",  "Côté", "côtes", "eclair",     "Eclair", "éclair",
      "Éclair", "Edam",    "n",      "ñ",     "Ñ",    "nz",    "rose",       "ROSE",   "rosé",
      "ROSÉ",   "strasse", "straße", "zebra", "한",   "か",    "が",         "き",     "日本"};
  std::vector<std::string> sorted = ordered;
  std::mt19937 chance(1);
  std::ranges::shuffle(sorted, chance);
  std::ranges::sort(sorted, [](const auto& a, const auto& b) { return Compare_Texts(a, b) < 0; });
  EXPECT_EQ(sorted, ordered);
}

TEST(Text_Order_Test, Keys_Are_Equal_Without_Regard_To_Case_And_Encoding) {
  const std::vector<std::pair<std::string, std::string>> same{{"ROSÉ", "Rosé"},
                                                              {"ROSÉ", "rose\u0301"},
                                                              {"STRASSE", "straße"},
                                                              {"ΣΊΣΥΦΟΣ", "σίσυφος"},
                                                              {"Ǆ", "ǆ"},
                                                              {"한", "\u1112\u1161\u11AB"},
                                                              {"\u212B", "å"},
                                                              {"ﬁn", "FIN"},
                                                              {"q\u0307\u0323", "Q\u0323\u0307"},
                                                              {"İ", "i\u0307"},
                                                              {"ᾳ\u0301", "α\u0301\u0345"}};
  for (const auto& [a, b] : same) {
    EXPECT_TRUE(Same_Text(a, b)) << a << " " << b;
    EXPECT_EQ(Compare_Keys("x" + a + "y", "X" + b + "Y"), 0) << a << " " << b;
  }
  const std::vector<std::pair<std::string, std::string>> others{
      {"ROSE", "ROSÉ"}, {"o", "ø"},    {"ae", "æ"},   {"か", "が"},  {"か", "カ"},
      {"a", "a "},      {"\xC3", "Ã"}, {"\xFF", "ÿ"}, {"a\xCC", "a"}};
  for (const auto& [a, b] : others) EXPECT_FALSE(Same_Text(a, b)) << a << " " << b;
  EXPECT_EQ(Compare_Texts("Rosé", "Rose\u0301"), 0);
  EXPECT_LT(Compare_Texts("rosé", "Rosé"), 0);
}

// Texts of letters that decompose, fold and combine, and of broken bytes.
TEST(Text_Order_Test, Any_Three_Texts_Have_One_Order) {
  const std::vector<std::string> pieces{"a",      "A",      "b",    "e",    "é", "É", "\u0301",
                                        "\u0323", "\u0345", "ß",    "ss",   "İ", "i", "α",
                                        "か",     "한",     "\xC3", "\x80", " "};
  std::mt19937 chance(7);
  const auto any = [&] {
    std::string text;
    for (auto length = chance() % 5; length > 0; --length) {
      text += chance() % 8 == 0 ? Encoded(static_cast<char32_t>(0xA0 + chance() % 0x2100))
                                : pieces[chance() % pieces.size()];
    }
    return text;
  };
  for (int i = 0; i < 200000; ++i) {
    const std::string a = any();
    const std::string b = any();
    const std::string c = any();
    for (const auto compare : {Compare_Texts, Compare_Keys}) {
      ASSERT_EQ(Sign_Of(compare(a, b)), -Sign_Of(compare(b, a))) << a << '|' << b;
      ASSERT_EQ(compare(a, a), 0) << a;
      if (compare(a, b) <= 0 && compare(b, c) <= 0) {
        ASSERT_LE(compare(a, c), 0) << a << '|' << b << '|' << c;
      }
    }
    // The full order only divides what is equal as a key.
    if (const int keys = Compare_Keys(a, b)) {
      ASSERT_EQ(Sign_Of(Compare_Texts(a, b)), Sign_Of(keys)) << a << '|' << b;
    }
  }
}
