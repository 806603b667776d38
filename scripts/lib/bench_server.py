#!/usr/bin/env python3
"""The benchmark's own slow server: every answer comes a set time after its request, and it counts how many requests it
holds at the same time.

    bench_server.py --delay MILLISECONDS --size BYTES [--changed N]

Prints its port on a line of its own and serves until its standard input ends. GET /pN answers with page N;
GET /-/in-flight with the figures since it was last asked, as JSON: how many requests came, the most that were open at
once, and for how many seconds each number of them was.
"""

import argparse
import asyncio
import json
import sys
import time

from bench_pages import page


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
                await asyncio.sleep(options.delay / 1000)
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
    server = await asyncio.start_server(lambda r, w: answer(options, flight, r, w), "127.0.0.1", 0, backlog=1024)
    print(server.sockets[0].getsockname()[1], flush=True)
    await asyncio.get_running_loop().run_in_executor(None, sys.stdin.read)
    server.close()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--delay", type=float, default=100)
    parser.add_argument("--size", type=int, default=10_000)
    parser.add_argument("--changed", type=int, default=0)
    asyncio.run(serve(parser.parse_args()))


if __name__ == "__main__":
    main()
