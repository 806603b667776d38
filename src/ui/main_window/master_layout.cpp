// SPDX-License-Identifier: MIT
#include "ui/main_window/master_layout.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QVBoxLayout>

#include "platform/prompts.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/dialog_parts.h"

namespace tarnwick {
namespace {

// The original margin and the distances between groups of controls.
constexpr int kMargin = 10;
constexpr int kGroupGap = 10;
constexpr int kHeaderGap = 24;
constexpr int kLampGap = 12;

struct ActionTexts {
  const char* image;
  const char* button;
  QString caption;
  QString name;
  QString toolTip;
};

ActionControls makeAction(QWidget& canvas, const ActionTexts& texts) {
  // One mnemonic each: the picture shows the same caption without one.
  const ActionControls action{named(new PictureButton(texts.name, &canvas), texts.image, texts.name),
                              named(new QPushButton(texts.caption, &canvas), texts.button, texts.name)};
  action.image->setToolTip(texts.toolTip);
  action.button->setToolTip(texts.toolTip);
  return action;
}

void makeActions(QWidget& canvas, MasterControls& controls) {
  controls.start = makeAction(canvas, {"imgStart", "btnStart", QObject::tr("&Start"), QObject::tr("Start"),
                                       QObject::tr("Start a run: tests every active site now (F5)")});
  controls.stop = makeAction(canvas, {"imgStop", "btnStop", QObject::tr("S&top"), QObject::tr("Stop"),
                                      QObject::tr("Stop the run (Shift+F5)")});
  controls.makeNew = makeAction(
      canvas, {"imgNew", "btnNew", QObject::tr("&New"), QObject::tr("New"), QObject::tr("Add a site (Ctrl+N)")});
  controls.setup = makeAction(canvas, {"imgSetup", "btnSetup", QObject::tr("Set&up"), QObject::tr("Setup"), QString()});
}

void makeListMenu(QWidget& canvas, MasterControls& controls) {
  controls.listButton = named(new QPushButton(QObject::tr("&List"), &canvas), "listButton", QObject::tr("List: menu"));
  controls.listButton->setToolTip(QObject::tr("What is done with the list as a whole"));
  auto* menu = new QMenu(controls.listButton);
  controls.columns = menu->addMenu(QObject::tr("&Columns"));
  controls.columns->setObjectName(QStringLiteral("columns"));
  controls.originalOrder = menu->addAction(QObject::tr("O&riginal Order"));
  controls.originalOrder->setObjectName(QStringLiteral("originalOrder"));
  controls.clickRule = menu->addMenu(QObject::tr("A Clic&k on a Row"));
  controls.clickRule->setObjectName(QStringLiteral("clickRule"));
  menu->addSeparator();
  controls.addAddresses = menu->addAction(QObject::tr("&Add Addresses…") + QLatin1Char('\t') +
                                          QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText));
  controls.addAddresses->setObjectName(QStringLiteral("addAddresses"));
  controls.importList = menu->addAction(QObject::tr("&Import..."));
  controls.importList->setObjectName(QStringLiteral("importList"));
  controls.exportList = menu->addAction(QObject::tr("&Export…"));
  controls.exportList->setObjectName(QStringLiteral("exportList"));
  controls.history = menu->addAction(QObject::tr("&History of All Sites…"));
  controls.history->setObjectName(QStringLiteral("historyOfAll"));
  controls.history->setShortcut(Qt::CTRL | Qt::Key_H);
  controls.outbox = menu->addAction(QObject::tr("&Outbox…"));
  controls.outbox->setObjectName(QStringLiteral("outbox"));
  controls.outbox->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_O);
  // Their keys hold in the window, not in the menu alone.
  canvas.addActions({controls.history, controls.outbox});
  controls.pauseAll = menu->addMenu(QObject::tr("&Pause All"));
  controls.pauseAll->setObjectName(QStringLiteral("pauseAll"));
  menu->addSeparator();
  controls.undo = menu->addAction(QString());
  controls.undo->setObjectName(QStringLiteral("undo"));
  controls.listButton->setMenu(menu);
}

std::array<Lamp*, 3> makeLamps(QWidget& canvas) {
  const auto lamp = [&](const char* name, const QString& state, std::string_view dim, std::string_view bright) {
    return new Lamp(QString::fromLatin1(name), state, colourFromText(dim), colourFromText(bright), &canvas);
  };
  return {lamp("indicator1", QObject::tr("Stopped"), colours::kRedDim, colours::kRedBright),
          lamp("indicator2", QObject::tr("Waiting"), colours::kYellowDim, colours::kYellowBright),
          lamp("indicator3", QObject::tr("Testing"), colours::kGreenDim, colours::kGreenBright)};
}

