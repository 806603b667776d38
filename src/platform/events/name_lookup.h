// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <QHostAddress>
#include <QList>
#include <QString>

namespace tarnwick {

/// Looks up the addresses of a host name in the background. A name server that does not answer keeps a lookup waiting
/// for many seconds; neither the end of this object nor that of the program waits for it, as they would for Qt's own.
class NameLookup {
 public:
  /// Called on the event loop with the addresses in the order in which they should be tried; none when the name is not
  /// found. REQUIRES: it does not end the lookup's life.
  using Found = std::function<void(QList<QHostAddress> addresses)>;

  NameLookup(const QString& name, Found found);
  /// `found` is not called any more.
  ~NameLookup();

  /// Whether `found` is still to be called.
  bool pending() const;

  NameLookup(const NameLookup&) = delete;
  NameLookup& operator=(const NameLookup&) = delete;

 private:
  struct Answer;

  std::shared_ptr<Answer> answer_;
};

}  // namespace tarnwick
