// Renders a drawing in its own size as an image that is not compressed, for drawings that take longer to
// render than a window to open:
//   render_drawing DRAWING.svg IMAGE.png
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 3) {
    std::fprintf(stderr, "usage: render_drawing DRAWING.svg IMAGE.png\n");
    return 2;
  }
  QSvgRenderer drawing(arguments[1]);
  if (!drawing.isValid()) {
    std::fprintf(stderr, "%s: no drawing\n", argv[1]);
    return 1;
  }
  QImage image(drawing.defaultSize(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  drawing.render(&painter);
  painter.end();
  return image.save(arguments[2], "PNG", 100) ? 0 : 1;
}
