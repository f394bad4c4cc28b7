// Thousands of random operations through several recordsets on one table, each step compared with a
// plain model in memory.
#include <algorithm>
#include <map>
#include <optional>
#include <random>
#include <sstream>

#include "platform/record_store/Text_Order.h"
#include "platform/run_time/Run_Time_Error.h"
#include "tests/record_store/Store_Fixture.h"

using namespace Record_Store;

namespace {

struct Row {
  std::int64_t number = 0;
  std::optional<std::string> name;
  std::optional<Long> rack;
  bool operator==(const Row&) const = default;
};

using Rows = std::map<std::int64_t, Row>;

template <class T, class Compare>
int Compare_With_Nulls(const std::optional<T>& a, const std::optional<T>& b, Compare compare) {
  if (!a || !b) return a.has_value() - b.has_value();
  return compare(*a, *b);
}

enum class Kind { Storage, Counter, By_Name, By_Rack_And_Name };

// The order of rows, written down once more in the plainest way.
int Compare_Rows(Kind kind, const Row& a, const Row& b) {
  const auto numbers = [](auto x, auto y) { return (x > y) - (x < y); };
  int result = 0;
  if (kind == Kind::By_Rack_And_Name) result = Compare_With_Nulls(a.rack, b.rack, numbers);
  if (result == 0 && (kind == Kind::By_Name || kind == Kind::By_Rack_And_Name)) {
    result = Compare_With_Nulls(a.name, b.name, Compare_Texts);
  }
  return result != 0 ? result : numbers(a.number, b.number);
}

// A recordset as Recordset.h promises it, over rows in plain memory.
class Model_Cursor {
 public:
  enum class Place { Row, Deleted, Missed, Before, Behind, Empty };

  explicit Model_Cursor(Rows& rows) : rows_(&rows) { Move_First(); }

  void Order_By(Kind kind) {
    kind_ = kind;
    Move_First();
  }
  void Move_First() { To(At_End(true), Place::Empty); }
  void Move_Last() {
    To(At_End(false), Place::Empty);
    if (place_ == Place::Empty) Fail(Failure::No_Current_Record);
  }
  void Move(bool back) {
    const Place far_side = back ? Place::Behind : Place::Before;
    const Place near_side = back ? Place::Before : Place::Behind;
    if (place_ == far_side) {
      To(At_End(!back), Place::Empty);
    } else if (place_ == Place::Row || place_ == Place::Deleted) {
      To(Neighbour(back), rows_->empty() ? Place::Empty : near_side);
    } else {
      Fail(Failure::No_Current_Record);
    }
  }
  void Seek(const std::function<bool(const Row&)>& wanted) {
    if (kind_ == Kind::Storage) Fail(Failure::No_Current_Index);
    const Row* found = nullptr;
    for (const auto& [number, row] : *rows_) {
      if (wanted(row) && (found == nullptr || Compare_Rows(kind_, row, *found) < 0)) found = &row;
    }
    To(found, Place::Missed);
    no_match_ = found == nullptr;
  }
  void Require() const {
    if (place_ == Place::Deleted) Fail(Failure::Record_Is_Deleted);
    if (place_ != Place::Row) Fail(Failure::No_Current_Record);
  }
  void Change(const std::function<void(Row&)>& change) {
    Require();
    const auto found = rows_->find(row_.number);
    if (found == rows_->end()) Fail(Failure::Record_Is_Deleted);
    change(found->second);
    row_ = found->second;
  }
  void Delete() {
    Require();
    if (rows_->erase(row_.number) == 0) Fail(Failure::Record_Is_Deleted);
    place_ = Place::Deleted;
  }
  std::string Shown() const {
    std::ostringstream text;
    text << (place_ == Place::Behind || place_ == Place::Empty)
         << (place_ == Place::Before || place_ == Place::Empty) << no_match_ << ' ';
    if (place_ == Place::Row) {
      text << row_.number << ' ' << row_.name.value_or("-") << ' ' << row_.rack.value_or(-99);
    } else {
      text << (place_ == Place::Deleted ? 3167 : 3021);
    }
    return text.str();
  }

