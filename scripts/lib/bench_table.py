#!/usr/bin/env python3
"""Runs the contenders in turns and prints one table. Started by scripts/bench.sh, which builds what is measured.

Each figure is the median of the runs. All contenders run once before any of them runs again, so that a busy moment of
the machine falls on all of them. What a run starts from is put back before it, outside the measured time.
"""

import argparse
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path
from types import SimpleNamespace

import bench_contenders
from bench_alerts import alerts_round
from bench_large import large_round
from bench_measure import FastServer, SlowServer, load, measured, print_row

MOST_SITES = 32767
BUNDLE = "/etc/ssl/certs/ca-certificates.crt"
HOSTS = "/etc/hosts"
ROOT = Path(__file__).resolve().parent.parent.parent


def round_of(contenders, place, runs, after=None):
    """Every contender `runs` times in turns; {contender: [runs]}, and what was skipped and why."""
    results, skipped = {}, []
    for contender in list(contenders):
        reason = contender.reason_to_skip(place)
        if reason:
            skipped.append(f"{contender.name} is left out: {reason}.")
            continue
        contender.prepare(place)
        results[contender] = []
    for contender in results:
        if hasattr(contender, "learn"):
            contender.learn(place)
    if place.server and place.changed:
        place.server.lay(place.sites, place.size, 10)
    if after:
        after()  # what came before does not count
    for _ in range(runs):
        for contender, taken in results.items():
            contender.restore(place)
            run = measured(contender.command(place), contender.environment(place))
            if not contender.accepts(place, run.status, run.said):
                tail = run.said[-400:].decode(errors="replace")
                sys.exit(f"{contender.name} did not do what it was to do (status {run.status}):\n{tail}")
            run.note = after() if after else ""
            taken.append(run)
    return results, skipped


def print_head(title):
    print(f"\n{title}\n")
    print_row(["", "wall", "CPU a check", "written a check", "peak memory", "load"])
    print_row(["---", "---:", "---:", "---:", "---:", "---:"])


def print_results(results, place):
    wall_of = {}
    for contender, runs in results.items():
        wall = wall_of[type(contender)] = statistics.median(run.wall for run in runs)
        cpu = statistics.median(run.cpu for run in runs) / place.sites * 1000
        memory = statistics.median(run.memory for run in runs)
        written = statistics.median(run.written for run in runs) / place.sites / 1024
        print_row([f"{contender.name} ({contender.note})", f"{wall:.2f} s", f"{cpu:.3f} ms", f"{written:.1f} KiB",
                   f"{memory:.1f} MiB", load()])
    return wall_of


def print_ratios(wall_of):
    own = wall_of.get(bench_contenders.Tarnwick)
    floor = [wall_of.get(kind) for kind in (bench_contenders.Curl, bench_contenders.BareStatements)]
    if own and all(floor):
        print_row(["floor: curl and bare statements, one after the other", f"{sum(floor):.2f} s", "", "", "", ""])
        print(f"\ntarnwickctl takes {own / sum(floor):.2f} times the floor.", end="")
        for kind in (bench_contenders.Urlwatch, bench_contenders.CheckHttp):
            if kind in wall_of:
                print(f" {kind.name} takes {wall_of[kind] / own:.1f} times as long as tarnwickctl.", end="")
        print()


def fast_rounds(options, tools, folder):
    server = FastServer(folder / "fast")
    try:
        for sites in options.sites:
            for changed in (False, True):
                server.lay(sites, options.size, 0)
                place = bench_contenders.Place(folder / "place", sites, options.size, server.port, changed, server)
                results, skipped = round_of([kind(tools) for kind in bench_contenders.ALL], place, options.runs)
                print_head(f"{sites} sites of {options.size} bytes, " + ("a tenth changed" if changed else "unchanged"))
                print_ratios(print_results(results, place))
                for line in skipped:
                    print(line)
                shutil.rmtree(place.folder, ignore_errors=True)
    finally:
        server.close()


def certificate_of(folder):
    """A certificate for 127.0.0.1, and the system's bundle with the authority that has signed it."""
    folder.mkdir(parents=True)
    for command in ("req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=Bench -keyout ca.key -out ca.crt",
                    "req -newkey rsa:2048 -nodes -subj /CN=localhost -keyout own.key -out own.csr"):
        subprocess.run(["openssl", *command.split()], cwd=folder, check=True, capture_output=True)
    (folder / "names").write_text("subjectAltName=IP:127.0.0.1\n", encoding="ascii")
    subprocess.run("openssl x509 -req -in own.csr -CA ca.crt -CAkey ca.key -CAcreateserial -days 2 -extfile names "
                   "-out own.crt".split(), cwd=folder, check=True, capture_output=True)
    bundle = folder / "bundle.crt"
    bundle.write_bytes(Path(BUNDLE).read_bytes() + (folder / "ca.crt").read_bytes())
    return folder / "own", bundle


