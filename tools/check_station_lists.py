#!/usr/bin/env python3
"""Checks that the two station lists can be imported, and that well-known stations are in them.

    check_station_lists.py [DATA_FOLDER]

Reads wmo_index.txt and icao_index.txt of the folder (the project's data/ by default), prints what
is wrong, then counts, and ends with 1 if anything is wrong.
"""

import argparse
import re
import sys
from collections import Counter, defaultdict
from pathlib import Path

DATA_FOLDER = Path(__file__).resolve().parent.parent / "data"
HEAD_LENGTH = 12
FIELDS = 10
LENGTHS = {"name": 75, "state": 2, "country": 50}  # what the station table keeps
HIGHEST_STATION = 5500  # metres
LOWEST_STATION = -450

# A wrong length of the station's own position stops the program, so the check is strict.
LATITUDE = re.compile(r"(\d\d)-(\d\d)[NS]")
LONGITUDE = re.compile(r"(\d\d\d)-(\d\d)[EW]")

# Indicator, index number, country, latitude and longitude in degrees (within half a degree).
KNOWN = """
LIRF 16242 Italy 41.8 12.2; EGLL 03772 United Kingdom 51.5 -0.4; LFPG 07157 France 49.0 2.5;
LEMD 08221 Spain 40.5 -3.6; EDDF 10637 Germany 50.0 8.6; LSZH 06670 Switzerland 47.5 8.5;
LOWW 11036 Austria 48.1 16.6; EHAM 06240 Netherlands 52.3 4.8; EBBR 06451 Belgium 50.9 4.5;
EKCH 06180 Denmark 55.6 12.6; ENGM 01384 Norway 60.2 11.1; ESSA 02460 Sweden 59.7 17.9;
EFHK 02974 Finland 60.3 25.0; BIRK 04030 Iceland 64.1 -21.9; EIDW 03969 Ireland 53.4 -6.3;
EPWA 12375 Poland 52.2 21.0; LKPR 11518 Czech Republic 50.1 14.3; LHBP 12839 Hungary 47.4 19.2;
LBSF 15614 Bulgaria 42.7 23.4; LYBE 13272 Serbia 44.8 20.3; LPPT 08536 Portugal 38.8 -9.1;
LIML 16080 Italy 45.5 9.3; LIPZ 16105 Italy 45.5 12.3; LIRN 16289 Italy 40.9 14.3;
LICC 16460 Italy 37.5 15.1; LIMC 16066 Italy 45.6 8.7; EGPF 03140 United Kingdom 55.9 -4.4;
EGKK 03776 United Kingdom 51.1 -0.2; EGSS 03683 United Kingdom 51.9 0.2;
ULLI 26063 Russia 59.8 30.3; LLBG 40180 Israel 32.0 34.9; OJAI 40272 Jordan 31.7 36.0;
HECA 62366 Egypt 30.1 31.4; GMMN 60156 Morocco 33.4 -7.6; DAAG 60390 Algeria 36.7 3.2;
DTTA 60715 Tunisia 36.8 10.2; GOOY 61641 Senegal 14.7 -17.5; DNMM 65201 Nigeria 6.6 3.3;
HKJK 63740 Kenya -1.3 36.9; FMMI 67083 Madagascar -18.8 47.5; FAOR 68368 South Africa -26.1 28.2;
FACT 68816 South Africa -34.0 18.6; OERK 40437 Saudi Arabia 25.0 46.7;
OMDB 41194 United Arab Emirates 25.3 55.4;
OIII 40754 Iran 35.7 51.3; OPKC 41780 Pakistan 24.9 67.2; VIDP 42181 India 28.6 77.1;
VABB 43003 India 19.1 72.9; ZBAA 54511 China 40.1 116.6; VHHH 45007 Hong Kong 22.3 113.9;
RKSI 47113 South Korea 37.5 126.4; RJTT 47671 Japan 35.6 139.8; RJAA 47686 Japan 35.8 140.4;
WSSS 48698 Singapore 1.4 104.0; VTBS 48429 Thailand 13.7 100.8; WIII 96749 Indonesia -6.1 106.7;
RPLL 98429 Philippines 14.5 121.0; YSSY 94767 Australia -33.9 151.2;
YMML 94866 Australia -37.7 144.8;
YPPH 94610 Australia -31.9 116.0; YBBN 94578 Australia -27.4 153.1; NFFN 91680 Fiji -17.8 177.4;
KJFK 74486 United States 40.6 -73.8; KLAX 72295 United States 33.9 -118.4;
KORD 72530 United States 42.0 -87.9; KATL 72219 United States 33.6 -84.4;
KDEN 72565 United States 39.9 -104.7; KBOS 72509 United States 42.4 -71.0;
KMIA 72202 United States 25.8 -80.3; KSEA 72793 United States 47.4 -122.3;
KSFO 72494 United States 37.6 -122.4; KPHX 72278 United States 33.4 -112.0;
KMSP 72658 United States 44.9 -93.2; PANC 70273 United States 61.2 -150.0;
PHNL 91182 United States 21.3 -157.9; TJSJ 78526 Puerto Rico 18.4 -66.0;
CYUL 71627 Canada 45.5 -73.7; CYVR 71892 Canada 49.2 -123.2; CYWG 71852 Canada 49.9 -97.2;
SBBR 83378 Brazil -15.9 -47.9; SAEZ 87576 Argentina -34.8 -58.5; SCEL 85574 Chile -33.4 -70.8;
SKBO 80222 Colombia 4.7 -74.1; SPJC - Peru -12.0 -77.1; MMMX - Mexico 19.4 -99.1;
- 47662 Japan 35.7 139.8; - 94768 Australia -33.9 151.2; - 10384 Germany 52.5 13.4;
- 89009 Antarctica -90.0 0.0; - 16235 Italy 41.9 12.5; - 72469 United States 39.8 -104.9
"""


