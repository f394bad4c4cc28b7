// Lists of the bare toolkit over bare statements: a small model of texts, and windows that show
// several of them among as many controls as a screen of the program.
#pragma once

#include <QTreeView>
#include <memory>
#include <string>
#include <vector>

#include "bench/Bare_Cellar.h"
#include "bench/Bare_Window.h"

namespace Bare_Lists {

using Rows = std::unique_ptr<Bare_Cellar::Text_Table>;

/// All rows of a statement, as texts.
inline Rows Filled(const Bare_Engine& engine, const std::string& statement) {
  auto rows = std::make_unique<Bare_Cellar::Text_Table>();
  const auto asked = engine.Prepare(statement.c_str());
  while (sqlite3_step(asked.get()) == SQLITE_ROW) {
    Bare_Cellar::Text_Table::Row row;
    for (int column = 0; column < Bare_Cellar::columns; ++column) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(asked.get(), column));
      row.push_back(QString::fromUtf8(text, sqlite3_column_bytes(asked.get(), column)));
    }
    rows->rows.push_back(std::move(row));
  }
  return rows;
}

/// A window with the controls of a screen, and a list for each statement.
class Window {
 public:
  Window(const Bare_Window::Makers& makers, std::vector<Rows> lists) : lists_(std::move(lists)) {
    auto* grid = new QGridLayout(&window_);
    constexpr int columns = 8;
    int place = 0;
    for (const auto& make : makers) {
      grid->addWidget(make(), 1 + place / columns, place % columns);
      ++place;
    }
    auto* row = new QHBoxLayout;
    for (std::size_t list = 0; list < lists_.size(); ++list) {
      auto* view = new QTreeView;
      view->setObjectName("Bare_List_" + QString::number(list));
      view->setRootIsDecorated(false);
      view->setUniformRowHeights(true);
      view->setModel(lists_[list].get());
      row->addWidget(view);
      views_.push_back(view);
    }
    grid->addLayout(row, 0, 0, 1, columns);
    window_.resize(1264, 672);
    window_.show();
  }

  void Fill(std::size_t list, Rows rows) {
    views_[list]->setModel(rows.get());
    lists_[list] = std::move(rows);
  }

 private:
  std::vector<Rows> lists_;
  QWidget window_;
  std::vector<QTreeView*> views_;
};

}  // namespace Bare_Lists
