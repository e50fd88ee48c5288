#!/usr/bin/env python3
"""Applies the example of each docs/adding-*.md to a copy of the project and builds and runs the tests of model and views.

    scripts/check-pages.py [--keep DIR] [PAGE...]    (all three pages unless named)

A page gives each place of its example as a sentence that ends in a colon, with a block of lines below it:

    In `FILE`, behind `LINE`:            the block is put behind the one line of the file that reads so
    In `FILE`, in place of `LINE`:       the block replaces it

So a page that no longer fits the sources, or that leaves a place out, fails here.
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

HOME = pathlib.Path(__file__).resolve().parent.parent
PAGES = ["adding-a-parameter", "adding-an-algorithm", "adding-an-order-type"]
PLACE = re.compile(r"^In `(?P<file>[^`]+)`, (?P<how>behind|in place of) `(?P<line>[^`]+)`:$")


class PageError(Exception):
    """What is wrong with a page, with its name and line."""


def places_of(page):
    """The places of a page: file, how, line and the block's lines."""
    lines = page.read_text().splitlines()
    for number, line in enumerate(lines):
        place = PLACE.match(line.strip())
        if not place:
            continue
        block = []
        for below in lines[number + 2:]:
            if below and not below.startswith("    "):
                break
            block.append(below[4:])
        while block and not block[-1]:
            block.pop()
        if not block:
            raise PageError(f"{page.name}:{number + 1}: no block of lines follows the place")
        yield number + 1, place["file"], place["how"], place["line"], block


def apply(page, copy):
    """Applies the example of the page to the copy and returns the number of places."""
    count = 0
    for number, name, how, line, block in places_of(page):
        where = f"{page.name}:{number}"
        file = copy / name
        if not file.is_file():
            raise PageError(f"{where}: there is no file {name}")
        text = file.read_text().splitlines()
        found = [index for index, each in enumerate(text) if each.strip() == line.strip()]
        if len(found) != 1:
            raise PageError(f"{where}: {name} has {len(found)} lines that read: {line}")
        text[found[0] + (how == "behind"):found[0] + 1] = block
        file.write_text("\n".join(text) + "\n")
        count += 1
    if count == 0:
        raise PageError(f"{page.name}: the page names no place")
    return count


def run(copy, *command):
    subprocess.run(command, cwd=copy, check=True, stdin=subprocess.DEVNULL)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("pages", nargs="*", metavar="PAGE", default=PAGES)
    parser.add_argument("--keep", metavar="DIR", help="where the copy is made, and left")
    arguments = parser.parse_args()
    copy = pathlib.Path(arguments.keep) if arguments.keep else pathlib.Path(tempfile.mkdtemp(prefix="check-pages-"))
    try:
        # The files as they stand, committed or not.
        listed = subprocess.run(["git", "-c", f"safe.directory={HOME}", "ls-files", "-z", "--cached", "--others",
                                 "--exclude-standard"], cwd=HOME, check=True, capture_output=True, text=True).stdout
        for name in filter(None, listed.split("\0")):
            if (HOME / name).is_file():
                (copy / name).parent.mkdir(parents=True, exist_ok=True)
                shutil.copy2(HOME / name, copy / name)
        for page in arguments.pages:
            print(f"check-pages: {page}: {apply(HOME / 'docs' / (page + '.md'), copy)} places", flush=True)
        # No debug information: nobody debugs the copy.
        run(copy, "cmake", "--preset", "test", "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "--log-level=ERROR")
        run(copy, "cmake", "--build", "--preset", "test", "--target", "test_model", "test_module")
        for test in ("test_model", "test_module"):
            run(copy, str(copy / "build" / "test" / "bin" / test), "--gtest_brief=1")
        print("check-pages: model and views with the examples build and pass their tests")
    except PageError as error:
        sys.exit(f"check-pages: {error}")
    except subprocess.CalledProcessError as error:
        sys.exit(f"check-pages: this failed: {' '.join(map(os.fspath, error.cmd))}")
    finally:
        if not arguments.keep:
            shutil.rmtree(copy, ignore_errors=True)


if __name__ == "__main__":
    main()
