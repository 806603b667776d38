#!/usr/bin/env python3
"""The web site of the demo: a handful of pages on this machine, each of which behaves in its own way.

    demo_server.py

Prints one line with two addresses: that of the site, and one that refuses every connection. Serves until its standard
input ends, so it lives as long as the program that holds the other end, however that one ends.
"""

from __future__ import annotations

import http.server
import signal
import socket
import socketserver
import sys
import threading
import time
import urllib.parse

SLOW_SECONDS = 3
HEADLINES = ("Bakery opens on Sundays", "Bakery closes for the summer")


def page(title: str, text: str) -> str:
    return f"<!DOCTYPE html>\n<html>\n<head><title>{title}</title></head>\n<body>\n<p>{text}</p>\n</body>\n</html>\n"


class Pages(http.server.BaseHTTPRequestHandler):
    def do_GET(self):  # noqa: N802 - the name is the library's
        self.answer({})

    def do_POST(self):  # noqa: N802
        body = self.rfile.read(int(self.headers.get("Content-Length") or 0))
        self.answer(urllib.parse.parse_qs(body.decode("utf-8", "replace")))

    def answer(self, form: dict[str, list[str]]) -> None:
        status, text = self.page_of(self.path, form)
        body = text.encode()
        self.send_response(status)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def page_of(self, path: str, form: dict[str, list[str]]) -> tuple[int, str]:
        before = self.server.requests_before(path)
        if path == "/steady":
            return 200, page("Steady", "All services are running.")
        if path == "/slow":
            time.sleep(SLOW_SECONDS)
            return 200, page("Slow", "This page takes its time.")
        if path == "/news":
            return 200, page("News", HEADLINES[before % 2])
        if path == "/visitors":
            return 200, page("Visitors", f"You are visitor {18204 + before:,}, and welcome.")
        if path == "/prices":
            return 200, page("Prices", f"Kettle: {24 if before == 0 else 29}.00")
        if path == "/shop":
            return (200, page("Shop", "Welcome to the shop.")) if before == 0 else (
                500, page("500 Internal Server Error", "The shop's database does not answer."))
        if path == "/login":
            name = form.get("user", [""])[0]
            return (200, page("Login", "Signed in as monitor.")) if name == "monitor" else (
                403, page("Login", "Nobody is signed in."))
        return 404, page("Not found", "There is no such page.")

    def log_message(self, *_):
        pass  # the terminal belongs to the monitor


class Site(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def __init__(self):
        self._counts: dict[str, int] = {}
        self._lock = threading.Lock()
        super().__init__(("127.0.0.1", 0), Pages)

    def server_bind(self):
        # The library's own asks the network for this machine's name, which can take long and is not needed.
        socketserver.TCPServer.server_bind(self)

    def requests_before(self, path: str) -> int:
        """How often the page has been asked for before this time."""
        with self._lock:
            count = self._counts.get(path, 0)
            self._counts[path] = count + 1
            return count

    def handle_error(self, *_):
        pass  # a visitor who hangs up early, as Stop makes the monitor do


def main() -> None:
    # Ctrl+C goes to all programs of a terminal; this one ends after the one that it serves.
    signal.signal(signal.SIGINT, signal.SIG_IGN)
    # Bound and never listening, so the port refuses, and no other program can get it.
    closed = socket.socket()
    closed.bind(("127.0.0.1", 0))
    site = Site()
    threading.Thread(target=site.serve_forever, daemon=True).start()
    print(f"http://127.0.0.1:{site.server_address[1]} http://127.0.0.1:{closed.getsockname()[1]}", flush=True)
    sys.stdin.buffer.read()
    site.shutdown()


main()
