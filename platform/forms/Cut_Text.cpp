#include "platform/forms/Cut_Text.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTextDocument>
#include <QToolTip>

#include "platform/forms/Control.h"
#include "platform/forms/Focus.h"

namespace Forms {

namespace {

QString Text_If_Cut(const QWidget& widget, const QString& text, int room) {
  return widget.fontMetrics().horizontalAdvance(text) > room ? text : QString();
}

QString Cut_Cell(const QAbstractItemView& view, QPoint place) {
  const QModelIndex cell = view.indexAt(place);
  const auto* rows = dynamic_cast<const Airy_Rows*>(view.itemDelegate());
  if (!cell.isValid() || rows == nullptr) return {};
  QStyleOptionViewItem option;
  option.initFrom(&view);
  option.font = view.font();
  option.widget = &view;
  const int whole = rows->QStyledItemDelegate::sizeHint(option, cell).width();
  return whole > view.visualRect(cell).width() ? cell.data().toString() : QString();
}

QString Cut_Text_At(const QWidget& widget, QPoint place) {
  if (const auto* view = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
      view != nullptr && view->viewport() == &widget) {
    return Cut_Cell(*view, place);
  }
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return Cut_Choice(*combo);
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
    const int beside = widget.width() - line->contentsRect().width() + 4;
    return Text_If_Cut(*line, line->text(), widget.width() - beside);
  }
  if (const auto* label = qobject_cast<const QLabel*>(&widget); label && !label->wordWrap()) {
    return label->sizeHint().width() > label->width() ? label->text() : QString();
  }
  return {};
}

}  // namespace

QString Cut_Choice(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  option.editable = false;
  const QRect room = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                   QStyle::SC_ComboBoxEditField, &combo);
  return Text_If_Cut(combo, combo.currentText(), room.width());
}

bool Show_Cut_Text(QWidget& widget, const QHelpEvent& event) {
  const Placed_Control* control = Focus_Watch::The().Control_Of(&widget);
  if (control == nullptr) return false;
  const QString cut = Cut_Text_At(widget, event.pos());
  if (cut.isEmpty()) return false;
  QString tip = Qt::convertFromPlainText(cut, Qt::WhiteSpaceNormal);
  if (const QString more = control->Widget()->toolTip(); !more.isEmpty()) {
    tip += Qt::mightBeRichText(more) ? more : Qt::convertFromPlainText(more);
  }
  QToolTip::showText(event.globalPos(), tip, &widget);
  return true;
}

QSize Airy_Rows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSize size = QStyledItemDelegate::sizeHint(option, index);
  const bool is_list = qobject_cast<const QListView*>(option.widget) != nullptr;
  return {is_list ? 1 : size.width(), size.height() + air};
}

void Airy_Rows::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const auto* list = qobject_cast<const QListView*>(option->widget);
  const Placed_Control* control = Focus_Watch::The().Control_Of(list);
  if (control != nullptr && control->Shows_As_Locked() && !list->hasFocus()) {
    option->state &= ~QStyle::State_Selected;
  }
}

}  // namespace Forms
