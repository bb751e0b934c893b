#!/usr/bin/env python3
"""Writes azimuthal-equidistant.txt and cassini.txt: geodesics by the integrals that define them (Karney 2013, (7) and
(8)), from a start and an azimuth to an end, with 40 digits (mpmath). Run it in this folder."""
import random

import case_file
from mpmath import asin, atan, atan2, cos, degrees, hypot, mp, mpf, nstr, pi, quad, radians, sin, sqrt, tan

mp.dps = 40
FIGURES = {"ellipsoid=wgs-84": ("6378137", "298.257223563"), "ellipsoid=clarke-1866": ("6378206.4", "294.9786982"),
           "ellipsoid=bessel-1841": ("6377397.155", "299.1528128"), "ellipsoid=standard-sphere-of-6370997-meters": ("6370997", None),
           "radius=3396190 rf=169.8944472": ("3396190", "169.8944472"), "radius=6378137 rf=50": ("6378137", "50")}
ORIGIN = "integrals along geodesics, 40 digits (mpmath)"


def figure(words):
    a, rf = FIGURES[words]
    return mpf(a), 1 / mpf(rf) if rf else mpf(0)


def geodesic(a, f, phi1, alpha1, sigma12):
    """Length, latitude and longitude difference after the arc sigma12 on the auxiliary sphere."""
    beta1 = atan((1 - f) * tan(phi1))
    sin0 = sin(alpha1) * cos(beta1)
    cos0 = hypot(cos(alpha1), sin(alpha1) * sin(beta1))
    sigma1 = atan2(sin(beta1), cos(alpha1) * cos(beta1))
    k2 = (1 / (1 - f)**2 - 1) * cos0**2
    pieces = [sigma1 + sigma12 * i / 4 for i in range(5)]
    length = a * (1 - f) * quad(lambda s: sqrt(1 + k2 * sin(s)**2), pieces)
    lag = f * sin0 * quad(lambda s: (2 - f) / (1 + (1 - f) * sqrt(1 + k2 * sin(s)**2)), pieces)
    omega12 = atan2(sin(sigma12) * sin(alpha1), cos(beta1) * cos(sigma12) - sin(beta1) * sin(sigma12) * cos(alpha1))
    beta2 = asin(cos0 * sin(sigma1 + sigma12))
    return length, atan2(sin(beta2), (1 - f) * cos(beta2)), omega12 - lag


def meridian_distance(a, f, phi):
    e2 = f * (2 - f)
    return a * (1 - e2) * quad(lambda p: (1 - e2 * sin(p)**2)**mpf(-1.5), [0, phi / 2, phi])


def line(out, record, lon, lat, x, y, tolerance):
    out.write(f"{record} | {nstr(degrees(lon), 18)} {nstr(degrees(lat), 18)} | {nstr(x, 18)} {nstr(y, 18)} "
              f"| {tolerance} | {ORIGIN}\n")


def tolerance_of(words, spread=1):
    """2e-8 m, what rounding of the coordinates makes of it towards the antipode, the series' error at 1/50."""
    return nstr((mpf("1e-6") if "rf=50" in words else mpf("2e-8")) * max(spread, 1), 2)


def azimuthal_equidistant(out):
    rng = random.Random(28)
    for i in range(40):
        words = rng.choice(list(FIGURES))
        a, f = figure(words)
        lat1 = [90, -90, 0, 0.001, -89.999][i % 5] if i % 2 else round(rng.uniform(-89, 89), 4)
        lon0 = rng.choice([-177, -85.5, 0, 9, 117.25, 179])
        alpha1, sigma12 = rng.uniform(-pi, pi), radians(rng.uniform(1, 175) if i % 4 else rng.uniform(0.001, 1))
        if abs(lat1) == 90:
            phi2 = (pi / 2 - sigma12) * (1 if lat1 > 0 else -1)
            length = abs(meridian_distance(a, f, radians(lat1)) - meridian_distance(a, f, phi2))
            lam = pi - alpha1 if lat1 > 0 else alpha1
        else:
            length, phi2, lam = geodesic(a, f, radians(lat1), alpha1, sigma12)
        record = f"type=azimuthal-equidistant {words} lat1={lat1} lon0={lon0}"
        line(out, record, radians(lon0) + lam, phi2, length * sin(alpha1), length * cos(alpha1),
             tolerance_of(words, sigma12 / sin(sigma12)))


def cassini(out):
    rng = random.Random(16)
    for i in range(40):
        words = rng.choice(list(FIGURES))
        a, f = figure(words)
        lat0 = rng.choice([0, 40.5, -31.25, 90, -90])
        lon0 = rng.choice([-177, -85.5, 0, 9, 117.25, 179])
        foot = radians([0, 89.9999, -89.999, 1e-6, -45, 60][i % 6] if i % 3 == 0 else rng.uniform(-90, 90))
        sigma12 = radians(rng.uniform(0, 4) if i % 2 else rng.uniform(0, 85))
        length, phi2, lam = geodesic(a, f, foot, pi / 2, sigma12)
        east = rng.choice([-1, 1])
        y = meridian_distance(a, f, foot) - meridian_distance(a, f, radians(lat0))
        line(out, f"type=cassini {words} lat0={lat0} lon0={lon0}", radians(lon0) + east * lam, phi2, east * length, y,
             tolerance_of(words, 1 / cos(sigma12)))


HEADER = "# Made by make_geodesic.py.\n"


def write_files():
    with case_file.rewritten("azimuthal-equidistant.txt") as out:
        out.write(HEADER + """# Published worked examples, to the printed digits.
type=azimuthal-equidistant radius=3 lat1=40 lon0=-100 | 100 -20 | -5.8311398 5.5444634 | 1.1e-7 | Snyder (1987), Appendix A
type=azimuthal-equidistant radius=6378388 rf=297 lat1=90 lon0=-100 | 5 80 | 1078828.3 289071.2 | 0.06 | Snyder (1987), Appendix A
# That method's formulas are good to millimetres so close to the centre.
type=azimuthal-equidistant ellipsoid=clarke-1866 lat1=9.546708333333333 lon0=138.168744444444444 x0=40000 y0=60000 | 138.193030000000000 9.596525833333333 | 42665.90 65509.82 | 0.006 | EPSG guidance note 7-2, Modified Azimuthal Equidistant
""")
        azimuthal_equidistant(out)
    with case_file.rewritten("cassini.txt") as out:
        out.write(HEADER + """# Published worked examples, to the printed digits.
type=cassini radius=1 lat0=-20 lon0=-75 | -90 25 | -0.2367759 0.7988243 | 5.1e-8 | Snyder (1987), Appendix A
type=cassini ellipsoid=clarke-1866 lat0=40 lon0=-75 | -73 43 | 163071.1 335127.6 | 0.06 | Snyder (1987), Appendix A
type=cassini radius=31706587.88 rf=294.2606764 lat0=10.441666666666667 lon0=-61.333333333333333 x0=430000 y0=325000 | -62 10 | 66644.94 82536.22 | 0.006 | EPSG guidance note 7-2, Cassini-Soldner
""")
        cassini(out)


if __name__ == "__main__":
    write_files()
