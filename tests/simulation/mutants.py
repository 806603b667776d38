#!/usr/bin/env python3
"""Puts one fault after the other into the program and looks whether the simulation finds it within 100 seeds.

    mutants.py SOURCE_FOLDER WORK_FOLDER [--only TEXT] [--first NUMBER]

The sources are copied to WORK_FOLDER, so that nothing is ever broken in place. Exit status 1 when a fault is not found,
or when the code that it is put into is not there any more.
"""

from __future__ import annotations

import argparse
import shutil
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

SEEDS = 100
FEW = 8
BESIDE_THE_MODEL = ["--days", "0.5", "--model", "--first"]
PLAIN = ["--days", "1", "--first"]


def seeds(first: int, last: int) -> list[str]:
    return ["--seed", str(first), "--seeds", str(last - first + 1)]


# What looks for a fault: each way a little, then each way through all of the seeds.
HUNTS = (
    seeds(1, FEW) + BESIDE_THE_MODEL,
    ["--cut-everywhere"],
    seeds(1, FEW) + PLAIN,
    seeds(FEW + 1, SEEDS) + BESIDE_THE_MODEL,
    seeds(FEW + 1, SEEDS) + PLAIN,
)
# A hunt is through in two minutes; who waits for ever is found, too.
LONGEST_HUNT = 1200


@dataclass(frozen=True)
class Mutant:
    title: str
    file: str
    before: str
    after: str


