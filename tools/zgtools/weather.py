"""A made-up but coherent state of the weather, for sample bulletins.

The world on 15 November of some year: highs and lows that move give a pressure field; wind follows
from its gradient, cloud and rain from the lows and from a smooth field of moisture, temperature
from season, hour, height and the wind. Everything is a smooth function of place and time, so that
neighbouring stations agree and a tendency of pressure is what the field really did. What differs
from station to station by chance is drawn from a generator seeded with the station's name.
"""

import math
import random
from dataclasses import dataclass, field

KM_PER_DEGREE = 111.2
GRAVITY_OVER_GAS = 0.0341632  # g / R of dry air, kelvin per metre
LAPSE = 0.0065  # kelvin per metre
KNOTS = 1.943844  # per metre a second
FEET = 3.28084  # per metre
SUN_DECLINATION = -18.5  # degrees, mid November

# Sea-level pressure and temperature by latitude, without the systems below.
_ZONAL_PRESSURE = ((-90, 990), (-75, 986), (-62, 988), (-48, 1006), (-33, 1018), (-15, 1012),
                   (0, 1010), (15, 1012), (32, 1019), (45, 1016), (60, 1008), (75, 1011),
                   (90, 1014))  # fmt: skip
_ZONAL_TEMPERATURE = ((-90, -35), (-75, -14), (-60, 0), (-45, 11), (-30, 20), (-15, 26), (0, 27),
                      (15, 27), (25, 23), (35, 17), (45, 9), (52, 5), (60, 0), (70, -9), (80, -19),
                      (90, -26))  # fmt: skip

# Name for the reader, latitude, longitude at 12 UTC, centre in hPa, radius in km, drift in degrees
# of latitude and longitude an hour.
_SYSTEMS = (
    ("Iceland low", 61, -24, -34, 1150, 0.05, 0.35),
    ("Baltic low", 58, 21, -17, 750, -0.05, 0.40),
    ("Genoa low", 43.6, 9.0, -13, 520, -0.10, 0.25),
    ("Azores high", 37, -30, 13, 1500, 0.0, 0.05),
    ("Cyprus low", 35, 33, -6, 600, 0.0, 0.2),
    ("Siberian high", 49, 93, 22, 2000, 0.0, 0.03),
    ("Ural low", 61, 58, -9, 900, 0.0, 0.3),
    ("Kamchatka low", 54, 160, -22, 900, 0.1, 0.3),
    ("Japan high", 36, 133, 6, 700, 0.0, 0.4),
    ("Aleutian low", 54, -172, -26, 1200, 0.0, 0.3),
    ("Alaska low", 57, -143, -17, 800, 0.1, 0.2),
    ("Great Basin high", 41, -114, 11, 900, 0.0, 0.15),
    ("Great Lakes low", 45.5, -86, -19, 850, 0.1, 0.5),
    ("Carolina high", 33, -77, 8, 800, 0.0, 0.4),
    ("Labrador high", 57, -66, 9, 800, 0.0, 0.3),
    ("Tasman low", -43, 152, -13, 900, 0.0, 0.5),
    ("Bight high", -35, 128, 9, 1000, 0.0, 0.3),
    ("Patagonia low", -47, -64, -14, 900, 0.0, 0.5),
    ("Plate high", -33, -56, 5, 700, 0.0, 0.3),
    ("Atlantic high", -30, -12, 7, 1500, 0.0, 0.05),
    ("Mascarene high", -33, 78, 8, 1800, 0.0, 0.1),
    ("Cape front", -38, 16, -7, 600, 0.0, 0.5),
)
# Latitude, longitude, degrees Celsius, radius in km: seas and continents against the zonal mean.
_TEMPERATURE_SPOTS = (
    (52, 0, 5, 1300), (65, 8, 7, 900), (64, -20, 4, 600), (62, 112, -21, 1900), (52, 65, -5, 1200),
    (45, 115, -8, 1000), (41, 127, -5, 700), (65, -150, -10, 900), (62, -100, -11, 1300),
    (48, -100, -4, 1000), (42, -124, 4, 600), (72, -40, -11, 900), (22, 47, 4, 900),
    (-25, 134, 6, 1200), (-22, 22, 2, 900), (38, 15, 2, 700), (20, 5, 1, 1200), (-15, -76, -5, 700),
    (-22, 12, -5, 600),
)  # fmt: skip
# Latitude, longitude, moisture lost, radius in km.
_DESERTS = ((24, 5, 0.45, 1600), (22, 30, 0.45, 1100), (24, 47, 0.4, 1000), (40, 62, 0.2, 900),
            (41, 95, 0.3, 1200), (-25, 132, 0.3, 1300), (-23, 16, 0.35, 700), (-22, -70, 0.4, 500),
            (36, -114, 0.25, 700), (31, -110, 0.25, 700))  # fmt: skip
