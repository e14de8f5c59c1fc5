#!/usr/bin/env python3
"""Makes the sample bulletins of data/MeteoFiles from a made-up state of the weather.

    make_sample_bulletins.py [--seed N] [--data DATA_FOLDER] [--output OUTPUT_FOLDER]

The reports are invented: the weather comes from zgtools/weather.py, the stations are real ones of
the station lists in DATA_FOLDER, the call signs of ships are made up. With its default values the
tool writes the files that are in the repository, byte for byte. Lines end in CR LF, as on the
circuit: a file of bare line feeds would be repaired in place by the first decoding.
"""

import argparse
import random
import textwrap
from pathlib import Path

from zgtools import metar, synop, weather
from zgtools.sample_plan import (
    ANALYSIS,
    ANALYSIS_CENTRES,
    ANALYSIS_LINES,
    CYCLE_STATIONS,
    METAR_BULLETINS,
    SEA_BULLETINS,
    SYNOP_BULLETINS,
    TAF_BULLETINS,
)
from zgtools.station_lists import read_by_icao, read_by_index

DATA_FOLDER = Path(__file__).resolve().parent.parent / "data"
MONTH = 11
DAY = 15
LINE_WIDTH = 69  # characters that a teleprinter line holds
REPORT_GAP = 4  # hours between a report and the weather that counts as past

# What is reported at the hour of each region's bulletins.
REGION_HOURS = {
    "europe": {"minimum": True, "rain_code": 2, "rain_day": True},
    "asia": {"rain_code": 2},
    "africa": {"minimum": True, "rain_code": 2},
    "australia": {"maximum": True, "rain_code": 1},
    "america": {"minimum": True, "rain_code": 2},
}


