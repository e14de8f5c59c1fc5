#!/usr/bin/env python3
"""Cuts the seeds of the fuzz targets from files that the repository has anyway.

    make_fuzz_seeds.py OUTPUT_FOLDER

Bulletins and reports come from the golden and the sample bulletins, station lists and settings from
the shipped ones. Each target of fuzz/ gets a folder of small files, in place of what was there.
"""

import argparse
import re
import shutil
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
GOLDEN = ROOT / "tests" / "golden"
DATA = ROOT / "data"
LIST_LINES = 12  # of a station list: its form is the same all the way down

# Where the words that a target puts behind a station and its time begin.
AERODROME_WORDS = re.compile(r"\b[A-Z]{4} (?:COR |AMD )?\d{6}Z ([^=]+)")
SYNOPTIC_GROUPS = re.compile(
    r"(?:\bAAXX \d{4}[0-9/] |\b)"
    r"(?:99\d{3} [0-9/]{5}|\d{5}(?! 99| \d{4}[0-9/] 99)) ([0-9/]{5} [0-9/]{5}[^=]*)"
)


def read(path):
    return path.read_bytes().decode("cp1252")


def bulletins():
    """The golden bulletins whole, the samples cut behind each NNNN."""
    for path in sorted(GOLDEN.glob("*.txt")):
        yield read(path)
    for path in sorted((DATA / "MeteoFiles").glob("*.txt")):
        yield from re.findall(r"ZCZC.*?NNNN\r?\n|\d{4}/.*?\r?\n\r?\n", read(path), re.DOTALL)


def reports(pattern):
    for text in bulletins():
        yield from pattern.findall(" ".join(text.split()))


def station_lists():
    for folder in (DATA, GOLDEN / "app"):
        for name in ("wmo_index.txt", "icao_index.txt"):
            lines = read(folder / name).split("\n")
            for first in (0, len(lines) // 2):
                yield "\n".join(lines[first : first + LIST_LINES]) + "\n"


def parameter_files():
    for path in (DATA / "zephyrgram.ini", DATA / "zephyrgram.def", *sorted(GOLDEN.glob("*.ini"))):
        yield read(path)


SEEDS = {
    "bulletin_file": bulletins,
    "metar_words": lambda: reports(AERODROME_WORDS),
    "synop_words": lambda: reports(SYNOPTIC_GROUPS),
    "station_list": station_lists,
    "parameter_file": parameter_files,
}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("output", type=Path)
    output = parser.parse_args().output
    for target, texts in SEEDS.items():
        folder = output / target
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        for number, text in enumerate(dict.fromkeys(texts())):
            (folder / f"{number:04d}").write_bytes(text.encode("cp1252"))


if __name__ == "__main__":
    main()
