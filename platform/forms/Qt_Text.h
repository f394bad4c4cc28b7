// Between the program's texts and the toolkit's. For the sources of this room only.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace Forms {

inline QString To_Qt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string From_Qt(const QString& text) { return text.toStdString(); }

/// A text to be shown: the program's line break is two characters or the first of them, the
/// toolkit's is the second.
inline QString To_Show(std::string_view text) {
  return To_Qt(text).replace("\r\n", "\n").replace('\r', '\n');
}

/// A caption as the toolkit shows it without a mnemonic: each ampersand stands for itself.
inline QString Escaped(std::string_view caption) { return To_Show(caption).replace("&", "&&"); }

}  // namespace Forms
