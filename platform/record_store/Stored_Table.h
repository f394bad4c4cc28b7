// A table as the store works on it: its orders, the statements kept for it, its counter.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/record_store/Engine.h"
#include "platform/record_store/Field_Layout.h"
#include "platform/record_store/Look_Ups.h"
#include "platform/record_store/Schema.h"

namespace Record_Store {

/// A column by which rows are sorted. A text sorts twice: by its key first, by its case behind all
/// the keys.
struct Sort_Column {
  int ordinal;
  bool by_case = false;
};

/// An order of rows: the storage order, or an index. Behind the sort columns rows stand in storage
/// order.
struct Order {
  std::string name;       ///< as Index is told; empty for the storage order
  std::vector<int> keys;  ///< ordinals of the fields that Seek takes
  std::vector<Sort_Column>
      sort;                  ///< empty too for an index on the counter: that is the storage order
  std::string engine_index;  ///< empty where `sort` is
  bool unique = false;
};

/// A question to the engine about rows in one order. Its rows have the first `prefix` sort columns
/// equal to given values; of those, `range` takes a part by the next sort column, or, where all are
/// equal, by the storage order.
struct Question {
  enum Range { All, Sought, Beyond, From, Nulls };

  int prefix = 0;
  Range range = All;
  bool backwards = false;
};

class Stored_Table {
 public:
  Stored_Table(Table_Schema schema, Engine& engine);

  const Table_Schema& Schema() const { return schema_; }
  const Field_Layout& Layout() const { return layout_; }
  /// Database.h. 3265 where there is no such field.
  void Widen(std::string_view field);
  /// The column of a question that has the row's number: the counter, or one behind the fields.
  int Number_Column() const { return layout_.Counter() >= 0 ? layout_.Counter() : layout_.Count(); }
  int Width() const { return std::max(layout_.Count(), Number_Column() + 1); }

  const Order& Storage_Order() const { return orders_.front(); }
  const Order* Find_Order(std::string_view index) const;  ///< nullptr where there is none

  /// Statements for one question, ready to be bound. Several cursors may ask the same at once.
  class Pool {
   public:
    Statement Borrow();
    void Give_Back(Statement statement) { free_.push_back(std::move(statement)); }

   private:
    friend class Stored_Table;
    const Engine* engine_ = nullptr;
    std::string text_;
    std::vector<Statement> free_;
  };
  Pool& Pool_Of(const Order& order, const Question& question);

  sqlite3_stmt* Row_Statement();     ///< the row of number ?1
  sqlite3_stmt* Insert_Statement();  ///< ?1 is the row's number, the fields follow
  sqlite3_stmt* Delete_Statement();  ///< the row of number ?1
  /// Parameters are the assigned fields in storage order, then the row's number.
  sqlite3_stmt* Update_Statement(const std::vector<bool>& assigned);

  /// The number for a new row: one above all that this file or this run has seen. 6 beyond the
  /// range of the counter.
  std::int64_t Next_Number(std::uint64_t file_state);
  /// How many there are.
  std::int64_t Numbers_Left(std::uint64_t file_state);
  void Has_Seen(std::int64_t number);

  /// Rows in the table. Counted once for each state of the table.
  std::int64_t Count(std::uint64_t file_state);
  void Has_Changed() {
    counted_in_state_ = 0;
    look_ups_.Forget();
  }

  Look_Ups& Found() { return look_ups_; }

 private:
  std::string Quoted_Field(int ordinal) const;
  std::string Columns() const;
  std::string Text_Of(const Order& order, const Question& question) const;
  sqlite3_stmt* Keep(Statement& place, const std::string& text);

  Engine* engine_;
  Table_Schema schema_;
  Field_Layout layout_;
  std::vector<Order> orders_;
  std::vector<std::vector<Pool>> pools_;  // by order, then by question

  Statement row_;
  Statement insert_;
  Statement delete_;
  Statement counter_;
  Statement count_;
  std::unordered_map<std::vector<bool>, Statement> updates_;

  Look_Ups look_ups_;
  std::int64_t last_number_ = 0;
  std::uint64_t numbered_in_state_ = 0;
  std::int64_t counted_ = 0;
  std::uint64_t counted_in_state_ = 0;
};

}  // namespace Record_Store
