#include "platform/forms/Look.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <QWidget>

namespace Forms {

namespace {

constexpr int mark_size = 8;
constexpr const char* mark_name = "State_Mark";

QString Css(Color color) {
  return QString("rgb(%1, %2, %3)").arg(color.red).arg(color.green).arg(color.blue);
}

Color Mixed(Color a, Color b) {
  const auto mean = [](int x, int y) { return static_cast<std::uint8_t>((x + y) / 2); };
  return {mean(a.red, b.red), mean(a.green, b.green), mean(a.blue, b.blue)};
}

// A corner, for those who do not see the colour: filled where something is to be done, an outline
// where nothing can be.
class State_Mark : public QWidget {
 public:
  explicit State_Mark(QWidget* parent) : QWidget(parent) {
    setObjectName(mark_name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedSize(mark_size, mark_size);
    move(1, 1);
  }
  void Set_Filled(bool filled) {
    filled_ = filled;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainterPath corner;
    corner.moveTo(0, 0);
    corner.lineTo(mark_size - 1, 0);
    corner.lineTo(0, mark_size - 1);
    corner.closeSubpath();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(64, 0, 32));
    if (filled_) painter.setBrush(QColor(64, 0, 32));
    painter.drawPath(corner);
  }

 private:
  bool filled_ = false;
};

void Show_Mark(QWidget* widget, Color back) {
  auto* mark =
      static_cast<State_Mark*>(widget->findChild<QWidget*>(mark_name, Qt::FindDirectChildrenOnly));
  const bool filled = back == Required_Color || back == Active_List_Color;
  if (!filled && back != Locked_Color) {
    delete mark;
    return;
  }
  if (mark == nullptr) mark = new State_Mark(widget);
  mark->Set_Filled(filled);
  mark->raise();
  mark->show();
}

QString Border(Color back) {
  if (back == Required_Color) return "2px solid rgb(128, 0, 0)";
  if (back == Active_List_Color) return "2px solid rgb(0, 96, 0)";
  if (back == Locked_Color) return "1px dashed rgb(128, 64, 128)";
  return "1px solid " + Css(Mixed(back, {96, 96, 96}));
}

QString Sheet(const QWidget* widget, Color back, Color fore) {
  const QString self =
      QString("%1#%2").arg(widget->metaObject()->className(), widget->objectName());
  if (back.of_the_theme) return QString("%1 { color: %2; }").arg(self, Css(fore));
  const Color ink = fore.of_the_theme ? Readable_On(back) : fore;
  QString sheet = QString("%1 { background-color: %2; color: %3;").arg(self, Css(back), Css(ink));
  const bool tick_box = qobject_cast<const QCheckBox*>(widget) != nullptr;
  if (qobject_cast<const QAbstractItemView*>(widget) != nullptr) {
    sheet += QString(" alternate-background-color: %1; border: %2;").arg(Css(back), Border(back));
  } else if (tick_box) {
    sheet += " border-radius: 3px; padding: 1px 4px;";
  } else if (widget->focusPolicy() != Qt::NoFocus) {
    sheet += QString(" border: %1; border-radius: 3px; padding: 1px 4px;").arg(Border(back));
  }
  sheet += QString(" } %1:disabled { color: %2; }").arg(self, Css(Mixed(ink, back)));
  if (!tick_box) sheet += QString(" %1:focus { border: 2px solid palette(highlight); }").arg(self);
  return sheet;
}

}  // namespace

Color Readable_On(Color back) {
  const int brightness = back.red * 299 + back.green * 587 + back.blue * 114;
  return brightness > 128000 ? Color{0, 0, 0} : Color{255, 255, 255};
}

void Dress(QWidget* widget, Color back, Color fore) {
  const bool plain = back.of_the_theme && fore.of_the_theme;
  const QString sheet = plain ? QString() : Sheet(widget, back, fore);
  if (sheet != widget->styleSheet()) widget->setStyleSheet(sheet);
  Show_Mark(widget, back);
}

}  // namespace Forms
