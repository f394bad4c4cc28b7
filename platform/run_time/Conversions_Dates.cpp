#include <QDate>
#include <QDateTime>
#include <QString>
#include <array>
#include <chrono>
#include <optional>
#include <vector>

#include "platform/run_time/Conversions.h"
#include "platform/run_time/Locale.h"
#include "platform/run_time/Run_Time_Error.h"

namespace {

const Date* clock_for_tests = nullptr;

// What the locale's short date says: the order of day, month and year, the sign between them, and
// whether day and month have two digits.
struct Date_Shape {
  std::array<char, 3> order{};
  char sign = '-';
  bool two_digits = false;
};

Date_Shape Shape() {
  const std::string pattern = Machine_Locale().dateFormat(QLocale::ShortFormat).toStdString();
  Date_Shape shape;
  std::size_t parts = 0;
  for (const char character : pattern) {
    const char part = character == 'M' ? 'm' : character;
    if (part == 'd' || part == 'm' || part == 'y') {
      if (parts == 0 || shape.order[parts - 1] != part) {
        if (parts == 3) break;
        shape.order[parts++] = part;
      }
    } else if (shape.sign == '-' && (part == '/' || part == '.')) {
      shape.sign = part;
    }
  }
  const bool names_month = pattern.find("MMM") != std::string::npos;
  if (parts != 3 || names_month) return {{'y', 'm', 'd'}, '-', true};
  shape.two_digits = pattern.find("MM") != std::string::npos;
  return shape;
}

// A piece of a date's text: a number with its count of digits, or the number of a named month.
struct Piece {
  int value = 0;
  int digits = 0;  // 0 for a named month
};

int Month_Of(const QString& word) {
  for (const QLocale& locale : {Machine_Locale(), QLocale::c()}) {
    for (int month = 1; month <= 12; ++month) {
      for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
        for (QString name :
             {locale.monthName(month, format), locale.standaloneMonthName(month, format)}) {
          if (name.endsWith(u'.')) name.chop(1);
          if (name.compare(word, Qt::CaseInsensitive) == 0) return month;
        }
      }
    }
  }
  return 0;
}

bool Is_Digit(QChar character) { return character >= u'0' && character <= u'9'; }

// Cuts the day's text into exactly three pieces; anything else is no date.
std::optional<std::vector<Piece>> Pieces_Of(const QString& text) {
  std::vector<Piece> pieces;
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype start = at;
    if (Is_Digit(text[at])) {
      while (at < text.size() && Is_Digit(text[at])) ++at;
      if (at - start > 4) return std::nullopt;
      pieces.push_back({text.mid(start, at - start).toInt(), static_cast<int>(at - start)});
    } else if (text[at].isLetter()) {
      while (at < text.size() && text[at].isLetter()) ++at;
      const int month = Month_Of(text.mid(start, at - start));
      if (month == 0) return std::nullopt;
      pieces.push_back({month, 0});
    } else if (QStringView(u"/-., ").contains(text[at])) {
      ++at;
    } else {
      return std::nullopt;
    }
  }
  if (pieces.size() != 3) return std::nullopt;
  return pieces;
}

// The order in which the pieces stand: a year of four digits in front is ISO 8601, a named month
// leaves day and year to be told apart, everything else is the locale's order.
std::optional<std::array<char, 3>> Order_Of(const std::vector<Piece>& pieces) {
  std::size_t named = 3;
  for (std::size_t place = 0; place < 3; ++place) {
    if (pieces[place].digits != 0) continue;
    if (named != 3) return std::nullopt;
    named = place;
  }
  if (named == 3) return pieces[0].digits == 4 ? std::array{'y', 'm', 'd'} : Shape().order;
  const std::size_t first = named == 0 ? 1 : 0;
  const std::size_t last = named == 2 ? 1 : 2;
  const bool year_first = pieces[first].digits == 4;
  std::array<char, 3> order{};
  order[named] = 'm';
  order[first] = year_first ? 'y' : 'd';
  order[last] = year_first ? 'd' : 'y';
  return order;
}

int Full_Year(const Piece& piece) {
  if (piece.digits > 2) return piece.value;
  return piece.value + (piece.value < 30 ? 2000 : 1900);
}

std::optional<QDate> Read_Day(const QString& text) {
  const auto pieces = Pieces_Of(text);
  if (!pieces) return std::nullopt;
  const auto order = Order_Of(*pieces);
  if (!order) return std::nullopt;
  int year = 0;
  int month = 0;
  int day = 0;
  for (std::size_t place = 0; place < 3; ++place) {
    const Piece& piece = (*pieces)[place];
    if ((*order)[place] == 'y') {
      year = Full_Year(piece);
    } else if (piece.digits > 2) {
      return std::nullopt;
    } else {
      ((*order)[place] == 'm' ? month : day) = piece.value;
    }
  }
  const QDate date(year, month, day);
  if (year < 100 || !date.isValid()) return std::nullopt;
  return date;
}

