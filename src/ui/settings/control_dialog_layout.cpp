// SPDX-License-Identifier: MIT
#include "ui/settings/control_dialog_layout.h"

#include <algorithm>
#include <array>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/transfer_control.h"
#include "ui/controls/dialog_parts.h"

namespace tarnwick {
namespace {

constexpr std::array<int, 10> kTimeouts = {1, 10, 20, 30, 45, 60, 90, 120, 150, 180};
constexpr int kCharactersOfText = 46;
constexpr int kCharactersOfList = 16;
constexpr int kRowsOfList = 6;
constexpr int kGap = 12;

// The settings that have their place in the dialog, in the order in which they are stored.
std::vector<FieldLook> knownLooks() {
  using Kind = FieldKind;
  const auto flag = [](const char* name, const QString& caption, const QString& purpose) {
    return FieldLook{name, Kind::flag, name, caption, QString(caption).remove(QLatin1Char('&')), purpose};
  };
  return {{"email", Kind::text, "tEmail", QObject::tr("E&mail"), QObject::tr("Email address"),
           QObject::tr("The sender of the alert mails")},
          {"smtp", Kind::text, "tSmtp", QObject::tr("&SMTP"), QObject::tr("SMTP"),
           QObject::tr("The mail server; it takes mail on port 25 without a log-in")},
          {"audio", Kind::file, "tAudio", QObject::tr("&Audio"), QObject::tr("Audio file"),
           QObject::tr("The .wav file of the alert sound")},
          {"timeout", Kind::seconds, "lbInterval", QObject::tr("TCP T&imeout"), QObject::tr("TCP Timeout in seconds"),
           QObject::tr("How many seconds the fetch of a page may take")},
          {"program", Kind::file, "tProgram", QObject::tr("&Program"), QObject::tr("Program file"),
           QObject::tr("The alert program; ~1~ to ~6~ stand for what happened where")},
          flag("cLogs", QObject::tr("Lo&gs"), QObject::tr("Keep a log of all checks")),
          flag("cReports", QObject::tr("&Reports"), QObject::tr("Write the report of the day during a run")),
          flag("cEmail", QObject::tr("Emai&l"), QObject::tr("Send alert mails for the sites that ask for them")),
          flag("cAudio", QObject::tr("A&udio"), QObject::tr("Play the alert sound")),
          flag("cProgram", QObject::tr("Pr&ogram"), QObject::tr("Start the alert program"))};
}

// All settings: any further one looks as the table describes it.
std::vector<FieldLook> looksOf(const std::vector<SettingField>& settings) {
  std::vector<FieldLook> looks = knownLooks();
  for (const SettingField& setting : settings) {
    const auto isIt = [name = QString::fromStdString(setting.name)](const FieldLook& look) {
      return name.compare(QString::fromStdString(look.field), Qt::CaseInsensitive) == 0;
    };
    if (std::ranges::none_of(looks, isIt)) {
      looks.push_back(usualLook(setting));
    }
  }
  return looks;
}

// Buttons of one caption are told apart by the name that a screen reader speaks.
QPushButton* makeFileButton(QGroupBox& frame, const char* name, const QString& caption, const QString& purpose) {
  QPushButton* button = addButton(frame, name, caption, purpose);
  button->setAccessibleName(QStringLiteral("%1: %2").arg(button->accessibleName(), purpose));
  return button;
}

QListWidget* makeTimeouts(QGroupBox& frame, const FieldLook& look) {
  auto* list = named(new QListWidget(&frame), look.control.c_str(), look.accessibleName);
  list->setToolTip(look.toolTip);
  for (const int seconds : kTimeouts) {
    list->addItem(QString::number(seconds));
  }
  // Some rows of the list at least; it scrolls to the others. Of its own it would take most of the dialog.
  list->setMinimumHeight(list->fontMetrics().height() * kRowsOfList);
  list->setFixedWidth(list->fontMetrics().averageCharWidth() * kCharactersOfList);
  list->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
  return list;
}

// The buttons beside the text of a file.
std::vector<QPushButton*> makeFileButtons(QGroupBox& frame, const FieldLook& look, ControlDialogControls& controls) {
  if (look.control == "tAudio") {
    controls.Command6 = makeFileButton(frame, "Command6", QObject::tr("&Browse"), QObject::tr("Choose a sound file"));
    controls.Command7 = makeFileButton(frame, "Command7", QObject::tr("&Test"), QObject::tr("Play this sound now"));
    return {controls.Command6, controls.Command7};
  }
  if (look.control == "tProgram") {
    controls.Command9 = makeFileButton(frame, "Command9", QObject::tr("Bro&wse"), QObject::tr("Choose a program"));
    controls.Command8 = makeFileButton(frame, "Command8", QObject::tr("T&est"),
                                       QObject::tr("Start this program now, with sample values"));
    return {controls.Command9, controls.Command8};
  }
  return {};
}

QLabel* makeStatus(QGroupBox& frame, const char* name, const QString& caption, const QString& purpose) {
  auto* status = named(new QLabel(caption, &frame), name);
  status->setAccessibleDescription(purpose);
  status->setTextFormat(Qt::PlainText);
  return status;
}

// Texts one below the other, and the list of time-outs on their right; the flags go into `foot`.
QLayout* makeSettings(QGroupBox& frame, Program& program, ControlDialogControls& controls, QLayout& foot) {
  constexpr int kColumnOfList = 5;
  auto* fields = new QGridLayout;
  int row = 0;
  for (const FieldLook& look : looksOf(program.data().fields().settings)) {
    if (look.control == "lbInterval") {
      controls.lbInterval = makeTimeouts(frame, look);
      controls.settings.push_back(bindField(look.field, *controls.lbInterval));
      fields->addWidget(addLabel(look.caption, *controls.lbInterval), 0, kColumnOfList);
      continue;
    }
    controls.settings.push_back(makeField(frame, look));
    QWidget* made = controls.settings.back().widget;
    if (look.kind == FieldKind::flag) {
      foot.addWidget(made);
      continue;
    }
    made->setMinimumWidth(made->fontMetrics().averageCharWidth() * kCharactersOfText);
    fields->addWidget(addLabel(look.caption, *made), row, 0);
    const std::vector<QPushButton*> buttons = makeFileButtons(frame, look, controls);
    int column = 1;
    fields->addWidget(made, row, column, 1, buttons.empty() ? 3 : 1);
    for (QPushButton* button : buttons) {
      fields->addWidget(button, row, ++column);
    }
    ++row;
  }
  controls.mailWay = new MailWayHint(program, &frame);
  fields->addWidget(controls.mailWay, row, 1, 1, 3, Qt::AlignTop);
  fields->addWidget(controls.lbInterval, 1, kColumnOfList, row, 1);
  controls.lblTimeout = makeStatus(frame, "lblTimeout", QString(), QObject::tr("Stored TCP Timeout"));
  controls.lblTimeout->hide();
  fields->addWidget(controls.lblTimeout, row + 1, kColumnOfList);
  fields->setColumnMinimumWidth(kColumnOfList - 1, kGap);
  fields->setColumnStretch(1, 1);
  fields->setRowStretch(row, 1);
  return fields;
}

void makeConfiguration(QGroupBox& frame, Program& program, ControlDialogControls& controls) {
  auto* foot = new QHBoxLayout;
  auto* lines = new QVBoxLayout(&frame);
  lines->addLayout(makeSettings(frame, program, controls, *foot), 1);
  lines->addLayout(foot);
  controls.tEmail = frame.findChild<ByteLineEdit*>(QStringLiteral("tEmail"));
  controls.tAudio = frame.findChild<ByteLineEdit*>(QStringLiteral("tAudio"));
  controls.tProgram = frame.findChild<ByteLineEdit*>(QStringLiteral("tProgram"));
  controls.Command1 = addButton(frame, "Command1", QObject::tr("O&K"), QObject::tr("Store the settings and close"));
  controls.Command2 = addButton(frame, "Command2", QObject::tr("Cancel"), QObject::tr("Close without storing (Esc)"));
  controls.Command1->setDefault(true);
  foot->addSpacing(kGap);
  foot->addStretch();
  foot->addWidget(controls.Command1);
  foot->addWidget(controls.Command2);
  // The list stands on the right of all texts, and so comes after them.
  auto* link = controls.mailWay->findChild<QAbstractButton*>();
  QWidget::setTabOrder(controls.Command8, link);
  QWidget::setTabOrder(link, controls.lbInterval);
}

void makeAdministration(QGroupBox& frame, ControlDialogControls& controls) {
  controls.Command3 = addButton(frame, "Command3", QObject::tr("&Clear Logs"), QObject::tr("Delete every log line"));
  controls.lblLogs = makeStatus(frame, "lblLogs", QObject::tr("logs ..."), QObject::tr("Status of Clear Logs"));
  controls.Command4 = addButton(frame, "Command4", QObject::tr("Compact &Database"),
                                QObject::tr("Back the database up, then make its file as small as it can be"));
  controls.lblCompact =
      makeStatus(frame, "lblCompact", QObject::tr("compact ..."), QObject::tr("Status of Compact Database"));
  controls.Command5 = addButton(frame, "Command5", QObject::tr("Create / &View Report"),
                                QObject::tr("Write the report of today and open it"));
  controls.lblReport =
      makeStatus(frame, "lblReport", QObject::tr("report ..."), QObject::tr("Status of Create / View Report"));

  auto* lines = new QGridLayout(&frame);
  lines->addWidget(controls.Command3, 0, 0);
  lines->addWidget(controls.lblLogs, 0, 1);
  lines->addWidget(controls.Command4, 1, 0);
  lines->addWidget(controls.lblCompact, 1, 1);
  lines->addWidget(controls.Command5, 2, 0);
  lines->addWidget(controls.lblReport, 2, 1);
  lines->setHorizontalSpacing(kGap);
  lines->setColumnStretch(1, 1);
}

// The content of a page with OK and Cancel below it. The first page has the letters.
void layOutPage(QWidget& page, QWidget& content, const char* ok, const char* cancel, ControlDialogControls& controls) {
  controls.btnOks.push_back(addButton(page, ok, QObject::tr("OK"), controls.Command1->toolTip()));
  controls.btnCancels.push_back(addButton(page, cancel, QObject::tr("Cancel"), controls.Command2->toolTip()));
  auto* foot = new QHBoxLayout;
  foot->addStretch();
  foot->addWidget(controls.btnOks.back());
  foot->addWidget(controls.btnCancels.back());
  auto* below = new QVBoxLayout(&page);
  below->addWidget(&content, 1);
  below->addLayout(foot);
}

}  // namespace

ControlDialogControls layOutControlDialog(QDialog& dialog, Program& program, UserHabits* habits) {
  // Made in the order in which the eye reads them, which is the order of the Tab key.
  ControlDialogControls controls{};
  auto* general = new QWidget;
  QGroupBox* configuration = addFrame(*general, "Frame1", QObject::tr("Configuration Data"));
  makeConfiguration(*configuration, program, controls);
  QGroupBox* administration = addFrame(*general, "Frame2", QObject::tr("Administration Functions"));
  makeAdministration(*administration, controls);
  auto* lines = new QVBoxLayout(general);
  lines->addWidget(configuration, 1);
  lines->addWidget(administration);

  auto* defaults = new QWidget;
  controls.defaults = named(new OptionForm(program, defaults), "defaults", QObject::tr("Defaults for all sites"));
  auto* content = new QWidget(defaults);
  auto* parts = new QVBoxLayout(content);
  parts->setContentsMargins({});
  parts->addWidget(controls.defaults, 1);
  if (habits != nullptr) {
    controls.window = new WindowFrame(*habits, content);
    parts->addWidget(controls.window);
  }
  layOutPage(*defaults, *content, "btnOk", "btnCancel", controls);
  auto* channels = new QWidget;
  controls.channels =
      named(new ChannelsPage(program, channels), "channels", QObject::tr("The ways by which alerts leave"));
  layOutPage(*channels, *controls.channels, "btnOkChannels", "btnCancelChannels", controls);
  auto* pause = new QWidget;
  controls.pause = named(new PausePage(program, pause), "pause", QObject::tr("Pause and quiet hours of all sites"));
  layOutPage(*pause, *controls.pause, "btnOkPause", "btnCancelPause", controls);

  controls.pages = addPages(dialog, {{QObject::tr("General"), general},
                                     {QObject::tr("Defaults"), defaults},
                                     {QObject::tr("Channels"), channels},
                                     {QObject::tr("Pause"), pause}});
  auto* all = new QVBoxLayout(&dialog);
  all->addWidget(controls.pages);
  return controls;
}

void tellStoredTimeout(const ControlDialogControls& controls, const QString& stored) {
  QListWidget& list = *controls.lbInterval;
  QLabel& label = *controls.lblTimeout;
  const QString holds = QObject::tr("%1 s").arg(kDefaultRequestTimeout.count());
  label.setText(stored.isEmpty() ? holds : QObject::tr("%1 s stored").arg(stored));
  label.setToolTip(QObject::tr("OK stores no time-out while none is selected; a fetch may then take %1").arg(holds));
  const auto tell = [&list, &label] { label.setVisible(list.selectedItems().isEmpty()); };
  QObject::connect(&list, &QListWidget::itemSelectionChanged, &label, tell);
  tell();
}

}  // namespace tarnwick
