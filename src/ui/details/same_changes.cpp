// SPDX-License-Identifier: MIT
#include "ui/details/same_changes.h"

#include <algorithm>
#include <utility>
#include <QHBoxLayout>
#include <QSplitter>
#include <QVBoxLayout>

#include "ui/controls/boxes.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr QSize kUsualSize{760, 520};
constexpr std::size_t kMostPhrases = 2;
constexpr std::size_t kLongestPhrase = 60;

QString quoted(const std::string& bytes) {
  return QStringLiteral("“%1”").arg(displayText(bytes.substr(0, kLongestPhrase)).simplified());
}

}  // namespace

QString phraseWords(const ChangePhrases& phrases) {
  QStringList words;
  for (const ChangePhrase& phrase : phrases) {
    if (static_cast<std::size_t>(words.size()) == kMostPhrases) {
      words << SameChanges::tr("and %1 more").arg(phrases.size() - kMostPhrases);
      break;
    }
    words << (phrase.before.empty() ? SameChanges::tr("%1 has come").arg(quoted(phrase.after))
              : phrase.after.empty()
                  ? SameChanges::tr("%1 is gone").arg(quoted(phrase.before))
                  : SameChanges::tr("%1 became %2").arg(quoted(phrase.before), quoted(phrase.after)));
  }
  return words.join(QStringLiteral(", "));
}

SameChanges::SameChanges(Program& program, SiteSettling& settling, std::vector<std::int16_t> ids, QWidget* parent)
    : QDialog(parent),
      program_(program),
      settling_(settling),
      ids_(std::move(ids)),
      sentence_(named(new QLabel(this), "sameSentence")),
      list_(named(new QListWidget(this), "sameGroups", tr("Sites that have changed alike"))),
      example_(new DifferencePanel(program.services().clock, this)),
      accept_(addButton(*this, "sameAccept", tr("&Accept…"))) {
  setObjectName(QStringLiteral("frmSameChanges"));
  setWindowTitle(tr("Same Change on Many Sites"));
  layOut();
  read();
}

void SameChanges::layOut() {
  auto* parts = new QSplitter(Qt::Vertical, this);
  parts->addWidget(list_);
  parts->addWidget(example_);
  parts->setChildrenCollapsible(false);
  parts->setStretchFactor(0, 2);
  parts->setStretchFactor(1, 3);
  QPushButton* close = addButton(*this, "sameClose", tr("Close"));
  close->setDefault(true);
  auto* foot = new QHBoxLayout;
  foot->addStretch(1);
  foot->addWidget(accept_);
  foot->addWidget(close);
  auto* lines = new QVBoxLayout(this);
  lines->addWidget(sentence_);
  lines->addWidget(parts, 1);
  lines->addLayout(foot);
  resize(kUsualSize);
  onClick(*close, program_.faults(), [this] { reject(); });
  onClick(*accept_, program_.faults(), [this] { ask(); });
  connect(list_, &QListWidget::itemChanged, this, &SameChanges::tellCount);
  connect(list_, &QListWidget::currentRowChanged, this, [this] { program_.faults().run([this] { showExample(); }); });
}

void SameChanges::start(SlicedWork::Aim aim, SlicedWork::Next next, std::function<void()> finished) {
  accept_->setEnabled(false);
  work_ = std::make_unique<SlicedWork>(program_, aim, std::move(next), [this, finished = std::move(finished)] {
    if (work_ == nullptr || !work_->ended()) {
      return;
    }
    const auto work = std::exchange(work_, nullptr);
    program_.faults().run([&] {
      work->raiseFailure();
      finished();
    });
  });
}

void SameChanges::read() {
  sentence_->setText(tr("Comparing …"));
  example_->tell({});
  phrases_.clear();
  start(
      SlicedWork::Aim::read,
      [this](m& list) {
        if (phrases_.size() == ids_.size()) {
          return false;
        }
        phrases_.push_back(list.changeOf(ids_[phrases_.size()]));
        return true;
      },
      [this] { showGroups(); });
}

