// SPDX-License-Identifier: MIT
#include "ui/site/post_var_model.h"

#include <utility>

#include "ui/controls/display_text.h"

namespace tarnwick {

void PostVarModel::setVars(std::vector<PostVar> vars) {
  beginResetModel();
  vars_ = std::move(vars);
  endResetModel();
}

void PostVarModel::append(PostVar var) {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  vars_.push_back(std::move(var));
  endInsertRows();
}

int PostVarModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(vars_.size());
}

int PostVarModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 2; }

QVariant PostVarModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const PostVar& var = vars_.at(static_cast<std::size_t>(index.row()));
  const std::string& cell = index.column() == 0 ? var.name : var.value;
  if (role == Qt::DisplayRole) {
    return displayText(cell);
  }
  // Long values are cut in the grid.
  return role == Qt::ToolTipRole ? plainToolTip(displayText(cell)) : QVariant();
}

QVariant PostVarModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  return section == 0 ? tr("Name") : tr("Value");
}

}  // namespace tarnwick
