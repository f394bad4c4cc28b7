#include "platform/forms/Typed_Search.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QKeyEvent>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <array>

namespace Forms {

namespace {

QString Folded(const QString& text) {
  return text.normalized(QString::NormalizationForm_C).toCaseFolded();
}

QString Without_Accents(const QString& text) {
  QString letters;
  for (const QChar letter : text.normalized(QString::NormalizationForm_D)) {
    if (letter.category() != QChar::Mark_NonSpacing) letters.append(letter);
  }
  return letters;
}

// Most texts begin with a plain letter, which decides at once.
bool Begins_With(const QString& text, const QString& word) {
  if (text.isEmpty() || (text.front() < QChar(0x80) && text.front() != word.front())) return false;
  return text.startsWith(word) || Without_Accents(text).startsWith(word);
}

// The Unicode rules know where words begin in scripts without blanks, but take "d'Or" for one word.
bool Is_Beginning_Of_Word(const QString& text, qsizetype at) {
  if (at > 0 && (text[at - 1] == u'\'' || text[at - 1] == u'’')) return true;
  QTextBoundaryFinder words(QTextBoundaryFinder::Word, text);
  words.setPosition(at);
  return words.isAtBoundary();
}

bool Has_Word_As_Written(const QString& text, const QString& word) {
  for (auto at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
    if (Is_Beginning_Of_Word(text, at)) return true;
  }
  return false;
}

bool Has_Word(const QString& text, const QString& word) {
  return Has_Word_As_Written(text, word) || Has_Word_As_Written(Without_Accents(text), word);
}

using Matches = bool (*)(const QString& folded_text, const QString& folded_word);

// From the best match to the weakest.
constexpr std::array<Matches, 2> all_matches{Begins_With, Has_Word};

// The first row from `from` on, and around.
int Search(const QAbstractItemModel& entries, const QString& word, int from, Matches matches) {
  const int count = entries.rowCount();
  const QString wanted = Folded(word);
  for (int i = 0; i < count; ++i) {
    const int row = (from + i) % count;
    if (matches(Folded(entries.index(row, 0).data().toString()), wanted)) return row;
  }
  return -1;
}

bool Is_Letter_Again(const QString& word) {
  return word.size() > 1 &&
         std::ranges::all_of(word, [&word](QChar letter) { return letter == word.front(); });
}

// `next` is where the search for another entry than the present one starts.
int Search_Best(const QAbstractItemModel& entries, const QString& word, int from, int next) {
  for (const Matches matches : all_matches) {
    int found = Search(entries, word, from, matches);
    if (found < 0 && Is_Letter_Again(word)) found = Search(entries, word.left(1), next, matches);
    if (found >= 0) return found;
  }
  return -1;
}

}  // namespace

bool Typed_Search::Hear(const QKeyEvent& key, const QAbstractItemModel& entries) {
  constexpr std::array ends{Qt::Key_Return, Qt::Key_Enter,   Qt::Key_Delete, Qt::Key_Space,
                            Qt::Key_Up,     Qt::Key_Down,    Qt::Key_Home,   Qt::Key_End,
                            Qt::Key_PageUp, Qt::Key_PageDown};
  if (Is_Blank_In_Word(key, entries)) return true;
  if (std::ranges::find(ends, key.key()) != ends.end()) End();
  return false;
}

bool Typed_Search::Is_Blank_In_Word(const QKeyEvent& key, const QAbstractItemModel& entries) const {
  const bool blank = key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier;
  if (!blank || !Is_In_A_Word()) return false;
  return Search_Best(entries, word_ + ' ', 0, 0) >= 0;
}

bool Typed_Search::Is_In_A_Word() const {
  return !word_.isEmpty() && since_.isValid() &&
         !since_.hasExpired(QApplication::keyboardInputInterval());
}

int Typed_Search::Find(const QString& typed, const QAbstractItemModel& entries, int here,
                       bool here_too) {
  const bool goes_on = Is_In_A_Word();
  since_.start();
  word_ = goes_on ? word_ + typed : typed;
  // A blank alone is a key of its own, and keys like Delete have a text that nobody can see.
  const bool seen = typed.isEmpty() || typed.back().category() != QChar::Other_Control;
  if (word_.trimmed().isEmpty() || !seen) word_.clear();
  if (word_.isEmpty()) return -1;
  const int first = std::max(here, 0);
  const int next = here_too || here < 0 ? first : first + 1;
  return Search_Best(entries, word_, goes_on ? first : next, next);
}

}  // namespace Forms
