#include "platform/run_time/Locale.h"

#include "platform/run_time/Conversions.h"

namespace {

QLocale& Current() {
  static QLocale locale = QLocale::system();
  return locale;
}

}  // namespace

const QLocale& Machine_Locale() { return Current(); }

void Set_Locale(std::string_view name) {
  Current() = name.empty() ? QLocale::system()
                           : QLocale(QString::fromUtf8(name.data(), qsizetype(name.size())));
}
