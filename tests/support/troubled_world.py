"""A world in which things go wrong beside a program: its web server, its mail server, its database, and other programs
that work on the same list. Everything stays on this machine and in the program folder given."""

from __future__ import annotations

import contextlib
import http.server
import random
import shutil
import socket
import sqlite3
import subprocess
import threading
import time
from pathlib import Path

SITES_AT_MOST = 25

# Counts beside the program what it logs and what it counts: the totals outlive a cleared log and a cleared counter, and
# go with their site. The log stays switched on, since only what is logged can be compared.
LEDGER = """
create table ledger (idSite integer primary key, logged integer default 0, counted integer default 0);
create table results (made integer);
insert into results values (0);
create trigger ledger_log after insert on log begin
  update results set made = made + 1;
end;
create trigger ledger_failure after insert on log when not new.status begin
  insert or ignore into ledger (idSite) values (new.idSite);
  update ledger set logged = logged + 1 where idSite = new.idSite;
end;
create trigger ledger_count after update of failure on siteRows
    when coalesce(new.failure, 0) > coalesce(old.failure, 0) begin
  insert or ignore into ledger (idSite) values (new.idSite);
  update ledger set counted = counted + 1 where idSite = new.idSite;
end;
create trigger ledger_delete after delete on siteRows begin
  delete from ledger where idSite = old.idSite;
end;
create trigger ledger_clogs after update of clogs on control when not new.clogs begin
  update control set clogs = 1;
end;
"""


class Folder:
    """A copy of a built program folder with a fresh database, to which a ledger is added."""

    def __init__(self, built: Path, schema: Path, folder: Path):
        # The blank keeps what a file chooser puts into the alert's command line from being a program.
        self.path = folder / "program folder"
        shutil.copytree(built, self.path, ignore=shutil.ignore_patterns("*.mdb*", "report.html"))
        self.database = self.path / "tarnwick.mdb"
        # Held while the database is away or locked, and by whoever needs it in its place.
        self.trouble = threading.RLock()
        connection = sqlite3.connect(self.database)
        connection.executescript(schema.read_text(encoding="utf-8"))
        connection.executescript(LEDGER)
        connection.close()

    @contextlib.contextmanager
    def connection(self):
        """A connection to the database in its place, which is never made anew."""
        with self.trouble:
            connection = sqlite3.connect(f"{self.database.as_uri()}?mode=rw", uri=True, timeout=20,
                                         isolation_level=None)
            try:
                yield connection
            finally:
                connection.close()

    def rows(self, sql: str, *values) -> list[tuple]:
        """What a statement gives."""
        with self.connection() as connection:
            return connection.execute(sql, values).fetchall()

    def results(self) -> int:
        """How many results were ever logged."""
        return self.rows("select made from results")[0][0]

    def lost_counts(self) -> list[tuple]:
        """The sites of which not every logged failure was counted: id, logged, counted."""
        return self.rows("select idSite, logged, counted from ledger where logged <> counted and idSite in "
                         "(select idSite from sites)")

    def hide_database(self, seconds: float) -> None:
        """Moves the database away and puts it back."""
        with self.trouble:
            hidden = self.path / "moved away"
            self.database.rename(hidden)
            try:
                time.sleep(seconds)  # sleeps because the file is to be missing for that long
            finally:
                # What the program has put in its place meanwhile, as a compaction may, is the newer one.
                if self.database.exists():
                    hidden.unlink()
                else:
                    hidden.rename(self.database)

    def lock_database(self, seconds: float) -> None:
        """Keeps every other program from writing."""
        with self.connection() as connection:
            try:
                connection.execute("begin exclusive")
            except sqlite3.OperationalError:
                return  # another one was faster
            time.sleep(seconds)  # sleeps because the lock is to stand for that long
            connection.execute("rollback")


class Weather:
    """How the web and the mail server behave."""

    def __init__(self):
        self.web = "good"
        self.mail = "silent"


class Pages(http.server.BaseHTTPRequestHandler):
    """Pages in every weather; also answers as a proxy, so that no address leads off this machine."""

    weather: Weather

    def _answer(self):
        weather = self.weather.web
        if weather == "cut":
            self.close_connection = True
            return
        if weather == "slow":
            time.sleep(random.uniform(0.2, 4))  # sleeps because it is a slow server
        page = b"<html>The same page\r\nat all times.</html>"
        if "changing" in self.path:
            page = b"<html>%d</html>" % random.randrange(1 << 30)
        self.send_response(500 if weather == "broken" else 200)
        self.send_header("Content-Length", str(len(page)))
        self.end_headers()
        self.wfile.write(page)

    do_GET = do_POST = _answer

    def do_CONNECT(self):  # noqa: N802 - the name is the library's
        self.send_error(502)

    def log_message(self, *_):
        pass


