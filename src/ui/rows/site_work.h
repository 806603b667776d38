// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <vector>
#include <QObject>
#include <QPointer>
#include <QProgressDialog>

#include "program/program.h"
#include "ui/controls/sliced_work.h"

namespace tarnwick {

/// Does something with each of some sites: all of it in one transaction, in slices between the events. What takes long
/// shows how far it has come and can be cancelled, so that nothing of it stays. One work follows the other.
class SiteWork final : public QObject {
  Q_OBJECT

 public:
  using Aim = SlicedWork::Aim;
  using Piece = std::function<void(m& data, std::int16_t idSite)>;

  /// `program` outlives this object; `window` is the one that it is done for.
  SiteWork(Program& program, QWidget& window, QObject* parent);
  ~SiteWork() override;

  bool isBusy() const { return !jobs_.empty(); }

  /// Begins; a single site is dealt with at once, so what is written for one is a whole. `done` follows when all is
  /// well. A failure ends in one box, and nothing was written then. `what` tells people what goes on.
  void start(Aim aim, const QString& what, std::vector<std::int16_t> ids, Piece piece, std::function<void()> done);

 private:
  struct Job {
    Aim aim;
    QString what;
    std::vector<std::int16_t> ids;
    Piece piece;
    std::function<void()> done;
    std::size_t next = 0;
  };

  void begin();
  void look();
  void cancel();
  void doAtOnce(const Job& job);

  Program& program_;
  QWidget& window_;
  std::deque<std::unique_ptr<Job>> jobs_;
  std::unique_ptr<SlicedWork> work_;
  QPointer<QProgressDialog> bar_;
};

}  // namespace tarnwick
