#!/usr/bin/env python3
"""Writes the reference values of the cylindrical, conic and related projections: their definitions (integrals and
quotients, no series) evaluated with 40 digits (mpmath), and published worked examples. Run it in this folder."""
import random

import case_file
from mpmath import asinh, atanh, cos, log, mp, mpf, pi, quad, radians, sin, sqrt, tan

mp.dps = 40
ELLIPSOIDS = {47: ("6378137", "298.257223563"), 15: ("6378206.4", "294.9786982"), 5: ("6377563.396", "299.3249646"),
              12: ("6377397.155", "299.1528128"), 48: ("6370997", None)}
ORIGIN = "the definition, 40 digits (mpmath)"
SOURCES = {"snyder": "Snyder (1987), Appendix A", "epsg": "EPSG guidance note 7-2, method"}


class Ellipsoid:
    """Functions of the latitude in radians; lengths in units of the semi-major axis."""

    def __init__(self, inverse_flattening):
        f = 1 / mpf(inverse_flattening) if inverse_flattening else mpf(0)
        self.e2 = f * (2 - f)
        self.e = sqrt(self.e2)

    def m(self, phi):
        return cos(phi) / sqrt(1 - self.e2 * sin(phi)**2)

    def meridian(self, phi):
        return quad(lambda t: (1 - self.e2) / sqrt(1 - self.e2 * sin(t)**2)**3, [0, phi / 2, phi])

    def psi(self, phi):
        return asinh(tan(phi)) - self.e * atanh(self.e * sin(phi))

    def q(self, phi):
        return quad(lambda t: 2 * (1 - self.e2) * cos(t) / (1 - self.e2 * sin(t)**2)**2, [0, phi / 2, phi])


def mercator(ell, r, phi, lam):
    return lam, ell.psi(phi) - ell.psi(r["lat0"])


def miller(_, __, phi, lam):
    return lam, log(tan(pi / 4 + phi * 2 / 5)) * 5 / 4


def equidistant_cylindrical(ell, r, phi, lam):
    return ell.m(r["lat1"]) * lam, ell.meridian(phi)


def sinusoidal(ell, _, phi, lam):
    return ell.m(phi) * lam, ell.meridian(phi)


def on_cone(n, rho, rho0, lam):
    return rho * sin(n * lam), rho0 - rho * cos(n * lam)


def lambert(ell, r, phi, lam):
    phi1, phi2 = r["lat1"], r["lat2"]
    n = sin(phi1) if phi1 == phi2 else log(ell.m(phi1) / ell.m(phi2)) / (ell.psi(phi2) - ell.psi(phi1))

    def rho(at):
        if abs(at) == pi / 2:
            return mpf(0)
        return ell.m(phi1) / n * mp.exp(n * (ell.psi(phi1) - ell.psi(at)))
    return on_cone(n, rho(phi), rho(r["lat0"]), lam)


def albers(ell, r, phi, lam):
    phi1, phi2 = r["lat1"], r["lat2"]
    n = (ell.m(phi1)**2 - ell.m(phi2)**2) / (ell.q(phi2) - ell.q(phi1))
    c = ell.m(phi1)**2 + n * ell.q(phi1)

    def rho(at):
        return sqrt(max(c - n * ell.q(at), 0)) / n
    return on_cone(n, rho(phi), rho(r["lat0"]), lam)


def equidistant_conic(ell, r, phi, lam):
    phi1, phi2 = r["lat1"], r["lat2"]
    n = (ell.m(phi1) - ell.m(phi2)) / (ell.meridian(phi2) - ell.meridian(phi1))

    def rho(at):
        return ell.m(phi1) / n + ell.meridian(phi1) - ell.meridian(at)
    return on_cone(n, rho(phi), rho(r["lat0"]), lam)


def bonne(ell, r, phi, lam):
    phi1 = r["lat1"]
    rho1 = ell.m(phi1) / sin(phi1)
    rho = rho1 + ell.meridian(phi1) - ell.meridian(phi)
    angle = ell.m(phi) * lam / rho if abs(rho) > mpf(10)**-30 else 0
    return rho * sin(angle), rho1 - rho * cos(angle)


def polyconic(ell, r, phi, lam):
    north = ell.meridian(phi) - ell.meridian(r["lat0"])
    if phi == 0:
        return lam, north
    radius = ell.m(phi) / sin(phi)
    return radius * sin(lam * sin(phi)), north + radius * (1 - cos(lam * sin(phi)))


