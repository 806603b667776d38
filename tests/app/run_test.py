#!/usr/bin/env python3
"""The terminal tool as its users have it: the real executable, real signals, a real terminal.

    run_test.py CASE TARNWICKCTL SCHEMA
"""

from __future__ import annotations

import contextlib
import http.server
import json
import os
import pty
import re
import select
import signal
import socket
import sqlite3
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

LIMIT = 20.0
tool = ""
schema = ""


class Pages(http.server.BaseHTTPRequestHandler):
    """/steady is always the same, /count never, /silent is never answered."""

    counted = 0

    def do_GET(self):
        if self.path.startswith("/silent"):
            self.server.asked.set()
            self.server.ended.wait(LIMIT)
            return
        body = b"steady"
        if self.path.startswith("/count"):
            Pages.counted += 1
            body = b"%d" % Pages.counted
        self.send_response(200)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


@contextlib.contextmanager
def web():
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Pages)
    server.daemon_threads = True
    server.asked = threading.Event()
    server.ended = threading.Event()
    thread = threading.Thread(target=server.serve_forever, kwargs={"poll_interval": 0.05})
    thread.start()
    try:
        yield server
    finally:
        server.ended.set()
        server.shutdown()
        thread.join()
        server.server_close()


@contextlib.contextmanager
def folder(*urls: str):
    with tempfile.TemporaryDirectory(prefix="tarnwick-run-") as name:
        with contextlib.closing(sqlite3.connect(Path(name, "tarnwick.mdb"))) as database:
            database.executescript(Path(schema).read_text(encoding="utf-8"))
            for number, url in enumerate(urls, 1):
                database.execute("insert into sites (idSite, url, method, active, tInterval) values (?, ?, 'get', 1, 1)",
                                 (number, url))
            database.commit()
        yield name


def rows(place: str, sql: str):
    with contextlib.closing(sqlite3.connect(f"file:{place}/tarnwick.mdb?mode=ro", uri=True)) as database:
        return database.execute(sql).fetchall()


def start(place: str, *arguments: str, **options):
    return subprocess.Popen([tool, "--folder", place, *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            stderr=subprocess.PIPE, text=True, **options)


def ask(place: str, *arguments: str):
    return subprocess.run([tool, "--folder", place, *arguments], capture_output=True, text=True, timeout=LIMIT,
                          stdin=subprocess.DEVNULL, check=False)


def line_with(process, text: str) -> list[str]:
    """Reads lines until one holds `text`, and not a byte more."""
    read = [""]
    end = time.monotonic() + LIMIT
    while time.monotonic() < end:
        ready, _, _ = select.select([process.stdout], [], [], 0.2)
        if not ready:
            continue
        byte = os.read(process.stdout.fileno(), 1).decode("latin-1")
        if not byte:
            break
        read[-1] += byte
        if byte == "\n":
            if text in read[-1]:
                return read
            read.append("")
    raise AssertionError(f"no line with {text!r} came, but {read}")


def expect(condition, *what):
    if not condition:
        raise AssertionError(" ".join(str(each) for each in what) or "the expectation does not hold")


def tells_the_service_manager_how_it_is():
    with web() as server, folder(f"http://127.0.0.1:{server.server_port}/steady") as place, \
            tempfile.TemporaryDirectory() as sockets:
        for name in (f"{sockets}/notify", f"@tarnwick-test-{os.getpid()}"):
            with socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM) as manager:
                manager.settimeout(LIMIT)
                manager.bind(name.replace("@", "\0", 1))
                process = start(place, "run", env={**os.environ, "NOTIFY_SOCKET": name, "WATCHDOG_USEC": "200000"})
                expect(manager.recv(100) == b"READY=1", "it is not ready")
                for _ in range(3):
                    expect(manager.recv(100) == b"WATCHDOG=1", "it gives no sign of life")
                process.send_signal(signal.SIGTERM)
                said = b"WATCHDOG=1"
                while said == b"WATCHDOG=1":
                    said = manager.recv(100)
                expect(said == b"STOPPING=1", said)
                process.communicate(timeout=LIMIT)
                expect(process.returncode == 0, process.returncode)
        # Not for this process, and to nobody.
        for env in ({"NOTIFY_SOCKET": f"{sockets}/none"}, {"NOTIFY_SOCKET": "x" * 200}, {"WATCHDOG_USEC": "many"}):
            process = start(place, "run", env={**os.environ, **env})
            line_with(process, "Checked 1 site")
            process.send_signal(signal.SIGTERM)
            _, err = process.communicate(timeout=LIMIT)
            expect((process.returncode, err) == (0, ""), process.returncode, err)