class WebServer:
    """A web server that can go away and come back at the same port."""

    def __init__(self, weather: Weather):
        self._pages = type("PagesOfHere", (Pages,), {"weather": weather})
        self._server = None
        self.port = 0
        self.come()

    def come(self) -> None:
        if self._server is None:
            server = http.server.ThreadingHTTPServer(("127.0.0.1", self.port), self._pages)
            server.daemon_threads = True
            server.block_on_close = False
            server.handle_error = lambda *_: None  # who asked may have gone
            self.port = server.server_port
            threading.Thread(target=server.serve_forever, kwargs={"poll_interval": 0.05}, daemon=True).start()
            self._server = server

    def go(self) -> None:
        if self._server is not None:
            self._server.shutdown()
            self._server.server_close()
            self._server = None


class MailServer:
    """A mail server on an address of its own that says nothing, or hangs up at once. `address` is where it is; nobody
    listens there when this machine does not let anyone."""

    def __init__(self, weather: Weather):
        self._weather = weather
        self._kept: list[socket.socket] = []
        self.address = f"127.{random.SystemRandom().randrange(1, 250)}.{random.SystemRandom().randrange(250)}.7"
        self._socket = socket.socket()
        self._socket.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        try:
            self._socket.bind((self.address, 25))
        except OSError:
            return
        self._socket.listen()
        threading.Thread(target=self._serve, daemon=True).start()

    def _serve(self) -> None:
        with contextlib.suppress(OSError):
            while True:
                connection, _ = self._socket.accept()
                if self._weather.mail == "silent":
                    self._kept.append(connection)
                else:
                    connection.close()

    def hang_up(self) -> None:
        while self._kept:
            self._kept.pop().close()

    def close(self) -> None:
        self._socket.close()
        self.hang_up()


class Troubles:
    """Makes trouble, one after the other, from `start` to `stop`, after which everything is as it should be."""

    def __init__(self, folder: Folder, seed: int):
        self._folder = folder
        self._random = random.Random(seed)
        self._weather = Weather()
        self.web = WebServer(self._weather)
        self.mail = MailServer(self._weather)
        self._stopping = threading.Event()
        self._threads: list[threading.Thread] = []
        self.told: list[str] = []
        self.broken: list[str] = []

    def start(self) -> None:
        self._stopping.clear()
        self._threads = [threading.Thread(target=self._until_stopped, args=(trouble, pause), daemon=True)
                         for trouble, pause in ((self._change_weather, 3), (self._trouble_database, 6),
                                                (self._work_beside, 1))]
        for thread in self._threads:
            thread.start()

    def stop(self) -> None:
        self._stopping.set()
        for thread in self._threads:
            thread.join()
        self.web.come()
        self._weather.web = "good"
        self._weather.mail = "closed"
        self.mail.hang_up()

    def close(self) -> None:
        self.stop()
        self.web.go()
        self.mail.close()

    def _until_stopped(self, trouble, pause: float) -> None:
        while not self._stopping.wait(self._random.uniform(0, 2 * pause)):
            try:
                trouble()
            except Exception as error:  # a fault of these programs, told at the end
                self.broken.append(f"{trouble.__name__}: {error!r}")

    def _tell(self, what: str) -> None:
        self.told.append(f"{time.strftime('%H:%M:%S')} {what}")

    def _change_weather(self) -> None:
        web = self._random.choice(["good", "good", "slow", "broken", "cut", "away"])
        self._tell(f"web {web}")
        if web == "away":
            self.web.go()
            return
        self.web.come()
        self._weather.web = web
        self._weather.mail = self._random.choice(["silent", "silent", "closed"])

    def _trouble_database(self) -> None:
        seconds = self._random.uniform(0.5, 5)
        if self._random.random() < 0.5:
            self._tell(f"database away for {seconds:.1f} s")
            self._folder.hide_database(seconds)
        else:
            self._tell("database locked")
            self._folder.lock_database(min(seconds, 3))
        self._tell("database back")

    def _work_beside(self) -> None:
        tool = self._folder.path / "tarnwickctl"
        with self._folder.connection() as connection:
            ids = [row[0] for row in connection.execute("select idSite from sites")]
        one = str(self._random.choice(ids or [1]))
        url = self.url()
        work = self._random.choice([
            ["add", url, "--interval", "1", "--alert-email", "a@example.org"], ["add", url, "--interval", "1"],
            ["set", one, "--url", url], ["set", one, "--active"], ["set", one, "--inactive"], ["set", one, "--active"],
            ["delete", one, "--yes"], ["check", one], ["counters", one], ["sites"], ["log"]])
        if work[0] == "add" and len(ids) > SITES_AT_MOST:
            work = ["delete", one, "--yes"]
        # A check that ends while the database is away has told that it could not count, and cannot make it up.
        with self._folder.trouble if work[0] == "check" else contextlib.nullcontext():
            subprocess.run([tool, *work], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, check=False, timeout=180)

    def url(self) -> str:
        page = self._random.choice(["steady", "changing", "other"])
        return f"http://127.0.0.1:{self.web.port}/{page}{self._random.randrange(100)}"
