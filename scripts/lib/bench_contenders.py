"""What is measured: the product, what people use instead, and the floor that nothing can go below."""

import os
import shutil
import sqlite3
import subprocess
from pathlib import Path

from bench_pages import page


def own_count(place):
    """How many of the sites the pass is to find changed."""
    return sum(1 for n in range(1, place.sites + 1) if n % 10 == 0) if place.changed else 0


class Place:
    """Where one round of runs happens: how many sites, which server, a folder for what the programs keep."""

    def __init__(self, folder, sites, size, port, changed, server=None, scheme="http", hosts=1, dead=0,
                 names=0):
        self.folder = Path(folder)
        self.sites = sites
        self.size = size
        self.port = port
        self.changed = changed
        self.server = server
        self.scheme = scheme
        self.hosts = hosts
        self.dead = dead
        self.names = names

    def url(self, number):
        if self.names:
            return f"{self.scheme}://s{1 + number % self.names}.bench.test:{self.port}/p{number}"
        return f"{self.scheme}://127.0.0.{1 + number % self.hosts}:{self.port}/p{number}"

    def urls(self):
        return [self.url(number) for number in range(1, self.sites + 1)]


class Contender:
    """A program that is run again and again. `prepare` lays what it has learnt, `restore` puts that back before each
    run, `command` is what is timed, `accepts` tells whether it ended as it should."""

    name = ""
    note = ""

    def __init__(self, tools):
        self.tools = tools

    def reason_to_skip(self, place):
        return ""

    def prepare(self, place):
        pass

    def restore(self, place):
        pass

    def command(self, place):
        raise NotImplementedError

    def environment(self, place):
        return dict(os.environ)

    def accepts(self, place, status, output):
        return status == 0


def fill_database(database, schema, place, log_rows=0, checked=True):
    """Makes a database of the product whose baselines are the unchanged pages; not `checked`, one without any."""
    database.unlink(missing_ok=True)
    with sqlite3.connect(database) as connection:
        connection.execute("pragma synchronous = off")
        connection.executescript(schema)
        connection.executemany(
            "insert into sites (idSite, url, method, active, tInterval, lastChecked, alertEmail, email, sUserName,"
            " sPassWord, status, success, failure, content_compare)"
            " values (?1, ?2, 'GET', 1, 10, '2026-01-01 00:00:00', 0, '', '', '', 1, 10, 0, cast(?3 as text))",
            ((n, place.url(n), page(n, place.size) if checked else None) for n in range(1, place.sites + 1)))
        # The page of the last check is the baseline, so that it is stored once.
        connection.execute("update siteRows set runtimePage = comparePage")
        connection.executemany(
            "insert into log (idSite, url, status, errCode, errDescription, dateStamp, content)"
            " values (?, ?, 1, 0, '', datetime('2026-01-01', '+' || ? || ' seconds'), '')",
            ((n % place.sites + 1, place.url(n % place.sites + 1), n) for n in range(log_rows)))
    connection.close()


class Tarnwick(Contender):
    name = "tarnwickctl check"
    note = "judges, records and logs"

    def __init__(self, tools, log_rows=0, options=()):
        super().__init__(tools)
        self.log_rows = log_rows
        self.options = options
        self.place = "tarnwick"

    def folder(self, place):
        return place.folder / self.place

    def prepare(self, place):
        shutil.rmtree(self.folder(place), ignore_errors=True)
        self.folder(place).mkdir(parents=True)
        fill_database(self.folder(place) / "filled.mdb", self.tools.schema, place, self.log_rows)
        with sqlite3.connect(self.folder(place) / "filled.mdb") as connection:
            connection.executemany("insert or replace into siteOptions (idSite, name, value) values (0, ?, ?)", self.options)
        connection.close()

    def restore(self, place):
        for leftover in self.folder(place).glob("tarnwick.mdb*"):
            leftover.unlink()
        shutil.copy(self.folder(place) / "filled.mdb", self.folder(place) / "tarnwick.mdb")

    def command(self, place):
        return [str(self.tools.tarnwickctl), "--folder", str(self.folder(place)), "check"]

    def accepts(self, place, status, output):
        down = sum(1 for line in output.splitlines() if line.startswith(b"down"))
        expected = place.sites // place.dead if place.dead else own_count(place)
        return status == (1 if expected else 0) and down == expected


