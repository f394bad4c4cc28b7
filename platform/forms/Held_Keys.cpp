#include "platform/forms/Held_Keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

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

void Held_Keys::Begin() { qApp->installEventFilter(this); }

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
    default:
      return false;
  }
}

bool Held_Keys::Is_To_Do_Nothing(const QKeyEvent& event) const {
  if (!Is_Repeat(event)) return false;
  if ((event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return true;
  if (Is_Among_Choices()) return !Moves(event.key());
  return Decides(event.key()) && !May_Repeat(event);
}

// A desktop repeats a key by letting it go and pressing it at one and the same moment. The toolkit
// tells so only where it finds both in one go.
bool Held_Keys::Is_Repeat(const QKeyEvent& event) const {
  if (event.isAutoRepeat()) return true;
  return QGuiApplication::platformName() == "xcb" && event.key() == let_go_ &&
         event.timestamp() == when_;
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
  if (Is_Repeat(event) || (object.isWidgetType() && &object != focus)) return;
  at_ = focus;
}

void Held_Keys::Let_Go(const QKeyEvent& event) {
  let_go_ = event.key();
  when_ = event.timestamp();
}

}  // namespace Forms
