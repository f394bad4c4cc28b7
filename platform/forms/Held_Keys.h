// What a key may do that is held down, or was down already when what it reaches came up. For the
// sources of this room only.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;

namespace Forms {

/// A held key goes on typing, moving and scrolling. It decides nothing: its repeats press no
/// button, tick nothing, choose no menu entry and leave no screen, and in a message box it does
/// nothing at all before it was let go.
class Held_Keys : public QObject {
 public:
  static Held_Keys& The();

  /// Begins to watch the toolkit. Once, after the application is there.
  void Begin();

  /// A message box comes up: the key that is down now may be the one that brought it.
  void Box_Comes_Up() { shut_out_ = down_; }
  /// It has gone, perhaps by a key of which nobody is told any more when it is let go.
  void Box_Has_Gone() { down_ = shut_out_ = 0; }

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  Held_Keys() = default;
  bool Is_To_Do_Nothing(const QKeyEvent& event) const;
  bool May_Repeat(const QKeyEvent& event) const;
  void Pressed(const QObject& object, const QKeyEvent& event);
  void Let_Go(const QKeyEvent& event);

  int down_ = 0;          ///< the key pressed last, while it is down; 0: none
  int shut_out_ = 0;      ///< was down when a message box came up
  QPointer<QWidget> at_;  ///< had the focus when the last key went down
};

}  // namespace Forms
