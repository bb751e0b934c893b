#!/usr/bin/env python3
"""Makes reference.txt: the reference files of 29 records, one for each projection type, with the seven numbers that a
datum method may have and the thirteen of georeference methods taken in turn. The tables are those of the file format,
typed apart from the library's; numbers are written by Python's own %.15G. tests/files/RefFile_test.cpp makes the same
records. A line "== TYPE" precedes each file."""

PROJECTIONS = """Unprojected Lat/Long|Mercator|Albers Equal Area Conic|Miller Cylindrical|Universal Transverse Mercator (UTM)
Lambert Conformal Conic|Stereographic|Orthographic|Mollweide|State Plane 1927|State Plane 1983|Polyconic
Hotine Oblique Mercator|Equidistant Cylindrical|Robinson|Van Der Grinten|Cassini|Transverse Mercator
Gauss-Kruger / Gauss Conformal|Sinusoidal|Lambert Azimuthal Equal Area|Bonne|Robinson-Sterling|Eckert IV|Eckert VI
Oblique Mercator|Equidistant Conic|Gnomonic|Azimuthal Equidistant""".replace("\n", "|").split("|")

# The fields that a type uses beside those that all have.
USED = {
    1: "lon0 lat0", 2: "lon0 lat0 lat1 lat2", 3: "lon0", 4: "k0 lon0 lat0 south", 5: "lon0 lat0 lat1 lat2",
    6: "k0 lon0 lat0", 7: "lon0 lat0", 8: "lon0", 9: "zone", 10: "zone", 11: "lon0 lat0",
    12: "k0 usealpha lon0 alpha lat0 lat1 lon1 lat2 lon2 rotate uoffset", 13: "lon0 lat1", 15: "lon0", 16: "lat0 lon0",
    17: "k0 lon0 lat0", 18: "k0 lon0 lat0", 19: "lon0", 20: "lon0 lat1", 21: "lon0 lat1", 22: "lon0", 23: "lon0",
    24: "lon0", 25: "lon1 lat1 lon2 lat2", 26: "lon0 lat0 lat1 lat2", 27: "lon0 lat1", 28: "lon0 lat1",
}
FIELDS = [
    ("lat0", "Lat0 (degrees)", 10.1), ("lon0", "Lon0 (degrees)", -20.2), ("lat1", "Lat1 (degrees)", 30.3),
    ("lat2", "Lat2 (degrees)", 40.4), ("lat3", "Lat3 (degrees)", 50.5), ("lon1", "Lon1 (degrees)", 60.6),
    ("lon2", "Lon2 (degrees)", 70.7), ("lon3", "Lon3 (degrees)", 80.8), ("k0", "Central Scale", 0.9996),
    ("south", "In Southern Hemisphere (UTM only)", "true"), ("zone", "State Zone", "California I"),
    ("usealpha", "Uses Alpha Parameter (Hotine only)", "true"), ("alpha", "Alpha", 33.75),
    ("rotate", "Rotates UV to XY (Hotine only)", "false"), ("uoffset", "Offets by U (Hotine only)", "true"),
]
DATUM_METHODS = ["No transform", "NADCON", "Bursa-Wolf", "Molodensky", "UNKNOWN", "MRE", "UNKNOWN"]
DATUM_FIELDS = [
    ("Prime Meridian Shift (degrees)", 2.337229167), ("X-Shift in meters from WGS84", -87.5),
    ("Y-Shift in meters from WGS84", 1e-5), ("Z-Shift in meters from WGS84", 1e15),
    ("X-rotation in arcseconds from WGS84", 0.25), ("Y-rotation in arcseconds from WGS84", -1.5),
    ("Z-rotation in arcseconds from WGS84", 1 / 3), ("Scale relative to WGS84", -4.6121),
]
GEOREF_METHODS = """Helmert|Affine Polynomial|1st Order Polynomial|2nd Order Polynomial|3rd Order Polynomial
Precalculated Affine Coefficients|Thin Plate Spline|Natural Cubic Spline|Marcov Spline|Exponential Spline
Rational Quadratic Spline|Inverse Distance Squared""".replace("\n", "|").split("|")
POINTS = [(0.5, -1.25, 500000.125, 4.5e6), (1e-7, 123456789012345678.0, -1e100, 0.0)]


def text(value):
    return value if isinstance(value, str) else "%.15G" % value


def ellipsoid(user):
    """The catalogue's Clarke 1866, or the record's own figures."""
    if user:
        return [("Type", "USER-DEFINED"), ("Radius (meters)", 6378000.5), ("Flattening", 0.0033)]
    return [("Type", "Clarke 1866"), ("Radius (meters)", 6378206.4), ("Flattening", 1 / 294.9786982)]


def projection(type_):
    yield "Projection Name", PROJECTIONS[type_]
    if type_ == 0:
        return
    yield "Projection Scale", 1.5
    yield "Projection False Easting (meters)", 500000.25
    yield "Projection False Northing (meters)", -1234567.875
    for name, key, value in FIELDS:
        if name in USED.get(type_, "").split():
            yield "Projection " + key, value
    for key, value in ellipsoid(type_ % 2):
        yield "Projection Ellipsoid " + key, value


def datum(method):
    yield "Datum Name", "European 1950 - Mean"
    yield "Datum Method", DATUM_METHODS[method]
    if method not in (2, 3):
        return
    kind, radius, flattening = ellipsoid(method == 2)
    yield "Datum Ellipsoid " + kind[0], kind[1]
    for key, value in DATUM_FIELDS[: 8 if method == 2 else 4]:
        yield "Datum " + key, value
    yield "Datum Ellipsoid " + radius[0], radius[1]
    yield "Datum Ellipsoid " + flattening[0], flattening[1]


def georef(method):
    if method == 12:
        return
    yield "Georef Method", GEOREF_METHODS[method]
    if method == 5:
        for letter in "ABCDEF":
            yield "Georef Coefficient " + letter, 0.1
        return
    yield "Georef Control Point Count", str(len(POINTS))
    for point in POINTS:
        yield "Georef Point", "  ".join(text(x) for x in point)


with open("reference.txt", "w") as out:
    for type_ in range(29):
        print("== %d" % type_, file=out)
        print("Zorvane Cartographic Reference Information : Version 1.10", file=out)
        for part in projection(type_), datum(type_ % 7), georef(type_ % 13):
            for key, value in part:
                print(key, ":", text(value), file=out)
