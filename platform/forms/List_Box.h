// A list that stands open.
#pragma once

#include "platform/forms/Item_List.h"

namespace Forms {

/// The user's choice raises Click: a click of the mouse, also on the chosen entry, a move by the
/// arrow keys, and typing, which goes to the next entry that begins so or, where none does, has a
/// word that begins so; F3 goes on to the next such entry. Where nothing is chosen, the first arrow
/// key chooses the entry that the focus stands on; after the chosen entry was removed that is the
/// one that took its place.
///
/// A double click raises Click once and then DblClick, if the entry is still there and the chosen
/// one. A handler may add and remove entries, clear the list and unload the form.
class List_Box : public Item_List {
 public:
  List_Box(Form& form, std::string_view name);
  ~List_Box() override;

  using Placed_Control::Set_Empty_Text;
  /// Shows the entry in bold until the list is cleared; assistive programs are told. 381 outside
  /// the list.
  void Set_Bold(int index, bool bold);
  /// Scrolls the list so that the entry is seen. 381 outside the list.
  void EnsureVisible(int index);
  /// False where a pick asks a question or leaves the screen: the arrow keys and typing only move
  /// then, which takes ListIndex along but raises nothing, and Enter or Space raises Click.
  void Set_Arrow_Keys_Pick(bool pick);

  /// The user pressed Return or Enter, or Delete, by itself, while an entry was chosen; also again
  /// and again while the key is held down. Where Enter_Pressed is set, Enter does nothing else.
  std::function<void()> Enter_Pressed;
  std::function<void()> Delete_Pressed;

 protected:
  void Show_List_Index() override;
};

/// A list of entries that can be ticked, each for itself. ListIndex is the entry with the focus.
/// After code ticked some while the user was elsewhere, the first of all that are ticked is in
/// sight.
class Check_List : public Item_List {
 public:
  Check_List(Form& form, std::string_view name);
  ~Check_List() override;

  using Placed_Control::Set_Empty_Text;
  /// Whether the entry is ticked. 381 outside the list.
  bool Selected(int index) const;
  /// Raises ItemCheck where that is a change.
  void Set_Selected(int index, bool selected);
  /// How many are ticked.
  int SelCount() const;

  /// After each change of a tick, by the user or by code, with the entry's index.
  std::function<void(int item)> ItemCheck;

 protected:
  void Show_List_Index() override;

 private:
  void Ticked_By_User(int index, bool ticked);
  void Show_First_Tick();
};

}  // namespace Forms