# file, type, formula, parameter sets, published examples with their printed digits
TYPES = [
    ("mercator", 1, mercator, ["lon0=-179.25", "lon0=-75.5 lat0=-42", "lon0=179 lat0=33.25"], """
type=mercator radius=1 lon0=-180 | -75 35 | 1.8325957 0.6528366 | 5.1e-8 | {snyder}
type=mercator ellipsoid=krassovsky-1942 lon0=51 scale=0.744260894 | 53 53 | 165704.29 5171848.07 | 0.011 | {epsg} 9805
"""),
    ("miller", 3, miller, ["lon0=0", "lon0=-179.5", "lon0=90"], """
type=miller radius=1 | -75 50 | -1.3089969 0.9536371 | 5.1e-8 | {snyder}
"""),
    ("equidistant-cylindrical", 13, equidistant_cylindrical, ["lon0=0", "lat1=-40 lon0=179.5", "lat1=60 lon0=10"], """
type=equidistant-cylindrical ellipsoid=wgs-84 | 10 55 | 1113194.91 6097230.31 | 0.0051 | {epsg} 1028
"""),
    ("lambert-conformal-conic", 5, lambert,
     ["lat1=33 lat2=45 lat0=23 lon0=-96", "lat1=-28 lat2=-36 lat0=-32 lon0=179",
      "lat1=45 lat2=45.11 lat0=90 lon0=-179.75", "lat1=-20 lat2=60 lat0=-45 lon0=15", "lat1=1 lat2=-0.8 lon0=15",
      "lat1=-85 lat2=-89.9 lat0=-90"], """
type=lambert-conformal-conic radius=1 lat1=33 lat2=45 lat0=23 lon0=-96 | -75 35 | 0.2966785 0.2462112 | 5.1e-8 | {snyder}
type=lambert-conformal-conic ellipsoid=clarke-1866 lat1=33 lat2=45 lat0=23 lon0=-96 | -75 35 | 1894410.9 1564649.5 | 0.051 | {snyder}
type=lambert-conformal-conic ellipsoid=clarke-1866 lat1=28.383333333333333 lat2=30.283333333333333 lat0=27.833333333333333 lon0=-99 \
x0=609601.2192024384 scale=3.280833333333333 | -96 28.5 | 2963503.91 254759.80 | 0.0051 | {epsg} 9802
"""),
    ("albers", 2, albers,
     ["lat1=29.5 lat2=45.5 lat0=23 lon0=-96", "lat1=-18 lat2=-36 lon0=132", "lat1=60 lat2=20 lat0=40 lon0=178",
      "lat1=-10 lat2=40 lat0=-90 lon0=-179", "lat1=1 lat2=-0.9 lon0=20", "lat1=90 lat2=30 lat0=90 lon0=-20",
      "lat1=40 lat2=40.002 lat0=40"], """
type=albers radius=1 lat1=29.5 lat2=45.5 lat0=23 lon0=-96 | -75 35 | 0.2952720 0.2416774 | 5.1e-8 | {snyder}
type=albers ellipsoid=clarke-1866 lat1=29.5 lat2=45.5 lat0=23 lon0=-96 | -75 35 | 1885472.7 1535925.0 | 0.051 | {snyder}
"""),
    ("equidistant-conic", 26, equidistant_conic,
     ["lat1=29.5 lat2=45.5 lat0=23 lon0=-96", "lat1=-60 lat2=-15 lat0=-90 lon0=179", "lat1=1 lat2=-0.9 lon0=10",
      "lat1=90 lat2=40 lat0=60 lon0=77", "lat1=40 lat2=40.002 lat0=40"], """
type=equidistant-conic radius=1 lat1=29.5 lat2=45.5 lat0=23 lon0=-96 | -75 35 | 0.2952057 0.2424021 | 5.1e-8 | {snyder}
type=equidistant-conic ellipsoid=clarke-1866 lat1=29.5 lat2=45.5 lat0=23 lon0=-96 | -75 35 | 1885051.9 1540507.6 | 0.051 | {snyder}
"""),
    ("sinusoidal", 19, sinusoidal, ["lon0=-90", "lon0=179", "lon0=0"], """
type=sinusoidal radius=1 lon0=-90 | -75 -50 | 0.1682814 -0.8726646 | 5.1e-8 | {snyder}
type=sinusoidal ellipsoid=clarke-1866 lon0=-90 | -75 -50 | 1075471.5 -5540628.0 | 0.051 | {snyder}
"""),
    ("bonne", 21, bonne, ["lat1=40 lon0=-75", "lat1=-30 lon0=179", "lat1=90 lon0=20", "lat1=0.001", "lat1=-1e-14"], """
type=bonne radius=1 lat1=40 lon0=-75 | -85 30 | -0.1508418 -0.1661807 | 5.1e-8 | {snyder}
type=bonne ellipsoid=clarke-1866 lat1=40 lon0=-75 | -85 30 | -962915.1 -1056065.0 | 0.051 | {snyder}
"""),
    ("polyconic", 11, polyconic, ["lat0=30 lon0=-96", "lat0=-42.5 lon0=179.5", "lon0=0"], """
type=polyconic radius=1 lat0=30 lon0=-96 | -75 40 | 0.2781798 0.2074541 | 5.1e-8 | {snyder}
type=polyconic ellipsoid=clarke-1866 lat0=30 lon0=-96 | -75 40 | 1776774.5 1319657.8 | 0.051 | {snyder}
"""),
]
POLES = {1: [], 5: [1]}  # the poles that a type shows, 1 for that of the cone's side; of the others, both
NEAR_POLE = {1: 85, 5: 88}  # of the others, the far one


