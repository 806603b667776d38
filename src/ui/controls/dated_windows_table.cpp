// SPDX-License-Identifier: MIT
#include "ui/controls/dated_windows_table.h"

#include <utility>
#include <QComboBox>
#include <QDateTime>
#include <QDateTimeEdit>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "ui/controls/alarm_words.h"
#include "ui/controls/dialog_parts.h"

namespace tarnwick {
namespace {

const QString kMoment = QStringLiteral("yyyy-MM-dd HH:mm");

QDateTime shown(LocalTime time) {
  return QDateTime::fromString(QString::fromStdString(dateTimeText(time)), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

std::optional<LocalTime> read(const QVariant& value) {
  return parseStamp(value.toDateTime().toString(kMoment).toStdString());
}

/// What is done meanwhile, by its place in the list of choices; the first one is that of the quiet hours.
QString whatWords(int choice) {
  return choice == 0 ? DatedWindowsModel::tr("as in quiet hours")
                     : quietKindWords(choice == 1 ? QuietKind::keepAlerts : QuietKind::noChecks);
}

class WindowDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    if (index.column() == DatedWindowsModel::whatColumn) {
      auto* choice = new QComboBox(parent);
      for (int what = 0; what < 3; ++what) {
        choice->addItem(whatWords(what));
      }
      return choice;
    }
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* moment = qobject_cast<QDateTimeEdit*>(editor)) {
      moment->setDisplayFormat(kMoment);
      moment->setCalendarPopup(true);
    }
    return editor;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    if (auto* choice = qobject_cast<QComboBox*>(editor)) {
      choice->setCurrentIndex(index.data(Qt::EditRole).toInt());
    } else {
      QStyledItemDelegate::setEditorData(editor, index);
    }
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    if (const auto* choice = qobject_cast<QComboBox*>(editor)) {
      model->setData(index, choice->currentIndex(), Qt::EditRole);
    } else {
      QStyledItemDelegate::setModelData(editor, model, index);
    }
  }
};

}  // namespace

void DatedWindowsModel::setWindows(std::vector<DatedWindow> windows) {
  beginResetModel();
  windows_ = std::move(windows);
  endResetModel();
}

void DatedWindowsModel::append(const DatedWindow& window) {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  windows_.push_back(window);
  endInsertRows();
}

void DatedWindowsModel::remove(int row) {
  beginRemoveRows({}, row, row);
  windows_.erase(windows_.begin() + row);
  endRemoveRows();
}

int DatedWindowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(windows_.size());
}

int DatedWindowsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns; }

QVariant DatedWindowsModel::valueOf(const DatedWindow& window, int column, int role) const {
  const bool isEdited = role == Qt::EditRole;
  switch (column) {
    case fromColumn:
    case untilColumn: {
      const QDateTime moment = shown(column == fromColumn ? window.from : window.until);
      return isEdited ? QVariant(moment) : QVariant(moment.toString(kMoment));
    }
    case whatColumn: {
      const int choice = !window.kind ? 0 : *window.kind == QuietKind::keepAlerts ? 1 : 2;
      return isEdited ? QVariant(choice) : QVariant(whatWords(choice));
    }
    default:
      return QString::fromStdString(window.note);
  }
}

QVariant DatedWindowsModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  if (role == Qt::AccessibleTextRole) {
    return QStringLiteral("%1: %2").arg(headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString(),
                                        data(index, Qt::DisplayRole).toString());
  }
  return role == Qt::DisplayRole || role == Qt::EditRole
             ? valueOf(windows_[static_cast<std::size_t>(index.row())], index.column(), role)
             : QVariant();
}

bool DatedWindowsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return false;
  }
  DatedWindow& window = windows_[static_cast<std::size_t>(index.row())];
  if (index.column() <= untilColumn) {
    const auto moment = read(value);
    if (!moment || (index.column() == untilColumn && *moment <= window.from)) {
      return false;
    }
    if (index.column() == untilColumn) {
      window.until = *moment;
    } else {
      const auto length = window.until - window.from;
      window.from = *moment;
      window.until = window.until > window.from ? window.until : window.from + length;
    }
  } else if (index.column() == whatColumn) {
    const int choice = value.toInt();
    window.kind = choice == 0 ? std::nullopt : std::optional(choice == 1 ? QuietKind::keepAlerts : QuietKind::noChecks);
  } else {
    // It parts the times from each other where they are stored.
    window.note = value.toString().replace(QLatin1Char(';'), QLatin1Char(',')).simplified().toStdString();
  }
  const int row = index.row();
  Q_EMIT dataChanged(this->index(row, 0), this->index(row, columns - 1));
  return true;
}

