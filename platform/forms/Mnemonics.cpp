#include "platform/forms/Mnemonics.h"

#include "platform/forms/Qt_Text.h"

namespace Forms {

namespace {

// Marks that several scripts share, such as the one that lengthens a Japanese vowel, count as
// letters too; so do the raised ones of abbreviations.
bool Can_Be_Typed(QChar letter) {
  if (letter >= u'0' && letter <= u'9') return true;
  const bool latin = letter.script() == QChar::Script_Latin && letter < QChar(0x250);
  return latin && (letter.isLower() || letter.isUpper());
}

bool Begins_A_Word(const QString& text, qsizetype place) {
  return place == 0 || !text[place - 1].isLetterOrNumber();
}

// -1 where no letter is free.
qsizetype Free_Letter(const QString& text, const std::set<QChar>& used) {
  for (const bool at_beginning : {true, false}) {
    for (qsizetype i = 0; i < text.size(); ++i) {
      if (at_beginning && !Begins_A_Word(text, i)) continue;
      if (Can_Be_Typed(text[i]) && !used.contains(text[i].toUpper())) return i;
    }
  }
  return -1;
}

}  // namespace

std::vector<QString> With_Mnemonics(const std::vector<std::string>& captions,
                                    std::set<QChar>& used) {
  std::vector<QString> shown;
  for (const std::string& caption : captions) {
    const QString text = To_Show(caption);
    const qsizetype place = Free_Letter(text, used);
    if (place < 0) {
      shown.push_back(Escaped(caption));
      continue;
    }
    used.insert(text[place].toUpper());
    const QString before = text.left(place);
    const QString after = text.mid(place);
    shown.push_back(QString(before).replace("&", "&&") + "&" + QString(after).replace("&", "&&"));
  }
  return shown;
}

}  // namespace Forms
