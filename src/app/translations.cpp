// SPDX-License-Identifier: MIT
#include "app/translations.h"

#include <cstring>
#include <memory>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "store/option_table.h"

namespace tarnwick {
namespace {

/// The language that the texts in the sources are written in.
const QString kWrittenIn = QStringLiteral("en");

/// All templates, as translations/messages.txt lists them.
constexpr const char* kTemplates[] = {
#include "message_templates.inc"
};

/// A catalogue that also knows the messages with values in them.
class Catalogue final : public QTranslator {
 public:
  using QTranslator::QTranslator;

  /// To be called once, when it is loaded.
  const Wording& readMessages() {
    std::vector<Wording::Entry> entries;
    const auto add = [&](const char* context, const std::string& text) {
      // What is the same in both languages the file leaves out.
      const QString translated = QTranslator::translate(context, text.c_str());
      entries.emplace_back(text, translated.isEmpty() ? text : translated.toStdString());
    };
    for (const char* text : kTemplates) {
      add(kMessages, text);
    }
    for (const OptionField& option : programOptions()) {
      add("QObject", option.meaning);
      add("QObject", option.original);
    }
    messages_ = Wording(entries);
    return messages_;
  }

  QString translate(const char* context, const char* text, const char* comment, int count) const override {
    if (context == nullptr || std::strcmp(context, kMessages) != 0) {
      return QTranslator::translate(context, text, comment, count);
    }
    return QString::fromStdString(messages_(text));
  }

 private:
  Wording messages_;
};

// As scripts set it, which read what is printed. LANGUAGE, which the toolkit asks first, says nothing beside it.
bool isMachinesLocale(const QByteArray& locale) {
  return locale == "C" || locale == "POSIX" || locale.startsWith("C.");
}

template <typename Translator>
Translator* install(QCoreApplication& application, const QString& folder, const QString& name) {
  auto translator = std::make_unique<Translator>(&application);
  return translator->load(name, folder) && QCoreApplication::installTranslator(translator.get()) ? translator.release()
                                                                                                 : nullptr;
}

}  // namespace

Wording loadTranslations(QCoreApplication& application, const QString& executableFolder) {
  if (isMachinesLocale(qgetenv("LC_ALL"))) {
    return {};
  }
  for (QString language : QLocale().uiLanguages()) {
    language.replace(QLatin1Char('-'), QLatin1Char('_'));
    // The user prefers the language as written to those that follow it in the list.
    if (language == kWrittenIn || language.startsWith(kWrittenIn + QLatin1Char('_'))) {
      break;
    }
    if (auto* texts = install<Catalogue>(application, executableFolder + QStringLiteral("/translations"),
                                         QStringLiteral("tarnwick_") + language)) {
      // The buttons of the boxes and the menus of the text fields are Qt's own.
      install<QTranslator>(application, QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                           QStringLiteral("qtbase_") + language);
      return texts->readMessages();
    }
  }
  return {};
}

}  // namespace tarnwick
