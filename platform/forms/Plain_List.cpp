#include "platform/forms/Plain_List.h"

#include <QFont>

#include "platform/forms/Form_Texts.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

int Plain_List::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Count(); }

QVariant Plain_List::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= Count()) return {};
  if (role == Qt::DisplayRole || role == Qt::EditRole) return To_Qt(Text(index.row()));
  if (role == Qt::CheckStateRole && user_ticks) {
    return Ticked(index.row()) ? Qt::Checked : Qt::Unchecked;
  }
  if (role == Qt::FontRole || role == Qt::AccessibleDescriptionRole)
    return Emphasis(index.row(), role);
  return {};
}

QVariant Plain_List::Emphasis(int row, int role) const {
  if (!bold_[static_cast<std::size_t>(row)]) return {};
  if (role != Qt::FontRole) return To_Qt(Form_Texts().bold);
  QFont font;
  font.setBold(true);
  return font;
}

bool Plain_List::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !user_ticks || !index.isValid()) return false;
  user_ticks(index.row(), value.toInt() == Qt::Checked);
  return true;
}

Qt::ItemFlags Plain_List::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractListModel::flags(index) | Qt::ItemNeverHasChildren;
  return user_ticks ? flags | Qt::ItemIsUserCheckable : flags;
}

void Plain_List::Insert(int row, std::string_view text) {
  beginInsertRows({}, row, row);
  texts_.emplace(texts_.begin() + row, text);
  ticks_.insert(ticks_.begin() + row, false);
  bold_.insert(bold_.begin() + row, false);
  endInsertRows();
}

void Plain_List::Remove(int row) {
  beginRemoveRows({}, row, row);
  texts_.erase(texts_.begin() + row);
  ticks_.erase(ticks_.begin() + row);
  bold_.erase(bold_.begin() + row);
  endRemoveRows();
}

void Plain_List::Clear() {
  beginResetModel();
  texts_.clear();
  ticks_.clear();
  bold_.clear();
  endResetModel();
}

void Plain_List::Set_Text(int row, std::string_view text) {
  texts_[static_cast<std::size_t>(row)] = text;
  emit dataChanged(index(row), index(row));
}

void Plain_List::Set_Bold(int row, bool bold) {
  bold_[static_cast<std::size_t>(row)] = bold;
  emit dataChanged(index(row), index(row), {Qt::FontRole, Qt::AccessibleDescriptionRole});
}

void Plain_List::Set_Ticked(int row, bool ticked) {
  ticks_[static_cast<std::size_t>(row)] = ticked;
  emit dataChanged(index(row), index(row), {Qt::CheckStateRole});
}

}  // namespace Forms
