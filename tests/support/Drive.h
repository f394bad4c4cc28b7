// Drives the running windows as a user does: real mouse and key events on real controls, which are
// found by their names. For the tests of every screen.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/Message_Box.h"

class QWidget;

using Texts = std::vector<std::string>;

/// The widget of this name: a form, or a control. "Form/Control" where two forms have one of the
/// name; otherwise one that can be seen is preferred. Fails the test, and throws, if there is none.
QWidget& Find(std::string_view name);
bool Is_There(std::string_view name);

/// Whether the user can see it, and could use it. For menu entries too.
bool Is_Seen(std::string_view name);
bool Is_Usable(std::string_view name);
/// What it shows: a text, the entry of a combo box, a caption (without mnemonic), a window's title.
std::string Shown_Text(std::string_view name);
/// The same of a list, a line for each row; the cells of a row are parted by " | ".
Texts Shown_Rows(std::string_view name);
/// One cell of each row.
Texts Shown_Column(std::string_view name, std::size_t column);
/// The row, from 0, whose cell in this column shows this text; fails the test, with -1, if none.
int Row_With(std::string_view name, const std::string& text, std::size_t column = 0);

/// "open", "required", "locked" or "check": the state that the control's colour stands for.
std::string Color_of(std::string_view name);
bool Is_Locked(std::string_view name);
bool Is_Ticked(std::string_view check_box);
/// The ticked entries of a check list.
Texts Ticked_Rows(std::string_view name);

/// Clicks in the middle, with the left button; `Double_Click` twice.
void Click(std::string_view name);
void Double_Click(std::string_view name);
/// Clicks on the row of a list, from 0, the tick box of a check list, or the header of a column.
void Click_Row(std::string_view name, int row, bool with_ctrl = false);
void Click_Line(std::string_view name, const std::string& text, std::size_t column = 0);
void Click_Tick(std::string_view name, int row);
void Click_Header(std::string_view name, int column);
/// Chooses the entry of a combo box by mouse: opens the list and clicks the line.
void Choose(std::string_view name, std::string_view entry);
/// Clicks into the field, empties it and types.
void Type_Into(std::string_view name, std::string_view text);
/// The same with a text from the clipboard.
void Paste_Into(std::string_view name, std::string_view text);
/// Types into whatever has the focus.
void Type(std::string_view text);
/// Presses a key, named as in "Tab", "Shift+Tab", "Return", "Esc", "Alt+S", "Ctrl+C". One that is
/// down still, because its press brought up a box, is let go first.
void Press(std::string_view key);
/// What the desktop sends while a key is held down: releases and presses that say so.
void Repeat(std::string_view key, int times = 8);
/// Chooses a menu entry with the mouse: opens the menus on the way to it.
void Pick(std::string_view entry);
/// Closes a form by its frame.
void Close_Window(std::string_view form);
/// The name of the control that has the focus; "" if none.
std::string Focused();
/// The wheel over a control, one notch down.
void Turn_Wheel(std::string_view name);

/// Lets events happen until `condition` holds; False after five seconds.
bool Wait_Until(const std::function<bool()>& condition);
/// Lets all events that are due happen.
void Settle_Events();

/// Does it in the message box that the next steps bring up: a real one, which it must close.
void Act_In_Next_Box(const std::function<void()>& act);
/// Presses the key there.
void Press_In_Next_Box(std::string_view key);

/// Answers the message boxes of a test and keeps what they said. A box without an answer left in
/// the script is answered with OK or Yes.
class Box_Script {
 public:
  explicit Box_Script(std::vector<bool> answers = {});
  ~Box_Script();
  Box_Script(const Box_Script&) = delete;
  Box_Script& operator=(const Box_Script&) = delete;

  const std::vector<Forms::Box>& Boxes() const { return boxes_; }
  ::Texts Texts() const;
  /// "TITLE: text", or "TITLE? text" where the box asked.
  ::Texts Said() const;
  void Forget() { boxes_.clear(); }

 private:
  std::vector<bool> answers_;
  std::vector<Forms::Box> boxes_;
};

/// Keeps the process alive where the program would end it, and tells the status it ended with.
class End_Watch {
 public:
  End_Watch();
  ~End_Watch();  ///< handlers run again
  End_Watch(const End_Watch&) = delete;
  End_Watch& operator=(const End_Watch&) = delete;

  bool Ended() const { return status_ >= 0; }
  int Status() const { return status_; }

 private:
  int status_ = -1;
};

/// What the boxes said, as in `Said`, that the action brought up.
Texts Told_By(const std::function<void()>& action);
/// The action ends the run with this failure, told once.
void Expect_End(int number, const std::function<void()>& action);
