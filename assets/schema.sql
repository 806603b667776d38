-- The tables of a fresh Tarnwick database. Load into an empty file: sqlite3 tarnwick.mdb < schema.sql
--
-- YESNO columns hold 0 for no and 1 for yes; any other number is read as yes.
-- "DATETIME TEXT" columns hold "YYYY-MM-DD HH:MM:SS", local time; the second word keeps them texts.
-- Every check is named by the sentence that the program shows when it fails; its first word is the column.
-- The wide column of the log stands last: what stands before it is read without its pages.

PRAGMA encoding = 'UTF-8';
PRAGMA auto_vacuum = NONE;
-- The form of the tables: the original ones are form 0; the program brings an older list to today's form.
PRAGMA user_version = 8;

BEGIN;

-- Everything about a site but its pages: so dense that lists, countdowns and the record of a check touch few blocks.
CREATE TABLE siteRows (
  idSite INTEGER PRIMARY KEY,
  url TEXT,
  method TEXT,
  active YESNO,
  tInterval INTEGER CONSTRAINT "tInterval takes a whole number" CHECK (typeof(tInterval) IN ('integer', 'null')),
  lastChecked DATETIME TEXT,
  alertEmail YESNO,
  email TEXT,
  sUserName TEXT,
  sPassWord TEXT,
  status YESNO,
  success INTEGER CONSTRAINT "success takes a whole number" CHECK (typeof(success) IN ('integer', 'null')),
  failure INTEGER CONSTRAINT "failure takes a whole number" CHECK (typeof(failure) IN ('integer', 'null')),
  comparePage INTEGER,
  runtimePage INTEGER
);
-- The pages: that a site was last judged by (comparePage) and that of its last check (runtimePage) are one where both
-- are the same, so an unchanged page is never written again. Page n lies in up to four pieces, 4n to 4n+3, none of which
-- is longer than 16 MiB as the program writes them; 0 is the empty page. A page goes with the site, or when none of the
-- two names it any more.
CREATE TABLE pagePieces (piece INTEGER PRIMARY KEY, content TEXT);
CREATE TRIGGER siteRows_page AFTER UPDATE OF comparePage, runtimePage ON siteRows BEGIN
  DELETE FROM pagePieces WHERE piece >= old.comparePage * 4 AND piece < old.comparePage * 4 + 4
    AND old.comparePage IS NOT new.comparePage AND old.comparePage IS NOT new.runtimePage;
  DELETE FROM pagePieces WHERE piece >= old.runtimePage * 4 AND piece < old.runtimePage * 4 + 4
    AND old.runtimePage IS NOT new.comparePage AND old.runtimePage IS NOT new.runtimePage;
END;
CREATE TRIGGER siteRows_gone AFTER DELETE ON siteRows BEGIN
  DELETE FROM pagePieces WHERE piece >= old.comparePage * 4 AND piece < old.comparePage * 4 + 4;
  DELETE FROM pagePieces WHERE piece >= old.runtimePage * 4 AND piece < old.runtimePage * 4 + 4;
END;

-- One row per monitored site, whole: what every other tool reads and writes.
CREATE VIEW sites AS SELECT
  idSite, url, method, active, tInterval, lastChecked, alertEmail, email, sUserName, sPassWord, status, success,
  failure,
  CASE comparePage WHEN 0 THEN '' ELSE (SELECT content FROM pagePieces WHERE piece = comparePage * 4) ||
    coalesce((SELECT content FROM pagePieces WHERE piece = comparePage * 4 + 1), '') ||
    coalesce((SELECT content FROM pagePieces WHERE piece = comparePage * 4 + 2), '') ||
    coalesce((SELECT content FROM pagePieces WHERE piece = comparePage * 4 + 3), '') END AS content_compare,
  CASE runtimePage WHEN 0 THEN '' ELSE (SELECT content FROM pagePieces WHERE piece = runtimePage * 4) ||
    coalesce((SELECT content FROM pagePieces WHERE piece = runtimePage * 4 + 1), '') ||
    coalesce((SELECT content FROM pagePieces WHERE piece = runtimePage * 4 + 2), '') ||
    coalesce((SELECT content FROM pagePieces WHERE piece = runtimePage * 4 + 3), '') END AS content_runtime
