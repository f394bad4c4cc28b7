// The cursor of a query recordset: rows taken over at the opening.
#pragma once

#include "platform/record_store/Cursor.h"

namespace Record_Store {

class Query_Cursor final : public Cursor {
 public:
  /// Runs the statement. 3075 where it is not one SELECT that can be run, 3078 for a table in it
  /// that is not there.
  void Open(Database_Core& database, std::string_view text);
  void Put_Away() override;
  /// Gives statements and memory back.
  void Close();

  void Move_First() override;
  void Move_Last() override;
  void Move_Next() override;
  void Move_Previous() override;
  Long Count() override { return static_cast<Long>(row_.Rows()); }

 private:
  Field_Layout fields_;
};

}  // namespace Record_Store
