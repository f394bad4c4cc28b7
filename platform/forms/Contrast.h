// How well two colours can be told apart, as guidelines for accessible screens measure it. For the
// sources of this room and the tests.
#pragma once

#include <QColor>

namespace Forms {

/// What must be read stands out by this much; what must only be seen, as an outline or a tick, by
/// that much.
inline constexpr double Contrast_Of_Text = 7.0;
inline constexpr double Contrast_Of_Shapes = 3.0;

/// From 1, the same, to 21, black on white.
double Contrast(const QColor& a, const QColor& b);

/// `share` parts of `more` (0 to 1) on `ground`.
QColor Mixed(const QColor& ground, const QColor& more, double share);

/// `wanted` if it can be read on `ground`, else black or white, whichever can be read better.
QColor Readable_On(const QColor& ground, const QColor& wanted);

/// The quietest shade between `ground` and `ink` that stands out from `ground` and from `beside`.
QColor Outline_Of(const QColor& ground, const QColor& ink, const QColor& beside);

}  // namespace Forms
