// SPDX-License-Identifier: MIT
#include "app/translations.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>
#include <QDir>
#include <QLocale>
#include <QTranslator>

#include "store/option_table.h"
#include "ui/main_window/master.h"

namespace tarnwick::testing {
namespace {

/// The user's language, until the end of the test; so is what was loaded for it.
class TranslationsTest : public ::testing::Test {
 protected:
  void TearDown() override {
    for (QTranslator* translator : qApp->findChildren<QTranslator*>(Qt::FindDirectChildrenOnly)) {
      QCoreApplication::removeTranslator(translator);
      delete translator;
    }
    QLocale::setDefault(before);
  }

  static bool areCompiled() {
    return QDir(QStringLiteral(TARNWICK_BUILD)).exists(QStringLiteral("translations/tarnwick_de.qm"));
  }
  static void load(QLocale::Language language) {
    QLocale::setDefault(QLocale(language));
    loadTranslations(*qApp, {QStringLiteral("/nowhere"), QStringLiteral(TARNWICK_BUILD)});
  }

  const QLocale before;
};

TEST_F(TranslationsTest, TheUsersLanguageIsTakenWhereThereIsATranslation) {
  if (!areCompiled()) {
    GTEST_SKIP() << "the tool that compiles translations is not installed";
  }
  load(QLocale::German);
  EXPECT_EQ(QObject::tr("Open the help page (F1)"), QStringLiteral("Die Hilfeseite öffnen (F1)"));
  EXPECT_EQ(Master::tr("Change the settings"), QStringLiteral("Die Einstellungen ändern"));
}

TEST_F(TranslationsTest, EveryTextOfTheOptionsIsTranslated) {
  if (!areCompiled()) {
    GTEST_SKIP() << "the tool that compiles translations is not installed";
  }
  load(QLocale::German);
  for (const OptionField& option : programOptions()) {
    std::vector<std::string> texts = option.choices;
    texts.insert(texts.end(), {option.label, option.meaning, option.original, option.unit});
    for (const std::string& text : texts) {
      // The same in every language.
      const bool isUnitOfMeasure = text == "MiB";
      EXPECT_TRUE(text.empty() || isUnitOfMeasure || QObject::tr(text.c_str()) != QString::fromStdString(text)) << text;
    }
  }
}

TEST_F(TranslationsTest, EnglishIsNoTranslation) {
  load(QLocale::English);
  EXPECT_EQ(QObject::tr("Open the help page (F1)"), QStringLiteral("Open the help page (F1)"));
}

TEST_F(TranslationsTest, ALanguageWithoutATranslationLeavesTheTextsAsTheyAre) {
  load(QLocale::Finnish);
  EXPECT_EQ(QObject::tr("Open the help page (F1)"), QStringLiteral("Open the help page (F1)"));
}

}  // namespace
}  // namespace tarnwick::testing
