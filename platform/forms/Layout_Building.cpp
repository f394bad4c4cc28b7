#include "platform/forms/Layout_Building.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QSplitter>
#include <algorithm>
#include <utility>

#include "platform/forms/Form_Data.h"
#include "platform/forms/Place_Data.h"
#include "platform/forms/Place_Sizes.h"

namespace Forms {

namespace {

constexpr int block_distance = 18;
constexpr int frame_margin = 8;
constexpr int button_characters = 12;
constexpr int label_distance = 10;
constexpr int part_distance = 6;
constexpr int above_first_line = 4;  ///< in a list or a box of several lines

/// Builds one form's layout, reading the places in order.
class Builder {
 public:
  explicit Builder(Form_Data& form) : form_(form) {}

  QLayout* Layout_Of(const Place& place, QWidget* parent) {
    const Place_Data& data = *place.Data();
    switch (data.kind) {
      case Place_Kind::Column:
        return Column_Of(data.places, parent);
      case Place_Kind::Fields:
        return Fields_Of(data.places, parent);
      case Place_Kind::Below:
        return Below_Of(data.places, parent);
      case Place_Kind::Grid:
        return Grid_Of(data, parent);
      case Place_Kind::Buttons:
        return Buttons_Of(data.places, parent);
      case Place_Kind::Row:
        return Row_Of(data.places, parent);
      case Place_Kind::One_Place:
        return One_Place_Of(data.places, parent);
      default:
        return Box_Of(new QVBoxLayout, {place}, parent);
    }
  }

 private:
  QLayout* Box_Of(QBoxLayout* box, const Places& places, QWidget* parent) {
    for (const Place& place : places) Add(*box, place, parent);
    return box;
  }

  // Blocks of fields side by side stand further apart than the parts of one field.
  QLayout* Row_Of(const Places& places, QWidget* parent) {
    auto* row = new QHBoxLayout;
    const bool blocks = std::ranges::any_of(places, Is_A_Block);
    row->setSpacing(blocks ? block_distance : part_distance);
    return Box_Of(row, places, parent);
  }

  // Where nothing grows, the parts stay together at the top.
  QLayout* Column_Of(const Places& places, QWidget* parent) {
    auto* column = new QVBoxLayout;
    column->setSpacing(part_distance);
    Box_Of(column, places, parent);
    if (!(column->expandingDirections() & Qt::Vertical)) column->addStretch(1);
    return column;
  }

  static void Keep_Together(QGridLayout& grid) {
    grid.setVerticalSpacing(part_distance);
    if (!(grid.expandingDirections() & Qt::Vertical)) grid.setRowStretch(grid.rowCount(), 1);
  }

  static bool Is_A_Block(const Place& place) {
    const Place_Kind kind = place.Data()->kind;
    if (kind == Place_Kind::One_Place) return std::ranges::any_of(place.Data()->places, Is_A_Block);
    return kind == Place_Kind::Column || kind == Place_Kind::Fields || kind == Place_Kind::Group;
  }

  void Add(QBoxLayout& box, const Place& place, QWidget* parent) {
    const Place_Data& data = *place.Data();
    if (data.kind == Place_Kind::Stretch) {
      box.addStretch(data.share);
    } else if (data.kind == Place_Kind::Space) {
      box.addSpacing(parent->fontMetrics().height());
    } else if (QLayoutItem* item = Item_At(place, parent)) {
      box.addItem(item);
      box.setStretch(box.count() - 1, data.share);
    } else {
      box.addLayout(Layout_Of(place, parent), data.share);
    }
  }

  void Add(QGridLayout& grid, const Place& place, QWidget* parent, int row, int column) {
    const Place_Data& data = *place.Data();
    if (QLayoutItem* item = Item_At(place, parent)) {
      grid.addItem(item, row, column, 1, 1, data.alignment);
    } else {
      grid.addLayout(Layout_Of(place, parent), row, column);
    }
    if (data.share > 0) grid.setRowStretch(row, data.share);
  }

  // What stands in a layout for a widget that takes a place of itself; nullptr where it takes a
  // layout.
  QLayoutItem* Item_At(const Place& place, QWidget* parent) {
    QWidget* widget = Widget_Of(place, parent);
    if (widget == nullptr) return nullptr;
    QLayoutItem* item = Item_Of(*place.Data(), *widget);
    item->setAlignment(place.Data()->alignment);
    return item;
  }

  // The widget that takes a place of itself; nullptr where it takes a layout.
  QWidget* Widget_Of(const Place& place, QWidget* parent) {
    const Place_Data& data = *place.Data();
    switch (data.kind) {
      case Place_Kind::Control:
        return Settle(data, parent);
      case Place_Kind::Group: {
        QWidget* frame = Settle(data, parent);
        frame->setLayout(Layout_Of(data.places.front(), frame));
        frame->layout()->setContentsMargins(frame_margin, frame_margin, frame_margin, frame_margin);
        return frame;
      }
      case Place_Kind::Above_Below:
        return Splitter_Of(Qt::Vertical, data.places, parent);
      case Place_Kind::Side_By_Side:
        return Splitter_Of(Qt::Horizontal, data.places, parent);
      default:
        return nullptr;
    }
  }

