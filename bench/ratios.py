#!/usr/bin/env python3
"""ratios.py FILE: the ratios between benchmarks of one run, as a table.

FILE is what fragsmith-bench wrote with --benchmark_out_format=json and some
repetitions. Each ratio stands twice: of the medians, and of the fastest
repetitions, which other work on the machine disturbs least.
"""

import json
import statistics
import sys

# What is measured, against what, and the most that the ratio is to be.
PAIRS = [
    ("Read a bot's five files", [
        ("BotRead", "BotReadPlain", "read and split, standard library", 3),
        ("BotRead", "BotReadFloor", "read and split, bare system calls", 3),
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


def read_times(path):
    """Seconds of each repetition by benchmark name."""
    times = {}
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
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


def print_row(title, values, aim, verdict):
    print(f"  {title:36}{values[0]:9.2f}{values[1]:9.2f}   {aim:10}{verdict}")


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__.splitlines()[0])
    times = read_times(sys.argv[1])
    print(f"{'Time divided by that of':38}{'median':>9}{'fastest':>9}   aim")
    for title, rows in PAIRS:
        print(title)
        for what, against, name, most in rows:
            values = ratios(times, what, against)
            if most is None:
                print_row(name, values, "", "")
            else:
                verdict = "met" if values[0] <= most else "missed"
                print_row(name, values, f"<= {most}", verdict)
    print(f"\n{'Growth of time':38}{'median':>9}{'fastest':>9}   ideal")
    for title, name, few, many, ideal in GROWTHS:
        values = ratios(times, f"{name}/{many}", f"{name}/{few}")
        print_row(f"{title}, {few:,} to {many:,}", values, f"{ideal}", "")


if __name__ == "__main__":
    main()
