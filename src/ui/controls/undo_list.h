// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <QObject>
#include <QString>

namespace tarnwick {

/// What was done in the window and can be taken back, the last first, until the window is closed.
class UndoList final : public QObject {
  Q_OBJECT

 public:
  struct Step {
    /// What was done: "Site 3 was deleted."
    QString sentence;
    /// What taking it back is called in a menu: "Undo Delete Site 3".
    QString caption;
    /// Takes it back; `done` is called when that has gone well, perhaps much later. Else the step stays.
    std::function<void(const std::function<void()>& done)> undo;
  };

  using QObject::QObject;

  void add(Step step);
  bool isEmpty() const { return steps_.empty(); }
  /// REQUIRES: it is not empty.
  const Step& last() const { return steps_.back().second; }
  /// Takes the last one back; nothing when there is none.
  void undoLast();

 Q_SIGNALS:
  /// What is the last one has changed.
  void changed();

 private:
  std::deque<std::pair<std::int64_t, Step>> steps_;
  std::int64_t next_ = 1;
};

}  // namespace tarnwick
