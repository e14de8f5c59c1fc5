"""The relief of the world as grey levels, and what makes a picture of it: shading and colours.

A field is an array of 32-bit floats, rows from north to south.
"""

import numpy as np
from PIL import Image

SOURCE_PIXELS_PER_DEGREE = 30
SEA_LEVEL = 97  # grey level; below it depths, above it heights, both on a scale of their own
MARGIN = 1  # degrees around a picture that its edges are sampled and shaded from


def read_relief(tile_folder):
    """The whole relief as one grey picture."""
    relief = Image.new("L", (360 * SOURCE_PIXELS_PER_DEGREE, 180 * SOURCE_PIXELS_PER_DEGREE))
    for path in sorted(tile_folder.glob("*/*.jpg")):
        row, column = (int(part) for part in path.stem.split("_"))
        with Image.open(path) as tile:
            relief.paste(tile, (column * tile.width, row * tile.height))
    return relief


class Region:
    """The relief around a picture: levels as a field, and where it lies."""

    def __init__(self, relief, bounds, pixels_per_degree):
        """Takes the part that the bounds (top, left, bottom, right in degrees) need.

        It is not much finer than a picture of so many pixels for a degree can show.
        """
        top, left, bottom, right = bounds
        reduction = max(1, int(SOURCE_PIXELS_PER_DEGREE / pixels_per_degree))
        self.west = max(-180, int(left) - MARGIN)
        self.north = min(90, int(top) + MARGIN)
        east = min(180, int(right) + MARGIN)
        south = max(-90, int(bottom) - MARGIN)
        box = (self.west + 180, 90 - self.north, east + 180, 90 - south)
        part = relief.crop([edge * SOURCE_PIXELS_PER_DEGREE for edge in box]).reduce(reduction)
        self.levels = np.asarray(part, np.float32)
        self.pixels_per_degree = SOURCE_PIXELS_PER_DEGREE / reduction

    def sample(self, field, bounds, size):
        """A field of the region within the bounds of a picture and at its size in pixels.

        Beyond the poles the last row goes on.
        """
        top, left, bottom, right = bounds
        width, height = size
        rows_per_degree = height / (top - bottom)
        above = round(max(0.0, top - 90) * rows_per_degree)
        below = round(max(0.0, -90 - bottom) * rows_per_degree)
        box = (
            left - self.west,
            self.north - min(top, 90),
            right - self.west,
            self.north - max(bottom, -90),
        )
        part = Image.fromarray(field).resize(
            (width, height - above - below),
            Image.Resampling.BICUBIC,
            box=[edge * self.pixels_per_degree for edge in box],
        )
        return np.pad(np.asarray(part, np.float32), ((above, below), (0, 0)), "edge")


def blur(field, sigma):
    """The field under a bell of a width in pixels; rows and columns go on at the edges."""
    radius = max(1, round(3 * sigma))
    weights = np.exp(-0.5 * (np.arange(-radius, radius + 1) / sigma) ** 2).astype(np.float32)
    weights /= weights.sum()
    for _ in range(2):
        padded = np.pad(field, ((radius, radius), (0, 0)), "edge")
        rows = len(field)
        field = sum(
            weight * padded[start : start + rows] for start, weight in enumerate(weights)
        ).transpose()
    return field


def continue_beyond(field, known):
    """The field with values from around where it is not known.

    Heights end at the coast with a step down to the sea. A picture drawn from them as they are has
    a cliff there, blurred across the true coastline; from heights that go on beyond it, none.
    """
    weight = known.astype(np.float32)
    filled = np.where(known, field, 0).astype(np.float32)
    result = np.where(known, field, SEA_LEVEL).astype(np.float32)
    reached = known.copy()
    for sigma in (1.5, 4.0):
        share = blur(weight, sigma)
        value = blur(filled, sigma) / np.maximum(share, 1e-6)
        new = ~reached & (share > 0.02)
        result[new] = value[new]
        reached |= new
    return result


def shade(heights, pixels_per_degree, strength):
    """Brightness of slopes under a light from the north-west, 1 for the plain."""
    to_south, to_east = np.gradient(heights * pixels_per_degree)
    steepness = strength * (to_south + to_east)
    return np.clip(1 + steepness / np.sqrt(1 + (steepness / 0.35) ** 2), 0.6, 1.4)


def colour(field, scale):
    """An RGB array from a scale of rows (grey level, red, green, blue)."""
    stops = np.array(scale, np.float32)
    return np.stack([np.interp(field, stops[:, 0], stops[:, i]) for i in (1, 2, 3)], axis=-1)
