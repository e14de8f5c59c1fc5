#!/usr/bin/env python3
"""Makes the six vector files of the base map, data/maps/*.pnt.

    make_map_vectors.py WORK_FOLDER OUTPUT_FOLDER

WORK_FOLDER is filled by fetch_sources.py: libmagics++-data (Natural Earth 1:10 million).

A file is a sequence of points of three 16-bit numbers, little-endian: a code that is above 1000
where a line begins, latitude and longitude in minutes of arc.
"""

import argparse
import struct
from pathlib import Path

from zgtools import natural_earth
from zgtools.lines import divide, join, round_points, simplify
from zgtools.sources import WorkFolder

LINE_BEGINS = 1001
LINE_CONTINUES = 1

# The grid of whole minutes moves a point by up to 0.7 of a minute; finer detail than that is noise.
TOLERANCE = 0.5
# A zoomed map does not draw a step between two points that both lie well outside of it. Its margins
# are 5 minutes wide on the smallest area that can be zoomed to: no step may jump across.
LONGEST_STEP = 5


def to_minutes(line):
    return [(lon * 60, lat * 60) for lon, lat in line]


def encode(line):
    """The points of a line on the grid, or none if the line is smaller than the grid."""
    points = round_points(divide(simplify(to_minutes(line), TOLERANCE), LONGEST_STEP))
    if len(points) < 2:
        return b""
    codes = [LINE_BEGINS] + [LINE_CONTINUES] * (len(points) - 1)
    return b"".join(struct.pack("<hhh", code, lat, lon) for code, (lon, lat) in zip(codes, points))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("work_folder", type=WorkFolder)
    parser.add_argument("output_folder", type=Path)
    arguments = parser.parse_args()

    sources = arguments.work_folder
    coasts, islands, lakes = natural_earth.read_coasts(sources)
    layers = {
        "Coast": coasts,
        "Island": islands,
        "Country": natural_earth.read_countries(sources),
        "State": natural_earth.read_states(sources),
        "Lake": lakes,
        "River": [line for _, line in natural_earth.read_rivers(sources)],
    }
    arguments.output_folder.mkdir(parents=True, exist_ok=True)
    for name, lines in layers.items():
        encoded = [points for points in map(encode, join(lines)) if points]
        content = b"".join(encoded)
        (arguments.output_folder / f"{name}.pnt").write_bytes(content)
        print(f"{name:8} {len(encoded):6} lines {len(content) // 6:7} points")


if __name__ == "__main__":
    main()
