// SPDX-License-Identifier: MIT
#include "ui/exchange/note_list.h"

#include <utility>

#include "ui/controls/display_text.h"

namespace tarnwick {

void NoteList::setLines(std::vector<std::string> lines) {
  beginResetModel();
  lines_ = std::move(lines);
  endResetModel();
}

int NoteList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant NoteList::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const QString text = displayMessage(lines_.at(static_cast<std::size_t>(index.row())));
  return role == Qt::DisplayRole ? QVariant(text) : role == Qt::ToolTipRole ? QVariant(plainToolTip(text)) : QVariant();
}

}  // namespace tarnwick
