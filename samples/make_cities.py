#!/usr/bin/env python3
"""Makes cities.csv from the time zone database's tables: make_cities.py [DIRECTORY] > cities.csv

DIRECTORY holds zone1970.tab, zone.tab and iso3166.tab; on Debian (package tzdata) it is /usr/share/zoneinfo.
"""

import csv
import re
import sys
from pathlib import Path

POSITION = re.compile(r"([+-])(\d\d)(\d\d)(\d\d)?([+-])(\d\d\d)(\d\d)(\d\d)?")


def rows(path):
    for line in path.read_text(encoding="utf-8").splitlines():
        if not line.startswith("#"):
            yield line.split("\t")


def degrees(sign, whole, minutes, seconds):
    value = int(whole) + int(minutes) / 60 + int(seconds or 0) / 3600
    return f"{-value if sign == '-' else value:.6f}"


def main():
    directory = Path(sys.argv[1] if len(sys.argv) > 1 else "/usr/share/zoneinfo")
    countries = {code: name for code, name, *_ in rows(directory / "iso3166.tab")}
    places = {}
    # zone.tab is the older table, with a row for each country; it adds the places that share another one's clocks.
    for table in ("zone1970.tab", "zone.tab"):
        for codes, position, zone, *_ in rows(directory / table):
            places.setdefault(zone, (codes.split(",")[0], position))
    out = csv.writer(sys.stdout, lineterminator="\n")
    out.writerow(["name", "country", "latitude", "longitude"])
    for zone, (code, position) in sorted(places.items(), key=lambda item: (countries[item[1][0]], item[0])):
        part = POSITION.fullmatch(position).groups()
        out.writerow([zone.split("/")[-1].replace("_", " "), countries[code], degrees(*part[:4]), degrees(*part[4:])])


if __name__ == "__main__":
    main()