def writes_lines_with_their_time_and_stops_as_asked():
    for stop in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        with web() as server, folder(f"http://127.0.0.1:{server.server_port}/steady") as place:
            process = start(place, "run")
            lines = line_with(process, "Checked 1 site: 1 up, 0 down.")
            process.send_signal(stop)
            out, err = process.communicate(timeout=LIMIT)
            lines += out.splitlines()
            expect(process.returncode == 0, stop, process.returncode, err)
            expect(err == "", err)
            expect(all(re.match(r"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d ", line) for line in lines), lines)
            expect(lines[0].rstrip().endswith(f"Run started: 1 site active in {place}."), lines)
            expect(lines[-1].endswith("Run stopped."), lines)
            expect(sorted(os.listdir(place)) == ["tarnwick.mdb"], os.listdir(place))


def stops_at_once_in_the_middle_of_a_pass():
    with web() as server:
        address = f"http://127.0.0.1:{server.server_port}"
        with folder(f"{address}/silent/1", f"{address}/silent/2") as place:
            for arguments, status in ((("run",), 0), (("check",), 2)):
                server.asked.clear()
                process = start(place, *arguments)
                expect(server.asked.wait(LIMIT), "the pass never began")
                before = time.monotonic()
                process.send_signal(signal.SIGTERM)
                process.communicate(timeout=LIMIT)
                expect(time.monotonic() - before < 5, "stopping took too long")
                expect(process.returncode == status, arguments, process.returncode)
                expect(sorted(os.listdir(place)) == ["tarnwick.mdb"], os.listdir(place))
                expect(rows(place, "select count(*) from log") == [(0,)], "a cut request was recorded")
                Path(place, "tarnwick.mdb-wal").unlink(missing_ok=True)
                Path(place, "tarnwick.mdb-shm").unlink(missing_ok=True)


def refuses_a_second_run_on_the_same_folder():
    with web() as server, folder(f"http://127.0.0.1:{server.server_port}/steady") as place:
        first = start(place, "run")
        line_with(first, "Checked")
        second = ask(place, "run")
        expect(second.returncode == 2, second)
        expect(second.stdout == "", second)
        expect(f"tarnwickctl (process {first.pid}" in second.stderr and place in second.stderr, second.stderr)
        first.kill()
        first.communicate(timeout=LIMIT)
        third = start(place, "run")
        line_with(third, "Checked")
        third.send_signal(signal.SIGTERM)
        third.communicate(timeout=LIMIT)
        expect(third.returncode == 0, "what a killed run left keeps the next one out")


def loses_nothing_when_several_work_on_one_folder():
    checks = 15
    with web() as server, folder(*[f"http://127.0.0.1:{server.server_port}/count/{i}" for i in range(5)]) as place:
        runner = start(place, "run")
        line_with(runner, "Checked")
        before = sum(row[0] for row in rows(place, "select coalesce(success, 0) + coalesce(failure, 0) from sites"))
        workers = [start(place, "check") for _ in range(checks)]
        for number in range(10):
            added = ask(place, "add", f"http://127.0.0.1:{server.server_port}/steady/{number}", "--inactive")
            expect(added.returncode == 0, added)
        for worker in workers:
            _, err = worker.communicate(timeout=60)
            expect(worker.returncode == 1 and err == "", worker.returncode, err)
        runner.send_signal(signal.SIGTERM)
        runner.communicate(timeout=LIMIT)
        after = sum(row[0] for row in rows(place, "select coalesce(success, 0) + coalesce(failure, 0) from sites"))
        logged = rows(place, "select count(*) from log")[0][0]
        expect(after == logged, f"{after} are counted, {logged} are logged")
        expect(after >= before + checks * 5, f"{after - before} of {checks * 5} checks were counted")
        expect(rows(place, "select count(*) from sites") == [(15,)], "a site was lost")


