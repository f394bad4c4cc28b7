// The entries of a list as the toolkit sees them. For the sources of this room only.
#pragma once

#include <QAbstractListModel>
#include <functional>
#include <string>
#include <vector>

namespace Forms {

class Plain_List : public QAbstractListModel {
 public:
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  void Insert(int row, std::string_view text);
  void Remove(int row);
  void Clear();
  void Set_Text(int row, std::string_view text);
  const std::string& Text(int row) const { return texts_[static_cast<std::size_t>(row)]; }
  int Count() const { return static_cast<int>(texts_.size()); }

  bool Ticked(int row) const { return ticks_[static_cast<std::size_t>(row)]; }
  void Set_Ticked(int row, bool ticked);
  void Set_Bold(int row, bool bold);

  /// Set by a list whose entries can be ticked: the user wants this tick.
  std::function<void(int row, bool ticked)> user_ticks;

 private:
  QVariant Emphasis(int row, int role) const;

  std::vector<std::string> texts_;
  std::vector<bool> ticks_;
  std::vector<bool> bold_;
};

}  // namespace Forms