  QWidget* Settle(const Place_Data& data, QWidget* parent) {
    QWidget* widget = data.control->Widget();
    if (widget->parentWidget() != parent) widget->setParent(parent);
    if (shares_its_place_) {
      QSizePolicy policy = widget->sizePolicy();
      policy.setRetainSizeWhenHidden(true);
      // A paragraph breaks to the width that the others need.
      const auto* label = qobject_cast<const QLabel*>(widget);
      if (label != nullptr && label->wordWrap()) policy.setHorizontalPolicy(QSizePolicy::Ignored);
      widget->setSizePolicy(policy);
      widget->raise();
    }
    data.control->Set_Placed();
    if (data.share > 0 && qobject_cast<const QAbstractItemView*>(widget) != nullptr) {
      form_.has_growing_list = true;
    }
    form_.reading_order.emplace_back(widget);
    return widget;
  }

  QWidget* Splitter_Of(Qt::Orientation orientation, const Places& places, QWidget* parent) {
    auto* splitter = new QSplitter(orientation, parent);
    splitter->setChildrenCollapsible(false);
    for (const Place& place : places) {
      auto* part = new QWidget(splitter);
      part->setLayout(Layout_Of(place, part));
      part->layout()->setContentsMargins(0, 0, 0, 0);
      splitter->addWidget(part);
      splitter->setStretchFactor(splitter->count() - 1, place.Data()->share);
    }
    return splitter;
  }

  QLayout* Fields_Of(const Places& places, QWidget* parent) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(label_distance);
    for (std::size_t i = 0; i + 1 < places.size(); i += 2) {
      const int row = static_cast<int>(i / 2);
      QWidget* label = Widget_Of(places[i], parent);
      const bool high = places[i + 1].Data()->lines > 1 || places[i + 1].Data()->share > 0;
      if (high) label->setContentsMargins(0, above_first_line, 0, 0);
      grid->addWidget(label, row, 0, high ? Qt::AlignTop : Qt::AlignVCenter);
      Add(*grid, places[i + 1], parent, row, 1);
      Join(places[i], places[i + 1]);
    }
    grid->setColumnStretch(1, 1);
    Keep_Together(*grid);
    return grid;
  }

  QLayout* Below_Of(const Places& places, QWidget* parent) {
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    Join(places[0], places[1]);
    return Box_Of(column, places, parent);
  }

  // The label names the first control of its field.
  void Join(const Place& label, const Place& field) {
    const Place* first = &field;
    while (first->Data()->control == nullptr && !first->Data()->places.empty()) {
      first = &first->Data()->places.front();
    }
    if (first->Data()->control == nullptr) return;
    static_cast<Label*>(label.Data()->control)->Set_Buddy(*first->Data()->control);
  }

  QLayout* Grid_Of(const Place_Data& data, QWidget* parent) {
    auto* grid = new QGridLayout;
    for (std::size_t i = 0; i < data.places.size(); ++i) {
      const int place = static_cast<int>(i);
      Add(*grid, data.places[i], parent, place / data.columns, place % data.columns);
    }
    for (int column = 0; column < data.columns; ++column) grid->setColumnStretch(column, 1);
    Keep_Together(*grid);
    return grid;
  }

  QLayout* One_Place_Of(const Places& places, QWidget* parent) {
    auto* grid = new QGridLayout;
    const bool shares = std::exchange(shares_its_place_, true);
    for (const Place& place : places) Add(*grid, place, parent, 0, 0);
    shares_its_place_ = shares;
    return grid;
  }

  QLayout* Buttons_Of(const Places& places, QWidget* parent) {
    auto* row = new QHBoxLayout;
    row->setSpacing(part_distance);
    row->addStretch(1);
    for (const Place& place : places) Add(*row, place.Wide(button_characters), parent);
    return row;
  }

  Form_Data& form_;
  bool shares_its_place_ = false;  ///< what is settled now keeps its room while it is hidden
};

void Fill(QWidget& part, QLayout* layout, QMargins margins) {
  layout->setContentsMargins(margins);
  part.setLayout(layout);
}

}  // namespace

void Build_Layout(Form_Data& form, const Place& content, const Place& below) {
  Builder builder(form);
  Fill(*form.content, builder.Layout_Of(content, form.content), {16, 12, 16, 12});
  Fill(*form.below, builder.Layout_Of(below, form.below), {16, 0, 16, 12});
  form.below->setVisible(!below.Data()->places.empty());
  QWidget* before = nullptr;
  for (const auto& widget : form.reading_order) {
    if (widget->focusPolicy() == Qt::NoFocus) continue;
    if (before != nullptr) QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

void Focus_First(Form_Data& form) {
  if (form.window->focusWidget() != nullptr) return;
  for (const auto& widget : form.reading_order) {
    if (widget == nullptr || !widget->isEnabled() || widget->isHidden()) continue;
    if ((widget->focusPolicy() & Qt::TabFocus) == 0) continue;
    widget->setFocus(Qt::OtherFocusReason);
    return;
  }
}

}  // namespace Forms
