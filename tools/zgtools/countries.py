"""Country names by ISO 3166 code, and the countries of stations at sea or overseas."""

import json

from zgtools.names import to_ascii

# Names that differ from those of the airport tables: short, plain, and without a comma, since the
# country filter keeps its names in one text that is divided by commas.
_NAMES = {
    "AQ": "Antarctica",
    "CI": "Ivory Coast",
    "CZ": "Czech Republic",
    "HM": "Heard and McDonald Islands",
    "MM": "Myanmar",
    "PN": "Pitcairn Islands",
    "SH": "Saint Helena",
    "ST": "Sao Tome and Principe",
    "SZ": "Swaziland",
    "TF": "French Southern and Antarctic Lands",
    "TR": "Turkey",
}

# Names as the polygons spell them.
_POLYGON_CODES = {
    "Akrotiri": "CY", "Antigua and Barb.": "AG", "Ashmore and Cartier Is.": "AU", "Baikonur": "KZ",
    "Bajo Nuevo Bank": "CO", "Bosnia and Herz.": "BA", "Br. Indian Ocean Ter.": "IO",
    "British Virgin Is.": "VG", "Cabo Verde": "CV", "Cayman Is.": "KY",
    "Central African Rep.": "CF", "Clipperton I.": "PF", "Congo": "CG", "Cook Is.": "CK",
    "Coral Sea Is.": "AU", "Curaçao": "CW", "Cyprus U.N. Buffer Zone": "CY", "Czechia": "CZ",
    "Côte d'Ivoire": "CI", "Dem. Rep. Congo": "CD", "Dhekelia": "CY", "Dominican Rep.": "DO",
    "Eq. Guinea": "GQ", "Faeroe Is.": "FO", "Falkland Is.": "FK", "Fr. Polynesia": "PF",
    "Fr. S. Antarctic Lands": "TF", "Heard I. and McDonald Is.": "HM", "Indian Ocean Ter.": "AU",
    "Macao": "MO", "Macedonia": "MK", "Marshall Is.": "MH", "N. Cyprus": "CY",
    "N. Mariana Is.": "MP", "Palestine": "PS", "Pitcairn Is.": "PN", "S. Geo. and the Is.": "GS",
    "S. Sudan": "SS", "Saint Helena": "SH", "Scarborough Reef": "PH", "Serranilla Bank": "CO",
    "Siachen Glacier": "IN", "Solomon Is.": "SB", "Somaliland": "SO", "Spratly Is.": "VN",
    "St-Barthélemy": "BL", "St-Martin": "MF", "St. Kitts and Nevis": "KN",
    "St. Pierre and Miquelon": "PM", "St. Vin. and Gren.": "VC", "São Tomé and Principe": "ST",
    "Turks and Caicos Is.": "TC", "U.S. Minor Outlying Is.": "UM", "U.S. Virgin Is.": "VI",
    "USNB Guantanamo Bay": "US", "United States of America": "US", "Vatican": "VA",
    "W. Sahara": "EH", "Wallis and Futuna Is.": "WF", "eSwatini": "SZ", "Åland": "FI",
}  # fmt: skip

# Ranges of WMO index that belong to one country, where the polygons say something else: a part of
# the mother country, an island that they leave out, a platform at sea, a disputed area.
_INDEX_RANGES = (
    (1001, 1499, "NO"),
    (2701, 2999, "FI"),
    (6200, 6399, "NL"),
    (33901, 33999, "UA"),
    (40001, 40095, "SY"),
    (48800, 48919, "VN"),
    (59981, 59997, "CN"),
    (60001, 60040, "ES"),
    (61968, 61968, "TF"),
    (61970, 61985, "RE"),
    (61986, 61995, "MU"),
    (61996, 61998, "TF"),
    (67005, 67007, "YT"),
    (78890, 78893, "GP"),
    (78896, 78905, "GP"),
    (78920, 78929, "MQ"),
    (81400, 81418, "GF"),
    (91315, 91319, "FM"),
    (91354, 91354, "MH"),
    (91574, 91574, "NC"),
    (91720, 91724, "TK"),
    (91819, 91821, "CK"),
    (91823, 91824, "CK"),
    (91826, 91849, "CK"),
    (91900, 91959, "PF"),
    (91960, 91960, "PN"),
    (91997, 91997, "NZ"),
    (94293, 94299, "AU"),
)

