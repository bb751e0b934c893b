#!/usr/bin/env python3
"""Makes land-110m.csv from the npm package world-atlas: make_land.py [LAND] > land-110m.csv

LAND is the package's file land-110m.json; without it the package is fetched by `npm pack world-atlas@2.0.2`. Its rings go
on over the antimeridian and around the south pole, instead of along the map's edge as those of Natural Earth do.
"""

import json
import subprocess
import sys
import tarfile
import tempfile

PACKAGE = "world-atlas@2.0.2"
COMMENT = """\
# Land of the world, Natural Earth 1:110 million (public domain). One ring after another, an empty line between; what an
# odd number of rings is around is land.
longitude,latitude"""


def fetch():
    with tempfile.TemporaryDirectory() as directory:
        name = subprocess.run(["npm", "pack", "--silent", PACKAGE], cwd=directory, check=True, capture_output=True,
                              text=True).stdout.split()[-1]
        with tarfile.open(f"{directory}/{name}") as package:
            return json.load(package.extractfile("package/land-110m.json"))


def arcs(topology):
    """The lines that rings are made of; points are steps on the topology's grid."""
    (scale_x, scale_y), (x0, y0) = topology["transform"]["scale"], topology["transform"]["translate"]
    for arc in topology["arcs"]:
        x = y = 0
        line = []
        for step_x, step_y in arc:
            x, y = x + step_x, y + step_y
            line.append((x * scale_x + x0, y * scale_y + y0))
        yield line


def rings(topology):
    """Closed rings without their repeated last point; arc ~i is arc i backwards."""
    lines = list(arcs(topology))
    for geometry in topology["objects"]["land"]["geometries"]:
        for polygon in geometry["arcs"]:
            for ring in polygon:
                points = []
                for i in ring:
                    points += (lines[i] if i >= 0 else lines[~i][::-1])[:-1]
                yield points


def rounded(ring):
    """Two decimals, a kilometre, without repeated points."""
    points = [f"{round(x, 2):g},{round(y, 2):g}" for x, y in ring]
    return [point for i, point in enumerate(points) if point != points[i - 1]]


def main():
    if len(sys.argv) > 1:
        with open(sys.argv[1], encoding="utf-8") as file:
            topology = json.load(file)
    else:
        topology = fetch()
    texts = ["\n".join(points) for points in map(rounded, rings(topology)) if len(points) > 2]
    print(COMMENT, "\n\n".join(texts), sep="\n")


if __name__ == "__main__":
    main()
