#!/usr/bin/env python3
"""Writes hotine.txt, oblique-mercator.txt, stereographic.txt, orthographic.txt, lambert-azimuthal.txt and gnomonic.txt:
worked examples as they were printed, and the definitions of Snyder (1987), for the orthographic the geometry itself,
evaluated with 40 digits (mpmath). Run it in this folder."""
import math
import random

import case_file
from mpmath import (asin, atan, atan2, atanh, cos, degrees, log, matrix, mp, mpf, nstr, pi, radians, sign, sin, sqrt,
                    tan)

mp.dps = 40
ELLIPSOIDS = {47: ("6378137", "298.257223563"), 15: ("6378206.4", "294.9786982"), 3: ("6378137", "298.257222101"),
              12: ("6377397.155", "299.1528128")}
SNYDER = "Snyder (1987), appendix A"
NOTE = "EPSG Guidance Note 7-2, method {}"
EPSG_ALASKA = "PROJ 9.1.1, EPSG:26931"
SPHERE = mpf(6370997)  # ellipsoid 48


def eccentricity(f):
    return sqrt(f * (2 - f))


def t_of(e, phi):  # (15-9)
    return tan(pi / 4 - phi / 2) / ((1 - e * sin(phi)) / (1 + e * sin(phi)))**(e / 2)


def m_of(e, phi):  # (14-15)
    return cos(phi) / sqrt(1 - e**2 * sin(phi)**2)


def between(angle):
    while angle > pi:
        angle -= 2 * pi
    while angle < -pi:
        angle += 2 * pi
    return angle


def hotine(p, lon, lat):  # pp. 69-75
    a, e, k0 = p["a"], eccentricity(p["f"]), p["k0"]
    phi0, phi, lam = radians(p["lat0"]), radians(lat), radians(lon)
    b = sqrt(1 + e**2 * cos(phi0)**4 / (1 - e**2))
    big_a = a * b * k0 * sqrt(1 - e**2) / (1 - e**2 * sin(phi0)**2)
    d = b * sqrt(1 - e**2) / (cos(phi0) * sqrt(1 - e**2 * sin(phi0)**2))
    root = sign(phi0) * sqrt(max(d**2 - 1, 0))
    big_e = (d + root) * t_of(e, phi0)**b
    if p["use_alpha"]:
        alpha, g = radians(p["alpha"]), ((d + root) - 1 / (d + root)) / 2
        gamma0 = asin(sin(alpha) / d)
        lam0 = radians(p["lon1"] or p["lon0"]) - asin(max(-1, min(1, g * tan(gamma0)))) / b
    else:
        lam1, lam2 = radians(p["lon1"]), radians(p["lon2"])
        lam2 = lam1 + between(lam2 - lam1)
        h, l = t_of(e, radians(p["lat1"]))**b, t_of(e, radians(p["lat2"]))**b
        f, j = big_e / h, (big_e**2 - l * h) / (big_e**2 + l * h)
        lam0 = (lam1 + lam2) / 2 - atan(j * tan(b * (lam1 - lam2) / 2) * (l + h) / (l - h)) / b
        gamma0 = atan(2 * sin(b * (lam1 - lam0)) / (f - 1 / f))
        alpha = asin(d * sin(gamma0))
    angle = b * between(lam - lam0)
    q = big_e / t_of(e, phi)**b
    s, t, v = (q - 1 / q) / 2, (q + 1 / q) / 2, sin(angle)
    big_u = (s * sin(gamma0) - v * cos(gamma0)) / t
    v, u = big_a * log((1 - big_u) / (1 + big_u)) / (2 * b), atan2(s * cos(gamma0) + v * sin(gamma0), cos(angle))
    if p["u_offset"]:
        u -= atan2(root, cos(alpha))
    u *= big_a / b
    if not p["rotate"]:
        return u, v
    return v * cos(alpha) + u * sin(alpha), u * cos(alpha) - v * sin(alpha)


def oblique_mercator(p, lon, lat):  # pp. 69-70
    phi1, lam1, phi2, lam2 = (radians(p[k]) for k in ("lat1", "lon1", "lat2", "lon2"))
    phi, lam = radians(lat), radians(lon)
    lamp = atan2(cos(phi1) * sin(phi2) * cos(lam1) - sin(phi1) * cos(phi2) * cos(lam2),
                 sin(phi1) * cos(phi2) * sin(lam2) - cos(phi1) * sin(phi2) * sin(lam1))
    phip = atan(-cos(lamp - lam1) / tan(phi1))
    if phip < 0:
        lamp, phip = lamp + pi, -phip
    away = lam - lamp - pi / 2
    big_a = sin(phip) * sin(phi) - cos(phip) * cos(phi) * sin(away)
    x = atan2(tan(phi) * cos(phip) + sin(phip) * sin(away), cos(away))
    return p["a"] * p["k0"] * x, p["a"] * p["k0"] * atanh(big_a)


