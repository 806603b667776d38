// SPDX-License-Identifier: MIT
#include "ui/site/site_editor_layout.h"

#include <array>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/controls/colour_text.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/prompt_line_edit.h"
#include "ui/site/site_editor_fields.h"

namespace tarnwick {
namespace {

constexpr std::array<int, 9> kIntervals = {1, 5, 10, 15, 30, 45, 60, 90, 120};

// A button that is spoken as it is captioned; what it is about is told after that.
template <typename Button>
Button* makeCaptioned(QGroupBox& frame, const char* name, const QString& caption, const QString& purpose) {
  auto* button = named(new Button(caption, &frame), name);
  button->setAccessibleDescription(purpose);
  return button;
}

constexpr int kRoomOfAddress = 300;

void makeSite(QGroupBox& frame, SiteEditorControls& controls) {
  constexpr int kNarrow = 18;
  controls.tUrl = addText<ByteLineEdit>(frame, "tUrl", QObject::tr("Url"), 2 * kNarrow);
  controls.tUrl->setMinimumWidth(kRoomOfAddress);
  controls.tUrl->setText(QStringLiteral("http://"));
  controls.Command9 = addButton(frame, "Command9", QObject::tr("&Visit"), QObject::tr("Open the site in the browser"));
  controls.tUsername = addText<ByteLineEdit>(frame, "tUsername", QObject::tr("Username"), kNarrow);
  controls.tPassword = addText<ByteLineEdit>(frame, "tPassword", QObject::tr("Password"), kNarrow);
  controls.tPassword->setEchoMode(QLineEdit::Password);
  controls.tGet = makeCaptioned<QRadioButton>(frame, "tGet", QObject::tr("&Get"), QObject::tr("Method: Get"));
  controls.tPost = makeCaptioned<QRadioButton>(frame, "tPost", QObject::tr("P&ost"), QObject::tr("Method: Post"));
  controls.tActive = named(new QCheckBox(QObject::tr("&Active"), &frame), "tActive", QObject::tr("Active"));
  controls.lbInterval = named(new QListWidget(&frame), "lbInterval", QObject::tr("Interval in minutes"));
  for (const int minutes : kIntervals) {
    controls.lbInterval->addItem(QString::number(minutes));
  }
}

QGridLayout* layOutSite(const SiteEditorControls& controls) {
  auto* url = new QHBoxLayout;
  url->addWidget(controls.tUrl, 1);
  url->addWidget(controls.Command9);
  auto* method = new QHBoxLayout;
  method->addWidget(controls.tGet);
  method->addWidget(controls.tPost);
  method->addStretch();

  auto* fields = new QGridLayout;
  fields->addWidget(addLabel(QObject::tr("&Url"), *controls.tUrl), 0, 0);
  fields->addLayout(url, 0, 1, 1, 3);
  fields->addWidget(addLabel(QObject::tr("User&name"), *controls.tUsername), 1, 0);
  fields->addWidget(controls.tUsername, 1, 1);
  fields->addWidget(addLabel(QObject::tr("&Password"), *controls.tPassword), 2, 0);
  fields->addWidget(controls.tPassword, 2, 1);
  fields->addWidget(new QLabel(QObject::tr("Method"), controls.Frame1), 3, 0);
  fields->addLayout(method, 3, 1);
  fields->addWidget(controls.tActive, 4, 1);
  fields->addWidget(addLabel(QObject::tr("&Interval ( in minutes )"), *controls.lbInterval), 1, 3);
  fields->addWidget(controls.lbInterval, 2, 3, 4, 1);
  fields->setColumnMinimumWidth(2, 8);
  fields->setColumnStretch(1, 2);
  fields->setColumnStretch(3, 1);
  // Some rows of the list at least; it scrolls to the others.
  controls.lbInterval->setMinimumHeight(controls.lbInterval->fontMetrics().height() * 5);
  controls.lbInterval->setMinimumWidth(controls.lbInterval->fontMetrics().averageCharWidth() * 8);
  return fields;
}

void makePostVars(QGroupBox& frame, SiteEditorControls& controls, PostVarModel& postVars) {
  auto* grid = named(new QTableView(&frame), "grid1", QObject::tr("POST variables"));
  grid->setModel(&postVars);
  grid->setSelectionBehavior(QTableView::SelectRows);
  grid->setSelectionMode(QTableView::SingleSelection);
  grid->setEditTriggers(QTableView::NoEditTriggers);
  grid->setTabKeyNavigation(false);
  grid->setWordWrap(false);
  grid->setCornerButtonEnabled(false);
  grid->verticalHeader()->hide();
  grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 8);
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid->horizontalHeader()->setHighlightSections(false);
  grid->setMinimumHeight(grid->fontMetrics().height() * 7);
  grid->setMinimumWidth(grid->fontMetrics().averageCharWidth() * 34);
  controls.grid1 = grid;
  auto* name = addText<PromptLineEdit>(frame, "pvName", QObject::tr("Name of the new variable"), 14);
  name->setPrompt(QObject::tr("enter name here"));
  auto* value = addText<PromptLineEdit>(frame, "pvValue", QObject::tr("Value of the new variable"), 14);
  value->setPrompt(QObject::tr("enter value here"));
  controls.pvName = name;
  controls.pvValue = value;
  controls.Command4 = addButton(frame, "Command4", QObject::tr("Add PO&ST Variable"));
  controls.Command5 = addButton(frame, "Command5", QObject::tr("Clear POST Varia&bles"));
}

QLayout* layOutPostVars(const SiteEditorControls& controls) {
  auto* lines = new QGridLayout;
  lines->addWidget(controls.grid1, 0, 0, 1, 2);
  lines->addWidget(controls.pvName, 1, 0);
  lines->addWidget(controls.pvValue, 1, 1);
  lines->addWidget(controls.Command4, 2, 0);
  lines->addWidget(controls.Command5, 2, 1);
  lines->setRowStretch(0, 1);
  return lines;
}

void makeAlerts(QGroupBox& frame, SiteEditorControls& controls) {
  controls.cEmail = makeCaptioned<QCheckBox>(frame, "cEmail", QObject::tr("&Email"), QObject::tr("Alert by e-mail"));
  controls.tEmail = addText<ByteLineEdit>(frame, "tEmail", QObject::tr("E-mail address"), 24);
  controls.cPager = makeCaptioned<QCheckBox>(frame, "cPager", QObject::tr("Page&r"), QObject::tr("Alert by pager"));
  controls.tPager = addText<QLineEdit>(frame, "tPager", QObject::tr("Pager"), 24);
  auto* lines = new QGridLayout(&frame);
  lines->addWidget(controls.cEmail, 0, 0);
  lines->addWidget(controls.tEmail, 0, 1);
  lines->addWidget(controls.cPager, 1, 0);
  lines->addWidget(controls.tPager, 1, 1);
}

void makeButtons(QGroupBox& frame, SiteEditorControls& controls) {
  controls.Command1 = addButton(frame, "Command1", QObject::tr("O&K"), QObject::tr("Save and close"));
  controls.Command3 = addButton(frame, "Command3", QObject::tr("App&ly"), QObject::tr("Save"));
  controls.Command2 = addButton(frame, "Command2", QObject::tr("&Content"),
                                QObject::tr("Save, then show the page that every check is compared with"));
  controls.Command6 = addButton(frame, "Command6", QObject::tr("&Delete"), QObject::tr("Delete this site"));
  controls.counters = addButton(frame, "Command7", QObject::tr("Coun&ters"), QObject::tr("Reset counters"));
  controls.Command8 = addButton(frame, "Command8", QObject::tr("Cancel"), QObject::tr("Close without saving (Esc)"));
  controls.Command1->setDefault(true);
  auto* row = new QHBoxLayout(&frame);
  for (QPushButton* button : {controls.Command1, controls.Command3, controls.Command2, controls.Command6,
                              controls.counters, controls.Command8}) {
    row->addWidget(button);
  }
}

QLabel* makeReason(QDialog& dialog) {
  auto* reason = named(new QLabel(&dialog), "lReason");
  reason->setTextFormat(Qt::PlainText);
  reason->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  reason->setWordWrap(true);
  // The red of a row, where it can be read on the window.
  const QColor red = colourFromText(colours::kDown);
  const QColor window = reason->palette().color(QPalette::Window);
  constexpr double kReadable = 4.5;
  QPalette ink = reason->palette();
  ink.setColor(QPalette::WindowText, contrastRatio(red, window) >= kReadable ? red : red.lighter(190));
  reason->setPalette(ink);
  return reason;
}

}  // namespace

