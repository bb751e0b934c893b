#!/usr/bin/env python3
"""Prints the code tables of src/files from the EPSG registry as PROJ's database holds it.

    python3 make_tables.py ellipsoids|geographic|utm|feet|grids [proj.db]

ellipsoids: every ellipsoid: its code, semi-major axis in metres and inverse flattening (0 for a sphere).

geographic: every system of longitude and latitude in degrees from Greenwich: its code, datum and ellipsoid.
utm: every projected system that is a UTM zone in metres, consecutive codes of consecutive zones in one row.
feet: the State Plane systems of 1983 and its realizations that have a code of their own, by the code of the plain system
in metres, where both have the same parameters.
grids: chosen projected systems with their parameters in degrees and metres.
"""
import re
import sqlite3
import sys

db = sqlite3.connect(sys.argv[2] if len(sys.argv) > 2 else "/usr/share/proj/proj.db")


def ellipsoids():
    return [(code, a * unit, inverse if inverse is not None else 0 if a == b else a / (a - b), name)
            for code, name, a, unit, inverse, b in db.execute("""
        select cast(e.code as int), e.name, e.semi_major_axis, u.conv_factor, e.inv_flattening, e.semi_minor_axis
        from ellipsoid e join unit_of_measure u on u.auth_name = e.uom_auth_name and u.code = e.uom_code
        where e.auth_name = 'EPSG' order by 1""")]


def geographic():
    return db.execute("""
        select cast(g.code as int), cast(g.datum_code as int), cast(d.ellipsoid_code as int), g.name
        from geodetic_crs g join geodetic_datum d on d.auth_name = g.datum_auth_name and d.code = g.datum_code
        where g.auth_name = 'EPSG' and g.type = 'geographic 2D' and d.prime_meridian_code = 8901
        and g.coordinate_system_code in (6402, 6422) and d.ellipsoid_auth_name = 'EPSG' order by 1""").fetchall()


def utm():
    known = {row[0] for row in geographic()}
    rows = db.execute("""
        select cast(p.code as int), cast(v.code as int), cast(p.geodetic_crs_code as int), p.name
        from projected_crs p join conversion_table v on v.auth_name = p.conversion_auth_name and v.code = p.conversion_code
        where p.auth_name = 'EPSG' and v.method_code = 9807
        and p.coordinate_system_code in (4400, 4499, 4498) and p.coordinate_system_auth_name = 'EPSG'
        order by 1""").fetchall()
    runs = []
    for code, conversion, gcs, name in rows:
        values = [value for _, value in parameters(code)[1:]]
        lat, lon, scale, east, north = values
        zone, south = round((lon + 183) / 6), north == 10000000
        if (lat, lon, scale, east) != (0, 6 * zone - 183, 0.9996, 500000) or north not in (0, 10000000):
            continue
        if gcs not in known:
            continue
        last = runs[-1] if runs else None
        if last and (code, zone, gcs, south) == (last[1] + 1, last[2] + code - last[0], last[3], last[4]):
            last[1] = code
        else:
            runs.append([code, code, zone, gcs, south, re.sub(r" / UTM.*", "", name)])
    return runs


def parameters(code):
    row = db.execute("""
        select v.* from projected_crs p join conversion_table v on v.auth_name = p.conversion_auth_name
        and v.code = p.conversion_code where p.auth_name = 'EPSG' and p.code = ?""", (code,)).fetchone()
    if not row or row[5] not in (9801, 9802, 9804, 9805, 9807, 9810, 9812, 9815, 9818, 9820, 9822, 9829):
        return None
    result = [row[5]]
    for i in range(6, 6 + 7 * 5, 5):
        value, unit = row[i + 2], row[i + 4]
        if value is None:
            continue
        kind, factor = db.execute("select type, conv_factor from unit_of_measure where auth_name = 'EPSG' and code = ?",
                                  (unit,)).fetchone()
        if unit == 9110:  # degrees.minutes seconds
            sign, text = (-1 if value < 0 else 1), f"{abs(value):.9f}"
            whole, rest = text.split(".")
            value = sign * (int(whole) + int(rest[:2]) / 60 + float(rest[2:4] + "." + rest[4:]) / 3600)
        elif kind == "length":
            value *= factor
        result.append((row[i + 1], value))
    return result


def same(a, b):
    return a and b and len(a) == len(b) and a[0] == b[0] and all(
        x[0] == y[0] and abs(x[1] - y[1]) < (5e-4 if abs(x[1]) > 400 else 1e-9) for x, y in zip(a[1:], b[1:]))


