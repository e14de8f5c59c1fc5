"""Place names for the station lists: ASCII, in mixed case, without quotes or field separators."""

import html
import re
import unicodedata
from collections import defaultdict

MAX_NAME = 75  # characters that the station table keeps

_LETTERS = str.maketrans({
    "ø": "o", "Ø": "O", "ß": "ss", "æ": "ae", "Æ": "Ae", "œ": "oe", "Œ": "Oe", "ł": "l", "Ł": "L",
    "ı": "i", "đ": "d", "Đ": "D", "þ": "th", "Þ": "Th", "ð": "d", "Ð": "D", "’": "'", "‘": "'",
    "´": "'", "`": "'", "–": "-", "—": "-", "ə": "e",
})  # fmt: skip

# Short words of place names that are written small unless they come first.
_SMALL = set(
    "am an and at auf bei by da das de dei del della der des di do dos du en et im in les of on"
    " sous sul sur the und upon".split()
)
# Words that stay in capitals.
_CAPITALS = set(
    "AAF AB ACT AF AFB AFS AGCM AGDM AMO ARB AWOS AWS BAPS CDA CFB CS II III IV IX KLIA LGB LH MCAS"
    " MET NAAS NAF NAS NOAA NSW NW NE RAF RCS RNAS SE SW UA US USAF VI VII VIII VOR XII".split()
)
_ELISIONS = "all|c|d|dall|dell|nell|l|qu|sant|sull|un"


def to_ascii(text):
    """The text in plain ASCII, runs of blanks made one."""
    decomposed = unicodedata.normalize("NFKD", text.translate(_LETTERS))
    plain = decomposed.encode("ascii", "ignore").decode("ascii")
    return re.sub(r"\s+", " ", plain).strip()


def clean_name(text):
    """A name as the lists can hold it: a quote would break look-ups by name, "]" marks a ship."""
    text = to_ascii(html.unescape(text.replace("&amp", "&").replace("&;", "&")))
    text = re.sub(r"&?#39;? ?", "'", text)
    text = re.sub(rf"\b({_ELISIONS})'(?=[A-Za-z]{{2}})", r"\1 ", text, flags=re.IGNORECASE)
    # "Lee'S" and "Sheremet'Ye" are one word each, "O'Higgins" keeps its second capital.
    text = re.sub(
        r"(?<=[a-z])['\"]([A-Z])(?=[a-z ]|$)", lambda match: match.group(1).lower(), text
    )
    text = re.sub(r"['\"]", "", text)
    text = re.sub(r"[;_:*]", " ", text).replace("\\", "/").replace("[", "(").replace("]", ")")
    text = re.sub(r"\(\s+", "(", text)
    text = re.sub(r"\s*/\s*", "/", text)
    if text.count("(") != text.count(")"):
        text = re.sub(r"[()]", " ", text)
    text = re.sub(r"\s+([,)])", r"\1", text)
    text = re.sub(r"\b-\s+\b|\b\s+-\b", "-", text)
    text = re.sub(r"\s+", " ", text).strip(" ,-/")
    return text[:1].upper() + text[1:]


def title_case(text):
    """Mixed case for a name that is written in capitals; a name in mixed case stays as it is."""
    if text.upper() != text:
        return text

    def fix(match):
        word = match.group(0)
        if word in _CAPITALS:
            return word
        if match.start() > 0 and word.lower() in _SMALL and match.string[match.start() - 1] == " ":
            return word.lower()
        if re.fullmatch(r"MC(?!ENSK)[A-Z]{3,}", word):
            return "Mc" + word[2:].capitalize()
        return word.capitalize()

    return re.sub(r"[A-Za-z]+", fix, text)


def cut_name(text, suffix=""):
    """The name with a suffix, cut to what the table keeps."""
    return text[: MAX_NAME - len(suffix)].rstrip(" ,-/(") + suffix


def make_names_unique(stations):
    """Gives every station a name of its own.

    A station is an object with the fields name, country, state and key (its index number or ICAO
    indicator). Stations of one name in different countries get the country behind the name, those
    in different states the state; what still shares a name then gets its key, apart from the first.
    """
    for describe in (lambda s: s.country, lambda s: s.state):
        for group in _groups(stations):
            if len({describe(s) for s in group}) > 1:
                for station in group:
                    if describe(station):
                        station.name = cut_name(station.name, f" ({describe(station)})")
    for group in _groups(stations):
        for station in group[1:]:
            station.name = cut_name(station.name, f" ({station.key})")


def _groups(stations):
    """Lists of two and more stations that share a name, whatever its case."""
    groups = defaultdict(list)
    for station in stations:
        groups[station.name.upper()].append(station)
    return [group for group in groups.values() if len(group) > 1]
