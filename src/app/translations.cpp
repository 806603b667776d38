// SPDX-License-Identifier: MIT
#include "app/translations.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace tarnwick {
namespace {

/// The language that the texts in the sources are written in.
const QString kWrittenIn = QStringLiteral("en");

bool install(QApplication& application, const QString& folder, const QString& name) {
  auto* translator = new QTranslator(&application);
  if (translator->load(name, folder)) {
    return QCoreApplication::installTranslator(translator);
  }
  delete translator;
  return false;
}

}  // namespace

void loadTranslations(QApplication& application, const QStringList& folders) {
  for (QString language : QLocale().uiLanguages()) {
    language.replace(QLatin1Char('-'), QLatin1Char('_'));
    // The user prefers the language as written to those that follow it in the list.
    if (language == kWrittenIn || language.startsWith(kWrittenIn + QLatin1Char('_'))) {
      return;
    }
    for (const QString& folder : folders) {
      if (install(application, folder + QStringLiteral("/translations"), QStringLiteral("tarnwick_") + language)) {
        // The buttons of the boxes and the menus of the text fields are Qt's own.
        install(application, QLibraryInfo::path(QLibraryInfo::TranslationsPath), QStringLiteral("qtbase_") + language);
        return;
      }
    }
  }
}

}  // namespace tarnwick