def secure_round(options, tools, folder):
    """https, with all the authorities of the system and one more, which each contender finds in the system's place."""
    certificate, bundle = certificate_of(folder / "certificates")
    server = FastServer(folder / "secure", certificate)
    try:
        sites = min(options.sites[-1], 200)
        server.lay(sites, options.size, 0)
        place = bench_contenders.Place(folder / "place", sites, options.size, server.port, False, scheme="https")
        kinds = (bench_contenders.Tarnwick, bench_contenders.BareTransfers, bench_contenders.Curl,
                 bench_contenders.Urlwatch, bench_contenders.CheckCurl)
        contenders = [in_namespace(kind, bundle, BUNDLE)(tools) for kind in kinds]
        results, _ = round_of(contenders, place, options.runs)
        print_head(f"{sites} https sites of {options.size} bytes, the system's bundle of authorities")
        print_results(results, place)
    finally:
        server.close()


def names_round(options, tools, folder):
    """The same list by address and by name: as many names as the slow list has hosts, which this machine knows."""
    server = FastServer(folder / "names-server")
    hosts = folder / "hosts"
    hosts.write_text(Path(HOSTS).read_text(encoding="utf-8")
                     + "".join(f"127.0.0.1 s{n}.bench.test\n" for n in range(1, 200)), encoding="utf-8")
    try:
        sites = min(options.sites[-1], 2000)
        server.lay(sites, options.size, 0)
        for names in (0, 199):
            place = bench_contenders.Place(folder / "place", sites, options.size, server.port, False, names=names)
            kinds = (bench_contenders.Tarnwick, bench_contenders.Curl, bench_contenders.Urlwatch)
            results, _ = round_of([in_namespace(kind, hosts, HOSTS)(tools) for kind in kinds], place, options.runs)
            print_head(f"{sites} sites of {options.size} bytes, "
                       + (f"under {names} names of /etc/hosts" if names else "by address"))
            print_results(results, place)
            shutil.rmtree(place.folder)
    finally:
        server.close()


def in_namespace(kind, own, system):
    """The contender, run where the file `own` lies in the place of the system's; also for who is not the superuser."""

    class Shielded(kind):
        def command(self, place):
            return ["unshare", "--map-root-user", "--mount", "sh", "-c", f'mount --bind "$0" {system} && exec "$@"',
                    str(own), *super().command(place)]

    return Shielded


def parallel_round(options, tools, folder):
    """A list of many hosts, some of which never answer: five at a time, and as many as pay."""
    # Prime to each other, so that no host has more than one or two of the silent ones.
    hosts, dead, sites = 199, 50, options.parallel_sites
    for delay in (50, 200):
        for silent in (0, dead):
            server = SlowServer(delay, options.size, hosts, silent)
            try:
                place = bench_contenders.Place(folder / "parallel", sites, options.size, server.port, False, hosts=hosts,
                                               dead=silent)
                silence = f", {sites // silent} of them silent for 30 s" if silent else ""
                print_head(f"{sites} sites on {hosts} hosts, each answer after {delay} ms{silence}")
                seen = []
                for name, chosen in (("five at a time", ()), ("parallel=auto", (("parallel", "auto"),))):
                    if silent and not chosen and not options.patient:
                        continue
                    contender = bench_contenders.Tarnwick(tools, 0, chosen)
                    contender.note = name
                    results, _ = round_of([contender], place, 1, server.in_flight)
                    print_results(results, place)
                    seen.append(f"{name}, as the server saw it: {results[contender][-1].note}.")
                print("\n" + "\n".join(seen))
                shutil.rmtree(place.folder)
            finally:
                server.close()


def slow_round(options, tools, folder):
    server = SlowServer(options.delay, options.size)
    try:
        place = bench_contenders.Place(folder / "slow", options.slow_sites, options.size, server.port, False)
        kinds = (bench_contenders.Tarnwick, bench_contenders.Curl, bench_contenders.UrlwatchFive,
                 bench_contenders.CheckHttp)
        results, _ = round_of([kind(tools) for kind in kinds], place, options.runs, server.in_flight)
        ideal = options.slow_sites / 5 * options.delay / 1000
        print_head(f"{options.slow_sites} sites, each answer after {options.delay} ms: at best {ideal:.2f} s")
        wall_of = print_results(results, place)
        print(f"\ntarnwickctl takes {wall_of[bench_contenders.Tarnwick] / ideal:.3f} times the ideal.")
        for contender, runs in results.items():
            print(f"{contender.name}, as the server saw it: {runs[-1].note}.")
    finally:
        server.close()


def scale_round(options, tools, folder):
    """What a check costs in a list of any length, and with a log of any length."""
    server = FastServer(folder / "scale-server")
    try:
        server.lay(MOST_SITES, options.size, 0)
        print_head("The product alone: as many sites as there can be, and a long log")
        cost = {}
        for name, sites, log_rows in (("100 sites", 100, 0), (f"{MOST_SITES} sites", MOST_SITES, 0),
                                      ("2000 sites, log empty", 2000, 0),
                                      ("2000 sites, log of 1,000,000 rows", 2000, 1_000_000)):
            place = bench_contenders.Place(folder / "scale", sites, options.size, server.port, False)
            contender = bench_contenders.Tarnwick(tools, log_rows)
            contender.name, contender.note = name, "unchanged"
            start = statistics.median(measured([str(tools.tarnwickctl), "--version"], None).cpu for _ in range(5))
            results, _ = round_of([contender], place, options.runs)
            print_results(results, place)
            cost[name] = (statistics.median(run.cpu for run in results[contender]) - start) / sites * 1000
            shutil.rmtree(place.folder)
        print("\nCPU a check without the tool's own start: "
              + ", ".join(f"{name} {value:.3f} ms" for name, value in cost.items()) + ".")
    finally:
        server.close()


