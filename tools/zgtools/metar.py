"""Writes observations as METAR reports and forecasts as TAF, in the habits of a country.

Code forms FM 15 METAR and FM 51 TAF as in force in 2003 (WMO-No. 306, Vol. I.1): periods of a TAF
without days, statute miles and remarks in North America, wind in metres a second in Russia and
China.
"""

from dataclasses import dataclass

from zgtools.weather import KNOTS, tendency

METRES_PER_MILE = 1609.344
HPA_PER_INCH = 33.86389

# Miles that an automatic station tells, with their text.
_MILES = ((0.25, "1/4"), (0.5, "1/2"), (0.75, "3/4"), (1, "1"), (1.25, "1 1/4"), (1.5, "1 1/2"),
          (1.75, "1 3/4"), (2, "2"), (2.5, "2 1/2"), (3, "3"), (4, "4"), (5, "5"), (6, "6"),
          (7, "7"), (8, "8"), (9, "9"), (10, "10"))  # fmt: skip
_COVER = {1: "FEW", 2: "FEW", 3: "SCT", 4: "SCT", 5: "BKN", 6: "BKN", 7: "BKN", 8: "OVC"}
_GENUS = {0: "CI", 3: "AC", 4: "AS", 5: "NS", 6: "SC", 7: "ST", 8: "CU", 9: "CB"}
CAVOK_BASE = 5000  # feet

# Runways in use that tell their visual range.
_RUNWAYS = {
    "LIMC": ("35L", "35R"), "LIML": ("36",), "LIMF": ("36",), "LIME": ("28",), "LIPZ": ("04R",),
    "LIPX": ("04",), "LIPE": ("12",), "LIPQ": ("09",), "EDDM": ("26L", "26R"), "LSZH": ("14", "16"),
    "LSGG": ("05",), "LHBP": ("31R",), "LYBE": ("12",), "EGLL": ("27R",), "EDDF": ("25L", "25R"),
    "KSAC": ("16",), "KFAT": ("29R",), "KSMF": ("16L",), "VIDP": ("28",), "LOWL": ("27",),
    "LIRF": ("16R",), "BIKF": ("20",), "EGPF": ("23",), "ENVA": ("27",), "EKCH": ("22L",),
}  # fmt: skip


@dataclass(frozen=True)
class Style:
    """How a country writes."""

    wind: str = "KT"
    miles: bool = False
    inches: bool = False
    trend: bool = False
    remarks: str = ""  # "us", "canada", "japan", "russia" or empty


STYLES = {
    "icao": Style(trend=True),
    "plain": Style(),
    "mps": Style(wind="MPS", trend=True),
    "russia": Style(wind="MPS", trend=True, remarks="russia"),
    "us": Style(miles=True, inches=True, remarks="us"),
    "canada": Style(miles=True, inches=True, remarks="canada"),
    "mexico": Style(miles=True, inches=True, remarks="mexico"),
    "japan": Style(remarks="japan"),
}


def _wind(o, style):
    divisor = KNOTS if style.wind == "MPS" else 1
    speed = round(o.wind_knots / divisor)
    if speed == 0:
        return f"00000{style.wind}"
    gust = f"G{round(o.gust_knots / divisor):02d}" if o.gust_knots else ""
    direction = "VRB" if o.variable else f"{o.wind_dir:03d}"
    return f"{direction}{speed:02d}{gust}{style.wind}"


def _miles(metres):
    miles = metres / METRES_PER_MILE
    return next((text for value, text in reversed(_MILES) if value <= miles), "M1/4") + "SM"


def _metres(metres):
    if metres >= 10000:
        return "9999"
    step = 50 if metres < 800 else 100 if metres < 5000 else 1000
    return f"{metres // step * step:04d}"


def _temperature(value):
    whole = int(value + 0.5) if value >= -0.5 else -int(-value + 0.5)
    return f"M{-whole:02d}" if value < 0 and (whole or value <= -0.05) else f"{whole:02d}"


def _weather(o):
    return [o.weather] if o.weather else []


def _cloud(o, style, automatic):
    if o.weather in ("FG", "FZFG"):
        return [f"VV{max(1, o.visibility // 300):03d}"]
    words = []
    for layer in o.layers:
        if automatic and layer.base > 12000:
            continue
        suffix = "CB" if layer.genus == 9 else "TCU" if layer.towering else ""
        base = layer.base // 100 if layer.base < 10000 else layer.base // 1000 * 10
        words.append(f"{_COVER[layer.oktas]}{base:03d}{suffix}")
    if words:
        return words
    if style.miles:
        return ["CLR"] if automatic else ["SKC"]
    return ["SKC"]


