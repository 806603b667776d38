// SPDX-License-Identifier: MIT
#include "ui/settings/channel_menu.h"

#include <string>
#include <utility>
#include <QCoreApplication>

#include "ui/controls/delivery_words.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

/// The words of a menu, in which an ampersand is the mark of a key.
QString entry(const QString& words) { return QString(words).replace(QLatin1Char('&'), QLatin1String("&&")); }

QString hintOf(const ChannelPreset& preset) {
  const QString about = displayMessage(preset.about);
  return preset.secret.empty()
             ? ChannelMenu::tr("%1. What is in capitals in the address is yours.").arg(about)
             : ChannelMenu::tr("%1. The password or token: %2.").arg(about, displayMessage(preset.secret));
}

}  // namespace

ChannelMenu::ChannelMenu(Program& program, Wanted wanted, QWidget* parent)
    : QMenu(parent), program_(program), wanted_(std::move(wanted)) {
  setObjectName(QStringLiteral("channelMenu"));
  setToolTipsVisible(true);
  for (const ChannelKind& kind : channelKinds()) {
    kind.name == channel_kind::hook ? addHooks(kind) : addKind(*this, kind, channelKindWords(kind));
  }
  connect(this, &QMenu::aboutToShow, this, [this] { program_.faults().run([this] { readHooks(); }); });
}

void ChannelMenu::addKind(QMenu& menu, const ChannelKind& kind, const QString& words) {
  QAction* action = menu.addAction(words, this, [this, &kind] {
    program_.faults().run([&] { wanted_({.name = channelKindWords(kind).toStdString(), .kind = kind.name}, {}); });
  });
  action->setObjectName(QStringLiteral("channelAdd_") + QString::fromStdString(kind.name));
  action->setToolTip(QObject::tr(kind.meaning.c_str()));
}

void ChannelMenu::addHooks(const ChannelKind& kind) {
  hooks_ = addMenu(channelKindWords(kind));
  hooks_->setObjectName(QStringLiteral("channelHooks"));
  hooks_->setToolTipsVisible(true);
  addKind(*hooks_, kind, tr("Any Other Service"));
  above_ = hooks_->addSeparator();
}

void ChannelMenu::readHooks() {
  const QList<QAction*> all = hooks_->actions();
  for (qsizetype place = all.indexOf(above_) + 1; place < all.size(); ++place) {
    delete all.at(place);
  }
  const ChannelPresets read = readPresets(
      program_.services().files, QCoreApplication::applicationDirPath().toStdString(), program_.programFolder());
  for (const ChannelPreset& preset : read.presets) {
    addPreset(preset);
  }
  for (const std::string& fault : read.faults) {
    hooks_->addAction(entry(displayMessage(fault)))->setEnabled(false);
  }
}

void ChannelMenu::addPreset(const ChannelPreset& preset) {
  QAction* action = hooks_->addAction(entry(displayText(preset.label)), this, [this, preset] {
    program_.faults().run([&] {
      wanted_({.name = preset.label, .kind = std::string(channel_kind::hook), .settings = withPreset(preset, {})},
              hintOf(preset));
    });
  });
  action->setObjectName(QStringLiteral("channelPreset_") + QString::fromStdString(preset.name));
  action->setToolTip(displayMessage(preset.about));
}

}  // namespace tarnwick