class Composer:
    def __init__(self, seed, folder):
        self._seed = seed
        self._weather = weather.Weather(seed)
        self._by_icao = read_by_icao(folder)
        self._by_index = read_by_index(folder)

    def _chance(self, name):
        """A generator of its own for the wording of each station's report."""
        return random.Random(f"{self._seed}/{name}/report")

    def _observe(self, station, name, hour):
        return self._weather.observe(name, station.lat, station.lon, station.height, hour)

    def metar_bulletins(self):
        blocks = []
        for heading, sender, style, stations in METAR_BULLETINS:
            reports = []
            minutes = {"us": 53, "canada": 60, "mexico": 60, "japan": 60}.get(style, 50)
            hour = 12 if minutes == 60 else 11
            time = f"{DAY:02d}{hour:02d}{minutes % 60:02d}"
            for word in stations.split():
                icao = word[:4]
                if word.endswith("!"):
                    reports.append(f"{icao} {time}Z NIL")
                    continue
                words = self._metar_words(icao, time, 12, style, word.endswith("*"), True)
                reports.append(" ".join(words))
            blocks.append(([f"{heading} {sender} {DAY:02d}1200", "METAR"], reports))
        return circuit_file(blocks)

    def _metar_words(self, icao, time, hour, style, automatic, six_hourly):
        observed = self._observe(self._by_icao[icao], icao, hour)
        chance = self._chance(icao)
        return metar.report(icao, observed, time, style, chance, automatic, six_hourly)

    def metar_cycle(self):
        """Time stamp, report, blank line: the form of an hourly collection from a server."""
        entries = []
        for style, stations in CYCLE_STATIONS:
            minute = {"us": 53, "canada": 60, "plain": 60, "mps": 60, "japan": 60}.get(style, 50)
            hour = 12 + minute // 60
            for icao in stations.split():
                time = f"{DAY:02d}{hour:02d}{minute % 60:02d}"
                words = self._metar_words(icao, time, 12 + minute / 60, style, False, False)
                stamp = f"2003/11/{DAY:02d} {hour:02d}:{minute % 60:02d}"
                entries.append((stamp, icao, " ".join(words)))
        lines = []
        for stamp, _, report in sorted(entries):
            lines += [stamp, report, ""]
        return lines

    def synop_bulletins(self):
        blocks = []
        for heading, sender, hour, region, wind_unit, stations in SYNOP_BULLETINS:
            when = synop.Hour(hour, **REGION_HOURS[region])
            knots = wind_unit >= 3
            reports = [self._land_report(int(index), when, knots) for index in stations.split()]
            time = f"{DAY:02d}{hour:02d}"
            head = [f"{heading} {sender} {time}00", f"AAXX {time}{wind_unit}"]
            blocks.append((head, reports))
        return circuit_file(blocks)

    def _land_report(self, index, when, knots):
        station = self._by_index[index]
        # A station of both lists tells the same weather in both kinds of report.
        name = station.icao or f"{index:05d}"
        observed = self._observe(station, name, when.hour)
        earlier = self._observe(station, name, when.hour - REPORT_GAP)
        hours = range(when.hour - 12, when.hour + 1, 3)
        temperatures = [self._observe(station, name, hour).temperature for hour in hours]
        extremes = min(temperatures) - 0.3, max(temperatures) + 0.3
        chance = self._chance(name)
        return " ".join(
            synop.land_report(
                index, observed, earlier, station.height, when, knots, chance, extremes
            )
        )

    def sea_bulletins(self):
        blocks = []
        when = synop.Hour(12)
        for heading, sender, knots, type_word_each, ships in SEA_BULLETINS:
            head = [f"{heading} {sender} {DAY:02d}1200"]
            reports = []
            for name, lat, lon, course, speed, water in ships:
                observed = self._weather.observe(name, lat, lon, 0, when.hour, sea=True)
                earlier = self._weather.observe(name, lat, lon, 0, when.hour - REPORT_GAP, sea=True)
                words = synop.sea_report(
                    name, observed, earlier, when, knots, lat, lon, self._chance(name),
                    course, speed, water, fixed=name.isdigit(),
                )  # fmt: skip
                reports.append(" ".join((["BBXX"] if type_word_each else []) + words))
            blocks.append((head if type_word_each else [*head, "BBXX"], reports))
        return circuit_file(blocks)

    def taf_bulletins(self):
        blocks = []
        for heading, sender, style, first_hour, hours, stations in TAF_BULLETINS:
            reports = []
            issue = f"{DAY:02d}{first_hour - 1:02d}20"
            for icao in stations.split():
                station = self._by_icao[icao]

                def observe(hour, station=station, icao=icao):
                    return self._observe(station, icao, hour)

                lines = metar.forecast(
                    icao, observe, issue, first_hour, hours, style, self._chance(icao)
                )
                reports.append("\n     ".join(" ".join(line) for line in lines))
            blocks.append(([f"{heading} {sender} {issue[:4]}00", "TAF"], reports))
        return circuit_file(blocks)

    def fronts_bulletin(self):
        """A coded frontal analysis, which no "=" ends."""
        heading, sender, hour = ANALYSIS
        highs, lows = ["HIGHS"], ["LOWS"]
        for name, lat, lon, pressure in weather.centres(hour):
            if name in ANALYSIS_CENTRES:
                place = f"{lat:02.0f}{-lon:02.0f}"
                (highs if name.endswith("high") else lows).extend((f"{pressure:.0f}", place))
        entries = [highs, lows]
        entries += [[word, *strength.split(), points] for word, strength, points in ANALYSIS_LINES]
        lines = ["ZCZC 001", f"{heading} {sender} {DAY:02d}{hour + 1:02d}45", "CODSUS",
                 f"VALID {MONTH:02d}{DAY:02d}{hour:02d}Z"]  # fmt: skip
        for entry in entries:
            lines += textwrap.wrap(" ".join(entry), LINE_WIDTH)
        return [*lines, "NNNN", ""]


def circuit_file(blocks):
    """The lines of bulletins: ZCZC, heading lines, reports folded and closed by "=", NNNN."""
    lines = []
    for number, (head, reports) in enumerate(blocks, 1):
        lines += [f"ZCZC {number:03d}", *head]
        for report in reports:
            parts = f"{report}=".split("\n")
            for part in parts:
                indent = " " * (len(part) - len(part.lstrip()))
                lines += textwrap.wrap(
                    part.strip(), LINE_WIDTH, initial_indent=indent, subsequent_indent="     ",
                    break_on_hyphens=False, break_long_words=False,
                )  # fmt: skip
        lines += ["NNNN", ""]
    return lines


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--seed", type=int, default=7)
    parser.add_argument("--data", type=Path, default=DATA_FOLDER)
    parser.add_argument("--output", type=Path, default=DATA_FOLDER / "MeteoFiles")
    arguments = parser.parse_args()

    composer = Composer(arguments.seed, arguments.data)
    arguments.output.mkdir(parents=True, exist_ok=True)
    for name, lines in (
        ("METAR_World.txt", composer.metar_bulletins()),
        ("METAR_Cycle.txt", composer.metar_cycle()),
        ("SYNOP_Land.txt", composer.synop_bulletins()),
        ("SYNOP_Sea.txt", composer.sea_bulletins()),
        ("TAF.txt", composer.taf_bulletins()),
        ("Fronts.txt", composer.fronts_bulletin()),
    ):
        text = "".join(line + "\r\n" for line in lines)
        (arguments.output / name).write_text(text, encoding="ascii", newline="")
        print(f"{name}: {len(lines)} lines")


if __name__ == "__main__":
    main()
