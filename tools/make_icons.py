#!/usr/bin/env python3
"""Makes the icons of the program, data/icons/zephyrgram-*.png, from data/icons/zephyrgram.svg.

    make_icons.py DATA_FOLDER

The drawing is a station as charts have it, half clouded, with a wind of 25 knots, on a disc of
sky. Needs rsvg-convert (Debian librsvg2-bin).
"""

import argparse
import subprocess
from pathlib import Path

SIZES = (16, 32, 48, 64, 128, 256)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("data_folder", type=Path)
    folder = parser.parse_args().data_folder / "icons"
    for size in SIZES:
        target = folder / f"zephyrgram-{size}.png"
        subprocess.run(
            ["rsvg-convert", "--width", str(size), "--height", str(size)]
            + ["--output", str(target), str(folder / "zephyrgram.svg")],
            check=True,
        )
        print(f"{target.name}: {target.stat().st_size} bytes")


if __name__ == "__main__":
    main()
