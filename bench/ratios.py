#!/usr/bin/env python3
"""ratios.py [--store] FILE...: ratios between the benchmarks of a run, as a table.

The files are what fragsmith-bench and fragsmith-window-bench wrote with
--benchmark_out_format=json and some repetitions. Each ratio stands three
times: of the medians, of the fastest repetitions, which other work on the
machine disturbs least, and as it was stored before (stored_ratios.json beside
this script, which --store writes). Without --store, what has become clearly
slower by both is named in the end, and the exit status is 1.
"""

import json
import pathlib
import statistics
import sys

# A ratio of one tree differs by so much between quiet runs.
TOLERANCE = 1.25

STORED = pathlib.Path(__file__).with_name("stored_ratios.json")

# What is measured, against what, and the most that the ratio is to be.
PAIRS = [
    ("Start until the window is painted", [
        ("StartUp/fragsmith", "StartUp/bare_window",
         "bare window, menu, status bar", 1.5),
        ("StartUp/fragsmith", "StartUp/shown_page_alone",
         "without the hidden pages", 1.25),
    ]),
    ("Read a bot's five files", [
        ("BotRead", "BotReadPlain", "read and split, standard library", 3),
        ("BotRead", "BotReadFloor", "read and split, bare system calls", 3),
        ("BotRead", "BotReadTwice",
         "read, and split into words and numbers twice", 3),
        ("BotParse", "BotParseFloor", "split, all in memory", None),
    ]),
    ("Write a bot's five files", [
        ("BotWrite/disk", "BotWriteFloor/disk", "the same bytes", 3),
        ("BotWrite/memory", "BotWriteFloor/memory",
         "the same bytes, files in memory", 3),
        ("BotFormat", "BotFormatFloor", "join the lines, all in memory", None),
    ]),
    ("Load a bot out of a package", [
        ("BotFromPackage", "FiveEmptyPrograms", "start five programs", None),
        ("BotFromOthers/found", "BotFromOthers/plain",
         "without looking for its weights", 1.3),
    ]),
    ("Edit four of a bot's files in place", [
        ("BotEdit", "BotEditReading", "read them by both readers", 3),
    ]),
    *[(f"Scan {count} packages, {cache} cache", [
        (f"Scan{cache.title()}/fragsmith/{count}",
         f"Scan{cache.title()}/{peer}/{count}", title, most)
        for peer, title, most in [
            ("walk", "walk, standard library", most_walk),
            ("bare_walk", "walk, bare system calls", most_walk),
            ("zipinfo", "zipinfo -1, one process", 1),
            ("libarchive", "libarchive", 1),
            ("minizip", "minizip", 1),
            ("libzip", "libzip, names alone", None),
        ]
    ]) for cache, most_walk in [("warm", 12), ("cold", 2.5)]
       for count in (500, 2000)],
    ("Scan 500 packages, warm cache", [
        ("ScanWarm/fragsmith/500", "ScanWarm/zipinfo_each/500",
         "zipinfo -1, a process each", 1),
    ]),
    ("Build and sort 100,000 entries", [
        (f"{what}/100000", f"{floor}/100000", f"{title}, one plain list", None)
        for what, floor, title in [
            ("Catalogue/many_models", "CatalogueFloor/many_models",
             "skins of 10,000 models"),
            ("Catalogue/one_model", "CatalogueFloor/one_model",
             "skins of one model"),
            ("Bots", "BotsFloor", "bots"),
        ]
    ]),
]

# What grows, from where to where, and the growth of its ideal.
LINEAR_4 = 4.0
N_LOG_N_4 = 4.55  # 100,000 log 100,000 against 25,000 log 25,000
GROWTHS = [
    ("Scan, warm", "ScanWarm/fragsmith", 500, 2000, LINEAR_4),
    ("Scan, cold", "ScanCold/fragsmith", 500, 2000, LINEAR_4),
    ("  walk, standard library", "ScanWarm/walk", 500, 2000, LINEAR_4),
    ("Skins of many models", "Catalogue/many_models", 25000, 100000,
     N_LOG_N_4),
    ("  one plain list", "CatalogueFloor/many_models", 25000, 100000,
     N_LOG_N_4),
    ("Skins of one model", "Catalogue/one_model", 25000, 100000, N_LOG_N_4),
    ("Bots", "Bots", 25000, 100000, N_LOG_N_4),
    ("  one plain list", "BotsFloor", 25000, 100000, N_LOG_N_4),
]

UNITS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}


def read_times(paths):
    """Seconds of each repetition by benchmark name."""
    times = {}
    runs = []
    for path in paths:
        with open(path, encoding="utf-8") as file:
            runs += json.load(file)["benchmarks"]
    for run in runs:
        if run.get("run_type") != "iteration":
            continue
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")
        name = run["run_name"]
        for suffix in ("/real_time", "/manual_time"):
            name = name.removesuffix(suffix)
        seconds = run["real_time"] * UNITS[run["time_unit"]]
        times.setdefault(name, []).append(seconds)
    return times


def ratios(times, what, against):
    return (statistics.median(times[what]) / statistics.median(times[against]),
            min(times[what]) / min(times[against]))


class Table:
    """Prints ratios beside those that were stored."""

    def __init__(self, times):
        self.times = times
        self.medians = {}
        self.slower = []
        self.before = (json.loads(STORED.read_text(encoding="utf-8"))
                       if STORED.exists() else {})

    def head(self, title, last):
        print(f"{title:38}{'median':>9}{'fastest':>9}{'before':>9}   {last}")

    def row(self, title, what, against, aim, most=None):
        if what not in self.times or against not in self.times:
            return
        median, fastest = ratios(self.times, what, against)
        key = f"{what} : {against}"
        self.medians[key] = round(median, 2)
        before = self.before.get(key)
        if before is not None and min(median, fastest) > before * TOLERANCE:
            self.slower.append(f"{key} is {median:.2f}, was {before:.2f}")
        shown = f"{before:9.2f}" if before is not None else f"{'-':>9}"
        verdict = "" if most is None else ("met" if median <= most
                                           else "missed")
        print(f"  {title:36}{median:9.2f}{fastest:9.2f}{shown}   {aim:10}"
              f"{verdict}")


def main():
    files = [word for word in sys.argv[1:] if word != "--store"]
    if not files:
        sys.exit(__doc__.splitlines()[0])
    table = Table(read_times(files))
    table.head("Time divided by that of", "aim")
    for title, rows in PAIRS:
        if not any(what in table.times for what, *_ in rows):
            continue
        print(title)
        for what, against, name, most in rows:
            table.row(name, what, against,
                      "" if most is None else f"<= {most}", most)
    print()
    table.head("Growth of time", "ideal")
    for title, name, few, many, ideal in GROWTHS:
        table.row(f"{title}, {few:,} to {many:,}", f"{name}/{many}",
                  f"{name}/{few}", f"{ideal}")
    if "--store" in sys.argv:
        STORED.write_text(json.dumps(table.before | table.medians, indent=1)
                          + "\n", encoding="utf-8")
    elif table.slower:
        sys.exit("\n".join(["", "Slower than stored:", *table.slower]))


if __name__ == "__main__":
    main()