FROM siteRows;
-- -1 is the page of a row that has just been added here; one that an "or ignore" has left out has none.
CREATE TRIGGER sites_insert INSTEAD OF INSERT ON sites BEGIN
  INSERT INTO siteRows (
    idSite, url, method, active, tInterval, lastChecked, alertEmail, email, sUserName, sPassWord, status, success,
    failure, comparePage, runtimePage
  ) VALUES (
    new.idSite, new.url, new.method, new.active, new.tInterval, new.lastChecked, new.alertEmail, new.email,
    new.sUserName, new.sPassWord, new.status, new.success, new.failure, -1, -1
  );
  INSERT INTO pagePieces (piece, content)
    SELECT (SELECT coalesce(max(piece) / 4, 0) + 1 FROM pagePieces) * 4, new.content_compare
    WHERE CAST(new.content_compare AS TEXT) <> '' AND EXISTS (
      SELECT 1 FROM siteRows WHERE idSite = coalesce(new.idSite, (SELECT max(idSite) FROM siteRows)) AND comparePage = -1);
  UPDATE siteRows
    SET comparePage = CASE WHEN CAST(new.content_compare AS TEXT) <> '' THEN (SELECT max(piece) / 4 FROM pagePieces)
      WHEN new.content_compare IS NOT NULL THEN 0 END
    WHERE idSite = coalesce(new.idSite, (SELECT max(idSite) FROM siteRows)) AND comparePage = -1;
  INSERT INTO pagePieces (piece, content)
    SELECT (SELECT coalesce(max(piece) / 4, 0) + 1 FROM pagePieces) * 4, new.content_runtime
    WHERE CAST(new.content_runtime AS TEXT) <> '' AND EXISTS (
      SELECT 1 FROM siteRows WHERE idSite = coalesce(new.idSite, (SELECT max(idSite) FROM siteRows)) AND runtimePage = -1);
  UPDATE siteRows
    SET runtimePage = CASE WHEN CAST(new.content_runtime AS TEXT) <> '' THEN (SELECT max(piece) / 4 FROM pagePieces)
      WHEN new.content_runtime IS NOT NULL THEN 0 END
    WHERE idSite = coalesce(new.idSite, (SELECT max(idSite) FROM siteRows)) AND runtimePage = -1;
END;
CREATE TRIGGER sites_update INSTEAD OF UPDATE ON sites BEGIN
  INSERT INTO pagePieces (piece, content)
    SELECT (SELECT coalesce(max(piece) / 4, 0) + 1 FROM pagePieces) * 4, new.content_compare
    WHERE CAST(new.content_compare AS TEXT) <> '' AND new.content_compare IS NOT old.content_compare;
  UPDATE siteRows
    SET comparePage = CASE WHEN CAST(new.content_compare AS TEXT) <> '' THEN (SELECT max(piece) / 4 FROM pagePieces)
      WHEN new.content_compare IS NOT NULL THEN 0 END
    WHERE idSite = old.idSite AND new.content_compare IS NOT old.content_compare;
  INSERT INTO pagePieces (piece, content)
    SELECT (SELECT coalesce(max(piece) / 4, 0) + 1 FROM pagePieces) * 4, new.content_runtime
    WHERE CAST(new.content_runtime AS TEXT) <> '' AND new.content_runtime IS NOT old.content_runtime;
  UPDATE siteRows
    SET runtimePage = CASE WHEN CAST(new.content_runtime AS TEXT) <> '' THEN (SELECT max(piece) / 4 FROM pagePieces)
      WHEN new.content_runtime IS NOT NULL THEN 0 END
    WHERE idSite = old.idSite AND new.content_runtime IS NOT old.content_runtime;
  UPDATE siteRows SET
    idSite = new.idSite, url = new.url, method = new.method, active = new.active, tInterval = new.tInterval,
    lastChecked = new.lastChecked, alertEmail = new.alertEmail, email = new.email, sUserName = new.sUserName,
    sPassWord = new.sPassWord, status = new.status, success = new.success, failure = new.failure
    WHERE idSite = old.idSite;
END;
CREATE TRIGGER sites_delete INSTEAD OF DELETE ON sites BEGIN
  DELETE FROM siteRows WHERE idSite = old.idSite;
END;

-- The form variables of the sites whose method is POST.
CREATE TABLE postVars (
  idPostVars INTEGER PRIMARY KEY,
  idSite INTEGER CONSTRAINT "idSite takes a whole number" CHECK (typeof(idSite) IN ('integer', 'null')),
  pname TEXT,
  pvalue TEXT
);
CREATE INDEX postVars_idSite ON postVars (idSite);

