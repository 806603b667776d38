// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QAbstractTableModel>

#include "program/site_draft.h"

namespace tarnwick {

/// The rows of the POST grid: "Name" and "Value".
class PostVarModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  const std::vector<PostVar>& vars() const { return vars_; }
  void setVars(std::vector<PostVar> vars);
  void append(PostVar var);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<PostVar> vars_;
};

}  // namespace tarnwick
