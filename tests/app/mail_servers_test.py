#!/usr/bin/env python3
"""Sends the mails of channels through servers that others have written: Postfix as it is installed and with what admins
ask of it, and Dovecot with its log-ins, of which one is a token that a server of this test vouches for.

    mail_servers_test.py TARNWICKCTL SCHEMA

Exit status 77 where it cannot run: it takes root, postfix, dovecot-submissiond and openssl. The servers listen on free
ports of 127.0.0.1 and keep everything in a folder that goes with them.
"""

import http.server
import json
import os
import shutil
import socket
import sqlite3
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path
from urllib.parse import parse_qs, urlparse

TOKEN = "a.token-of.mine"
SKIPPED = 77
MASTER = """\
postlog unix-dgram n - n - 1 postlogd
pickup unix n - n 60 1 pickup
cleanup unix n - n - 0 cleanup
qmgr unix n - n 300 1 qmgr
tlsmgr unix - - n 1000 1 tlsmgr
rewrite unix - - n - - trivial-rewrite
bounce unix - - n - 0 bounce
defer unix - - n - 0 bounce
trace unix - - n - 0 bounce
proxymap unix - - n - - proxymap
anvil unix - - n - 1 anvil
error unix - - n - - error
retry unix - - n - - error
discard unix - - n - - discard
"""


def free_port():
    with socket.create_server(("127.0.0.1", 0)) as door:
        return door.getsockname()[1]


def run(*command, **options):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, check=False, **options)


class Introspection(http.server.BaseHTTPRequestHandler):
    """Tells Dovecot whose token it is."""

    def do_GET(self):
        token = parse_qs(urlparse(self.path).query).get("token", [""])[0]
        body = json.dumps({"active": token == TOKEN, "user": "me"}).encode()
        self.send_response(200)
        self.send_header("Content-Type", "application/json")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


class Servers:
    def __init__(self, folder):
        self.folder = folder
        folder.chmod(0o755)
        run("openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=mail.example.org",
            "-addext", "subjectAltName=IP:127.0.0.1", "-keyout", folder / "key.pem", "-out", folder / "cert.pem")
        self.ports = {name: free_port() for name in ("plain", "helo", "encrypted", "choosy", "log-in")}
        self.tokens = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Introspection)
        threading.Thread(target=self.tokens.serve_forever, daemon=True).start()
        self.start_postfix()
        self.start_dovecot()
        for name, port in self.ports.items():
            self.wait_for(name, port)

    def start_postfix(self):
        config = self.folder / "postfix"
        config.mkdir()
        for part in ("queue", "data"):
            (self.folder / part).mkdir()
        shutil.chown(self.folder / "data", "postfix")
        (config / "people").write_text("me@example.org ok\n")
        (config / "main.cf").write_text(
            f"compatibility_level = 3.6\nqueue_directory = {self.folder}/queue\ndata_directory = {self.folder}/data\n"
            f"daemon_directory = /usr/lib/postfix/sbin\nmaillog_file_prefixes = {self.folder}\n"
            f"maillog_file = {self.folder}/postfix.log\ninet_interfaces = 127.0.0.1\nmyhostname = mail.example.org\n"
            f"mydestination = example.org\nlocal_transport = discard:\nlocal_recipient_maps = texthash:{config}/people\n"
            f"smtpd_tls_cert_file = {self.folder}/cert.pem\nsmtpd_tls_key_file = {self.folder}/key.pem\n"
            "smtpd_tls_security_level = may\n")
        refusing = "{ smtpd_sender_restrictions = check_sender_access inline:{{watch@example.org = REJECT not you}} }"
        asked = {"plain": "", "helo": "-o smtpd_helo_required=yes -o smtpd_helo_restrictions=reject_non_fqdn_helo_hostname",
                 "encrypted": "-o smtpd_tls_security_level=encrypt", "choosy": f"-o {refusing}"}
        (config / "master.cf").write_text(MASTER + "".join(
            f"127.0.0.1:{self.ports[name]} inet n - n - - smtpd {options}\n" for name, options in asked.items()))
        said = run("postfix", "-c", config, "start")
        if said.returncode:
            sys.exit(f"Postfix did not start: {said.stderr}{self.log('postfix.log')}")

    def start_dovecot(self):
        config = self.folder / "dovecot.conf"
        (self.folder / "users").write_text("me:{PLAIN}a secret\n")
        (self.folder / "tokens.conf").write_text(
            f"introspection_url = http://127.0.0.1:{self.tokens.server_address[1]}/?token=\nintrospection_mode = get\n"
            "username_attribute = user\nactive_attribute = active\nactive_value = true\n")
        config.write_text(
            f"base_dir = {self.folder}/dovecot\nlog_path = {self.folder}/dovecot.log\nprotocols = submission\n"
            f"ssl = required\nssl_cert = <{self.folder}/cert.pem\nssl_key = <{self.folder}/key.pem\nlisten = 127.0.0.1\n"
            f"mail_location = mbox:~/mail\nhostname = mail.example.org\nauth_mechanisms = plain login xoauth2\nauth_failure_delay = 0\n"
            f"submission_relay_host = 127.0.0.1\nsubmission_relay_port = {self.ports['plain']}\n"
            f"service submission-login {{\n inet_listener submission {{\n port = {self.ports['log-in']}\n }}\n}}\n"
            f"passdb {{\n driver = passwd-file\n args = {self.folder}/users\n}}\n"
            f"passdb {{\n driver = oauth2\n mechanisms = xoauth2\n args = {self.folder}/tokens.conf\n}}\n"
            f"userdb {{\n driver = static\n args = uid=nobody gid=nogroup home={self.folder}/home\n}}\n")
        (self.folder / "home").mkdir()
        shutil.chown(self.folder / "home", "nobody")
        self.dovecot = subprocess.Popen(["dovecot", "-F", "-c", str(config)], stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=(self.folder / "dovecot.err").open("w"))

    def log(self, name):
        path = self.folder / name
        return path.read_text(errors="replace")[-3000:] if path.exists() else ""

    def wait_for(self, name, port):
        for _ in range(200):
            try:
                with socket.create_connection(("127.0.0.1", port), timeout=10) as door:
                    if door.recv(3) == b"220":
                        return
            except OSError:
                pass
            time.sleep(0.05)
        self.close()
        sys.exit(f"The server {name} does not answer:\n"
                 + "".join(self.log(each) for each in ("postfix.log", "dovecot.log", "dovecot.err")))

    def close(self):
        run("postfix", "-c", self.folder / "postfix", "stop")
        self.dovecot.terminate()
        self.dovecot.wait()
        self.tokens.shutdown()


