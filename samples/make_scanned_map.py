#!/usr/bin/env python3
"""Makes scanned_map.csv and scanned_map_wrong.csv: make_scanned_map.py COMMAND, with the built zrproj command; run it in
this folder.

The map: a sheet around Lake Ontario's western end, 1:250,000, Lambert conformal conic (GRS 80, 80 W, 44 N, parallels 43 and
45), scanned at 300 dots an inch, 1.5 degrees askew. The control points are crossings of its graticule: where they were
seen in the scan, by a hand that is off by 0.5 pixels (one standard deviation, normal, in x and in y; a pixel is 21.2
metres), and their UTM coordinates (zone 17, GRS 80), which are exact to the printed decimal. In scanned_map_wrong.csv
one northing is typed a kilometre too large."""
import math
import random
import subprocess
import sys

CROSSINGS = [("A1", -81.0, 44.5), ("A2", -80.0, 44.5), ("A3", -79.0, 44.5), ("B1", -81.0, 43.75),
             ("B2", -79.5, 43.75), ("C1", -81.0, 43.0), ("C2", -80.25, 43.0), ("C3", -79.0, 43.0)]
PIXEL = 0.0254 / 300 * 250000  # metres
ASKEW = math.radians(1.5)
NOISE = 0.5  # pixels
WRONG = ("B2", 1000)  # metres
LAMBERT = ["--projection", "5", "--ellipsoid", "GRS 1980", "--lon0", "-80", "--lat0", "44", "--lat1", "43",
           "--lat2", "45"]
UTM = ["--utm", "17N", "--ellipsoid", "GRS 1980"]


def projected(command, options):
    points = "".join(f"{lon} {lat}\n" for _, lon, lat in CROSSINGS)
    out = subprocess.run([command, "forward", "--precision", "6", *options], input=points, text=True, check=True,
                         capture_output=True).stdout
    return [tuple(map(float, line.split())) for line in out.splitlines()]


def pixel(x, y):
    """The sheet's centre is the scan's, at 4800, 4700; rows count downwards."""
    return (4800 + (x * math.cos(ASKEW) - y * math.sin(ASKEW)) / PIXEL + random.gauss(0, NOISE),
            4700 - (x * math.sin(ASKEW) + y * math.cos(ASKEW)) / PIXEL + random.gauss(0, NOISE))


def write(name, controls):
    with open(name, "w", encoding="ascii") as out:
        out.write("pixel_x,pixel_y,easting,northing,name\n")
        for x, y, easting, northing, title in controls:
            out.write(f"{x:.1f},{y:.1f},{easting:.2f},{northing:.2f},{title}\n")


def main():
    random.seed(1)
    sheet, ground = projected(sys.argv[1], LAMBERT), projected(sys.argv[1], UTM)
    controls = [(*pixel(*on_sheet), *on_ground, name)
                for (name, _, _), on_sheet, on_ground in zip(CROSSINGS, sheet, ground)]
    write("scanned_map.csv", controls)
    write("scanned_map_wrong.csv",
          [(x, y, e, n + WRONG[1] if name == WRONG[0] else n, name) for x, y, e, n, name in controls])


if __name__ == "__main__":
    main()
