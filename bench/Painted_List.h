// When a list of a certain name has been painted with all its rows, and clicks on it.
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeView>

#include "bench/Measuring.h"

class Paint_Watch : public QObject {
 public:
  Paint_Watch(const char* list, int rows) : list_(list), rows_(rows) {
    qApp->installEventFilter(this);
  }
  bool Painted() const { return painted_; }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    const auto* view = qobject_cast<QAbstractItemView*>(object->parent());
    painted_ = painted_ || (view != nullptr && view->viewport() == object &&
                            view->objectName() == list_ && view->model()->rowCount() == rows_);
    return false;
  }

 private:
  QString list_;
  int rows_;
  bool painted_ = false;
};

/// From the start of `work` to the end of the paint of the list, in milliseconds.
template <class Work>
double Until_Painted(const char* list, int rows, const Work& work) {
  const Paint_Watch watch(list, rows);
  return Milliseconds([&] {
    work();
    while (!watch.Painted()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  });
}

/// Lets all events that are due happen.
inline void Settle_Events() {
  for (int i = 0; i < 10; ++i) QApplication::processEvents();
}

/// Press and release of the left button, as they come from the window.
inline void Click_At(QWidget& widget, QPoint place) {
  const QPointF global = widget.mapToGlobal(place);
  QMouseEvent press(QEvent::MouseButtonPress, place, global, Qt::LeftButton, Qt::LeftButton, {});
  QApplication::sendEvent(&widget, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, place, global, Qt::LeftButton, {}, {});
  QApplication::sendEvent(&widget, &release);
}

inline void Click_Header(const QTreeView& list, int column) {
  const QHeaderView& header = *list.header();
  const int middle = header.sectionViewportPosition(column) + header.sectionSize(column) / 2;
  Click_At(*header.viewport(), {middle, header.height() / 2});
}
