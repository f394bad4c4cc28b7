// The cursor of a table recordset.
//
// It walks by keeping a statement stepping. When a write, a commit or a change of direction takes
// the statement away, the row stays as it was read, and the next move asks the engine anew for what
// lies behind (or before) that row's place in the order. What lies behind a row is asked in parts,
// each of which the engine answers from the index alone: the rows with the same sort columns and a
// higher row number, then those with the same sort columns but for a greater last one, and so on to
// the left.
#pragma once

#include "platform/record_store/Cursor.h"
#include "platform/record_store/Stored_Table.h"

namespace Record_Store {

class Table_Cursor final : public Cursor {
 public:
  /// Stands on the first row in storage order, which is looked for when it is first needed.
  void Open(Database_Core& database, Stored_Table& table);
  void Put_Away() override;
  /// Gives statements and memory back.
  void Close();

  bool Is_On(const Stored_Table& table) const { return table_ == &table; }
  /// Gives its statement up; the row stays.
  void Detach();
  /// As Detach, for a write to its table: the first row must be the one of before the write.
  void Settle();

  void Move_First() override;
  void Move_Last() override;
  void Move_Next() override { Move(false); }
  void Move_Previous() override { Move(true); }
  Long Count() override;
  Long Numbers_Left() override;

  void Index(std::string_view name) override;
  void Seek(std::string_view comparison, std::span<const Key> keys) override;
  void Add_New() override;
  void Edit() override;
  void Update() override;
  void Delete() override;

 private:
  void Find_First() override;
  void Move(bool backwards);
  bool Advance(bool backwards);
  bool Ask(const Question& question);
  bool Step();
  void Bind();
  bool To_Wider_Form();
  Value Raw(int column) const;
  std::int64_t Row_Number() const;
  void Take_Anchor();
  void Release();
  bool Take_Keys(std::span<const Key> keys);
  bool Look_Up(const Question& question);
  void Take_Row(sqlite3_stmt* statement);
  void Keep_Own();
  void Insert_New_Row();
  void Store_Changes();

  Stored_Table* table_ = nullptr;
  const Order* order_ = nullptr;

  Statement statement_;
  Stored_Table::Pool* pool_ = nullptr;
  Question question_;
  Row_Block anchor_;  // the values given to the statement: by sort column, then the row's number
};

}  // namespace Record_Store
