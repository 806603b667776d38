// SPDX-License-Identifier: MIT
#include "ui/main_window/first_steps.h"

#include <algorithm>
#include <optional>
#include <string>
#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>

#include "base/text.h"
#include "platform/address.h"
#include "program/site_draft.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr int kCharacters = 34;  // of an address, and of a step on its line

/// The address that somebody means who has typed it: nothing where it is none.
std::optional<std::string> addressOf(const QString& typed) {
  const std::string text(trimmed(typed.toStdString()));
  auto address = parseAddress(text);
  if (address && text.find("//") == std::string::npos) {
    address = parseAddress("https://" + text);
  }
  return address && isFetchedScheme(address->scheme) && !address->host.empty() ? std::optional(address->url)
                                                                               : std::nullopt;
}

QLabel* addStep(QGridLayout& layout, int row, const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  layout.addWidget(label, row, 0);
  return label;
}

}  // namespace

FirstSteps::FirstSteps(Program& program, SiteGridView& grid, NoticeBar& bar)
    : QWidget(grid.viewport()),
      program_(program),
      grid_(grid),
      address_(addText<QLineEdit>(*this, "firstAddress", tr("Which page shall be watched?"), kCharacters)),
      btnAdd_(addButton(*this, "firstAdd", tr("Add"))),
      fault_(named(new QLabel(this), "firstFault")),
      bar_(bar) {
  setObjectName(QStringLiteral("firstSteps"));
  setAccessibleName(tr("Add your first site"));
  address_->setPlaceholderText(QStringLiteral("https://"));
  fault_->setTextFormat(Qt::PlainText);
  fault_->setWordWrap(true);
  layOut();
  onClick(*btnAdd_, program_.faults(), [this] { add(); });
  connect(address_, &QLineEdit::returnPressed, btnAdd_, &QPushButton::click);
  connect(address_, &QLineEdit::textEdited, fault_, &QLabel::clear);
  bar_.step().makeClosable([this] { tellStep(0); });
  connect(&bar_.step(), &NoticeButton::clicked, this, [this] { program_.faults().run([this] { goOn(); }); });
  connect(&grid_, &SiteGridView::filled, this, &FirstSteps::follow);
  grid_.viewport()->installEventFilter(this);
  hide();
}

// Greyed: there is nothing to start yet, and nothing to be told of.
QPushButton* FirstSteps::laterStep(const char* name, const QString& caption) {
  QPushButton* button = addButton(*this, name, caption);
  button->setEnabled(false);
  return button;
}

void FirstSteps::layOut() {
  // On the white of the list, whatever the theme.
  QPalette ink;
  ink.setColor(QPalette::WindowText, Qt::black);
  setPalette(ink);
  auto* layout = new QGridLayout(this);
  auto* title = new QLabel(tr("Add your first site"));
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 1.5);
  title->setFont(large);
  layout->addWidget(title, 0, 0, 1, 3);
  addStep(*layout, 1, tr("1. Which page shall be watched?"));
  layout->addWidget(address_, 1, 1);
  layout->addWidget(btnAdd_, 1, 2);
  layout->addWidget(fault_, 2, 1, 1, 2);
  addStep(*layout, 3, tr("2. Start watching. The page as it is now becomes the baseline."));
  layout->addWidget(laterStep("firstStart", tr("Start (F5)")), 3, 1, Qt::AlignLeft);
  addStep(*layout, 4, tr("3. Be told when it changes or does not answer."));
  layout->addWidget(laterStep("firstHow", tr("Choose how…")), 4, 1, Qt::AlignLeft);
  addStep(*layout, 5, tr("You can also add many addresses at once, or import a list: the button List."));
  layout->setColumnStretch(0, 1);
  layout->setColumnMinimumWidth(0, fontMetrics().averageCharWidth() * kCharacters);
}

void FirstSteps::add() {
  const auto url = addressOf(address_->text());
  if (!url) {
    fault_->setText(tr("This is no address of a page: enter one like https://example.org/"));
    address_->setFocus();
    return;
  }
  const std::int16_t idSite = program_.data().addSite();
  SiteDraft site = readSite(program_.data(), idSite);
  site.url = *url;
  storeSite(program_.data(), idSite, site, {});
  address_->clear();
  program_.run().init();
  grid_.selectSite(idSite);
  grid_.setFocus();
  tellStep(program_.run().running() ? 3 : 2);
}

void FirstSteps::tellStep(int step) {
  step_ = step;
  const QString sentence = step == 2   ? tr("Step 2 of 3: start watching.")
                           : step == 3 ? tr("Step 3 of 3: be told when something happens.")
                                       : QString();
  bar_.tell(bar_.step(), sentence, step == 2 ? tr("Start") : tr("Choose How…"), grid_);
}

void FirstSteps::look() {
  if (step_ == 2 && program_.run().running()) {
    tellStep(3);
  }
}

void FirstSteps::goOn() {
  if (step_ == 2) {
    program_.startRun();
    return;
  }
  tellStep(0);
  if (chooseHow_) {
    chooseHow_();
  }
}

void FirstSteps::follow() {
  const bool isWanted = grid_.order().sourceModel()->rowCount() == 0;
  const bool begins = isWanted && !isVisible();
  setVisible(isWanted);
  place();
  if (begins) {
    tellStep(0);
    address_->setFocus();
  }
}

void FirstSteps::place() {
  const QRect room = grid_.viewport()->rect();
  const int width = std::min(room.width(), fontMetrics().averageCharWidth() * 120);
  const int height = heightForWidth(width) > 0 ? heightForWidth(width) : sizeHint().height();
  setGeometry((room.width() - width) / 2, (room.height() - height) / 3, width, height);
}

bool FirstSteps::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) {
    place();
  }
  return QWidget::eventFilter(watched, event);
}

// Keys that are none of a field's are not the list's either.
void FirstSteps::keyPressEvent(QKeyEvent* event) { event->accept(); }

}  // namespace tarnwick
