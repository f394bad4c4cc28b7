// What stands out on a picture of a window, for tests of what can be seen.
#pragma once

#include <QImage>
#include <QRect>

/// Of a field or a tick box: its outline, its leading edge, the ground inside, and the pixel of its
/// content that stands out most.
struct Pixels {
  /// `field` lies within `window`, and so does `content` within `field`.
  Pixels(const QImage& window, const QRect& field, const QRect& content);

  double Contrast_Of_Outline() const;
  double Contrast_Of_Content() const;

  QColor outline, edge, ground, content;
};
