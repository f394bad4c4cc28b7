// The entries that a typed word matches, and how well. For the sources of this room only.
#pragma once

#include <cstddef>
#include <vector>

class QAbstractItemModel;
class QString;

namespace Forms {

/// From the best to the weakest: the entry is the word, begins with it, or has a later word that
/// begins so. Upper and lower case are the same, and a letter without an accent matches one that
/// has it.
enum class Match { Whole, Beginning, Later_Word, None };

struct Hit {
  int row;
  Match match;
};
using Hits = std::vector<Hit>;

/// In the order of the rows, but those of later words behind the others. None for an empty word.
Hits Hits_Of(const QString& word, const QAbstractItemModel& entries, int column);

/// None where there are no hits.
Match Best_Of(const Hits& hits);

/// The place among `hits` of the first best one from row `from` on, and around; 0 without hits. An
/// entry of a `single_letter` is not better than others that begin so: the same letter again is to
/// go round all of them.
std::size_t Best_From(const Hits& hits, int from, bool single_letter);

}  // namespace Forms
