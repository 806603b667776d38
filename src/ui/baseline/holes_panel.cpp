// SPDX-License-Identifier: MIT
#include "ui/baseline/holes_panel.h"

#include <chrono>
#include <cmath>
#include <utility>
#include <QHBoxLayout>
#include <QLocale>
#include <QShortcut>
#include <QVBoxLayout>

#include "holes/page_text.h"
#include "ui/baseline/learn_dialog.h"
#include "ui/baseline/page_offsets.h"
#include "ui/baseline/rules_dialog.h"
#include "ui/baseline/share_words.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

// After the last keystroke, before the text is read as a whole.
constexpr std::chrono::milliseconds kSettled{200};

}  // namespace

HolesPanel::HolesPanel(Program& program, BaselineEdit& text, QWidget* parent)
    : QGroupBox(parent),
      program_(program),
      text_(text),
      model_(draft_),
      comparing_({program.data(), program.services().transfers, program.services().timers, program.services().clock}) {
  setObjectName(QStringLiteral("frameHoles"));
  settled_.setSingleShot(true);
  settled_.setInterval(kSettled);
  layOut();
  connectParts();
  showAll();
}

void HolesPanel::layOut() {
  watched_ = new AmberLine(this);
  watched_->setObjectName(QStringLiteral("holesWatched"));
  proposed_ = named(new QLabel(this), "holesProposed");
  proposed_->setTextFormat(Qt::PlainText);
  proposed_->setWordWrap(true);
  proposed_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  proposed_->hide();
  table_ = named(new HoleTable(this), "holes", tr("What may vary"));
  table_->setHoles(model_);
  btnMayVary_ = addButton(*this, "btnMayVary", tr("May &Vary Here"),
                          tr("Let the text that is selected on the left vary (Ctrl+M)"));
  btnLearn_ = addButton(*this, "btnLearn", tr("L&earn…"), tr("Fetch the page several times, and see what varies"));
  btnRules_ = addButton(*this, "btnRules", tr("&Rules…"), tr("Compare only parts of the page, or leave parts out"));
  btnRemove_ = addButton(*this, "btnRemove", tr("Re&move"), tr("Watch the chosen place again (Del)"));
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {btnMayVary_, btnLearn_, btnRules_, btnRemove_}) {
    buttons->addWidget(button);
  }
  auto* lines = new QVBoxLayout(this);
  lines->addWidget(watched_);
  lines->addWidget(proposed_);
  lines->addWidget(table_, 1);
  lines->addLayout(buttons);
  mayVary_ = new QAction(tr("May &Vary Here"), &text_);
  mayVary_->setObjectName(QStringLiteral("actionMayVary"));
  mayVary_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_M));
  mayVary_->setVisible(false);
  text_.addAction(mayVary_);
}

void HolesPanel::connectParts() {
  FaultBox& faults = program_.faults();
  const auto guarded = [this, &faults](auto handler) {
    return [&faults, this, handler] { faults.run([&] { handler(); }); };
  };
  connect(mayVary_, &QAction::triggered, this, guarded([this] { mayVaryHere(); }));
  onClick(*btnMayVary_, faults, [this] { mayVaryHere(); });
  onClick(*btnLearn_, faults, [this] { learn(); });
  onClick(*btnRules_, faults, [this] { chooseRules(); });
  onClick(*btnRemove_, faults, [this] { removeChosen(); });
  connect(new QShortcut(QKeySequence::Delete, table_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
          this, guarded([this] { removeChosen(); }));
  connect(&model_, &HoleTableModel::edited, this, [this] {
    edited_ = true;
    showWatched();
  });
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& row) { choose(row.row()); });
  connect(&text_, &QPlainTextEdit::textChanged, this, [this] {
    if (isVisible() && !text_.isReadOnly()) {
      settled_.start();
    }
  });
  connect(&text_, &QPlainTextEdit::selectionChanged, this, [this] { enableParts(); });
  connect(&settled_, &QTimer::timeout, this, guarded([this] { follow(); }));
}

void HolesPanel::start(std::int16_t idSite) {
  stored_ = program_.data().rulesOf(idSite);
  idSite_ = idSite;
  edited_ = false;
  draft_.start(stored_, pageText(text_.page()));
  if (hasAny()) {
    draft_.see(pageText(program_.data().getContentRuntime(idSite)));
  }
  showAll();
}

void HolesPanel::follow() {
  settled_.stop();
  draft_.follow(pageText(text_.page()));
  showAll();
}

std::optional<RuleSet> HolesPanel::toStore() {
  if (!edited_ && !hasAny()) {
    return std::nullopt;
  }
  follow();
  RuleSet set = draft_.set();
  return set == stored_ ? std::nullopt : std::optional(std::move(set));
}

void HolesPanel::mayVaryHere() {
  if (!btnMayVary_->isEnabled()) {
    return;
  }
  follow();
  const std::string page = text_.page();
  const PageOffsets offsets(page, draft_.baseline());
  const BaselineEdit::Part part = text_.selectedPart();
  const std::size_t entry = draft_.add(offsets.inText(part.begin), offsets.inText(part.end));
  editHoles();
  table_->setCurrentIndex(model_.index(static_cast<int>(entry), HoleTableModel::whatColumn));
}

