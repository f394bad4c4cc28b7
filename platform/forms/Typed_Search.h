// Typing into a list, which goes to the entry that begins so. For the sources of this room only.
#pragma once

#include <QElapsedTimer>
#include <QString>

class QAbstractItemModel;

namespace Forms {

/// Letters that follow each other quickly are one word. Case does not count, and a letter typed
/// without its accent is found with it. The same letter again goes to the next entry.
class Typed_Search {
 public:
  /// The row of the entry whose text, in the first column, begins with the word so far; -1 if none.
  /// A new word is looked for from the row after `here`, or from `here` itself where that is only
  /// where the focus stands; around the end.
  int Find(const QString& typed, const QAbstractItemModel& entries, int here, bool here_too);
  /// Whether a word is being typed that goes on with `typed` in some entry.
  bool Goes_On_With(const QString& typed, const QAbstractItemModel& entries) const;
  /// What is typed next is a new word.
  void End() { word_.clear(); }
  /// To be told of every key: one that acts on the entry or moves on ends the word.
  void Hear(int key);

 private:
  bool Is_In_A_Word() const;

  QString word_;
  QElapsedTimer since_;
};

}  // namespace Forms
