// The texts of a screen that takes them by position.
#pragma once

#include <span>
#include <string_view>

#include "core/words/Screen_Words.h"
#include "platform/forms/Form.h"
#include "platform/run_time/Bounded_Array.h"
#include "platform/run_time/Values.h"

class Form_Words {
 public:
  using Rows = std::span<const Screen_Words::Row>;

  /// `rows` says which row stands for what; it outlives the object.
  Form_Words(std::string_view form_key, Rows rows) : form_key_(form_key), rows_(rows) {}

  /// Reads the rows in the language in force, from entry 1. 9 for a 151st.
  void Read();
  /// Captions what the rows name: controls (730 for one that the form lacks) and the form. What the
  /// data has no row for keeps its caption.
  void Caption(Forms::Form& form) const;

  /// The word at a place, or of a row; `without` where the data has no row for it.
  Text At(int place, std::string_view without = {}) const;
  Text Of(std::string_view variable, std::string_view without = {}) const;

 private:
  std::string_view form_key_;
  Rows rows_;
  Bounded_Array<Text, 150> words_;
};