# Latitude, longitude, radius in km: basins where the air stands in a high or a slack field.
_FOG_BASINS = ((45.2, 9.9, 170), (45.3, 12.0, 110), (47.6, 8.6, 90), (48.4, 12.5, 110),
               (47.3, 19.2, 110), (44.6, 20.6, 90), (37.3, -120.5, 200), (26.8, 78.5, 350),
               (51.6, -1.2, 80))  # fmt: skip


# Limits of visibility in metres by the first key that the weather's code holds.
_VISIBILITY = (
    ("VCSH", (12000, 30000)),
    ("BR", (1500, 5000)),
    ("HZ", (3500, 5000)),
    ("DZ", (3000, 7000)),
    ("+RA", (2500, 5000)),
    ("+TS", (2500, 5000)),
    ("+S", (500, 1400)),
    ("-SN", (3500, 7000)),
    ("SN", (1200, 3000)),
    ("-RA", (7000, 18000)),
    ("-SH", (9000, 25000)),
    ("RA", (4000, 9000)),
)


@dataclass
class Layer:
    oktas: int
    genus: int  # code table 0500: 0 Ci, 3 Ac, 4 As, 5 Ns, 6 Sc, 7 St, 8 Cu, 9 Cb
    base: int  # feet above ground
    towering: bool = False


@dataclass
class Observation:
    temperature: float  # degrees Celsius
    dewpoint: float
    sea_pressure: float  # hPa
    station_pressure: float
    qnh: float
    history: tuple  # station pressure 3 h, 1.5 h ago and now
    wind_dir: int  # degrees, 0 for calm
    wind_knots: int
    gust_knots: int  # 0 for none
    variable: bool
    visibility: int  # metres
    weather: str  # METAR code, or empty
    cloud: int  # total amount in oktas, 9 for a sky that cannot be seen
    layers: list = field(default_factory=list)
    rain: float = 0.0  # millimetres in six hours
    wetness: float = 0.0
    snow_cm: int = 0


def _curve(table, x):
    """A smooth curve through the points of a table (Catmull-Rom)."""
    x = min(max(x, table[0][0]), table[-1][0])
    place = next(i for i in range(len(table) - 1) if x <= table[i + 1][0])
    (x0, y0), (x1, y1) = table[place], table[place + 1]
    before = table[max(place - 1, 0)]
    behind = table[min(place + 2, len(table) - 1)]
    slope0 = (y1 - before[1]) / (x1 - before[0]) * (x1 - x0)
    slope1 = (behind[1] - y0) / (behind[0] - x0) * (x1 - x0)
    t = (x - x0) / (x1 - x0)
    return (
        y0 * (2 * t**3 - 3 * t**2 + 1)
        + slope0 * (t**3 - 2 * t**2 + t)
        + y1 * (3 * t**2 - 2 * t**3)
        + slope1 * (t**3 - t**2)
    )


def _distance(lat1, lon1, lat2, lon2):
    """Great-circle distance in kilometres."""
    a, b = math.radians(lat1), math.radians(lat2)
    d = math.radians(lon1 - lon2)
    cosine = math.sin(a) * math.sin(b) + math.cos(a) * math.cos(b) * math.cos(d)
    return KM_PER_DEGREE * math.degrees(math.acos(min(1.0, max(-1.0, cosine))))


def _spots(table, lat, lon):
    return sum(
        size * math.exp(-((_distance(lat, lon, at, on) / radius) ** 2))
        for at, on, size, radius in table
    )


def _moisture_noise(lat, lon, hour):
    """Smooth variation between -1 and 1, some 1500 km from crest to crest, moving east."""
    x = math.radians(lon - 0.4 * hour)
    y = math.radians(lat)
    return (
        0.45 * math.sin(9 * x + 5 * y + 0.7)
        + 0.35 * math.sin(15 * x - 11 * y + 2.1)
        + 0.20 * math.sin(31 * x + 23 * y + 4.0)
    )


def anomaly(lat, lon, hour):
    """What the highs and lows add to the pressure, hPa. Hour is UTC on the 15th."""
    total = 0.0
    for _, at, on, size, radius, north, east in _SYSTEMS:
        moved = hour - 12
        away = _distance(lat, lon, at + north * moved, on + east * moved)
        total += size * math.exp(-((away / radius) ** 2))
    return total


