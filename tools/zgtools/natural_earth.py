"""The layers of a map, taken from Natural Earth 1:10 million.

Each function gives lines or rings of (longitude, latitude) in degrees.
"""

from zgtools.lines import area_km2, cut_at_frame
from zgtools.shapefile import read_attributes, read_shapes

CONTINENT_KM2 = 400_000  # from Madagascar and Sumatra upwards a coast is none of an island

# Limits on the ground that are no border: zones between two lines of a truce, leased land.
NO_BORDERS = ("Overlay limit", "Lease limit")

# Countries whose first division a forecaster speaks of, mostly federations.
WITH_STATES = frozenset(
    "ARG AUS AUT BRA CAN CHE CHN DEU ETH IND MEX MYS NGA PAK RUS USA VEN ZAF".split()
)
# Countries whose divisions are too many for a map, but stand together in regions.
# The United Kingdom is missing: the source has its counties, and no line for England and Scotland.
WITH_REGIONS = frozenset("BEL ESP FRA ITA".split())


def _records(sources, name):
    path = sources.vectors(name)
    return zip(read_attributes(path), read_shapes(path))


def _is_sea(attributes):
    return attributes["featurecla"] == "Ocean"


def _is_caspian(ring):
    return all(45 < lon < 56 and 35 < lat < 48 for lon, lat in ring)


def read_coasts(sources):
    """(coasts of the continents, islands, lakes); the Caspian Sea is a lake."""
    coasts, islands, lakes = [], [], []
    for attributes, rings in _records(sources, "ne_10m_ocean"):
        for ring in rings:
            lines = cut_at_frame(ring)
            if not _is_sea(attributes) or _is_caspian(ring):
                lakes.append(ring)
            elif lines != [ring] or area_km2(ring) > CONTINENT_KM2:
                coasts += lines
            else:
                islands.append(ring)
    return coasts, islands, lakes


def read_land(sources):
    """Rings of the land, the Caspian Sea being part of it."""
    return [ring for _, rings in _records(sources, "ne_10m_land") for ring in rings]


def read_lakes(sources):
    return read_coasts(sources)[2]


def read_countries(sources):
    records = _records(sources, "ne_10m_admin_0_boundary_lines_land")
    return [
        line
        for attributes, lines in records
        if not attributes["featurecla"].startswith(NO_BORDERS)
        for line in lines
    ]


def _has_state_line(attributes):
    # A line of states has a kind of its own where statistical regions end at it too.
    country, kind = attributes["adm0_a3"], attributes["featurecla"]
    return country in WITH_STATES or (
        country in WITH_REGIONS and kind == "Admin-1 region boundary"
    )


def read_states(sources, countries=None):
    """Lines between states and regions, of all countries that have some or of those named."""
    return [
        line
        for attributes, lines in _records(sources, "ne_10m_admin_1_states_provinces_lines")
        if _has_state_line(attributes) and (not countries or attributes["adm0_a3"] in countries)
        for line in lines
    ]


def read_rivers(sources, smallest_rank=12):
    """(rank, line) of each river up to a rank, 0 being the greatest, without ways through lakes."""
    rivers = []
    for attributes, lines in _records(sources, "ne_10m_rivers_lake_centerlines"):
        rank = float(attributes["scalerank"])
        if attributes["featurecla"] == "River" and rank <= smallest_rank:
            rivers += [(rank, line) for line in lines]
    return rivers
