"""Reads the shipped station lists."""

from dataclasses import dataclass


@dataclass(frozen=True)
class ListedStation:
    icao: str
    index: int  # -1 for none
    name: str
    country: str
    lat: float  # degrees, north positive
    lon: float  # degrees, east positive
    height: float  # metres; 0 where the list has none


def _degrees(text):
    value = int(text[:-4]) + int(text[-3:-1]) / 60
    return -value if text[-1] in "SW" else value


def _read(path, index_first):
    for line in path.read_text(encoding="ascii").splitlines():
        fields = line.split(";")
        if len(fields) < 13:
            continue
        icao, block, number = (fields[2], *fields[:2]) if index_first else fields[:3]
        yield ListedStation(
            icao=icao.strip("-"),
            index=int(block + number) if block.isdigit() else -1,
            name=fields[3],
            country=fields[5],
            lat=_degrees(fields[7]),
            lon=_degrees(fields[8]),
            height=float(fields[11] or 0),
        )


def read_by_index(folder):
    return {s.index: s for s in _read(folder / "wmo_index.txt", index_first=True)}


def read_by_icao(folder):
    return {s.icao: s for s in _read(folder / "icao_index.txt", index_first=False)}