 private:
  void To(const Row* row, Place otherwise) {
    place_ = row == nullptr ? otherwise : Place::Row;
    if (row != nullptr) row_ = *row;
  }
  const Row* At_End(bool first) const {
    const Row* best = nullptr;
    for (const auto& [number, row] : *rows_) {
      if (best == nullptr || (Compare_Rows(kind_, row, *best) < 0) == first) best = &row;
    }
    return best;
  }
  const Row* Neighbour(bool back) const {
    const Row* best = nullptr;
    for (const auto& [number, row] : *rows_) {
      const int side = Compare_Rows(kind_, row, row_);
      if (back ? side >= 0 : side <= 0) continue;
      if (best == nullptr || (Compare_Rows(kind_, row, *best) < 0) != back) best = &row;
    }
    return best;
  }

  Rows* rows_;
  Kind kind_ = Kind::Storage;
  Place place_ = Place::Empty;
  Row row_;
  bool no_match_ = false;
};

std::string Shown(const Recordset& rows) {
  std::ostringstream text;
  text << rows.Eof() << rows.Bof() << rows.NoMatch() << ' ';
  if (const int failure = Failure_Of([&] { rows["Bottle_ID"].As_Long(); })) {
    text << failure;
    return text.str();
  }
  text << rows["Bottle_ID"].As_Long() << ' '
       << (rows["Name"].Is_Null() ? "-" : rows["Name"].As_Text()) << ' '
       << (rows["Rack"].Is_Null() ? -99 : rows["Rack"].As_Long());
  return text.str();
}

}  // namespace

class Cursor_Model_Test : public Store_Test, public testing::WithParamInterface<unsigned> {
 protected:
  static constexpr int cursors = 3;

  Cursor_Model_Test() : chance_(GetParam()) {
    for (int i = 0; i < cursors; ++i) {
      models_.emplace_back(stored_);
      recordsets_.push_back(database_->OpenRecordset("bottles"));
    }
  }

  unsigned Pick(unsigned below) { return static_cast<unsigned>(chance_() % below); }

  std::optional<std::string> Any_Name() {
    static const std::vector<std::string> names{"Rosé",  "ROSÉ", "rose",  "Rose\u0301", "Éclair",
                                                "eclat", "",     "zebra", "Zebra",      "x"};
    if (Pick(12) == 0) return std::nullopt;
    return names[Pick(static_cast<unsigned>(names.size()))];
  }
  std::optional<Long> Any_Rack() {
    if (Pick(8) == 0) return std::nullopt;
    return static_cast<Long>(Pick(4)) - 1;
  }

  // Both do the same and must end in the same failure, or in none.
  void Both(const std::string& what, const std::function<void()>& model,
            const std::function<void()>& store) {
    done_ += "\n" + what;
    const int expected = Failure_Of(model);
    ASSERT_EQ(Failure_Of(store), expected) << done_;
  }

  void Order(Model_Cursor& model, Recordset& rows) {
    static const std::vector<std::string> indexes{"bottle_id", "Name", "Group"};
    const unsigned index = Pick(3);
    Both(
        "Index " + indexes[index], [&] { model.Order_By(static_cast<Kind>(index + 1)); },
        [&] { rows.Index(indexes[index]); });
    kind_of_[&model] = index + 1;
  }

  void Seek(Model_Cursor& model, Recordset& rows) {
    const std::string name = Any_Name().value_or("none");
    const Long rack = Any_Rack().value_or(7);
    const Long number = static_cast<Long>(last_ - Pick(12));
    const auto same_name = [&](const Row& row) { return row.name && Same_Text(*row.name, name); };
    switch (kind_of_[&model]) {
      case 2:
        return Both(
            "Seek " + name, [&] { model.Seek(same_name); }, [&] { rows.Seek("=", name); });
      case 3:
        if (Pick(2) == 0) {
          return Both(
              "Seek rack " + std::to_string(rack),
              [&] { model.Seek([&](const Row& row) { return row.rack == rack; }); },
              [&] { rows.Seek("=", rack); });
        }
        return Both(
            "Seek rack and name " + std::to_string(rack) + name,
            [&] { model.Seek([&](const Row& row) { return row.rack == rack && same_name(row); }); },
            [&] { rows.Seek("=", std::to_string(rack), name); });
      default:
        return Both(
            "Seek number " + std::to_string(number),
            [&] { model.Seek([&](const Row& row) { return row.number == number; }); },
            [&] { rows.Seek("=", number); });
    }
  }