SiteEditorControls layOutSiteEditor(QDialog& dialog, PostVarModel& postVars, Program& program) {
  // Made in the order in which the eye reads them, which is the order of the Tab key.
  SiteEditorControls controls{};
  auto* site = new QWidget;
  controls.Frame1 = addFrame(*site, "Frame1", QObject::tr("Site ID:"));
  makeSite(*controls.Frame1, controls);
  QGroupBox* alerts = addFrame(*site, "Frame4", QObject::tr("Alerts"));
  makeAlerts(*alerts, controls);
  QGroupBox* post = addFrame(*site, "Frame2", QObject::tr("HTTP Post Variables"));
  makePostVars(*post, controls, postVars);
  QGridLayout* lines = layOutSite(controls);
  controls.Frame1->setLayout(lines);
  bindFields(controls, program.data().fields().site, *lines);
  post->setLayout(layOutPostVars(controls));
  auto* frames = new QGridLayout(site);
  frames->addWidget(controls.Frame1, 0, 0);
  frames->addWidget(alerts, 1, 0);
  frames->addWidget(post, 0, 1, 2, 1);
  // An address needs more room than the variables, which only some sites have.
  frames->setColumnStretch(0, 3);
  frames->setColumnStretch(1, 1);
  frames->setRowStretch(0, 1);

  controls.options = named(new OptionForm(program), "options", QObject::tr("Alarm and options of this site"));
  controls.pages = addPages(dialog, {{QObject::tr("Site"), site}, {QObject::tr("Alarm"), controls.options}});
  QGroupBox* control = addFrame(dialog, "Frame3", QObject::tr("Control"));
  makeButtons(*control, controls);
  auto* all = new QVBoxLayout(&dialog);
  all->addWidget(controls.pages, 1);
  all->addWidget(control);
  return controls;
}

void showReason(QDialog& dialog, const std::string& reason) {
  auto* label = dialog.findChild<QLabel*>(QStringLiteral("lReason"));
  if (reason.empty()) {
    delete label;
    return;
  }
  if (label == nullptr) {
    label = makeReason(dialog);
    // Below all else, so that nothing moves.
    dialog.layout()->addWidget(label);
  }
  label->setText(displayMessage(reason));
}

}  // namespace tarnwick
