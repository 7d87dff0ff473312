#!/usr/bin/env python3
"""Compares the start, the memory and the idle processor time of the program and a bare Qt window.

    bench/startup.py BUILD_FOLDER [--runs 20] [--program FILE] [--limit 1.1]

Starts its own X server and window manager, with a temporary home. The two programs run alternately, and take turns in
running first, so that other load on the machine affects both. Prints a table of medians, and for the start also the
lower quartile, which varies less because other load only adds time. With the same program on both sides, medians of 20
runs differed by 9 percent, quartiles by 5, and quartiles of 40 runs by 3. With --limit, exits with status 1 if the
program's quartile is more than that many times the bare window's.
"""

import argparse
import shutil
import statistics
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tools"))
sys.dont_write_bytecode = True
from screen import Screen, write_settings  # noqa: E402

SETTLE_MS = 1500
IDLE_MS = 3000
IDLE_RUNS = 3


def measure(screen, helper, command, settle_ms, idle_ms):
    shutil.rmtree(screen.data_folder, ignore_errors=True)
    write_settings(screen.data_folder)
    done = subprocess.run([helper, str(settle_ms), str(idle_ms), *command], env=screen.env, stdout=subprocess.PIPE,
                          text=True, timeout=60)
    if done.returncode:
        sys.exit(f"startup: could not measure {command[0]}")
    return [float(word) for word in done.stdout.split()]


def run_all(screen, helper, commands, runs):
    """For each command: median and lower quartile of the start (ms), medians of PSS, RSS (MiB) and idle time (ms)."""
    for command in commands:  # fills the disk cache and the font cache
        measure(screen, helper, command, 0, 0)
    starts = [[] for _ in commands]
    for run in range(runs):
        pairs = list(zip(commands, starts))
        for command, times in pairs if run % 2 else reversed(pairs):
            times.append(measure(screen, helper, command, 0, 0)[0])
    rest = [[] for _ in commands]
    for _ in range(IDLE_RUNS):
        for command, samples in zip(commands, rest):
            samples.append(measure(screen, helper, command, SETTLE_MS, IDLE_MS)[1:])
    results = []
    for times, samples in zip(starts, rest):
        pss, rss, idle = (statistics.median(column) for column in zip(*samples))
        results.append((statistics.median(times), statistics.quantiles(times)[0], pss / 1024, rss / 1024, idle))
    return results


def print_table(names, results):
    heads = ("start-up ms", "quartile ms", "PSS MiB", "RSS MiB", f"idle CPU ms in {IDLE_MS // 1000} s")
    widths = [max(len(head), 9) for head in heads]
    left = max(len(name) for name in (*names, "ratio"))
    print(" " * left, *(head.rjust(width) for head, width in zip(heads, widths)), sep="  ")
    for name, row in zip(names, results):
        print(name.ljust(left), *(f"{value:.1f}".rjust(width) for value, width in zip(row, widths)), sep="  ")
    ratios = [f"{ours / bare:.2f}" if bare else "-" for ours, bare in zip(*results)]
    print("ratio".ljust(left), *(ratio.rjust(width) for ratio, width in zip(ratios, widths)), sep="  ")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=Path, help="a build folder, as in build/check")
    parser.add_argument("--runs", type=int, default=20, help="starts of each program")
    parser.add_argument("--program", type=Path, help="time this file in the place of BUILD/pelmar-vex -NOMSG")
    parser.add_argument("--limit", type=float, help="the largest start-up ratio that is accepted")
    options = parser.parse_args()

    build = options.build.resolve()
    helper = build / "bench" / "wait_mapped"
    bare = [str(build / "bench" / "bare_window")]
    program = [str(options.program.resolve())] if options.program else [str(build / "pelmar-vex"), "-NOMSG"]
    for file in (helper, Path(bare[0]), Path(program[0])):
        if not file.exists():
            sys.exit(f"startup: {file} is not built")

    with Screen() as screen:
        results = run_all(screen, str(helper), [program, bare], options.runs)
    print_table((Path(program[0]).name, "bare window"), results)
    if options.limit and results[0][1] > options.limit * results[1][1]:
        sys.exit(f"startup: slower than {options.limit} times a bare window")


if __name__ == "__main__":
    main()
