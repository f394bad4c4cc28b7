#include "platform/forms/Empty_Text.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QVariant>

#include "platform/forms/Contrast.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

namespace {

constexpr const char* empty_text = "Empty_Text";
constexpr double faint = 0.7;  // of the ink; what is said needs 4.5:1 against its ground
constexpr QMargins margin(12, 6, 12, 6);

}  // namespace

void Set_Empty_Text(QAbstractItemView& view, std::string_view text,
                    const std::function<void()>& changed) {
  const bool known = view.property(empty_text).isValid();
  view.setProperty(empty_text, To_Show(text));
  view.viewport()->update();
  changed();
  if (known) return;
  const QAbstractItemModel* model = view.model();
  QObject::connect(model, &QAbstractItemModel::modelReset, &view, changed);
  QObject::connect(model, &QAbstractItemModel::rowsInserted, &view,
                   [model, changed](const QModelIndex&, int first, int last) {
                     if (model->rowCount() == last - first + 1) changed();
                   });
  QObject::connect(model, &QAbstractItemModel::rowsRemoved, &view, [model, changed] {
    if (model->rowCount() == 0) changed();
  });
}

QString Empty_Text_Of(const QAbstractItemView& view) {
  return view.model()->rowCount() > 0 ? QString() : view.property(empty_text).toString();
}

// In the middle; what has no room there begins at the top.
void Paint_Empty_Text(const QAbstractItemView& view) {
  const QString text = Empty_Text_Of(view);
  if (text.isEmpty()) return;
  QPainter painter(view.viewport());
  const QPalette& colors = view.palette();
  painter.setPen(Mixed(colors.color(QPalette::Base), colors.color(QPalette::Text), faint));
  const QRect room = view.viewport()->rect().marginsRemoved(margin);
  constexpr int wrapped = Qt::TextWordWrap | Qt::AlignHCenter;
  const int needed = painter.boundingRect(room, wrapped, text).height();
  const int place = needed > room.height() ? Qt::AlignTop : Qt::AlignVCenter;
  painter.drawText(room, wrapped | place, text);
}

}  // namespace Forms
