#!/usr/bin/env python3
"""Makes the five pictures of the maps, data/maps/*.bmp.

    make_map_pictures.py WORK_FOLDER OUTPUT_FOLDER [--only NAME] [--png]

WORK_FOLDER is filled by fetch_sources.py: libmagics++-data (Natural Earth 1:10 million) and
marble-qt-data (relief, glaciers). Needs Pillow and numpy. With --png a copy to look at is written
beside each picture.

Longitude and latitude are plain x and y, and the edges of a picture are the bounds of its map. The
colours are subdued, since station labels in white are read on them.
"""

import argparse
from dataclasses import dataclass
from pathlib import Path

import numpy as np
from PIL import Image, ImageDraw

from zgtools import natural_earth
from zgtools.lines import signed_area
from zgtools.relief import (
    SEA_LEVEL,
    Region,
    blur,
    colour,
    continue_beyond,
    read_relief,
    shade,
)
from zgtools.shapefile import read_marble_rings
from zgtools.sources import WorkFolder


@dataclass(frozen=True)
class Map:
    name: str
    bounds: tuple  # top, left, bottom, right in degrees
    size: tuple  # pixels; the proportions are those of the window's map surface
    river_rank: int  # the smallest rivers that are drawn
    states: frozenset = frozenset()  # countries whose states are drawn


# The sizes are two and a half times those of the window as it opens: sharp on a fine screen, and in
# a window that fills a large one.
MAPS = (
    Map("Italy", (47.5, 1.5, 34.0, 24.2), (1618, 904), 8, frozenset({"ITA"})),
    Map("Europe", (71.5, -13.0, 32.4, 28.5), (1452, 1328), 6),
    Map("World", (91.8, -159.2, -100.8, 164.8), (1800, 1016), 3),
    Map("Usa", (59.3, -128.9, 13.6, -70.8), (1596, 1196), 6, frozenset({"USA", "CAN", "MEX"})),
    Map("GB", (60.3, -11.4, 48.9, 3.0), (1530, 1180), 9),
)

# Grey level of the relief, red, green, blue.
LAND_COLOURS = (
    (97, 66, 98, 70),
    (112, 74, 106, 70),
    (130, 96, 118, 72),
    (148, 122, 124, 78),
    (166, 134, 116, 76),
    (184, 128, 100, 72),
    (202, 116, 92, 78),
    (220, 128, 116, 112),
    (242, 168, 164, 166),
)
SEA_COLOURS = (
    (0, 22, 44, 82),
    (42, 30, 60, 104),
    (70, 44, 84, 130),
    (84, 60, 106, 150),
    (97, 84, 130, 168),
)
ICE_COLOUR = (156, 170, 184)
SEA_BLUR = 0.08  # degrees
LAKE_LEVEL = 82  # grey level whose sea colour the lakes have

COAST = (24, 38, 54, 0.55)  # red, green, blue, opacity
RIVER = (70, 118, 164, 0.80)
STATE = (236, 226, 206, 0.38)
BORDER = (38, 24, 22, 0.80)

SUPERSAMPLING = 4


class Canvas:
    """A picture in the making, and the way from longitude and latitude to its pixels."""

    def __init__(self, plan):
        self.size = plan.size
        self.top, self.left, self.bottom, self.right = plan.bounds
        self.pixels_per_degree = plan.size[0] / (self.right - self.left)

    def _sees(self, points):
        lons, lats = zip(*points)
        return (
            max(lons) > self.left
            and min(lons) < self.right
            and max(lats) > self.bottom
            and min(lats) < self.top
        )

    def _place(self, points):
        x_scale = SUPERSAMPLING * self.size[0] / (self.right - self.left)
        y_scale = SUPERSAMPLING * self.size[1] / (self.top - self.bottom)
        return [((lon - self.left) * x_scale, (self.top - lat) * y_scale) for lon, lat in points]

    def _mask(self, draw_on):
        """How much of each pixel is covered by what a function draws, 0 to 1."""
        width, height = self.size
        image = Image.new("L", (width * SUPERSAMPLING, height * SUPERSAMPLING), 0)
        draw_on(ImageDraw.Draw(image))
        small = image.resize(self.size, Image.Resampling.BOX)
        return np.asarray(small, np.float32)[..., None] / 255

    def fill(self, rings):
        """Mask of polygons, given as pairs (is a hole, ring); a hole comes behind what it is in."""

        def draw_on(draw):
            for is_hole, ring in rings:
                if self._sees(ring):
                    draw.polygon(self._place(ring), fill=0 if is_hole else 255)

        return self._mask(draw_on)

    def stroke(self, lines, width):
        """Mask of lines of a width in pixels."""
        pen = round(width * SUPERSAMPLING)

        def draw_on(draw):
            for line in lines:
                if self._sees(line):
                    draw.line(self._place(line), fill=255, width=pen, joint="curve")

        return self._mask(draw_on)


