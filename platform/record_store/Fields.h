// One field of a recordset's row: reading and assigning its value.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/record_store/Schema.h"
#include "platform/run_time/Values.h"

namespace Record_Store {

class Cursor;

/// A field of a recordset's current row, or of the row being added or edited: it always speaks of
/// the row where the recordset stands at that moment. Not to be kept beyond the recordset's Close.
///
/// A value is converted where the type asked for is another than the field's: numbers into numbers
/// with rounding half to even, numbers and dates into text and back as the conversions of
/// platform/run_time do it. A Boolean counts as -1 or 0 among the numbers and is "True" or "False"
/// as text. A date is never a number (13).
class Field {
 public:
  std::string_view Name() const;
  Field_Type Type() const;

  // Reading. 94 where the field is null, 13 where the value does not convert, 6 beyond the range of
  // the type asked for; 3021 without a current row, 3167 on a row that Delete just removed.
  bool Is_Null() const;
  bool As_Boolean() const;
  Integer As_Integer() const;
  Long As_Long() const;
  Single As_Single() const;
  double As_Double() const;
  Currency As_Currency() const;
  Date As_Date() const;
  Text As_Text() const;
  void Read_Text_Into(Text& to) const;  ///< As_Text without a new string

  // The same under one name, for those who fill members of a structure.
  void Read_Into(bool& to) const { to = As_Boolean(); }
  void Read_Into(Integer& to) const { to = As_Integer(); }
  void Read_Into(Long& to) const { to = As_Long(); }
  void Read_Into(Single& to) const { to = As_Single(); }
  void Read_Into(Currency& to) const { to = As_Currency(); }
  void Read_Into(Date& to) const { to = As_Date(); }
  void Read_Into(Text& to) const { Read_Text_Into(to); }

  // Assigning. 3020 with neither AddNew nor Edit before it (always so in a query), 13 and 6 as
  // above. The counter cannot be assigned (3219), except in a new row while a data file is being
  // built (Create_Database).
  void operator=(bool value);
  void operator=(int value) { *this = static_cast<std::int64_t>(value); }
  void operator=(Integer value) { *this = static_cast<std::int64_t>(value); }
  void operator=(std::int64_t value);
  void operator=(double value);
  void operator=(Single value);
  void operator=(Currency value);
  void operator=(Date value);
  void operator=(std::string_view value);
  void operator=(const char* value) { *this = std::string_view(value); }
  void operator=(const Text& value) { *this = std::string_view(value); }
  void operator=(const Field&) = delete;
  Field(const Field&) = default;
  void Set_Null();

 private:
  friend class Recordset;
  Field(Cursor& cursor, int ordinal) : cursor_(&cursor), ordinal_(ordinal) {}

  Cursor* cursor_;
  int ordinal_;
};

}  // namespace Record_Store
