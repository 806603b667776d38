"""What channels cost a pass: the same pass without any, with ones whose servers answer, and with ones whose do not."""

import shutil
import socket
import socketserver
import statistics
import subprocess
import sys
import threading

import bench_contenders
from bench_measure import SlowServer, measured, print_row

# One page in so many differs from what it is to be.
CHANGED_EVERY = 10


class Taker(socketserver.StreamRequestHandler):
    """Takes every mail and every request."""

    def handle(self):
        if self.server.speaks_mail:
            self.take_mail()
        else:
            self.take_request()

    def say(self, words):
        self.wfile.write(words.encode("ascii") + b"\r\n")

    def take_mail(self):
        self.say("220 bench.test")
        in_mail = False
        for line in self.rfile:
            if in_mail:
                in_mail = line != b".\r\n"
                if not in_mail:
                    self.say("250 taken")
            elif line.startswith(b"QUIT"):
                return
            else:
                in_mail = line.startswith(b"DATA")
                self.say("354 go on" if in_mail else "250 well")

    def take_request(self):
        length = 0
        for line in self.rfile:
            if line.lower().startswith(b"content-length:"):
                length = int(line.split(b":")[1])
            if line == b"\r\n":
                break
        self.rfile.read(length)
        self.say("HTTP/1.1 200 OK\r\nContent-Length: 0\r\nConnection: close\r\n")


class Door:
    """A server on a port of its own: one that takes all, one that keeps silent, or nobody behind a closed port."""

    def __init__(self, kind, speaks_mail):
        self.server = self.silent = None
        if kind == "up":
            self.server = socketserver.ThreadingTCPServer(("127.0.0.1", 0), Taker)
            self.server.daemon_threads = True
            self.server.speaks_mail = speaks_mail
            self.port = self.server.server_address[1]
            threading.Thread(target=self.server.serve_forever, daemon=True).start()
            return
        self.silent = socket.create_server(("127.0.0.1", 0), backlog=64)
        self.port = self.silent.getsockname()[1]
        if kind == "down":
            self.close()

    def close(self):
        if self.server:
            self.server.shutdown()
            self.server.server_close()
        if self.silent:
            self.silent.close()


class Alerting(bench_contenders.Tarnwick):
    """The product with a mail and a web hook, or without either."""

    def __init__(self, tools, name, kind=None):
        super().__init__(tools)
        self.name = name
        self.note = ""
        self.doors = [Door(kind, True), Door(kind, False)] if kind else []

    def prepare(self, place):
        super().prepare(place)
        if not self.doors:
            return
        mail, hook = self.doors
        self.restore(place)
        for channel in (["post", "--mail", "me@example.org", "--server", "127.0.0.1", "--port", str(mail.port),
                         "--safety", "none", "--from", "watch@example.org"],
                        ["hook", "--webhook", f"http://127.0.0.1:{hook.port}/"]):
            said = subprocess.run([str(self.tools.tarnwickctl), "--folder", str(self.folder(place)), "channel", "add",
                                   *channel], capture_output=True, check=False)
            if said.returncode:
                sys.exit(f"The channel was not made: {said.stderr.decode(errors='replace')}")
        shutil.copy(self.folder(place) / "tarnwick.mdb", self.folder(place) / "filled.mdb")

    def folder(self, place):
        return place.folder / self.name.replace(" ", "-")

    def close(self):
        for door in self.doors:
            door.close()


def alerts_round(options, tools, folder):
    """The pass as the web server sees it, from the first request to the last answer; then the program waits for what has
    not been tried once."""
    server = SlowServer(options.delay, options.size, changed=CHANGED_EVERY)
    contenders = [Alerting(tools, "no channels"), Alerting(tools, "servers up", "up"),
                  Alerting(tools, "servers down", "down"), Alerting(tools, "servers silent", "silent")]
    try:
        place = bench_contenders.Place(folder / "alerts", options.slow_sites, options.size, server.port, True)
        for contender in contenders:
            contender.prepare(place)
        server.busy_seconds()
        passes = {contender: [] for contender in contenders}
        walls = {contender: [] for contender in contenders}
        for _ in range(options.runs):
            for contender in contenders:
                contender.restore(place)
                run = measured(contender.command(place), contender.environment(place))
                if not contender.accepts(place, run.status, run.said):
                    sys.exit(f"{contender.name} did not do what it was to do (status {run.status}):\n"
                             + run.said[-400:].decode(errors="replace"))
                passes[contender].append(server.busy_seconds())
                walls[contender].append(run.wall)
        print(f"\n{options.slow_sites} sites, each answer after {options.delay} ms, every {CHANGED_EVERY}th one differs; "
              "a mail and a web hook\n")
        print_row(["", "the pass", "beside no channels", "with the wait for first tries"])
        print_row(["---", "---:", "---:", "---:"])
        bare = statistics.median(passes[contenders[0]])
        for contender in contenders:
            length = statistics.median(passes[contender])
            print_row([contender.name, f"{length:.2f} s", f"{100 * (length / bare - 1):+.2f} %",
                       f"{statistics.median(walls[contender]):.2f} s"])
    finally:
        server.close()
        for contender in contenders:
            contender.close()
