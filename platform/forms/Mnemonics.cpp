#include "platform/forms/Mnemonics.h"

#include <algorithm>

#include "platform/forms/Qt_Text.h"

namespace Forms {

namespace {

bool Begins_A_Word(const QString& text, qsizetype place) {
  if (place == 0 || !text[place - 1].isLetterOrNumber()) return true;
  return text[place].isUpper() && text[place - 1].isLower();  // in names of controls
}

// -1 where `fits` holds for no letter: those that begin a word are asked first.
template <class Condition>
qsizetype Place_Of_Letter(const QString& text, Condition fits) {
  for (const bool at_beginning : {true, false}) {
    for (qsizetype i = 0; i < text.size(); ++i) {
      if (at_beginning && !Begins_A_Word(text, i)) continue;
      if (Can_Be_Typed(text[i]) && fits(text[i].toUpper())) return i;
    }
  }
  return -1;
}

qsizetype Place_Of(const QString& text, QChar letter) {
  return Place_Of_Letter(text, [letter](QChar one) { return one == letter.toUpper(); });
}

QString Doubled(QString text) { return text.replace("&", "&&"); }

}  // namespace

// Marks that several scripts share, such as the one that lengthens a Japanese vowel, count as
// letters too; so do the raised ones of abbreviations.
bool Can_Be_Typed(QChar letter) {
  if (letter >= u'0' && letter <= u'9') return true;
  const bool latin = letter.script() == QChar::Script_Latin && letter < QChar(0x250);
  return latin && (letter.isLower() || letter.isUpper());
}

bool Has_Letters_To_Type(std::string_view caption) {
  return std::ranges::any_of(To_Qt(caption), Can_Be_Typed);
}

bool Contains(std::string_view caption, QChar letter) {
  return Place_Of(To_Qt(caption), letter) >= 0;
}

bool Begins_Word_In(const QString& text, QChar letter) {
  const qsizetype place = Place_Of(text, letter);
  return place >= 0 && Begins_A_Word(text, place);
}

QString With_Letter(std::string_view caption, QChar letter) {
  if (letter.isNull()) return Escaped(caption);
  const QString text = To_Show(caption);
  const qsizetype place = Place_Of(text, letter);
  if (place >= 0) return Doubled(text.left(place)) + "&" + Doubled(text.mid(place));
  const QString gap = Has_Letters_To_Type(caption) ? " " : "";
  return Escaped(caption) + gap + "(&" + letter.toUpper() + ")";
}

QChar Letter_Of(const QString& text) {
  const qsizetype place = QString(text).replace("&&", "  ").indexOf('&');
  return place < 0 ? QChar() : text[place + 1].toUpper();
}

QChar Letters::Taken(QChar letter) {
  Take(letter);
  return letter;
}

QChar Letters::Of(std::string_view caption) {
  const QString text = To_Show(caption);
  const qsizetype place = Place_Of_Letter(text, [this](QChar letter) { return Is_Free(letter); });
  return place < 0 ? QChar() : Taken(text[place].toUpper());
}

QChar Letters::Behind(std::string_view name, QChar wished) {
  if (!wished.isNull() && Is_Free(wished)) return Taken(wished);
  if (const QChar letter = Of(name); !letter.isNull()) return letter;
  return Of("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
}

QString Letters::Give(std::string_view caption, std::string_view name, QChar wished) {
  if (caption.empty()) return {};
  const QChar letter = Has_Letters_To_Type(caption) ? Of(caption) : Behind(name, wished);
  return With_Letter(caption, letter);
}

}  // namespace Forms
