"""The aerodromes of the world: ICAO indicator, name, position and elevation.

First come the stations that are known to send METAR; the airport tables then fill in positions and
elevations and add further aerodromes with an ICAO indicator. A few that the tables have lost
(closed, or renamed with a new indicator) are added by hand.
"""

import gzip
import json
import math
import re
from dataclasses import dataclass, field

from zgtools.countries import CANADIAN_PROVINCES, US_STATES
from zgtools.names import clean_name, cut_name, title_case

METRES_PER_FOOT = 0.3048
_US_CODES = set(US_STATES.values()) | {"PR", "VI", "GU"}

# Indicator, name, ISO country, state, latitude and longitude in degrees, elevation in metres.
_HAND_ADDITIONS = (
    ("EDDT", "Berlin-Tegel", "DE", "", 52.56, 13.29, 37),
    ("EGCN", "Doncaster Sheffield", "GB", "", 53.47, -1.00, 17),
    ("EGPM", "Scatsta", "GB", "", 60.43, -1.30, 25),
    ("HLLT", "Tripoli International Airport", "LY", "", 32.66, 13.16, 80),
    ("HSSS", "Khartoum", "SD", "", 15.59, 32.55, 386),
    ("KBVE", "Boothville Heliport", "US", "LA", 29.34, -89.41, 1),
    ("KFTG", "Denver Front Range", "US", "CO", 39.79, -104.54, 1680),
    ("KSLO", "Salem-Leckrone", "US", "IL", 38.64, -88.97, 175),
    ("LYPR", "Pristina", "XK", "", 42.57, 21.04, 545),
    ("UWSS", "Saratov Tsentralny", "RU", "", 51.57, 46.05, 152),
)


@dataclass
class Aerodrome:
    icao: str
    lat: float | None = None  # degrees, north positive
    lon: float | None = None  # degrees, east positive
    elevation: float | None = None  # metres
    iso: str = ""
    state: str = ""
    name: str = ""
    country: str = ""
    reports: bool = False  # known to send METAR
    other_names: list = field(default_factory=list)  # for comparison with a synoptic station
    municipality: str = ""
    large: bool = False
    station: object = None

    @property
    def key(self):
        return self.icao


def _plain_name(text):
    """An airport's name as the lists give it, brackets with notes cut off."""
    return cut_name(title_case(clean_name(re.sub(r"\s*\[.*", "", text))))


def _metres(feet):
    return None if feet in ("", None) else float(feet) * METRES_PER_FOOT


def _read_airport_rows(work):
    """Rows of the world's airport tables by ICAO indicator; the table of larger airports wins."""
    rows = {}
    for row in json.loads(work.airports.read_text(encoding="utf-8")):
        row["lat"], row["lon"] = float(row["latitude_deg"]), float(row["longitude_deg"])
        for code in (row["gps_code"], row["ident"]):
            if re.fullmatch("[A-Z]{4}", code or ""):
                rows.setdefault(code, row)
    tables = [
        {row["id"]: row for row in json.loads(work.more_airports(part).read_text(encoding="utf-8"))}
        for part in ("codes", "basic_info", "coordinates", "region")
    ]
    for number in tables[0]:
        if not all(number in table for table in tables):
            continue
        row = {}
        for table in tables:
            row |= table[number]
        row["lat"], row["lon"] = row["latitude_deg"], row["longitude_deg"]
        for code in (row.get("gps_code"), row.get("ident")):
            if re.fullmatch("[A-Z]{4}", code or ""):
                rows.setdefault(code, row)
    return rows


def _read_us_rows(work):
    """US airports by ICAO indicator, or by the one that their weather station reports under."""
    rows = {}
    with gzip.open(work.us_airports) as packed:
        records = json.load(packed)["records"]
    for row in records:
        if row.get("icao"):
            rows[row["icao"]] = row
    for row in records:
        # An automatic station at a lower-48 field reports as "K" and the field's own identifier.
        automatic = any(
            re.search(r"\b(AWOS|ASOS)", entry.get("use") or "")
            for entry in row.get("frequencies", [])
        )
        named = re.fullmatch("[A-Z]{3}", row["faaId"]) and row["facilityType"] == "AIRPORT"
        if (automatic or named) and len(row["faaId"]) == 3 and row.get("state") not in ("AK", "HI"):
            if row["country"] == "US" and row.get("state") in _US_CODES and not row.get("icao"):
                rows.setdefault("K" + row["faaId"], row)
    return rows


def _read_metar_stations(path):
    """Yields (indicator, description, position or None, forecast zone) of each METAR station."""
    text = gzip.open(path, "rt", encoding="utf-8").read()
    for match in re.finditer(r"^\[(\w{4})\]\n((?:.+\n?)+)", text, re.MULTILINE):
        lines = (line.split(" = ", 1) for line in match.group(2).splitlines() if " = " in line)
        entry = dict(lines)
        position = re.fullmatch(r"\(([-\d.e]+), ([-\d.e]+)\)", entry.get("location", ""))
        if position:
            position = tuple(math.degrees(float(part)) for part in position.groups())
        yield match.group(1).upper(), entry.get("description", ""), position, entry.get("zone", "")


