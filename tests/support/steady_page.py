"""A web page that stays as it is, for tests that start the real program."""

from __future__ import annotations

import contextlib
import http.server
import threading


class Pages(http.server.BaseHTTPRequestHandler):
    def do_GET(self):  # noqa: N802 - the name is the library's
        self.send_response(200)
        self.send_header("Content-Length", "6")
        self.end_headers()
        self.wfile.write(b"steady")

    def log_message(self, *_):
        pass


@contextlib.contextmanager
def web():
    """Its address, for as long as it is served."""
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Pages)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    try:
        yield f"http://127.0.0.1:{server.server_port}/"
    finally:
        server.shutdown()
        server.server_close()
