// What the screens of a catalogue have in common: one form that adds, changes, shows and deletes
// the rows of a table, with one button that commits and one way out.
#pragma once

#include <string_view>
#include <vector>

#include "platform/forms/Forms.h"
#include "screens/Catalogue_Row.h"
#include "screens/Command_Form.h"
#include "screens/Entry.h"
#include "screens/Row_List.h"

/// The gate: a field of `Gate_Fields` carries the `Tag` "1" once it is filled; `Require` and
/// `Fill_In` (Field_States.h) change colour and tag together, and
/// `Should_General_Command_be_Enabled` ends the handler of each such field.
class Catalogue_Screen : public Command_Form {
 public:
  /// What is refused and asked, whether anything refers to the row in the memory record, and what
  /// goes with it.
  struct Deletion {
    const char* in_use;        ///< first line of the refusal
    const char* remove_first;  ///< its second line
    const char* in_use_title;
    const char* question;
    const char* question_title;
    bool (*is_referred_to)();
    void (*remove_rows)();  ///< nothing goes with it where there is none
  };

 protected:
  template <class Record>
  Catalogue_Screen(std::string_view name, std::string_view caption,
                   const Tables::Table_In_Use<Record>& table, std::string_view general = "ADD")
      : Command_Form(name, caption),
        Own_Row(table),
        General_Command(*this, "General_Command", general),
        Exit_Command(*this, "Exit_Command", "EXIT") {}

  /// A row that was not confirmed goes with its screen. An override calls it.
  void Form_Unload() override { Own_Row.Remove_Unconfirmed(); }
  bool May_Be_Replaced() override { return May_Lose_Entered(); }

  // ---- the gate ----

  virtual std::vector<Forms::Placed_Control*> Gate_Fields() { return {}; }
  /// Whether the button has something to do under the command; if not, it stays closed.
  virtual bool Commits() const { return false; }
  void Should_General_Command_be_Enabled();
  /// A required name at each change of its text: blanks alone count as empty.
  void Name_Changed(Forms::Text_Box& name);

  // ---- names ----

  /// Mended, a name that stands for a row that is not confirmed is refused, with a message of this
  /// title, and the field takes the focus. Whether it was.
  static bool Is_Refused_Name(Forms::Text_Box& name, const char* title);
  /// Whether two names count as the same: mended, whatever their case and the blanks around them.
  static bool Same_Name(const Text& one, const Text& other);

  // ---- deletion ----

  /// Whether the row in the memory record, with this counter, may not be deleted; tells why.
  static bool Is_In_Use(const Deletion& deletion, Integer used);
  /// Asks, and deletes the row, `Own_Row` where none is named, on Yes. Whether it was deleted.
  static bool Delete_If_Wanted(const Deletion& deletion, Catalogue_Row& row);
  bool Delete_If_Wanted(const Deletion& deletion) { return Delete_If_Wanted(deletion, Own_Row); }

  // ---- what was entered ----

  /// All that the user can enter under the command, as it stands, in one text.
  virtual Text Entered() { return {}; }
  void Take_as_Stored() { entry_.Take_as_Stored(); }
  /// Whether to go on where that throws away what was entered. Mended, asks if there is such.
  bool May_Lose_Entered() const { return entry_.May_Be_Lost(); }
  /// The same for a pick in the list; the row that is worked on is the selected one again where the
  /// user stays with it.
  bool May_Leave_Row(Row_List& list) const;

  // ---- other screens ----

  /// Has the screen of the general list, opened anew, show this wine. A screen that hides for it
  /// leads on only where that one does not wait behind it already.
  enum class This_Screen { Stays, Hides };
  void Show_General_Wine(const Text& key, This_Screen this_screen);

  Catalogue_Row Own_Row;
  Forms::Command_Button General_Command;
  Forms::Command_Button Exit_Command;

 private:
  Entry entry_{[this] { return Entered(); },
               {Fault::Entered_Row_Goes_Without_A_Word, Screen_Words::Leave_Entered_Row,
                "ENTRY NOT STORED"}};
};
