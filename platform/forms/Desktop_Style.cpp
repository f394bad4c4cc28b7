#include "platform/forms/Desktop_Style.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QTreeView>

#include "platform/forms/Control.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Look.h"

namespace Forms {

namespace {

constexpr int arrow_room = 20;

bool Has_Focus(const QStyleOption& option) { return option.state & QStyle::State_HasFocus; }

/// A list or a box of several lines that is a control of a form.
const Placed_Control* Area_Of(const QWidget* widget) {
  if (qobject_cast<const QAbstractScrollArea*>(widget) == nullptr) return nullptr;
  return Control_Shown_By(widget);
}

bool Is_Locked_List(const QWidget* widget) {
  const Placed_Control* list = Area_Of(widget);
  return list != nullptr && list->BackColor() == Locked_Color;
}

bool Is_Locked(const QWidget* widget) {
  const auto* field = dynamic_cast<const Lockable_Control*>(Control_Shown_By(widget));
  return field != nullptr && field->Locked();
}

}  // namespace

// The frame of a field is painted anew where the focus comes and goes, which the toolkit does not
// see to where the field scrolls.
Desktop_Style::Desktop_Style() {
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [](QWidget* before, QWidget* now) {
    for (QWidget* one : {before, now}) {
      if (Area_Of(one) != nullptr) one->update();
    }
  });
}