  void Add(Model_Cursor& model, Recordset& rows) {
    const Row row{++last_, Any_Name(), Any_Rack()};
    const bool dropped = Pick(6) == 0;
    done_ += "\nAddNew " + row.name.value_or("-") + (dropped ? " dropped" : "");
    rows.AddNew();
    ASSERT_EQ(rows["Bottle_ID"].As_Long(), row.number) << done_;
    Assign(rows, row);
    if (dropped) return Move(model, rows);
    rows.Update();
    stored_[row.number] = row;
  }

  static void Assign(Recordset& rows, const Row& row) {
    if (row.name) rows["Name"] = *row.name;
    if (row.rack) rows["Rack"] = *row.rack;
  }

  void Edit(Model_Cursor& model, Recordset& rows) {
    const Row values{0, Any_Name(), Any_Rack()};
    const bool dropped = Pick(6) == 0;
    Both(
        "Edit " + values.name.value_or("-") + (dropped ? " dropped" : ""),
        [&] {
          model.Change([&](Row& row) {
            if (dropped) return;
            if (values.name) row.name = values.name;
            if (values.rack) row.rack = values.rack;
          });
        },
        [&] {
          rows.Edit();
          Assign(rows, values);
          if (!dropped) rows.Update();
        });
    if (dropped) Move(model, rows);
  }

  void Move(Model_Cursor& model, Recordset& rows) {
    switch (Pick(6)) {
      case 0:
        return Both(
            "MoveFirst", [&] { model.Move_First(); }, [&] { rows.MoveFirst(); });
      case 1:
        return Both(
            "MoveLast", [&] { model.Move_Last(); }, [&] { rows.MoveLast(); });
      case 2:
      case 3:
        return Both(
            "MovePrevious", [&] { model.Move(true); }, [&] { rows.MovePrevious(); });
      default:
        return Both(
            "MoveNext", [&] { model.Move(false); }, [&] { rows.MoveNext(); });
    }
  }

  void Any_Step() {
    const unsigned which = Pick(cursors);
    Model_Cursor& model = models_[which];
    Recordset& rows = recordsets_[which];
    done_ += "\n#" + std::to_string(which) + ": ";
    switch (Pick(20)) {
      case 0:
        return Order(model, rows);
      case 1:
      case 2:
      case 3:
        return Seek(model, rows);
      case 4:
      case 5:
        return Add(model, rows);
      case 6:
      case 7:
        return Edit(model, rows);
      case 8:
      case 9:
        return Both(
            "Delete", [&] { model.Delete(); }, [&] { rows.Delete(); });
      case 10:
        done_ += "Commit";
        return database_->Commit();
      default:
        return Move(model, rows);
    }
  }

  std::mt19937 chance_;
  Rows stored_;
  std::int64_t last_ = 100;
  std::vector<Model_Cursor> models_;
  std::vector<Recordset> recordsets_;
  std::map<Model_Cursor*, unsigned> kind_of_;
  std::string done_;
};

TEST_P(Cursor_Model_Test, Recordsets_Do_As_The_Model) {
  for (int step = 0; step < 4000; ++step) {
    if (done_.size() > 2000) done_.erase(0, 1000);
    ASSERT_NO_FATAL_FAILURE(Any_Step());
    // Not after every step, so that what is put off stays put off over some of them.
    if (Pick(3) == 0) continue;
    const unsigned which = Pick(cursors);
    ASSERT_EQ(Shown(recordsets_[which]), models_[which].Shown()) << which << done_;
    ASSERT_EQ(recordsets_[which].RecordCount(), static_cast<Long>(stored_.size()));
  }
  database_->Commit();
  Reopen();
  Recordset all = database_->OpenRecordset("Bottles");
  std::vector<std::string> numbers;
  for (const auto& [number, row] : stored_) numbers.push_back(std::to_string(number));
  EXPECT_EQ(Walk(all, "Bottle_ID"), numbers);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Cursor_Model_Test, testing::Range(1U, 5U));