def begins_beside_others_on_a_list_that_nobody_had_open():
    for _ in range(40):
        with folder() as place:
            both = [start(place, "add", f"http://127.0.0.1:9/{number}") for number in range(2)]
            for adder in both:
                _, err = adder.communicate(timeout=LIMIT)
                expect(adder.returncode == 0, err)
            expect(rows(place, "select count(*) from sites") == [(2,)], "a site was lost")


def changes_the_list_while_it_is_compacted():
    with folder("http://127.0.0.1:9/") as place:
        done = threading.Event()
        refused = []

        def ask_when_free(*words):
            # On a machine with much to do a compaction may take longer than a program waits for it.
            for _ in range(20):
                ended = ask(place, *words)
                if ended.returncode == 0 or "in use" not in ended.stderr:
                    break
            return ended

        def compact():
            while not done.is_set():
                ended = ask(place, "compact")
                if ended.returncode != 0 and "in use" not in ended.stderr:
                    refused.append(ended.stderr)

        compacting = threading.Thread(target=compact)
        compacting.start()
        try:
            for interval in range(1, 30):
                ended = ask_when_free("set", "1", f"--interval={interval}")
                expect(ended.returncode == 0, ended.stderr)
                stored = json.loads(ask_when_free("site", "1", "--json").stdout)
                expect(str(stored["tInterval"]) == str(interval), stored["tInterval"], interval)
        finally:
            done.set()
            compacting.join()
        expect(not refused, refused)


def prints_an_object_a_line():
    with web() as server, folder(f"http://127.0.0.1:{server.server_port}/count") as place:
        process = start(place, "run", "--json")
        lines = line_with(process, '"pass"')
        process.send_signal(signal.SIGTERM)
        out, _ = process.communicate(timeout=LIMIT)
        events = [json.loads(line) for line in lines + out.splitlines()]
        expect([event["event"] for event in events] == ["started", "result", "pass", "stopped"], events)
        expect(events[1]["idSite"] == 1 and events[1]["status"] is True, events)


def counts_down_on_one_live_line_of_a_terminal():
    with web() as server, folder(f"http://127.0.0.1:{server.server_port}/steady") as place:
        pid, terminal = pty.fork()
        if pid == 0:
            os.environ["TERM"] = "xterm"
            os.execv(tool, [tool, "--folder", place, "run"])
        shown = b""
        end = time.monotonic() + LIMIT
        while b"Time Until Next Check: 00:00:5" not in shown and time.monotonic() < end:
            ready, _, _ = select.select([terminal], [], [], 0.2)
            if ready:
                shown += os.read(terminal, 4096)
        os.write(terminal, b"\x03")
        with contextlib.suppress(OSError):
            while piece := os.read(terminal, 4096):
                shown += piece
        _, status = os.waitpid(pid, 0)
        os.close(terminal)
        expect(os.waitstatus_to_exitcode(status) == 0, status, shown)
        expect(re.search(rb"\r\x1b\[KRun Time: 000:00:0\d  1 up, 0 down  Time Until Next Check: 00:00:5\d", shown), shown)
        expect(shown.rstrip().endswith(b"Run stopped."), shown)


def goes_on_when_nobody_reads_what_it_writes():
    with web() as server, folder(*[f"http://127.0.0.1:{server.server_port}/steady/{i}" for i in range(300)]) as place:
        process = start(place, "check")
        process.stdout.readline()
        process.stdout.close()
        process.stderr.read()
        expect(process.wait(LIMIT) == 0, process.returncode)
        expect(rows(place, "select count(*) from log") == [(300,)], "the pass ended with its reader")


