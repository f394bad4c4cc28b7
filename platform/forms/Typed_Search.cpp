#include "platform/forms/Typed_Search.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>
#include <array>

#include "platform/forms/Form_Texts.h"
#include "platform/forms/List_Common.h"
#include "platform/forms/Qt_Text.h"
#include "platform/forms/Word_Match.h"
#include "platform/forms/Word_Tip.h"
#include "platform/run_time/Guard.h"

namespace Forms {

namespace {

// The desktop's own interval parts letters that are meant as one word when one looks for the keys.
int Pause_After_Word() { return QApplication::keyboardInputInterval() * 5 / 2; }

bool Is_Letter_Again(const QString& word) {
  return word.size() > 1 &&
         std::ranges::all_of(word, [&word](QChar letter) { return letter == word.front(); });
}

Hits Hits_Of(const QString& word, const Typed_Search::Place& place) {
  return Forms::Hits_Of(word, place.entries, place.column);
}

// Keys like Delete have a text that nobody can see.
bool Is_Seen(const QString& text) {
  return !text.isEmpty() && text.back().category() != QChar::Other_Control;
}

bool Acts_Or_Moves(const QKeyEvent& key) {
  constexpr std::array keys{Qt::Key_Return, Qt::Key_Enter,   Qt::Key_Delete, Qt::Key_Space,
                            Qt::Key_Up,     Qt::Key_Down,    Qt::Key_Home,   Qt::Key_End,
                            Qt::Key_PageUp, Qt::Key_PageDown};
  return std::ranges::find(keys, key.key()) != keys.end();
}

}  // namespace

Typed_Search::Typed_Search(QWidget& list) : list_(list) { list.installEventFilter(this); }

Typed_Search::~Typed_Search() { Word_Tip::Hide(list_); }

void Typed_Search::End() {
  word_.clear();
  pause_.stop();
  Word_Tip::Hide(list_);
}

bool Typed_Search::Is_Being_Typed() const {
  return Has_Word() && !since_.hasExpired(Pause_After_Word());
}

std::optional<int> Typed_Search::Hear(const QKeyEvent& key, const Place& place) {
  if (!Has_Command_Key(key)) {
    if (const int steps = Steps(key, place)) return Go_On(steps, place);
    if (Is_Of_Word(key, place)) return Find(key.text(), place);
    if (Is_Being_Typed() && key.key() == Qt::Key_Backspace) return Take_Back(place);
    if (Is_Being_Typed() && key.key() == Qt::Key_Escape) {
      End();
      return -1;
    }
  }
  if (Acts_Or_Moves(key)) End();
  return {};
}

bool Typed_Search::Is_Of_Word(const QKeyEvent& key, const Place& place) const {
  return key.key() == Qt::Key_Space ? Is_Blank_Of_Word(place) : Is_Seen(key.text());
}

bool Typed_Search::Is_Blank_Of_Word(const Place& place) const {
  if (!Is_Being_Typed()) return false;
  return !place.blank_acts || !found_ || !Hits_Of(word_ + ' ', place).empty();
}

// Where there is nowhere to go, the arrow keys are the list's.
int Typed_Search::Steps(const QKeyEvent& key, const Place& place) const {
  const bool back = key.modifiers().testFlag(Qt::ShiftModifier);
  if (key.key() == Qt::Key_F3) return sought_.isEmpty() ? 0 : back ? -1 : 1;
  const bool arrow = key.key() == Qt::Key_Down || key.key() == Qt::Key_Up;
  if (!arrow || back || !Is_Being_Typed() || Hits_Of(sought_, place).size() < 2) return 0;
  return key.key() == Qt::Key_Down ? 1 : -1;
}

int Typed_Search::Go_On(int steps, const Place& place) {
  const Hits hits = Hits_Of(sought_, place);
  const int count = static_cast<int>(hits.size());
  const auto here = std::ranges::find(hits, place.here, &Hit::row);
  const int at = static_cast<int>(here - hits.begin());
  const int next = here == hits.end() ? 0 : (at + steps + count) % count;
  word_ = sought_;
  Tell(static_cast<std::size_t>(next), hits.size());
  return hits.empty() ? -1 : hits[static_cast<std::size_t>(next)].row;
}

int Typed_Search::Take_Back(const Place& place) {
  word_.chop(1);
  return Find({}, place);
}

int Typed_Search::Find(const QString& typed, const Place& place) {
  const bool goes_on = Is_Being_Typed();
  word_ = goes_on ? word_ + typed : typed;
  if (word_.trimmed().isEmpty() || !Is_Seen(word_)) {
    End();
    return -1;
  }
  const int first = std::max(place.here, 0);
  const int next = place.here_too || place.here < 0 ? first : first + 1;
  int from = goes_on ? first : next;
  sought_ = word_;
  Hits hits = Hits_Of(word_, place);
  // A blank that no entry has here may be meant to go on, or to end the word.
  if (hits.empty() && word_.endsWith(' ')) hits = Hits_Of(sought_ = word_.trimmed(), place);
  if (Is_Letter_Again(word_)) {
    Hits of_letter = Hits_Of(word_.left(1), place);
    if (std::max(Best_Of(of_letter), Match::Beginning) < Best_Of(hits)) {
      hits = std::move(of_letter);
      sought_ = word_.left(1);
      from = next;
    }
  }
  const std::size_t hit = Best_From(hits, from, sought_.size() == 1);
  Tell(hit, hits.size());
  return hits.empty() ? -1 : hits[hit].row;
}

void Typed_Search::Tell(std::size_t hit, std::size_t hits) {
  found_ = hits > 0;
  since_.start();
  pause_.start(Pause_After_Word(), this);
  constexpr int longest = 40;
  const QString text = To_Qt(found_ ? Form_Texts().found : Form_Texts().not_found);
  const QString word = (found_ ? sought_ : word_).right(longest);
  Word_Tip::Show(list_, found_ ? text.arg(word, QString::number(hit + 1), QString::number(hits))
                               : text.arg(word));
}

void Typed_Search::timerEvent(QTimerEvent*) {
  pause_.stop();
  Word_Tip::Hide(list_);
  if (paused) paused();
}

// A handler that is told of the hit may take the focus for a moment and give it back.
bool Typed_Search::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::FocusOut && !Inside_Handler()) End();
  return false;
}

}  // namespace Forms