class Curl(Contender):
    name = "curl, five at a time"
    note = "fetches only"

    def prepare(self, place):
        place.folder.mkdir(parents=True, exist_ok=True)
        with open(place.folder / "curl.conf", "w", encoding="ascii") as config:
            for url in place.urls():
                config.write(f'url = "{url}"\noutput = "/dev/null"\n')

    def command(self, place):
        return ["curl", "--silent", "--show-error", "--fail", "--parallel", "--parallel-max", "5",
                "--parallel-immediate", "--header", "Connection: close", "--config", str(place.folder / "curl.conf")]


class BareStatements(Tarnwick):
    name = "bare SQLite statements"
    note = "records only, prepared once"

    def folder(self, place):
        return place.folder / "statements"

    def command(self, place):
        return [str(self.tools.sql_floor), str(self.folder(place) / "tarnwick.mdb"),
                "10" if place.changed else "0"]

    def accepts(self, place, status, output):
        return status == 0


class BareTransfers(Curl):
    """What curl itself cannot be told: to read the authorities once, not with each connection."""

    name = "bare libcurl, five at a time"
    note = "fetches only, authorities read once"

    def command(self, place):
        return [str(self.tools.fetch_floor), str(place.folder / "curl.conf")]


class Urlwatch(Contender):
    name = "urlwatch, its own ten at a time"
    note = "compares, records"
    START = "import sys; from urlwatch.cli import main; sys.argv[0] = 'urlwatch'; main()"

    def reason_to_skip(self, place):
        if place.sites > 2000:
            return "its first run, which learns the pages, grows faster than their number (70 s for 4000)"
        return ""

    def files(self, place):
        return place.folder / "urlwatch"

    def prepare(self, place):
        folder = self.files(place)
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        (folder / "urls.yaml").write_text("---\n".join(f"name: site {n}\nurl: {url}\n"
                                                       for n, url in enumerate(place.urls(), 1)), encoding="ascii")
        (folder / "config.yaml").write_text(
            "display: {error: true, new: false, unchanged: false}\n"
            "report: {stdout: {enabled: true, color: false}, text: {line_length: 75, details: false, footer: false}}\n"
            "job_defaults: {all: {}, url: {}, shell: {}, browser: {}}\n", encoding="ascii")
        (folder / "hooks.py").write_text("", encoding="ascii")

    def learn(self, place):
        """Its first run over the unchanged pages."""
        subprocess.run(self.command(place), env=self.environment(place), check=True, stdout=subprocess.DEVNULL)
        shutil.copy(self.files(place) / "cache.db", self.files(place) / "learnt.db")

    def restore(self, place):
        learnt = self.files(place) / "learnt.db"
        if learnt.exists():
            shutil.copy(learnt, self.files(place) / "cache.db")

    def command(self, place):
        folder = self.files(place)
        return ["/usr/bin/python3", "-c", self.START, "--urls", str(folder / "urls.yaml"), "--config",
                str(folder / "config.yaml"), "--hooks", str(folder / "hooks.py"), "--cache", str(folder / "cache.db")]


class UrlwatchFive(Urlwatch):
    name = "urlwatch, five at a time"
    START = "import urlwatch.worker; urlwatch.worker.MAX_WORKERS = 5; " + Urlwatch.START


class CheckHttp(Contender):
    name = "check_http by xargs -P5"
    note = "compares nothing, records nothing"

    def prepare(self, place):
        place.folder.mkdir(parents=True, exist_ok=True)
        (place.folder / "paths").write_text("".join(f"/p{n}\n" for n in range(1, place.sites + 1)), encoding="ascii")

    def command(self, place):
        return ["xargs", "-a", str(place.folder / "paths"), "-P5", "-n1", "/usr/lib/nagios/plugins/check_http", "-I",
                "127.0.0.1", "-p", str(place.port), "-u"]


class CheckCurl(CheckHttp):
    name = "check_curl -S -D by xargs -P5"
    note = "verifies; compares nothing, records nothing"

    def command(self, place):
        return ["xargs", "-a", str(place.folder / "paths"), "-P5", "-n1", "/usr/lib/nagios/plugins/check_curl", "-S",
                "-D", "-I", "127.0.0.1", "-p", str(place.port), "-u"]


ALL = (Tarnwick, Curl, BareStatements, Urlwatch, CheckHttp)