QLayout* headerOf(const MasterControls& controls) {
  auto* lamps = new QHBoxLayout;
  lamps->setSpacing(kLampGap);
  for (Lamp* lamp : controls.lamps) {
    lamps->addWidget(lamp);
  }
  auto* right = new QVBoxLayout;
  right->setSpacing(2);
  right->addWidget(controls.lClock, 0, Qt::AlignRight);
  right->addLayout(lamps);
  auto* header = new QHBoxLayout;
  header->setSpacing(kHeaderGap);
  header->addWidget(controls.imgLogoSmall, 0, Qt::AlignVCenter);
  header->addLayout(right, 1);
  return header;
}

QLayout* buttonsOf(const MasterControls& controls) {
  const std::array<ActionControls, 4> actions = {controls.start, controls.stop, controls.makeNew, controls.setup};
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  for (const ActionControls& action : actions) {
    row->addWidget(action.image);
  }
  auto* strip = new QHBoxLayout;
  strip->setSpacing(6);
  strip->addWidget(controls.search.filterEdit, 1);
  strip->addWidget(controls.search.filterCount);
  strip->addWidget(controls.search.sortChip);
  strip->addWidget(controls.listButton);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(6);
  buttons->addStretch(1);
  for (const ActionControls& action : actions) {
    buttons->addWidget(action.button);
  }
  // The strip above the buttons, beside the pictures.
  auto* right = new QVBoxLayout;
  right->setSpacing(0);
  right->addLayout(strip);
  right->addStretch(1);
  right->addLayout(buttons);
  row->addLayout(right, 1);
  return row;
}

QLayout* footOf(const MasterControls& controls) {
  auto* foot = new QHBoxLayout;
  foot->setSpacing(2 * kGroupGap);
  foot->addWidget(controls.copyright, 1);
  foot->addWidget(controls.Label1);
  foot->addWidget(controls.lblVersion);
  return foot;
}

QLabel* plainLabel(QWidget& canvas) {
  auto* label = new QLabel(&canvas);
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

void ActionControls::allow(bool enabled, const QString& toolTip) const {
  for (QWidget* widget : {static_cast<QWidget*>(image), static_cast<QWidget*>(button)}) {
    widget->setEnabled(enabled);
    widget->setToolTip(toolTip);
  }
}

MasterControls layOutMaster(QWidget& canvas, SiteGridModel& sites) {
  // The order of making is the order of the Tab key.
  MasterControls controls{};
  makeActions(canvas, controls);
  controls.search = makeSearch(canvas);
  makeListMenu(canvas, controls);
  controls.grid1 = named(new SiteGridView(sites, &canvas), "grid1", QObject::tr("Sites"));
  controls.noticeBar = named(new NoticeBar(&canvas), "noticeBar", QObject::tr("Notices"));
  controls.Label1 = named(new LinkButton(QObject::tr("Online Help"), &canvas), "Label1", QObject::tr("Online Help"));
  controls.Label1->setToolTip(QObject::tr("Open the help page (F1)"));
  controls.imgLogoSmall = named(new PictureButton(QString::fromLatin1(kProductName), &canvas), "imgLogoSmall",
                                QObject::tr("%1 home page").arg(QString::fromLatin1(kProductName)));
  controls.imgLogoSmall->setToolTip(QObject::tr("Open the home page"));
  controls.imgLogoSmall->setCursor(Qt::PointingHandCursor);

  controls.lamps = makeLamps(canvas);
  controls.lClock = named(plainLabel(canvas), "lClock", QString());
  // Room for the clock from the start, so that nothing moves when it first shows.
  controls.lClock->setMinimumHeight(controls.lClock->fontMetrics().height());
  controls.lStatus = named(new StatusLine(&canvas), "lStatus", QObject::tr("Status"));
  controls.lReason = named(new SiteReason(&canvas), "lReason", QString());
  controls.lReason->follow(*controls.grid1);
  controls.pb1 = named(new PassBar(&canvas), "pb1", QObject::tr("Progress of the test pass"));
  controls.copyright = named(plainLabel(canvas), "copyright", QString());
  controls.copyright->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  controls.lblVersion = named(plainLabel(canvas), "lblVersion", QString());

  auto* layout = new QVBoxLayout(&canvas);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kGroupGap);
  layout->addLayout(headerOf(controls));
  layout->addLayout(buttonsOf(controls));
  layout->addWidget(controls.grid1, 1);
  auto* status = new QHBoxLayout;
  status->setSpacing(kGroupGap);
  status->addWidget(controls.lStatus, 1);
  status->addWidget(controls.lReason);
  layout->addLayout(status);
  layout->addWidget(controls.pb1);
  layout->addWidget(controls.noticeBar);
  layout->addLayout(footOf(controls));
  return controls;
}

}  // namespace tarnwick
