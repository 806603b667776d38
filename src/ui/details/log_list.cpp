// SPDX-License-Identifier: MIT
#include "ui/details/log_list.h"

#include <algorithm>
#include <array>
#include <exception>
#include <iterator>
#include <utility>
#include <QElapsedTimer>

#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMostRows = 200;
/// Of the whole log, read at once.
constexpr std::int64_t kPiece = 1000;
constexpr int kSlice = 8;  // milliseconds

}  // namespace

LogList::LogList(Program& program, QObject* parent) : QAbstractTableModel(parent), program_(program) {
  connect(&soon_, &QTimer::timeout, this, &LogList::readMore);
}

void LogList::read(std::int16_t idSite) {
  if (idSite != idSite_) {
    clear();
  }
  idSite_ = idSite;
  found_.clear();
  before_.reset();
  readSlice();
  if (before_) {
    soon_.start(0);
  }
}

void LogList::clear() {
  soon_.stop();
  found_.clear();
  show();
}

void LogList::readMore() try {
  readSlice();
  if (!before_) {
    soon_.stop();
  }
} catch (const std::exception&) {
  soon_.stop();  // that the list cannot be read is told elsewhere
}

void LogList::readSlice() {
  QElapsedTimer slice;
  slice.start();
  do {
    LogPiece piece = program_.data().readLogBackwards(idSite_, before_, kPiece);
    std::ranges::move(piece.rows, std::back_inserter(found_));
    before_ = piece.before;
    if (found_.size() >= kMostRows) {
      found_.resize(kMostRows);
      before_.reset();
    }
  } while (before_ && slice.elapsed() < kSlice);
  // What is shown already stays until there is as much of it anew.
  if (!before_ || found_.size() > rows_.size()) {
    show();
  }
}

void LogList::show() {
  beginResetModel();
  rows_ = found_;
  endResetModel();
}

std::optional<LocalTime> LogList::momentOf(int row) const {
  return parseDateTime(rows_.at(static_cast<std::size_t>(row)).dateStamp.value_or(""));
}

int LogList::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : static_cast<int>(rows_.size()); }

int LogList::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : last; }

QVariant LogList::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
    return {};
  }
  const LogRow& row = rows_.at(static_cast<std::size_t>(index.row()));
  QString text;
  if (index.column() == time) {
    text = displayText(row.dateStamp.value_or(""));
  } else if (index.column() == result) {
    text = !row.status ? QString() : *row.status ? tr("up") : tr("down");
  } else {
    text = displayMessage(row.errDescription.value_or(""));
  }
  return role == Qt::ToolTipRole ? plainToolTip(text) : text;
}

QVariant LogList::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  const std::array<QString, last> captions{tr("Time"), tr("Result"), tr("Cause")};
  return captions.at(static_cast<std::size_t>(section));
}

}  // namespace tarnwick
