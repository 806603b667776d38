// SPDX-License-Identifier: MIT
#include "platform/desktop/message_box_prompts.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>

#include "platform/desktop/exclusive_dialog.h"
#include "platform/desktop/file_filters.h"

namespace tarnwick {
namespace {

QMessageBox::Icon iconOf(PromptIcon icon) {
  switch (icon) {
    case PromptIcon::information:
      return QMessageBox::Information;
    case PromptIcon::question:
      return QMessageBox::Question;
    case PromptIcon::exclamation:
      return QMessageBox::Warning;
    case PromptIcon::error:
      return QMessageBox::Critical;
    default:
      return QMessageBox::NoIcon;
  }
}

int ask(const std::string& text, const std::string& title, PromptIcon icon, QMessageBox::StandardButtons buttons) {
  // Goes with the window before which it stands, should that be closed before the answer gets here.
  const QPointer<QMessageBox> box(new QMessageBox(QApplication::activeWindow()));
  box->setTextFormat(Qt::PlainText);
  box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box->setIcon(iconOf(icon));
  box->setWindowTitle(QString::fromStdString(title));
  box->setText(QString::fromStdString(text));
  box->setStandardButtons(buttons);
  const int answer = runExclusively(*box);
  delete box;
  return answer;
}

// "Name (*.a;*.b)|*.a;*.b" as the file dialog wants it: "Name (*.a *.b)".
QStringList nameFilters(const std::string& filter) {
  QStringList filters;
  const QStringList pieces = QString::fromStdString(filter).split(QLatin1Char('|'));
  for (qsizetype piece = 0; piece + 1 < pieces.size(); piece += 2) {
    const QString name = pieces[piece].section(QLatin1Char('('), 0, 0).trimmed();
    QString patterns = pieces[piece + 1];
    filters << QStringLiteral("%1 (%2)").arg(name, patterns.replace(QLatin1Char(';'), QLatin1Char(' ')));
  }
  return filters + furtherNameFilters();
}

}  // namespace

void MessageBoxPrompts::inform(const std::string& text, const std::string& title, PromptIcon icon) {
  if (!pump_.closing()) {
    ask(text, title, icon, QMessageBox::Ok);
  }
}

bool MessageBoxPrompts::confirm(const std::string& text, const std::string& title, PromptIcon icon) {
  return !pump_.closing() && ask(text, title, icon, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

std::optional<std::string> MessageBoxPrompts::chooseFile(const std::string& folder, const std::string& filter) {
  if (pump_.closing()) {
    return std::nullopt;
  }
  const QPointer<QFileDialog> dialog(
      new QFileDialog(QApplication::activeWindow(), QString(), QString::fromStdString(folder)));
  dialog->setFileMode(QFileDialog::ExistingFile);
  dialog->setNameFilters(nameFilters(filter));
  const bool accepted = runExclusively(*dialog) == QDialog::Accepted;
  const QStringList chosen = dialog != nullptr ? dialog->selectedFiles() : QStringList();
  delete dialog;
  if (!accepted || chosen.isEmpty()) {
    return std::nullopt;
  }
  return QDir::toNativeSeparators(chosen.constFirst()).toStdString();
}

}  // namespace tarnwick