// Hours and minutes, perhaps seconds, perhaps the locale's or the English mark of half a day.
std::optional<QTime> Read_Time(QString text) {
  int half = 0;  // 1 before noon, 2 after
  const QLocale& locale = Machine_Locale();
  for (const auto& [mark, value] :
       {std::pair{locale.amText(), 1}, std::pair{locale.pmText(), 2},
        std::pair{QStringLiteral("AM"), 1}, std::pair{QStringLiteral("PM"), 2}}) {
    if (half != 0 || mark.isEmpty() || !text.endsWith(mark, Qt::CaseInsensitive)) continue;
    half = value;
    text = text.left(text.size() - mark.size()).trimmed();
  }
  const QStringList parts = text.split(u':');
  if (parts.size() < 2 || parts.size() > 3) return std::nullopt;
  std::array<int, 3> numbers{};
  for (qsizetype place = 0; place < parts.size(); ++place) {
    const QString& part = parts[place];
    const bool digits = part.size() == 2 || (part.size() == 1 && place == 0);
    if (!digits || !std::all_of(part.begin(), part.end(), Is_Digit)) return std::nullopt;
    numbers[static_cast<std::size_t>(place)] = part.toInt();
  }
  if (half != 0) {
    if (numbers[0] < 1 || numbers[0] > 12) return std::nullopt;
    numbers[0] = numbers[0] % 12 + (half == 2 ? 12 : 0);
  }
  const QTime time(numbers[0], numbers[1], numbers[2]);
  if (!time.isValid()) return std::nullopt;
  return time;
}

// The place where the time of day begins: the number before the first colon.
qsizetype Start_Of_Time(const QString& text) {
  qsizetype at = text.indexOf(u':');
  if (at < 0) return text.size();
  while (at > 0 && Is_Digit(text[at - 1])) --at;
  return at;
}

std::optional<Date> Read_Moment(std::string_view given) {
  QString text = QString::fromUtf8(given.data(), qsizetype(given.size())).trimmed();
  const qsizetype start = Start_Of_Time(text);
  QString day_text = text.left(start).trimmed();
  if (start < text.size() && day_text.endsWith(u'T')) day_text.chop(1);
  const auto day = Read_Day(day_text);
  if (!day) return std::nullopt;
  QTime time(0, 0);
  if (start < text.size()) {
    const bool apart = start > 0 && !Is_Digit(text[start - 1]);
    const auto read = apart ? Read_Time(text.mid(start)) : std::nullopt;
    if (!read) return std::nullopt;
    time = *read;
  }
  return Date::Of(day->year(), day->month(), day->day(), time.hour(), time.minute(), time.second());
}

Text Digits(int number, std::size_t count) {
  Text text = std::to_string(number);
  return text.size() < count ? Text(count - text.size(), '0') + text : text;
}

}  // namespace

bool Is_Date(std::string_view text) { return Read_Moment(text).has_value(); }

Date To_Date(std::string_view text) {
  const auto moment = Read_Moment(text);
  if (!moment) Fail(Failure::Type_Mismatch);
  return *moment;
}

Text To_Text(Date moment) {
  const Date_Shape shape = Shape();
  const Date::Parts parts = moment.Split();
  const std::size_t width = shape.two_digits ? 2 : 1;
  Text text;
  for (const char part : shape.order) {
    if (!text.empty()) text += shape.sign;
    if (part == 'y') text += Digits(parts.year, 4);
    if (part == 'm') text += Digits(parts.month, width);
    if (part == 'd') text += Digits(parts.day, width);
  }
  return text + " " + Digits(parts.hour, 2) + ":" + Digits(parts.minute, 2) + ":" +
         Digits(parts.second, 2);
}

Text Format_Date(Date moment) {
  const Date::Parts parts = moment.Split();
  return Digits(parts.month, 2) + "-" + Digits(parts.day, 2) + "-" + Digits(parts.year, 4);
}

Date Now() {
  if (clock_for_tests != nullptr) return *clock_for_tests;
  const QDateTime now = QDateTime::currentDateTime();
  return Date::Of(now.date().year(), now.date().month(), now.date().day(), now.time().hour(),
                  now.time().minute(), now.time().second());
}

void Set_Clock_For_Tests(const Date* moment) { clock_for_tests = moment; }
