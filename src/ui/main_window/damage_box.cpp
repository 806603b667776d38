// SPDX-License-Identifier: MIT
#include "ui/main_window/damage_box.h"

#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <QEventLoopLocker>
#include <QObject>

#include "base/errors.h"
#include "store/restoration.h"

namespace tarnwick {
namespace {

/// What the boxes, one after the other, need; gone with the last of them.
struct Offer {
  Offer(std::string told, const Program& program, std::function<void()> then)
      : why(std::move(told)), folder(program.programFolder()), services(program.services()), again(std::move(then)) {}
  std::string why;
  std::string folder;
  Services services;
  std::function<void()> again;
  // Between two boxes no window is open, which would end the program.
  QEventLoopLocker open;
};

void ask(const std::shared_ptr<Offer>& offer);

void putInPlace(const std::shared_ptr<Offer>& offer, const std::string& file) {
  const Services& services = offer->services;
  std::string kept;
  try {
    kept = Restoration(offer->folder, services.databases, services.files, services.clock, services.runLocks)
               .restore(file)
               .kept;
  } catch (const std::exception& error) {
    services.prompts.inform({.text = error.what(), .icon = PromptIcon::error}, [offer] { ask(offer); });
    return;
  }
  const QString told =
      QObject::tr("The copy is in its place. The list before is kept as %1").arg(QString::fromStdString(kept));
  services.prompts.inform({.text = told.toStdString(), .icon = PromptIcon::information});
  offer->again();
}

void ask(const std::shared_ptr<Offer>& offer) {
  const QString question = QString::fromStdString(offer->why) + QStringLiteral("\n\n") +
                           QObject::tr("Do You Want To Choose A Copy And Put It In Its Place?");
  offer->services.prompts.confirm({.text = question.toStdString(), .icon = PromptIcon::error}, [offer](bool yes) {
    if (yes) {
      offer->services.prompts.chooseFile(
          {.folder = offer->folder, .filter = "Lists of Sites (*.mdb)|*.mdb|All Files (*.*)|*.*"},
          [offer](const std::string& file) { putInPlace(offer, file); });
    }
  });
}

}  // namespace

bool openOrOfferCopy(Program& program, const std::function<void()>& open, const std::function<void()>& again) {
  bool opened = false;
  program.faults().run([&] {
    try {
      open();
      opened = true;
    } catch (const DataAccessError& error) {
      // What is open here nobody can replace.
      if (error.kind() != DataAccessError::Kind::damaged || program.isOpen()) {
        throw;
      }
      ask(std::make_shared<Offer>(error.what(), program, again));
    }
  });
  return opened;
}

}  // namespace tarnwick