def directions(phi1, phi, lam):
    return (cos(phi) * sin(lam), cos(phi1) * sin(phi) - sin(phi1) * cos(phi) * cos(lam),
            sin(phi1) * sin(phi) + cos(phi1) * cos(phi) * cos(lam))


def stereographic(p, lon, lat):  # pp. 157-162
    a, e, k0 = p["a"], eccentricity(p["f"]), p["k0"]
    lam, phi, phi1 = radians(lon - p["lon0"]), radians(lat), radians(p["lat0"])
    if abs(p["lat0"]) == 90:
        north = sign(phi1)
        rho = 2 * a * k0 * t_of(e, north * phi) / sqrt((1 + e)**(1 + e) * (1 - e)**(1 - e))
        return rho * sin(lam), -north * rho * cos(lam)
    chi, chi1 = (2 * atan(1 / t_of(e, v)) - pi / 2 for v in (phi, phi1))
    east, north, up = directions(chi1, chi, lam)
    big_a = 2 * a * k0 * m_of(e, phi1) / (cos(chi1) * (1 + up))
    return big_a * east, big_a * north


def orthographic(p, lon, lat):  # the ellipsoid's points in a frame of plumb line, east and north at the centre
    a, e2 = p["a"], p["f"] * (2 - p["f"])
    lam, phi, phi0 = radians(lon - p["lon0"]), radians(lat), radians(p["lat0"])

    def geocentric(latitude, longitude):
        nu = a / sqrt(1 - e2 * sin(latitude)**2)
        return matrix([nu * cos(latitude) * cos(longitude), nu * cos(latitude) * sin(longitude),
                       nu * (1 - e2) * sin(latitude)])

    offset = geocentric(phi, lam) - geocentric(phi0, mpf(0))
    return offset[1], -sin(phi0) * offset[0] + cos(phi0) * offset[2]


def authalic(f, phi):
    def q_of(latitude):  # (3-12)
        e, s = eccentricity(f), sin(latitude)
        return (1 - e**2) * (s / (1 - e**2 * s**2) - log((1 - e * s) / (1 + e * s)) / (2 * e)) if f else 2 * s
    q, qp = q_of(phi), q_of(pi / 2)
    return max(-qp, min(qp, q)), qp


def lambert_azimuthal(p, lon, lat):  # pp. 185-189
    a, e = p["a"], eccentricity(p["f"])
    lam, phi, phi1 = radians(lon - p["lon0"]), radians(lat), radians(p["lat1"])
    (q, qp), (q1, _) = authalic(p["f"], phi), authalic(p["f"], phi1)
    if abs(p["lat1"]) == 90:
        north = sign(phi1)
        rho = a * sqrt(qp - north * q)
        return rho * sin(lam), -north * rho * cos(lam)
    rq, beta1 = a * sqrt(qp / 2), asin(q1 / qp)
    east, north, up = directions(beta1, asin(q / qp), lam)
    b, d = rq * sqrt(2 / (1 + up)), a * m_of(e, phi1) / (rq * cos(beta1))
    return b * d * east, b / d * north


def gnomonic(p, lon, lat):  # p. 165
    east, north, up = directions(radians(p["lat1"]), radians(lat), radians(lon - p["lon0"]))
    return p["a"] * east / up, p["a"] * north / up


rng = random.Random(6)


def anywhere(lon0, lat0):
    return round(rng.uniform(-180, 180), 5), round(rng.uniform(-90, 90), 5)


def within(reach):
    def near(lon0, lat0):
        """A point at most so many degrees from the centre, on a sphere."""
        c, az, phi = radians(rng.uniform(0, reach)), radians(rng.uniform(-180, 180)), radians(lat0)
        lat = asin(cos(c) * sin(phi) + sin(c) * cos(phi) * cos(az))
        lon = atan2(sin(c) * sin(az), cos(phi) * cos(c) - sin(phi) * sin(c) * cos(az))
        return round(float(degrees(lon)) + lon0, 5), round(float(degrees(lat)), 5)
    return near


