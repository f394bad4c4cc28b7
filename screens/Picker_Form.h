// The pattern of the pickers: entries are moved from what can be chosen into a list of what is
// chosen, and that list is handed on as the selection (Varieties_Processes.h).
//
// An entry is chosen once, by its text and by its key; there is no word about a second time. The
// list takes 101 entries, one more than the selection holds: PROCEED with all of them is failure 9.
// Both are known faults: without them the key alone counts, and the list takes 100.
//
// Enter or a double click adds the current entry, Delete or a double click takes one out.
#pragma once

#include <optional>
#include <string_view>

#include "core/Common_Words.h"
#include "links/Varieties_Processes.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Values.h"
#include "screens/Command_Form.h"
#include "screens/Keyed.h"

class Picker_Form : public Command_Form {
 protected:
  Picker_Form(std::string_view name, std::string_view caption,
              std::string_view cancel_name = "MultCancel");

  // ---- what the pickers differ in ----

  struct Entry {
    Text text;
    Text key;
  };
  /// The entry that Add would choose; none without a current one.
  virtual std::optional<Entry> Current_Entry() const = 0;
  /// Whether an empty list can be handed on.
  virtual bool May_Be_Empty() const { return false; }
  /// The selection is handed over; what follows goes by the command.
  virtual void Proceed() = 0;
  /// Leaves without a result.
  virtual void MultCancel_Click() { Leave_to(Caller()); }

  // ---- the chosen list ----

  void Clear_Chosen();
  void Choose(const Entry& entry);
  /// The pairings of the wine on the wine screen, where that is loaded and they are to be begun
  /// with.
  void Choose_Pairings_of_Wine();
  /// Those of two lists in step on another screen, where that is loaded.
  void Choose_Those_of(const char* screen, const char* list, const char* keys);

  // ---- where it leads ----

  /// The screen that opens a picker under this command.
  std::string_view Caller() const;
  /// Tells the wine screen that a selection waits for it.
  static void Tag_Pairings_of(const char* wine_screen);
  /// Searches the cellar for the selected pairings. Where wines are found, their screen is loaded
  /// anew and shown, and this one waits hidden behind it; otherwise that screen is unloaded.
  bool Show_Found_Wines();

  // ---- places ----

  static constexpr int list_height = 22;
  /// A list below its heading, with the number of its entries at the right.
  static Forms::Place Under_Heading(Forms::Label& heading, Forms::Label& number,
                                    Forms::Placed_Control& list, int characters = 44);
  /// The two buttons that move entries, one above the other.
  Forms::Place Moves_Place();
  /// What the keys do, and the way out.
  Forms::Place Ways_Out_Place();

  Forms::Command_Button Add_Command{*this, "Add_Command", "Add==>"};
  Forms::Command_Button Remove_Command{*this, "Remove_Command", "Remove"};
  Forms::Label Selected_Number{*this, "Selected_Number"};
  Keyed_List_Box SelectList{*this, "SelectList", "SelectIndexList"};
  Forms::Label Keys_Label{*this, "Keys_Label", Hint_Text(Screen_Words::Picker_Keys),
                          Forms::Label::Kind::Paragraph};
  Forms::Command_Button MultSelect{*this, "MultSelect", "PROCEED"};
  Forms::Command_Button MultCancel;

  void Add_Command_Click();

 private:
  bool Is_Chosen(const Entry& entry) const;
  bool Is_Full() const;
  static void Refuse_Another();
  void Show_Chosen();
  void SelectList_Click();
  void Remove_Command_Click();
  void Remove_by_Key();
  void MultSelect_Click();
};

/// A picker whose entries stand in a list of texts, with their keys unseen.
class List_Picker_Form : public Picker_Form {
 protected:
  List_Picker_Form(std::string_view name, std::string_view caption);

  std::optional<Entry> Current_Entry() const override;

  /// The pairings whose `Multiuse` is from 2 to `highest_multiuse`, in the order of the language.
  void Load_Pairings(Integer highest_multiuse);
  /// What can be chosen was filled anew, and has no current entry.
  void Show_Candidates();

  Forms::Label Cat_Number{*this, "Cat_Number"};
  Keyed_List_Box Cat_List{*this, "Cat_List", "Cat_Index_List"};
};