def sea_pressure(lat, lon, hour):
    # The tide of the air: highest at 10 and 22 hours of sun time, strong in the tropics.
    tide = 1.1 * math.cos(math.radians(lat)) ** 3
    tide *= math.cos(4 * math.pi * ((hour + lon / 15) - 10) / 24)
    return _curve(_ZONAL_PRESSURE, lat) + tide + anomaly(lat, lon, hour)


def centres(hour):
    """Name, latitude, longitude and pressure in hPa of each high and low."""
    for name, at, on, _, _, north, east in _SYSTEMS:
        lat, lon = at + north * (hour - 12), on + east * (hour - 12)
        yield name, lat, lon, sea_pressure(lat, lon, hour)


def _free_wind(lat, lon, hour):
    """Wind from the pressure gradient, east and north component in metres a second."""
    step = 1.0
    north = sea_pressure(min(lat + step, 89), lon, hour) - sea_pressure(lat - step, lon, hour)
    narrowing = max(0.15, math.cos(math.radians(lat)))
    east = sea_pressure(lat, lon + step, hour) - sea_pressure(lat, lon - step, hour)
    per_metre = 100 / (2 * step * KM_PER_DEGREE * 1000)
    # Near the equator the balance fails: keep the force of 15 degrees, and let the trades blow.
    turning = 1.458e-4 * math.sin(math.radians(max(abs(lat), 15))) * (1 if lat >= 0 else -1)
    u = -north * per_metre / (1.2 * turning)
    v = east / narrowing * per_metre / (1.2 * turning)
    trades = math.exp(-((abs(lat) / 14) ** 4))
    return u * (1 - trades) - 4 * trades, v * (1 - trades) - (2 if lat > 5 else -2) * trades


