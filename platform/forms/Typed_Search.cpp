#include "platform/forms/Typed_Search.h"

#include <QAbstractItemModel>
#include <QApplication>
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
  const QString folded = Folded(text);
  if (folded.isEmpty() || (folded.front() < QChar(0x80) && folded.front() != word.front())) {
    return false;
  }
  return folded.startsWith(word) || Without_Accents(folded).startsWith(word);
}

// The first row from `from` on, and around.
int Search(const QAbstractItemModel& entries, const QString& word, int from) {
  const int count = entries.rowCount();
  const QString wanted = Folded(word);
  for (int i = 0; i < count; ++i) {
    const int row = (from + i) % count;
    if (Begins_With(entries.index(row, 0).data().toString(), wanted)) return row;
  }
  return -1;
}

bool Is_One_Letter(const QString& word) {
  return std::ranges::all_of(word, [&word](QChar letter) { return letter == word.front(); });
}

}  // namespace

void Typed_Search::Hear(int key) {
  constexpr std::array ends{Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Delete,
                            Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Home,
                            Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown};
  if (std::ranges::find(ends, key) != ends.end()) End();
}

bool Typed_Search::Is_In_A_Word() const {
  return !word_.isEmpty() && since_.isValid() &&
         !since_.hasExpired(QApplication::keyboardInputInterval());
}

bool Typed_Search::Goes_On_With(const QString& typed, const QAbstractItemModel& entries) const {
  return Is_In_A_Word() && Search(entries, word_ + typed, 0) >= 0;
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
  const int found = Search(entries, word_, goes_on ? first : next);
  if (found >= 0 || !Is_One_Letter(word_)) return found;
  return Search(entries, word_.left(1), next);
}

}  // namespace Forms
