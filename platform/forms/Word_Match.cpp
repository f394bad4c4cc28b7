#include "platform/forms/Word_Match.h"

#include <QAbstractItemModel>
#include <QString>
#include <QTextBoundaryFinder>
#include <algorithm>

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

Match Match_As_Written(const QString& text, const QString& word) {
  if (text.startsWith(word)) return text.size() == word.size() ? Match::Whole : Match::Beginning;
  return Has_Word_As_Written(text, word) ? Match::Later_Word : Match::None;
}

bool May_Have_Accents(const QString& text) {
  return std::ranges::any_of(text, [](QChar letter) { return letter >= QChar(0x80); });
}

// Both folded.
Match Match_Of(const QString& text, const QString& word) {
  const Match written = Match_As_Written(text, word);
  if (written == Match::Whole || !May_Have_Accents(text)) return written;
  return std::min(written, Match_As_Written(Without_Accents(text), word));
}

}  // namespace

Hits Hits_Of(const QString& word, const QAbstractItemModel& entries, int column) {
  Hits hits;
  const QString wanted = Folded(word);
  for (int row = 0; !wanted.isEmpty() && row < entries.rowCount(); ++row) {
    const QString text = entries.index(row, column).data().toString();
    const Match match = Match_Of(Folded(text), wanted);
    if (match != Match::None) hits.push_back({row, match});
  }
  std::stable_partition(hits.begin(), hits.end(),
                        [](Hit hit) { return hit.match != Match::Later_Word; });
  return hits;
}

Match Best_Of(const Hits& hits) {
  const auto best = std::ranges::min_element(hits, {}, &Hit::match);
  return best == hits.end() ? Match::None : best->match;
}

std::size_t Best_From(const Hits& hits, int from, bool single_letter) {
  const Match enough = std::max(Best_Of(hits), single_letter ? Match::Beginning : Match::Whole);
  const auto good = [enough](Hit hit) { return hit.match <= enough; };
  auto found = std::ranges::find_if(hits, [&](Hit hit) { return good(hit) && hit.row >= from; });
  if (found == hits.end()) found = std::ranges::find_if(hits, good);
  return static_cast<std::size_t>(found - hits.begin());
}

}  // namespace Forms
