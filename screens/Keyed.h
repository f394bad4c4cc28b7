// Lists whose entries have keys: a control that the user sees, and inside it an unseen twin that
// holds the key of each entry at the same place. Both are found under their names.
#pragma once

#include <string_view>

#include "platform/forms/Combo_Box.h"
#include "platform/forms/Item_List.h"
#include "platform/forms/List_Box.h"
#include "platform/record_store/Record_Store.h"
#include "platform/run_time/Values.h"

/// Where an entry at or after `from` reads so; the number of entries where none does.
int Place_of_Text(const Forms::Item_List& list, std::string_view text, int from = 0);

/// What every such list offers. Keys travel as text.
class Keyed_List {
 public:
  Forms::Item_List& Shown() { return *shown_; }
  const Forms::Item_List& Shown() const { return *shown_; }
  Forms::Item_List& Keys() { return *keys_; }
  const Forms::Item_List& Keys() const { return *keys_; }

  void Add(std::string_view text, std::string_view key);
  /// An entry that stands for no row has its text for a key.
  void Add(std::string_view text) { Add(text, text); }
  /// From the current row of `rows` to the last one: the text and the key of each, by the names of
  /// their fields.
  void Add_Rows(Record_Store::Recordset& rows, std::string_view text, std::string_view key);
  /// This one entry alone, chosen. Raises Click.
  void Show_Alone(std::string_view text, std::string_view key);

  /// The place of `key` at or after `from`, -1 where it is not there.
  int Place_Of(std::string_view key, int from = 0) const;
  /// Chooses the entry with this key at or after `from`, which raises Click; where there is none,
  /// the choice stays as it is. Whether there is one.
  bool Choose(std::string_view key, int from = 0);
  /// The key of an entry; 381 outside the list. That of the chosen one is "" if none is chosen.
  const Text& Key(int place) const { return Keys().List(place); }
  const Text& Key() const { return Key(Shown().ListIndex()); }

 protected:
  Keyed_List() = default;
  ~Keyed_List() = default;
  void Tie(Forms::Item_List& shown, Forms::Item_List& keys) {
    shown_ = &shown;
    keys_ = &keys;
  }

 private:
  Forms::Item_List* shown_ = nullptr;
  Forms::Item_List* keys_ = nullptr;
};

/// The entries become the selection of links/Varieties_Processes.h. More than 100 are failure 9.
void Select_All(const Keyed_List& list);

/// The list that is seen is a `Seen`; its twin is a `Twin`.
template <class Seen, class Twin = Seen>
class Keyed : public Seen, public Keyed_List {
 public:
  Keyed(Forms::Form& form, std::string_view name, std::string_view keys_name)
      : Seen(form, name), keys_(form, keys_name) {
    Tie(*this, keys_);
  }

  /// The key goes with its entry.
  void RemoveItem(int index) override {
    Seen::RemoveItem(index);
    keys_.RemoveItem(index);
  }
  void Clear() override {
    Seen::Clear();
    keys_.Clear();
  }

 private:
  Twin keys_;
};

using Keyed_Combo_Box = Keyed<Forms::Combo_Box>;
using Keyed_List_Box = Keyed<Forms::List_Box>;
using Keyed_Check_List = Keyed<Forms::Check_List, Forms::Combo_Box>;