def window_round(options, tools, folder):
    """The window's start, its smoothness in a pass, its memory and its rest, offscreen."""
    server = FastServer(folder / "window-server")
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=str(folder))
    try:
        for sites, size, rest in ((2000, 10_000, 0), (MOST_SITES, 10_000, 20), (20, 10_000_000, 0)):
            server.lay(sites, size, 0)
            place = bench_contenders.Place(folder / "window", sites, size, server.port, False)
            contender = bench_contenders.Tarnwick(tools)
            contender.prepare(place)
            contender.restore(place)
            shutil.copytree(tools.images, contender.folder(place) / "images")
            (contender.folder(place) / "reports").mkdir()
            print(f"\nThe window with {sites} sites of {size} bytes (load {load()}):\n")
            print(subprocess.run([str(tools.window_bench), str(contender.folder(place)), str(rest)], env=environment,
                                 check=True, capture_output=True, text=True).stdout, end="", flush=True)
            shutil.rmtree(place.folder)
    finally:
        server.close()


def history_round(options, tools, folder):
    """What it adds to a check that the history and the certificate are kept."""
    certificate, bundle = certificate_of(folder / "certificates")
    for scheme, sites, kept in (("http", 2000, ({}, {"history": "on"})),
                                ("https", 200, ({}, {"history": "on"}, {"history": "on", "certificate": "third"}))):
        server = FastServer(folder / scheme, certificate if scheme == "https" else None)
        try:
            server.lay(sites, options.size, 0)
            contenders = []
            for chosen in kept:
                contender = in_namespace(bench_contenders.Tarnwick, bundle, BUNDLE)(
                    tools, 0, tuple({"history": "off", **chosen}.items()))
                contender.name, contender.note = scheme, " and ".join(chosen) or "neither"
                contender.place = contender.note.replace(" ", "-")
                contenders.append(contender)
            place = bench_contenders.Place(folder / "history", sites, options.size, server.port, False, scheme=scheme)
            results, _ = round_of(contenders, place, options.runs)
            print_head(f"{sites} sites of {options.size} bytes, with and without history and certificate")
            print_results(results, place)
            shutil.rmtree(place.folder)
        finally:
            server.close()


PARTS = {"fast": fast_rounds, "secure": secure_round, "names": names_round, "slow": slow_round,
         "parallel": parallel_round, "scale": scale_round, "window": window_round, "large": large_round,
         "alerts": alerts_round, "history": history_round}


def arguments():
    parser = argparse.ArgumentParser(prog="scripts/bench.sh", description=__doc__)
    parser.add_argument("--build", type=Path, required=True, help=argparse.SUPPRESS)
    parser.add_argument("--quick", action="store_true", help="one run of each, 100 and 2000 sites, no part but fast and slow")
    parser.add_argument("--only", choices=PARTS, action="append", help="this part alone; may be given more than once")
    parser.add_argument("--sites", type=lambda text: [int(n) for n in text.split(",")], default=[100, 2000, 10000],
                        help="numbers of sites of the part fast, separated by commas (default 100,2000,10000)")
    parser.add_argument("--runs", type=int, default=5, help="runs of each contender (default 5)")
    parser.add_argument("--size", type=int, default=10_000, help="bytes of a page (default 10000)")
    parser.add_argument("--delay", type=int, default=100, help="milliseconds of a slow answer (default 100)")
    parser.add_argument("--parallel-sites", type=int, default=2000, help="sites of the part parallel (default 2000)")
    parser.add_argument("--patient", action="store_true",
                        help="let five at a time wait for the silent ones as well: some minutes")
    parser.add_argument("--slow-sites", type=int, default=500, help="sites of the parts slow and alerts (default 500)")
    options = parser.parse_args()
    if options.quick:
        options.runs = 1
        options.sites = [n for n in options.sites if n <= 2000]
        options.slow_sites = min(options.slow_sites, 100)
        options.only = options.only or ["fast", "slow"]
    return options


def main():
    options = arguments()
    tools = SimpleNamespace(tarnwickctl=options.build / "tarnwick" / "tarnwickctl",
                            sql_floor=options.build / "bench" / "sql_floor",
                            fetch_floor=options.build / "bench" / "fetch_floor",
                            window_bench=options.build / "bench" / "window_bench",
                            images=ROOT / "assets" / "images",
                            schema=(ROOT / "assets" / "schema.sql").read_text(encoding="utf-8"))
    # Pages in memory, databases on the disk that TMPDIR names.
    with tempfile.TemporaryDirectory(prefix="tarnwick-bench-") as disk:
        for name in options.only or PARTS:
            PARTS[name](options, tools, Path(disk))
    return 0


if __name__ == "__main__":
    sys.exit(main())