void Desktop_Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit:
      if (const Placed_Control* box = Control_Shown_By(widget)) {
        const Field_Look look = Look_Of(*box, option->palette);
        Paint_Field(*painter, option->rect, look, Has_Focus(*option));
        if (look.locked) {
          const QRect end = option->rect.adjusted(option->rect.width() - Lock_Room - 2, 0, -2, 0);
          Paint_Lock(*painter, end, look.ink);
        }
        return;
      }
      break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
      Paint_Tick_Box(*painter, option->rect, QApplication::palette(widget),
                     option->state & State_On);
      return;
    case PE_FrameFocusRect:
      if (qobject_cast<const QAbstractButton*>(widget) != nullptr && Control_Shown_By(widget))
        return;
      break;
    case PE_PanelItemViewRow:
      if (Area_Of(widget) != nullptr) {
        const auto& row = *static_cast<const QStyleOptionViewItem*>(option);
        const bool alternate = row.features & QStyleOptionViewItem::Alternate;
        const bool locked = Is_Locked_List(widget);
        if (alternate || locked) {
          painter->fillRect(row.rect, Row_Ground(row.palette, alternate, locked));
        }
        return;
      }
      break;
    case PE_PanelItemViewItem:
      if (qobject_cast<const QListView*>(widget) != nullptr && Is_Locked_List(widget)) {
        painter->fillRect(option->rect, Row_Ground(option->palette, false, true));
      }
      break;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Desktop_Style::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  const Placed_Control* control = Control_Shown_By(widget);
  if (control == nullptr) {
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_MenuBarItem && (option->state & State_Selected) && widget->hasFocus())
      Paint_Ring(*painter, option->rect, option->palette.highlight().color());
    return;
  }
  switch (element) {
    case CE_ShapedFrame:
      if (Area_Of(widget) == nullptr) break;
      return Paint_Field(*painter, option->rect, Look_Of(*control, QApplication::palette(widget)),
                         Has_Focus(*option));
    case CE_CheckBox:
      return Paint_Check_Box(*option, *painter, widget);
    case CE_ComboBoxLabel:
      return Paint_Combo_Label(*option, *painter, widget);
    case CE_PushButtonBevel:
      if (control->BackColor().of_the_theme) break;
      return Paint_Field(*painter, option->rect, Look_Of(*control, option->palette), false);
    case CE_PushButton:
      QProxyStyle::drawControl(element, option, painter, widget);
      if (Has_Focus(*option))
        Paint_Ring(*painter, option->rect, option->palette.highlight().color());
      return;
    default:
      break;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void Desktop_Style::Paint_Check_Box(const QStyleOption& option, QPainter& painter,
                                    const QWidget* widget) const {
  QStyleOptionButton part(static_cast<const QStyleOptionButton&>(option));
  const Placed_Control& box = *Control_Shown_By(widget);
  const bool plain = box.BackColor().of_the_theme;
  const Field_Look look = Look_Of(box, option.palette);
  if (!plain) Paint_Ground(painter, option.rect, look);
  part.rect = proxy()->subElementRect(SE_CheckBoxIndicator, &option, widget);
  proxy()->drawPrimitive(PE_IndicatorCheckBox, &part, &painter, widget);
  part.rect = proxy()->subElementRect(SE_CheckBoxContents, &option, widget);
  // Some styles paint the caption in a colour of their own, whatever lies behind it.
  const bool underlines = proxy()->styleHint(SH_UnderlineShortcut, &option, widget, nullptr) != 0;
  painter.setPen(plain ? option.palette.color(QPalette::WindowText) : look.ink);
  painter.drawText(part.rect,
                   static_cast<int>(visualAlignment(option.direction, Qt::AlignLeft)) |
                       Qt::AlignVCenter |
                       (underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                   part.text);
  if (Has_Focus(option)) Paint_Ring(painter, option.rect, option.palette.highlight().color());
}

void Desktop_Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
  if (control == CC_ComboBox && Control_Shown_By(widget) != nullptr) {
    Paint_Combo_Box(*option, *painter, widget);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

void Desktop_Style::Paint_Combo_Box(const QStyleOptionComplex& option, QPainter& painter,
                                    const QWidget* widget) const {
  const Field_Look look = Look_Of(*Control_Shown_By(widget), option.palette);
  Paint_Field(painter, option.rect, look, Has_Focus(option));
  const QRect end = proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
  if (look.locked) Paint_Lock(painter, end, look.ink);
  if (Is_Locked(widget)) return;
  QStyleOption arrow(option);
  arrow.rect = end.adjusted(5, (end.height() - 10) / 2, -5, -((end.height() - 10) / 2));
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    arrow.palette.setColor(role, look.ink);
  }
  QProxyStyle::drawPrimitive(PE_IndicatorArrowDown, &arrow, &painter, widget);
}

void Desktop_Style::Paint_Combo_Label(const QStyleOption& option, QPainter& painter,
                                      const QWidget* widget) const {
  const auto& combo = static_cast<const QStyleOptionComboBox&>(option);
  const QRect place = proxy()->subControlRect(CC_ComboBox, &combo, SC_ComboBoxEditField, widget);
  const QString text =
      combo.fontMetrics.elidedText(combo.currentText, Qt::ElideRight, place.width());
  const Field_Look look = Look_Of(*Control_Shown_By(widget), option.palette);
  painter.setPen(look.ink);
  painter.drawText(place,
                   static_cast<int>(visualAlignment(combo.direction, Qt::AlignLeft) |
                                    Qt::AlignVCenter | Qt::TextSingleLine),
                   text);
}

QRect Desktop_Style::subElementRect(SubElement element, const QStyleOption* option,
                                    const QWidget* widget) const {
  const QRect whole = QProxyStyle::subElementRect(element, option, widget);
  if (Control_Shown_By(widget) == nullptr) return whole;
  switch (element) {
    case SE_LineEditContents: {
      const int end = Is_Locked(widget) ? Lock_Room : Edge_Width;
      return option->rect.adjusted(Leading_Room, Edge_Width, -end, -Edge_Width);
    }
    case SE_ShapedFrameContents:
      if (Area_Of(widget) == nullptr) return whole;
      return option->rect.adjusted(Leading_Room, Edge_Width, -Edge_Width, -Edge_Width);
    case SE_CheckBoxIndicator:
      return whole.translated(Leading_Room, 0);
    case SE_CheckBoxContents:
    case SE_CheckBoxFocusRect:
      return whole.adjusted(Leading_Room, 0, 0, 0);
    default:
      return whole;
  }
}

QRect Desktop_Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl part, const QWidget* widget) const {
  if (control == CC_ComboBox && Control_Shown_By(widget) != nullptr) {
    const QRect& all = option->rect;
    if (part == SC_ComboBoxArrow) {
      return all.adjusted(all.width() - arrow_room, Edge_Width, -Edge_Width, -Edge_Width);
    }
    if (part == SC_ComboBoxEditField) {
      return all.adjusted(Leading_Room + Edge_Width, Edge_Width, -arrow_room, -Edge_Width);
    }
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize Desktop_Style::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& size, const QWidget* widget) const {
  const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
  if (type == CT_CheckBox) return whole + QSize(Leading_Room + Edge_Width, 0);
  // A caption whose letters come from two fonts is measured too narrow, and would be cut.
  if (type == CT_MenuItem) return whole + QSize(option->fontMetrics.averageCharWidth() * 2, 0);
  return whole;
}

// A list that has not the focus, and a window that is not in front, are read all the same.
void Desktop_Style::polish(QPalette& theme) {
  QProxyStyle::polish(theme);
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    theme.setColor(QPalette::Inactive, role, theme.color(QPalette::Active, role));
  }
}

// A combo box opens below itself and scrolls, and does not cover the screen with all its entries.
// Alt alone goes to the menu bar, also in styles that use it for their underlines alone.
int Desktop_Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* data) const {
  if (hint == SH_ComboBox_Popup) return 0;
  if (hint == SH_MenuBar_AltKeyNavigation) return 1;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

bool Desktop_Style::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange && object == qApp) {
    for (const QWidget* widget : QApplication::allWidgets()) {
      if (const Placed_Control* control = Control_Shown_By(widget)) Dress(*control);
    }
  }
  return false;
}

}  // namespace Forms