def _is_cavok(o):
    high = all(layer.base >= CAVOK_BASE and layer.genus != 9 for layer in o.layers)
    return o.visibility >= 10000 and not o.weather and high


def _runway_ranges(icao, o, style):
    runways = _RUNWAYS.get(icao, ())
    if o.visibility > 1500:
        return []
    words = []
    for place, runway in enumerate(runways):
        metres = min(1500, round(o.visibility * (1.6 + 0.3 * place) / 50) * 50)
        if style.miles:
            feet = round(metres * 3.28 / 200) * 200
            words.append(f"R{runway}/{min(feet, 6000):04d}FT")
        else:
            change = "UND"[place % 3]
            value = "P1500" if metres == 1500 else f"{metres:04d}{change}"
            words.append(f"R{runway}/{value}")
    return words


def _trend(o, chance):
    if o.weather in ("FG", "FZFG"):
        return ["NOSIG"] if chance.random() < 0.4 else ["BECMG", "1500", "BR"]
    if o.gust_knots and chance.random() < 0.3:
        return ["TEMPO", f"{o.wind_dir:03d}{o.wind_knots:02d}G{o.gust_knots + 8:02d}KT"]
    if o.weather.startswith("-") and chance.random() < 0.5:
        return ["TEMPO", "3000", o.weather[1:]]
    if o.weather in ("BR",) and chance.random() < 0.5:
        return ["BECMG", "6000", "NSW"]
    return ["NOSIG"] if chance.random() < 0.8 else []


def _tenths(value):
    tenths = round(abs(value) * 10)
    return f"{1 if value < 0 and tenths else 0}{tenths:03d}"


def _us_remarks(o, chance, automatic, six_hourly):
    words = ["RMK", "AO2" if automatic or chance.random() < 0.8 else "AO1"]
    if o.gust_knots >= 25:
        peak = f"{o.wind_dir:03d}{o.gust_knots + 3:02d}/{chance.randrange(10, 50):02d}"
        words += ["PK", "WND", peak]
    if "TS" in o.weather:
        words += ["FRQ", "LTGICCG", "OHD"]
    words.append(f"SLP{round(o.sea_pressure * 10) % 1000:03d}")
    hundredths = max(1, round(o.rain / 25.4 * 100 / 6)) if o.rain else 0
    if hundredths and "SN" not in o.weather:
        words.append(f"P{hundredths:04d}")
    if six_hourly:
        if o.rain:
            words.append(f"6{round(o.rain / 25.4 * 100):04d}")
        if o.snow_cm >= 3:
            words.append(f"4/{round(o.snow_cm / 2.54):03d}")
    words.append(f"T{_tenths(o.temperature)}{_tenths(o.dewpoint)}")
    if six_hourly:
        warm = o.temperature + chance.uniform(1.0, 5.0)
        cold = o.temperature - chance.uniform(0.0, 1.5)
        code, amount = tendency(o.history)
        words += [f"1{_tenths(warm)}", f"2{_tenths(cold)}", f"5{code}{amount:03d}"]
    return words


def _remarks(o, chance, style, automatic, six_hourly):
    if style.remarks == "us":
        return _us_remarks(o, chance, automatic, six_hourly)
    clouds = "".join(f"{_GENUS[layer.genus]}{min(8, layer.oktas)}" for layer in o.layers)
    if style.remarks == "canada":
        return ["RMK", *([clouds] if clouds else []), f"SLP{round(o.sea_pressure * 10) % 1000:03d}"]
    if style.remarks == "mexico":
        code, amount = tendency(o.history)
        return ["RMK", f"5{code}{amount:03d}", "8/" + _mexican_clouds(o)]
    if style.remarks == "japan":
        layers = [f"{x.oktas}{_GENUS[x.genus]}{x.base // 100:03d}" for x in o.layers]
        return ["RMK", *layers, f"A{round(o.qnh / HPA_PER_INCH * 100):04d}"]
    if style.remarks == "russia":
        return ["RMK", f"QFE{round(o.station_pressure / 1.333224):03d}"]
    return []


def _mexican_clouds(o):
    return "".join("1" if any(layer.genus in kind for layer in o.layers) else "0"
                   for kind in ((6, 7, 8, 9), (3, 4, 5), (0, 1, 2)))  # fmt: skip


