// SPDX-License-Identifier: MIT
#include "ui/main_window/master.h"

#include <chrono>
#include <exception>
#include <utility>
#include <QApplication>
#include <QCloseEvent>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDir>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include "base/product.h"
#include "ui/controls/boxes.h"
#include "ui/controls/display_text.h"
#include "ui/controls/page_opener.h"
#include "ui/controls/program_file.h"
#include "ui/history/history_window.h"
#include "ui/main_window/address_paste.h"
#include "ui/main_window/click_rule.h"
#include "ui/main_window/column_choice.h"
#include "ui/main_window/damage_box.h"
#include "ui/main_window/first_steps.h"
#include "ui/main_window/grid_filling.h"
#include "ui/main_window/master_pictures.h"
#include "ui/main_window/notice_actions.h"
#include "ui/main_window/site_extras.h"
#include "ui/main_window/site_menu.h"
#include "ui/main_window/undo_notice.h"

namespace tarnwick {
namespace {

const QString kHelpFile = QStringLiteral("/help.html");
constexpr QSize kDefaultSize{820, 580};
constexpr QSize kSmallestSize{660, 380};

/// A folder in the user's home as a shell writes it: the foot line has little room.
QString withTilde(const QString& folder) {
  const QString home = QDir::toNativeSeparators(QDir::homePath()) + QDir::separator();
  return folder.startsWith(home) ? QLatin1Char('~') + folder.mid(home.size() - 1) : folder;
}

/// Lets the window appear with what it shows now; nothing is typed or clicked meanwhile. A desktop that does not show
/// it is not waited for.
void awaitFirstSight(const QWindow& window) {
  constexpr std::chrono::milliseconds kLongest{500};
  const QDeadlineTimer end(kLongest);
  while (!window.isExposed() && !end.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
  }
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

Master::Master(std::string programFolder, const Services& services, const Fields& fields)
    : program_(std::move(programFolder), services, *this, fields) {
  extras_ = new SiteExtras(program_, sites_, this);
  auto* canvas = new QWidget(this);
  controls_ = layOutMaster(*canvas, sites_);
  setCentralWidget(canvas);
  notices_ = new Notices(program_, *controls_.noticeBar, *controls_.grid1, this);
  marks_ = new AlarmMarks(program_, sites_, this);
  filling_ = new GridFilling(program_, *controls_.grid1, this);
  connect(filling_, &GridFilling::ended, this, [this] {
    marks_->look();
    extras_->look();
  });
  menu_ = new SiteMenu(program_, *controls_.grid1, *controls_.pauseAll, this);
  connect(menu_, &SiteMenu::alwaysChanges, this,
          [this](std::int16_t idSite) { program_.faults().run([&] { editors_.site.propose(idSite); }); });
  details_ = new DetailsArea(program_, *canvas, controls_, this);
  details_->addTo(menu_->rowMenu(), menu_->actions().undoList());
  new UndoNotice(menu_->actions(), *controls_.noticeBar, *controls_.undo, *controls_.grid1, this);
  connect(marks_, &AlarmMarks::pauseRead, notices_, &Notices::tellPaused);
  search_ = new SiteSearch(program_, *controls_.grid1, controls_.search, *controls_.originalOrder, this);
  connect(extras_, &SiteExtras::sorted, search_, &SiteSearch::renewSoon);
  const HistorySites sites{.find = [this](const QString& line) { return search_->sitesFoundBy(line); },
                           .show = [this](std::int16_t idSite) { details_->showHistory(idSite); }};
  connect(controls_.history, &QAction::triggered, this,
          [this, open = historyOf(program_, *this, sites)] { program_.faults().run([&] { open(); }); });
  columns_ = new ColumnChoice(*extras_, *controls_.grid1, *controls_.columns, this);
  click_ = new ClickRule(*controls_.grid1, *controls_.clickRule, this);
  steps_ = new FirstSteps(program_, *controls_.grid1, *controls_.noticeBar);
  steps_->setChooseHow([this] {
    if (editors_.channels) {
      editors_.channels();
    }
  });
  setObjectName(QStringLiteral("master"));
  setAccessibleName(QString::fromLatin1(kProductName));
  setWindowTitle(QString::fromLatin1(kProductName));
  setMinimumSize(kSmallestSize);
  resize(kDefaultSize.boundedTo(screen()->availableSize()));
  connectControls();
  setEditors({});
  controls_.grid1->setReasons([this](std::int16_t idSite) { return reasonOf(idSite); });
  controls_.grid1->setFocus();
}

// Windows are hidden while they are whole: their bases would do it, and views then ask for what is gone. The dialogs go
// before the program they know.
Master::~Master() {
  for (QDialog* dialog : findChildren<QDialog*>()) {
    dialog->hide();
  }
  hide();
  qDeleteAll(findChildren<QDialog*>(Qt::FindDirectChildrenOnly));
  delete menu_;
}

void Master::rememberIn(UserHabits& habits) {
  details_->rememberIn(habits);
  columns_->rememberIn(habits);
  click_->rememberIn(habits);
  search_->rememberIn(habits);
}

bool Master::load() {
  return loaded_ = openOrOfferCopy(
                       program_, [this] { Form_Load(); }, [this] { load(); }) ||
                   loaded_;
}

void Master::Form_Load() try {
  showStatus("Loading ...");
  program_.data();  // without which there is nothing to show
  show();
  awaitFirstSight(*windowHandle());
  fullInit();
  tellNotice();
} catch (...) {
  hide();
  throw;
}

void Master::tellNotice() {
  const QString folder = QDir::toNativeSeparators(QString::fromStdString(program_.programFolder()));
  QString notice = tr("Tarnwick web-site monitor. Copyright © the Tarnwick developers.");
  if (program_.programFolder() != QCoreApplication::applicationDirPath().toStdString()) {
    notice += QLatin1Char(' ') + tr("Your data: %1").arg(withTilde(folder));
  }
  controls_.copyright->setText(notice);
  const QString about = tr("%1 %2 keeps your sites and settings in the folder %3")
                            .arg(QString::fromLatin1(kProductName), QStringLiteral(TARNWICK_VERSION), folder);
  for (QLabel* label : {controls_.copyright, controls_.lblVersion}) {
    explain(*label, about);
  }
}

void Master::fullInit() {
  controls_.lblVersion->setText(
      QStringLiteral("Version:%1.%2").arg(TARNWICK_VERSION_MAJOR).arg(TARNWICK_VERSION_MINOR));
  loadPictures(controls_, program_.programFolder());
  controls_.lClock->clear();
  setupGridHeader();
  controls_.pb1->fill();
  followDelivery(program_, *notices_, *controls_.grid1, *details_);
  program_.start();
}

QString Master::fileOf(const QString& name) const { return programFile(program_.programFolder(), name); }

void Master::setupGridHeader() { sites_.setSites(TextTable()); }

void Master::connectControls() {
  connectAction(controls_.start, Qt::Key_F5, &Master::btnStart_Click);
  connectAction(controls_.stop, Qt::SHIFT | Qt::Key_F5, &Master::btnStop_Click);
  connectAction(controls_.makeNew, QKeySequence::New, &Master::btnNew_Click);
  connectAction(controls_.setup, {}, &Master::btnSetup_Click);
  connect(controls_.importList, &QAction::triggered, this, [this] { program_.faults().run(editors_.importList); });
  connect(controls_.exportList, &QAction::triggered, this, [this] { program_.faults().run(editors_.exportList); });
  followAddresses(*controls_.grid1, *controls_.addAddresses,
                  [this](const QString& text) { program_.faults().run([&] { editors_.addAddresses(text); }); });
  connect(controls_.outbox, &QAction::triggered, this, [this] { program_.faults().run(editors_.outbox); });
  connect(notices_, &Notices::outboxWanted, controls_.outbox, &QAction::trigger);
  connect(notices_, &Notices::channelsWanted, this, [this] {
    if (editors_.channels) {
      program_.faults().run(editors_.channels);
    }
  });
  connect(controls_.grid1, &SiteGridView::rowChosen, this, &Master::grid1_Click);
  connect(controls_.Label1, &LinkButton::clicked, this, &Master::Label1_Click);
  // In every window of the program.
  auto* help = new QShortcut(Qt::Key_F1, this);
  help->setContext(Qt::ApplicationShortcut);
  connect(help, &QShortcut::activated, this, &Master::Label1_Click);
  connect(controls_.imgLogoSmall, &PictureButton::clicked, this, &Master::imgLogoSmall_Click);
}

void Master::connectAction(const ActionControls& action, const QKeySequence& shortcut, void (Master::*handler)()) {
  connect(action.image, &PictureButton::clicked, this, handler);
  connect(action.button, &QPushButton::clicked, this, handler);
  if (!shortcut.isEmpty()) {
    connect(new QShortcut(shortcut, this), &QShortcut::activated, this, handler);
  }
}

void Master::setEditors(Editors editors) {
  editors_ = std::move(editors);
  details_->setAlarmEditor(editors_.site.openAlarm);
  const QString toolTip =
      editors_.settings
          ? tr("Change the settings")
          : tr("The settings are kept in the table \"control\" of the database; this window cannot change them");
  controls_.setup.allow(static_cast<bool>(editors_.settings), toolTip);
  controls_.importList->setEnabled(static_cast<bool>(editors_.importList));
  controls_.exportList->setEnabled(static_cast<bool>(editors_.exportList));
  controls_.addAddresses->setEnabled(static_cast<bool>(editors_.addAddresses));
  controls_.outbox->setEnabled(static_cast<bool>(editors_.outbox));
}

void Master::btnStart_Click() { program_.startRun(); }
void Master::btnStop_Click() { program_.stopRun(); }

void Master::btnNew_Click() {
  program_.faults().run([this] {
    if (editors_.site.openNew) {
      editors_.site.openNew([this] { return addSite(); });
    } else {
      addSite();
    }
  });
}

std::int16_t Master::addSite() {
  const std::int16_t idSite = program_.data().addSite();
  program_.run().init();
  controls_.grid1->selectSite(idSite);
  return idSite;
}

void Master::btnSetup_Click() { program_.faults().run(editors_.settings); }

void Master::grid1_Click(int row) {
  if (const auto idSite = sites_.siteOfRow(row)) {
    controls_.grid1->selectSite(*idSite);
    if (editors_.site.open) {
      program_.faults().run([&] { editors_.site.open(*idSite); });
    }
  }
}

void Master::Label1_Click() { openPage(program_.services(), fileOf(kHelpFile).toStdString()); }

void Master::imgLogoSmall_Click() { visitPage(program_.services(), kProductHomePage); }

}  // namespace tarnwick