MUTANTS = (
    Mutant("a site is due a minute late", "engine/due_sites.cpp", "now()) >= tInterval", "now()) > tInterval"),
    Mutant("the countdown counts two seconds at a time", "engine/run_controller.cpp", "  --secondsToNext_;",
           "  secondsToNext_ -= 2;"),
    Mutant("the countdown asks a second early", "engine/run_controller.cpp", "|| secondsToNext_ < 0)",
           "|| secondsToNext_ <= 0)"),
    Mutant("a closed editor does not count", "engine/run_controller.cpp",
           "  // An edit may have made a site due sooner than the countdown says.\n  secondsToNext_ = 0;\n", ""),
    Mutant("Start goes on with the countdown of before", "engine/run_controller.cpp",
           "tested now.\n  secondsToNext_ = 0;\n", "tested now.\n"),
    Mutant("Stop leaves the yellow lamp out", "engine/run_controller.cpp",
           "  needs_.view.indicators(RunState::pause);\n  running_ = false;", "  running_ = false;"),
    Mutant("any page passes", "engine/result_recording.cpp", 'hasBaseline && rows->holds("content_compare", content)',
           "hasBaseline && !content.empty()"),
    Mutant("a failure does not count as a check", "engine/result_recording.cpp", "  xupdateLastChecked(idSite);\n\n",
           "  if (result) {\n    xupdateLastChecked(idSite);\n  }\n\n"),
    Mutant("the log keeps the pages that passed", "engine/result_recording.cpp", "result || !keeps ? std::string_view()",
           "!result || !keeps ? std::string_view()"),
    Mutant("the status stays what it was", "engine/pass_recording.cpp", "  needs_.results.setStatus(id, passed);\n", ""),
    Mutant("a failure is counted twice", "engine/pass_recording.cpp",
           "      needs_.results.updateStatusCounter(id, false);\n",
           "      needs_.results.updateStatusCounter(id, false);\n"
           "      needs_.results.updateStatusCounter(id, false);\n"),
    Mutant("a failure is counted before its mail", "engine/pass_recording.cpp", "const bool counts = passed ||",
           "const bool counts = true || passed ||"),
    Mutant("what comes together is shown and not committed", "engine/pass_recording.cpp",
           "        break;\n      }\n    }\n    whole.commit();\n", "        break;\n      }\n    }\n"),
    Mutant("a changed site waits for its interval", "engine/pass_recording.cpp",
           "    debts_.checks.owe(sites_.idSite(row));\n", "    static_cast<void>(row);\n"),
    Mutant("the end of a pass is recorded in the wrong order", "engine/test_pass.cpp",
           "for (std::int16_t slot = 1; slot <= needs_.pool.poolSize() && !stopped(); ++slot) {",
           "for (std::int16_t slot = needs_.pool.poolSize(); slot >= 1 && !stopped(); --slot) {"),
    Mutant("the cause of a failure is forgotten", "engine/inet_pool.cpp",
           "  row.errDescription = std::move(result.cause);\n", ""),
    Mutant("a lost mail keeps the sound away", "alerts/alert_dispatch.cpp", "stands now.\n  if (bySound) {",
           "stands now.\n  if (bySound && !mailOutcome_.lost) {"),
    Mutant("sites that want no mail are mailed, too", "alerts/alert_dispatch.cpp",
           "textsOf(AlertKind::down);\n  mailOutcome_ = byMail && site.alertEmail ?",
           "textsOf(AlertKind::down);\n  mailOutcome_ = byMail ?"),
    Mutant("the soonest site is the latest", "engine/due_sites.cpp",
           '" ORDER BY (tinterval*60)-datediff(\'s\',[lastChecked],now()) "',
           '" ORDER BY (tinterval*60)-datediff(\'s\',[lastChecked],now()) desc "'),
    Mutant("a transaction is not on the disk when it ends", "platform/sqlite/sqlite_database.cpp",
           "for each transaction.\n    sqlite3_exec(database, \"pragma synchronous = full\"",
           "for each transaction.\n    sqlite3_exec(database, \"pragma synchronous = normal\""),
    Mutant("a copy is not on the disk when it is renamed", "platform/os/local_files.cpp",
           "    syncToDisk(file_.get(), path_);\n", ""),
    Mutant("a new name is not on the disk when it is told", "platform/os/local_files_posix.cpp",
           "  syncFolder(pathOf(to).parent_path());\n", "  static_cast<void>(syncFolder);\n"),
    Mutant("the report counts an error too many", "report/daily_report.cpp", "select count(*) as [Total Errors]",
           "select count(*) + 1 as [Total Errors]"),
    Mutant("a failed fetch becomes the baseline where only pages may", "engine/result_recording.cpp",
           "!site.hasBaseline && first == FirstBaseline::anything;", "!site.hasBaseline;"),
    Mutant("the time-out of the settings is ignored", "engine/inet_pool.cpp", "  request.timeout = timeout_;\n",
           "  request.timeout = kDefaultRequestTimeout;\n"),
    Mutant("Stop waits for a mail", "engine/run_controller.cpp", "  needs_.alerts.giveUpMail();\n", ""),
    Mutant("a mail is waited for without end", "alerts/alert_dispatch.cpp", "    second->setEnabled(true);\n",
           "    second->setEnabled(false);\n"),
    Mutant("a mail server that was slow once is never asked again", "alerts/alert_dispatch.cpp",
           "  tooSlow_.clear();\n", ""),
    Mutant("a mail that is left out is not told", "engine/pass_recording.cpp", "needs_.alerts.mailOutcome(); mail.lost)",
           "needs_.alerts.mailOutcome(); mail.lost && !mail.leftOut)"),
    Mutant("the countdown goes on under a clock that was set", "engine/run_controller.cpp",
           "if (std::exchange(clockWasSet_, false) || wallClockWasSet() || secondsToNext_ < 0)", "if (secondsToNext_ < 0)"),
    Mutant("new sites wait for the next start", "engine/run_controller.cpp",
           "newSitesAtOnce_ = options.newSitesAtOnce();", "newSitesAtOnce_ = false;"),
    Mutant("more of the log is emptied than must be", "store/kept_pages.cpp", "std::min(size.bytes - most, atOnce)",
           "std::min(size.bytes, atOnce)"),
    Mutant("the log has no bound", "store/kept_pages.cpp", "  if (size.bytes > most) {", "  if (size.bytes > 64 * most) {"),
    Mutant("a changed site is asked again and again", "engine/pass_recording.cpp", "  debts_.checks.settle(id);\n", ""),
    Mutant("a host is asked for a page too many", "engine/in_flight.cpp", "host.inFlight >= policy_.perHost",
           "host.inFlight > policy_.perHost"),
    Mutant("failures that could not be counted are forgotten", "engine/uncounted_failures.cpp",
           "  if (sites_.empty() || !backOff_.tick())", "  sites_.clear();\n  if (sites_.empty() || !backOff_.tick())"),
    Mutant("what is due is tested though it is switched off", "engine/due_sites.cpp",
           'is null or ", kIsDue, ") AND ", kIsActive);', 'is null or ", kIsDue, ") ");'),
    Mutant("a result is given up where the list is locked for long", "engine/write_turn.cpp",
           "      guard_(kSource, [&] { throw refusal; });\n", "      throw refusal;\n"),
    Mutant("what other programs change is not noticed", "store/data_changes.cpp",
           "  return std::exchange(version_, version) != version;", "  version_ = version;\n  return false;"),
)


