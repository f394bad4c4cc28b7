#include "platform/record_store/Sql_Texts.h"

#include <algorithm>
#include <charconv>

#include "platform/record_store/Field_Layout.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Record_Store {
namespace {

const Field_Schema* Field_Of(const Table_Schema& table, std::string_view name) {
  const auto found = std::ranges::find_if(
      table.fields, [&](const Field_Schema& field) { return Same_Name(field.name, name); });
  return found == table.fields.end() ? nullptr : &*found;
}

std::vector<std::string_view> Split(std::string_view text, char border) {
  std::vector<std::string_view> parts;
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t to = std::min(text.find(border, from), text.size());
    parts.push_back(text.substr(from, to - from));
    from = to + 1;
  }
  return parts;
}

// A line of a description, taken apart at its tabs, as the part of the table that it tells of.
bool Add_Line(const std::vector<std::string_view>& line, Table_Schema& table) {
  if (line.size() == 2 && line[0] == "first") {
    const auto [end, error] =
        std::from_chars(line[1].data(), line[1].data() + line[1].size(), table.first_counter);
    return error == std::errc() && end == line[1].data() + line[1].size();
  }
  if (line.size() == 4 && line[0] == "field") {
    const auto type = Type_By_Name(line[2]);
    if (!type) return false;
    table.fields.push_back({std::string(line[1]), *type, line[3] == "counter", line[3] == "copy"});
    return true;
  }
  if (line.size() < 4 || line[0] != "index") return false;
  table.indexes.push_back(
      {std::string(line[1]), {line.begin() + 3, line.end()}, line[2] == "unique"});
  return true;
}

}  // namespace

std::string Quoted(std::string_view name) {
  std::string text = "\"";
  for (const char c : name) text.append(c == '"' ? 2 : 1, c);
  return text + '"';
}

std::string Engine_Index_Name(std::string_view table, std::string_view index) {
  return std::string(table) + '.' + std::string(index);
}

bool Is_Counter_Index(const Table_Schema& table, const Index_Schema& index) {
  if (index.fields.size() != 1) return false;
  const Field_Schema* field = Field_Of(table, index.fields.front());
  return field != nullptr && field->counter;
}

std::string Table_Definition(const Table_Schema& table) {
  std::string text = "CREATE TABLE " + Quoted(table.name) + " (";
  for (const Field_Schema& field : table.fields) {
    if (&field != &table.fields.front()) text += ", ";
    text += Quoted(field.name);
    if (field.counter) {
      text += " INTEGER PRIMARY KEY AUTOINCREMENT";
    } else {
      text.append(" ").append(Type_Name(field.type));
      if (field.type == Field_Type::Text) text += " COLLATE WINE";
    }
  }
  return text + ")";
}

// The case of texts comes last: it orders equal keys, and a unique key needs none.
std::string Index_Definition(const Table_Schema& table, const Index_Schema& index) {
  std::string keys;
  std::string cases;
  for (const std::string& name : index.fields) {
    const Field_Schema* field = Field_Of(table, name);
    if (field == nullptr) Fail(Failure::No_Such_Item);
    keys.append(keys.empty() ? "" : ", ").append(Quoted(field->name));
    if (field->type != Field_Type::Text) continue;
    keys += " COLLATE WINE";
    if (!index.unique) cases += ", " + Quoted(field->name) + " COLLATE WINE_CASE";
  }
  return std::string("CREATE ") + (index.unique ? "UNIQUE " : "") + "INDEX " +
         Quoted(Engine_Index_Name(table.name, index.name)) + " ON " + Quoted(table.name) + " (" +
         keys + cases + ")";
}

std::string Describe(const Table_Schema& table) {
  std::string text = "first\t" + std::to_string(table.first_counter);
  for (const Field_Schema& field : table.fields) {
    text.append("\nfield\t").append(field.name).append("\t").append(Type_Name(field.type));
    text += field.counter ? "\tcounter" : field.copy_of_counter ? "\tcopy" : "\t-";
  }
  for (const Index_Schema& index : table.indexes) {
    text.append("\nindex\t").append(index.name).append(index.unique ? "\tunique" : "\t-");
    for (const std::string& field : index.fields) text.append("\t").append(field);
  }
  return text;
}

Table_Schema Described(std::string_view name, std::string_view description,
                       const std::string& path) {
  Table_Schema table;
  table.name = name;
  for (const std::string_view line : Split(description, '\n')) {
    if (!Add_Line(Split(line, '\t'), table)) Fail(Failure::Unrecognized_Format, path);
  }
  return table;
}

}  // namespace Record_Store
