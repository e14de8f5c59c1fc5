#!/usr/bin/env python3
"""Makes data/ship_country.csv: the countries of ships by the start of their call signs.

    make_ship_countries.py OUTPUT_FILE [--compare WORK_FOLDER]

A row is the start of a range; the range ends where the next row starts. Its index is the code of
the third character + 256 * second + 65536 * first. A range without a country is a series that is
allocated to nobody. With --compare the rows are looked up for every prefix of the amateur radio
country file of hamradio-files (work folder of fetch_sources.py), and the differences are listed:
what remains are other spellings, and calls that an administration lets its territories use.
"""

import argparse
import csv
import re
from bisect import bisect_right
from collections import Counter
from pathlib import Path

from zgtools.call_signs import read_series
from zgtools.sources import WorkFolder

CHARACTERS = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"


def start_index(prefix):
    first, second, third = (ord(character) for character in prefix)
    return first * 65536 + second * 256 + third


def range_start(first, last):
    """First three characters of a range, digits included.

    A series AAA-ALZ is two letters' worth of call signs; the third character of a real one may be a
    digit (9V1234), which sorts before the letters.
    """
    if first[1:] == "AA" and last[1:] == "ZZ":
        return first[0] + "00"
    return first[:2] + "0" if first[2] == "A" else first


def range_behind(last):
    """First three characters behind a series, or None behind the last one of all."""

    def following(character):
        return CHARACTERS[CHARACTERS.index(character) + 1]

    if last[2] != "Z":
        return last[:2] + following(last[2])
    if last[1] != "Z":
        return last[0] + following(last[1]) + "0"
    return following(last[0]) + "00" if last[0] != "Z" else None


def make_rows():
    """(start index, country) of each range, sorted, neighbours of one country joined."""
    countries = {}
    for first, last, country in read_series():
        countries[range_start(first, last)] = country
    for _, last, _ in read_series():
        behind = range_behind(last)
        if behind:
            countries.setdefault(behind, "")
    rows = []
    for index, country in sorted((start_index(p), c) for p, c in countries.items()):
        if not rows or rows[-1][1] != country:
            rows.append((index, country))
    return rows


def compare(rows, path):
    """Prints where the amateur radio prefixes have another country."""
    starts = [index for index, _ in rows]
    same = 0
    different = Counter()
    for entry in path.read_text(encoding="latin-1").split(";"):
        fields = entry.strip().split(":")
        if len(fields) < 9:
            continue
        for prefix in re.split(r"[,\s]+", fields[8]):
            prefix = re.sub(r"[(\[<{~].*", "", prefix)
            if not prefix or prefix.startswith("="):
                continue
            found = bisect_right(starts, start_index((prefix + "AA")[:3])) - 1
            country = rows[found][1] if found >= 0 else ""
            if country == fields[0].strip():
                same += 1
            else:
                different[fields[0].strip(), country or "(none)"] += 1
    print(f"{same} prefixes agree, {sum(different.values())} differ:")
    for (theirs, ours), count in different.most_common():
        print(f"  {count:4} {theirs} -> {ours}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("output_file", type=Path)
    parser.add_argument("--compare", metavar="WORK_FOLDER", type=Path)
    arguments = parser.parse_args()

    rows = make_rows()
    with arguments.output_file.open("w", encoding="ascii", newline="") as file:
        writer = csv.writer(file, lineterminator="\n")
        writer.writerow(["StartIndex", "Country"])
        writer.writerows(rows)
    print(f"{len(rows)} ranges, {sum(1 for _, country in rows if not country)} of them unallocated")
    if arguments.compare:
        compare(rows, WorkFolder(arguments.compare).call_sign_prefixes)


if __name__ == "__main__":
    main()