class Weather:
    """The weather at stations; a seed makes another draw of what differs by chance."""

    def __init__(self, seed):
        self._seed = seed

    def chance(self, name):
        """The random generator of a station: the same at every hour and in every bulletin."""
        return random.Random(f"{self._seed}/{name}")

    def observe(self, name, lat, lon, height, hour, sea=False):
        """What is observed at a place at an hour UTC of the 15th; height in metres."""
        chance = self.chance(name)
        pressure = sea_pressure(lat, lon, hour)
        low = anomaly(lat, lon, hour)
        u, v = _free_wind(lat, lon, hour)
        tropics = math.exp(-((lat / 13) ** 2))
        wet = 0.40 - low / 34 + 0.24 * _moisture_noise(lat, lon, hour) + 0.30 * tropics
        wet -= _spots(_DESERTS, lat, lon)
        wet = min(1.1, max(0.0, wet + chance.uniform(-0.05, 0.05)))
        cloud = round(8 / (1 + math.exp(-7 * (wet - 0.46))) + chance.uniform(-0.7, 0.7))
        cloud = min(8, max(0, cloud))

        wind_dir, knots, gust = self._surface_wind(chance, u, v, lat, sea, height)
        temperature = self._temperature(chance, lat, lon, height, hour, v, cloud, sea)
        fog = self._fog(chance, lat, lon, knots, wet, hour)
        rain = max(0.0, (wet - 0.70) * 30) if not fog else 0.0
        if fog:
            temperature -= 3  # the sun has not reached the ground
        elif rain > 0 and temperature > 20:
            temperature -= 2.5
        humidity = 50 + 42 * min(1.0, wet) + (12 if sea else 0) - 0.5 * max(0, temperature - 15)
        humidity = 99 if fog else min(97, max(14, humidity + chance.uniform(-4, 4)))
        if rain > 0:
            humidity = max(humidity, 84 + chance.uniform(0, 8))
        if knots <= 3 and not fog and 2 <= self._sun_hour(lon, hour) <= 8:
            humidity = min(96, humidity + 8)
        dewpoint = min(temperature, 25.4, _dewpoint(temperature, humidity))

        cold_air = v * (1 if lat >= 0 else -1) < -3
        showers = tropics > 0.4 or (cold_air and 0.55 < wet < 0.85)
        weather = self._weather(chance, wet, rain, temperature, dewpoint, showers, tropics, fog)
        visibility = self._visibility(chance, weather, humidity, knots)
        layers = self._layers(chance, cloud, wet, temperature - dewpoint, showers, weather)
        if weather in ("", "HZ", "BR", "BCFG") or not layers:
            weather = weather if visibility <= 8000 else ""
        if weather in ("FG", "FZFG"):
            total, layers = 9, []
        else:
            total = _total_amount(layers, cloud)

        history = tuple(
            _at_height(sea_pressure(lat, lon, hour - back), temperature, height)
            for back in (3, 1.5, 0)
        )
        return Observation(
            temperature=temperature,
            dewpoint=dewpoint,
            sea_pressure=pressure,
            station_pressure=history[-1],
            qnh=_qnh(history[-1], height),
            history=history,
            wind_dir=wind_dir,
            wind_knots=knots,
            gust_knots=gust,
            variable=0 < knots <= 3,
            visibility=visibility,
            weather=weather,
            cloud=total,
            layers=layers,
            rain=rain if weather and not weather.startswith("VC") else 0.0,
            wetness=wet,
            snow_cm=max(0, round((-2 - temperature) * (0.5 + wet))) if abs(lat) > 44 else 0,
        )

    @staticmethod
    def _sun_hour(lon, hour):
        return (hour + lon / 15) % 24

    def _surface_wind(self, chance, u, v, lat, sea, height):
        factor, inflow = (0.72, 14) if sea else (0.45, 28)
        if height > 1500:
            factor *= 0.7
        speed = math.hypot(u, v) * factor * chance.uniform(0.8, 1.15)
        turn = -inflow if lat >= 0 else inflow  # towards low pressure
        direction = math.degrees(math.atan2(-u, -v)) + turn + chance.uniform(-12, 12)
        knots = round(min(speed * KNOTS, 48 if sea else 38))
        if knots < 1:
            return 0, 0, 0
        gust = 0
        if knots >= 14 and chance.random() < 0.6:
            gust = knots + max(10, round(knots * chance.uniform(0.4, 0.6)))
        return (round(direction / 10) * 10) % 360 or 360, knots, gust

    def _temperature(self, chance, lat, lon, height, hour, v, cloud, sea):
        value = _curve(_ZONAL_TEMPERATURE, lat) + _spots(_TEMPERATURE_SPOTS, lat, lon)
        value += max(-5, min(5, 0.45 * v * (1 if lat >= 0 else -1)))
        value -= height * LAPSE * (0.8 if height > 2000 else 1.0)
        noon = max(0.05, math.cos(math.radians(lat - SUN_DECLINATION)))
        swing = 0.5 if sea else 5.5 * noon * (1 - 0.08 * cloud)
        value += swing * math.cos(2 * math.pi * (self._sun_hour(lon, hour) - 14.5) / 24)
        return value + chance.uniform(-0.8, 0.8)

    def _fog(self, chance, lat, lon, knots, wet, hour):
        in_basin = any(_distance(lat, lon, at, on) < radius for at, on, radius in _FOG_BASINS)
        still = knots <= 7 and 0.2 < wet < 0.72
        morning = self._sun_hour(lon, hour) < 13.5
        return in_basin and still and morning and chance.random() < 0.85

    def _weather(self, chance, wet, rain, temperature, dewpoint, showers, tropics, fog):
        if fog:
            return "FZFG" if temperature < -0.5 else "FG"
        spread = temperature - dewpoint
        if rain <= 0:
            if tropics > 0.5 and wet > 0.62 and chance.random() < 0.25:
                return "VCSH"
            if spread < 2.2 and temperature < 20:
                return "BR"
            if spread > 12 and temperature > 24 and chance.random() < 0.5:
                return "HZ"
            return ""
        force = "-" if rain < 5.5 else "" if rain < 10 else "+"
        if chance.random() < 0.25:
            return "BR" if spread < 2.5 and temperature < 20 else ""  # between two bands of rain
        if showers:
            thunder = chance.random() < (0.5 if tropics > 0.4 else 0.12)
            if thunder and temperature > 8:
                return f"{force}TSRA"
            kind = "RA" if temperature > 2.0 else "SN" if temperature < 0.5 else "RASN"
            return f"{force}SH{kind}"
        if temperature < 0.4:
            return f"{force}SN"
        if temperature < 1.8:
            return f"{force}RASN"
        if force == "-" and spread < 1.5 and chance.random() < 0.35:
            return "-DZ"
        return f"{force}RA"

    def _visibility(self, chance, weather, humidity, knots):
        if weather in ("FG", "FZFG"):
            return round(chance.triangular(80, 950, 350) / 50) * 50
        low, high = (20000, 45000) if humidity < 75 else (12000, 35000)
        for key, limits in _VISIBILITY:
            if key in weather:
                low, high = limits
                if key == "BR" and knots > 5:
                    low = 3000  # wind lifts mist
                break
        else:
            if humidity > 88:
                low, high = 6000, 14000
        metres = chance.uniform(low, high)
        return round(metres / 100) * 100 if metres < 5000 else round(metres / 1000) * 1000

    def _layers(self, chance, cloud, wet, spread, showers, weather):
        if weather in ("FG", "FZFG"):
            return []
        convective_base = max(800, round(spread * 400 * chance.uniform(0.9, 1.1) / 100) * 100)
        layers = []
        if "TS" in weather or "SH" in weather or (showers and cloud >= 2):
            thunder = "TS" in weather
            genus = 9 if thunder or weather.startswith("+SH") else 8
            towering = genus == 8 and ("SH" in weather or chance.random() < 0.3)
            base = min(5000, max(1000, convective_base))
            if genus == 9 or towering:
                layers.append(Layer(min(3, max(1, cloud // 3)), genus, base, towering))
                if cloud >= 4:
                    layers.append(Layer(max(3, cloud // 2), 8, base + 500))
            else:
                layers.append(Layer(min(5, cloud), genus, base))
            if cloud >= 5:
                layers.append(Layer(cloud, 6 if cloud < 7 else 3, base + 3000))
        elif weather:
            base = {"-DZ": 600, "BR": 1200}.get(weather, 1500)
            base = max(200, round(base * chance.uniform(0.6, 1.6) / 100) * 100)
            if cloud >= 2:
                layers.append(Layer(min(3, cloud), 7, base))
            if cloud >= 4:
                layers.append(Layer(max(4, min(cloud, 6)), 6, base + 1500))
            if cloud >= 7:
                genus = 5 if "RA" in weather or "SN" in weather else 3
                layers.append(Layer(8 if genus == 5 else cloud, genus, base + 5500))
        elif cloud:
            day = convective_base <= 5500
            base = convective_base if day else 3500
            base = max(1200, round(base * chance.uniform(0.9, 1.2) / 100) * 100)
            if wet > 0.36 or chance.random() < 0.4:
                layers.append(Layer(max(1, min(cloud, 5)), 8 if day and cloud < 6 else 6, base))
            if cloud >= 4:
                layers.append(Layer(min(7, cloud), 3, 9000 + 500 * chance.randrange(6)))
            if cloud <= 3 and not layers or chance.random() < 0.25 and cloud >= 3:
                layers.append(Layer(max(1, cloud), 0, 22000 + 1000 * chance.randrange(6)))
        return sorted(layers, key=lambda layer: layer.base)[:3]


def _total_amount(layers, cloud):
    """Total amount: no layer shows more, and no layer leaves nothing."""
    return max(cloud, max(layer.oktas for layer in layers)) if layers else 0


def _dewpoint(temperature, humidity):
    """Dewpoint over water by the Magnus formula, degrees Celsius."""
    gamma = math.log(humidity / 100) + 17.62 * temperature / (243.12 + temperature)
    return 243.12 * gamma / (17.62 - gamma)


def _at_height(pressure, temperature, height):
    """Pressure at a height, hPa, for a column with the station's temperature at its top."""
    mean = temperature + 273.15 + LAPSE * height / 2
    return pressure * math.exp(-GRAVITY_OVER_GAS * height / mean)


def _qnh(station_pressure, height):
    """Pressure reduced to sea level in the standard atmosphere (ICAO Doc 7488)."""
    return (station_pressure**0.190263 + 8.417286e-5 * height) ** (1 / 0.190263)


def height_of(surface, observation, station_height):
    """Height of a pressure surface above sea level in metres, from a station below or near it."""
    mean = observation.temperature + 273.15
    for _ in range(3):
        top = math.log(observation.station_pressure / surface) * mean / GRAVITY_OVER_GAS
        mean = observation.temperature + 273.15 - LAPSE * top / 2
    return station_height + top


def tendency(history):
    """Characteristic of pressure change (code table 0200) and its amount in tenths of hPa."""
    before, middle, now = history
    amount = round((now - before) * 10)
    first, second = middle - before, now - middle
    if amount == 0:
        code = 4 if abs(first) < 0.15 else 0 if first > 0 else 5
    elif amount > 0:
        if second < -0.05:
            code = 0
        elif first < -0.05:
            code = 3
        else:
            code = 1 if second < first - 0.3 else 3 if second > first + 0.3 else 2
    elif second > 0.05:
        code = 5
    elif first > 0.05:
        code = 8
    else:
        code = 6 if second > first + 0.3 else 8 if second < first - 0.3 else 7
    return code, abs(amount)
