// Renders a drawing to bare pixels (four bytes each, blue, green, red, alpha, colours multiplied by
// alpha), for drawings that take longer to render than a window to open:
//   render_drawing DRAWING.svg PIXELS [SIDE]
// in its own size, or in a square of SIDE pixels.
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 3 && arguments.size() != 4) {
    std::fprintf(stderr, "usage: render_drawing DRAWING.svg PIXELS [SIDE]\n");
    return 2;
  }
  QSvgRenderer drawing(arguments[1]);
  if (!drawing.isValid()) {
    std::fprintf(stderr, "%s: no drawing\n", argv[1]);
    return 1;
  }
  const int side = arguments.value(3).toInt();
  const QSize size = side > 0 ? QSize(side, side) : drawing.defaultSize();
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  drawing.render(&painter);
  painter.end();
  QFile pixels(arguments[2]);
  const auto* bytes = reinterpret_cast<const char*>(image.constBits());
  const bool written = pixels.open(QIODevice::WriteOnly) &&
                       pixels.write(bytes, image.sizeInBytes()) == image.sizeInBytes();
  return written ? 0 : 1;
}
