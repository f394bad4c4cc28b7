// What can be read and seen on every screen, in a light and in a dark theme.
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOptionButton>

#include "platform/forms/Contrast.h"
#include "platform/forms/Form_Data.h"
#include "tests/support/Every_Screen.h"
#include "tests/support/Pixels.h"

namespace {

QPalette Dark() {
  QPalette dark(QColor(60, 60, 60), QColor(45, 45, 45));
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  return dark;
}

/// The picture of a window, and what is asked of the controls on it.
class Looked_At {
 public:
  explicit Looked_At(const Forms::Form& form)
      : form_(form), window_(form.Window()->grab().toImage()) {}

  void Expect_Legible() const {
    for (const Forms::Control* control : form_.Data().controls) {
      const auto* placed = dynamic_cast<const Forms::Placed_Control*>(control);
      if (placed == nullptr || !placed->Widget()->isVisible() || !placed->Enabled()) continue;
      SCOPED_TRACE(placed->Name());
      Expect_Legible(placed->Widget());
    }
  }

 private:
  void Expect_Legible(QWidget* widget) const {
    const QRect place(widget->mapTo(form_.Window(), QPoint(0, 0)), widget->size());
    const QRect inside = place.adjusted(9, 5, -20, -5);
    if (const auto* combo = qobject_cast<QComboBox*>(widget)) {
      Expect_Field(place, inside, combo->currentText());
    } else if (const auto* line = qobject_cast<QLineEdit*>(widget)) {
      Expect_Field(place, inside, line->text());
    } else if (qobject_cast<QAbstractScrollArea*>(widget) != nullptr) {
      Expect_Field(place, QRect(place.left() + 7, place.center().y(), 1, 1), {});
    } else if (auto* box = qobject_cast<QCheckBox*>(widget)) {
      Expect_Tick_Box(*box, place);
    } else if (const auto* label = qobject_cast<QLabel*>(widget)) {
      if (!label->text().trimmed().isEmpty()) Expect_Text(place);
    } else if (qobject_cast<QPushButton*>(widget) != nullptr) {
      Expect_Text(place.adjusted(5, 4, -5, -4));
    }
  }

  void Expect_Field(const QRect& place, const QRect& inside, const QString& text) const {
    const Pixels seen(window_, place, inside);
    EXPECT_GE(seen.Contrast_Of_Outline(), Forms::Contrast_Of_Shapes);
    if (text.trimmed().isEmpty()) return;
    EXPECT_GE(seen.Contrast_Of_Content(), Forms::Contrast_Of_Text);
  }

  void Expect_Tick_Box(QCheckBox& box, const QRect& place) const {
    QStyleOptionButton option;
    option.initFrom(&box);
    const QRect tick = box.style()
                           ->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box)
                           .translated(place.topLeft());
    const Pixels seen(window_, tick, tick.adjusted(3, 3, -3, -3));
    EXPECT_GE(seen.Contrast_Of_Outline(), Forms::Contrast_Of_Shapes);
    EXPECT_EQ(seen.Contrast_Of_Content() >= Forms::Contrast_Of_Shapes, box.isChecked());
    Expect_Text(place.adjusted(tick.right() - place.left() + 4, 4, -4, -4));
  }

  void Expect_Text(const QRect& place) const {
    EXPECT_GE(Pixels(window_, place, place).Contrast_Of_Content(), Forms::Contrast_Of_Text);
  }

  const Forms::Form& form_;
  QImage window_;
};

class Legible_Test : public Every_Screen {};

TEST_F(Legible_Test, Texts_outlines_and_ticks_stand_out_on_every_screen_light_and_dark) {
  const QPalette light = QApplication::palette();
  for (const QPalette& theme : {light, Dark()}) {
    QApplication::setPalette(theme);
    Each_Screen(english, "", 9, [](const Forms::Form& form) { Looked_At(form).Expect_Legible(); });
  }
  QApplication::setPalette(light);
}

}  // namespace