class Tool:
    """The tool on a list of its own; a channel for each case."""

    def __init__(self, tool, schema, folder, servers):
        self.words = [tool, "--folder", folder]
        self.servers = servers
        folder.mkdir()
        with sqlite3.connect(folder / "tarnwick.mdb") as connection:
            connection.executescript(Path(schema).read_text(encoding="utf-8"))
        connection.close()
        self.failures = 0

    def expect(self, name, server, words, *options, to="me@example.org", secret=None):
        made = run(*self.words, "channel", "add", name, "--mail", to, "--from", "watch@example.org", "--server", "127.0.0.1",
                   "--port", self.servers.ports[server], "--authorities", self.servers.folder / "cert.pem", *options,
                   *(("--password-file", "-") if secret else ()), input=secret)
        said = run(*self.words, "channel", "test", name)
        text = made.stderr + said.stdout + said.stderr
        well = words in text
        self.failures += not well
        print(f"{'ok' if well else 'NOT OK'}: {name}: {text.strip()}" + ("" if well else f"\n  instead of: {words}"))


def main():
    needed = [program for program in ("postfix", "dovecot", "openssl") if not shutil.which(program)]
    if needed or os.getuid() != 0 or not Path("/usr/lib/dovecot/submission").exists():
        print("Skipped: this takes root, postfix, dovecot-submissiond and openssl.")
        return SKIPPED
    with tempfile.TemporaryDirectory(prefix="tarnwick-servers-") as place:
        servers = Servers(Path(place))
        try:
            tool = Tool(Path(sys.argv[1]).resolve(), sys.argv[2], Path(place) / "list", servers)
            clear, log_in = ("--safety", "none"), ("--user", "me")
            token = ("--login", "xoauth2", "--token-command", f"/bin/echo {TOKEN}", *log_in)
            tool.expect("as installed", "plain", "Message: 250 2.0.0 Ok: queued", *clear)
            tool.expect("greeting asked for", "helo", "Message: 250 2.0.0 Ok: queued", *clear)
            tool.expect("encrypted", "encrypted", "Message: 250 2.0.0 Ok: queued")
            tool.expect("not encrypted", "encrypted", "MAIL FROM: 530 5.7.0 Must issue a STARTTLS command first", *clear)
            tool.expect("nobody there", "plain", "RCPT TO: 550 5.1.1 <nobody@example.org>: Recipient address rejected",
                        *clear, to="nobody@example.org")
            tool.expect("sender refused", "choosy", "554 5.7.1 <watch@example.org>: Sender address rejected: not you", *clear)
            tool.expect("plain", "log-in", "Message: 250 2.0.0 Ok: ", "--login", "plain", *log_in, secret="a secret\n")
            tool.expect("login", "log-in", "Message: 250 2.0.0 Ok: ", "--login", "login", *log_in, secret="a secret\n")
            tool.expect("wrong password", "log-in", "AUTH: 535 5.7.8", *log_in, secret="another\n")
            tool.expect("token", "log-in", "Message: 250 2.0.0 Ok: ", *token)
            tool.expect("old token", "log-in", "AUTH: ", "--login", "xoauth2", "--token-command", "/bin/echo gone", *log_in)
            if tool.failures:
                print(servers.log("postfix.log"), servers.log("dovecot.log"))
            return 1 if tool.failures else 0
        finally:
            servers.close()


if __name__ == "__main__":
    sys.exit(main())
