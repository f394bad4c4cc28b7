// Who has the focus, in the program's own sense: a message box or another program in front changes
// nothing. From this come LostFocus, refused clicks and Form_Activate. For the sources of this room
// only.
#pragma once

#include <QObject>
#include <unordered_map>

class QWidget;

namespace Forms {

class Form;
class Placed_Control;

class Focus_Watch : public QObject {
 public:
  static Focus_Watch& The();

  /// Begins to watch the toolkit. Once, after the application is there.
  void Begin();

  void Enter(const QWidget* widget, Placed_Control& control) { controls_[widget] = &control; }
  void Remove(const QWidget* widget, const Placed_Control& control);
  Placed_Control* Control_Of(const QWidget* widget) const;
  Placed_Control* Owner() const { return owner_; }
  Form* Front() const { return front_; }  ///< whose Form_Activate ran last, or none

  /// From code.
  void Set_Focus(Placed_Control& control);
  /// The focus returns to `control` after a handler took it away in passing; nobody is told.
  void Give_Back(Placed_Control& control);
  /// The form goes, or takes no input from now on: nothing of it loses the focus by that.
  void Forget(const Form& form);

  /// The one door for all that the user does to a control, by whatever way: the focus goes there
  /// first, if it is not there yet, and so the field that has it is left before anything happens.
  /// False if nothing may happen: the field refused to be left, or the control takes no input now
  /// (Form::Takes_Input) and nothing was moved.
  bool Go_To(Placed_Control& control);

  /// A form was shown by code; its window may come to the front later, or not at all.
  void Shown(Form& form);
  /// A form's window came to the front.
  void Came_To_Front(Form& form);
  /// The end of an outermost handler: what moved meanwhile without code asking for it.
  void Settle();

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  Focus_Watch() = default;
  void Moved(QWidget* now);
  void Look_Where(QWidget* now);
  void Change_Owner(Placed_Control* target);
  void Raise_Lost_Focus(Placed_Control& loser, Placed_Control* target);
  bool Filter_Press(QWidget& widget);
  bool Filter_Drop(const QWidget& widget, QEvent& drop);
  void Take_Press_Of_Inactive_Window(const QWidget& widget);
  void Bring_To_Front(Form& form);
  bool Is_Ahead_Of_Window() const;
  void Activate(Form& form);

  std::unordered_map<const QWidget*, Placed_Control*> controls_;
  Placed_Control* owner_ = nullptr;
  Placed_Control* loser_ = nullptr;        ///< whose LostFocus runs now
  Placed_Control* refused_for_ = nullptr;  ///< who did not get the focus
  Placed_Control* interrupted_ = nullptr;  ///< who got it, after a box that swallowed the mouse
  bool refused_ = false;
  bool by_code_ = false;
  bool press_dropped_ = false;  ///< and so is the release that ends it
  Form* front_ = nullptr;       ///< whose Form_Activate ran last
  Form* awaited_ = nullptr;     ///< asked to come to the front, not yet there
};

}  // namespace Forms
