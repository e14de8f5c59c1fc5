"""Polygons of countries and states: which one does a position lie in, or nearest to."""

import json
import math
from collections import Counter, defaultdict

KM_PER_DEGREE = 111.2
BANDS_PER_DEGREE = 5  # polygon edges are sorted into bands of latitude
NEAREST_WITHIN = 3.0  # degrees; a position farther from every polygon belongs to none


def distance_km(lat1, lon1, lat2, lon2):
    """Distance on the plane, in kilometres: good to a percent for the short ways it is used for."""
    narrowing = math.cos(math.radians((lat1 + lat2) / 2))
    delta = (lon1 - lon2 + 180) % 360 - 180
    return KM_PER_DEGREE * math.hypot(lat1 - lat2, delta * narrowing)


def read_topojson(path, collection):
    """Yields (name, rings) for each shape of a TopoJSON file; a ring is a list of (lon, lat)."""
    topology = json.loads(path.read_text(encoding="utf-8"))
    scale_x, scale_y = topology["transform"]["scale"]
    move_x, move_y = topology["transform"]["translate"]
    arcs = []
    for steps in topology["arcs"]:
        x = y = 0
        arc = []
        for step_x, step_y in steps:
            x += step_x
            y += step_y
            arc.append((x * scale_x + move_x, y * scale_y + move_y))
        arcs.append(arc)

    def join(numbers):
        ring = []
        for number in numbers:
            arc = arcs[number] if number >= 0 else arcs[~number][::-1]
            ring += arc[1:] if ring else arc
        return ring

    for shape in topology["objects"][collection]["geometries"]:
        polygons = shape["arcs"] if shape["type"] == "MultiPolygon" else [shape["arcs"]]
        yield shape["properties"]["name"], [join(ring) for polygon in polygons for ring in polygon]


class PolygonIndex:
    """Finds the named polygon at a position by counting crossed edges."""

    def __init__(self, shapes):
        self._names = []
        self._bands = defaultdict(list)
        for name, rings in shapes:
            for ring in rings:
                self._add_ring(ring, len(self._names))
            self._names.append(name)

    def _add_ring(self, ring, number):
        # Rings run across the date line: unwrap them and keep copies 360 degrees away.
        unwrapped = [ring[0]]
        for x, y in ring[1:]:
            x -= 360 * round((x - unwrapped[-1][0]) / 360)
            unwrapped.append((x, y))
        west = min(x for x, _ in unwrapped)
        east = max(x for x, _ in unwrapped)
        for shift in (0, -360, 360):
            if east + shift < -180 or west + shift > 180:
                continue
            for (x1, y1), (x2, y2) in zip(unwrapped, unwrapped[1:]):
                low = math.floor(min(y1, y2) * BANDS_PER_DEGREE)
                high = math.floor(max(y1, y2) * BANDS_PER_DEGREE)
                for band in range(low, high + 1):
                    self._bands[band].append((x1 + shift, y1, x2 + shift, y2, number))

    def find(self, lat, lon):
        """Name of the polygon that holds the position, else of the nearest one, else None."""
        crossings = Counter()
        home = math.floor(lat * BANDS_PER_DEGREE)
        for x1, y1, x2, y2, number in self._bands.get(home, ()):
            if (y1 > lat) != (y2 > lat) and lon < (x2 - x1) * (lat - y1) / (y2 - y1) + x1:
                crossings[number] += 1
        inside = [number for number, count in crossings.items() if count % 2]
        return self._names[inside[0]] if inside else self._find_nearest(lat, lon, home)

    def find_near(self, lat, lon, within):
        """Names of the polygons that have a border within so many degrees of the position."""
        names = set()
        narrowing = math.cos(math.radians(lat))
        low = math.floor((lat - within) * BANDS_PER_DEGREE)
        high = math.floor((lat + within) * BANDS_PER_DEGREE)
        for band in range(low, high + 1):
            for x1, y1, _, _, number in self._bands.get(band, ()):
                if math.hypot((x1 - lon) * narrowing, y1 - lat) < within:
                    names.add(self._names[number])
        return names

    def _find_nearest(self, lat, lon, home):
        best = NEAREST_WITHIN
        name = None
        narrowing = math.cos(math.radians(lat))
        reach = int(NEAREST_WITHIN * BANDS_PER_DEGREE)
        for band in sorted(range(home - reach, home + reach + 1), key=lambda b: abs(b - home)):
            if (abs(band - home) - 1) / BANDS_PER_DEGREE > best:
                break
            for x1, y1, _, _, number in self._bands.get(band, ()):
                away = math.hypot((x1 - lon) * narrowing, y1 - lat)
                if away < best:
                    best, name = away, self._names[number]
        return name
