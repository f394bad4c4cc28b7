#include "platform/forms/Place_Sizes.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPushButton>
#include <QWidgetItem>
#include <algorithm>

#include "platform/forms/Cut_Text.h"
#include "platform/forms/Place_Data.h"

namespace Forms {

namespace {

constexpr int least_characters = 9;
constexpr int beside_text = 2;  ///< characters' width that a frame and its margins take
constexpr int frame_height = 8;

/// Asks for a size of its own; where a side of that is 0, for what the widget asks for. A button is
/// no wider than that, and no narrower than its caption of the moment.
class Sized_Item : public QWidgetItem {
 public:
  Sized_Item(QWidget& widget, QSize wish)
      : QWidgetItem(&widget),
        wish_(wish),
        is_button_(qobject_cast<const QPushButton*>(&widget) != nullptr) {}

  QSize sizeHint() const override {
    if (isEmpty()) return {0, 0};
    const QSize hint = QWidgetItem::sizeHint();
    const QSize least = QWidgetItem::minimumSize();
    return {wish_.width() == 0
                ? hint.width()
                : std::max(wish_.width(), is_button_ ? Width_Of_Caption() : least.width()),
            wish_.height() == 0 ? hint.height() : std::max(wish_.height(), least.height())};
  }
  QSize minimumSize() const override {
    return is_button_ ? sizeHint() : QWidgetItem::minimumSize();
  }
  QSize maximumSize() const override {
    const QSize most = QWidgetItem::maximumSize();
    return is_button_ && wish_.width() > 0 ? QSize(sizeHint().width(), most.height()) : most;
  }

 private:
  // A style may want a button far wider than its caption.
  int Width_Of_Caption() const {
    const auto& button = static_cast<const QPushButton&>(*wid);
    return button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() +
           Width_Of_Characters(button, beside_text);
  }

  QSize wish_;
  bool is_button_;
};

bool Can_Get_Smaller(const QWidget& widget) {
  return qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr;
}

int Height_Of_Lines(const QWidget& widget, int lines) {
  const bool rows = qobject_cast<const QAbstractItemView*>(&widget) != nullptr;
  const int between = rows ? Airy_Rows::air : 1;
  return (lines * (widget.fontMetrics().lineSpacing() + between)) + frame_height;
}

int Limit_Width(const Place_Data& place, QWidget& widget) {
  const int characters = place.characters > 0 ? place.characters + beside_text : 0;
  const int wish = Width_Of_Characters(widget, characters);
  if (Can_Get_Smaller(widget)) {
    const int least = Width_Of_Characters(widget, least_characters + beside_text);
    widget.setMinimumWidth(wish > 0 ? std::min(wish, least) : least);
  }
  return wish;
}

int Limit_Height(const Place_Data& place, QWidget& widget) {
  if (place.lines == 0) return 0;
  const int wish = Height_Of_Lines(widget, place.lines);
  if (place.share > 0) {
    widget.setMinimumHeight(Height_Of_Lines(widget, std::min(place.lines, place.least_lines)));
  } else {
    widget.setFixedHeight(wish);
  }
  return wish;
}

}  // namespace

int Width_Of_Characters(const QWidget& widget, int characters) {
  return characters * widget.fontMetrics().horizontalAdvance('0');
}

QLayoutItem* Item_Of(const Place_Data& place, QWidget& widget) {
  const QSize wish(Limit_Width(place, widget), Limit_Height(place, widget));
  return new Sized_Item(widget, wish);
}

}  // namespace Forms