def _without_repeat(parts):
    """The parts of a name joined, without a city that the airport's own name holds."""
    if len(parts) == 2 and parts[0].upper() in parts[1].upper():
        return parts[1]
    if len(parts) == 2 and parts[1].upper() in parts[0].upper():
        return parts[0]
    return ", ".join(parts)


def _describe(aerodrome, description, zone, countries):
    """Name, country and state out of a METAR station's description."""
    parts = [part.strip() for part in description.split(",")]
    if not description.startswith("unknown station"):
        end = -1 if len(parts) > 1 else len(parts)
        if len(parts) > 2 and re.fullmatch("[A-Z]{2,3}", parts[-2]):
            end = -2
        if len(parts) > 3 and re.fullmatch("[A-Z]{2}", parts[-1]):
            end = 2  # airport, city, code of the region, code of the country
        aerodrome.name = _plain_name(_without_repeat(parts[:end] or parts[:1]))
        aerodrome.iso = countries.code(parts[-1]) or ""
    if aerodrome.iso == "CA" and ", " in aerodrome.name:
        place, _, province = aerodrome.name.rpartition(", ")
        code = CANADIAN_PROVINCES.get(re.sub(r"[. ]", "", province).upper())
        if code:
            aerodrome.name, aerodrome.state = place, code
    if parts[-1].startswith("United States"):
        aerodrome.iso = aerodrome.iso or "US"
    states = [part for part in parts if part in _US_CODES]
    from_zone = re.match(r"\('([a-z]{2})z", zone)
    if aerodrome.iso == "US":
        if states:
            aerodrome.state = states[-1]
        elif from_zone and from_zone.group(1).upper() in _US_CODES:
            aerodrome.state = from_zone.group(1).upper()


def _take_world_row(aerodrome, row, countries):
    # The METAR stations' own positions are partly old or coarse.
    aerodrome.lat, aerodrome.lon = row["lat"], row["lon"]
    if aerodrome.elevation is None:
        aerodrome.elevation = _metres(row.get("elevation_ft"))
    name = _plain_name(row["name"])
    municipality = clean_name(row.get("municipality") or "")
    aerodrome.iso = countries.code(row["iso_country"]) or aerodrome.iso
    aerodrome.municipality = municipality
    aerodrome.large = row["type"] == "large_airport"
    aerodrome.other_names += [name, municipality]
    if not aerodrome.name or re.search(r", [A-Z]{2}$", aerodrome.name):
        aerodrome.name = name
    if aerodrome.iso in ("US", "CA"):
        code = row["iso_region"].partition("-")[2]
        aerodrome.state = code if re.fullmatch("[A-Z]{2}", code) else aerodrome.state


def _take_us_row(aerodrome, row, countries):
    if aerodrome.lat is None:
        aerodrome.lat, aerodrome.lon = row["lat"], row["lon"]
    if aerodrome.elevation is None and row.get("elevationFt") is not None:
        aerodrome.elevation = row["elevationFt"] * METRES_PER_FOOT
    city = title_case(clean_name(row.get("city") or ""))
    name = _plain_name(row["name"])
    aerodrome.iso = aerodrome.iso or countries.code(row["country"]) or "US"
    aerodrome.municipality = aerodrome.municipality or city
    aerodrome.other_names += [name, city]
    if not aerodrome.name:
        aerodrome.name = name if city.upper() in name.upper() else cut_name(f"{city}/{name}")
    if aerodrome.iso == "US" and not aerodrome.state and row.get("state") in _US_CODES:
        aerodrome.state = row["state"]


def read_aerodromes(work, countries):
    """All aerodromes that have a position, sorted by indicator."""
    found = {}
    for icao, description, position, zone in _read_metar_stations(work.metar_stations):
        aerodrome = Aerodrome(icao=icao, reports=True)
        if position:
            aerodrome.lat, aerodrome.lon = position
        _describe(aerodrome, description, zone, countries)
        aerodrome.other_names.append(clean_name(description))
        found[icao] = aerodrome
    for icao, row in _read_airport_rows(work).items():
        if row["type"] in ("large_airport", "medium_airport", "small_airport") or icao in found:
            aerodrome = found.setdefault(icao, Aerodrome(icao=icao))
            _take_world_row(aerodrome, row, countries)
    for icao, row in _read_us_rows(work).items():
        _take_us_row(found.setdefault(icao, Aerodrome(icao=icao)), row, countries)
    for icao, name, iso, state, lat, lon, elevation in _HAND_ADDITIONS:
        if icao not in found or found[icao].lat is None:
            found[icao] = Aerodrome(icao, lat, lon, elevation, iso, state, name, reports=True)
    return sorted((a for a in found.values() if a.lat is not None), key=lambda a: a.icao)
