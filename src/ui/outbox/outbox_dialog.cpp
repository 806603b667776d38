// SPDX-License-Identifier: MIT
#include "ui/outbox/outbox_dialog.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

#include "delivery/alert_text.h"
#include "ui/controls/boxes.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/placement.h"
#include "ui/controls/row_table.h"

namespace tarnwick {
namespace {

constexpr int kLook = 500;  // milliseconds
constexpr int kAnswerLines = 7;
constexpr std::size_t kMostNamed = 8;

void setUp(QTableView& table) {
  setUpList(table);
  table.setSelectionMode(QAbstractItemView::ExtendedSelection);
  table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  QHeaderView& header = *table.horizontalHeader();
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  for (const int wide : {OutboxModel::alert, OutboxModel::answer}) {
    header.setSectionResizeMode(wide, QHeaderView::Stretch);
  }
}

/// What was answered, then what is told, as a mail has it.
QString wholeWords(const OutboxRow& row) {
  const AlertText text = alertTextOf({&row, 1});
  QStringList parts;
  if (!row.answer.empty()) {
    parts << displayMessage(row.answer) << QString();
  }
  parts << displayText(text.title) << displayText(text.text);
  return parts.join(QLatin1Char('\n')).trimmed();
}

}  // namespace

OutboxDialog::OutboxDialog(Program& program, OpenChannel openChannel, QWidget* parent)
    : QDialog(parent),
      program_(program),
      openChannel_(std::move(openChannel)),
      changes_(program.data().database()),
      pages_(named(new QTabWidget(this), "outboxPages", tr("Alerts"))),
      answer_(named(new QPlainTextEdit(this), "outboxAnswer", tr("The whole answer, and the whole alert"))) {
  setObjectName(QStringLiteral("frmOutbox"));
  setWindowTitle(tr("Outbox"));
  tabs_ = {addTab(OutboxRow::State::waiting, "outboxWaiting", tr("Nothing is waiting.")),
           addTab(OutboxRow::State::sent, "outboxSent", tr("Nothing has been sent yet.")),
           addTab(OutboxRow::State::failed, "outboxFailed", tr("Nothing was given up."))};
  layOut();
  connect(pages_, &QTabWidget::currentChanged, this, [this] { program_.faults().run([this] { refresh(); }); });
  connect(&timer_, &QTimer::timeout, this, [this] { program_.faults().runRepeated("outbox", [this] { look(); }); });
  refresh();
  timer_.start(kLook);
}

OutboxDialog::Tab OutboxDialog::addTab(OutboxRow::State state, const char* name, const QString& nothing) {
  auto* page = new QWidget;
  auto* model = new OutboxModel(state, this);
  auto* table = named(new QTableView(page), name, nothing);
  table->setModel(model);
  setUp(*table);
  auto* empty = new QLabel(nothing, page);
  empty->setObjectName(QString::fromLatin1(name) + QStringLiteral("Empty"));
  empty->setAlignment(Qt::AlignCenter);
  auto* lines = new QVBoxLayout(page);
  lines->addWidget(table);
  lines->addWidget(empty, 1);
  pages_->addTab(page, QString());
  connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &OutboxDialog::showAnswer);
  return {model, table, empty};
}

void OutboxDialog::layOut() {
  answer_->setReadOnly(true);
  answer_->setTabChangesFocus(true);
  answer_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  answer_->setPlaceholderText(tr("Choose an alert to read it, and the whole answer."));
  answer_->setFixedHeight(answer_->fontMetrics().lineSpacing() * kAnswerLines +
                          2 * (answer_->frameWidth() + static_cast<int>(answer_->document()->documentMargin())));
  auto* lines = new QVBoxLayout(this);
  lines->addWidget(pages_, 1);
  lines->addWidget(answer_);
  lines->addWidget(makeButtons());
}

QWidget* OutboxDialog::makeButtons() {
  auto* buttons = new QWidget(this);
  btnRetry_ = addButton(*buttons, "outboxRetry", tr("&Retry Now"),
                        tr("Try those that are chosen again at once; all of this page where none is chosen"));
  btnDrop_ = addButton(*buttons, "outboxDrop", tr("&Drop…"),
                       tr("Take those that are chosen out, so that they are not delivered; all of this page where none "
                          "is chosen"));
  btnChannel_ = addButton(*buttons, "outboxChannel", tr("Open C&hannel…"),
                          tr("The settings of the channel that the chosen alert goes through"));
  btnCopy_ = addButton(*buttons, "outboxCopy", tr("&Copy"), tr("Copy those that are chosen as text, or all"));
  QPushButton* close = addButton(*buttons, "outboxClose", tr("Close"));
  close->setDefault(true);
  onClick(*btnRetry_, program_.faults(), [this] { retry(); });
  onClick(*btnDrop_, program_.faults(), [this] { drop(); });
  onClick(*btnChannel_, program_.faults(), [this] { openChannel(); });
  onClick(*btnCopy_, program_.faults(), [this] { copy(); });
  onClick(*close, program_.faults(), [this] { reject(); });
  auto* line = new QHBoxLayout(buttons);
  line->setContentsMargins({});
  for (QPushButton* button : {btnRetry_, btnDrop_, btnChannel_, btnCopy_}) {
    line->addWidget(button);
  }
  line->addStretch();
  line->addWidget(close);
  return buttons;
}

void OutboxDialog::done(int result) {
  timer_.stop();
  QDialog::done(result);
  deleteLater();
}

void OutboxDialog::look() {
  if (changes_.byAnyone()) {
    refresh();
  }
}

