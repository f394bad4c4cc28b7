// What every part of a form has: a name, a caption, a tag, and whether it is shown and can be used.
//
// The manner of all classes of this room: a property is read by its name and written by Set_ and
// its name (`Caption()`, `Set_Caption(...)`); an event is a public function member of the event's
// name, set in the form's constructor (`Exit_Command.Click = [this] { Exit_Command_Click(); };`).
// Code that sets a value raises the value's event at once, inside the call; the user's doing
// raises it through the guard of platform/run_time/Guard.h.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/forms/Colors.h"

class QWidget;

namespace Forms {

class Form;

class Control {
 public:
  /// Belongs to `form` from now on and is found there by its name. `caption` is the design caption.
  Control(Form& form, std::string_view name, std::string_view caption);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  Form& Owner() const { return form_; }

  /// A text kept for the program's own use; "" at first.
  const std::string& Tag() const { return tag_; }
  void Set_Tag(std::string_view tag) { tag_ = tag; }

  /// The plain text, exactly as it was set. Where it is shown, an ampersand is an ampersand, and a
  /// mnemonic is chosen by the form. A control that shows no caption takes it as its accessible
  /// name.
  const std::string& Caption() const { return caption_; }
  void Set_Caption(std::string_view caption);

  bool Enabled() const { return enabled_; }
  void Set_Enabled(bool enabled);

  /// Whether the control itself is to be shown; its form may be hidden all the same.
  bool Visible() const { return visible_; }
  void Set_Visible(bool visible);

 protected:
  virtual void Show_Caption() = 0;
  virtual void Show_Enabled() = 0;
  virtual void Show_Visible() = 0;

 private:
  Form& form_;
  std::string name_;
  std::string caption_;
  std::string tag_;
  bool enabled_ = true;
  bool visible_ = true;
};

/// A control with a place on its form, made of one widget that carries the control's name.
/// A control that the form's layout does not name is never seen, whatever its Visible says: such
/// are the unseen twins that keep the keys of a list.
class Placed_Control : public Control {
 public:
  ~Placed_Control() override;

  /// Window_Color follows the theme; every other colour is shown exactly, with black or white text
  /// on it unless a ForeColor is set. The states "required", "locked" and "to click next" also
  /// stand in the tool tip and the accessible description and have a mark of their own.
  Color BackColor() const { return back_color_; }
  void Set_BackColor(Color color);
  Color ForeColor() const { return fore_color_; }
  void Set_ForeColor(Color color);

  /// What stands in the control is there only until something is chosen: it is shown fainter, and
  /// the tool tip and the accessible description say so.
  bool Stand_In() const { return stand_in_; }
  void Set_Stand_In(bool stand_in);

  /// What the program has to say about the control, as plain text. The word for its caption, or
  /// its label's, and the words of its state, if any, stand below it (Form_Texts.h).
  void Set_Tool_Tip(std::string_view text);

  /// The width of its place, in pixels of an unscaled desktop; without one the layout decides.
  void Set_Width(int pixels);

  /// Gives the control the focus; raises the LostFocus of the text box that had it, unless called
  /// inside a LostFocus. On a form that is not in front the focus waits for it.
  void SetFocus();

  /// The name that assistive programs read. Without one: the text of the label beside the control,
  /// the control's caption, or its name in words.
  void Set_Accessible_Name(std::string_view name);

  /// For this room and the tests.
  QWidget* Widget() const { return widget_; }
  bool Shows_As_Locked() const { return back_color_ == Locked_Color || Is_Locked(); }
  bool Is_Placed() const { return placed_; }
  void Set_Placed();
  void Set_Label_Caption(std::string_view caption);
  virtual void Raise_Lost_Focus() {}
  virtual bool Has_Mnemonic() const { return false; }
  virtual void Show_Mnemonic(const std::string&) {}

 protected:
  Placed_Control(Form& form, std::string_view name, std::string_view caption);

  /// Called once by each kind of control with the widget it made; owned by the form's window.
  void Set_Widget(QWidget* widget);
  void Destroy_Widget();
  /// Of a list: what it says in its middle, and to assistive programs, while it has no rows.
  void Set_Empty_Text(std::string_view text);
  /// The widget that form children are made under.
  QWidget* Widget_Parent() const;
  /// Shows the colours and the state anew.
  void Show_Look();
  virtual bool Is_Locked() const { return false; }
  void Show_Caption() override;
  void Show_Enabled() override;
  void Show_Visible() override;

 private:
  void Show_Accessible_Name();
  void Show_Word();
  std::string_view State() const;
  void Show_State();

  QWidget* widget_ = nullptr;
  bool placed_ = false;
  Color back_color_ = Window_Color;
  Color fore_color_ = Window_Color;
  bool stand_in_ = false;
  std::string tool_tip_;
  std::string accessible_name_;
  std::string label_caption_;
};

/// A control that can keep the user from changing its value. It can still take the focus, be read
/// and copied, and code can set it.
class Lockable_Control : public Placed_Control {
 public:
  bool Locked() const { return locked_; }
  void Set_Locked(bool locked);

 protected:
  using Placed_Control::Placed_Control;
  virtual void Show_Locked() {}
  bool Is_Locked() const override { return locked_; }

 private:
  bool locked_ = false;
};

}  // namespace Forms
