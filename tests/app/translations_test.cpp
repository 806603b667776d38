// SPDX-License-Identifier: MIT
#include "app/translations.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>
#include <QDir>
#include <QLocale>

#include "app/users_language.h"
#include "store/option_table.h"
#include "ui/controls/display_text.h"
#include "ui/main_window/master.h"

namespace tarnwick::testing {
namespace {

class TranslationsTest : public ::testing::Test {
 protected:
  static bool areCompiled() {
    return QDir(QStringLiteral(TARNWICK_BUILD)).exists(QStringLiteral("translations/tarnwick_de.qm"));
  }
  static Wording load(QLocale::Language language) {
    QLocale::setDefault(QLocale(language));
    return loadTranslations(*qApp, QStringLiteral(TARNWICK_BUILD));
  }

  const UsersLanguage language;
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
    texts.insert(texts.end(), {option.label, option.meaning, option.original, option.unit, option.takes});
    for (const std::string& text : texts) {
      // The same in every language.
      const bool isTheSame = text == "MiB" || text == "Pause";
      EXPECT_TRUE(text.empty() || isTheSame || QObject::tr(text.c_str()) != QString::fromStdString(text)) << text;
    }
  }
}

TEST_F(TranslationsTest, MessagesOfTheRoomsBelowAreShownInTheUsersLanguage) {
  if (!areCompiled()) {
    GTEST_SKIP() << "the tool that compiles translations is not installed";
  }
  const Wording messages = load(QLocale::German);
  EXPECT_EQ(messages("The connection to example.org port 80 was refused."),
            "Die Verbindung zu example.org Port 80 wurde abgelehnt.");
  EXPECT_EQ(messages("down 3 http://example.org/: The address is empty."),
            "down 3 http://example.org/: Die Adresse ist leer.");
  EXPECT_EQ(displayMessage("Time Until Next Check: 00:01:30"),
            QStringLiteral("Zeit bis zur nächsten Prüfung: 00:01:30"));
  EXPECT_EQ(displayMessage("line 3: expected \"Ready ...\", found \"Nothing was stored.\""),
            QStringLiteral("Zeile 3: erwartet \"Ready ...\", gefunden \"Nothing was stored.\""));
}

TEST_F(TranslationsTest, MessagesStayAsTheyAreWithoutATranslation) {
  const Wording messages = load(QLocale::English);
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_EQ(displayMessage("Ready ..."), QStringLiteral("Ready ..."));
  EXPECT_EQ(displayMessage(std::string("Ready\0 \xff", 8)), displayText(std::string("Ready\0 \xff", 8)));
}

TEST_F(TranslationsTest, AScriptGetsEnglishWhateverTheUserReads) {
  for (const char* const plain : {"C", "C.UTF-8", "POSIX"}) {
    qputenv("LC_ALL", plain);
    EXPECT_TRUE(load(QLocale::German).isEmpty()) << plain;
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
