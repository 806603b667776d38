// SPDX-License-Identifier: MIT
#include "program/m.h"

namespace tarnwick {

m::m(const std::string& programFolder, const Services& services, const Fields& fields)
    : MembersOfM(programFolder, services),
      SiteRecords(ownedDatabase_),
      PostVars(ownedDatabase_),
      SettingsAndLog(ownedDatabase_, fields),
      SiteOptions(ownedDatabase_, fields.options),
      SiteStandings(ownedDatabase_),
      SiteRules(ownedDatabase_),
      Baselines(ownedDatabase_),
      SiteTags(ownedDatabase_),
      Acknowledgements(ownedDatabase_),
      SiteHistory(ownedDatabase_),
      SiteCertificates(ownedDatabase_),
      Channels(ownedDatabase_),
      Outbox(ownedDatabase_),
      ResultLog(ownedDatabase_),
      KeptPages(ownedDatabase_, services.files),
      RoomReserve(ownedDatabase_, services.files),
      TextFiles(services.files, services.opener),
      DueSites(ownedDatabase_),
      PageFetch(ownedDatabase_, *this, ownedControl_, services.pump),
      ResultRecording(ownedDatabase_, *this, services.clock),
      SiteReasons(ownedDatabase_),
      Settling(ownedDatabase_, services.clock),
      AlertDispatch(ownedDatabase_, *this, *this, ownedMail_, services),
      DailyReport(ownedDatabase_, services.files, services.clock),
      Compaction(ownedDatabase_, services.databases, services.files, services.prompts),
      fields_(fields),
      delivery_(ownedDatabase_, *this, *this, services) {
  removeRemains();
  keepReserve();
}

void m::clearLog() {
  runFreeing([this] { SettingsAndLog::clearLog(); });
  if (!hasRoomForPages()) {
    runWithoutReserve([this] { giveRoomBack(); });
  }
}

void m::storeRules(std::int16_t idSite, const RuleSet& rules) {
  forgetSitesWithRules();
  SiteRules::storeRules(idSite, rules);
}

void m::accept(std::int16_t idSite, const std::string& page, AcceptAs as) {
  forgetSitesWithRules();
  Settling::accept(idSite, page, as);
}

bool m::dropBaseline(std::int16_t idSite, std::int64_t number) {
  forgetSitesWithRules();
  return Baselines::dropBaseline(idSite, number);
}

void m::storeBaselines(std::int16_t idSite, const std::vector<ListedBaseline>& baselines) {
  forgetSitesWithRules();
  Baselines::storeBaselines(idSite, baselines);
}

void m::deleteSite(std::int16_t idSite) {
  runFreeing([&] { SiteRecords::deleteSite(idSite); });
}

void m::deleteSiteOfAnyId(std::int64_t idSite) {
  runFreeing([&] { SiteRecords::deleteSiteOfAnyId(idSite); });
}

DeletedSite m::takeSiteOut(std::int64_t idSite) {
  DeletedSite site;
  runFreeing([&] { site = tarnwick::takeSiteOut(ownedDatabase_, idSite); });
  return site;
}

void m::putSiteBack(const DeletedSite& site) {
  forgetSitesWithRules();
  tarnwick::putSiteBack(ownedDatabase_, site);
}

}  // namespace tarnwick