def build(work: Path) -> None:
    subprocess.run(["cmake", "--build", "--preset", "release", "--target", "simulate"], cwd=work, check=True,
                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)


def found_by(work: Path) -> str | None:
    for hunt in HUNTS:
        try:
            ran = subprocess.run(["build/release/tests/simulation/simulate", *hunt, "--once", "--no-shrinking"],
                                 cwd=work, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                 errors="replace", timeout=LONGEST_HUNT)
        except subprocess.TimeoutExpired:
            return "it does not end"
        if ran.returncode != 0:
            telling = [line.strip() for line in ran.stdout.splitlines() if "FAILED" in line or line.startswith("  ")]
            return " ".join(telling[:2])[:230] or f"it ends with {ran.returncode}"
    return None


def has_its_place(mutant: Mutant, source: Path) -> bool:
    if (source / "src" / mutant.file).read_text(encoding="utf-8").count(mutant.before) == 1:
        return True
    print(f"{mutant.title}: its code is not in src/{mutant.file} any more; write the fault anew.")
    return False


def hunt_down(mutant: Mutant, work: Path) -> bool:
    if not has_its_place(mutant, work):
        return False
    file = work / "src" / mutant.file
    text = file.read_text(encoding="utf-8")
    file.write_text(text.replace(mutant.before, mutant.after), encoding="utf-8")
    begun = time.monotonic()
    try:
        build(work)
        found = found_by(work)
    except subprocess.CalledProcessError as failed:
        print(f"{mutant.title}: it does not build.\n{failed.stdout[-2000:]}")
        return False
    finally:
        file.write_text(text, encoding="utf-8")
    print(f"{mutant.title}: {'found' if found else 'NOT FOUND'} in {time.monotonic() - begun:.0f} s"
          f"{': ' + found if found else ''}", flush=True)
    return found is not None


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("source", type=Path)
    parser.add_argument("work", type=Path, nargs="?", help="where they are tried; without, each is only looked for")
    parser.add_argument("--only", default="")
    parser.add_argument("--first", type=int, default=1, help="the number of the first fault to try")
    wanted = parser.parse_args()
    if wanted.work is None:
        return 0 if all([has_its_place(mutant, wanted.source) for mutant in MUTANTS]) else 1
    shutil.copytree(wanted.source, wanted.work, ignore=shutil.ignore_patterns("build", ".git"), dirs_exist_ok=True)
    subprocess.run(["cmake", "--preset", "release", "-DBUILD_TESTING=ON"], cwd=wanted.work, check=True,
                   stdout=subprocess.DEVNULL)
    build(wanted.work)
    if contradiction := found_by(wanted.work):
        print(f"Without any fault something is found, too, which says nothing about faults: {contradiction}")
        return 1
    print("Without any fault nothing is found.", flush=True)
    chosen = [mutant for mutant in MUTANTS[wanted.first - 1:] if wanted.only in mutant.title]
    missed = sum(not hunt_down(mutant, wanted.work) for mutant in chosen)
    print(f"{len(chosen) - missed} of {len(chosen)} faults were found.")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
