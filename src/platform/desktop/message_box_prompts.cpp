// SPDX-License-Identifier: MIT
#include "platform/desktop/message_box_prompts.h"

#include <utility>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QIcon>
#include <QMainWindow>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QObject>
#include <QPointer>

#include "base/wording.h"
#include "platform/desktop/file_filters.h"

namespace tarnwick {
namespace {

/// Tells by its name what a file is. Looking into it takes away the locks that this process has on it, and beside the
/// programs that are offered lies the list of sites.
class KindsByName final : public QObject, public QFileIconProvider {
 public:
  explicit KindsByName(QObject* parent) : QObject(parent) {}

  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& file) const override {
    return file.isFile() ? QIcon::fromTheme(kindOf(file).iconName(), QFileIconProvider::icon(File))
                         : QFileIconProvider::icon(file);
  }
  QString type(const QFileInfo& file) const override {
    return file.isFile() ? kindOf(file).comment() : QFileIconProvider::type(file);
  }

 private:
  QMimeType kindOf(const QFileInfo& file) const { return kinds_.mimeTypeForFile(file, QMimeDatabase::MatchExtension); }

  QMimeDatabase kinds_;
};

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

QWidget* mainWindow() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (qobject_cast<QMainWindow*>(window) != nullptr && window->isVisible()) {
      return window;
    }
  }
  return nullptr;
}

/// A box must not be lost behind a window that is in nobody's way any more.
QWidget* standingOwner(QWidget* owner) { return owner != nullptr && owner->isVisible() ? owner : nullptr; }

/// Worded where no language is known.
QString translated(const std::string& text) { return QCoreApplication::translate(kMessages, text.c_str()); }

QMessageBox& makeBox(const Message& message, QMessageBox::StandardButtons buttons) {
  QWidget* owner = standingOwner(message.owner);
  auto* box = new QMessageBox(owner != nullptr ? owner : mainWindow());
  box->setTextFormat(Qt::PlainText);
  box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box->setIcon(iconOf(message.icon));
  box->setWindowTitle(translated(message.title));
  box->setText(translated(message.text));
  box->setStandardButtons(buttons);
  return *box;
}

void show(QDialog& dialog, QWidget* owner) {
  dialog.setAttribute(Qt::WA_DeleteOnClose);
  if (standingOwner(owner) != nullptr) {
    dialog.open();
  } else {
    dialog.setWindowModality(Qt::NonModal);
    dialog.show();
  }
  dialog.raise();
  dialog.activateWindow();
}

// "Name (*.a;*.b)|*.a;*.b" as the file dialog wants it: "Name (*.a *.b)".
QStringList nameFilters(const std::string& filter) {
  QStringList filters;
  const QStringList pieces = QString::fromStdString(filter).split(QLatin1Char('|'));
  for (qsizetype piece = 0; piece + 1 < pieces.size(); piece += 2) {
    const QString name = translated(pieces[piece].section(QLatin1Char('('), 0, 0).trimmed().toStdString());
    QString patterns = pieces[piece + 1];
    filters << QStringLiteral("%1 (%2)").arg(name, patterns.replace(QLatin1Char(';'), QLatin1Char(' ')));
  }
  return offeredFilters(filters);
}

/// The ending of the kind that is chosen, for a name that has none.
void letNameNewFile(QFileDialog& dialog) {
  const auto follow = [&dialog](const QString& filter) {
    dialog.setDefaultSuffix(filter.section(QLatin1String("*."), 1, 1).section(QLatin1Char(')'), 0, 0));
  };
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  // Its own question would be a loop of its own.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  follow(dialog.selectedNameFilter());
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
}

}  // namespace

void MessageBoxPrompts::inform(const Message& message, std::function<void()> closed) {
  if (pump_.closing()) {
    return;
  }
  QMessageBox& box = makeBox(message, QMessageBox::Ok);
  QObject::connect(&box, &QDialog::finished, &box, [this, closed = std::move(closed)] {
    if (closed && !pump_.closing()) {
      closed();
    }
  });
  show(box, message.owner);
}

void MessageBoxPrompts::confirm(const Message& message, std::function<void(bool yes)> answered) {
  if (pump_.closing()) {
    return;
  }
  QMessageBox& box = makeBox(message, QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(message.destroys ? QMessageBox::No : QMessageBox::Yes);
  QObject::connect(&box, &QDialog::finished, &box, [this, answered = std::move(answered)](int answer) {
    if (!pump_.closing()) {
      answered(answer == QMessageBox::Yes);
    }
  });
  show(box, message.owner);
}

void MessageBoxPrompts::chooseFile(const FileChoice& choice, std::function<void(const std::string& path)> chosen) {
  if (pump_.closing()) {
    return;
  }
  QWidget* owner = standingOwner(choice.owner);
  auto* dialog =
      new QFileDialog(owner != nullptr ? owner : mainWindow(), QString(), QString::fromStdString(choice.folder));
  if (choice.isFolder) {
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
  } else {
    dialog->setNameFilters(nameFilters(choice.filter));
    choice.isNew ? letNameNewFile(*dialog) : dialog->setFileMode(QFileDialog::ExistingFile);
  }
  // The dialog's own list goes before what is added to the dialog later.
  dialog->setIconProvider(new KindsByName(dialog));
  // A file is looked for here, not renamed or deleted.
  dialog->setOption(QFileDialog::ReadOnly);
  for (const char* action : {"qt_rename_action", "qt_delete_action", "qt_new_folder_action"}) {
    if (auto* offered = dialog->findChild<QAction*>(QString::fromLatin1(action))) {
      offered->setVisible(false);
    }
  }
  QObject::connect(dialog, &QFileDialog::fileSelected, dialog, [this, chosen = std::move(chosen)](const QString& path) {
    if (!pump_.closing()) {
      chosen(QDir::toNativeSeparators(path).toStdString());
    }
  });
  show(*dialog, choice.owner);
}

}  // namespace tarnwick
