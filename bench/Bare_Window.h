// A window of the bare toolkit with as many controls, and of the same kinds, as one of the program
// shows: what the toolkit takes to make, lay out and paint them.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QTreeView>
#include <memory>
#include <vector>

class Bare_Window {
 public:
  /// What stands in a window: a maker for each control in sight.
  using Makers = std::vector<QWidget* (*)()>;

  static Makers Controls_Of(const QWidget& window) {
    Makers makers;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
      if (!widget->isVisible() || Is_Part(*widget)) continue;
      if (QWidget * (*maker)() = Maker_For(*widget)) makers.push_back(maker);
    }
    return makers;
  }

  /// `list` is the name that the list of the rows is found by; it is as high as the one in the
  /// window.
  Bare_Window(const Makers& makers, std::unique_ptr<QAbstractItemModel> rows, const char* list,
              int list_height)
      : rows_(std::move(rows)) {
    constexpr int columns = 8;
    auto* grid = new QGridLayout(&window_);
    for (std::size_t i = 0; i < makers.size(); ++i) {
      const int place = static_cast<int>(i);
      grid->addWidget(makers[i](), 1 + place / columns, place % columns);
    }
    auto* view = new QTreeView;
    view->setObjectName(list);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setModel(rows_.get());
    view->setFixedHeight(list_height);
    grid->addWidget(view, 0, 0, 1, columns);
    window_.resize(1264, 672);
    window_.show();
  }

 private:
  // A list within a box, the field of a box that can be written in.
  static bool Is_Part(const QWidget& widget) {
    for (const QWidget* around = widget.parentWidget(); around != nullptr;
         around = around->parentWidget()) {
      if (Maker_For(*around) != nullptr || qobject_cast<const QTreeView*>(around)) return true;
    }
    return false;
  }

  template <class Kind>
  static QWidget* Made() {
    return new Kind;
  }
  template <class Kind>
  static bool Take(const QWidget& widget, QWidget* (*&maker)()) {
    if (qobject_cast<const Kind*>(&widget) == nullptr) return false;
    maker = Made<Kind>;
    return true;
  }
  static QWidget* (*Maker_For(const QWidget& widget))() {
    QWidget* (*maker)() = nullptr;
    static_cast<void>(Take<QLabel>(widget, maker) || Take<QComboBox>(widget, maker) ||
                      Take<QLineEdit>(widget, maker) || Take<QPlainTextEdit>(widget, maker) ||
                      Take<QTextEdit>(widget, maker) || Take<QCheckBox>(widget, maker) ||
                      Take<QPushButton>(widget, maker) || Take<QListView>(widget, maker));
    return maker;
  }

  std::unique_ptr<QAbstractItemModel> rows_;
  QWidget window_;
};
