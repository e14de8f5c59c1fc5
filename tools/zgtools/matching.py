"""Finds which aerodrome a synoptic station stands on: by distance, name and height.

Neither source names the other's indicator, so every near pair gets a cost and the cheapest pairs
are taken first, each station and each aerodrome once.
"""

import math
import re
from collections import defaultdict

from zgtools.geography import distance_km
from zgtools.names import to_ascii

REACH_KM = 20.0  # a pair farther apart is never looked at
AIRPORT_REACH_KM = 15.0  # how near an airport's station of like name has to be
NAMELESS_REACH_KM = 2.5  # how near a pair without a common word has to be
NAMED_REACH_KM = 10.0  # how near a pair with one has to be, if the station is not called an airport
MAX_HEIGHT_DIFFERENCE = 150.0  # metres

# Costs in kilometres: a feature is worth so much distance.
WORD_GAIN = 4.0
FURTHER_WORD_GAIN = 1.0
AIRPORT_GAIN = 3.0
PERHAPS_AIRPORT_GAIN = 1.0
SECONDARY_LOSS = 4.0
ELSEWHERE_LOSS = 8.0
UNUSED_LOSS = 2.0
METRES_PER_COST = 20.0
LATER_NUMBER_LOSS = 1.5

_AIRPORT = re.compile(
    r"AIRPORT|AEROPORT|AEROPUERTO|AERODROM|\bAERO\b|AIRFIELD|AIR BASE|\bARPT\b|\bA\.?P\b|\bAB\b|"
    r"\bAFB\b|\bAMO\b|CIV\b|MIL\b|FLUGHAFEN|LUFTHAVN|HAVALIMANI|FLYPLASS",
    re.IGNORECASE,
)
_PERHAPS_AIRPORT = re.compile(r"\bINTL?\b|\bMUN\b|\bFIELD\b|/", re.IGNORECASE)
# A second, mostly automatic station at a place.
_SECONDARY = re.compile(
    r"\bAWS\b|\bAUTO?\b|AUTOM|\bCS\b|\bRCS\b|CLIMATE|\bCDA\b|\bAGCM\b|\bAGDM\b|\bUA\b|\bSOL\b|"
    r"COMPARISON|AGROMET|METOBS|\bAWOS\b|\(AUT\)|RAWINSONDE|BOLGE|\bNOAA\b|READAC",
    re.IGNORECASE,
)
# A station that its own name puts somewhere else than on the aerodrome.
_ELSEWHERE = re.compile(
    r"OBSERV|LIGHT|\bLH\b|HARBOU?R|UNIVERS|BOTANI|CENTRE|CENTER|AGRIC|\bPORT\b|\bCITY\b|TOWN|"
    r"SYNOP|HOSPITAL|SCHOOL|\bFYR\b|RESEARCH|BISHOPTON|AEROLOG|GARDEN|BEACH|\bDAM\b",
    re.IGNORECASE,
)
_COMMON_WORDS = set(
    "AERO AERODROME AEROPORT AEROPUERTO AIR AIRFIELD AIRPORT AMO AND AWS BASE CITY CIV COUNTY DA DE"
    " DI DO EL FIELD INT INTERNATIONAL INTL ISLAND ISLANDS LA MET MIL MUNICIPAL NEW OBS"
    " OBSERVATORY PORT REG REGIONAL RGNL SAINT SAN SANTA SANTO STATION THE UNITED STATES".split()
)

# Pairs that distance and name get wrong, each looked up by hand.
_SETTLED = {
    "BIRK": 4030,
    "FZQA": 64360,
    "KMIA": 72202,
    "KPHX": 72278,
    "LBSF": 15614,
    "PHNL": 91182,
    "ULLI": 26063,
    "VTBS": 48429,
    "ZBAA": 54511,
}


# Index numbers of aerodromes that reported SYNOP for decades and have left the list of stations.
AERODROME_NUMBERS = {
    3140: "EGPF",
    3160: "EGPH",
    3334: "EGCC",
    3534: "EGBB",
    3683: "EGSS",
    3776: "EGKK",
    10382: "EDDT",
    13481: "LYPR",
    62010: "HLLT",
    62721: "HSSS",
}


