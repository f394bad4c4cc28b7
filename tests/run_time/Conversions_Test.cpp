#include "platform/run_time/Conversions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLocale>
#include <limits>
#include <random>

#include "platform/run_time/Run_Time_Error.h"
#include "tests/support/Expect_Failure.h"

namespace {

class Conversions : public testing::Test {
 protected:
  void SetUp() override { Set_Locale("en_US"); }
  void TearDown() override { Set_Locale(""); }
};

// A few locales that differ in what matters, and every other one that the toolkit knows.
std::vector<std::string> All_Locales() {
  std::vector<std::string> names;
  for (const QLocale& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
    names.push_back(locale.name().toStdString());
  }
  return names;
}

TEST_F(Conversions, What_is_numeric_is_read_in_full_by_the_rule_of_the_locale) {
  struct Case {
    const char* locale;
    const char* text;
    double value;
  };
  for (const Case& given : {Case{"en_US", "12.5", 12.5},
                            {"en_US", " 1,234.5 ", 1234.5},
                            {"en_US", "-3", -3},
                            {"en_US", "+3", 3},
                            {"en_US", ".5", .5},
                            {"en_US", "1e3", 1000},
                            {"de_DE", "12,50", 12.5},
                            {"de_DE", "1.234,5", 1234.5},
                            {"fr_FR", "12,5", 12.5},
                            {"ja_JP", "12.5", 12.5},
                            {"pt_BR", "1.000.000,25", 1000000.25}}) {
    Set_Locale(given.locale);
    EXPECT_TRUE(Is_Numeric(given.text)) << given.locale << " " << given.text;
    EXPECT_DOUBLE_EQ(To_Double(given.text), given.value) << given.locale << " " << given.text;
  }
}

TEST_F(Conversions, What_is_not_numeric_is_13) {
  for (const char* text :
       {"",          " ",     "-",  ".",  "abc",  "12a",   "12,50", "1 2", "NaN",  "nan", "inf",
        "-Infinity", "1e400", "1e", "e5", "0x10", "1.2.3", "１２",  "٣",   "12;3", "--5"}) {
    EXPECT_FALSE(Is_Numeric(text)) << text;
    EXPECT_FAILURE(13, To_Double(text));
    EXPECT_FAILURE(13, To_Currency(text));
  }
  Set_Locale("de_DE");
  EXPECT_FALSE(Is_Numeric("12.5"));
}

TEST_F(Conversions, Rounding_is_half_to_even_and_ranges_are_kept) {
  EXPECT_EQ(To_Integer(2.5), 2);
  EXPECT_EQ(To_Integer(3.5), 4);
  EXPECT_EQ(To_Integer(-2.5), -2);
  EXPECT_EQ(To_Integer(32767.4), 32767);
  EXPECT_FAILURE(6, To_Integer(32767.5));
  EXPECT_FAILURE(6, To_Integer("-32769"));
  EXPECT_EQ(To_Integer("-32768"), -32768);
  EXPECT_EQ(To_Long("2147483647"), 2147483647);
  EXPECT_FAILURE(6, To_Long("2147483648"));
  EXPECT_FAILURE(6, To_Long(std::numeric_limits<double>::quiet_NaN()));
  EXPECT_FAILURE(6, To_Single(1e39));
  EXPECT_EQ(To_Single("13.5"), 13.5F);
  EXPECT_EQ(To_Single(To_Text(std::numeric_limits<Single>::max())),
            std::numeric_limits<Single>::max());
}

TEST_F(Conversions, Money_is_exact_from_text_and_back) {
  struct Case {
    const char* text;
    std::int64_t ten_thousandths;
  };
  for (const Case& given : {Case{"0", 0},
                            {"12.5", 125000},
                            {"0.0001", 1},
                            {"0.00005", 0},
                            {"0.00015", 2},
                            {"0.00025", 2},
                            {"0.000251", 3},
                            {"-0.00015", -2},
                            {"1e2", 1000000},
                            {"1.5e-1", 1500},
                            {"0.000000001", 0},
                            {"1e-300", 0},
                            {"0e999999999", 0},
                            {"922337203685477.5807", INT64_MAX}}) {
    EXPECT_EQ(To_Currency(given.text).ten_thousandths, given.ten_thousandths) << given.text;
  }
  EXPECT_FAILURE(6, To_Currency("922337203685477.5808"));
  EXPECT_FAILURE(6, To_Currency("-922337203685477.58075"));
  EXPECT_FAILURE(6, To_Currency("1e30"));
  EXPECT_EQ(To_Text(Currency{125000}), "12.5");
  EXPECT_EQ(To_Text(Currency{-1}), "-0.0001");
  EXPECT_EQ(To_Text(Currency{70000}), "7");
}

TEST_F(Conversions, Numbers_come_back_from_their_text_in_every_locale) {
  std::mt19937_64 random(20261122);
  for (const std::string& locale : All_Locales()) {
    Set_Locale(locale);
    for (const double value : {0.0, 0.1, -12.5, 1e15, 1.0 / 3, 123456789.125, 5e-324, 1.7e308}) {
      ASSERT_TRUE(Is_Numeric(To_Text(value))) << locale << " " << To_Text(value);
      ASSERT_EQ(To_Double(To_Text(value)), value) << locale;
    }
    for (int round = 0; round < 5; ++round) {
      const Currency money{static_cast<std::int64_t>(random()) / 3};
      ASSERT_EQ(To_Currency(To_Text(money)), money) << locale << " " << To_Text(money);
    }
    ASSERT_EQ(To_Single(To_Text(13.7F)), 13.7F) << locale;
  }
}

TEST_F(Conversions, Val_reads_what_stands_in_front) {
  EXPECT_EQ(Val("12abc"), 12);
  EXPECT_EQ(Val(" 1 2.5 "), 12.5);
  EXPECT_EQ(Val("-3e2x"), -300);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("nan"), 0);
  Set_Locale("de_DE");
  EXPECT_EQ(Val("12,5"), 12);
}

