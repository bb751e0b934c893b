#!/usr/bin/env python3
"""Writes the reference values of the maps of the whole globe, one file a projection, from their definitions as printed,
evaluated with 40 digits (mpmath): Mollweide, Eckert IV and VI, Van der Grinten as in Snyder (1987), pp. 239-258, Robinson
as the spline and the central differences through his table. Run it in this folder."""
import random

import case_file
from mpmath import asin, cos, findroot, floor, lu_solve, matrix, mp, mpf, nstr, pi, sin, sqrt, tan

mp.dps = 40
RADII = {48: "6370997", 47: "6378137"}
LENGTHS = ("1.0000 0.9986 0.9954 0.9900 0.9822 0.9730 0.9600 0.9427 0.9216 0.8962 0.8679 0.8350 0.7986 0.7597 0.7186 "
           "0.6732 0.6213 0.5722 0.5322").split()
DISTANCES = ("0.0000 0.0620 0.1240 0.1860 0.2480 0.3100 0.3720 0.4340 0.4958 0.5571 0.6176 0.6769 0.7346 0.7903 0.8435 "
             "0.8936 0.9394 0.9761 1.0000").split()


def solved(f, phi):
    """The root of an increasing function of theta between the poles."""
    if abs(phi) == pi / 2:
        return phi
    return findroot(f, (-pi / 2, pi / 2), solver="anderson", tol=mpf(10)**-75, maxsteps=400)


def mollweide(r, lam, phi):
    theta = solved(lambda t: 2 * t + sin(2 * t) - pi * sin(phi), phi)
    return 2 * sqrt(mpf(2)) / pi * r * lam * cos(theta), sqrt(mpf(2)) * r * sin(theta)


def eckert4(r, lam, phi):
    theta = solved(lambda t: t + sin(t) * cos(t) + 2 * sin(t) - (2 + pi / 2) * sin(phi), phi)
    return 2 / sqrt(pi * (4 + pi)) * r * lam * (1 + cos(theta)), 2 * sqrt(pi / (4 + pi)) * r * sin(theta)


def eckert6(r, lam, phi):
    theta = solved(lambda t: t + sin(t) - (1 + pi / 2) * sin(phi), phi)
    return r * lam * (1 + cos(theta)) / sqrt(2 + pi), 2 * r * theta / sqrt(2 + pi)


def van_der_grinten(r, lam, phi):
    theta = asin(abs(2 * phi / pi))
    up = 1 if phi >= 0 else -1
    if phi == 0:
        return r * lam, mpf(0)
    if lam == 0 or abs(phi) == pi / 2:
        return mpf(0), up * pi * r * tan(theta / 2)
    a = abs(pi / lam - lam / pi) / 2
    g = cos(theta) / (sin(theta) + cos(theta) - 1)
    p = g * (2 / sin(theta) - 1)
    q = a**2 + g
    x = (a * (g - p**2) + sqrt(a**2 * (g - p**2)**2 - (p**2 + a**2) * (g**2 - p**2))) / (p**2 + a**2)
    y = (p * q - a * sqrt((a**2 + 1) * (p**2 + a**2) - q**2)) / (p**2 + a**2)
    return pi * r * (x if lam > 0 else -x), up * pi * r * y


def mirrored(k):
    return mpf(LENGTHS[abs(k)]), mpf(DISTANCES[abs(k)]) * (1 if k >= 0 else -1)


def cubics(values):
    """Coefficients of the 36 cubics of a not-a-knot spline, from one linear system for all of them."""
    n = len(values) - 1
    a, b = matrix(4 * n, 4 * n), matrix(4 * n, 1)
    row = 0

    def add(terms, right):
        nonlocal row
        for column, factor in terms:
            a[row, column] += factor
        b[row] = right
        row += 1

    for i in range(n):
        add([(4 * i, 1)], values[i])
        add([(4 * i + k, 1) for k in range(4)], values[i + 1])
    for i in range(n - 1):
        add([(4 * i + 1, 1), (4 * i + 2, 2), (4 * i + 3, 3), (4 * i + 5, -1)], 0)
        add([(4 * i + 2, 2), (4 * i + 3, 6), (4 * i + 6, -2)], 0)
    for i in (0, n - 2):
        add([(4 * i + 3, 1), (4 * i + 7, -1)], 0)
    return lu_solve(a, b)


