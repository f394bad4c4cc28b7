// Finding by typing: the word that the user types into a list, and the entry that it finds. For the
// sources of this room only.
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>

class QAbstractItemModel;
class QKeyEvent;
class QWidget;

namespace Forms {

/// Letters that follow each other without a pause are one word. Upper and lower case are the same,
/// and a letter typed without its accent finds one that has it. The hits of a word are the entries
/// that begin with it, in their order, and after them those in which a later word begins so. An
/// entry that is the word is found first. The same letter again goes to the next entry.
///
/// While the word is typed a label at the list tells it, with the place of the hit among all of
/// them (Word_Tip.h).
class Typed_Search : public QObject {
 public:
  /// What is searched, and where the search stands.
  struct Place {
    const QAbstractItemModel& entries;
    int column = 0;
    int here = -1;            ///< a new word is looked for behind this row, and on from the top
    bool here_too = false;    ///< ... or in this row itself
    bool blank_acts = false;  ///< on the hit, where no entry has a blank at this place of the word
  };

  /// `list` is where the keys are typed.
  explicit Typed_Search(QWidget& list);
  ~Typed_Search() override;

  /// To be told of every key before the list acts on it. The row to go to where the key is of the
  /// word, -1 where nothing is found or the word was given up; nothing where the key is the list's.
  /// Of the word are, beside letters: a blank, Backspace and Esc while it is typed, F3 (with Shift
  /// backwards) also afterwards, Down and Up while it is typed and has several hits.
  std::optional<int> Hear(const QKeyEvent& key, const Place& place);
  /// Types this on; the row to go to, or -1.
  int Find(const QString& typed, const Place& place);
  /// Whether a word was begun and has not ended.
  bool Has_Word() const { return !word_.isEmpty(); }
  /// What is typed next is a new word.
  void End();

  /// Called when nothing was typed for a while. It may end the word.
  std::function<void()> paused;

  bool eventFilter(QObject* object, QEvent* event) override;

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  bool Is_Being_Typed() const;
  bool Is_Of_Word(const QKeyEvent& key, const Place& place) const;
  bool Is_Blank_Of_Word(const Place& place) const;
  int Steps(const QKeyEvent& key, const Place& place) const;
  int Go_On(int steps, const Place& place);
  int Take_Back(const Place& place);
  void Tell(std::size_t hit, std::size_t hits);

  QWidget& list_;
  QString word_;    ///< as typed
  QString sought_;  ///< what was looked for last; stays when the word has ended
  bool found_ = false;
  QElapsedTimer since_;
  QBasicTimer pause_;
};

}  // namespace Forms
