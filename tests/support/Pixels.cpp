#include "tests/support/Pixels.h"

#include "platform/forms/Contrast.h"

Pixels::Pixels(const QImage& window, const QRect& field, const QRect& content_place) {
  const int middle = field.center().y();
  outline = window.pixelColor(field.left(), middle);
  edge = window.pixelColor(field.left() + 3, middle);
  ground = window.pixelColor(content_place.topLeft());
  content = ground;
  for (int y = content_place.top(); y <= content_place.bottom(); ++y) {
    for (int x = content_place.left(); x <= content_place.right(); ++x) {
      const QColor pixel = window.pixelColor(x, y);
      if (pixel == ground || pixel == content) continue;
      if (Forms::Contrast(pixel, ground) > Contrast_Of_Content()) content = pixel;
    }
  }
}

double Pixels::Contrast_Of_Outline() const { return Forms::Contrast(outline, ground); }

double Pixels::Contrast_Of_Content() const { return Forms::Contrast(content, ground); }
