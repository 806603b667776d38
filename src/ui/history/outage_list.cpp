// SPDX-License-Identifier: MIT
#include "ui/history/outage_list.h"

#include <array>
#include <utility>

#include "history/history_text.h"
#include "ui/controls/display_text.h"
#include "ui/history/stripe.h"

namespace tarnwick {

void OutageList::show(std::vector<Outage> outages, Moment now) {
  beginResetModel();
  outages_ = std::move(outages);
  now_ = now;
  endResetModel();
}

int OutageList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(outages_.size());
}

int OutageList::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : last; }

QVariant OutageList::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
    return {};
  }
  const Outage& outage = outages_.at(static_cast<std::size_t>(index.row()));
  const QString lasted = QString::fromStdString(lengthText(outage.ended.value_or(now_) - outage.began));
  switch (index.column()) {
    case since:
      if (role == Qt::ToolTipRole) {
        return outage.ended ? tr("Until %1").arg(momentWords(*outage.ended)) : tr("It is on.");
      }
      return momentWords(outage.began);
    case length:
      if (role == Qt::ToolTipRole) {
        return outage.checks == 1 ? tr("1 check has failed") : tr("%1 checks have failed").arg(outage.checks);
      }
      return outage.ended ? lasted : lasted + QStringLiteral(" …");
    default:
      const QString text = displayMessage(outage.cause);
      return role == Qt::ToolTipRole ? plainToolTip(text) : text;
  }
}

QVariant OutageList::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  const std::array<QString, last> captions{tr("Down since"), tr("For"), tr("Cause")};
  return captions.at(static_cast<std::size_t>(section));
}

}  // namespace tarnwick
