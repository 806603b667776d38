#!/usr/bin/env python3
"""The benchmark's own slow server: every answer comes a set time after its request, and it counts how many requests it
holds at the same time.

    bench_server.py --delay MILLISECONDS --size BYTES [--changed N] [--hosts N] [--dead N]

Prints its port on a line of its own and serves until its standard input ends, on 127.0.0.1 to 127.0.0.N. GET /pN answers
with page N, but never where N can be divided by the number of `--dead`;
GET /-/in-flight with the figures since it was last asked, as JSON: how many requests came, the most that were open at
once, and for how many seconds each number of them was.
"""

import argparse
import asyncio
import json
import sys
import time

from bench_pages import page

# Longer than any time-out.
NEVER = 3600


class Flight:
    """How many requests are open, and for how long each number of them was."""

    def __init__(self):
        self.open = 0
        self.forget()

    def forget(self):
        self.served = 0
        self.most = self.open
        self.seconds = {}
        self.since = time.monotonic()

    def change(self, by):
        now = time.monotonic()
        if self.open:
            self.seconds[self.open] = self.seconds.get(self.open, 0) + now - self.since
        self.since = now
        self.open += by
        self.most = max(self.most, self.open)

    def report(self):
        told = {"served": self.served, "most": self.most, "seconds": self.seconds}
        self.forget()
        return told


def response(body, kind=b"text/html"):
    return b"HTTP/1.1 200 OK\r\nContent-Type: %s\r\nContent-Length: %d\r\nConnection: close\r\n\r\n%s" % (
        kind, len(body), body)


async def answer(options, flight, reader, writer):
    try:
        target = (await reader.readuntil(b"\r\n\r\n")).split(b" ", 2)[1].decode()
        if target == "/-/in-flight":
            writer.write(response(json.dumps(flight.report()).encode(), b"application/json"))
        else:
            flight.change(1)
            try:
                dead = options.dead and int(target[2:]) % options.dead == 0
                await asyncio.sleep(NEVER if dead else options.delay / 1000)
                writer.write(response(page(int(target[2:]), options.size, options.changed)))
            finally:
                # Before the answer is sent: its receiver may ask anew at once.
                flight.change(-1)
                flight.served += 1
        await writer.drain()
    except (asyncio.IncompleteReadError, ConnectionError):
        pass
    finally:
        writer.close()


async def serve(options):
    flight = Flight()
    servers = []
    for host in range(1, options.hosts + 1):
        port = servers[0].sockets[0].getsockname()[1] if servers else 0
        servers.append(await asyncio.start_server(lambda r, w: answer(options, flight, r, w), f"127.0.0.{host}", port,
                                                  backlog=1024))
    print(servers[0].sockets[0].getsockname()[1], flush=True)
    await asyncio.get_running_loop().run_in_executor(None, sys.stdin.read)
    for server in servers:
        server.close()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--delay", type=float, default=100)
    parser.add_argument("--size", type=int, default=10_000)
    parser.add_argument("--changed", type=int, default=0)
    parser.add_argument("--hosts", type=int, default=1)
    parser.add_argument("--dead", type=int, default=0)
    asyncio.run(serve(parser.parse_args()))


if __name__ == "__main__":
    main()
