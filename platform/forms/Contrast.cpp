#include "platform/forms/Contrast.h"

#include <algorithm>
#include <cmath>

namespace Forms {

namespace {

double Linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return (0.2126 * Linear(color.redF())) + (0.7152 * Linear(color.greenF())) +
         (0.0722 * Linear(color.blueF()));
}

}  // namespace

double Contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor Mixed(const QColor& ground, const QColor& more, double share) {
  const auto mean = [share](int below, int above) {
    return static_cast<int>(std::lround(below + ((above - below) * share)));
  };
  return {mean(ground.red(), more.red()), mean(ground.green(), more.green()),
          mean(ground.blue(), more.blue())};
}

QColor Readable_On(const QColor& ground, const QColor& wanted) {
  if (Contrast(ground, wanted) >= Contrast_Of_Text) return wanted;
  return Contrast(ground, Qt::black) > Contrast(ground, Qt::white) ? Qt::black : Qt::white;
}

QColor Outline_Of(const QColor& ground, const QColor& ink, const QColor& beside) {
  constexpr int steps = 40;
  constexpr double margin = 1.05;  // lines of one pixel lose some of it where they are rounded
  for (int step = 1; step < steps; ++step) {
    const QColor shade = Mixed(ground, ink, static_cast<double>(step) / steps);
    const double least = std::min(Contrast(shade, ground), Contrast(shade, beside));
    if (least >= Contrast_Of_Shapes * margin) return shade;
  }
  return ink;
}

}  // namespace Forms