def with_holes(rings):
    """Pairs (is a hole, ring) of a shapefile's rings, whose outer ones run clockwise."""
    return [(signed_area(ring) > 0, ring) for ring in rings]


# The source ends at the South Pole, the map of the world some way behind it.
BEYOND_THE_POLE = [(-180, -89.9), (180, -89.9), (180, -110), (-180, -110)]


class Sources:
    """Everything the pictures are made of, read once."""

    def __init__(self, work_folder):
        self.relief = read_relief(work_folder.relief_tiles)
        self.coasts, self.islands, self.lakes = natural_earth.read_coasts(work_folder)
        self.land = natural_earth.read_land(work_folder)
        self.countries = natural_earth.read_countries(work_folder)
        self.rivers = natural_earth.read_rivers(work_folder)
        self.ice = [
            *read_marble_rings(work_folder.glaciers),
            *read_marble_rings(work_folder.ice_shelves),
            *((False, ring) for ring in self.land if max(lat for _, lat in ring) < -60),
            (False, BEYOND_THE_POLE),
        ]
        self.work_folder = work_folder

    def states(self, countries):
        return natural_earth.read_states(self.work_folder, countries) if countries else []


def lay(picture, mask, layer):
    """Lays a colour or a picture over another one where a mask says."""
    return picture + (np.asarray(layer, np.float32) - picture) * mask


def lay_line(picture, mask, style):
    return lay(picture, mask * style[3], style[:3])


def paint_relief(plan, sources, canvas):
    """(sea, land, brightness of the land's slopes), each as if it covered all of the picture."""
    scale = canvas.pixels_per_degree
    region = Region(sources.relief, plan.bounds, scale)
    is_land = region.levels >= SEA_LEVEL
    heights = continue_beyond(region.levels, is_land)
    depths = np.minimum(continue_beyond(region.levels, ~is_land), SEA_LEVEL)
    # The source's pictures are compressed; where it is enlarged, their blocks would show. The sea
    # floor is coarse everywhere.
    depths = blur(depths, SEA_BLUR * region.pixels_per_degree)
    heights = region.sample(heights, plan.bounds, plan.size)
    depths = region.sample(depths, plan.bounds, plan.size)
    enlarged = scale / region.pixels_per_degree
    if enlarged > 1:
        heights, depths = blur(heights, 0.7 * enlarged), blur(depths, enlarged)

    light = shade(heights, scale, 0.0015)[..., None]
    sea_light = shade(depths, scale, 0.0003)[..., None]
    return colour(depths, SEA_COLOURS) * sea_light, colour(heights, LAND_COLOURS) * light, light


def paint(plan, sources):
    canvas = Canvas(plan)
    sea, land, light = paint_relief(plan, sources, canvas)
    on_land = canvas.fill(with_holes(sources.land))
    picture = lay(sea, on_land, land)
    ice = canvas.fill(sources.ice)
    picture = lay(picture, ice, np.array(ICE_COLOUR) * (1 + (light - 1) * 0.4))
    lake_colour = colour(np.float32(LAKE_LEVEL), SEA_COLOURS)
    picture = lay(picture, canvas.fill(with_holes(sources.lakes)), lake_colour)

    fine = 1.0 if canvas.pixels_per_degree > 10 else 0.7
    rivers = [line for rank, line in sources.rivers if rank <= plan.river_rank]
    picture = lay_line(picture, canvas.stroke(rivers, 1.2 * fine), RIVER)
    shores = sources.coasts + sources.islands + sources.lakes
    # No shore shows where an ice shelf goes on from the land.
    picture = lay_line(picture, canvas.stroke(shores, 1.2 * fine) * (1 - 0.8 * ice), COAST)
    states = canvas.stroke(sources.states(plan.states), 1.2)
    picture = lay_line(picture, states * on_land, STATE)
    picture = lay_line(picture, canvas.stroke(sources.countries, 1.6 * fine), BORDER)
    return Image.fromarray(np.clip(picture + 0.5, 0, 255).astype(np.uint8))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("work_folder", type=WorkFolder)
    parser.add_argument("output_folder", type=Path)
    parser.add_argument("--only", choices=[plan.name for plan in MAPS])
    parser.add_argument("--png", action="store_true")
    arguments = parser.parse_args()

    arguments.output_folder.mkdir(parents=True, exist_ok=True)
    sources = Sources(arguments.work_folder)
    for plan in MAPS:
        if arguments.only in (None, plan.name):
            picture = paint(plan, sources)
            # 256 colours are enough for a relief in subdued ones, and a third of the bytes.
            reduced = picture.quantize(256, Image.Quantize.MEDIANCUT, 3, dither=Image.Dither.NONE)
            path = arguments.output_folder / f"{plan.name}.bmp"
            reduced.save(path)
            if arguments.png:
                reduced.save(path.with_suffix(".png"))
            print(f"{plan.name}: {plan.size[0]} x {plan.size[1]}, {path.stat().st_size} bytes")


if __name__ == "__main__":
    main()
