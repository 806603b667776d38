-- The tables of a fresh Tarnwick database. Load into an empty file: sqlite3 tarnwick.mdb < schema.sql
--
-- YESNO columns hold 0 for no and 1 for yes; any other number is read as yes.
-- "DATETIME TEXT" columns hold "YYYY-MM-DD HH:MM:SS", local time; the second word keeps them texts.
-- Every check is named by the sentence that the program shows when it fails; its first word is the column.
-- The wide columns stand last in their tables: what stands before them is read without their pages.

PRAGMA encoding = 'UTF-8';
PRAGMA auto_vacuum = NONE;
-- The form of the tables: the original ones are form 0; the program brings an older list to today's form.
PRAGMA user_version = 1;

BEGIN;

-- One row per monitored site.
CREATE TABLE sites (
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
  content_compare TEXT,
  content_runtime TEXT
);
-- Everything about a site but its pages, in the order of the list. Lists and countdowns are read from it alone, without
-- a look at the pages of the file that hold the sites: a third of the time for 32767 of them.
CREATE INDEX sites_list ON sites (
  idSite, url, method, active, tInterval, lastChecked, alertEmail, email, sUserName, sPassWord, status, success, failure
);

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
  (0, 'logLimit', '1024');

COMMIT;
