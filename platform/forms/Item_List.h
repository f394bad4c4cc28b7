// What combo boxes and lists have in common: entries counted from 0, and one that is chosen.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/forms/Control.h"

namespace Forms {

class Plain_List;

/// Adding and removing entries raises nothing and chooses nothing: ListIndex stays -1 until it is
/// set or the user chooses.
class Item_List : public Lockable_Control {
 public:
  ~Item_List() override;

  void AddItem(std::string_view text);
  /// Before the entry `index`. 5 outside 0 .. ListCount.
  void AddItem(std::string_view text, int index);
  /// The chosen entry is none afterwards. 5 outside the list.
  virtual void RemoveItem(int index);
  virtual void Clear();

  int ListCount() const;
  /// The text of an entry; that of -1 is "". 381 outside the list.
  const std::string& List(int index) const;
  void Set_List(int index, std::string_view text);

  int ListIndex() const { return list_index_; }
  /// Raises Click for 0 and above, also for the entry already chosen; nothing for -1. 380 outside
  /// -1 .. ListCount - 1.
  void Set_ListIndex(int index);
  /// The chosen entry; "" if none.
  const std::string& Text() const { return List(list_index_); }

  /// On each choice by the user, also of the entry already chosen, and by code.
  std::function<void()> Click;
  /// The left button, twice; in a list on one and the same entry.
  std::function<void()> DblClick;

  // ---- for this room ----

  /// The user chose the entry: raises Click.
  void Chosen_By_User(int index);
  /// The entry is the chosen one from now on; raises nothing.
  void Take_Index(int index);

 protected:
  Item_List(Form& form, std::string_view name);
  Plain_List& Entries() const { return *entries_; }
  virtual void Show_List_Index() = 0;

 private:
  std::unique_ptr<Plain_List> entries_;
  int list_index_ = -1;
};

}  // namespace Forms
