// Two buttons that go from row to row of a list, in the order shown.
#pragma once

#include <functional>

#include "platform/forms/Command_Button.h"
#include "screens/Row_List.h"

class Pager {
 public:
  /// The buttons are closed until a row is picked.
  Pager(Forms::Command_Button& previous, Forms::Command_Button& next);

  /// The list that is paged; it stays loaded as long as the buttons are used. `index` is where it
  /// keeps the place of the selected row, from 1.
  void Go_Through(Row_List& list, Integer& index);
  /// Shows the row of this key. False where it has gone: nothing is changed then.
  std::function<bool(const Text& key)> Show_Row;
  /// Called before a button goes on: brings the list, where it is loaded by the first use.
  std::function<void()> Before_Step;

  /// This row was picked: the buttons go on from it. They are closed where the list has no such
  /// row.
  void Set_Previous_and_Next(const Text& key);

 private:
  void Step(int by);

  Forms::Command_Button& previous_;
  Forms::Command_Button& next_;
  Row_List* list_ = nullptr;
  Integer* index_ = nullptr;
};