SPLINES = [cubics([mirrored(k)[i] for k in range(-18, 19)]) for i in (0, 1)]


def robinson(r, lam, phi):
    steps = phi * 36 / pi + 18
    i = min(int(floor(steps)), 35)
    p = steps - i
    length, distance = (sum(s[4 * i + k] * p**k for k in range(4)) for s in SPLINES)
    return mpf("0.8487") * r * length * lam, mpf("1.3523") * r * distance


def robinson_sterling(r, lam, phi):
    steps = abs(phi) * 36 / pi
    k = min(int(floor(steps)), 17)
    p = steps - k
    length, distance = (b + p * (c - a) / 2 + p**2 * (c - 2 * b + a) / 2
                        for a, b, c in zip(mirrored(k - 1), mirrored(k), mirrored(k + 1)))
    return mpf("0.8487") * r * length * lam, mpf("1.3523") * r * distance * (1 if phi >= 0 else -1)


def write(name, kind, project, origin, published="", has_lon0=True):
    rng = random.Random(kind)
    with case_file.rewritten(name) as out:
        out.write("# Made by make_world.py.\n" + published)
        for i in range(24):
            ellipsoid = rng.choice(list(RADII))
            lon0 = rng.choice([-177, -85.5, 0, 9, 117.25, 179]) if has_lon0 else 0
            lat = [90, -90, 0, 85, -85, 45][i] if i < 6 else 89.9 if i == 6 else round(rng.uniform(-90, 90), 6)
            away = [0, 0, -180, 120, 180, 0][i] if i < 6 else round(rng.uniform(-180, 180), 6)
            lon = mpf(repr(lon0)) + mpf(repr(away))
            x, y = project(mpf(RADII[ellipsoid]), mpf(repr(away)) * pi / 180, mpf(repr(lat)) * pi / 180)
            record = case_file.record(kind, ellipsoid) + (f" lon0={lon0}" if has_lon0 else "")
            record += " forward" if abs(lat) == 90 else ""  # the northing's last digit is metres of latitude there
            tolerance = "1e-6" if lat == 89.9 else "5e-8"
            out.write(f"{record} | {nstr(lon, 15)} {lat!r} | {nstr(x, 18)} {nstr(y, 18)} | {tolerance} | {origin}, "
                      "40 digits (mpmath)\n")


SNYDER = "definition of Snyder (1987)"
write("mollweide.txt", 8, mollweide, SNYDER, """# Published worked example, to the printed digits.
type=mollweide radius=1 lon0=-90 | -75 -50 | 0.1788845 -0.9208758 | 5.1e-8 | Snyder (1987), Appendix A
""")
write("eckert-4.txt", 23, eckert4, SNYDER, """# Published worked example, to the printed digits.
type=eckert-4 radius=1 lon0=-90 | -75 -50 | 0.1875270 -0.9519210 | 5.1e-8 | Snyder (1987), Appendix A
""")
write("eckert-6.txt", 24, eckert6, SNYDER, """# Published worked example, to the printed digits.
type=eckert-6 radius=1 lon0=-90 | -75 -50 | 0.1693623 -0.9570223 | 5.1e-8 | Snyder (1987), Appendix A
""")
write("van-der-grinten.txt", 15, van_der_grinten, SNYDER, """# Published worked example, to the printed digits.
type=van-der-grinten radius=1 lon0=-85 | -160 -50 | -1.1954154 -0.9960733 | 5.1e-8 | Snyder (1987), Appendix A
""")
write("robinson.txt", 14, robinson, "not-a-knot spline through Robinson's table", has_lon0=False)
write("robinson-sterling.txt", 22, robinson_sterling, "Stirling's differences in Robinson's table")
