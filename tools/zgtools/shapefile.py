"""Readers of vector files: shapefiles with their attributes, and the polygons of Marble.

A line or ring is a list of (longitude, latitude) in degrees.
"""

import struct

LINES_AND_POLYGONS = (3, 5, 13, 15)  # shape types, without and with heights


def read_shapes(path):
    """The parts of each shape of a shapefile, in the order of its attribute table.

    The index file is what tells where a shape begins: in an edited file there may be gaps.
    """
    data = path.read_bytes()
    index = path.with_suffix(".shx").read_bytes()
    shapes = []
    for offset, length in struct.iter_unpack(">ii", index[100:]):
        content = data[offset * 2 + 8 : offset * 2 + 8 + length * 2]
        shapes.append(_read_parts(content))
    return shapes


def _read_parts(content):
    if struct.unpack_from("<i", content)[0] not in LINES_AND_POLYGONS:
        return []
    part_count, point_count = struct.unpack_from("<ii", content, 36)
    starts = struct.unpack_from(f"<{part_count}i", content, 44)
    first = 44 + 4 * part_count
    points = list(struct.iter_unpack("<dd", content[first : first + 16 * point_count]))
    return [points[start:end] for start, end in zip(starts, (*starts[1:], point_count))]


def read_attributes(path):
    """The attribute table of a shapefile: a dictionary of texts for each shape."""
    data = path.with_suffix(".dbf").read_bytes()
    row_count, header_length, row_length = struct.unpack_from("<IHH", data, 4)
    columns = []
    offset = 1  # the first byte of a row marks a deleted one
    position = 32
    while data[position] != 0x0D:
        name = data[position : position + 11].split(b"\0")[0].decode("ascii")
        columns.append((name, offset, data[position + 16]))
        offset += data[position + 16]
        position += 32

    def text(row, start, length):
        first = header_length + row * row_length + start
        return data[first : first + length].decode("utf-8", "replace").strip(" \0")

    return [
        {name: text(row, start, length) for name, start, length in columns}
        for row in range(row_count)
    ]


MARBLE_INNER_RING = 3
MARBLE_COLLECTION = 4


def read_marble_rings(path):
    """Yields (is a hole, ring) for each polygon of a .pn2 file, version 2.

    The file is big-endian: version (8 bits), number of shapes (32), colour flag (8). A shape has
    its kind (8), number (32) and count of nodes (32); a node has latitude and longitude in 1/120
    degree (16 each) and a count (16) of further points, each told by its 8-bit distances from it.
    """
    data = path.read_bytes()
    position = 6
    while position < len(data):
        kind = data[position]
        if kind == MARBLE_COLLECTION:  # its members follow as shapes of their own
            position += 6
            continue
        (node_count,) = struct.unpack_from(">I", data, position + 5)
        position += 9
        ring = []
        for _ in range(node_count):
            lat, lon, more = struct.unpack_from(">hhH", data, position)
            position += 6
            ring.append((lon / 120, lat / 120))
            for step_lat, step_lon in struct.iter_unpack(
                ">bb", data[position : position + 2 * more]
            ):
                ring.append(((lon + step_lon) / 120, (lat + step_lat) / 120))
            position += 2 * more
        yield kind == MARBLE_INNER_RING, ring
