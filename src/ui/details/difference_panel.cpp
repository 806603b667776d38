// SPDX-License-Identifier: MIT
#include "ui/details/difference_panel.h"

#include <utility>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/controls/dialog_parts.h"

namespace tarnwick {
namespace {

/// Beside the layouts of a difference.
constexpr int kAsSeen = -1;

}  // namespace

DifferencePanel::DifferencePanel(const Clock& clock, QWidget* parent)
    : QWidget(parent),
      corner_(named(new QWidget(this), "differenceCorner")),
      heads_(new PageHeads(this)),
      place_(named(new QLabel(corner_), "differencePlace")) {
  previous_ = addTool("differencePrevious", QStringLiteral("▲"), tr("Previous change"), Qt::SHIFT | Qt::Key_F3);
  next_ = addTool("differenceNext", QStringLiteral("▼"), tr("Next change"), Qt::Key_F3);
  layouts_ = named(new QComboBox(corner_), "differenceLayout", tr("How both pages are laid out"));
  layouts_->addItem(tr("Side by side"), static_cast<int>(DifferenceLayout::sideBySide));
  layouts_->addItem(tr("Unified"), static_cast<int>(DifferenceLayout::unified));
  layouts_->addItem(tr("As seen"), kAsSeen);
  layouts_->addItem(tr("Bytes (hex)"), static_cast<int>(DifferenceLayout::hex));
  layouts_->setToolTip(layouts_->accessibleName());
  invisible_ = addTool("differenceInvisible", QStringLiteral("¶"), tr("Show blanks, tabs and line ends"), {});
  invisible_->setCheckable(true);
  pages_ = new QStackedWidget(this);
  view_ = named(new DifferenceView(clock, pages_), "difference", tr("What changed"));
  seen_ = new SeenView(pages_);
  pages_->addWidget(view_);
  pages_->addWidget(seen_);
  layOut();
  tellPlace();
  connect(previous_, &QToolButton::clicked, this, [this] { view_->goOn(-1); });
  connect(next_, &QToolButton::clicked, this, [this] { view_->goOn(1); });
  connect(layouts_, &QComboBox::activated, this, [this] {
    isChosen_ = true;
    chooseLayout();
  });
  connect(invisible_, &QToolButton::toggled, view_, &DifferenceView::setInvisible);
  connect(view_, &DifferenceView::moved, this, &DifferencePanel::tellPlace);
  connect(view_, &DifferenceView::compared, this, &DifferencePanel::tellPlace);
}

QToolButton* DifferencePanel::addTool(const char* name, const QString& sign, const QString& words,
                                      const QKeySequence& key) {
  auto* tool = named(new QToolButton(corner_), name, words);
  tool->setText(sign);
  tool->setAutoRaise(true);
  tool->setFocusPolicy(Qt::StrongFocus);
  tool->setShortcut(key);
  tool->setToolTip(key.isEmpty() ? words
                                 : QStringLiteral("%1 (%2)").arg(words, key.toString(QKeySequence::NativeText)));
  return tool;
}

void DifferencePanel::layOut() {
  auto* tools = new QHBoxLayout(corner_);
  tools->setContentsMargins({});
  tools->setSpacing(4);
  tools->addWidget(place_);
  tools->addStretch(1);
  for (QWidget* tool : {static_cast<QWidget*>(previous_), static_cast<QWidget*>(next_), static_cast<QWidget*>(layouts_),
                        static_cast<QWidget*>(invisible_)}) {
    tools->addWidget(tool);
  }
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins({});
  lines->setSpacing(2);
  lines->addWidget(corner_);
  lines->addWidget(heads_);
  lines->addWidget(pages_, 1);
}

// What is no text is shown as bytes, until somebody wants it otherwise.
void DifferencePanel::compare(ComparedPages pages, const QString& name) {
  name_ = name;
  const bool isBinary = pageFormOf(pages.before) == PageForm::binary || pageFormOf(pages.after) == PageForm::binary;
  if (!isChosen_) {
    const auto layout = isBinary ? DifferenceLayout::hex : DifferenceLayout::sideBySide;
    layouts_->setCurrentIndex(layouts_->findData(static_cast<int>(layout)));
    view_->setDifferenceLayout(layout);
  }
  view_->compare(std::move(pages));
  chooseLayout();
}

void DifferencePanel::chooseLayout() {
  const int layout = layouts_->currentData().toInt();
  const bool isSeen = layout == kAsSeen && view_->hasPages();
  if (isSeen) {
    seen_->showPages(view_->pages());
  } else {
    seen_->clear();
  }
  if (layout != kAsSeen) {
    view_->setDifferenceLayout(static_cast<DifferenceLayout>(layout));
  }
  pages_->setCurrentWidget(isSeen ? static_cast<QWidget*>(seen_) : view_);
  tellPlace();
}

void DifferencePanel::tell(const QString& sentence) {
  name_ = sentence.isEmpty() ? tr("What changed") : sentence;
  heads_->tell({}, {});
  view_->tell(sentence);
  chooseLayout();
}

void DifferencePanel::tellPlace() {
  const int changes = view_->changes();
  const bool asOne = view_->difference() != nullptr && view_->difference()->shownAsOne;
  const QString count = asOne          ? tr("more than %1 changes, shown as one").arg(kMostChanges)
                        : changes == 1 ? tr("1 change")
                                       : tr("%1 changes").arg(changes);
  place_->setText(view_->difference() == nullptr ? QString()
                  : changes > 1 && view_->currentChange() >= 0
                      ? tr("Change %1 of %2").arg(view_->currentChange() + 1).arg(changes)
                      : count);
  view_->setAccessibleName(view_->difference() == nullptr ? name_ : QStringLiteral("%1: %2").arg(name_, count));
  previous_->setEnabled(changes > 0 && !isSeen());
  next_->setEnabled(changes > 0 && !isSeen());
  layouts_->setEnabled(view_->difference() != nullptr);
  invisible_->setEnabled(view_->difference() != nullptr && !isSeen());
}

}  // namespace tarnwick
