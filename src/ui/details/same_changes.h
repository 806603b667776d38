// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <vector>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "difference/change_groups.h"
#include "program/program.h"
#include "ui/controls/sliced_work.h"
#include "ui/details/difference_panel.h"
#include "ui/details/site_settling.h"

namespace tarnwick {

/// What has changed in words: "“© 2025” became “© 2026”".
QString phraseWords(const ChangePhrases& phrases);

/// The sites that have changed, those together that have changed alike, with an example of each group, so that one
/// decision is enough for all of them. What was another change meanwhile, or looks like an error, stays as it is.
class SameChanges final : public QDialog {
  Q_OBJECT

 public:
  /// Looks at these sites, in slices. Both outlive the dialog.
  SameChanges(Program& program, SiteSettling& settling, std::vector<std::int16_t> ids, QWidget* parent);

  void done(int result) override;

 private:
  struct Accepted {
    std::vector<std::int16_t> taken;
    std::size_t left = 0;
  };

  void layOut();
  void read();
  void showGroups();
  void showExample();
  void tellCount();
  std::vector<std::size_t> chosen() const;
  void ask();
  void acceptChosen();
  void finishAccepting(const Accepted& accepted);
  void start(SlicedWork::Aim aim, SlicedWork::Next next, std::function<void()> finished);

  Program& program_;
  SiteSettling& settling_;
  std::vector<std::int16_t> ids_;
  std::vector<ChangePhrases> phrases_;
  std::vector<ChangeGroup> groups_;
  std::unique_ptr<SlicedWork> work_;
  QLabel* sentence_;
  QListWidget* list_;
  DifferencePanel* example_;
  QPushButton* accept_;
};

}  // namespace tarnwick