def report(icao, o, time, style_name, chance, automatic=False, six_hourly=False):
    """The words of a METAR from the station's indicator on; time is DDHHMM."""
    style = STYLES[style_name]
    words = [icao, f"{time}Z"]
    if automatic:
        words.append("AUTO")
    words.append(_wind(o, style))
    unsteady = o.wind_knots >= 4 and not o.variable and chance.random() < 0.12
    if style.miles:
        words.append(_miles(o.visibility))
    elif _is_cavok(o) and style_name != "japan":
        words.append("CAVOK")
    else:
        if unsteady:
            low, high = (o.wind_dir + d for d in (-40, 40))
            words.append(f"{(low - 1) % 360 + 1:03d}V{(high - 1) % 360 + 1:03d}")
        words.append(_metres(o.visibility))
    words += _runway_ranges(icao, o, style)
    words += _weather(o)
    if "CAVOK" not in words:
        words += _cloud(o, style, automatic)
    words.append(f"{_temperature(o.temperature)}/{_temperature(o.dewpoint)}")
    if style.inches:
        words.append(f"A{int(o.qnh / HPA_PER_INCH * 100):04d}")
    else:
        words.append(f"Q{int(o.qnh):04d}")
    if o.gust_knots >= 26 and icao in _RUNWAYS and style.trend:
        words += ["WS", f"RWY{_RUNWAYS[icao][0]}"]
    if style.trend and not automatic:
        words += _trend(o, chance)
    return words + _remarks(o, chance, style, automatic, six_hourly)


def _forecast_state(o, style, shear):
    words = [_wind(o, style)]
    if style.miles:
        miles = _miles(o.visibility)
        words.append("P6SM" if o.visibility > 10000 else miles)
    elif _is_cavok(o):
        return [*words, "CAVOK"]
    else:
        words.append(_metres(o.visibility))
    words += _weather(o) + _cloud(o, style, False)
    if shear and style.miles:
        direction = (o.wind_dir + 20) % 360 or 360
        words.append(f"WS020/{direction:03d}{o.wind_knots + 25:02d}KT")
    return words


def _differs(a, b):
    turned = abs((a.wind_dir - b.wind_dir + 180) % 360 - 180)
    wind = turned >= 40 and max(a.wind_knots, b.wind_knots) >= 8
    wind = wind or abs(a.wind_knots - b.wind_knots) >= 8
    return wind or a.weather != b.weather or abs(a.cloud - b.cloud) >= 3


def _passing_weather(o, hour, end, style, chance):
    """The words of a TEMPO group."""
    doubtful = "TS" in o.weather or o.weather.startswith("VC") or chance.random() < 0.4
    words = ["PROB30", "TEMPO"] if doubtful else ["TEMPO"]
    words.append(f"{hour % 24:02d}{min(hour + 4, end) % 24:02d}")
    if o.visibility < 10000:
        words.append(_metres(o.visibility))
    return words + _weather(o) + _cloud(o, style, False)


def forecast(icao, observe, issue, first_hour, hours, style_name, chance):
    """The lines of a TAF; observe(hour) gives the weather expected at an hour of the day."""
    style = STYLES[style_name]
    day = int(issue[:2])
    last_hour = (first_hour + hours) % 24
    head = [icao, f"{issue}Z", f"{day:02d}{first_hour:02d}{last_hour:02d}"]
    state = observe(first_hour)
    lines = [head + _forecast_state(state, style, state.wind_knots >= 14)]
    told = set()
    hour = first_hour + 3
    while hour < first_hour + hours - 1:
        later = observe(hour)
        if _differs(state, later):
            if style.miles:
                lines.append([f"FM{hour % 24:02d}00", *_forecast_state(later, style, False)])
                state = later
            elif later.weather and later.weather != state.weather:
                if later.weather not in told:
                    lines.append(_passing_weather(later, hour, first_hour + hours, style, chance))
                told.add(later.weather)
            else:
                period = f"{hour % 24:02d}{(hour + 2) % 24:02d}"
                changed = _forecast_state(later, style, False)
                if state.weather and not later.weather and "CAVOK" not in changed:
                    changed.insert(2, "NSW")
                lines.append(["BECMG", period, *changed])
                state = later
        hour += 3
    if style_name in ("russia", "plain") and chance.random() < 0.5:
        warmest = max((observe(h).temperature, h) for h in range(first_hour, first_hour + hours, 3))
        text = _temperature(warmest[0])
        lines[-1].append(f"T{text}/{warmest[1] % 24:02d}Z")
    return lines[:6]
