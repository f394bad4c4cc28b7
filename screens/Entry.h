// What the user entered on a screen and has not stored, and the question before it goes.
#pragma once

#include <functional>
#include <utility>

#include "core/Common_Words.h"
#include "core/Known_Faults.h"
#include "platform/run_time/Values.h"

class Entry {
 public:
  /// As designed, by this fault, nothing asks.
  struct Question {
    Fault unasked;
    Screen_Words::Hint text;
    const char* title;
  };

  /// `read` tells all that the user can enter, as it stands, in one text.
  Entry(std::function<Text()> read, const Question& question)
      : read_(std::move(read)), question_(question) {}

  /// What stands there is stored, or was not entered: nothing of it would be lost.
  void Take_as_Stored() { stored_ = read_(); }
  /// Whether to go on where that throws away what was entered. Asks if there is such.
  bool May_Be_Lost() const;
  /// Asks in any case.
  bool Is_Left() const;

 private:
  std::function<Text()> read_;
  Question question_;
  Text stored_;
};
