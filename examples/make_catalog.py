#!/usr/bin/env python3
"""Writes the example catalog: release-1/, release-2/, truth.csv and CHANGES.md beside this script.

The result depends on nothing but source/; `--check` compares it with the files that are there and
writes nothing.
"""

import argparse
import pathlib
import sys

from source import bearings_seals, nuts_washers, pins_rings, release2, screws, truth, writer

HERE = pathlib.Path(__file__).resolve().parent


def all_files():
    first = [table for module in (screws, nuts_washers, pins_rings, bearings_seals)
             for table in module.tables()]
    second = release2.release(first)
    files = {}
    for folder, tables in (("release-1", first), ("release-2", second.tables.values())):
        for path, text in writer.release_files(tables).items():
            files[f"{folder}/{path}"] = text
    files["truth.csv"] = truth.truth_text(first, second)
    files["CHANGES.md"] = truth.changes_text(first, second)
    return files


def existing():
    names = {"truth.csv", "CHANGES.md"}
    for folder in ("release-1", "release-2"):
        names.update(path.relative_to(HERE).as_posix()
                     for path in (HERE / folder).rglob("*") if path.is_file())
    return {name for name in names if (HERE / name).exists()}


def check(files):
    wrong = sorted(existing() ^ set(files))
    wrong += [name for name, text in files.items()
              if name not in wrong and (HERE / name).read_text("utf-8") != text]
    for name in wrong:
        print(f"{name} is not what source/ says", file=sys.stderr)
    return 1 if wrong else 0


def write(files):
    for name in existing() - set(files):
        (HERE / name).unlink()
    for name, text in files.items():
        path = HERE / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, "utf-8", newline="\n")
    return 0


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="compare only; status 1 if files differ")
    arguments = parser.parse_args()
    return check(all_files()) if arguments.check else write(all_files())


if __name__ == "__main__":
    sys.exit(main())
