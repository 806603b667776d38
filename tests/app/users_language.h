// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace tarnwick::testing {

/// Lets a test choose the user's language until its end; what was loaded for that goes with it. The tests themselves
/// are started in the language of machines, in which nothing is translated.
class UsersLanguage {
 public:
  UsersLanguage() { qunsetenv("LC_ALL"); }
  ~UsersLanguage() {
    locale_.isNull() ? qunsetenv("LC_ALL") : qputenv("LC_ALL", locale_);
    for (QTranslator* translator : qApp->findChildren<QTranslator*>(Qt::FindDirectChildrenOnly)) {
      QCoreApplication::removeTranslator(translator);
      delete translator;
    }
    QLocale::setDefault(before_);
  }
  UsersLanguage(const UsersLanguage&) = delete;
  UsersLanguage& operator=(const UsersLanguage&) = delete;

 private:
  const QByteArray locale_ = qgetenv("LC_ALL");
  const QLocale before_;
};

}  // namespace tarnwick::testing
