#include "ui/settings/control_dialog_layout.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/controls/dialog_parts.h"

namespace tarnwick {
namespace {

constexpr int kCharactersOfText = 46;
constexpr int kCharactersOfList = 16;
constexpr int kRowsOfList = 6;
constexpr int kGap = 12;

QLabel* labelOf(const QString& caption, QWidget* buddy) {
  auto* label = new QLabel(caption, buddy->parentWidget());
  label->setBuddy(buddy);
  return label;
}

ByteLineEdit* makeText(QGroupBox& frame, const char* name, const QString& accessibleName, const QString& toolTip) {
  auto* text = named(new ByteLineEdit(&frame), name, accessibleName);
  text->setMinimumWidth(text->fontMetrics().averageCharWidth() * kCharactersOfText);
  text->setToolTip(toolTip);
  return text;
}

// Buttons of one caption are told apart by the name that a screen reader speaks.
QPushButton* makeFileButton(QGroupBox& frame, const char* name, const QString& caption, const QString& purpose) {
  QPushButton* button = addButton(frame, name, caption, purpose);
  button->setAccessibleName(purpose);
  return button;
}

QCheckBox* makeFlag(QGroupBox& frame, const char* name, const QString& caption, const QString& purpose) {
  auto* flag = named(new QCheckBox(caption, &frame), name, purpose);
  flag->setToolTip(purpose);
  return flag;
}

void makeTexts(QGroupBox& frame, ControlDialogControls& controls) {
  controls.tEmail = makeText(frame, "tEmail", QObject::tr("Email"), QObject::tr("The sender of the alert mails"));
  controls.tSmtp = makeText(frame, "tSmtp", QObject::tr("SMTP"),
                            QObject::tr("The mail server; it takes mail on port 25 without a log-in"));
  controls.tAudio = makeText(frame, "tAudio", QObject::tr("Audio"), QObject::tr("The .wav file of the alert sound"));
  controls.Command6 = makeFileButton(frame, "Command6", QObject::tr("&Browse"), QObject::tr("Choose a sound file"));
  controls.Command7 = makeFileButton(frame, "Command7", QObject::tr("&Test"), QObject::tr("Play this sound now"));
  controls.tProgram = makeText(frame, "tProgram", QObject::tr("Program"),
                               QObject::tr("The alert program; ~1~ to ~6~ stand for what happened where"));
  controls.Command9 = makeFileButton(frame, "Command9", QObject::tr("Bro&wse"), QObject::tr("Choose a program"));
  controls.Command8 = makeFileButton(frame, "Command8", QObject::tr("T&est"),
                                     QObject::tr("Start this program now, with sample values"));
}

void makeFlags(QGroupBox& frame, ControlDialogControls& controls) {
  controls.cLogs = makeFlag(frame, "cLogs", QObject::tr("Lo&gs"), QObject::tr("Keep a log of all checks"));
  controls.cReports =
      makeFlag(frame, "cReports", QObject::tr("&Reports"), QObject::tr("Write the report of the day during a run"));
  controls.cEmail =
      makeFlag(frame, "cEmail", QObject::tr("Emai&l"), QObject::tr("Send alert mails for the sites that ask for them"));
  controls.cAudio = makeFlag(frame, "cAudio", QObject::tr("A&udio"), QObject::tr("Play the alert sound"));
  controls.cProgram = makeFlag(frame, "cProgram", QObject::tr("Pr&ogram"), QObject::tr("Start the alert program"));
}

void makeConfiguration(QGroupBox& frame, ControlDialogControls& controls) {
  makeTexts(frame, controls);
  controls.lbInterval = named(new QListWidget(&frame), "lbInterval", QObject::tr("TCP Timeout in seconds"));
  controls.lbInterval->setToolTip(QObject::tr("How many seconds the fetch of a page may take"));
  // Some rows of the list at least; it scrolls to the others. Of its own it would take most of the dialog.
  controls.lbInterval->setMinimumHeight(controls.lbInterval->fontMetrics().height() * kRowsOfList);
  controls.lbInterval->setFixedWidth(controls.lbInterval->fontMetrics().averageCharWidth() * kCharactersOfList);
  controls.lbInterval->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
  makeFlags(frame, controls);
  controls.Command1 = addButton(frame, "Command1", QObject::tr("O&K"), QObject::tr("Store the settings and close"));
  controls.Command2 = addButton(frame, "Command2", QObject::tr("Cancel"), QObject::tr("Close without storing (Esc)"));
  controls.Command1->setDefault(true);
}

QLayout* layOutFoot(const ControlDialogControls& controls) {
  auto* foot = new QHBoxLayout;
  for (QCheckBox* flag : {controls.cLogs, controls.cReports, controls.cEmail, controls.cAudio, controls.cProgram}) {
    foot->addWidget(flag);
  }
  foot->addSpacing(kGap);
  foot->addStretch();
  foot->addWidget(controls.Command1);
  foot->addWidget(controls.Command2);
  return foot;
}

void layOutConfiguration(QGroupBox& frame, const ControlDialogControls& controls) {
  auto* fields = new QGridLayout;
  fields->addWidget(labelOf(QObject::tr("E&mail"), controls.tEmail), 0, 0);
  fields->addWidget(controls.tEmail, 0, 1, 1, 3);
  fields->addWidget(labelOf(QObject::tr("&SMTP"), controls.tSmtp), 1, 0);
  fields->addWidget(controls.tSmtp, 1, 1, 1, 3);
  fields->addWidget(labelOf(QObject::tr("&Audio"), controls.tAudio), 2, 0);
  fields->addWidget(controls.tAudio, 2, 1);
  fields->addWidget(controls.Command6, 2, 2);
  fields->addWidget(controls.Command7, 2, 3);
  fields->addWidget(labelOf(QObject::tr("&Program"), controls.tProgram), 3, 0);
  fields->addWidget(controls.tProgram, 3, 1);
  fields->addWidget(controls.Command9, 3, 2);
  fields->addWidget(controls.Command8, 3, 3);
  fields->addWidget(labelOf(QObject::tr("TCP T&imeout"), controls.lbInterval), 0, 5);
  fields->addWidget(controls.lbInterval, 1, 5, 4, 1);
  fields->setColumnMinimumWidth(4, kGap);
  fields->setColumnStretch(1, 1);
  fields->setRowStretch(4, 1);

  auto* lines = new QVBoxLayout(&frame);
  lines->addLayout(fields, 1);
  lines->addLayout(layOutFoot(controls));
}

QLabel* makeStatus(QGroupBox& frame, const char* name, const QString& caption, const QString& accessibleName) {
  auto* status = named(new QLabel(caption, &frame), name, accessibleName);
  status->setTextFormat(Qt::PlainText);
  return status;
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

QGroupBox* makeFrame(QDialog& dialog, const char* name, const QString& caption) {
  return named(new QGroupBox(caption, &dialog), name, caption);
}

}  // namespace

ControlDialogControls layOutControlDialog(QDialog& dialog) {
  // Made in the order in which the eye reads them, which is the order of the Tab key.
  ControlDialogControls controls{};
  QGroupBox* configuration = makeFrame(dialog, "Frame1", QObject::tr("Configuration Data"));
  makeConfiguration(*configuration, controls);
  QGroupBox* administration = makeFrame(dialog, "Frame2", QObject::tr("Administration Functions"));
  makeAdministration(*administration, controls);

  layOutConfiguration(*configuration, controls);
  auto* all = new QVBoxLayout(&dialog);
  all->addWidget(configuration, 1);
  all->addWidget(administration);
  return controls;
}

}  // namespace tarnwick
