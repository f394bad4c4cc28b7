#include "platform/forms/Window_Place.h"

#include <QMenuBar>
#include <QScreen>
#include <QWindow>

#include "platform/forms/Form_Data.h"
#include "platform/forms/Window_Memory.h"

namespace Forms {

namespace {

constexpr QSize window_frame(16, 48);  // generous: the window manager draws it
constexpr int widest = 1600;
constexpr double part_of_desktop = 0.85;

struct Sizes {
  QSize asked;
  QSize needed;
};

Sizes Sizes_Of(const Form_Data& form) {
  Sizes sizes{form.content->sizeHint(), form.content->minimumSizeHint()};
  const QMenuBar& menu = *form.window->menuBar();
  const QSize bar = menu.actions().isEmpty() ? QSize(0, 0) : menu.sizeHint();
  const QSize below = form.below->isHidden() ? QSize(0, 0) : form.below->sizeHint();
  for (QSize* size : {&sizes.asked, &sizes.needed}) {
    size->setWidth(qMax(size->width(), qMax(bar.width(), below.width())));
    size->setHeight(size->height() + bar.height() + below.height());
  }
  return sizes;
}

QSize Opening_Size(const Form_Data& form, QSize room) {
  const Sizes sizes = Sizes_Of(form);
  const QSize remembered = Remembered_Size(form);
  if (remembered.isValid()) return remembered.expandedTo(sizes.needed).boundedTo(room);
  QSize size = sizes.asked;
  if (form.has_growing_list) {
    const QSize share = room * part_of_desktop;
    size = size.expandedTo(QSize(qMin(share.width(), widest), share.height()));
  }
  if (form.opening_width > 0) size.setWidth(qMax(form.opening_width, sizes.needed.width()));
  return size.boundedTo(room);
}

}  // namespace

void Fit_To_Desktop(const Form_Data& form) {
  if (form.window->isMaximized()) return;
  const QRect desktop = form.window->screen()->availableGeometry();
  const QSize size = Opening_Size(form, desktop.size() - window_frame);
  form.window->resize(size);
  const QSize around = (desktop.size() - window_frame - size) / 2;
  const QPoint corner = desktop.topLeft() + QPoint(around.width(), around.height());
  form.window->move(corner);
  // A window that exists already, though unseen, would have its content at this corner, and its
  // frame outside.
  if (QWindow* window = form.window->windowHandle()) window->setFramePosition(corner);
}

}  // namespace Forms
