#!/usr/bin/env python3
"""Makes data/weather.ttf, the font of the weather symbols.

    make_weather_font.py OUTPUT_FILE [--specimen PNG_FILE]

A character of the font is the sign of a state of the sky or of weather as it is drawn on charts
(WMO-No. 485). One character serves many codes of present weather, so each shows the plain sign of
its phenomenon. Needs fontTools, and Pillow for the specimen.
"""

import argparse
from pathlib import Path

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen

from zgtools.outlines import comma, disc, polygon, ring, sector, stroke

EM = 1000
ASCENT, DESCENT = 800, -200
MIDDLE_X, MIDDLE_Y = 500, 300
LINE = 76  # width of the strokes
FIRST_DATE = 0  # in place of the time of making: the same input gives the same bytes

SKY_RADIUS = 390


def _sky(*inside):
    return [*ring(MIDDLE_X, MIDDLE_Y, SKY_RADIUS, LINE), *inside]


def _covered(from_degrees, to_degrees):
    return sector(MIDDLE_X, MIDDLE_Y, SKY_RADIUS - LINE / 2, from_degrees, to_degrees)


def _level(y, *stretches):
    return [stroke([(start, y), (end, y)], LINE) for start, end in stretches]


def _star(x, y, radius):
    """Three strokes through a point."""
    return [
        stroke([(x - radius * dx, y - radius * dy), (x + radius * dx, y + radius * dy)], LINE)
        for dx, dy in ((0, 1), (0.866, 0.5), (0.866, -0.5))
    ]


def _shower(top, height):
    """Triangle that points down."""
    half = height * 0.62
    corners = [(MIDDLE_X - half, top), (MIDDLE_X + half, top), (MIDDLE_X, top - height)]
    return _stroke_closed(corners)


def _stroke_closed(points):
    """Outline of a polygon: its sides as strokes, with discs where they meet."""
    sides = zip(points, [*points[1:], points[0]])
    return [stroke(side, LINE) for side in sides] + [disc(x, y, LINE / 2) for x, y in points]


def _thunder(top, height):
    """The sign of a thunderstorm: a gallows with a flash that ends in an arrow."""
    bottom = top - height
    left, right, bend = 180, 690, 470
    middle = bottom + height * 0.48
    x, y = right + 60, bottom + 20
    return [
        stroke([(left, bottom), (left, top), (right, top), (bend, middle), (x, y)], LINE),
        polygon([(x + 50, y - 60), (x - 10, y + 170), (x - 160, y + 20)]),
    ]


def _flash():
    return [
        stroke([(770, 690), (250, 330), (700, -20)], LINE),
        polygon([(790, -95), (745, 140), (590, -60)]),
    ]


def make_glyphs():
    """Outlines by character. Present weather (ww) is code table 4677, past weather (W) 4561."""
    return {
        " ": [],
        # Cloud cover, code table 2700.
        "Q": _sky(),  # clear
        "R": _sky(_covered(0, 90)),  # 1 or 2 oktas
        "B": _sky(_covered(0, 180)),  # 3 to 5
        "S": [disc(MIDDLE_X, MIDDLE_Y, SKY_RADIUS)],  # 6 to 8
        # Weather.
        "H": _flash(),  # lightning, ww 13
        "4": [line for y in (520, 300, 80) for line in _level(y, (120, 880))],  # fog, W 4
        "3": _level(520, (120, 420), (580, 880))  # shallow fog, ww 12
        + _level(300, (120, 420), (580, 880))
        + _level(80, (120, 880)),
        "@": [comma(MIDDLE_X, MIDDLE_Y + 100, 150)],  # drizzle, W 5
        "A": [disc(MIDDLE_X, MIDDLE_Y, 170)],  # rain, W 6
        "P": _star(MIDDLE_X, MIDDLE_Y, 360),  # snow, W 7
        "C": [disc(MIDDLE_X, 600, 110), *_shower(410, 500)],  # showers, heavy rain, ww 80
        "D": _thunder(650, 720),  # thunder without rain, ww 17
        "E": [disc(435, 670, 100), *_thunder(490, 600)],  # thunderstorm, ww 95
    }


def draw(contours):
    pen = TTGlyphPen(None)
    for contour in contours:
        contour.draw(pen)
    return pen.glyph()


def make_font():
    glyphs = make_glyphs()
    names = {character: f"uni{ord(character):04X}" for character in glyphs}
    outlines = {".notdef": draw(_stroke_closed([(100, 0), (100, 700), (900, 700), (900, 0)]))}
    outlines.update((names[character], draw(contours)) for character, contours in glyphs.items())

    builder = FontBuilder(EM, isTTF=True)
    builder.font.recalcTimestamp = False
    builder.setupGlyphOrder(list(outlines))
    builder.setupCharacterMap({ord(character): name for character, name in names.items()})
    builder.setupGlyf(outlines)
    builder.setupHorizontalMetrics(
        {name: (EM, getattr(builder.font["glyf"][name], "xMin", 0)) for name in outlines}
    )
    builder.setupHorizontalHeader(ascent=ASCENT, descent=DESCENT)
    builder.setupOS2(
        sTypoAscender=ASCENT, sTypoDescender=DESCENT, usWinAscent=ASCENT, usWinDescent=-DESCENT
    )
    builder.setupPost()
    builder.setupHead(unitsPerEm=EM, created=FIRST_DATE, modified=FIRST_DATE)
    builder.setupNameTable(
        {
            "familyName": "weather",
            "styleName": "Regular",
            "uniqueFontIdentifier": "Zephyrgram weather symbols",
            "fullName": "weather",
            "psName": "weather",
            "version": "Version 1.0",
        }
    )
    return builder.font


def write_specimen(font_file, picture_file):
    """Every sign large, and small as a window shows it."""
    from PIL import Image, ImageDraw, ImageFont

    characters = "".join(make_glyphs()).strip()
    picture = Image.new("RGB", (20 + 110 * len(characters), 240), "white")
    drawing = ImageDraw.Draw(picture)
    for size, y in ((90, 10), (29, 120), (16, 165)):
        font = ImageFont.truetype(str(font_file), size)
        for i, character in enumerate(characters):
            drawing.text((20 + 110 * i, y), character, font=font, fill=(0, 0, 60))
    for i, character in enumerate(characters):
        drawing.text((45 + 110 * i, 210), character, fill="black")
    picture.save(picture_file)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("output_file", type=Path)
    parser.add_argument("--specimen", metavar="PNG_FILE", type=Path)
    arguments = parser.parse_args()

    make_font().save(arguments.output_file)
    print(f"{arguments.output_file.stat().st_size} bytes")
    if arguments.specimen:
        write_specimen(arguments.output_file, arguments.specimen)


if __name__ == "__main__":
    main()
