#include "platform/forms/Held_Keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QWindow>

#include "platform/forms/Focus.h"
#include "platform/forms/List_Box.h"
#include "platform/forms/Message_Box.h"

namespace Forms {

namespace {

bool Decides(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space ||
         key == Qt::Key_Escape;
}

bool Moves(int key) {
  return (key >= Qt::Key_Home && key <= Qt::Key_PageDown) || key == Qt::Key_Tab ||
         key == Qt::Key_Backtab;
}

// There a letter alone is a choice.
bool Is_Among_Choices() {
  return Box_Is_Up() || qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr ||
         qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr;
}

}  // namespace

Held_Keys& Held_Keys::The() {
  static Held_Keys keys;
  return keys;
}

// While no window has the keys, nobody is told that one was let go.
void Held_Keys::Begin() {
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusWindowChanged, this, [this](const QWindow* now) {
    if (now == nullptr) down_ = shut_out_ = 0;
  });
}

// A key passes here several times: as a question for shortcuts, at the window, at the control and
// at what that one stands in. All but the first of these may come after a handler has run.
bool Held_Keys::eventFilter(QObject* object, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
      if (Is_To_Do_Nothing(static_cast<QKeyEvent&>(*event))) {
        event->accept();  // by which it is no shortcut either
        return true;
      }
      Pressed(*object, static_cast<QKeyEvent&>(*event));
      return false;
    case QEvent::KeyRelease:
      Let_Go(static_cast<QKeyEvent&>(*event));
      return false;
    case QEvent::MouseButtonPress:  // a box that comes up now was not brought by a key
      down_ = 0;
      return false;
    default:
      return false;
  }
}

bool Held_Keys::Is_To_Do_Nothing(const QKeyEvent& event) const {
  if (Box_Is_Up() && event.key() == shut_out_) return true;
  if (!event.isAutoRepeat()) return false;
  if ((event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return true;
  if (Is_Among_Choices()) return !Moves(event.key());
  return Decides(event.key()) && !May_Repeat(event);
}

// Lines and blanks are typed, and a list takes its entries one after another, where the key went
// down: what it moved the focus to is not meant.
bool Held_Keys::May_Repeat(const QKeyEvent& event) const {
  const QWidget* focus = QApplication::focusWidget();
  if (focus != at_ || (event.modifiers() & Qt::ControlModifier) != 0) return false;
  if (event.key() == Qt::Key_Escape) return false;
  if (qobject_cast<const QPlainTextEdit*>(focus) != nullptr) return true;
  if (event.key() == Qt::Key_Space) return qobject_cast<const QLineEdit*>(focus) != nullptr;
  const auto* list = dynamic_cast<List_Box*>(Focus_Watch::The().Control_Of(focus));
  return list != nullptr && list->Enter_Pressed != nullptr;
}

void Held_Keys::Pressed(const QObject& object, const QKeyEvent& event) {
  QWidget* focus = QApplication::focusWidget();
  if (event.isAutoRepeat() || (object.isWidgetType() && &object != focus)) return;
  down_ = event.key();
  at_ = focus;
}

void Held_Keys::Let_Go(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return;
  if (event.key() == down_) down_ = 0;
  if (event.key() == shut_out_) shut_out_ = 0;
}

}  // namespace Forms
