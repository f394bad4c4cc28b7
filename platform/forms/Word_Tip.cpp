#include "platform/forms/Word_Tip.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QToolTip>
#include <algorithm>

namespace Forms::Word_Tip {

namespace {

QPointer<QLabel>& The_Label() {
  static QPointer<QLabel> label;
  return label;
}

QLabel* New_Label(QWidget& list) {
  auto* label = new QLabel(list.window());
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  label->setPalette(QToolTip::palette());
  label->setBackgroundRole(QPalette::ToolTipBase);
  label->setForegroundRole(QPalette::ToolTipText);
  label->setAutoFillBackground(true);
  label->setFrameShape(QFrame::Box);
  label->setMargin(2);
  return label;
}

// Whether the label would stand there outside its window, or behind the open list of a combo box.
bool Is_Out_Of_Sight(const QLabel& label, QPoint place) {
  if (place.y() < 0) return true;
  const QWidget* popup = QApplication::activePopupWidget();
  const QRect seen(label.parentWidget()->mapToGlobal(place), label.size());
  return popup != nullptr && popup->geometry().intersects(seen);
}

// Above the list, where it hides none of the entries, at the end that captions leave free.
QPoint Place_Of(const QLabel& label, const QWidget& list) {
  const QWidget& window = *list.window();
  const QPoint top = list.mapTo(&window, QPoint(0, 0));
  const int rightmost = std::min(top.x() + list.width(), window.width()) - label.width();
  const QPoint above(std::max(rightmost, 0), top.y() - label.height());
  if (!Is_Out_Of_Sight(label, above)) return above;
  return {above.x(), std::min(top.y() + list.height(), window.height() - label.height())};
}

}  // namespace

void Show(QWidget& list, const QString& text) {
  QPointer<QLabel>& label = The_Label();
  if (label == nullptr || label->parentWidget() != list.window()) {
    delete label;
    label = New_Label(list);
  }
  label->setProperty("list", QVariant::fromValue<const QObject*>(&list));
  label->setText(text);
  label->resize(label->sizeHint().boundedTo(list.window()->size()));
  label->move(Place_Of(*label, list));
  label->raise();
  label->show();
}

void Hide(const QWidget& list) {
  const QLabel* label = The_Label();
  if (label != nullptr && label->property("list").value<const QObject*>() == &list) {
    delete The_Label();
  }
}

}  // namespace Forms::Word_Tip
