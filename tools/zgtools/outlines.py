"""Outlines of a font's glyphs: filled shapes of straight lines and quadratic curves.

TrueType fills what runs clockwise and cuts out what runs the other way (y upwards). Every shape
here runs clockwise unless it is a hole, and shapes of one glyph may lie over each other.
"""

import math
from dataclasses import dataclass

ARC_STEP = 30  # degrees that one quadratic curve of an arc covers at most


@dataclass
class Contour:
    """A closed outline: a first point, and what leads on from it."""

    start: tuple
    segments: list  # (control point or None, end point)

    def draw(self, pen):
        pen.moveTo(_whole(self.start))
        for control, end in self.segments:
            if control is None:
                pen.lineTo(_whole(end))
            else:
                pen.qCurveTo(_whole(control), _whole(end))
        pen.closePath()


def _whole(point):
    return round(point[0]), round(point[1])


def polygon(points, hole=False):
    """Straight lines; the way round is made right."""
    area = sum(
        x1 * y2 - x2 * y1 for (x1, y1), (x2, y2) in zip(points, [*points[1:], points[0]])
    )
    if (area > 0) != hole:
        points = points[::-1]
    return Contour(points[0], [(None, point) for point in points[1:]])


def _arc(x, y, radius, from_degrees, to_degrees):
    """Segments of an arc by compass angles: 0 is up, and a growing angle runs clockwise."""
    count = math.ceil(abs(to_degrees - from_degrees) / ARC_STEP)
    step = math.radians((to_degrees - from_degrees) / count)
    segments = []
    for i in range(count):
        angle = math.radians(from_degrees) + i * step
        segments.append(
            (
                _on_circle(x, y, radius / math.cos(step / 2), angle + step / 2),
                _on_circle(x, y, radius, angle + step),
            )
        )
    return segments


def _on_circle(x, y, radius, angle):
    return x + radius * math.sin(angle), y + radius * math.cos(angle)


def disc(x, y, radius):
    return Contour((x, y + radius), _arc(x, y, radius, 0, 360))


def ring(x, y, radius, width):
    """The line of a circle, its outer edge at the radius."""
    inner = radius - width
    return [disc(x, y, radius), Contour((x, y + inner), _arc(x, y, inner, 0, -360))]


def sector(x, y, radius, from_degrees, to_degrees):
    """Part of a disc, clockwise from one compass angle to another."""
    edge = _on_circle(x, y, radius, math.radians(from_degrees))
    return Contour((x, y), [(None, edge), *_arc(x, y, radius, from_degrees, to_degrees)])


def comma(x, y, radius):
    """A disc whose right side runs out into a tail, down and to the left."""
    tip = (x - radius, y - 3 * radius)
    return Contour(
        (x + radius, y),
        [
            ((x + radius * 0.9, y - 2.2 * radius), tip),
            ((x + radius * 0.1, y - 1.9 * radius), (x, y - radius)),
            *_arc(x, y, radius, 180, 450),
        ],
    )


def stroke(points, width):
    """What a pen of a width covers along straight lines, with pointed corners and flat ends."""
    points = list(points)
    one_side, other_side = [], []
    for i, (x, y) in enumerate(points):
        before = _normal(points[i - 1], points[i]) if i else None
        behind = _normal(points[i], points[i + 1]) if i + 1 < len(points) else None
        (ax, ay), (bx, by) = before or behind, behind or before
        # The corner's point lies along the sum of both normals, as far as it lies from either line.
        scale = width / 2 / (1 + ax * bx + ay * by)
        dx, dy = (ax + bx) * scale, (ay + by) * scale
        one_side.append((x + dx, y + dy))
        other_side.append((x - dx, y - dy))
    return polygon(one_side + other_side[::-1])


def _normal(start, end):
    length = math.hypot(end[0] - start[0], end[1] - start[1])
    return (end[1] - start[1]) / length, (start[0] - end[0]) / length