def ends_with_what_reads_it():
    for options in (("--json",), ("--verbose",)):
        with web() as server, folder(f"http://127.0.0.1:{server.server_port}/steady") as place:
            process = start(place, "run", *options)
            process.stdout.readline()
            process.stdout.close()
            with contextlib.closing(sqlite3.connect(Path(place, "tarnwick.mdb"))) as database:
                database.execute("update sites set lastChecked = '2001-01-01 00:00:00'")
                database.commit()
            said = process.stderr.read()
            expect(process.wait(LIMIT) == 2, process.returncode, said)
            expect("nobody reads its lines any more" in said, said)
            expect("tarnwick.lock" not in os.listdir(place), os.listdir(place))


def fails_on_a_full_disk():
    with web() as server, folder(f"http://127.0.0.1:{server.server_port}/steady") as place, open("/dev/full", "w") as full:
        for arguments in (("sites",), ("check",), ("baseline", "1"), ("log", "--json")):
            ended = subprocess.run([tool, "--folder", place, *arguments], stdin=subprocess.DEVNULL, stdout=full,
                                   stderr=subprocess.PIPE, text=True, timeout=LIMIT, check=False)
            expect(ended.returncode == 2, arguments, ended)
            expect(ended.stderr.count("\n") == 1 and "No space left on device" in ended.stderr, arguments, ended)


def watches_on_while_the_disk_of_its_lines_is_full():
    with web() as server, folder(f"http://127.0.0.1:{server.server_port}/steady") as place, open("/dev/full", "w") as full:
        process = subprocess.Popen([tool, "--folder", place, "run", "--verbose"], stdin=subprocess.DEVNULL, stdout=full,
                                   stderr=subprocess.PIPE, text=True)
        said = process.stderr.readline()
        expect("The run goes on" in said and "No space left on device" in said, said)
        end = time.monotonic() + LIMIT
        while rows(place, "select success from sites")[0][0] != 1:
            expect(time.monotonic() < end, "the site was not checked")
            time.sleep(0.05)
        process.send_signal(signal.SIGTERM)
        _, more = process.communicate(timeout=LIMIT)
        expect(process.returncode == 2 and more == "", process.returncode, more)


def reads_pipes_that_are_given_as_files():
    with folder("http://127.0.0.1:1/") as place:
        for command, sql, found in (
                ("baseline 1 set <(printf page)", "select content_compare from sites", "page"),
                ("set 1 --password-file <(echo secret)", "select sPassWord from sites", "secret"),
                ("import --format csv <(printf 'idSite,url\\n1,http://b/\\n')", "select url from sites", "http://b/"),
                ("set 1 --password-file /dev/stdin < <(echo other)", "select sPassWord from sites", "other")):
            ended = subprocess.run(["bash", "-c", f'"{tool}" --folder "{place}" {command}'], capture_output=True, text=True,
                                   timeout=LIMIT, stdin=subprocess.DEVNULL, check=False)
            expect(ended.returncode == 0, command, ended)
            value = rows(place, sql)[0][0]
            expect((value.decode() if isinstance(value, bytes) else value) == found, command, value)


def loads_no_library_of_a_desktop():
    with web() as server, folder(f"http://127.0.0.1:{server.server_port}/steady") as place:
        process = start(place, "run")
        line_with(process, "Checked")
        maps = Path(f"/proc/{process.pid}/maps").read_text(encoding="utf-8")
        process.send_signal(signal.SIGTERM)
        process.communicate(timeout=LIMIT)
        loaded = {os.path.basename(line.split()[-1]) for line in maps.splitlines() if ".so" in line}
        found = [name for name in loaded if re.match(r"lib(Qt6(Gui|Widgets|Multimedia|DBus)|X11|xcb|wayland|GL)\b", name)]
        expect(not found, found)
        expect(any(name.startswith("libQt6Core") for name in loaded) or not loaded, loaded)


def main() -> int:
    global tool, schema
    case, tool, schema = sys.argv[1:]
    globals()[case]()
    return 0


if __name__ == "__main__":
    sys.exit(main())
