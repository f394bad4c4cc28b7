// A box for one line of text, or for several.
#pragma once

#include "platform/forms/Control.h"

namespace Forms {

class Text_Box : public Lockable_Control {
 public:
  enum class Lines { One, Many };

  Text_Box(Form& form, std::string_view name, Lines lines = Lines::One);
  ~Text_Box() override;

  /// The text as it was set or typed; lines that the user breaks end in carriage return, line feed.
  const std::string& Text() const { return text_; }
  /// Raises Change, unless the box holds this text already.
  void Set_Text(std::string_view text);

  /// Marks the whole text: what is typed next takes its place.
  void Select_All();

  /// On each change of the text, by the user or from code.
  std::function<void()> Change;
  /// When the focus goes to another control or form of the program. Never because a message box or
  /// another program came to the front, never from a form that is hidden, unloaded, disabled or
  /// waiting for a picker. A SetFocus back to this box, inside the handler, refuses the value: the
  /// click that took the focus away is dropped, unless it was on the form's exit.
  std::function<void()> LostFocus;

  void Raise_Lost_Focus() override;

 protected:
  void Show_Locked() override;

 private:
  void Take_Over(std::string text);
  void Show_Text();

  std::string text_;
  Lines lines_;
};

}  // namespace Forms
