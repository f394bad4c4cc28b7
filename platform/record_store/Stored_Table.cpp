#include "platform/record_store/Stored_Table.h"

#include <sqlite3.h>

#include <algorithm>

#include "platform/record_store/Sql_Texts.h"

namespace Record_Store {
namespace {

Field_Layout Layout_Of(const Table_Schema& schema) {
  std::vector<Column> columns;
  for (const Field_Schema& field : schema.fields) {
    columns.push_back({field.name, field.type, field.counter, field.copy_of_counter});
  }
  return Field_Layout(std::move(columns));
}

Order Order_Of(const Table_Schema& schema, const Index_Schema& index, const Field_Layout& layout) {
  Order order;
  order.name = index.name;
  order.unique = index.unique;
  std::vector<Sort_Column> cases;
  for (const std::string& field : index.fields) {
    const int ordinal = layout.Find(field);
    order.keys.push_back(ordinal);
    order.sort.push_back({ordinal, false});
    if (!index.unique && layout.At(ordinal).type == Field_Type::Text) {
      cases.push_back({ordinal, true});
    }
  }
  if (Is_Counter_Index(schema, index)) {
    order.sort.clear();
  } else {
    order.sort.insert(order.sort.end(), cases.begin(), cases.end());
    order.engine_index = Engine_Index_Name(schema.name, index.name);
  }
  return order;
}

// Forms as numbers, for the table of kept statements.
constexpr std::size_t forms_of_a_prefix = 10;
std::size_t Number_Of(const Question& question) {
  return static_cast<std::size_t>(question.prefix) * forms_of_a_prefix +
         static_cast<std::size_t>(question.range) * 2 + (question.backwards ? 1 : 0);
}

}  // namespace

Stored_Table::Stored_Table(Table_Schema schema, Engine& engine)
    : engine_(&engine), schema_(std::move(schema)), layout_(Layout_Of(schema_)) {
  orders_.emplace_back();
  for (const Index_Schema& index : schema_.indexes) {
    orders_.push_back(Order_Of(schema_, index, layout_));
  }
  for (const Order& order : orders_) {
    pools_.emplace_back((order.sort.size() + 1) * forms_of_a_prefix);
  }
  last_number_ = schema_.first_counter - 1;
}

void Stored_Table::Widen(std::string_view field) {
  const int ordinal = layout_.Find(field);
  if (ordinal < 0) Fail(Failure::No_Such_Item, field);
  layout_.Widen(ordinal);
}

const Order* Stored_Table::Find_Order(std::string_view index) const {
  for (std::size_t i = 1; i < orders_.size(); ++i) {
    if (Same_Name(orders_[i].name, index)) return &orders_[i];
  }
  return nullptr;
}

// ---- questions ----

std::string Stored_Table::Quoted_Field(int ordinal) const {
  return Quoted(layout_.At(ordinal).name);
}

std::string Stored_Table::Columns() const {
  std::string text;
  for (int i = 0; i < layout_.Count(); ++i) text += (i == 0 ? "" : ", ") + Quoted_Field(i);
  return layout_.Counter() >= 0 ? text : text + ", rowid";
}

std::string Stored_Table::Text_Of(const Order& order, const Question& question) const {
  const auto column = [&](const Sort_Column& sort) {
    return Quoted_Field(sort.ordinal) + (sort.by_case ? " COLLATE WINE_CASE" : "");
  };
  const bool counter_sought = order.sort.empty() && question.range == Question::Sought;

  std::string text = "SELECT " + Columns() + " FROM " + Quoted(schema_.name);
  if (!order.engine_index.empty()) text += " INDEXED BY " + Quoted(order.engine_index);

  std::string condition;
  const auto add = [&](const std::string& part) {
    condition += (condition.empty() ? " WHERE " : " AND ") + part;
  };
  const char* equal = question.range == Question::Sought ? "=?" : " IS ?";
  for (int i = 0; i < question.prefix && !counter_sought; ++i) {
    add(column(order.sort[static_cast<std::size_t>(i)]) + equal);
  }
  const auto next = static_cast<std::size_t>(question.prefix);
  const std::string border = next < order.sort.size() ? column(order.sort[next]) : "rowid";
  if (counter_sought) add("rowid=?");
  if (question.range == Question::Beyond) add(border + (question.backwards ? "<?" : ">?"));
  if (question.range == Question::From) add(border + ">=?");
  if (question.range == Question::Nulls) add(border + " IS NULL");
  text += condition;

  // The columns that are given stand still. Naming them too would make the engine sort.
  const char* direction = question.backwards ? " DESC" : "";
  text += " ORDER BY ";
  const std::size_t first = next + (question.range == Question::Nulls ? 1 : 0);
  for (std::size_t i = first; i < order.sort.size(); ++i) {
    text += column(order.sort[i]) + direction + ", ";
  }
  return text + "rowid" + direction;
}

Stored_Table::Pool& Stored_Table::Pool_Of(const Order& order, const Question& question) {
  Pool& pool = pools_[static_cast<std::size_t>(&order - orders_.data())][Number_Of(question)];
  if (pool.engine_ == nullptr) {
    pool.engine_ = engine_;
    pool.text_ = Text_Of(order, question);
  }
  return pool;
}

Statement Stored_Table::Pool::Borrow() {
  if (free_.empty()) return engine_->Prepare(text_);
  Statement statement = std::move(free_.back());
  free_.pop_back();
  return statement;
}

// ---- statements on one row ----

sqlite3_stmt* Stored_Table::Keep(Statement& place, const std::string& text) {
  if (!place) place = engine_->Prepare(text);
  return place.get();
}

sqlite3_stmt* Stored_Table::Row_Statement() {
  if (row_) return row_.get();
  return Keep(row_, "SELECT " + Columns() + " FROM " + Quoted(schema_.name) + " WHERE rowid=?");
}

sqlite3_stmt* Stored_Table::Insert_Statement() {
  if (insert_) return insert_.get();
  std::string fields = "rowid";
  std::string places = "?";
  for (int i = 0; i < layout_.Count(); ++i) {
    if (i == layout_.Counter()) continue;
    fields += ", " + Quoted_Field(i);
    places += ", ?" + std::to_string(i + 2);
  }
  return Keep(insert_,
              "INSERT INTO " + Quoted(schema_.name) + " (" + fields + ") VALUES (" + places + ")");
}

sqlite3_stmt* Stored_Table::Delete_Statement() {
  if (delete_) return delete_.get();
  return Keep(delete_, "DELETE FROM " + Quoted(schema_.name) + " WHERE rowid=?");
}

sqlite3_stmt* Stored_Table::Update_Statement(const std::vector<bool>& assigned) {
  Statement& place = updates_[assigned];
  if (place) return place.get();
  std::string fields;
  for (int i = 0; i < layout_.Count(); ++i) {
    if (!assigned[static_cast<std::size_t>(i)]) continue;
    fields += (fields.empty() ? "" : ", ") + Quoted_Field(i) + "=?";
  }
  return Keep(place, "UPDATE " + Quoted(schema_.name) + " SET " + fields + " WHERE rowid=?");
}

// ---- numbers of rows ----

std::int64_t Stored_Table::Numbers_Left(std::uint64_t file_state) {
  if (numbered_in_state_ != file_state) {
    if (!counter_) {
      counter_ = engine_->Prepare(layout_.Counter() >= 0
                                      ? "SELECT seq FROM sqlite_sequence WHERE name=?"
                                      : "SELECT max(rowid) FROM " + Quoted(schema_.name));
    }
    if (layout_.Counter() >= 0) {
      sqlite3_bind_text(counter_.get(), 1, schema_.name.c_str(), -1, SQLITE_STATIC);
    }
    if (engine_->Step(counter_.get())) Has_Seen(sqlite3_column_int64(counter_.get(), 0));
    sqlite3_reset(counter_.get());
    numbered_in_state_ = file_state;
  }
  const bool small =
      layout_.Counter() >= 0 && layout_.At(layout_.Counter()).type == Field_Type::Integer;
  return (small ? INT16_MAX : INT32_MAX) - last_number_;
}

std::int64_t Stored_Table::Next_Number(std::uint64_t file_state) {
  const std::int64_t left = Numbers_Left(file_state);
  if (layout_.Counter() >= 0 && left <= 0) Fail(Failure::Overflow);
  return ++last_number_;
}

void Stored_Table::Has_Seen(std::int64_t number) { last_number_ = std::max(last_number_, number); }

std::int64_t Stored_Table::Count(std::uint64_t file_state) {
  if (counted_in_state_ != file_state) {
    if (!count_) count_ = engine_->Prepare("SELECT count(*) FROM " + Quoted(schema_.name));
    counted_ = engine_->Step(count_.get()) ? sqlite3_column_int64(count_.get(), 0) : 0;
    sqlite3_reset(count_.get());
    counted_in_state_ = file_state;
  }
  return counted_;
}

}  // namespace Record_Store