def feet():
    units = {4495: 9002, 4497: 9003, 4499: 9001}
    metres = {n: c for c, n in db.execute("""select cast(code as int), name from projected_crs where auth_name = 'EPSG'
        and name like 'NAD83 / %' and geodetic_crs_code = 4269 and (cast(code as int) between 26929 and 26998
        or cast(code as int) between 32100 and 32161)""")}
    rows = []
    for code, name, gcs, cs in db.execute("""select cast(code as int), name, geodetic_crs_code, coordinate_system_code
            from projected_crs where auth_name = 'EPSG' and name like 'NAD83%' and coordinate_system_auth_name = 'EPSG'
            order by 1"""):
        if code in metres.values() or cs not in units:
            continue
        plain = re.sub(r"^NAD83(\([^)]*\))?", "NAD83", re.sub(r" \((ftUS|ft)\)$", "", name))
        base = metres.get(plain)
        if base and same(parameters(code), parameters(base)):
            rows.append((code, base, units[cs], gcs, name))
    return rows


# State Plane zones whose definition is not that of the catalogue's zone in metres, then grids of countries and continents.
GRIDS = [2246, 2264, 26747, 26801, 26802, 26803, 26979, 32018, 32029, 32036,
         2100, 2154, 2157, 2180, 2193, 3005, 3006, 3031, 3034, 3035, 3067, 3078, 3081, 3083, 3112, 3174, 3310, 3338, 3347,
         3395, 3413, 3577, 3763, 3765, 3812, 3976, 3978, 3979, 3995, 3996, 5070, 5180, 5181, 5186, 5880, 6350, 6372,
         6931, 6932, 21781, 2056, 2326, 22523, 23700, 25884, 27700, 29101, 29902, 29903, 31254, 31255,
         31256, 31257, 31258, 31259, 31287, 31370, 31466, 31467, 31468, 31469, 32181, 32182, 32183, 32184, 32185,
         32186, 32187, 32188, 32189, 32190, 32191, 32192, 32193, 32194, 32195, 32196, 32197, 32198]
TRANSFORMATIONS = {9807: "transverseMercator", 9812: "obliqueMercator", 9804: "mercator", 9805: "mercator",
                   9802: "lambertConformal2", 9801: "lambertConformal1", 9820: "lambertAzimuthal", 9822: "albers",
                   9810: "polarStereographic", 9829: "polarStereographic", 9818: "polyconic",
                   9815: "obliqueMercatorFromCentre"}
# Which parameter a code of the registry is.
MEANINGS = {8801: "lat", 8811: "lat", 8821: "lat", 8832: "lat", 8802: "lon", 8812: "lon", 8822: "lon", 8833: "lon",
            8823: "p1", 8824: "p2", 8805: "k", 8815: "k", 8806: "e", 8816: "e", 8826: "e", 8807: "n", 8817: "n", 8827: "n",
            8813: "azimuth", 8814: "angle"}


def grids():
    known = {row[0] for row in geographic()}
    for code in sorted(GRIDS):
        gcs, name, unit = db.execute("""
            select cast(p.geodetic_crs_code as int), p.name, cast(a.uom_code as int) from projected_crs p
            join axis a on a.coordinate_system_auth_name = p.coordinate_system_auth_name
            and a.coordinate_system_code = p.coordinate_system_code where p.auth_name = 'EPSG' and p.code = ?""",
                                     (code,)).fetchone() or (0, "", 0)
        method, *values = parameters(code) or [None]
        if method not in TRANSFORMATIONS or gcs not in known:
            print(f"left out: {code} {name}", file=sys.stderr)
            continue
        value = {"lat": 0, "lon": 0, "p1": 0, "p2": 0, "k": 1, "e": 0, "n": 0, "azimuth": 0, "angle": 0}
        value.update((MEANINGS[key], number) for key, number in values)
        yield code, gcs, unit, TRANSFORMATIONS[method], value, name


if sys.argv[1] == "grids":
    for code, gcs, unit, method, value, name in grids():
        print(f"    GridRow{{{code}, {gcs}, {unit}, {method}, {{" + ", ".join(f"{v:.15g}" for v in value.values())
              + f"}}}}, // {name}")
elif sys.argv[1] == "ellipsoids":
    for code, a, inverse, name in ellipsoids():
        print(f"    EllipsoidCodeRow{{{code}, {a:.15g}, {inverse:.15g}}}, // {name}")
elif sys.argv[1] == "geographic":
    for code, datum, ellipsoid, name in geographic():
        print(f"    GeographicRow{{{code}, {datum}, {ellipsoid}}}, // {name}")
elif sys.argv[1] == "utm":
    for first, last, zone, gcs, south, name in utm():
        print(f"    UtmRow{{{first}, {last}, {zone}, {str(south).lower()}, {gcs}}}, // {name}")
else:
    for code, base, unit, gcs, name in feet():
        print(f"    StatePlaneRow{{{code}, {base}, {unit}, {gcs}}}, // {name}")