def record(kind, ell, params):
    """The words of a case, and the values behind them."""
    values = {"f": mpf(0), "a": SPHERE, "use_alpha": 0, "u_offset": 0, "rotate": 0, "lon0": 0, "lon1": 0, "k0": mpf(1)}
    if ell != 48:
        values.update(a=mpf(ELLIPSOIDS[ell][0]), f=1 / mpf(ELLIPSOIDS[ell][1]))
    words = [case_file.record(kind, ell)]
    for key, value in params.items():
        words.append(f"{key}={value}")
        values[key] = mpf(str(value))
    return " ".join(words), values


def cases(name, formula, kind, sets, pick, special, source):
    with case_file.rewritten(name + ".txt") as out:
        out.write("# Made by make_azimuthal_oblique.py.\n")
        for words, geographic, projected, tolerance, origin in PUBLISHED.get(name, []):
            out.write(f"{words} | {geographic} | {projected} | {tolerance} | {origin}\n")
        out.write("# The definition, 40 digits.\n")
        tolerance = "1e-7" if name in ("stereographic", "gnomonic") else "5e-8"  # the former enlarge most
        for count, (ell, params) in enumerate(sets):
            words, values = record(kind, ell, params)
            lon0 = float(params.get("lon0") or params.get("lon1") or 0)
            lat0 = float(params["lat1" if "lat0" not in params else "lat0"])
            points = [pick(lon0, lat0) for _ in range(3)] + (special(lon0, lat0) if count % 3 == 0 else [])
            for lon, lat in points:
                # poles, where formulas as printed divide by zero, are taken from 1e-30 degrees away
                latitude = mpf(repr(lat)) * (1 - mpf(10)**-32 if abs(lat) == 90 else 1)
                x, y = formula(values, mpf(repr(lon)), latitude)
                out.write(f"{words} | {lon!r} {lat!r} | {nstr(x, 18)} {nstr(y, 18)} | {tolerance} "
                          f"| {source}, 40 digits (mpmath)\n")


HOTINE_SETS = [
    (3, dict(lat0=57, lon1="-133.6666666666667", alpha="-36.86989764166667", k0="0.9999", use_alpha=1, rotate=1,
             u_offset=1)),
    (15, dict(lat0=40, lat1=47.5, lon1=-122.3, lat2=25.7, lon2=-80.2, k0="0.9996", rotate=1)),
    (12, dict(lat0="46.95240555555556", lon0="7.439583333333333", alpha=90, use_alpha=1, rotate=1, u_offset=1)),
    (47, dict(lat0=-18.9, lon1=46.4, alpha=18.9, k0="0.9995", use_alpha=1)),
    (47, dict(lat0=4, lon0=178.5, alpha="53.31582047222222", k0="0.99984", use_alpha=1, rotate=1)),
    (47, dict(lat0=0, lon0=-75, alpha=-60, use_alpha=1, rotate=1, u_offset=1)),
    (15, dict(lat0=15, lat1=44, lon1=87, lat2=0, lon2=0, k0="0.9999", rotate=1, u_offset=1)),
    (3, dict(lat0=-35, lat1=-20, lon1=170, lat2=-45, lon2=-165, u_offset=1)),
    (48, dict(lat0=30, lon0=20, alpha=45, use_alpha=1, rotate=1)),
]
OBLIQUE_SETS = [
    (48, dict(lat1=45, lon1=0, lat2=1, lon2=-90)),
    (48, dict(lat1=-30, lon1=170, lat2=20, lon2=-150, k0="0.9996")),
    (47, dict(lat1=60, lon1=10, lat2=-5, lon2=40)),
    (48, dict(lat1=10, lon1=-179, lat2=70, lon2=100)),
]
PLACES = [(47, 52.5, 13.25), (15, -33.25, 151), (48, 40, -100), (12, 0, 179.5), (3, 90, -45), (47, -90, 0),
          (48, 89.5, 10), (47, -0.001, -179.75), (48, -90, 30)]


def azimuthal_sets(latitude, **more):
    return [(ell, {latitude: lat, "lon0": lon, **more}) for ell, lat, lon in PLACES]


def facing(lon0, lat0):
    """The centre, a place on its meridian, and the pole that it faces, if it does."""
    pole = [(lon0 + 20, math.copysign(90, lat0))] if abs(lat0) > 1 else []
    return [(lon0, lat0), (lon0, lat0 - 30 if lat0 > 0 else lat0 + 30)] + pole


