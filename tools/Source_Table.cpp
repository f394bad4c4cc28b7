#include "tools/Source_Table.h"

#include <QString>
#include <QStringDecoder>
#include <charconv>
#include <fstream>
#include <sstream>

namespace Data_Compiler {

namespace {

const std::string Missing_Cell(Not_Given);

/// A blank of any script.
bool Is_Blank(QChar character) { return character.isSpace(); }

bool Has_Stray_Blanks(const QString& text) {
  if (Is_Blank(text.front()) || Is_Blank(text.back())) return true;
  for (qsizetype i = 1; i < text.size(); ++i)
    if (Is_Blank(text[i - 1]) && Is_Blank(text[i])) return true;
  return false;
}

/// What is wrong with a cell's text; empty where nothing is.
std::string Fault_Of_Text(std::string_view cell, Blanks blanks) {
  if (cell.empty()) return "is empty (\"x\" stands for what is not given)";
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text =
      decoder.decode(QByteArrayView(cell.data(), static_cast<qsizetype>(cell.size())));
  if (decoder.hasError()) return "is no valid UTF-8";
  if (text.normalized(QString::NormalizationForm_C) != text) return "is not in normal form C";
  for (QChar character : text)
    if (character.category() == QChar::Other_Control) return "holds a control character";
  if (text.trimmed().isEmpty()) return "holds blanks only";
  if (blanks == Blanks::Checked && Has_Stray_Blanks(text)) return "holds stray blanks";
  return {};
}

}  // namespace

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  for (std::size_t from = 0;;) {
    const std::size_t at = text.find(separator, from);
    parts.emplace_back(text.substr(from, at - from));
    if (at == std::string_view::npos) return parts;
    from = at + separator.size();
  }
}

const std::string& Source_Row::operator[](std::string_view column) const {
  const int at = table_->Column(column);
  return at < 0 ? Missing_Cell : cells_[static_cast<std::size_t>(at)];
}

std::vector<std::string> Source_Row::List(std::string_view column) const {
  if (!Given(column)) return {};
  return Split((*this)[column], "; ");
}

int Source_Row::Number(std::string_view column, Problems& problems) const {
  const std::string& cell = (*this)[column];
  int number = 0;
  const auto [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), number);
  if (error == std::errc{} && end == cell.data() + cell.size() && number >= 0 && number <= 32767)
    return number;
  problems.Report(place_, std::string(column) + " '" + cell + "' is no number from 0 to 32767");
  return 0;
}

bool Source_Row::Flag(std::string_view column, std::string_view yes, std::string_view no,
                      Problems& problems) const {
  const std::string& cell = (*this)[column];
  if (cell != yes && cell != no)
    problems.Report(place_, std::string(column) + " '" + cell + "' is neither " + std::string(yes) +
                                " nor " + std::string(no));
  return cell == yes;
}

Source_Table::Source_Table(const std::string& folder, std::string_view file,
                           std::string_view columns, Problems& problems, Blanks blanks) {
  const bool optional = file.starts_with('?');
  file_ = file.substr(optional ? 1 : 0);
  std::ifstream stream(folder + "/" + file_, std::ios::binary);
  if (!stream) {
    if (!optional) problems.Report({file_, 0}, "the file is missing");
    return;
  }
  Place place{file_, 0};
  for (std::string line; std::getline(stream, line);) {
    ++place.line;
    if (line.empty() || line.starts_with('#')) continue;
    if (columns_.empty())
      Read_Header(line, columns, problems);
    else
      Read_Row(line, place, problems, blanks);
  }
}

int Source_Table::Column(std::string_view name) const {
  const auto found = columns_.find(name);
  return found == columns_.end() ? -1 : found->second;
}

void Source_Table::Read_Header(std::string_view line, std::string_view columns,
                               Problems& problems) {
  const Place header{file_, 1};
  for (const std::string& name : Split(line, "\t"))
    if (!columns_.emplace(name, static_cast<int>(columns_.size())).second)
      problems.Report(header, "the column '" + name + "' stands twice");
  std::map<std::string, int, std::less<>> unknown = columns_;
  bool optional = false;
  for (const std::string& name : Split(columns, " ")) {
    if (name == "?")
      optional = true;
    else if (unknown.erase(name) == 0 && !optional)
      problems.Report(header, "the column '" + name + "' is missing");
  }
  for (const auto& [name, at] : unknown) problems.Report(header, "unknown column '" + name + "'");
}

void Source_Table::Read_Row(std::string_view line, const Place& place, Problems& problems,
                            Blanks blanks) {
  Source_Row row;
  row.table_ = this;
  row.place_ = place;
  row.cells_ = Split(line, "\t");
  if (row.cells_.size() != columns_.size()) {
    problems.Report(place, std::to_string(row.cells_.size()) + " cells for " +
                               std::to_string(columns_.size()) + " columns");
    return;
  }
  for (const auto& [name, at] : columns_) {
    const std::string fault = Fault_Of_Text(row.cells_[static_cast<std::size_t>(at)], blanks);
    if (!fault.empty()) problems.Report(place, std::string(name).append(" ").append(fault));
  }
  rows_.push_back(std::move(row));
}

}  // namespace Data_Compiler
