// The list of the cellar without the program: one statement that joins the two tables, and the
// toolkit's own list.
#pragma once

#include <QAbstractTableModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <memory>
#include <vector>

#include "bench/Bare_Engine.h"

namespace Bare_Cellar {

inline constexpr const char* list_name = "Bare_List";
inline constexpr int columns = 10;

/// The rows in the toolkit's own items, or in a table of texts behind a small model.
enum class Model { Items, Texts };

class Text_Table : public QAbstractTableModel {
 public:
  using Row = std::vector<QString>;
  std::vector<Row> rows;

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : columns;
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    return rows[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
  }
};

inline constexpr const char* question =
    "SELECT Vintage, Winery_Name, Label, Region, Variety, Color, Ranking, Peak, Total_Bottles, "
    "Wine_ID FROM Wines JOIN Wineries ON Wineries.Winery_ID=Wines.Winery_ID";

/// Calls `visit(row of texts)` for each wine of the question, whose values are bound.
template <class Visit>
void Each_Row(sqlite3_stmt* wines, const Visit& visit) {
  while (sqlite3_step(wines) == SQLITE_ROW) {
    std::vector<QString> row;
    row.reserve(columns);
    for (int column = 0; column < columns; ++column) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(wines, column));
      row.push_back(QString::fromUtf8(text, sqlite3_column_bytes(wines, column)));
    }
    if (row[2] == "x") row[2].clear();
    if (row[6] == "-1") row[6].clear();
    visit(std::move(row));
  }
}

/// The same for each wine of the cellar.
template <class Visit>
void Each_Wine(const Bare_Engine& engine, int cellar, const Visit& visit) {
  const auto wines =
      engine.Prepare((std::string(question) + " WHERE Cellar_ID=? ORDER BY Wine_ID").c_str());
  sqlite3_bind_int(wines.get(), 1, cellar);
  Each_Row(wines.get(), visit);
}

inline void Append(QStandardItemModel& items, const Text_Table::Row& row) {
  QList<QStandardItem*> line;
  for (const QString& text : row) line.append(new QStandardItem(text));
  items.appendRow(line);
}

inline std::unique_ptr<QAbstractItemModel> Filled(Model kind, const Bare_Engine& engine,
                                                  int cellar) {
  if (kind == Model::Texts) {
    auto texts = std::make_unique<Text_Table>();
    Each_Wine(engine, cellar, [&](Text_Table::Row row) { texts->rows.push_back(std::move(row)); });
    return texts;
  }
  auto items = std::make_unique<QStandardItemModel>(0, columns);
  Each_Wine(engine, cellar, [&](const Text_Table::Row& row) { Append(*items, row); });
  return items;
}

/// A window with nothing but the list, shown.
class Screen {
 public:
  Screen(Model kind, const Bare_Engine& engine, int cellar)
      : Screen(Filled(kind, engine, cellar)) {}
  explicit Screen(std::unique_ptr<QAbstractItemModel> model) : model_(std::move(model)) {
    list_.setObjectName(list_name);
    list_.setRootIsDecorated(false);
    list_.setUniformRowHeights(true);
    list_.setModel(model_.get());
    list_.resize(1280, 720);
    list_.show();
  }

 private:
  std::unique_ptr<QAbstractItemModel> model_;
  QTreeView list_;
};

}  // namespace Bare_Cellar