-- The settings: exactly one row.
CREATE TABLE control (
  id INTEGER PRIMARY KEY,
  email TEXT,
  smtp TEXT,
  audio TEXT,
  program TEXT,
  timeout INTEGER CONSTRAINT "timeout takes a whole number" CHECK (typeof(timeout) IN ('integer', 'null') OR timeout = ''),
  clogs YESNO,
  creports YESNO,
  cemail YESNO,
  caudio YESNO,
  cprogram YESNO
);
INSERT INTO control (id, email, smtp, audio, program, timeout, clogs, creports, cemail, caudio, cprogram)
VALUES (1, '', '', '', '', 30, 1, 0, 0, 0, 0);

-- One row per check result.
CREATE TABLE log (
  idSite INTEGER CONSTRAINT "idSite takes a whole number" CHECK (typeof(idSite) IN ('integer', 'null')),
  url TEXT,
  status YESNO,
  errCode INTEGER CONSTRAINT "errCode takes a whole number" CHECK (typeof(errCode) IN ('integer', 'null')),
  errDescription TEXT,
  dateStamp DATETIME TEXT DEFAULT (datetime('now', 'localtime')),
  content TEXT
);
-- All that the report of a day reads, in the order it reads it; dateStamp is in it so that no row of the table itself
-- has to be fetched.
CREATE INDEX log_day ON log (date(dateStamp), url, status, dateStamp);

-- Scratch table of the self-test.
CREATE TABLE test (
  id INTEGER PRIMARY KEY,
  tname TEXT,
  tvalue TEXT
);

-- Methods of sites kept by other tools; the program only looks here.
CREATE TABLE methods (
  idSite INTEGER CONSTRAINT "idSite takes a whole number" CHECK (typeof(idSite) IN ('integer', 'null')),
  method TEXT
);

-- What a site, or all of them (idSite 0), does otherwise than originally. Here the ways that are recommended; without a
-- row the program does as it originally did.
CREATE TABLE siteOptions (
  idSite INTEGER NOT NULL,
  name TEXT NOT NULL,
  value TEXT NOT NULL,
  PRIMARY KEY (idSite, name)
) WITHOUT ROWID;
INSERT INTO siteOptions (idSite, name, value)
VALUES (0, 'newSites', 'at once'), (0, 'adopt', 'pages only'), (0, 'mailLimit', '60'),
  (0, 'logLimit', '1024'), (0, 'history', 'on');

-- How the sites stand whose options of the alarm make that matter; see src/store/site_standing.h.
CREATE TABLE siteState (
  idSite INTEGER PRIMARY KEY,
  failures INTEGER,
  downSince TEXT,
  firstError TEXT,
  told TEXT,
  toldAt TEXT,
  lastToldAt TEXT,
  outageSince TEXT,
  outageChecks INTEGER,
  outageError TEXT,
  changes TEXT,
  unsteady INTEGER,
  slow INTEGER,
  toldSlow INTEGER,
  unknownSince TEXT,
  owed TEXT
);

-- What of a site's page does not count: holes of its baseline, and rules by hand; see src/store/site_rules.h.
CREATE TABLE rules (
  idSite INTEGER NOT NULL,
  ord INTEGER NOT NULL,
  kind TEXT NOT NULL,
  rule TEXT NOT NULL,
  PRIMARY KEY (idSite, ord)
) WITHOUT ROWID;

-- The ways by which alerts leave, one row for each thing that is set of one; see src/store/channels.h.
CREATE TABLE channels (
  idChannel INTEGER NOT NULL,
  name TEXT NOT NULL,
  value TEXT NOT NULL,
  PRIMARY KEY (idChannel, name)
) WITHOUT ROWID;

-- The alerts on their way, and the latest that have arrived or were given up; see src/store/outbox.h.
CREATE TABLE outbox (
  idAlert INTEGER PRIMARY KEY,
  idChannel INTEGER NOT NULL,
  idSite INTEGER NOT NULL,
  pass TEXT NOT NULL,
  made TEXT NOT NULL,
  event TEXT NOT NULL,
  url TEXT NOT NULL,
  cause TEXT NOT NULL,
  downSince TEXT NOT NULL,
  downFor TEXT NOT NULL,
  checks TEXT NOT NULL,
  firstError TEXT NOT NULL,
  difference TEXT NOT NULL,
  page BLOB,
  state TEXT NOT NULL,
  tries INTEGER NOT NULL,
  nextTry TEXT NOT NULL,
  lastTry TEXT NOT NULL,
  deadline TEXT NOT NULL,
  answer TEXT NOT NULL
);
CREATE INDEX outboxByState ON outbox (state, idChannel, idAlert);

