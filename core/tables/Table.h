// One description per table, from which all else about the table comes: the schema that the store
// is given, and the Init, Read and Write of its memory record.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "platform/record_store/Record_Store.h"
#include "platform/run_time/Conversions.h"
#include "platform/run_time/Values.h"

namespace Tables {

/// A place in a memory record. Its type is also the type of the stored field, but for marked ones.
template <class Record>
using Member = std::variant<bool Record::*, Integer Record::*, Long Record::*, Single Record::*,
                            Currency Record::*, Date Record::*, Text Record::*>;

template <class Value>
constexpr Record_Store::Field_Type Type_Of() {
  using Record_Store::Field_Type;
  if constexpr (std::is_same_v<Value, bool>) return Field_Type::Boolean;
  if constexpr (std::is_same_v<Value, Integer>) return Field_Type::Integer;
  if constexpr (std::is_same_v<Value, Long>) return Field_Type::Long;
  if constexpr (std::is_same_v<Value, Single>) return Field_Type::Single;
  if constexpr (std::is_same_v<Value, Currency>) return Field_Type::Currency;
  if constexpr (std::is_same_v<Value, Date>) return Field_Type::Date;
  if constexpr (std::is_same_v<Value, Text>) return Field_Type::Text;
}

// The marks a field can carry in its description.
struct Counter_Mark {};
struct Copy_Mark {};
struct Small_Mark {};
struct Never_Stored_Mark {};
inline constexpr Counter_Mark Counter;            ///< the store gives it at AddNew; never written
inline constexpr Copy_Mark Copy_Of_Counter;       ///< always the counter's value; never written
inline constexpr Small_Mark Small;                ///< 16 bits in the store, unless it is widened
inline constexpr Never_Stored_Mark Never_Stored;  ///< a member of the memory record alone

/// One field of a table and its member of the memory record.
template <class Record>
class Field {
 public:
  /// Without a default: Init leaves the member alone.
  template <class Value>
  Field(std::string_view name, Value Record::*member)
      : schema_{std::string(name), Type_Of<Value>()}, member_(member), ways_(&Ways_Of<Value>) {}

  /// The default is a value, or a function that gives it anew at each Init.
  template <class Value, class Default>
  Field(std::string_view name, Value Record::*member, Default initial) : Field(name, member) {
    Set_Default(member, initial);
  }

  /// A counter is a whole number in the store, and text in some memory records.
  template <class Value>
  Field(std::string_view name, Value Record::*member, Counter_Mark) : Field(name, member) {
    schema_.counter = true;
    if constexpr (std::is_same_v<Value, Text>) schema_.type = Record_Store::Field_Type::Long;
  }
  template <class Value, class Default>
  Field(std::string_view name, Value Record::*member, Counter_Mark mark, Default initial)
      : Field(name, member, mark) {
    Set_Default(member, initial);
  }

  template <class Value>
  Field(std::string_view name, Value Record::*member, Copy_Mark) : Field(name, member) {
    schema_.copy_of_counter = true;
  }

  Field(std::string_view name, Long Record::*member, Small_Mark) : Field(name, member) {
    schema_.type = Record_Store::Field_Type::Integer;
  }
  Field(std::string_view name, Long Record::*member, Small_Mark mark, Long initial)
      : Field(name, member, mark) {
    Set_Default(member, initial);
  }

  template <class Value, class Default>
  Field(Never_Stored_Mark, Value Record::*member, Default initial) : Field("", member, initial) {}

  const Record_Store::Field_Schema& Schema() const { return schema_; }
  const Member<Record>& Place() const { return member_; }
  bool Is_Stored() const { return !schema_.name.empty(); }
  bool Is_Written() const { return Is_Stored() && !schema_.counter && !schema_.copy_of_counter; }

  void Init(Record& record) const {
    if (init_) init_(record);
  }
  void Read(const Record_Store::Field& from, Record& record) const {
    ways_->read(from, record, member_);
  }
  void Write(const Record& record, Record_Store::Field to) const {
    ways_->write(record, member_, to);
  }
  /// Whether two records hold the same value here.
  bool Same(const Record& a, const Record& b) const { return ways_->same(a, b, member_); }

 private:
  /// What is done with the member, made for its type: a choice among all types at each step would
  /// let the compiler see members of types that a record does not have.
  struct Ways {
    void (*read)(const Record_Store::Field&, Record&, const Member<Record>&);
    void (*write)(const Record&, const Member<Record>&, Record_Store::Field&);
    bool (*same)(const Record&, const Record&, const Member<Record>&);
  };
  template <class Value>
  static Value Record::*As(const Member<Record>& member) {
    return *std::get_if<Value Record::*>(&member);
  }
  template <class Value>
  static constexpr Ways Ways_Of = {
      [](const Record_Store::Field& from, Record& record, const Member<Record>& member) {
        from.Read_Into(record.*As<Value>(member));
      },
      [](const Record& record, const Member<Record>& member, Record_Store::Field& to) {
        to = record.*As<Value>(member);
      },
      [](const Record& a, const Record& b, const Member<Record>& member) {
        return a.*As<Value>(member) == b.*As<Value>(member);
      }};

