// What nobody expects in a field: the one table of such texts.
#pragma once

#include <QString>

#include "tests/support/Program_Folder.h"

inline std::string Repeated(const char* text, int times) {
  return QString(text).repeated(times).toStdString();
}

/// None of them is long but the last one, which is still fit for a line; `Repeated` makes any text
/// as long as a test likes.
inline const Texts& Hostile_Texts() {
  static const Texts texts = Cells_of(
      "~ ~  ~x~-1~12.5~-0~1e400~NaN~It's \"x\"; -- ' OR 1=1~"
      "first\r\nsecond\r\n\r\n fourth ~\r\n~\t\\0 %s &amp; <b>&</b>~"
      "🍷👨‍👩‍👧 \u202eabc\u202c שלום مرحبا~\u0301~"
      "à la fin\u00a0: 12\u202f%~１２~|~" +
          Repeated("Ünï🍇", 150),
      "~");
  return texts;
}
