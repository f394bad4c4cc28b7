// Controls of one kind that share a name and are told apart by a number: member i is `Name_i`.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/Form.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

template <class Kind>
class Control_Array {
 public:
  /// Members `first` to `last`; what follows goes to each one's constructor after its name.
  template <class... Design>
  Control_Array(Form& form, std::string_view name, int first, int last, const Design&... design)
      : first_(first) {
    for (int i = first; i <= last; ++i) {
      members_.push_back(
          std::make_unique<Kind>(form, std::string(name) + "_" + std::to_string(i), design...));
    }
  }

  int First() const { return first_; }
  int Last() const { return first_ + static_cast<int>(members_.size()) - 1; }

  /// 9 outside First .. Last.
  Kind& operator[](int index) {
    if (index < First() || index > Last()) Fail(Failure::Subscript_Out_Of_Range);
    return *members_[static_cast<std::size_t>(index - first_)];
  }

  /// Does the same to each: `Taste_Check.Each([](Check_Box& box) { box.Set_Value(0); });`
  template <class Action>
  void Each(const Action& action) {
    for (const auto& member : members_) action(*member);
  }

 private:
  int first_;
  std::vector<std::unique_ptr<Kind>> members_;
};

}  // namespace Forms
