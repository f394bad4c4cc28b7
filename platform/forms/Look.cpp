#include "platform/forms/Look.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTreeView>
#include <algorithm>

#include "platform/forms/Contrast.h"
#include "platform/forms/Control.h"
#include "platform/forms/Focus.h"

namespace Forms {

namespace {

constexpr double tint = 0.12;
constexpr double placeholder = 0.7;
constexpr double corner = 3;
constexpr const char* lock_name = "Lock_Mark";

QColor To_Color(Color color) { return {color.red, color.green, color.blue}; }

QColor Tinted(const QColor& ground) { return Mixed(ground, To_Color(Locked_Color), tint); }

QPainterPath Rounded(const QRect& rect, double inset) {
  QPainterPath path;
  path.addRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), corner, corner);
  return path;
}

// What is disabled is pale by intent.
QColor Ink_On(const QColor& ground, const QPalette& theme) {
  const QColor text = theme.color(QPalette::Text);
  return theme.currentColorGroup() == QPalette::Disabled ? text : Readable_On(ground, text);
}

/// The lock of a field that scrolls: it stays in the corner, above what is scrolled.
class Lock_Mark : public QWidget {
 public:
  explicit Lock_Mark(QAbstractScrollArea& area) : QWidget(&area), area_(area) {
    setObjectName(lock_name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    area.viewport()->installEventFilter(this);
    Go_To_Corner();
    show();
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) Go_To_Corner();
    return false;
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const bool on_band = width() == Leading_Room;
    const QColor ink = palette().color(QPalette::Text);
    QPainter painter(this);
    Paint_Lock(painter, rect(), on_band ? Readable_On(To_Color(Locked_Color), ink) : ink);
  }

 private:
  // The last line of a table has a text in its corner: the lock is beside the headings there.
  void Go_To_Corner() {
    const QRect place = area_.viewport()->geometry();
    if (qobject_cast<const QTreeView*>(&area_) != nullptr) {
      setGeometry(0, Edge_Width, Leading_Room, place.top() - Edge_Width);
    } else {
      setGeometry(place.right() - Lock_Room, place.bottom() - Lock_Room, Lock_Room, Lock_Room);
    }
  }

  QAbstractScrollArea& area_;
};

void Show_Lock_Mark(QAbstractScrollArea& area, bool locked) {
  auto* mark = area.findChild<QWidget*>(lock_name, Qt::FindDirectChildrenOnly);
  if (locked && mark == nullptr) new Lock_Mark(area);
  if (!locked) delete mark;
}

// The parts that the toolkit paints out of the widget's palette, without asking the style: the text
// of boxes and lists, and the ground behind it.
QPalette Palette_Of(const QWidget& widget, const Field_Look& look, bool full_ground) {
  QPalette palette;
  // A locked list stays to be read, disabled too.
  const QColor faded = look.locked ? look.ink : Mixed(look.ground, look.ink, 0.5);
  for (const auto role : {QPalette::Text, QPalette::WindowText}) {
    palette.setColor(role, look.ink);
    palette.setColor(QPalette::Disabled, role, faded);
  }
  palette.setColor(QPalette::PlaceholderText, Mixed(look.ground, look.ink, placeholder));
  if (!full_ground) return palette;
  palette.setColor(QPalette::Base, look.ground);
  palette.setColor(QPalette::AlternateBase, Mixed(look.ground, look.ink, 0.04));
  if (qobject_cast<const QLabel*>(&widget) != nullptr) {
    palette.setColor(QPalette::Window, look.ground);
  }
  return palette;
}

}  // namespace

const Placed_Control* Control_Shown_By(const QWidget* widget) {
  const Placed_Control* control = Focus_Watch::The().Control_Of(widget);
  return control != nullptr && control->Widget() == widget ? control : nullptr;
}

Field_Look Look_Of(const Placed_Control& control, const QPalette& theme) {
  const Color back = control.BackColor();
  const Color fore = control.ForeColor();
  Field_Look look;
  look.locked = back == Locked_Color;
  const bool quiet = look.locked || back.of_the_theme;
  look.ground = quiet ? theme.color(QPalette::Base) : To_Color(back);
  if (look.locked) look.ground = Tinted(look.ground);
  look.ink = fore.of_the_theme ? Ink_On(look.ground, theme) : To_Color(fore);
  const QColor beside = quiet ? theme.color(QPalette::Window) : look.ground;
  look.outline = Outline_Of(look.ground, look.ink, beside);
  if (control.Stand_In()) look.ink = Mixed(look.ground, look.ink, placeholder);
  look.ring = theme.color(QPalette::Highlight);
  return look;
}

