"""How a run is measured, and the servers that all fetch from."""

import json
import os
import socket
import subprocess
import sys
import tempfile
import time
import urllib.request
from pathlib import Path
from types import SimpleNamespace

from bench_pages import page

# What the system counts output in, bytes.
BLOCK = 512
HERE = Path(__file__).resolve().parent


def measured(command, environment):
    """Runs a command: wall seconds, processor seconds of it and all it started, its peak memory in MiB, status, output."""
    with tempfile.TemporaryFile() as output, tempfile.NamedTemporaryFile() as peak:
        # A process inherits the peak memory of the one it was forked from, so a small one stands between.
        watched = ["/usr/bin/time", "--quiet", "--format", "%M", "--output", peak.name, *command]
        begin = time.monotonic()
        process = subprocess.Popen(watched, env=environment, stdin=subprocess.DEVNULL, stdout=output,
                                   stderr=subprocess.STDOUT)
        _, status, usage = os.wait4(process.pid, 0)
        wall = time.monotonic() - begin
        process.returncode = os.waitstatus_to_exitcode(status)
        output.seek(0)
        said = output.read()
        memory = int(peak.read()) / 1024
    return SimpleNamespace(wall=wall, cpu=usage.ru_utime + usage.ru_stime, memory=memory,
                           written=usage.ru_oublock * BLOCK, status=process.returncode, said=said)


class FastServer:
    """nginx with one worker over files in memory."""

    def __init__(self, folder, certificate=None):
        self.folder = folder
        self.pages = folder / "pages"
        self.pages.mkdir(parents=True)
        with subprocess.Popen([sys.executable, "-c", "import socket; s = socket.socket(); s.bind(('127.0.0.1', 0)); "
                               "print(s.getsockname()[1])"], stdout=subprocess.PIPE) as chooser:
            self.port = int(chooser.stdout.read())
        config = folder / "nginx.conf"
        config.write_text(
            f"worker_processes 1; daemon off; user root; pid {folder}/nginx.pid; error_log {folder}/nginx.log;\n"
            "events { worker_connections 1024; }\n"
            f"http {{ access_log off; client_body_temp_path {folder}/t1; proxy_temp_path {folder}/t2;"
            f" fastcgi_temp_path {folder}/t3; uwsgi_temp_path {folder}/t4; scgi_temp_path {folder}/t5;"
            f" keepalive_timeout 0;"
            f" server {{ listen 127.0.0.1:{self.port} {'ssl' if certificate else ''} backlog=1024; root {self.pages};"
            + (f" ssl_certificate {certificate}.crt; ssl_certificate_key {certificate}.key;" if certificate else "")
            + " } }\n",
            encoding="ascii")
        self.process = subprocess.Popen(["/usr/sbin/nginx", "-c", str(config)], stderr=subprocess.DEVNULL)
        self.await_page()

    def await_page(self):
        for _ in range(100):
            try:
                socket.create_connection(("127.0.0.1", self.port)).close()
                return
            except OSError:
                time.sleep(0.05)
        sys.exit(f"The local server did not start; {self.folder}/nginx.log says why.")

    def lay(self, sites, size, changed_every):
        """The pages of a round. Replaced as a whole file each, never written in place."""
        for number in range(1, sites + 1):
            fresh = self.pages / "fresh"
            fresh.write_bytes(page(number, size, changed_every))
            fresh.rename(self.pages / f"p{number}")

    def close(self):
        self.process.terminate()
        self.process.wait()


class SlowServer:
    """The benchmark's own server, which answers after a while and counts."""

    def __init__(self, delay, size, hosts=1, dead=0, changed=0):
        self.process = subprocess.Popen([sys.executable, str(HERE / "bench_server.py"), "--delay", str(delay), "--size",
                                         str(size), "--hosts", str(hosts), "--dead", str(dead),
                                         "--changed", str(changed)],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.port = int(self.process.stdout.readline())

    def told(self):
        with urllib.request.urlopen(f"http://127.0.0.1:{self.port}/-/in-flight") as answer:
            return json.load(answer)

    def busy_seconds(self):
        """For how long any request was open, since it was last asked."""
        return sum(self.told()["seconds"].values())

    def in_flight(self):
        told = self.told()
        total = sum(told["seconds"].values()) or 1
        mean = sum(int(count) * seconds for count, seconds in told["seconds"].items()) / total
        return f"{told['served']} requests, at most {told['most']} in flight, {mean:.2f} on average"

    def close(self):
        self.process.stdin.close()
        self.process.wait()


def load():
    return f"{os.getloadavg()[0]:.1f}"


def print_row(cells):
    print("| " + " | ".join(cells) + " |", flush=True)
