"""The synoptic stations of the world: index number, name, position and heights."""

import re
import struct
from dataclasses import dataclass

from zgtools.countries import CANADIAN_PROVINCES, US_STATES, wmo_region
from zgtools.names import clean_name, cut_name, title_case

# Entries that no synoptic report comes from: radars, forecast offices, wind profilers, a ship.
_PSEUDO = re.compile(
    r"^RADAR\b|[ -]RADAR$|\(RADAR\b|RADAR STATION|^\w+ RADAR \(|PROFILEUR|^WFO |^FORMER ",
    re.IGNORECASE,
)
_US_CODES = set(US_STATES.values()) | {"PR", "VI", "GU"}


@dataclass
class SynopticStation:
    index: int  # block times 1000 plus station number
    raw_name: str
    lat: float  # degrees, north positive
    lon: float  # degrees, east positive
    height: int | None  # metres
    upper_air: bool
    name: str = ""
    iso: str = ""
    country: str = ""
    state: str = ""
    icao: str = ""
    aerodrome: object = None

    @property
    def key(self):
        return f"{self.index:05d}"

    @property
    def region(self):
        return wmo_region(self.index)


def read_gdbm(path):
    """Yields the (key, value) pairs of a GNU dbm 1.x file, 64-bit offsets, little-endian."""
    data = path.read_bytes()
    (directory,) = struct.unpack_from("<q", data, 8)
    directory_size, _, bucket_size, elements = struct.unpack_from("<iiii", data, 16)
    element_size = 24
    header_size = bucket_size - elements * element_size
    buckets = struct.unpack_from(f"<{directory_size // 8}q", data, directory)
    for bucket in set(buckets):
        for number in range(elements):
            place = bucket + header_size + number * element_size
            (hash_value,) = struct.unpack_from("<i", data, place)
            if hash_value == -1:  # an unused element
                continue
            at, key_size, value_size = struct.unpack_from("<qii", data, place + 8)
            yield data[at : at + key_size], data[at + key_size : at + key_size + value_size]


def read_synoptic_stations(path):
    """All real stations of the file, by index number."""
    stations = []
    for _, value in read_gdbm(path):
        index, lat, lon = struct.unpack_from("<qqq", value)
        _, _, _, height, _, pressure_height, _ = struct.unpack_from("<7i", value, 28)
        raw = value[56:].rstrip(b"\0")
        try:
            name = raw.decode("utf-8")
        except UnicodeDecodeError:
            name = raw.decode("latin-1")
        if _PSEUDO.search(name) or not 1000 <= index <= 99999:
            continue
        stations.append(
            SynopticStation(
                index=index,
                raw_name=name,
                lat=lat / 100,
                lon=lon / 100,
                # Zero stands for an unknown height as well as for sea level.
                height=height or pressure_height or None,
                upper_air=value[24:28] != b"----",
            )
        )
    return sorted(stations, key=lambda s: s.index)


def settle_name(station):
    """Splits the raw name into name and state; needs the station's country."""
    text = re.sub(r"\s*\(\d{4,5}-\d+\)\s*$", "", station.raw_name)  # its own index number
    text = re.sub(r"INT'L|INTNL", "INTL", text, flags=re.IGNORECASE)
    text = clean_name(text)
    if station.iso == "US":
        match = re.search(r"[ ,]+([A-Z]{2})\.?(?: \([A-Z]+\))?$", text)
        if match and match.group(1) in _US_CODES:
            station.state = match.group(1)
            text = text[: match.start()]
        match = re.search(r", ([A-Z]{2}),? (?=\w)", text)  # "CITY, ST, AIRPORT"
        if match and match.group(1) in _US_CODES:
            station.state = match.group(1)
            text = f"{text[: match.start()]}/{text[match.end() :]}"
        text = re.sub(r" A\.?$", " AIRPORT", text)
    elif station.iso == "CA":
        match = re.search(r"(?:, *| )([A-Z]{2,4})\.?$", text)
        if match and match.group(1) in CANADIAN_PROVINCES:
            station.state = CANADIAN_PROVINCES[match.group(1)]
            text = text[: match.start()]
        text = re.sub(r" A$", " AIRPORT", text)
    station.name = cut_name(title_case(clean_name(text)))
