#!/usr/bin/python3
"""A mail server on a free port of 127.0.0.1 that keeps what it is given.

    aiosmtpd_sink.py FOLDER

Prints its port. Each mail becomes FOLDER/content, byte for byte as it arrived, and FOLDER/envelope: the sender and the
recipients, a line each, written last. It ends with its standard input. Exit status 77 when aiosmtpd is not installed.
"""

import asyncio
import sys
from pathlib import Path

try:
    from aiosmtpd.smtp import SMTP
except ImportError:
    sys.exit(77)


class Keeper:
    def __init__(self, folder: Path):
        self.folder = folder

    async def handle_DATA(self, server, session, envelope):
        (self.folder / "content").write_bytes(envelope.original_content)
        lines = [envelope.mail_from, *envelope.rcpt_tos]
        unfinished = self.folder / "envelope.part"
        unfinished.write_text("".join(line + "\n" for line in lines), encoding="utf-8")
        unfinished.rename(self.folder / "envelope")
        return "250 kept"


class RelaxedSMTP(SMTP):
    """Takes mail without a greeting command, as a relay that trusts this machine does."""

    async def check_helo_needed(self, helo="HELO"):
        return False


async def main(folder: Path):
    loop = asyncio.get_running_loop()
    server = await loop.create_server(lambda: RelaxedSMTP(Keeper(folder), loop=loop), "127.0.0.1", 0)
    print(server.sockets[0].getsockname()[1], flush=True)
    await loop.run_in_executor(None, sys.stdin.read)
    server.close()


asyncio.run(main(Path(sys.argv[1])))
