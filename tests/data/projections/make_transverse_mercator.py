#!/usr/bin/env python3
"""Writes transverse-mercator.txt: the Transverse Mercator series of Snyder (1987), pp. 60-64, term by term as printed,
and its spherical forms (pp. 58-60), evaluated with 40 digits (mpmath). Run it in this folder."""
import random

import case_file
from mpmath import atan, cos, degrees, log, mp, mpf, pi, radians, sin, sqrt, tan

mp.dps = 40
ELLIPSOIDS = {47: ("6378137", "298.257223563"), 15: ("6378206.4", "294.9786982"), 5: ("6377563.396", "299.3249646"),
              3: ("6378137", "298.257222101"), 12: ("6377397.155", "299.1528128")}


def meridian_distance(a, e2, phi):
    e4, e6 = e2**2, e2**3
    return a * ((1 - e2 / 4 - 3 * e4 / 64 - 5 * e6 / 256) * phi
                - (3 * e2 / 8 + 3 * e4 / 32 + 45 * e6 / 1024) * sin(2 * phi)
                + (15 * e4 / 256 + 45 * e6 / 1024) * sin(4 * phi) - (35 * e6 / 3072) * sin(6 * phi))


def ellipsoidal(a, f, k0, lat0, lon0, lon, lat):
    e2 = 2 * f - f * f
    phi, lam = radians(lat), radians(lon) - radians(lon0)
    m = meridian_distance(a, e2, phi) - meridian_distance(a, e2, radians(lat0))
    if abs(lat) == 90:
        return mpf(0), k0 * m
    ep2 = e2 / (1 - e2)
    n = a / sqrt(1 - e2 * sin(phi)**2)
    t, c, al = tan(phi)**2, ep2 * cos(phi)**2, cos(phi) * lam
    x = k0 * n * (al + (1 - t + c) * al**3 / 6 + (5 - 18 * t + t**2 + 72 * c - 58 * ep2) * al**5 / 120)
    y = k0 * (m + n * tan(phi) * (al**2 / 2 + (5 - t + 9 * c + 4 * c**2) * al**4 / 24
                                  + (61 - 58 * t + t**2 + 600 * c - 330 * ep2) * al**6 / 720))
    return x, y


def ellipsoidal_inverse(a, f, k0, lat0, lon0, x, y):
    e2 = 2 * f - f * f
    mu = (meridian_distance(a, e2, radians(lat0)) + y / k0) / (a * (1 - e2 / 4 - 3 * e2**2 / 64 - 5 * e2**3 / 256))
    e1 = (1 - sqrt(1 - e2)) / (1 + sqrt(1 - e2))
    phi1 = (mu + (3 * e1 / 2 - 27 * e1**3 / 32) * sin(2 * mu) + (21 * e1**2 / 16 - 55 * e1**4 / 32) * sin(4 * mu)
            + 151 * e1**3 / 96 * sin(6 * mu) + 1097 * e1**4 / 512 * sin(8 * mu))
    ep2 = e2 / (1 - e2)
    c1, t1, w = ep2 * cos(phi1)**2, tan(phi1)**2, 1 - e2 * sin(phi1)**2
    n1, r1 = a / sqrt(w), a * (1 - e2) / sqrt(w)**3
    d = x / (n1 * k0)
    phi = phi1 - n1 * tan(phi1) / r1 * (
        d**2 / 2 - (5 + 3 * t1 + 10 * c1 - 4 * c1**2 - 9 * ep2) * d**4 / 24
        + (61 + 90 * t1 + 298 * c1 + 45 * t1**2 - 252 * ep2 - 3 * c1**2) * d**6 / 720)
    lam = (d - (1 + 2 * t1 + c1) * d**3 / 6
           + (5 - 2 * c1 + 28 * t1 - 3 * c1**2 + 8 * ep2 + 24 * t1**2) * d**5 / 120) / cos(phi1)
    return lon0 + degrees(lam), degrees(phi)


def spherical(r, k0, lat0, lon0, lon, lat):
    phi, lam = radians(lat), radians(lon) - radians(lon0)
    b = cos(phi) * sin(lam)
    x = r * k0 * log((1 + b) / (1 - b)) / 2
    if abs(lat) == 90:
        return x, r * k0 * ((pi / 2 if lat > 0 else -pi / 2) - radians(lat0))
    return x, r * k0 * (atan(tan(phi) / cos(lam)) - radians(lat0))


PUBLISHED = """# Published worked examples, to the printed digits.
type=transverse-mercator ellipsoid=clarke-1866 lon0=-75 k0=0.9996 | -73.5 40.5 | 127106.5 4484124.4 | 0.05 | Snyder (1987), pp. 269-270
type=transverse-mercator radius=1 lon0=-75 | -73.5 40.5 | 0.0199077 0.7070276 | 5.1e-8 | Snyder (1987), p. 268
"""

with case_file.rewritten("transverse-mercator.txt") as out:
    out.write("# Made by make_transverse_mercator.py.\n" + PUBLISHED)
    out.write("# The series itself, 40 digits.\n")
    rng = random.Random(3)
    origin = "series of Snyder (1987), pp. 58-64, 40 digits (mpmath)"
    for i in range(60):
        ell = rng.choice(list(ELLIPSOIDS))
        a, f = mpf(ELLIPSOIDS[ell][0]), 1 / mpf(ELLIPSOIDS[ell][1])
        lon0 = rng.choice([-177, -85.5, 0, 9, 117.25, 179])
        lat0 = rng.choice([0, 0, 30.5, -42.25, 54])
        lat = rng.choice([90, -90, 0, 84, -80]) if i % 6 == 0 else round(rng.uniform(-85, 85), 6)
        lon = round(lon0 + rng.uniform(-3, 3), 6)
        k0 = rng.choice(["0.9996", "0.9999333333333333", "1"])
        kind = 17 + i % 2
        if i % 5 == 4:
            x, y = spherical(mpf(6370997), mpf(k0), lat0, lon0, mpf(repr(lon)), mpf(repr(lat)))
            out.write(f"{case_file.record(kind, 48)} lat0={lat0} lon0={lon0} k0={k0} | {lon!r} {lat!r} "
                      f"| {mp.nstr(x, 17)} {mp.nstr(y, 17)} | 1e-6 | {origin}\n")
            continue
        record = f"{case_file.record(kind, ell)} lat0={lat0} lon0={lon0} k0={k0}"
        x, y = ellipsoidal(a, f, mpf(k0), lat0, lon0, mpf(repr(lon)), mpf(repr(lat)))
        out.write(f"{record} forward | {lon!r} {lat!r} | {mp.nstr(x, 17)} {mp.nstr(y, 17)} | 1e-6 | {origin}\n")
        if abs(lat) == 90:
            continue
        x, y = round(float(x), 3), round(float(y), 3)
        blon, blat = ellipsoidal_inverse(a, f, mpf(k0), lat0, lon0, mpf(repr(x)), mpf(repr(y)))
        out.write(f"{record} inverse | {mp.nstr(blon, 18)} {mp.nstr(blat, 18)} | {x!r} {y!r} | 1e-6 | {origin}\n")
