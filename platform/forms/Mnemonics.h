// The letters by which captions are reached from the keyboard. For the sources of this room only.
#pragma once

#include <QString>
#include <set>
#include <string>
#include <vector>

namespace Forms {

/// The captions as the toolkit takes them, each with a letter of its own that is not in `used`
/// already, as far as there is one: first letters of words before others. Letters of scripts that
/// no keyboard types directly are not taken. Adds the letters given to `used`.
std::vector<QString> With_Mnemonics(const std::vector<std::string>& captions,
                                    std::set<QChar>& used);

}  // namespace Forms