class Checker:
    def __init__(self):
        self.problems = []

    def expect(self, condition, place, problem):
        if not condition:
            self.problems.append(f"{place}: {problem}")


def read_list(checker, path, index_first):
    """Checks the form of a list; returns its stations as dictionaries."""
    data = path.read_bytes()
    checker.expect(data.isascii(), path.name, "holds bytes beyond ASCII")
    checker.expect(b"\r" not in data and data.endswith(b"\n"), path.name, "line ends are not LF")
    lines = data.decode("ascii", "replace").splitlines()
    checker.expect(";" not in lines[-1], path.name, "the last line, never stored, has fields")
    head_form = r"[A-Z0-9]{4};(\d\d;\d{3}|--;---);"
    if index_first:
        head_form = r"\d\d;\d{3};([A-Z0-9]{4}|----);"
    return [
        read_station(checker, f"{path.name}:{number}", line, head_form, index_first)
        for number, line in enumerate(lines[:-1], 1)
    ]


def read_station(checker, place, line, head_form, index_first):
    head, fields = line[:HEAD_LENGTH], line[HEAD_LENGTH:].split(";")
    checker.expect(re.fullmatch(head_form, head), place, f'wrong head "{head}"')
    checker.expect(len(fields) == FIELDS + 1 and fields[-1] == "", place, "not ten ended fields")
    fields += [""] * (FIELDS + 1 - len(fields))
    if index_first:
        index, icao = head[:2] + head[3:6], head[7:11].strip("-")
    else:
        icao, index = head[:4], (head[5:7] + head[8:11]).strip("-")
    station = {"place": place, "icao": icao, "index": int(index) if index.isdigit() else -1}
    names = "name state country region lat lon sensor_lat sensor_lon height sensor_height".split()
    station |= dict(zip(names, fields))

    for field, length in LENGTHS.items():
        text = station[field]
        checker.expect(len(text) <= length, place, f'{field} "{text}" is too long')
        checker.expect(text == text.strip(), place, f'{field} "{text}" has blanks around it')
    checker.expect(station["name"], place, "no name")
    checker.expect(station["country"], place, "no country: a country filter would drop its reports")
    checker.expect("," not in station["country"], place, "a comma divides names of the filter")
    quoted = re.search("['\"\\]\\[]", station["name"])
    checker.expect(not quoted, place, "a quote or a bracket in the name")
    state = station["state"]
    checker.expect(re.fullmatch("([A-Z]{2})?", state), place, f'wrong state "{state}"')
    checker.expect(
        state or station["country"] != "United States", place, "a station of the US without a state"
    )
    checker.expect(re.fullmatch("[1-7]?", station["region"]), place, "wrong region")
    check_position(checker, place, station["lat"], station["lon"])
    if station["sensor_lat"] or station["sensor_lon"]:
        check_position(checker, place, station["sensor_lat"], station["sensor_lon"])
    for field in ("height", "sensor_height"):
        text = station[field]
        good = re.fullmatch(r"(-?\d+)?", text)
        good = good and (not text or LOWEST_STATION <= int(text) <= HIGHEST_STATION)
        checker.expect(good, place, f'wrong {field} "{text}"')
    return station


