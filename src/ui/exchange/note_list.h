// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>
#include <QAbstractListModel>

namespace tarnwick {

/// Lines of text, of which only those that are seen are made ready: there may be one for each site of a long list.
class NoteList final : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  void setLines(std::vector<std::string> lines);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<std::string> lines_;
};

}  // namespace tarnwick