# The names of the states of a federation that stations carry a code of.
US_STATES = dict(
    pair.split(":")
    for pair in (
        "Alabama:AL,Alaska:AK,Arizona:AZ,Arkansas:AR,California:CA,Colorado:CO,Connecticut:CT,"
        "Delaware:DE,District of Columbia:DC,Florida:FL,Georgia:GA,Hawaii:HI,Idaho:ID,Illinois:IL,"
        "Indiana:IN,Iowa:IA,Kansas:KS,Kentucky:KY,Louisiana:LA,Maine:ME,Maryland:MD,"
        "Massachusetts:MA,Michigan:MI,Minnesota:MN,Mississippi:MS,Missouri:MO,Montana:MT,"
        "Nebraska:NE,Nevada:NV,New Hampshire:NH,New Jersey:NJ,New Mexico:NM,New York:NY,"
        "North Carolina:NC,North Dakota:ND,Ohio:OH,Oklahoma:OK,Oregon:OR,Pennsylvania:PA,"
        "Rhode Island:RI,South Carolina:SC,South Dakota:SD,Tennessee:TN,Texas:TX,Utah:UT,"
        "Vermont:VT,Virginia:VA,Washington:WA,West Virginia:WV,Wisconsin:WI,Wyoming:WY"
    ).split(",")
)
# As they stand behind the names of Canadian stations, without points and blanks.
CANADIAN_PROVINCES = {
    "ALTA": "AB", "AB": "AB", "BC": "BC", "MAN": "MB", "MB": "MB", "NB": "NB", "NFLD": "NL",
    "NL": "NL", "NS": "NS", "NU": "NU", "NWT": "NT", "NT": "NT", "ONT": "ON", "ON": "ON",
    "PEI": "PE", "QUE": "QC", "QC": "QC", "SASK": "SK", "SK": "SK", "YT": "YT",
}  # fmt: skip


class Countries:
    """Country names by ISO code, and ISO codes by name and by polygon name."""

    def __init__(self, country_codes_path):
        rows = json.loads(country_codes_path.read_text(encoding="utf-8"))
        self._name = {row["code"]: row["name"] for row in rows if row["code"] != "ZZ"} | _NAMES
        self._code = {name: code for code, name in self._name.items()}

    def name(self, code):
        """Plain English name in ASCII; empty for an unknown code."""
        return to_ascii(self._name.get(code, ""))

    def code(self, name):
        """ISO code of a country, given by name, by code, or in the spelling of the polygons."""
        if name in self._name:
            return name
        return _POLYGON_CODES.get(name) or self._code.get(name)

    def code_of_station(self, wmo_index, lat, polygon_name):
        """ISO code of the country that a synoptic station stands in."""
        if 89000 <= wmo_index <= 89999 and lat < -59:
            return "AQ"
        for first, last, code in _INDEX_RANGES:
            if first <= wmo_index <= last:
                return code
        return self.code(polygon_name)


def wmo_region(wmo_index):
    """WMO region, 1 to 7, of an index number, as the regions share out the blocks."""
    block = wmo_index // 1000
    if 60 <= block <= 69 or wmo_index in (8521, 8522, 8524):  # Madeira lies in Region I
        return 1
    if 70 <= block <= 79:
        return 4
    if 80 <= block <= 88:
        return 3
    if block == 89:
        return 7
    if 91 <= block <= 98:
        return 5
    if block == 40:
        return 6 if wmo_index <= 40310 else 2
    if block <= 17 or block in (22, 26, 27, 33, 34, 37):
        return 6
    if block == 20:
        return 6 if wmo_index < 20200 else 2
    return 2
