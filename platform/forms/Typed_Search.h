// Typing into a list, which goes to the entry that begins so. For the sources of this room only.
#pragma once

#include <QElapsedTimer>
#include <QString>

class QAbstractItemModel;
class QKeyEvent;

namespace Forms {

/// Letters that follow each other quickly are one word. Upper and lower case are the same, and a
/// letter typed without its accent finds one that has it. An entry that begins with the word comes
/// first; where none does, one in which a later word begins so. The same letter again goes to the
/// next entry.
class Typed_Search {
 public:
  /// The row of the entry, looked for in the first column; -1 if there is none. The search for a
  /// new word starts behind the row `here`, or at `here` itself with `here_too`, and goes on from
  /// the top after the last row.
  int Find(const QString& typed, const QAbstractItemModel& entries, int here, bool here_too);
  /// To be told of every key before the list acts on it. True for a blank that some entry has at
  /// this place of the word being typed: it is to be looked for like a letter. Any other key that
  /// acts on an entry or moves ends the word.
  bool Hear(const QKeyEvent& key, const QAbstractItemModel& entries);
  /// What is typed next is a new word.
  void End() { word_.clear(); }

 private:
  bool Is_In_A_Word() const;
  bool Is_Blank_In_Word(const QKeyEvent& key, const QAbstractItemModel& entries) const;

  QString word_;
  QElapsedTimer since_;
};

}  // namespace Forms
