// The letters by which captions are reached from the keyboard. For the sources of this room only.
#pragma once

#include <QString>
#include <set>
#include <string_view>

namespace Forms {

/// Whether a keyboard types the letter directly: Latin letters, and the digits.
bool Can_Be_Typed(QChar letter);
bool Has_Letters_To_Type(std::string_view caption);
bool Contains(std::string_view caption, QChar letter);
/// Whether a word of the text begins with it, of those in names of controls as well.
bool Begins_Word_In(const QString& text, QChar letter);

/// A caption as the toolkit takes it, with this letter as its mnemonic. Where the caption does not
/// contain it, it stands behind: "(P)", as is the custom where a script has no such letters.
/// Without a letter each ampersand stands for itself.
QString With_Letter(std::string_view caption, QChar letter);
/// The mnemonic of such a text; none: a null letter.
QChar Letter_Of(const QString& text);

/// The letters that are given within a form, a menu or a box: each to one caption alone.
class Letters {
 public:
  void Take(QChar letter) { taken_.insert(letter.toUpper()); }
  bool Is_Free(QChar letter) const { return !taken_.contains(letter.toUpper()); }

  /// Takes a free letter of the caption: first letters of words before others. Null where none is.
  QChar Of(std::string_view caption);
  /// Takes a free letter to stand behind a caption: `wished`, else one of the control's name, else
  /// the first of the alphabet. Null where all are taken.
  QChar Behind(std::string_view name, QChar wished = {});
  /// The caption with a letter of its own, or with one behind it where it has none to be typed.
  QString Give(std::string_view caption, std::string_view name = {}, QChar wished = {});

 private:
  QChar Taken(QChar letter);
  std::set<QChar> taken_;
};

}  // namespace Forms