Qt::ItemFlags DatedWindowsModel::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

QVariant DatedWindowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  switch (section) {
    case fromColumn:
      return tr("From");
    case untilColumn:
      return tr("Until");
    case whatColumn:
      return tr("What");
    default:
      return tr("Note");
  }
}

DatedWindowsTable::DatedWindowsTable(QWidget* parent) : QWidget(parent), model_(this) {
  table_ = named(new QTableView(this), "datedWindows", tr("Dated windows"));
  table_->setModel(&model_);
  table_->setItemDelegate(new WindowDelegate(this));
  table_->setSelectionBehavior(QTableView::SelectRows);
  table_->setSelectionMode(QTableView::SingleSelection);
  table_->setEditTriggers(QTableView::DoubleClicked | QTableView::SelectedClicked | QTableView::EditKeyPressed |
                          QTableView::AnyKeyPressed);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
  QHeaderView& header = *table_->horizontalHeader();
  header.setHighlightSections(false);
  const int moment = fontMetrics().horizontalAdvance(QStringLiteral("2026-12-28 00:00")) + 36;
  header.resizeSection(DatedWindowsModel::fromColumn, moment);
  header.resizeSection(DatedWindowsModel::untilColumn, moment);
  header.resizeSection(DatedWindowsModel::whatColumn, moment * 8 / 5);
  header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  header.setStretchLastSection(true);
  table_->setMinimumHeight(fontMetrics().height() * 6);
  table_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);

  QPushButton* add = addButton(*this, "addWindow", tr("Add"), tr("Add a time, tomorrow from 8:00 on; change it there"));
  remove_ = addButton(*this, "removeWindow", tr("Remove"), tr("Remove the chosen time (Del)"));
  auto* lines = new QHBoxLayout(this);
  lines->setContentsMargins({});
  lines->addWidget(table_, 1);
  auto* buttons = new QVBoxLayout;
  buttons->addWidget(add);
  buttons->addWidget(remove_);
  buttons->addStretch();
  lines->addLayout(buttons);

  connect(add, &QPushButton::clicked, this, &DatedWindowsTable::add);
  connect(remove_, &QPushButton::clicked, this, &DatedWindowsTable::remove);
  connect(new QShortcut(QKeySequence::Delete, table_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
          this, &DatedWindowsTable::remove);
  const auto changed = [this] {
    remove_->setEnabled(model_.rowCount() > 0);
    if (isSettled_) {
      Q_EMIT edited();
    }
  };
  connect(&model_, &QAbstractItemModel::dataChanged, this, changed);
  connect(&model_, &QAbstractItemModel::rowsInserted, this, changed);
  connect(&model_, &QAbstractItemModel::rowsRemoved, this, changed);
  connect(&model_, &QAbstractItemModel::modelReset, this, changed);
}

void DatedWindowsTable::setWindows(std::vector<DatedWindow> windows, LocalTime now) {
  now_ = now;
  isSettled_ = false;
  model_.setWindows(std::move(windows));
  isSettled_ = true;
}

QSize DatedWindowsTable::sizeHint() const {
  const QHeaderView& header = *table_->horizontalHeader();
  int columns = header.sectionSize(DatedWindowsModel::whatColumn);  // the note's, which takes what is left
  for (const int column :
       {DatedWindowsModel::fromColumn, DatedWindowsModel::untilColumn, DatedWindowsModel::whatColumn}) {
    columns += header.sectionSize(column);
  }
  const QSize hint = QWidget::sizeHint();
  return {hint.width() - table_->sizeHint().width() + columns + 2 * table_->frameWidth() +
              table_->verticalScrollBar()->sizeHint().width(),
          hint.height()};
}

void DatedWindowsTable::add() {
  const LocalTime from = tomorrowMorning(now_);
  model_.append({from, from + std::chrono::hours(4), std::nullopt, {}});
  const QModelIndex first = model_.index(model_.rowCount() - 1, DatedWindowsModel::fromColumn);
  table_->setFocus();
  table_->setCurrentIndex(first);
  table_->edit(first);
}

void DatedWindowsTable::remove() {
  const int row = table_->currentIndex().isValid() ? table_->currentIndex().row() : model_.rowCount() - 1;
  if (row >= 0) {
    model_.remove(row);
  }
}

}  // namespace tarnwick
