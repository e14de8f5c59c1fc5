"""Writes observations as SYNOP and SHIP reports, sections 0 to 3.

Code forms FM 12 and FM 13 (WMO-No. 306, Vol. I.1).
"""

from dataclasses import dataclass

from zgtools.weather import KNOTS, height_of, tendency

# Upper limits in metres of the classes of cloud base, code table 1600.
_BASE_CLASSES = (50, 100, 200, 300, 600, 1000, 1500, 2000, 2500)
SURFACE_850 = 900  # metres; a station above it gives the height of 850 hPa instead of a pressure
SURFACE_700 = 2300


@dataclass(frozen=True)
class Hour:
    """What belongs into a report of an hour in a region."""

    hour: int
    minimum: bool = False  # lowest temperature of the night
    maximum: bool = False
    rain_code: int = 1  # code table 4019: 1 for 6 hours, 2 for 12
    rain_day: bool = False  # 7R24 group


def visibility_code(metres):
    """Code table 4377."""
    if metres < 100:
        return 0
    if metres <= 5000:
        return metres // 100
    if metres <= 30000:
        return 50 + metres // 1000
    return min(88, 80 + (metres - 30000) // 5000)


def base_code(feet):
    """Height of the lowest cloud, code table 1600."""
    metres = feet / 3.28084
    return next((code for code, limit in enumerate(_BASE_CLASSES) if metres < limit), 9)


def layer_height_code(feet):
    """Height of a cloud layer, code table 1677."""
    metres = feet / 3.28084
    if metres < 1500:
        return int(metres // 30)
    if metres < 9000:
        return 50 + int(metres // 300) if metres >= 1800 else 50
    return min(88, 80 + int((metres - 9000) // 1500))


def present_weather(o):
    """Code table 4677 for the weather as a METAR writes it; None for nothing significant."""
    force = 4 if o.weather.startswith("+") else 0 if o.weather.startswith("-") else 2
    kind = o.weather.lstrip("+-")
    if kind in ("FG", "FZFG"):
        return 45 if kind == "FG" else 49
    plain = {"BR": 10, "HZ": 5, "VCSH": 16, "BCFG": 41}
    if kind in plain:
        return plain[kind]
    if kind == "TSRA":
        return 97 if force == 4 else 95
    steady = {"DZ": 51, "RA": 61, "SN": 71}
    if kind in steady:
        return steady[kind] + force
    showers = {"RASN": (68, 69), "SHRA": (80, 81), "SHSN": (85, 86), "SHRASN": (83, 84)}
    if kind in showers:
        return showers[kind][1 if force else 0]
    return None


def _past_weather(o, earlier):
    """W1 and W2, code table 4561, from the present weather and that of some hours ago."""
    codes = []
    for state in (o, earlier):
        code = present_weather(state) or 0
        for first, last, past in (
            (95, 99, 9), (80, 94, 8), (68, 79, 7), (60, 67, 6), (50, 59, 5), (40, 49, 4),
        ):  # fmt: skip
            if first <= code <= last:
                codes.append(past)
    covered = [state.cloud > 4 for state in (o, earlier)]
    codes.append(2 if all(covered) else 1 if any(covered) else 0)
    codes.sort(reverse=True)
    return codes[0], codes[1] if len(codes) > 1 else codes[0]


def _signed(value):
    tenths = round(abs(value) * 10)
    return f"{1 if value < 0 and tenths else 0}{tenths:03d}"


def _pressure(value):
    return f"{round(value * 10) % 10000:04d}"


def _cloud_group(o):
    """8NhCLCMCH, or None where there is no cloud or the sky cannot be seen."""
    if o.cloud in (0, 9) or not o.layers:
        return None
    low = [layer for layer in o.layers if layer.genus >= 6]
    middle = [layer for layer in o.layers if 3 <= layer.genus <= 5]
    high = [layer for layer in o.layers if layer.genus <= 2]
    covered = max((layer.oktas for layer in low), default=0)
    amount = covered or max((layer.oktas for layer in middle), default=0)
    low_type = 0
    if low:
        kinds = {layer.genus for layer in low}
        low_type = 5
        if 9 in kinds:
            low_type = 9
        elif 8 in kinds:
            towering = any(layer.towering for layer in low)
            low_type = 2 if towering else 8 if 6 in kinds else 1
        elif 7 in kinds:
            low_type = 7 if o.rain else 6
    middle_type = "/" if covered == 8 else "0"
    if middle:
        rain_cloud = any(layer.genus == 5 for layer in middle)
        middle_type = "2" if rain_cloud else "7" if o.cloud >= 7 else "3"
    high_type = "/" if covered == 8 or middle and middle[0].oktas == 8 else "1" if high else "0"
    return f"8{amount}{low_type}{middle_type}{high_type}"


def _precipitation(amount):
    """RRR, code table 3590."""
    if amount < 0.05:
        return "000"
    return f"{990 + max(1, round(amount * 10)):03d}" if amount < 0.95 else f"{round(amount):03d}"


def _wind(o, knots_unit):
    speed = o.wind_knots if knots_unit else round(o.wind_knots / KNOTS)
    if speed == 0:
        return "0000"
    direction = 99 if o.variable else o.wind_dir // 10
    return f"{direction:02d}{speed:02d}"


def _section_1(o, earlier, height, when, knots_unit, sea):
    weather = present_weather(o)
    dry = o.rain <= 0 and earlier.rain <= 0
    significant = weather is not None or _past_weather(o, earlier)[0] > 2
    rain_indicator = 4 if sea else 3 if dry else 1
    low = [layer for layer in o.layers if layer.genus >= 6 or layer.genus in (3, 4, 5)]
    base = "/" if o.cloud == 9 else str(base_code(low[0].base)) if low else "9"
    words = [
        f"{rain_indicator}{1 if significant else 2}{base}{visibility_code(o.visibility):02d}",
        f"{o.cloud}{_wind(o, knots_unit)}",
        f"1{_signed(o.temperature)}",
        f"2{_signed(o.dewpoint)}",
    ]
    if not sea:
        words.append(f"3{_pressure(o.station_pressure)}")
    if height > SURFACE_700 and not sea:
        words.append(f"47{round(height_of(700, o, height)) % 1000:03d}")
    elif height > SURFACE_850 and not sea:
        words.append(f"48{round(height_of(850, o, height)) % 1000:03d}")
    else:
        words.append(f"4{_pressure(o.sea_pressure)}")
    code, amount = tendency(o.history)
    words.append(f"5{code}{amount:03d}")
    if not dry and not sea:
        words.append(f"6{_precipitation(max(o.rain, earlier.rain))}{when.rain_code}")
    if significant:
        # 02 says that the state of the sky has not changed: nothing else to tell of this hour.
        first, second = _past_weather(o, earlier)
        words.append(f"7{2 if weather is None else weather:02d}{first}{second}")
    group = _cloud_group(o)
    if group:
        words.append(group)
    return words


def _section_3(o, earlier, when, chance, extremes, knots_unit):
    words = []
    if when.maximum:
        words.append(f"1{_signed(extremes[1])}")
    if when.minimum:
        words.append(f"2{_signed(extremes[0])}")
    if o.snow_cm and o.temperature < 0 and when.minimum:
        state = 7 if o.wetness > 0.5 else 6
        words.append(f"4{state}{min(o.snow_cm, 996):03d}")
    if when.rain_day and (o.rain or earlier.rain):
        day = max(o.rain, earlier.rain) * chance.uniform(1.2, 2.5)
        words.append(f"7{round(day * 10):04d}")
    if o.cloud != 9:
        for layer in o.layers:
            words.append(f"8{layer.oktas}{layer.genus}{layer_height_code(layer.base):02d}")
    if o.gust_knots:
        gust = o.gust_knots if knots_unit else round(o.gust_knots / KNOTS)
        words.append(f"911{gust:02d}")
    return words


def land_report(index, o, earlier, height, when, knots_unit, chance, extremes):
    """The words of a land station's report; earlier is the observation of some hours before."""
    words = [f"{index:05d}", *_section_1(o, earlier, height, when, knots_unit, sea=False)]
    third = _section_3(o, earlier, when, chance, extremes, knots_unit)
    return words + (["333", *third] if third else [])


def sea_report(name, o, earlier, when, knots_unit, lat, lon, chance, course, speed, water, fixed):
    """The words of a ship's or buoy's report; course and speed by code tables 0700 and 4451."""
    unit = 4 if knots_unit else 1
    quadrant = (1 if lon >= 0 else 7) if lat >= 0 else (3 if lon >= 0 else 5)
    words = [
        name,
        f"15{when.hour:02d}{unit}",
        f"99{round(abs(lat) * 10):03d}",
        f"{quadrant}{round(abs(lon) * 10):04d}",
    ]
    section = _section_1(o, earlier, 0, when, knots_unit, sea=True)
    if fixed:
        # A buoy sees neither cloud nor weather.
        section = ["46///", f"/{section[1][1:]}", *section[2:6]]
    words += section
    sea = o.wind_knots / KNOTS
    height = max(0.5, 0.024 * sea * sea)
    period = min(14, max(2, round(2.6 + 1.6 * height**0.5)))
    swell = max(1, round((height + chance.uniform(0.5, 2.0)) * 2))
    swell_from = max(1, (o.wind_dir // 10 + chance.randrange(-5, 6)) % 36)
    words.append(f"222{course}{speed}")
    words.append(f"0{0 if water >= 0 else 1}{round(abs(water) * 10):03d}")
    if fixed:
        words.append(f"1{period:02d}{round(height * 2):02d}")
        words.append(f"70{round(height * 10):03d}")
    else:
        words.append(f"2{period:02d}{round(height * 2):02d}")
        words.append(f"3{swell_from:02d}//")
        words.append(f"4{min(15, period + 3):02d}{swell:02d}")
    return words
