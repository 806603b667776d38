// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "base/errors.h"
#include "platform/clock.h"
#include "store/baselines.h"
#include "store/database.h"
#include "store/settings_and_log.h"
#include "store/site_rules.h"

namespace tarnwick {

/// What becomes the baseline of a site that has none.
enum class FirstBaseline {
  anything,  ///< the first answer, also the text of a fetch that failed
  /// The first page of the usual size; a fetch that failed, or a page that is less than half as long as the one of the
  /// check before, leaves the site down and without a baseline.
  pagesOnly,
  nothing,  ///< not this one: a server's error page
};

/// What is stored of a page beside the verdict over it.
enum class KeptPage {
  whole,
  none,  ///< a few words in its place; the text of a fetch that failed is kept all the same
};

/// What then stands in the place of the page.
inline constexpr const char* kPageNotKept = "The page was not kept: there is too little room on the disk.";

/// Whether what is stored as the latest page of a site is a page: not nothing yet, not the text of a fetch that failed,
/// not one that was not kept. A page that begins as those texts do is taken for one of them.
bool isPage(std::string_view stored);

/// A counter that stands at its limit. The check itself has been recorded.
class FullCounter : public OverflowError {
 public:
  using OverflowError::OverflowError;
};

/// Judges a fetched page and keeps the outcome in the site's row and in the log. A site is up when the page equals its
/// stored baseline byte for byte, but for what its rules leave out (`SiteRules`), where it has any, or one of its
/// further good pages (`Baselines`); the first page of a site without a baseline becomes its baseline. Every failed
/// statement raises DataAccessError. A change to a site that does not exist does nothing.
class ResultRecording {
 public:
  ResultRecording(Database& database, SettingsAndLog& log, const Clock& clock)
      : db_(database), log_(log), clock_(clock), rules_(database), further_(database) {}

  /// Looks again which sites have rules or further good pages: before a pass, and when such were stored.
  void forgetSitesWithRules() {
    withRules_.reset();
    withFurther_.reset();
  }

  /// Makes what is recorded during the returned object's life one whole, kept when it is committed. REQUIRES: no wait
  /// for the network meanwhile, since the database is locked for writing.
  Transaction beginTransaction() { return Transaction(db_); }
  /// Whether another connection of this program is writing, a piece at a time between events.
  bool hasWriterAside() const { return db_.hasWriterAside(); }
  /// The same where it begins at once; nothing while another program has the database locked.
  std::optional<Transaction> tryBeginTransaction() { return Transaction::tryBegin(db_); }

  /// Raises DataAccessError when no result could be stored just now.
  void proveRecording() {
    if (!hasWriterAside()) {
      db_.conn().proveWritable();
    }
  }

  /// Judges `content`, the page or the text of a failed fetch, stores it as the site's latest page with the time of the
  /// check, and logs the check: the page only when the site is down. True when the site is up. `errCode` and
  /// `errDescription` are logged and take no part in the verdict. All is written, or nothing. What becomes the baseline
  /// is stored whatever `kept` says.
  bool testSite(std::int16_t idSite, const std::string& content, std::int32_t errCode,
                const std::string& errDescription, FirstBaseline first = FirstBaseline::anything,
                KeptPage kept = KeptPage::whole);
  /// What must be told beside the last verdict, in words for people: a rule that found nothing, a page that was not
  /// taken as the baseline. Empty for most; it is in the log, too.
  const std::string& remark() const { return remark_; }
  /// The verdict of that, with nothing stored: true also when the page would become the baseline.
  bool wouldPass(std::int16_t idSite, const std::string& content, std::int32_t errCode, FirstBaseline first);

  /// Writes a long page before it is recorded, with events taken in by `between`, so that recording it, while the
  /// returned object lives, holds nobody up. Nothing for a page that is short, or stored already. Raises
  /// DataAccessError. REQUIRES: no transaction.
  std::unique_ptr<StoredText> storeAhead(std::int16_t idSite, const std::string& content,
                                         const std::function<void()>& between);

  /// Empties the baseline: the next page fetched becomes it.
  void clearContentCompare(std::int16_t idSite);
  void updateContentCompare(std::int16_t idSite, const std::string& text);
  /// The baseline; empty when there is none or no such site.
  std::string getContentCompare(std::int16_t idSite);
  /// The page of the last check, or "11:" and the cause when its transfer failed; empty when there is none.
  std::string getContentRuntime(std::int16_t idSite);

  /// Stamps the site with the present time as that of its last check.
  void xupdateLastChecked(std::int16_t idSite);
  /// The local time of the last check; nothing when there was none, there is no such site, or the stored text is no
  /// date.
  std::optional<LocalTime> getLastChecked(std::int16_t idSite);

  /// Whether the last check found the site up; false when never judged or when there is no such site.
  bool getStatus(std::int16_t idSite);
  void setStatus(std::int16_t idSite, bool status);
  /// Vocabulary: no front end calls it.
  /// Marks every site as up.
  void clearStatus();

  /// Vocabulary: no front end calls them.
  /// Whether the site is to be checked; false when there is no such site.
  bool getActive(std::int16_t idSite);
  void setActive(std::int16_t idSite, bool active);

  /// The site's address; empty when there is no such site.
  std::string getUrl(std::int16_t idSite);

  /// Adds 1 to the counter `success` (true) or `failure` (false); Null counts as 0. Raises FullCounter, with nothing
  /// written, when the counter would pass 32767.
  void updateStatusCounter(std::int16_t idSite, bool result);

 private:
  /// How a page stands to the site's baseline.
  struct Judged {
    std::string url;
    bool hasBaseline = false;
    bool equals = false;
    bool isAdopted = false;
    std::string remark{};
  };

  Judged judge(std::int16_t idSite, std::string_view content, std::int32_t errCode, FirstBaseline first);
  bool isAdopted(std::int16_t idSite, Judged& site, std::string_view content, std::int32_t errCode,
                 FirstBaseline first);
  bool hasRules(std::int16_t idSite);
  bool hasFurther(std::int16_t idSite);

  Database& db_;
  SettingsAndLog& log_;
  const Clock& clock_;
  SiteRules rules_;
  std::optional<std::set<std::int64_t>> withRules_;
  Baselines further_;
  std::optional<std::set<std::int64_t>> withFurther_;
  std::string remark_;
};

}  // namespace tarnwick
