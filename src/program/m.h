// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "alerts/alert_dispatch.h"
#include "delivery/delivery.h"
#include "engine/due_sites.h"
#include "engine/page_fetch.h"
#include "engine/result_recording.h"
#include "engine/settling.h"
#include "engine/single_control.h"
#include "engine/site_reasons.h"
#include "mail/mail_socket.h"
#include "platform/services.h"
#include "report/daily_report.h"
#include "store/acknowledgements.h"
#include "store/baselines.h"
#include "store/channels.h"
#include "store/compaction.h"
#include "store/database.h"
#include "store/deleted_site.h"
#include "store/kept_pages.h"
#include "store/outbox.h"
#include "store/post_vars.h"
#include "store/result_log.h"
#include "store/room_reserve.h"
#include "store/settings_and_log.h"
#include "store/site_certificates.h"
#include "store/site_history.h"
#include "store/site_options.h"
#include "store/site_records.h"
#include "store/site_rules.h"
#include "store/site_standing.h"
#include "store/site_tags.h"
#include "store/text_files.h"

namespace tarnwick {

/// What class m owns and its groups of procedures share; built before and torn down after them.
class MembersOfM {
 protected:
  MembersOfM(const std::string& programFolder, const Services& services)
      : ownedDatabase_(programFolder, services.databases),
        ownedControl_(services.transfers),
        ownedMail_(services.sockets) {}
  ~MembersOfM() = default;

  Database ownedDatabase_;
  SingleControl ownedControl_;
  MailSocket ownedMail_;
};

/// Everything the program can do with its data, in one object: the sum of the groups of procedures below, each of
/// which is an idea of its own in a header of its own. It owns the only connection to the database, opened when it is
/// created and closed when it ends.
///
///     QCoreApplication application(argc, argv);
///     tarnwick::HeadlessPlatform machine;
///     tarnwick::m data("/path/of/the/program/folder", machine.services());
///     const std::int16_t id = data.addSite();
class m : private MembersOfM,
          public SiteRecords,
          public PostVars,
          public SettingsAndLog,
          public SiteOptions,
          public SiteStandings,
          public SiteRules,
          public Baselines,
          public SiteTags,
          public Acknowledgements,
          public SiteHistory,
          public SiteCertificates,
          public Channels,
          public Outbox,
          public ResultLog,
          public KeptPages,
          public RoomReserve,
          public TextFiles,
          public DueSites,
          public PageFetch,
          public ResultRecording,
          public SiteReasons,
          public Settling,
          public AlertDispatch,
          public DailyReport,
          public Compaction {
 public:
  /// Opens the database of `programFolder` (no trailing separator); raises DataAccessError when it is missing or
  /// damaged. What `services` refers to outlives this object, and so does `fields`.
  m(const std::string& programFolder, const Services& services, const Fields& fields = programFields());

  /// The program folder: where the database, the template, the images and the reports lie.
  const std::string& programFolder() const { return ownedDatabase_.programFolder(); }
  Database& database() { return ownedDatabase_; }
  /// What can be set of a site, of the program and beside the original behaviour.
  const Fields& fields() const { return fields_; }
  /// The control of `getHtmlFromSite`.
  SingleControl& single() { return ownedControl_; }
  /// The socket of the alert mails.
  MailSocket& mail() { return ownedMail_; }
  /// What has the alerts of the outbox leave.
  Delivery& delivery() { return delivery_; }

  /// What frees room, as the groups do it, also on a full disk.
  void clearLog();
  void deleteSite(std::int16_t idSite);
  void deleteSiteOfAnyId(std::int64_t idSite);
  /// The same of one that may be put back.
  DeletedSite takeSiteOut(std::int64_t idSite);
  /// As `tarnwick::putSiteBack`; its rules count from the next check on.
  void putSiteBack(const DeletedSite& site);

  /// From the next check on, also of a pass that is under way.
  void storeRules(std::int16_t idSite, const RuleSet& rules);
  void accept(std::int16_t idSite, const std::string& page, AcceptAs as);
  bool dropBaseline(std::int16_t idSite, std::int64_t number);
  void storeBaselines(std::int16_t idSite, const std::vector<ListedBaseline>& baselines);

 private:
  using SettingsAndLog::addLog;

  const Fields& fields_;
  Delivery delivery_;
};

}  // namespace tarnwick
