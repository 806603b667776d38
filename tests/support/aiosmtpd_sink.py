#!/usr/bin/python3
"""A mail server on a free port of 127.0.0.1 that keeps what it is given.

    aiosmtpd_sink.py FOLDER [--tls | --starttls] [--certificate FILE KEY] [--login USER PASSWORD]

Prints its port. Each mail becomes FOLDER/content, byte for byte as it arrived, FOLDER/read: what a reader of mails makes
of it, as JSON, and FOLDER/envelope: the sender and the recipients, a line each, written last. It ends with its standard
input. Exit status 77 when aiosmtpd is not installed.
"""

import argparse
import asyncio
import email
import email.policy
import json
import ssl
import sys
from pathlib import Path

try:
    from aiosmtpd.smtp import SMTP, AuthResult
except ImportError:
    sys.exit(77)


def read(content: bytes) -> dict:
    mail = email.message_from_bytes(content, policy=email.policy.default)
    text, html = mail.get_body(("plain",)), mail.get_body(("html",))
    return {
        "headers": {name: str(value) for name, value in mail.items()},
        "text": text.get_content().replace("\r\n", "\n") if text else None,
        "html": html.get_content().replace("\r\n", "\n") if html else None,
        "files": [[part.get_filename(), part.get_content_type(), part.get_payload(decode=True).decode("latin-1")]
                  for part in mail.iter_attachments()],
        "defects": [str(defect) for part in mail.walk() for defect in part.defects],
    }


class Keeper:
    def __init__(self, folder: Path):
        self.folder = folder

    async def handle_DATA(self, server, session, envelope):
        (self.folder / "content").write_bytes(envelope.original_content)
        (self.folder / "read").write_text(json.dumps(read(envelope.original_content)), encoding="utf-8")
        lines = [envelope.mail_from, *envelope.rcpt_tos]
        unfinished = self.folder / "envelope.part"
        unfinished.write_text("".join(line + "\n" for line in lines), encoding="utf-8")
        unfinished.rename(self.folder / "envelope")
        return "250 kept"


class RelaxedSMTP(SMTP):
    """Takes mail without a greeting command, as a relay that trusts this machine does."""

    async def check_helo_needed(self, helo="HELO"):
        return False


def maker(options, loop, context):
    if not context:
        return lambda: RelaxedSMTP(Keeper(options.folder), loop=loop)

    def authenticate(server, session, envelope, mechanism, data):
        told = [data.login.decode(), data.password.decode()]
        return AuthResult(success=told == options.login, handled=False)

    return lambda: SMTP(
        Keeper(options.folder), loop=loop, enable_SMTPUTF8=True, tls_context=context if options.starttls else None,
        require_starttls=options.starttls, authenticator=authenticate if options.login else None,
        auth_required=bool(options.login), auth_require_tls=options.starttls)


async def main(options):
    loop = asyncio.get_running_loop()
    context = None
    if options.certificate:
        context = ssl.create_default_context(ssl.Purpose.CLIENT_AUTH)
        context.load_cert_chain(*options.certificate)
    server = await loop.create_server(maker(options, loop, context), "127.0.0.1", 0, ssl=context if options.tls else None)
    print(server.sockets[0].getsockname()[1], flush=True)
    await loop.run_in_executor(None, sys.stdin.read)
    server.close()


parser = argparse.ArgumentParser()
parser.add_argument("folder", type=Path)
parser.add_argument("--tls", action="store_true")
parser.add_argument("--starttls", action="store_true")
parser.add_argument("--certificate", nargs=2)
parser.add_argument("--login", nargs=2)
asyncio.run(main(parser.parse_args()))
