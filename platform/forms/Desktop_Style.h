// The desktop's own style, with the fields of our forms painted by this house. For the sources of
// this room only.
#pragma once

#include <QProxyStyle>

namespace Forms {

class Desktop_Style : public QProxyStyle {
 public:
  Desktop_Style();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  using QProxyStyle::polish;
  void polish(QPalette& theme) override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;

  /// Another theme was chosen while the program runs.
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Paint_Check_Box(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
  void Paint_Combo_Box(const QStyleOptionComplex& option, QPainter& painter,
                       const QWidget* widget) const;
  void Paint_Combo_Label(const QStyleOption& option, QPainter& painter,
                         const QWidget* widget) const;
};

}  // namespace Forms
