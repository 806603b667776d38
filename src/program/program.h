// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "engine/inet_pool.h"
#include "engine/run_controller.h"
#include "engine/run_view.h"
#include "platform/services.h"
#include "program/fault_box.h"
#include "program/m.h"
#include "report/report_timer.h"

namespace tarnwick {

/// The whole program without a front end: the data, the pool of transfer controls and the run, on one program folder.
/// A front end gives it the view that shows the run; `SilentView` shows nothing.
///
///     QCoreApplication application(argc, argv);
///     tarnwick::HeadlessPlatform machine;
///     tarnwick::SilentView view;
///     tarnwick::Program program("/path/of/the/program/folder", machine.services(), view);
///     program.start();                       // opens the database, gets ready; no run starts by itself
///     program.startRun();                    // one pass over every active site, then the timers go on
///     application.exec();
class Program {
 public:
  /// Opens nothing yet. `services` refers to objects that outlive this one, and so do `view` and
  /// `fields`, what can be set.
  Program(std::string programFolder, const Services& services, RunView& view, const Fields& fields = programFields());
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// The program's data, opened on first use; raises DataAccessError when the database cannot be opened.
  m& data();
  bool isOpen() const { return parts_ != nullptr; }
  /// The run and the pool it fetches through. A run is started by `startRun`, which takes the folder's lock.
  RunController& run();
  InetPool& pool();
  /// What writes the day's report while a run is on.
  ReportTimer& report();

  /// Who deletes a site tells it here, as it was; `onDeleted` sets who wants to know.
  void tellDeleted(DeletedSite site);
  void onDeleted(std::function<void(DeletedSite site)> told) { deleted_ = std::move(told); }

  /// Shows a handler's failure in one box instead of letting it travel into the event loop.
  FaultBox& faults() { return faults_; }
  const Services& services() const { return services_; }
  const std::string& programFolder() const { return programFolder_; }

  /// Makes the run ready to be started: caption and grid, POST variables renumbered, timers set, lamps at "stop",
  /// status "Ready ...". Raises DataAccessError when the database cannot be opened.
  void start();

  /// Start and Stop as the user asks for them: a failure ends in one box. `startRun` returns when the first pass has
  /// ended; false when it failed, also because another process has a run on in this folder.
  bool startRun();
  void stopRun();

  /// Checks these sites: in the run that is on, if there is one, which takes those that are active as soon as it can;
  /// otherwise at once, and no countdown follows. It returns when they have been checked then. A failure ends in one
  /// box. Nothing while a pass comes to its end after Stop.
  void checkNow(const std::vector<std::int16_t>& ids);

  /// Ends every wait and transfer: what the closing of the last window does. A pass in progress unwinds.
  void close();

 private:
  struct Parts;
  Parts& parts();

  std::string programFolder_;
  Services services_;
  RunView& view_;
  const Fields& fields_;
  FaultBox faults_;
  std::function<void(DeletedSite)> deleted_;
  std::unique_ptr<RunLock> lock_;
  std::unique_ptr<Parts> parts_;
};

}  // namespace tarnwick