// Some dark themes forget the other rows, which would be white under white texts.
QColor Row_Ground(const QPalette& colors, bool alternate, bool locked) {
  const QColor base = colors.color(QPalette::Base);
  const QColor text = colors.color(QPalette::Text);
  QColor ground = alternate ? colors.color(QPalette::AlternateBase) : base;
  const double enough = std::min(Contrast_Of_Text, Contrast(base, text) * 0.8);
  if (Contrast(ground, text) < enough) ground = Mixed(base, text, 0.05);
  return locked ? Tinted(ground) : ground;
}

void Paint_Ground(QPainter& painter, const QRect& rect, const Field_Look& look) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QPainterPath shape = Rounded(rect, 0.5);
  if (look.locked) {
    painter.fillPath(shape, To_Color(Locked_Color));
    const QRect beside_band = rect.adjusted(1 + Band_Width, 0, 0, 0);
    painter.setClipRect(QStyle::visualRect(painter.layoutDirection(), rect, beside_band));
  }
  painter.fillPath(shape, look.ground);
  painter.restore();
}

void Paint_Field(QPainter& painter, const QRect& rect, const Field_Look& look, bool focused) {
  Paint_Ground(painter, rect, look);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.strokePath(Rounded(rect, 0.5), QPen(look.outline, 1));
  painter.restore();
  if (focused) Paint_Ring(painter, rect.adjusted(1, 1, -1, -1), look.ring);
}

void Paint_Ring(QPainter& painter, const QRect& rect, const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.strokePath(Rounded(rect, 1), QPen(color, 2));
  painter.restore();
}

void Paint_Lock(QPainter& painter, const QRect& rect, const QColor& ink) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(QRectF(rect).center() - QPointF(3.5, 5));
  painter.setOpacity(0.6);
  painter.fillRect(QRectF(0, 4, 7, 5.5), ink);
  QPainterPath shackle(QPointF(1.5, 4));
  shackle.arcTo(QRectF(1.5, 0.5, 4, 5), 180, -180);
  shackle.lineTo(5.5, 4);
  painter.strokePath(shackle, QPen(ink, 1.2));
  painter.restore();
}

void Paint_Tick_Box(QPainter& painter, const QRect& rect, const QPalette& theme, bool ticked) {
  const QColor ground = theme.color(QPalette::Base);
  const QColor ink = Readable_On(ground, theme.color(QPalette::Text));
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QPainterPath shape = Rounded(rect, 0.5);
  painter.fillPath(shape, ground);
  painter.strokePath(shape, QPen(Outline_Of(ground, ink, theme.color(QPalette::Window)), 1));
  if (ticked) {
    QPainterPath tick;
    const QRectF box(rect);
    tick.moveTo(box.left() + (box.width() * 0.22), box.top() + (box.height() * 0.52));
    tick.lineTo(box.left() + (box.width() * 0.43), box.top() + (box.height() * 0.73));
    tick.lineTo(box.left() + (box.width() * 0.79), box.top() + (box.height() * 0.27));
    painter.strokePath(tick, QPen(ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
  painter.restore();
}

void Dress(const Placed_Control& control) {
  QWidget& widget = *control.Widget();
  auto* area = qobject_cast<QAbstractScrollArea*>(&widget);
  const Field_Look look = Look_Of(control, QApplication::palette(&widget));
  if (area != nullptr) Show_Lock_Mark(*area, look.locked);
  const bool plain = control.BackColor().of_the_theme && control.ForeColor().of_the_theme;
  // Below the last row of a locked list there is nothing to be tinted.
  const bool sheet = qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
  const bool full_ground = !control.BackColor().of_the_theme && (!look.locked || sheet);
  const bool paints_itself = area != nullptr ||
                             qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                             qobject_cast<const QLabel*>(&widget) != nullptr;
  if (paints_itself && !plain) {
    widget.setPalette(Palette_Of(widget, look, full_ground));
  } else if (widget.testAttribute(Qt::WA_SetPalette)) {
    widget.setPalette({});
  }
  if (qobject_cast<const QLabel*>(&widget) != nullptr) widget.setAutoFillBackground(full_ground);
  widget.update();
}

}  // namespace Forms
