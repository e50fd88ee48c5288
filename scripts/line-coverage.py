#!/usr/bin/env python3
"""Prints which part of the lines of some folders was executed, and the lines that were not.

    scripts/line-coverage.py BUILD FOLDER...     (from the project's root; --missing lists the lines)

Reads the counts that a coverage build left behind by way of gcov. A line counts as executed when any of the objects
that it was compiled into executed it.
"""

import collections
import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys


def counts_of(data):
    """The executed and all lines of each file that went into one object, as gcov tells them."""
    told = subprocess.run(["gcov", "--json-format", "--stdout", data], capture_output=True, text=True, check=True)
    counts = []
    for line in told.stdout.splitlines():
        for file in json.loads(line)["files"]:
            counts.append((file["file"], [(one["line_number"], one["count"]) for one in file["lines"]]))
    return counts


def main(arguments):
    missing_too = "--missing" in arguments
    build, *folders = [argument for argument in arguments if argument != "--missing"]
    root = os.getcwd()
    lines = collections.defaultdict(dict)
    data_files = sorted(str(path.resolve()) for path in pathlib.Path(build).rglob("*.gcda"))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for counts in pool.map(counts_of, data_files):
            for name, told in counts:
                file = os.path.relpath(os.path.realpath(os.path.join(build, name)), root)
                if file.split("/")[0] not in folders:
                    continue
                for line, count in told:
                    lines[file][line] = lines[file].get(line, False) or count > 0
    if not lines:
        sys.exit("line-coverage: nothing was counted")
    total = collections.Counter()
    executed = collections.Counter()
    for file, told in sorted(lines.items()):
        folder = file.split("/")[0]
        for key in (folder, "total"):
            total[key] += len(told)
            executed[key] += sum(told.values())
        missed = [line for line, done in sorted(told.items()) if not done]
        if missing_too and missed:
            print(f"{file}: {', '.join(map(str, missed))}")
    for key in [*folders, "total"]:
        share = 100 * executed[key] / total[key] if total[key] else 0
        print(f"{key:8} {share:6.1f}%  ({executed[key]} of {total[key]} lines)")


main(sys.argv[1:])
