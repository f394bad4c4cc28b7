#include "platform/forms/Word_Tip.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QToolTip>
#include <algorithm>
#include <array>

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

// Whether the label would stand outside its window there, or behind the open list of a combo box.
bool Is_Out_Of_Sight(const QLabel& label, QPoint place) {
  const QWidget& window = *label.parentWidget();
  if (!window.rect().contains(QRect(place, label.size()))) return true;
  const QWidget* popup = QApplication::activePopupWidget();
  const QRect seen(window.mapToGlobal(place), label.size());
  return popup != nullptr && popup->geometry().intersects(seen);
}

// Above the list, where it hides none of the entries, at the end that captions leave free; or as
// near as there is room.
QPoint Place_Of(const QLabel& label, const QWidget& list) {
  const QRect at(list.mapTo(list.window(), QPoint(0, 0)), list.size());
  const int left = std::max(std::min(at.right(), list.window()->width()) - label.width(), 0);
  const std::array places{QPoint(left, at.top() - label.height()), QPoint(left, at.bottom() + 1),
                          QPoint(at.right() + 1, at.top()),
                          QPoint(at.left() - label.width(), at.top())};
  const auto seen = std::ranges::find_if(
      places, [&label](QPoint place) { return !Is_Out_Of_Sight(label, place); });
  return seen == places.end() ? QPoint(left, at.top()) : *seen;
}

void Say(QLabel& label, const QWidget& list, const QString& text) {
  label.setText(text);
  label.resize(label.sizeHint().boundedTo(list.window()->size()));
  label.move(Place_Of(label, list));
  label.raise();
  label.show();
}

}  // namespace

void Show(QWidget& list, const QString& text) {
  QPointer<QLabel>& label = The_Label();
  if (label == nullptr || label->parentWidget() != list.window()) {
    delete label;
    label = New_Label(list);
  }
  label->setProperty("list", QVariant::fromValue<const QObject*>(&list));
  Say(*label, list, text);
}

void Add(QWidget& list, const QString& line) {
  QLabel* label = The_Label();
  if (label != nullptr && !line.isEmpty()) Say(*label, list, label->text() + '\n' + line);
}

void Hide(const QWidget& list) {
  const QLabel* label = The_Label();
  if (label != nullptr && label->property("list").value<const QObject*>() == &list) {
    delete The_Label();
  }
}

}  // namespace Forms::Word_Tip