-- Baselines beside that of the site's row: those that another one has replaced, and further ones of which a page may
-- equal any; see src/store/baselines.h.
CREATE TABLE baselines (
  idBaseline INTEGER PRIMARY KEY,
  idSite INTEGER NOT NULL,
  taken TEXT NOT NULL,
  origin TEXT NOT NULL,
  content TEXT NOT NULL
);
CREATE INDEX baselinesOfSite ON baselines (idSite, origin, idBaseline);

-- Words by which sites are found; see src/store/site_tags.h.
CREATE TABLE siteTags (
  idSite INTEGER NOT NULL,
  tag TEXT NOT NULL,
  PRIMARY KEY (idSite, tag)
) WITHOUT ROWID;

-- The wrong pages that are known, so that nothing is said of them; see src/store/acknowledgements.h.
CREATE TABLE acknowledged (
  idSite INTEGER PRIMARY KEY,
  page TEXT NOT NULL,
  since TEXT NOT NULL
);

-- What was known of the sites, for years; see src/store/site_history.h. Moments are seconds since 1970 in UTC, the
-- beginnings of hours, days and months by the clock on the wall. up and unknown are seconds; what is neither is down.
-- msSum, msMax and buckets (see src/history/latency.h) tell how many milliseconds the answers took.
CREATE TABLE hours (
  idSite INTEGER NOT NULL,
  hour INTEGER NOT NULL,
  checks INTEGER NOT NULL,
  up INTEGER NOT NULL,
  unknown INTEGER NOT NULL,
  msSum INTEGER NOT NULL,
  msMax INTEGER NOT NULL,
  buckets BLOB NOT NULL,
  PRIMARY KEY (hour, idSite)
) WITHOUT ROWID;
-- The sums of those, once the day or the month is over.
CREATE TABLE days (
  idSite INTEGER NOT NULL,
  day INTEGER NOT NULL,
  seconds INTEGER NOT NULL,
  checks INTEGER NOT NULL,
  up INTEGER NOT NULL,
  unknown INTEGER NOT NULL,
  msSum INTEGER NOT NULL,
  msMax INTEGER NOT NULL,
  buckets BLOB NOT NULL,
  PRIMARY KEY (idSite, day)
) WITHOUT ROWID;
CREATE TABLE months (
  idSite INTEGER NOT NULL,
  month INTEGER NOT NULL,
  seconds INTEGER NOT NULL,
  checks INTEGER NOT NULL,
  up INTEGER NOT NULL,
  unknown INTEGER NOT NULL,
  msSum INTEGER NOT NULL,
  msMax INTEGER NOT NULL,
  buckets BLOB NOT NULL,
  PRIMARY KEY (idSite, month)
) WITHOUT ROWID;
CREATE TABLE outages (
  idSite INTEGER NOT NULL,
  began INTEGER NOT NULL,
  ended INTEGER,
  checks INTEGER NOT NULL,
  cause TEXT NOT NULL,
  PRIMARY KEY (idSite, began)
) WITHOUT ROWID;
-- The last check of each site, which says something until `until`; a row of site 0 stands for the log that was read.
CREATE TABLE latestChecks (
  idSite INTEGER PRIMARY KEY,
  at INTEGER NOT NULL,
  up INTEGER NOT NULL,
  until INTEGER,
  lookUp INTEGER,
  connect INTEGER,
  tls INTEGER,
  firstByte INTEGER,
  whole INTEGER
);
-- The certificates by which the sites were last verified.
CREATE TABLE certificates (
  idSite INTEGER PRIMARY KEY,
  began INTEGER NOT NULL,
  ends INTEGER NOT NULL,
  issuer TEXT NOT NULL,
  told INTEGER
);
-- The months, as "2026-11", whose report has been made; the first is the one before such reports were wanted.
CREATE TABLE monthReports (
  month TEXT NOT NULL PRIMARY KEY
) WITHOUT ROWID;

COMMIT;
