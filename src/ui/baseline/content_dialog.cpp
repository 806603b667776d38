// SPDX-License-Identifier: MIT
#include "ui/baseline/content_dialog.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QPointer>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

#include "program/site_draft.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/placement.h"

namespace tarnwick {
namespace {

constexpr QPoint kBesideCorner{30, 30};
constexpr QSize kDefaultSize{760, 480};
constexpr int kWidthWithHoles = 1000;

std::string foreignMessage(const QString& character) {
  return QObject::tr(
             "This page is stored in the Windows-1252 character set, which has no \"%1\". Delete the "
             "character that is selected now or type another one, then press OK again.")
      .arg(character)
      .toStdString();
}

}  // namespace

ContentDialog::ContentDialog(Program& program, QWidget* below) : QDialog(below), program_(program) {
  setObjectName(QStringLiteral("frmContent"));
  setWindowTitle(tr("Content"));
  layOut();
  Form_Load();
}

void ContentDialog::layOut() {
  auto* content = addFrame(*this, "Frame2", tr("Content"));
  tContent_ = named(new BaselineEdit(content), "tContent", tr("Content"));
  auto* contentLines = new QVBoxLayout(content);
  contentLines->addWidget(tContent_);
  holes_ = new HolesPanel(program_, *tContent_, this);
  holes_->hide();
  auto* sides = new QSplitter(this);
  sides->setObjectName(QStringLiteral("contentSplitter"));
  sides->setChildrenCollapsible(false);
  sides->addWidget(content);
  sides->addWidget(holes_);
  sides->setStretchFactor(0, 1);

  auto* frame = addFrame(*this, "Frame1", tr("Url: "));
  address_ = named(new StatusLine(frame), "lblUrl", tr("Url"));
  btnHoles_ = addButton(*frame, "btnHoles", tr("&Holes"), tr("Show what may vary in the page, and choose it"));
  btnHoles_->setCheckable(true);
  btnLoad_ = addButton(*frame, "btnLoad", tr("&Load From Url"), tr("Fetch the page now; nothing is stored yet"));
  btnOk_ = addButton(*frame, "btnOk", tr("O&K"), tr("Store this content and close"));
  btnCancel_ = addButton(*frame, "btnCancel", tr("Cancel"), tr("Close without storing (Esc)"));
  btnOk_->setDefault(true);
  connect(btnHoles_, &QPushButton::toggled, this,
          [this](bool shown) { program_.faults().run([&] { showHoles(shown); }); });
  connect(holes_, &HolesPanel::pageTaken, this, [this] { fetched_ = true; });
  onClick(*btnLoad_, program_.faults(), [this] { btnLoad_Click(); });
  onClick(*btnOk_, program_.faults(), [this] { btnOk_Click(); });
  onClick(*btnCancel_, program_.faults(), [this] { btnCancel_Click(); });

  auto* buttons = new QHBoxLayout(frame);
  buttons->addWidget(address_, 1);
  for (QPushButton* button : {btnHoles_, btnLoad_, btnOk_, btnCancel_}) {
    buttons->addWidget(button);
  }
  auto* all = new QVBoxLayout(this);
  all->addWidget(sides, 1);
  all->addWidget(frame);
  tContent_->setFocus();
}

void ContentDialog::Form_Load() {
  resize(kDefaultSize);
  const QWidget& below = *parentWidget();
  if (!below.isMinimized() && !below.isMaximized()) {
    placeAt(*this, below, kBesideCorner);
  }
}

void ContentDialog::populateMe(std::int16_t idSite) {
  idSite_ = idSite;
  address_->showText(displayText(program_.data().getUrl(idSite)));
  tContent_->setPage(program_.data().getContentCompare(idSite));
  holes_->start(idSite);
  btnHoles_->setChecked(holes_->hasAny());
}

void ContentDialog::proposeChanges(std::int16_t idSite) {
  populateMe(idSite);
  btnHoles_->setChecked(true);
  holes_->propose();
}

void ContentDialog::setLoading(bool loading) {
  loading_ = loading;
  btnLoad_->setEnabled(!loading);
  btnOk_->setEnabled(!loading);
  holes_->setEnabled(!loading);
}

void ContentDialog::showHoles(bool shown) {
  holes_->setVisible(shown);
  if (shown && width() < kWidthWithHoles && !isMaximized()) {
    const QRect room = screen()->availableGeometry();
    resize(std::min(kWidthWithHoles, room.width() - (frameGeometry().width() - width())), height());
    move(clampedTo(room, pos(), frameGeometry().size()));
  }
}

void ContentDialog::btnLoad_Click() {
  // A failure to begin leaves everything as it is.
  program_.data().fetchPage(idSite_, [self = QPointer<ContentDialog>(this)](const std::string& page) {
    if (self != nullptr && self->isVisible()) {
      self->showFetched(page);
    }
  });
  tContent_->showNotice(tr("LOADING: Please Wait ..."));
  setLoading(true);
}

void ContentDialog::showFetched(const std::string& page) {
  tContent_->setPage(page);
  fetched_ = true;
  setLoading(false);
  if (holes_->hasAny()) {
    holes_->follow();
  }
  tContent_->setFocus();
}

void ContentDialog::btnOk_Click() {
  const std::string page = tContent_->page();
  if (const auto character = tContent_->selectForeign()) {
    tell(*this, program_, foreignMessage(*character), [this] { tContent_->setFocus(); });
    return;
  }
  requireSite(program_.data(), idSite_);
  if (const auto rules = holes_->toStore()) {
    Transaction whole(program_.data().database());
    program_.data().updateContentCompare(idSite_, page);
    program_.data().storeRules(idSite_, *rules);
    whole.commit();
  } else {
    program_.data().updateContentCompare(idSite_, page);
  }
  formExit();
}

QString ContentDialog::unsavedEdits() const {
  return fetched_ || tContent_->isEdited() || holes_->isEdited() ? tr("the content of site %1").arg(idSite_)
                                                                 : QString();
}

void ContentDialog::btnCancel_Click() { reject(); }

void ContentDialog::reject() {
  if (loading_) {
    program_.data().single().sInet().cancel();
  }
  formExit();
}

void ContentDialog::formExit() { done(QDialog::Rejected); }

}  // namespace tarnwick
