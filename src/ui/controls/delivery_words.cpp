// SPDX-License-Identifier: MIT
#include "ui/controls/delivery_words.h"

#include <algorithm>
#include <array>
#include <QCoreApplication>

#include "delivery/alert_text.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestLine = 500;

// What `happening` tells.
constexpr std::array<const char*, 12> kHappenings{
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "does not answer"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "changed"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "is still down"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "is up again"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "is unsteady"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "is slow"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "has a certificate that ends soon"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "has a certificate from another authority"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "This machine is online again"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "A test of Tarnwick"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "The daily test alert"),
    QT_TRANSLATE_NOOP("tarnwick::DeliveryWords", "All is well")};

}  // namespace

QString alertWords(const Alert& alert) {
  const std::string_view event = happening(alert);
  const auto* known = std::ranges::find(kHappenings, event, [](const char* words) { return std::string_view(words); });
  QString words = known == kHappenings.end() ? displayText(plainLine(event))
                                             : QCoreApplication::translate("tarnwick::DeliveryWords", *known);
  if (!alert.cause.empty()) {
    words += QStringLiteral(": ") + displayMessage(plainLine(std::string_view(alert.cause).substr(0, kLongestLine)));
  }
  return words;
}

QString stampWords(LocalTime time, LocalTime now) {
  const QString stamp = QString::fromStdString(dateTimeText(time));
  const bool isToday = std::chrono::floor<std::chrono::days>(time) == std::chrono::floor<std::chrono::days>(now);
  return isToday ? stamp.mid(11) : stamp;
}

QString channelKindWords(const ChannelKind& kind) { return QObject::tr(kind.label.c_str()); }

}  // namespace tarnwick
