// A list that the user sees, and its unseen twin with the key of each entry at the same place.
#pragma once

#include <string_view>

#include "platform/forms/Item_List.h"
#include "platform/record_store/Record_Store.h"

/// The two as one. A value: it refers to the controls and owns nothing. Keys travel as text.
class Keyed_List {
 public:
  Keyed_List(Forms::Item_List& shown, Forms::Item_List& keys) : shown_(&shown), keys_(&keys) {}

  void Clear() const;
  void Add(std::string_view text, std::string_view key) const;
  /// An entry that stands for no row has its text for a key.
  void Add(std::string_view text) const { Add(text, text); }
  /// From the current row of `rows` to the last one: the text and the key of each, by the names of
  /// their fields.
  void Add_Rows(Record_Store::Recordset& rows, std::string_view text, std::string_view key) const;
  /// This one entry alone, chosen. Raises Click.
  void Show_Alone(std::string_view text, std::string_view key) const;

  /// The place of `key` at or after `from`, -1 where it is not there.
  int Place_Of(std::string_view key, int from = 0) const;
  /// The key of an entry; 381 outside the list. That of the chosen one is "" if none is chosen.
  const std::string& Key(int place) const { return keys_->List(place); }
  const std::string& Key() const { return keys_->List(shown_->ListIndex()); }

 private:
  Forms::Item_List* shown_;
  Forms::Item_List* keys_;
};