void HolesPanel::openBefore(QDialog& dialog) {
  connect(&dialog, &QDialog::finished, this, [this] {
    if (!program_.services().pump.closing()) {
      window()->activateWindow();
    }
  });
  dialog.setAttribute(Qt::WA_DeleteOnClose);
  dialog.open();
  dialog.activateWindow();
}

void HolesPanel::learn() {
  follow();
  auto* dialog = new LearnDialog(program_, idSite_, text_.page(), window());
  connect(dialog, &LearnDialog::taken, this,
          [this](const Learnt& learnt) { program_.faults().run([&] { take(learnt); }); });
  openBefore(*dialog);
}

void HolesPanel::take(const Learnt& learnt) {
  if (draft_.baseline().empty()) {
    text_.setPage(learnt.firstCopy);
    draft_.follow(pageText(learnt.firstCopy));
    Q_EMIT pageTaken();
  }
  draft_.setHoles(united(draft_.placed(), learnt.holes));
  editHoles();
  table_->setFocus();
}

void HolesPanel::chooseRules() {
  follow();
  const std::string latest = program_.data().getContentRuntime(idSite_);
  const bool hasLatest = !latest.empty();
  auto* dialog = new RulesDialog(
      draft_.rules(),
      {hasLatest ? latest : text_.page(), hasLatest ? tr("The page of the latest check; what is left out is shaded")
                                                    : tr("The baseline; what is left out is shaded")},
      window());
  connect(dialog, &RulesDialog::taken, this, [this](const std::vector<PageRule>& rules) {
    draft_.setRules(rules);
    editHoles();
  });
  openBefore(*dialog);
}

void HolesPanel::removeChosen() {
  const int row = chosen();
  if (row < 0) {
    return;
  }
  draft_.remove(static_cast<std::size_t>(row));
  editHoles();
  if (model_.rowCount() > 0) {
    table_->setCurrentIndex(model_.index(std::min(row, model_.rowCount() - 1), HoleTableModel::whatColumn));
  }
}

void HolesPanel::editHoles() {
  edited_ = true;
  showAll();
}

void HolesPanel::showAll() {
  const QModelIndex current = table_->currentIndex();
  {
    const QSignalBlocker quiet(table_->selectionModel());
    model_.refresh();
    if (current.isValid() && current.row() < model_.rowCount()) {
      table_->setCurrentIndex(model_.index(current.row(), current.column()));
    }
  }
  markHoles();
  showWatched();
  enableParts();
}

void HolesPanel::markHoles() {
  std::vector<BaselineEdit::Part> parts;
  if (!text_.isReadOnly() && !draft_.entries().empty()) {
    const std::string page = text_.page();
    const PageOffsets offsets(page, draft_.baseline());
    for (const Hole& hole : draft_.placed()) {
      parts.push_back({offsets.inPage(hole.begin), offsets.inPage(hole.end())});
    }
  }
  text_.markParts(parts);
}

void HolesPanel::showWatched() {
  const double watched = draft_.watched();
  const bool isLittle = watched < kLeastWatched;
  setTitle(isLittle ? tr("What may vary") : tr("What may vary (%1 stays watched)").arg(shareWords(watched)));
  watched_->setText(isLittle ? tr("Only %1 stays watched").arg(shareWords(watched)) : QString());
  watched_->setVisible(isLittle);
  const std::size_t rules = draft_.rules().size();
  btnRules_->setText(rules == 0 ? tr("&Rules…") : tr("&Rules (%1)…").arg(rules));
}

void HolesPanel::enableParts() {
  const bool canMake = text_.textCursor().hasSelection() && !text_.isReadOnly();
  btnMayVary_->setEnabled(canMake);
  mayVary_->setEnabled(canMake);
  btnRemove_->setEnabled(chosen() >= 0);
}

void HolesPanel::choose(int row) {
  enableParts();
  if (row < 0 || text_.isReadOnly()) {
    return;
  }
  std::size_t mark = 0;
  for (int i = 0; i < row; ++i) {
    mark += draft_.entries()[static_cast<std::size_t>(i)].isLost ? 0U : 1U;
  }
  if (!draft_.entries()[static_cast<std::size_t>(row)].isLost) {
    text_.showMark(mark);
  }
}

int HolesPanel::chosen() const { return table_->currentIndex().isValid() ? table_->currentIndex().row() : -1; }

void HolesPanel::showEvent(QShowEvent* event) {
  QGroupBox::showEvent(event);
  mayVary_->setVisible(true);
  if (draft_.latest().empty() && !event->spontaneous()) {
    program_.faults().run([this] { draft_.see(pageText(program_.data().getContentRuntime(idSite_))); });
  }
  follow();
}

void HolesPanel::hideEvent(QHideEvent* event) {
  QGroupBox::hideEvent(event);
  mayVary_->setVisible(false);
}

}  // namespace tarnwick