TEST_F(Conversions, Dates_come_back_from_their_text_in_every_locale) {
  std::mt19937_64 random(7);
  std::uniform_int_distribution<std::int64_t> seconds(Date::Of(1900, 1, 1).seconds,
                                                      Date::Of(2099, 12, 31).seconds);
  for (const std::string& locale : All_Locales()) {
    Set_Locale(locale);
    for (int round = 0; round < 8; ++round) {
      const Date moment = round == 0 ? No_Date : Date{seconds(random)};
      ASSERT_EQ(To_Date(To_Text(moment)), moment) << locale << " " << To_Text(moment);
    }
  }
}

TEST_F(Conversions, A_date_is_read_by_the_order_of_the_locale) {
  struct Case {
    const char* locale;
    const char* text;
    Date moment;
  };
  for (const Case& given : {Case{"en_US", "03/05/1947", No_Date},
                            {"en_GB", "05/03/1947", No_Date},
                            {"de_DE", "5.3.1947", No_Date},
                            {"ja_JP", "1947/3/5", No_Date},
                            {"de_DE", "1947-03-05", No_Date},
                            {"en_US", "1947-03-05T00:00:00", No_Date},
                            {"en_US", "March 5, 1947", No_Date},
                            {"fr_FR", "5 mars 1947", No_Date},
                            {"C", "5 Mar 1947", No_Date},
                            {"en_US", "1/2/29", Date::Of(2029, 1, 2)},
                            {"en_US", "1/2/30", Date::Of(1930, 1, 2)},
                            {"en_US", "2/29/2024 3:05 PM", Date::Of(2024, 2, 29, 15, 5)},
                            {"en_US", "2/29/2024 12:00:01 AM", Date::Of(2024, 2, 29, 0, 0, 1)}}) {
    Set_Locale(given.locale);
    EXPECT_TRUE(Is_Date(given.text)) << given.locale << " " << given.text;
    EXPECT_EQ(To_Date(given.text), given.moment) << given.locale << " " << given.text;
  }
}

TEST_F(Conversions, What_is_no_date_is_13) {
  const auto no_date = [](const char* text) {
    EXPECT_FALSE(Is_Date(text)) << text;
    EXPECT_FAILURE(13, To_Date(text));
  };
  const auto no_dates = [&](auto... texts) { (no_date(texts), ...); };
  no_dates("", " ", "x", "2023", "2/30/2024", "13/13/2024", "2/29/2023", "1/2/3/4", "1/2/12345",
           "Foo 5, 2020", "1/2/2020 25:00", "1/2/2020 10:60", "1/2/2020 10", "12:30", "1/2/2020T",
           "٠١/٠٢/٢٠٢٠", "0/1/2020", "1/2/2020 1:2:3:4", "March March 2020", "1e3",
           "1/2/2020 13:00 PM");
}

TEST_F(Conversions, The_clock_and_the_calendar) {
  const Date moment = Date::Of(2026, 11, 22, 21, 40, 2);
  Set_Clock_For_Tests(&moment);
  EXPECT_EQ(Now(), moment);
  Set_Clock_For_Tests(nullptr);
  EXPECT_GT(Now(), Date::Of(2026, 1, 1));
  EXPECT_EQ(Format_Date(moment), "11-22-2026");
  EXPECT_EQ(moment.Year(), 2026);
  EXPECT_EQ(No_Date, Date::Of(1947, 3, 5));
  EXPECT_EQ(To_Text(moment), "11/22/2026 21:40:02");
}

TEST_F(Conversions, Texts_are_cut_by_characters_not_bytes) {
  EXPECT_EQ(Trim("  Rosé "), "Rosé");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Len("Rosé🍷"), 5);
  EXPECT_EQ(Mid("Rosé🍷x", 4, 2), "é🍷");
  EXPECT_EQ(Mid("SYS-1", 1, 3), "SYS");
  EXPECT_EQ(Mid("ab", 5, 3), "");
  EXPECT_EQ(Left("日本語", 2), "日本");
  EXPECT_EQ(In_Str(1, "aé.b", "."), 3);
  EXPECT_EQ(In_Str(3, "é.é.", "."), 4);
  EXPECT_EQ(In_Str(1, "abc", "x"), 0);
  EXPECT_EQ(Upper_Case("Rosé"), "ROSÉ");
  EXPECT_FAILURE(5, Mid("abc", 0, 1));
  EXPECT_FAILURE(5, Left("abc", -1));
}

}  // namespace
