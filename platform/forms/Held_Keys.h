// What a key may do that is held down, or was down already when what it reaches came up. For the
// sources of this room only.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;

namespace Forms {

/// A held key goes on typing, moving and scrolling. It decides nothing: its repeats press no
/// button, tick nothing, choose no menu entry, leave no screen and answer no message box.
class Held_Keys : public QObject {
 public:
  static Held_Keys& The();

  /// Begins to watch the toolkit. Once, after the application is there.
  void Begin();

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  Held_Keys() = default;
  bool Is_To_Do_Nothing(const QKeyEvent& event) const;
  bool Is_Repeat(const QKeyEvent& event) const;
  bool May_Repeat(const QKeyEvent& event) const;
  void Pressed(const QObject& object, const QKeyEvent& event);
  void Let_Go(const QKeyEvent& event);

  int let_go_ = 0;  ///< the key that was let go last, and when
  quint64 when_ = 0;
  QPointer<QWidget> at_;  ///< had the focus when the last key went down
};

}  // namespace Forms