void SameChanges::showGroups() {
  groups_ = groupsOf(phrases_);
  list_->clear();
  for (const ChangeGroup& group : groups_) {
    const QString sites =
        group.pages.size() == 1 ? tr("Site %1").arg(ids_[group.pages.front()]) : tr("%1 sites").arg(group.pages.size());
    auto* item = new QListWidgetItem(QStringLiteral("%1: %2").arg(sites, phraseWords(group.phrases)), list_);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
  }
  sentence_->setText(groups_.empty() ? tr("No site has another page than its baseline.")
                                     : tr("Tick the changes that were meant:"));
  list_->setCurrentRow(groups_.empty() ? -1 : 0);
  tellCount();
}

void SameChanges::showExample() {
  const int row = list_->currentRow();
  if (row < 0) {
    example_->tell({});
    return;
  }
  const std::int16_t id = ids_[groups_.at(static_cast<std::size_t>(row)).pages.front()];
  ToSettle found = program_.data().toSettle(id);
  example_->compare(comparedPages(found), tr("What changed in site %1").arg(id));
}

std::vector<std::size_t> SameChanges::chosen() const {
  std::vector<std::size_t> pages;
  for (int row = 0; row < list_->count(); ++row) {
    if (list_->item(row)->checkState() == Qt::Checked) {
      std::ranges::copy(groups_.at(static_cast<std::size_t>(row)).pages, std::back_inserter(pages));
    }
  }
  return pages;
}

void SameChanges::tellCount() {
  const std::size_t count = chosen().size();
  accept_->setText(count == 0 ? tr("&Accept…") : tr("&Accept %1…").arg(count));
  accept_->setEnabled(count > 0 && work_ == nullptr);
}

void SameChanges::ask() {
  const std::size_t count = chosen().size();
  const QString question = (count == 1 ? tr("The latest page of 1 site becomes its baseline.")
                                       : tr("The latest pages of %1 sites become their baselines.").arg(count)) +
                           QLatin1Char('\n') + tr("The baselines before are kept. Do You Want To Accept Them?");
  tarnwick::ask(*this, program_, {.text = question.toStdString(), .destroys = true}, [this](bool yes) {
    if (yes) {
      acceptChosen();
    }
  });
}

// A page that has come meanwhile is taken if it has changed alike, and no other.
void SameChanges::acceptChosen() {
  const auto accepted = std::make_shared<Accepted>();
  start(
      SlicedWork::Aim::write,
      [this, accepted, pages = chosen(), next = std::size_t{0}](m& list) mutable {
        if (next == pages.size()) {
          return false;
        }
        const std::size_t page = pages[next++];
        const ToSettle found = list.toSettle(ids_[page]);
        const bool isMeant = found.state == ToSettle::State::differs && !found.isDoubtful() &&
                             list.changeOf(ids_[page]) == phrases_[page];
        if (isMeant) {
          list.accept(ids_[page], found.page, AcceptAs::baseline);
          accepted->taken.push_back(ids_[page]);
        } else {
          ++accepted->left;
        }
        return true;
      },
      [this, accepted] { finishAccepting(*accepted); });
}

void SameChanges::finishAccepting(const Accepted& accepted) {
  settling_.finish(0);
  if (!accepted.taken.empty()) {
    Q_EMIT settling_.accepted(accepted.taken);
  }
  if (accepted.left > 0) {
    const QString words =
        tr("%1 of %2 stay as they are: they have another page by now, or one that looks like an error.")
            .arg(accepted.left)
            .arg(accepted.left + accepted.taken.size());
    tell(*this, program_, words.toStdString());
  }
  read();
}

void SameChanges::done(int result) {
  work_.reset();
  QDialog::done(result);
  deleteLater();
}

}  // namespace tarnwick
