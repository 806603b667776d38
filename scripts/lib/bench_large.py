"""Pages as large as a page may be: what they need of memory, and how long the window stands still for them."""

import os
import re
import shutil
import subprocess

import bench_contenders
from bench_measure import FastServer, load, measured, print_row

PAGE = 64 << 20
STATES = ("adopted", "unchanged", "changed")


def large_round(options, tools, folder):
    """One site and five, each with the three things that can become of a page, in the terminal and in the window."""
    server = FastServer(folder / "large-server")
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=str(folder))
    print(f"\nPages of {PAGE >> 20} MiB\n")
    print_row(["", "check: wall", "CPU a check", "peak memory", "window: pass", "peak memory", "longest stall",
               "of its own", "load"])
    print_row(["---"] + ["---:"] * 8)
    try:
        for sites in (1, 5):
            server.lay(sites, PAGE, 0)
            place = bench_contenders.Place(folder / "large", sites, PAGE, server.port, False)
            tool = lay_folder(place, tools, "check")
            window = lay_folder(place, tools, "window")
            for state in STATES:
                if state == "changed":
                    server.lay(sites, PAGE, 1)
                run = measured([str(tools.tarnwickctl), "--folder", str(tool), "check"], None)
                told = subprocess.run([str(tools.window_bench), str(window)], env=environment, check=True,
                                      capture_output=True, text=True).stdout
                print_row([f"{sites} {state}", f"{run.wall:.2f} s", f"{run.cpu / sites * 1000:.0f} ms",
                           f"{run.memory:.0f} MiB", *window_figures(told), load()])
            shutil.rmtree(place.folder)
    finally:
        server.close()


def lay_folder(place, tools, name):
    """A program folder whose sites have not been checked yet."""
    own = place.folder / name
    (own / "reports").mkdir(parents=True)
    shutil.copytree(tools.images, own / "images")
    bench_contenders.fill_database(own / "tarnwick.mdb", tools.schema, place, checked=False)
    return own


def window_figures(told):
    def figure(pattern):
        return float(re.findall(pattern, told)[-1])

    return [f"{figure(r'pass ([0-9.e+]+) ms') / 1000:.2f} s", f"{figure(r'peak memory ([0-9.e+]+) MiB'):.0f} MiB",
            f"{figure(r'event loop: ([0-9.e+]+) ms'):.0f} ms", f"{figure(r'own doing: ([0-9.e+]+) ms'):.0f} ms"]