  template <class Value, class Default>
  void Set_Default(Value Record::*member, Default initial) {
    init_ = [member, initial](Record& record) {
      if constexpr (std::is_invocable_v<Default>)
        record.*member = static_cast<Value>(initial());
      else
        record.*member = static_cast<Value>(initial);
    };
  }

  Record_Store::Field_Schema schema_;
  Member<Record> member_;
  const Ways* ways_;
  std::function<void(Record&)> init_;
};

/// An index on the field of its own name, or on the fields given.
struct Index : Record_Store::Index_Schema {
  Index(std::string_view index) : Index(index, {index}) {}
  Index(const char* index) : Index(std::string_view(index)) {}
  Index(std::string_view index, std::initializer_list<std::string_view> on) {
    name = index;
    fields.assign(on.begin(), on.end());
  }
};

/// The index of a primary key: no two rows share a value.
inline Index Primary(std::string_view field) {
  Index index(field);
  index.unique = true;
  return index;
}

/// A table: its fields in storage order, its indexes, and the first number its counter gives.
template <class Record>
class Table {
 public:
  Table(std::string_view name, std::vector<Field<Record>> fields, std::vector<Index> indexes,
        Long first_counter = 1)
      : name_(name),
        fields_(std::move(fields)),
        indexes_(std::move(indexes)),
        first_counter_(first_counter) {}

  const std::string& Name() const { return name_; }
  const std::vector<Field<Record>>& Fields() const { return fields_; }
  Long First_Counter() const { return first_counter_; }
  Record_Store::Table_Schema Schema() const;

  /// Sets the members that have a default; the key and all others keep what they hold.
  void Init(Record& record) const {
    for (const auto& field : fields_) field.Init(record);
  }

  /// Takes every field of the current row over into the record. Failures are those of reading a
  /// field: 3021 without a current row, 94 for a null.
  void Read(const Record_Store::Recordset& row, Record& record) const;

  /// Stores every member but the counter in the row that AddNew or Edit began, and ends it by
  /// Update. 3020 with neither of them before.
  void Write(Record_Store::Recordset& row, const Record& record) const;

  /// The same table seen through some of its fields, for rows of a query that has no more.
  Table Only(std::initializer_list<std::string_view> names) const;

 private:
  /// Where each field stands in this recordset: names decide, looked up once per layout.
  const std::vector<int>& Ordinals_In(const Record_Store::Recordset& row) const;

  std::string name_;
  std::vector<Field<Record>> fields_;
  std::vector<Index> indexes_;
  Long first_counter_;
  mutable std::uint64_t bound_layout_ = 0;
  mutable std::vector<int> ordinals_;
};

template <class Record>
const std::vector<int>& Table<Record>::Ordinals_In(const Record_Store::Recordset& row) const {
  if (bound_layout_ == row.Layout_Number()) return ordinals_;
  ordinals_.clear();
  for (const auto& field : fields_)
    ordinals_.push_back(field.Is_Stored() ? row.Ordinal(field.Schema().name) : -1);
  bound_layout_ = row.Layout_Number();
  return ordinals_;
}

template <class Record>
void Table<Record>::Read(const Record_Store::Recordset& row, Record& record) const {
  const int* ordinal = Ordinals_In(row).data();
  for (const auto& field : fields_) {
    if (field.Is_Stored()) field.Read(row.Fields(*ordinal), record);
    ++ordinal;
  }
}

template <class Record>
void Table<Record>::Write(Record_Store::Recordset& row, const Record& record) const {
  const int* ordinal = Ordinals_In(row).data();
  for (const auto& field : fields_) {
    if (field.Is_Written()) field.Write(record, row.Fields(*ordinal));
    ++ordinal;
  }
  row.Update();
}

template <class Record>
Record_Store::Table_Schema Table<Record>::Schema() const {
  Record_Store::Table_Schema schema;
  schema.name = name_;
  for (const auto& field : fields_)
    if (field.Is_Stored()) schema.fields.push_back(field.Schema());
  schema.indexes.assign(indexes_.begin(), indexes_.end());
  schema.first_counter = first_counter_;
  return schema;
}

template <class Record>
Table<Record> Table<Record>::Only(std::initializer_list<std::string_view> names) const {
  std::vector<Field<Record>> chosen;
  for (std::string_view name : names)
    for (const auto& field : fields_)
      if (field.Schema().name == name) chosen.push_back(field);
  return {name_, std::move(chosen), {}, first_counter_};
}

}  // namespace Tables
