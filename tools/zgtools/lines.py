"""What is done to lines before they are written: cut at the edge of the source's world, joined,
made simpler, and divided into short steps.

Points are pairs (x, y); tolerances and steps are in the unit of the points.
"""

import math
from collections import defaultdict


def signed_area(ring):
    """Area on the plane, positive for a ring that runs anticlockwise."""
    return sum(x1 * y2 - x2 * y1 for (x1, y1), (x2, y2) in zip(ring, ring[1:])) / 2


def area_km2(ring):
    """Area of a ring of longitudes and latitudes, good enough to tell a continent."""
    narrowing = math.cos(math.radians(sum(lat for _, lat in ring) / len(ring)))
    return abs(signed_area(ring)) * narrowing * 111.2**2


def cut_at_frame(ring):
    """The lines that are left of a ring without its edges along the date line and at the poles.

    Polygons are closed there only because the plane of the source ends; no coast runs so.
    """
    lines = [[ring[0]]]
    for point, following in zip(ring, ring[1:]):
        if _along_frame(point, following):
            lines.append([])
        lines[-1].append(following)
    return [line for line in lines if len(line) > 1]


def _along_frame(point, following):
    return any(
        min(point[axis], following[axis]) > limit or max(point[axis], following[axis]) < -limit
        for axis, limit in ((0, 179.999), (1, 89.99))
    )


def join(lines):
    """The lines with those made one that go on from each other where no third one meets them."""
    ends = defaultdict(list)  # point -> numbers of the lines that begin or end there
    for number, line in enumerate(lines):
        if line[0] != line[-1]:
            ends[line[0]].append(number)
            ends[line[-1]].append(number)

    joined = []
    used = set()

    def grow(line):
        """Adds what follows behind the last point, as far as it goes."""
        while len(ends[line[-1]]) == 2:
            following = [number for number in ends[line[-1]] if number not in used]
            if not following:
                return
            used.add(following[0])
            more = lines[following[0]]
            line += more[1:] if more[0] == line[-1] else more[-2::-1]

    for number, line in enumerate(lines):
        if number not in used:
            used.add(number)
            grown = list(line)
            for _ in range(2):
                grow(grown)
                grown.reverse()
            joined.append(grown)
    return joined


def simplify(line, tolerance):
    """The line without the points that lie nearer to what is left than the tolerance.

    The method is that of Douglas and Peucker: keep the point farthest from the chord, if it is far
    enough, and do the same on its two sides.
    """
    keep = {0, len(line) - 1}
    stretches = [(0, len(line) - 1)]
    while stretches:
        first, last = stretches.pop()
        farthest, where = tolerance, None
        for i in range(first + 1, last):
            away = _distance(line[i], line[first], line[last])
            if away > farthest:
                farthest, where = away, i
        if where is not None:
            keep.add(where)
            stretches += [(first, where), (where, last)]
    return [line[i] for i in sorted(keep)]


def _distance(point, start, end):
    """Distance of a point from the stretch between two others."""
    dx, dy = end[0] - start[0], end[1] - start[1]
    px, py = point[0] - start[0], point[1] - start[1]
    squared = dx * dx + dy * dy
    along = max(0.0, min(1.0, (px * dx + py * dy) / squared)) if squared else 0.0
    return math.hypot(px - along * dx, py - along * dy)


def divide(line, longest):
    """The line with points put in evenly where a step is longer than wanted on either axis."""
    divided = [line[0]]
    for (x1, y1), (x2, y2) in zip(line, line[1:]):
        count = max(1, math.ceil(max(abs(x2 - x1), abs(y2 - y1)) / longest))
        shares = (i / count for i in range(1, count))
        divided += [(x1 + (x2 - x1) * share, y1 + (y2 - y1) * share) for share in shares]
        divided.append((x2, y2))
    return divided


def round_points(line):
    """The line on the grid of whole numbers, without points that fall on the one before."""
    rounded = []
    for x, y in line:
        point = (round(x), round(y))
        if not rounded or rounded[-1] != point:
            rounded.append(point)
    return rounded