def latitudes(rng, kind, side):
    """A latitude a case: some at random, then the delicate ones."""
    wide = 75 if kind in NEAR_POLE else 89
    delicate = [0.0, 1e-9, NEAR_POLE.get(kind, -89.9) * side]
    return [round(rng.uniform(-wide, wide), 6) for _ in range(3)] + delicate + [
        90.0 * side * pole for pole in POLES.get(kind, [1, -1])]


def write(file, kind, formula, parameter_sets, published):
    rng = random.Random(kind)
    with case_file.rewritten(file + ".txt") as out:
        out.write("# Made by make_conic_cylindrical.py.\n")
        out.write("# Published worked examples, to the printed digits.\n" + published.strip().format(**SOURCES) + "\n")
        out.write("# The definition, 40 digits.\n")
        for i, words in enumerate(parameter_sets):
            number = [47, 15, 48, 5, 12][i % 5]
            degrees = {"lat0": "0", "lat1": "0", "lat2": "0", "lon0": "0"} | dict(w.split("=") for w in words.split())
            record = {name: radians(mpf(value)) for name, value in degrees.items()}
            axis, ell = mpf(ELLIPSOIDS[number][0]), Ellipsoid(ELLIPSOIDS[number][1])
            side = -1 if record["lat1"] + record["lat2"] < 0 else 1
            for j, lat in enumerate(latitudes(rng, kind, side)):
                east = {2: 180, 5: -180, 4: 1e-9}.get(j, round(rng.uniform(-180, 180), 6))
                lon = float(degrees["lon0"]) + east
                lam = radians(mpf(repr(lon))) - record["lon0"]
                x, y = formula(ell, record, radians(mpf(repr(lat))), lam)
                # Albers's map is too short by the pole to tell the latitude from it.
                ways = " forward" if kind == 2 and abs(lat) > 85 else ""
                x, y = axis * x, axis * y
                size = float(max(abs(x), abs(y)))
                tolerance = "5e-8" if size < 5e7 else f"{2e-15 * size:.1g}"
                out.write(f"{case_file.record(kind, number)} {words}{ways} | {lon!r} {lat!r} "
                          f"| {mp.nstr(x, 17)} {mp.nstr(y, 17)} | {tolerance} | {ORIGIN}\n")



def append_equal_parallels(file):
    """American Samoa, 1927: the one cone with a single standard parallel."""
    ell, phi1 = Ellipsoid(ELLIPSOIDS[15][1]), -radians(14 + mpf(16) / 60)
    record = {"lat0": phi1, "lat1": phi1, "lat2": phi1}
    with open(file + ".txt", "a") as out:
        for lon, lat in ((-170.75, -14.25), (-169.5, -14.0), (-168.125, -14.5625)):
            x, y = lambert(ell, record, radians(mpf(lat)), radians(mpf(lon) + 170))
            x, y = (mpf(ELLIPSOIDS[15][0]) * v for v in (x, y))
            x, y = x + mpf("152400.3048006096"), y + mpf("95169.31165862332")
            out.write(f"type=state-plane-1927 zone=american-samoa ellipsoid=clarke-1866 | {lon!r} {lat!r} | {mp.nstr(x, 17)} {mp.nstr(y, 17)} "
                      f"| 5e-8 | {ORIGIN}\n")


for row in TYPES:
    write(*row)
append_equal_parallels("lambert-conformal-conic")