def check_position(checker, place, lat, lon):
    for text, form, limit in ((lat, LATITUDE, 90), (lon, LONGITUDE, 180)):
        match = form.fullmatch(text)
        good = match and int(match[2]) < 60 and int(match[1]) + int(match[2]) / 60 <= limit
        checker.expect(good, place, f'wrong coordinate "{text}"')


def degrees(text):
    value = int(text[:-4]) + int(text[-3:-1]) / 60
    return -value if text[-1] in "SW" else value


def check_keys(checker, synoptic, aerodromes):
    """Each number once, each indicator once, and both lists tell the same about a pair."""
    for stations, key in ((synoptic, "index"), (aerodromes, "icao")):
        for value, count in Counter(station[key] for station in stations).items():
            checker.expect(count == 1, "keys", f"{value} stands {count} times")
    by_icao = {station["icao"]: station for station in aerodromes}
    pairs = 0
    for station in synoptic:
        if not station["icao"]:
            continue
        pairs += 1
        other = by_icao.get(station["icao"])
        checker.expect(other, station["place"], "its indicator is not in the other list")
        for field in ("index", "name", "country", "state"):
            same = other and other[field] == station[field]
            checker.expect(same, station["place"], f"{field} differs between the lists")
    paired = sum(1 for station in aerodromes if station["index"] >= 0)
    checker.expect(paired == pairs, "keys", f"{pairs} pairs in one list, {paired} in the other")
    return pairs


def check_names(checker, synoptic, aerodromes):
    """A name leads to one station only: look-ups by name take the first row that they meet."""
    owners = defaultdict(set)
    for station in synoptic + aerodromes:
        owner = station["index"] if station["index"] >= 0 else station["icao"]
        owners[station["name"].upper()].add(owner)
    for name, stations in owners.items():
        checker.expect(len(stations) == 1, "names", f'"{name}" names {sorted(map(str, stations))}')


def check_known(checker, synoptic, aerodromes):
    by_index = {station["index"]: station for station in synoptic}
    by_icao = {station["icao"]: station for station in aerodromes}
    rows = [row.split() for row in KNOWN.replace("\n", " ").split(";")]
    for icao, index, *country, lat, lon in rows:
        label = f"{icao} {index}"
        found = [by_icao.get(icao)] if icao != "-" else []
        found += [by_index.get(int(index))] if index != "-" else []
        checker.expect(all(found), "known stations", f"{label} is missing")
        for station in filter(None, found):
            pair = "-" in (icao, index) or (station["icao"], station["index"]) == (icao, int(index))
            checker.expect(pair, "known stations", f"{label} is paired otherwise")
            named = station["country"] == " ".join(country)
            checker.expect(named, "known stations", f'{label} is in "{station["country"]}"')
            near = abs(degrees(station["lat"]) - float(lat)) < 0.5
            if abs(float(lat)) < 89:
                near = near and abs(degrees(station["lon"]) - float(lon)) < 0.5
            checker.expect(near, "known stations", f"{label} is somewhere else")
    return len(rows)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("data_folder", type=Path, nargs="?", default=DATA_FOLDER)
    folder = parser.parse_args().data_folder

    checker = Checker()
    synoptic = read_list(checker, folder / "wmo_index.txt", index_first=True)
    aerodromes = read_list(checker, folder / "icao_index.txt", index_first=False)
    pairs = check_keys(checker, synoptic, aerodromes)
    check_names(checker, synoptic, aerodromes)
    known = check_known(checker, synoptic, aerodromes)

    for problem in checker.problems:
        print(problem)
    both = synoptic + aerodromes
    print(f"{len(synoptic)} synoptic stations, {len(aerodromes)} aerodromes, {pairs} of them both")
    print(f"{len({station['country'] for station in both})} countries")
    print(f"{sum(1 for s in synoptic if s['sensor_lat'])} upper-air stations")
    flat = [sum(1 for s in stations if not s["height"]) for stations in (synoptic, aerodromes)]
    print(f"without height: {flat[0]} synoptic stations, {flat[1]} aerodromes")
    print(f"{known} well-known stations looked up, {len(checker.problems)} problems")
    return 1 if checker.problems else 0


if __name__ == "__main__":
    sys.exit(main())
