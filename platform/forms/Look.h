// How the fields of a form are painted: the same under every style of the desktop, in the colours
// of its theme. For the sources of this room only.
#pragma once

#include <QColor>

#include "platform/forms/Colors.h"

class QPainter;
class QPalette;
class QRect;
class QWidget;

namespace Forms {

class Placed_Control;

/// At the leading edge of every field there is room for the band of a locked one, so that nothing
/// moves when it is locked or opened.
inline constexpr int Edge_Width = 3;  ///< the outline, and inside it the ring of the focus
inline constexpr int Band_Width = 5;
inline constexpr int Leading_Room = Edge_Width + Band_Width;
inline constexpr int Lock_Room = 14;  ///< of the small lock, at the other end

struct Field_Look {
  QColor ground;
  QColor ink;
  QColor outline;
  QColor ring;          ///< what surrounds it while it has the focus
  bool locked = false;  ///< with a band and a lock
};

/// The control whose widget this is, not one that contains it; nullptr for others.
const Placed_Control* Control_Shown_By(const QWidget* widget);
/// What the control's colours are in this theme. Those that ask for something are shown as they
/// are; the one of locked fields tints the theme's own.
Field_Look Look_Of(const Placed_Control& control, const QPalette& theme);
/// The ground of a list's rows, or of every other one of them.
QColor Row_Ground(const QPalette& colors, bool alternate, bool locked);

/// What lies behind a control, without an outline.
void Paint_Ground(QPainter& painter, const QRect& rect, const Field_Look& look);
/// The ground with its outline, and inside that the ring of the field that has the focus.
void Paint_Field(QPainter& painter, const QRect& rect, const Field_Look& look, bool focused);
void Paint_Ring(QPainter& painter, const QRect& rect, const QColor& color);
/// A small lock in the middle of `rect`.
void Paint_Lock(QPainter& painter, const QRect& rect, const QColor& ink);
/// On the theme's ground whatever lies behind it.
void Paint_Tick_Box(QPainter& painter, const QRect& rect, const QPalette& theme, bool ticked);

/// The control's colours have changed, or the theme's: what its widget paints by itself follows.
void Dress(const Placed_Control& control);

}  // namespace Forms