OutboxDialog::Tab& OutboxDialog::current() { return tabs_.at(static_cast<std::size_t>(pages_->currentIndex())); }

void OutboxDialog::refresh() {
  const OutboxSummary summary = program_.data().outboxSummary();
  pages_->setTabText(0, tr("Waiting (%1)").arg(summary.waiting));
  pages_->setTabText(1, tr("Sent"));
  pages_->setTabText(2, tr("Failed (%1)").arg(summary.failed));
  show(current());
}

void OutboxDialog::show(Tab& tab) {
  std::map<std::int64_t, QString> names;
  for (const Channel& channel : program_.data().channelsInForce()) {
    names.emplace(channel.id, displayText(channel.name));
  }
  std::vector<std::int64_t> chosen;
  for (const QModelIndex& index : tab.table->selectionModel()->selectedRows()) {
    chosen.push_back(tab.model->rowAt(index.row()).id);
  }
  tab.model->setRows(program_.data().outboxRows(tab.model->state()), std::move(names),
                     program_.services().clock.localNow());
  if (!tab.table->selectionModel()->hasSelection()) {
    for (const std::int64_t id : chosen) {
      if (const int row = tab.model->rowOf(id); row >= 0) {
        tab.table->selectionModel()->select(tab.model->index(row, 0),
                                            QItemSelectionModel::Select | QItemSelectionModel::Rows);
      }
    }
  }
  const bool isEmpty = tab.model->rowCount() == 0;
  tab.table->setVisible(!isEmpty);
  tab.table->setAccessibleName(pages_->tabText(pages_->currentIndex()));
  tab.empty->setVisible(isEmpty);
  showAnswer();
}

std::vector<int> OutboxDialog::chosenRows() {
  const Tab& tab = current();
  std::vector<int> rows;
  for (const QModelIndex& index : tab.table->selectionModel()->selectedRows()) {
    rows.push_back(index.row());
  }
  if (rows.empty()) {
    rows.resize(static_cast<std::size_t>(tab.model->rowCount()));
    std::iota(rows.begin(), rows.end(), 0);
  }
  std::ranges::sort(rows);
  return rows;
}

std::vector<std::int64_t> OutboxDialog::chosenAlerts() {
  std::vector<std::int64_t> ids;
  for (const int row : chosenRows()) {
    ids.push_back(current().model->rowAt(row).id);
  }
  return ids;
}

void OutboxDialog::showAnswer() {
  const Tab& tab = current();
  const QModelIndexList chosen = tab.table->selectionModel()->selectedRows();
  const QString words = chosen.isEmpty() ? QString() : wholeWords(tab.model->rowAt(chosen.front().row()));
  if (answer_->toPlainText() != words) {
    answer_->setPlainText(words);
  }
  const bool isThere = tab.model->rowCount() > 0;
  const bool isSent = tab.model->state() == OutboxRow::State::sent;
  btnRetry_->setEnabled(isThere && !isSent);
  btnDrop_->setEnabled(isThere && !isSent);
  btnCopy_->setEnabled(isThere);
  btnChannel_->setEnabled(openChannel_ && !chosen.isEmpty());
}

void OutboxDialog::retry() {
  program_.data().retryAlerts(chosenAlerts(), program_.services().clock.localNow());
  program_.data().delivery().deliver();
  refresh();
}

void OutboxDialog::drop() {
  const std::vector<int> rows = chosenRows();
  const std::vector<std::int64_t> ids = chosenAlerts();
  QStringList lines{rows.size() == 1 ? tr("This alert will not be delivered:")
                                     : tr("These %1 alerts will not be delivered:").arg(rows.size()),
                    QString()};
  for (std::size_t i = 0; i < rows.size() && i < kMostNamed; ++i) {
    lines << current().model->nameOf(rows[i]);
  }
  if (rows.size() > kMostNamed) {
    lines << tr("and %1 more").arg(rows.size() - kMostNamed);
  }
  lines << QString() << (rows.size() == 1 ? tr("Do You Want To Drop It?") : tr("Do You Want To Drop Them?"));
  ask(*this, program_, {.text = lines.join(QLatin1Char('\n')).toStdString(), .destroys = true}, [this, ids](bool yes) {
    if (yes) {
      program_.data().dropAlerts(ids);
      refresh();
    }
  });
}

void OutboxDialog::openChannel() {
  const QModelIndexList chosen = current().table->selectionModel()->selectedRows();
  if (!chosen.isEmpty()) {
    openChannel_(current().model->rowAt(chosen.front().row()).idChannel);
  }
}

void OutboxDialog::copy() {
  const OutboxModel& model = *current().model;
  QStringList lines;
  for (const int row : chosenRows()) {
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
      cells << model.index(row, column).data().toString();
    }
    lines << cells.join(QLatin1Char('\t'));
  }
  QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

std::function<void()> outboxOf(Program& program, QWidget& parent, OutboxDialog::OpenChannel openChannel) {
  return [&program, &parent, openChannel = std::move(openChannel), shown = QPointer<OutboxDialog>()]() mutable {
    // One that has been closed may not have been taken down yet.
    if (shown == nullptr || !shown->isVisible()) {
      shown = new OutboxDialog(program, openChannel, &parent);
      sizeToContents(*shown, parent);
      placeOver(*shown, parent);
      endModalityAt(*shown);
      shown->QDialog::show();
    }
    QDialog* dialog = dialogBefore(*shown);
    bringToFront(dialog != nullptr ? *dialog : *shown);
  };
}

}  // namespace tarnwick
