#include <QString>

#include "platform/run_time/Conversions.h"
#include "platform/run_time/Run_Time_Error.h"

namespace {

bool Begins_Character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

// The byte at which the character behind `count` characters begins; the end where there are fewer.
std::size_t Byte_After(std::string_view text, std::size_t from, Long count) {
  std::size_t at = from;
  while (at < text.size() && count > 0) {
    ++at;
    while (at < text.size() && !Begins_Character(text[at])) ++at;
    --count;
  }
  return at;
}

}  // namespace

Text Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return Text(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

Long Len(std::string_view text) {
  Long count = 0;
  for (const char byte : text) count += Begins_Character(byte) ? 1 : 0;
  return count;
}

Text Left(std::string_view text, Long count) { return Mid(text, 1, count); }

Text Mid(std::string_view text, Long start, Long count) {
  if (start < 1 || count < 0) Fail(Failure::Invalid_Procedure_Call);
  const std::size_t first = Byte_After(text, 0, start - 1);
  return Text(text.substr(first, Byte_After(text, first, count) - first));
}

Text Mid(std::string_view text, Long start) {
  if (start < 1) Fail(Failure::Invalid_Procedure_Call);
  return Text(text.substr(Byte_After(text, 0, start - 1)));
}

Long In_Str(Long start, std::string_view text, std::string_view wanted) {
  if (start < 1) Fail(Failure::Invalid_Procedure_Call);
  if (start > Len(text)) return 0;
  const auto at = text.find(wanted, Byte_After(text, 0, start - 1));
  return at == std::string_view::npos ? 0 : Len(text.substr(0, at)) + 1;
}

Text Upper_Case(std::string_view text) {
  return QString::fromUtf8(text.data(), qsizetype(text.size())).toUpper().toStdString();
}