def around(lon0, lat0):
    return facing(lon0, lat0) + [(lon0 + 180, 35.0)]


PUBLISHED = {
    "hotine": [
        ("type=hotine ellipsoid=clarke-1866 lat0=40 lat1=47.5 lon1=-122.3 lat2=25.7 lon2=-80.2 k0=0.9996 x0=4000000 y0=500000 "
         "rotate=1", "-74 40.8", "963436.1 4369142.8", 0.06, SNYDER),
        ("type=hotine ellipsoid=clarke-1866 lat0=36 lon1=-77.7610558 alpha=14.3394883 use_alpha=1",
         "-76.87079527777777 38.80921277777777", "4414439.0 -2356.3", 0.06, SNYDER),
        ("type=hotine ellipsoid=everest-brunei lat0=4 lon1=115 alpha=53.31582047222222 k0=0.99984 use_alpha=1",
         "115.80550544444444 5.387253583333334", "901334.257 -69702.787", 0.0006,
         "EPSG guidance note 7-2, method 9812"),
        ("type=state-plane-1983 ellipsoid=grs-1980-iugg-1980 zone=alaska-1", "-134.5 58.5", "770081.060225 742439.408613", 2e-6, EPSG_ALASKA),
        ("type=state-plane-1983 ellipsoid=grs-1980-iugg-1980 zone=alaska-1", "-130 54.75", "1054692.521314 330875.570869", 2e-6, EPSG_ALASKA)],
    "stereographic": [
        ("type=stereographic radius=1 lat0=40 lon0=-100 k0=1", "-75 30", "0.3807224 -0.1263802", 5.1e-8, SNYDER),
        ("type=stereographic ellipsoid=clarke-1866 lat0=40 lon0=-100 k0=0.9999", "-90 30", "971630.8 -1063049.3", 0.06, SNYDER),
        ("type=stereographic ellipsoid=wgs-84 lat0=90 lon0=0 k0=0.994 x0=2000000 y0=2000000", "44 73", "3320416.75 632668.43", 0.006,
         NOTE.format(9810))],
    "orthographic": [
        ("type=orthographic radius=1 lat0=40 lon0=-100", "-110 30", "-0.1503837 -0.1651911", 5.1e-8, SNYDER),
        ("type=orthographic ellipsoid=wgs-84 lat0=55 lon0=5", "2.12955 53.80939444444444", "-189011.711 -128640.567", 0.0006,
         NOTE.format(9840))],
    "lambert-azimuthal": [
        ("type=lambert-azimuthal radius=3 lat1=40 lon0=-100", "100 -20", "-4.2339303 4.0257775", 5.1e-8, SNYDER),
        ("type=lambert-azimuthal ellipsoid=clarke-1866 lat1=40 lon0=-100", "-110 30", "-965932.1 -1056814.9", 0.06, SNYDER),
        ("type=lambert-azimuthal ellipsoid=international-1924 lat1=90 lon0=-100", "5 80", "1077459.7 288704.5", 0.06, SNYDER),
        ("type=lambert-azimuthal ellipsoid=grs-1980-iugg-1980 lat1=52 lon0=10 x0=4321000 y0=3210000", "5 50", "3962799.45 2999718.85", 0.006,
         NOTE.format(9820))],
    "gnomonic": [("type=gnomonic radius=1 lat1=40 lon0=-100", "-110 30", "-0.1542826 -0.1694739", 5.1e-8, SNYDER)],
}

cases("hotine", hotine, 12, HOTINE_SETS, within(75), lambda lon0, lat0: [(12.5, 90.0), (-60.0, -90.0)],
      "Snyder (1987), pp. 69-75")
cases("oblique-mercator", oblique_mercator, 25, OBLIQUE_SETS, anywhere,
      lambda lon0, lat0: [(12.5, 90.0), (180.0, -45.0), (-180.0, 10.0)], "Snyder (1987), pp. 69-70")
cases("stereographic", stereographic, 6, azimuthal_sets("lat0", k0="0.9999"), within(150), around,
      "Snyder (1987), pp. 157-162")
cases("orthographic", orthographic, 7, azimuthal_sets("lat0"), within(80), facing, "geometry of the ellipsoid")
cases("lambert-azimuthal", lambert_azimuthal, 20, azimuthal_sets("lat1"), within(150), around,
      "Snyder (1987), pp. 185-189")
cases("gnomonic", gnomonic, 27, azimuthal_sets("lat1"), within(80), facing, "Snyder (1987), p. 165")
