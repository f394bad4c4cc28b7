#include "platform/forms/Picture.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>
#include <memory>

#include "platform/forms/Handlers.h"
#include "platform/forms/Qt_Text.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

namespace {

// A photo larger than this is decoded at this size; no desktop shows more of it.
constexpr int largest_side = 4096;

class Picture_Widget : public QLabel {
 public:
  Picture_Widget(QWidget* parent, Picture& picture) : QLabel(parent), picture_(picture) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(16, 16);
  }

  void Empty() {
    drawing_.reset();
    photo_ = QPixmap();
    Changed({});
  }

  bool Load_Drawing(const QString& path) {
    auto drawing = std::make_unique<QSvgRenderer>(path);
    if (!drawing->isValid()) return false;
    drawing_ = std::move(drawing);
    Take_Pixels(path + ".pixels");
    Changed(drawing_->defaultSize());
    return true;
  }

  // A rich drawing takes longer to render than a window to open: one that was rendered when the
  // program was built has its pixels beside it.
  void Take_Pixels(const QString& path) {
    const QResource pixels(path);
    const QSize size = drawing_->defaultSize();
    if (!pixels.isValid() || pixels.size() != qint64{4} * size.width() * size.height()) return;
    photo_ = QPixmap::fromImage(QImage(pixels.data(), size.width(), size.height(),
                                       qsizetype{4} * size.width(),
                                       QImage::Format_ARGB32_Premultiplied));
  }

  bool Load_Photo(const QString& path) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (qMax(size.width(), size.height()) > largest_side) {
      reader.setScaledSize(size.scaled(largest_side, largest_side, Qt::KeepAspectRatio));
    }
    const QImage image = reader.read();
    if (image.isNull()) return false;
    photo_ = QPixmap::fromImage(image);
    Changed(photo_.size());
    return true;
  }

  bool Is_Empty() const { return natural_size_.isEmpty(); }
  QSize sizeHint() const override { return Is_Empty() ? QSize(120, 90) : natural_size_; }
  QSize minimumSizeHint() const override { return {16, 16}; }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    if (Is_Empty()) return;
    QSize shown = natural_size_;
    if (shown.width() > width() || shown.height() > height()) {
      shown.scale(size(), Qt::KeepAspectRatio);
    }
    const QRect place(QPoint((width() - shown.width()) / 2, (height() - shown.height()) / 2),
                      shown);
    QPainter(this).drawPixmap(place, Scaled_To(shown));
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) Raise(picture_, picture_.Click);
  }

 private:
  void Changed(QSize natural_size) {
    natural_size_ = natural_size;
    scaled_ = QPixmap();
    updateGeometry();
    update();
  }

  // Made once for each size: rendering takes its time, and the painter's own scaling is rough.
  const QPixmap& Scaled_To(QSize shown) {
    const QSize dots = shown * devicePixelRatioF();
    if (scaled_.size() != dots) scaled_ = Has_Image_For(dots) ? Scaled_Photo(dots) : Rendered(dots);
    return scaled_;
  }

  bool Has_Image_For(QSize dots) const {
    return drawing_ == nullptr ||
           (photo_.width() >= dots.width() && photo_.height() >= dots.height());
  }

  QPixmap Scaled_Photo(QSize dots) const {
    return photo_.size() == dots
               ? photo_
               : photo_.scaled(dots, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }

  QPixmap Rendered(QSize dots) {
    QPixmap image(dots);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing_->render(&painter);
    return image;
  }

  Picture& picture_;
  std::unique_ptr<QSvgRenderer> drawing_;
  QPixmap photo_;
  QPixmap scaled_;
  QSize natural_size_;
};

Picture_Widget& Widget_Of(const Picture& picture) {
  return *static_cast<Picture_Widget*>(picture.Widget());
}

}  // namespace

Picture::Picture(Form& form, std::string_view name, std::string_view caption)
    : Placed_Control(form, name, caption) {
  Set_Widget(new Picture_Widget(Widget_Parent(), *this));
}

Picture::~Picture() = default;

void Picture::Set_Picture(std::string_view path) {
  Widget_Of(*this).Empty();
  if (path.empty()) return;
  const QFileInfo file(To_Qt(path));
  if (!file.dir().exists()) Fail(Failure::Path_Not_Found);
  if (!file.isFile()) Fail(Failure::File_Not_Found);
  const bool shown = file.suffix().compare("svg", Qt::CaseInsensitive) == 0
                         ? Widget_Of(*this).Load_Drawing(file.filePath())
                         : Widget_Of(*this).Load_Photo(file.filePath());
  if (!shown) Fail(Failure::Invalid_Picture);
}

bool Picture::Is_Empty() const { return Widget_Of(*this).Is_Empty(); }

}  // namespace Forms
