-- Schema of "ICAOData.mdb" (SQLite 3). The build makes the shipped database from this file and fills
-- ShipCountry from ship_country.csv; the program itself creates no table and no index.

PRAGMA user_version = 1;

-- One row a station, filled from the two station lists at the first start, then read only.
-- No unique key: a station that stands in both lists has a row from each.
CREATE TABLE MeteoStations (
    Country     TEXT,     -- country name as in the station list, at most 50 characters
    IcaoName    TEXT,     -- ICAO location indicator, four characters, or empty
    SensorHT    REAL,     -- metres, height of the upper-air sensor; NULL where there is none
    SensorLat   TEXT,     -- "DD.MMX" with X as N or S, or empty
    SensorLong  TEXT,     -- "DDD.MMX" with X as E or W, or empty
    State       TEXT,     -- two-letter state or province code, often empty
    Station     TEXT,     -- place name, at most 75 characters
    StationHT   REAL,     -- metres, height of the station; NULL where unknown
    StationLat  TEXT,     -- as SensorLat
    StationLong TEXT,     -- as SensorLong
    WMOIndex    INTEGER,  -- block times 1000 plus station number; -1 for a station without one
    WMORegion   TEXT      -- WMO region, "1" to "7", or empty
);

CREATE INDEX MeteoStationsByWMOIndex ON MeteoStations (WMOIndex);
CREATE INDEX MeteoStationsByStation ON MeteoStations (Station);
CREATE INDEX MeteoStationsByIcaoName ON MeteoStations (IcaoName);
CREATE INDEX MeteoStationsByCountry ON MeteoStations (Country);

-- One row a range of radio call signs, read only. A range ends where the next one starts; an empty
-- country marks a series that is allocated to nobody.
CREATE TABLE ShipCountry (
    StartIndex INTEGER NOT NULL,  -- third letter code + 256 * second + 65536 * first of the call sign
    Country    TEXT NOT NULL
);

CREATE INDEX ShipCountryByStartIndex ON ShipCountry (StartIndex);

-- The points of the frontal analysis that was decoded last.
CREATE TABLE Fronts (
    Type     INTEGER,  -- kind of front or pressure system
    RecNum   INTEGER,  -- running number of the point, from 10000: the drawing order
    Validity TEXT,     -- validity group, six characters
    MsgTime  TEXT,     -- time of the bulletin
    Pressure TEXT,     -- central pressure of a high or low, hPa
    Lat      TEXT,     -- latitude in whole degrees, two digits
    "Long"   TEXT      -- longitude in whole degrees, two or three digits
);

-- The address book of the downloads.
CREATE TABLE URLAddress (
    "Index" INTEGER,  -- position in the list, from 0
    Url     TEXT
);
