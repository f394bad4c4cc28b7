// The screen of the pairing catalogue: rows put into the file, and what the screen shows.
#pragma once

#include <gmock/gmock.h>

#include "core/tables/Pairing_Tables.h"
#include "platform/forms/Forms.h"
#include "platform/forms/Screens.h"
#include "platform/record_store/Text_Order.h"
#include "tests/pairing/Pairing_Program.h"

/// The words in which a test expects an addition or a change.
struct Two_Names {
  Text first, second;
};

class Catalogue : public Pairing_Program {
 protected:
  static constexpr const char* list = "Maridages_ListView";
  static constexpr Integer english = 3, spanish = 4, french = 5, german = 6, japanese = 8;

  /// Starts the program in a language and chooses the menu entry: Pairing_Add, Pairing_Mod,
  /// Pairings_List.
  void Open(const char* entry, Integer language = english);

  /// A delivered pairing "`name` en", "`name` es", "`name` fr", ... of every use.
  static Maridages_Record Made_Up(const Text& name);
  /// Puts it into the file as the last row and returns its key.
  Text Put(const Maridages_Record& pairing) const;

  /// "open", "required", "locked": what the control's colour stands for.
  static Text State_of(const char* control);
  /// Clicks the row whose first cell this is.
  static void Click_Pairing(const Text& first_cell);
  static std::vector<Text> Column(std::size_t column);
  /// The two boxes.
  static std::vector<Text> Boxes();
  static void Type_Names(const Two_Names& names);

  /// Some fields of the pairings that a user added, in the order of addition.
  std::vector<Text> Added(const Text& fields, int count) const;
  /// Everything that the catalogue stores.
  std::vector<Text> Whole_Catalogue() const { return Stored("SELECT * FROM Maridages", 16); }
};
