#!/usr/bin/env python3
"""Writes datum.txt: every datum of datums.txt that can be converted both ways, to WGS 84 ("from") and from it ("to"), by
the standard Molodensky formulas and the seven-parameter transformation as they are printed (NIMA TR 8350.2, 3rd ed.,
section 7; Bowring 1976), evaluated with 50 digits (mpmath). Run it in this folder."""
import random
import shlex

from mpmath import acos, atan2, cos, mp, mpf, nstr, pi, sin, sqrt

mp.dps = 50
SECOND = mpf("4.84813681109536e-06")  # as the formulas have it
# EllipsoidType: semi-major axis, inverse flattening.
ELLIPSOIDS = {
    3: ("6378137", "298.257222101"), 5: ("6377563.396", "299.3249646"), 8: ("6377340.189", "299.3249646"),
    10: ("6378160", "298.25"), 12: ("6377397.155", "299.1528128"), 13: ("6377483.865", "299.1528128"),
    14: ("6377397.155", "299.152815351"), 15: ("6378206.4", "294.9786982"), 16: ("6378249.145", "293.4663"),
    20: ("6377276.345", "300.8017"), 21: ("6377304.063", "300.8017"), 22: ("6377301", "300.8017"),
    24: ("6377298.556", "300.8017"), 26: ("6377309.613", "300.8017"), 28: ("6378155", "298.3"),
    30: ("6378200", "298.3"), 31: ("6378270", "297"), 32: ("6378160", "298.247"), 34: ("6378388", "297"),
    35: ("6378245", "298.3"), 46: ("6378135", "298.26"), 47: ("6378137", "298.257223563")}


def figures(ellipsoid):
    a, rf = ELLIPSOIDS[ellipsoid]
    return mpf(a), 1 / mpf(rf)


def molodensky(sign, shifts, meridian, source, target, lon, lat):
    dx, dy, dz = (sign * s for s in shifts)
    (a, f), (a2, f2) = source, target
    lam, phi = (lon + sign * meridian) * pi / 180, lat * pi / 180
    e2, b = 2 * f - f * f, (1 - f) * a
    n = a / sqrt(1 - e2 * sin(phi)**2)
    m = a * (1 - e2) / sqrt(1 - e2 * sin(phi)**2)**3
    da, df = a2 - a, f2 - f
    dlat = (-dx * sin(phi) * cos(lam) - dy * sin(phi) * sin(lam) + dz * cos(phi) + da * n * e2 * sin(phi) * cos(phi) / a
            + df * (m * a / b + n * b / a) * sin(phi) * cos(phi)) / m / sin(SECOND)
    dlon = (-dx * sin(lam) + dy * cos(lam)) / (n * cos(phi)) / sin(SECOND)
    return lam * 180 / pi + dlon / 60 / 60, phi * 180 / pi + dlat / 60 / 60


def bursa_wolf(sign, shifts, rotations, scale, meridian, source, target, lon, lat):
    dx, dy, dz = (sign * s for s in shifts)
    rx, ry, rz = (sign * r / 60 / 60 * pi / 180 for r in rotations)
    k = (1 + scale / 10**6)**sign
    (a, f), (a2, f2) = source, target
    lam, phi = (lon + sign * meridian) * pi / 180, lat * pi / 180
    e2 = (2 - f) * f
    n = a / sqrt(1 - e2 * sin(phi)**2)
    x, y, z = n * cos(phi) * cos(lam), n * cos(phi) * sin(lam), n * (1 - e2) * sin(phi)
    x, y, z = dx + k * (x - rz * y + ry * z), dy + k * (rz * x + y - rx * z), dz + k * (rx * y + z - ry * x)
    a, f = a2, f2
    e2 = (2 - f) * f
    p = sqrt(x * x + y * y)
    r = sqrt(z * z + p * p)
    phi = acos(max(-1, min(1, r / a)))
    for _ in range(99):
        u = atan2(z * ((1 - f) + e2 * a / r), p)
        before, phi = phi, atan2(z * (1 - f) + e2 * a * sin(u)**3, (1 - f) * (p - e2 * a * cos(u)**3))
        if abs(phi - before) < mpf("1e-12"):
            break
    return atan2(y, x) * 180 / pi, phi * 180 / pi


def in_range(lon, lat):
    """The remainder by 360 with the sign kept, and the latitude folded."""
    turns = int(lon / 360)
    return lon - 360 * turns, 180 - lat if lat > 90 else -180 - lat if lat < -90 else lat


def places(rng):
    """Two anywhere, and one near an edge: the equator, the central meridian, the antimeridian, a pole."""
    yield rng.uniform(-179, 179), rng.uniform(-85, 85)
    yield rng.uniform(-179, 179), rng.uniform(-85, 85)
    yield rng.choice([(0.0, 0.0), (-179.9, 12.5), (179.9, -60.25), (90.0, 0.0), (-75.5, 89.9), (12.0, -89.99),
                      (120.25, 89.999)])


with open("datum.txt", "w") as out:
    out.write("# Made by make_datum.py: type, direction | longitude latitude | as converted, degrees\n")
    rng = random.Random(5)
    for line in open("datums.txt"):
        words = shlex.split(line, comments=True)
        if not words or words[3] not in ("2", "3"):
            continue
        kind, method, ellipsoid = int(words[0]), int(words[3]), int(words[4])
        numbers = [mpf(w) for w in words[5:]]
        shifts, rotations, scale, meridian = numbers[:3], numbers[3:6], numbers[6], numbers[7]
        for sign, direction in ((1, "from"), (-1, "to")):
            ends = (figures(ellipsoid), figures(47))[::sign]
            for x, y in places(rng):
                x, y = float(f"{x:.6f}"), float(f"{y:.6f}")
                if method == 3:
                    lon, lat = molodensky(sign, shifts, meridian, *ends, mpf(x), mpf(y))
                else:
                    lon, lat = bursa_wolf(sign, shifts, rotations, scale, meridian, *ends, mpf(x), mpf(y))
                lon, lat = in_range(lon, lat)
                out.write(f"{kind} {direction} | {x!r} {y!r} | {nstr(lon, 18)} {nstr(lat, 18)}\n")