def words_of(*texts):
    """The telling words of names."""
    words = re.findall("[A-Z]{3,}", to_ascii(" ".join(texts)).upper())
    return {word for word in words if word not in _COMMON_WORDS}


def _is_airport(station):
    return bool(_AIRPORT.search(station.name) or _PERHAPS_AIRPORT.search(station.name))


def _cost(station, aerodrome, distance, common):
    cost = distance
    if common:
        cost -= WORD_GAIN + FURTHER_WORD_GAIN * (common - 1)
    if station.height is not None and aerodrome.elevation is not None:
        difference = abs(station.height - aerodrome.elevation)
        if difference > MAX_HEIGHT_DIFFERENCE:
            return None
        cost += difference / METRES_PER_COST
    if _AIRPORT.search(station.name):
        cost -= AIRPORT_GAIN
    elif _PERHAPS_AIRPORT.search(station.name):
        cost -= PERHAPS_AIRPORT_GAIN
    if _SECONDARY.search(station.raw_name):
        cost += SECONDARY_LOSS
    if _ELSEWHERE.search(station.raw_name) and not _is_airport(station):
        cost += ELSEWHERE_LOSS
    if not aerodrome.reports:
        cost += UNUSED_LOSS
    return cost


def match(stations, aerodromes):
    """Sets station.icao, station.aerodrome and aerodrome.station of each pair found."""
    cells = defaultdict(list)
    for aerodrome in aerodromes:
        cells[math.floor(aerodrome.lat), math.floor(aerodrome.lon)].append(
            (aerodrome, words_of(aerodrome.name, *aerodrome.other_names))
        )
    pairs = []
    for station in stations:
        station_words = words_of(station.name)
        row, column = math.floor(station.lat), math.floor(station.lon)
        # Meridians converge: away from the equator look farther to the sides.
        sides = 1 + int(REACH_KM / 111 / max(0.05, math.cos(math.radians(station.lat))))
        near = (
            entry
            for i in (-1, 0, 1)
            for j in range(-sides, sides + 1)
            for entry in cells.get((row + i, (column + j + 180) % 360 - 180), ())
        )
        for aerodrome, aerodrome_words in near:
            distance = distance_km(station.lat, station.lon, aerodrome.lat, aerodrome.lon)
            common = len(station_words & aerodrome_words)
            reach = NAMELESS_REACH_KM
            if common:
                reach = AIRPORT_REACH_KM if _is_airport(station) else NAMED_REACH_KM
                if station.name.upper() == aerodrome.name.upper():
                    reach = REACH_KM
            if distance <= reach:
                cost = _cost(station, aerodrome, distance, common)
                if cost is not None:
                    pairs.append((cost, station, aerodrome))

    by_index = {station.index: station for station in stations}
    by_icao = {aerodrome.icao: aerodrome for aerodrome in aerodromes}
    for icao, index in _SETTLED.items():
        _join(by_index[index], by_icao[icao])
    for index, icao in AERODROME_NUMBERS.items():
        if index in by_index and not by_index[index].icao:
            _join(by_index[index], by_icao[icao])
    # Of two numbers at one place the lower one is mostly the older and better known.
    rank = {}
    for aerodrome in aerodromes:
        rank[aerodrome.icao] = 0
    pairs.sort(key=lambda pair: (pair[2].icao, pair[1].index))
    ranked = []
    for cost, station, aerodrome in pairs:
        ranked.append((cost + LATER_NUMBER_LOSS * rank[aerodrome.icao], station, aerodrome))
        rank[aerodrome.icao] = 1
    for _, station, aerodrome in sorted(ranked, key=lambda p: (p[0], p[1].index, p[2].icao)):
        if not station.icao and aerodrome.station is None:
            _join(station, aerodrome)


def _join(station, aerodrome):
    station.icao = aerodrome.icao
    station.aerodrome = aerodrome
    aerodrome.station = station
