#!/usr/bin/env python3
"""Looks at maps drawn by zrproj: check_maps.py FILE...; after land=SHARE, maps of which that part is land;
after cylindrical, maps of that family.

A map is one <g> with a clip path. Everything in it lies on the paper or just beyond; no line or coast goes from one side
of the map to another in one stroke; land is drawn, and so is the edge.
"""

import re
import sys
import xml.etree.ElementTree as xml

SVG = "{http://www.w3.org/2000/svg}"
BEYOND = 60  # tenths of a pixel
ROW = 5  # tenths of a pixel
STROKE = 4  # tenths of a pixel: half of the edge's, less one for rounding
LONGEST = 0.4  # of the map's longer side, for one stroke


def subpaths(data):
    """The points of a path of the commands M, l and z, on whole numbers."""
    assert re.fullmatch(r"[Mlz0-9 -]*", data), data[:80]
    for text in data.split("M")[1:]:
        x, y, *steps = map(int, re.findall(r"-?\d+", text))
        points = [(x, y)]
        for dx, dy in zip(steps[::2], steps[1::2]):
            points.append((points[-1][0] + dx, points[-1][1] + dy))
        yield points, text.endswith("z")


def filled(paths):
    """The area of closed paths by the even-odd rule, from lines across them, ROW apart."""
    crossings = {}
    for points, _ in paths:
        for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
            first, last = sorted((y1, y2))
            for row in range(-(-first // ROW), -(-last // ROW)):
                y = row * ROW + 0.5
                if (y1 > y) != (y2 > y):
                    crossings.setdefault(row, []).append(x1 + (y - y1) * (x2 - x1) / (y2 - y1))
    return ROW * sum(sum(xs[1::2]) - sum(xs[::2]) for xs in map(sorted, crossings.values()))


def check_path(points, closed, width, height):
    for x, y in points:
        assert -BEYOND <= x <= width + BEYOND and -BEYOND <= y <= height + BEYOND, f"{x} {y} is off the paper"
    for (x1, y1), (x2, y2) in zip(points, points[1:] + (points[:1] if closed else [])):
        outside = max(x1, x2) < 0 or min(x1, x2) > width or max(y1, y2) < 0 or min(y1, y2) > height
        long = (x2 - x1) ** 2 + (y2 - y1) ** 2 > (LONGEST * max(width, height)) ** 2
        assert outside or not long, f"a stroke from {x1} {y1} to {x2} {y2} on a map of {width} by {height}"


def check_edge(paths, width, height, more):
    """The edge of a map that is drawn whole goes all around it, and its stroke is not cut off."""
    points = [point for path, _ in paths for point in path]
    for extent, side in (([x for x, _ in points], width), ([y for _, y in points], height)):
        low, high = min(extent), max(extent)
        assert low < 0.02 * side and high > 0.98 * side, f"the edge goes from {low} to {high}"
        assert low - STROKE >= -more and high + STROKE <= side + more, "the edge's stroke is cut off"


def check_rectangle(paths, width, height):
    """The edge of a cylindrical map has no point within."""
    for path, _ in paths:
        for x, y in path:
            assert min(x, y, width - x, height - y) < 30, f"the edge goes through {x} {y}"


def check_map(group, rectangle):
    clip = group.find(f"{SVG}clipPath/{SVG}rect")
    more = -int(clip.get("x"))
    width, height = int(clip.get("width")) - 2 * more, int(clip.get("height")) - 2 * more
    layers = [list(subpaths(path.get("d"))) for path in group.find(f"{SVG}g[@clip-path]").findall(f"{SVG}path")]
    assert len(layers) >= 3, "sea, land and graticule"
    for layer in layers:
        for points, closed in layer:
            check_path(points, closed, width, height)
    if rectangle:
        check_rectangle(layers[-1], width, height)
    if group.find(f"{SVG}rect") is None:
        check_edge(layers[-1], width, height, more)
    return filled(layers[1]) / filled(layers[0])


def main():
    share = rectangle = None
    for argument in sys.argv[1:]:
        if argument.startswith("land="):
            share = float(argument[5:])
            continue
        if argument == "cylindrical":
            rectangle = True
            continue
        maps = [group for group in xml.parse(argument).iter(f"{SVG}g") if group.find(f"{SVG}clipPath") is not None]
        assert maps, f"{argument}: no map"
        for number, group in enumerate(maps):
            try:
                land = check_map(group, rectangle)
                assert share is None or abs(land - share) < 0.003, f"{land:.4f} of it is land, not {share}"
                assert 0.05 < land < 0.7, f"{land:.4f} of it is land"
            except AssertionError as fault:
                sys.exit(f"{argument}, map {number}: {fault}")


if __name__ == "__main__":
    main()
