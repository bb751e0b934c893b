#!/usr/bin/env python3
"""Writes systems.txt: the tags that GDAL gives TIFF files of many coordinate systems, and what GDAL makes of points.

    /usr/bin/python3 make_systems.py > systems.txt        (needs Debian's python3-gdal)

A block a system:
    system DEFINITION
    tag NUMBER TYPE VALUES...      texts in quotes
    point LONGITUDE LATITUDE X Y   from Greenwich, on the system's own datum; X and Y in the file's unit
or, instead of the points, the beginning of the reason why it cannot be read:
    refused REASON
"""
import math
import struct
import tempfile

from osgeo import gdal, osr

gdal.UseExceptions()
osr.UseExceptions()
gdal.SetConfigOption("OSR_USE_NON_DEPRECATED", "NO")  # a number means what it meant

# The definition, and a longitude and latitude in the middle of where it is used, or the reason of a refusal.
SYSTEMS = [
    ("EPSG:32617", -80, 43), ("EPSG:32733", 14, -22), ("EPSG:32260", 178, 10), ("EPSG:32335", 27, -10),
    ("EPSG:26717", -80, 43), ("EPSG:26910", -122, 45), ("EPSG:23031", 4, 52), ("EPSG:25832", 9, 50),
    ("EPSG:28355", 147, -35), ("EPSG:31983", -45, -20), ("EPSG:20136", 33, 9), ("EPSG:29101", -54, -10),
    ("EPSG:26729", -86, 32), ("EPSG:26741", -122, 40), ("EPSG:26745", -118, 34), ("EPSG:26731", -134, 57),
    ("EPSG:32054", -90, 43), ("EPSG:32134", -100, 44), ("EPSG:32161", -66, 18), ("EPSG:32145", -72.5, 44),
    ("EPSG:2226", -121, 39), ("EPSG:2222", -110, 33), ("EPSG:2285", -121, 48), ("EPSG:2762", -110.2, 32),
    ("EPSG:6446", -82, 28), ("EPSG:26931", -134, 57),
    ("EPSG:4326", 10, 50), ("EPSG:4267", -90, 40), ("EPSG:4807", "longitudes and latitudes are not in degrees"),
    ("EPSG:27700", -2, 52), ("EPSG:2154", 3, 46), ("EPSG:31370", 4.5, 50.5), ("EPSG:3395", 10, 50), ("EPSG:3413", -40, 75),
    ("EPSG:26979", -84, 38), ("EPSG:2205", -84, 38), ("EPSG:26747", -118, 34), ("EPSG:2056", 8, 47), ("EPSG:3857", 10, 50), ("EPSG:27572", 3, 46),
    ("EPSG:28992", "no record says the projection Oblique Stereographic"), ("EPSG:4979", 10, 50), ("EPSG:3006", 16, 60), ("EPSG:2443", 130, 33),
    ("EPSG:2046", "the records' coordinates grow"), ("EPSG:5514", "no record says the projection Krovak"),
    ("+proj=lcc +lat_1=44 +lat_2=49 +lat_0=46.5 +lon_0=3 +x_0=700000 +y_0=6600000 +ellps=GRS80", 3, 46),
    ("+proj=lcc +lat_1=46.8 +lat_0=46.8 +k_0=0.99987742 +lon_0=2.337229167 +x_0=600000 +y_0=2200000 +ellps=clrk80ign", 3, 46),
    ("+proj=lcc +lat_1=18 +lat_0=18 +k_0=1 +lon_0=-77 +x_0=250000 +y_0=150000 +ellps=clrk66", -77, 18),
    ("+proj=lcc +lat_1=-33 +lat_2=-33 +lat_0=-33 +lon_0=20 +ellps=WGS84 +units=us-ft", 20, -33),
    ("+proj=aea +lat_1=29.5 +lat_2=45.5 +lat_0=23 +lon_0=-96 +datum=NAD83", -96, 38),
    ("+proj=aea +lat_1=-18 +lat_2=-36 +lat_0=0 +lon_0=132 +ellps=GRS80 +units=km", 132, -25),
    ("+proj=merc +lon_0=110 +k=0.997 +x_0=3900000 +y_0=900000 +ellps=bessel", 110, -5),
    ("+proj=merc +lat_ts=41 +lon_0=100 +ellps=krass", 100, 41),
    ("+proj=merc +lon_0=0 +datum=WGS84", 10, 50), ("+proj=merc +R=6378137 +lon_0=0", 10, 50),
    ("+proj=stere +lat_0=-90 +lat_ts=-71 +lon_0=0 +datum=WGS84", 20, -70),
    ("+proj=stere +lat_0=90 +lat_ts=70 +lon_0=-45 +a=6378273 +b=6356889.449", -40, 75),
    ("+proj=stere +lat_0=90 +k=0.994 +lon_0=0 +x_0=2000000 +y_0=2000000 +datum=WGS84", 60, 80),
    ("+proj=stere +lat_0=52 +lon_0=5 +k=0.9999 +x_0=155000 +y_0=463000 +ellps=bessel", 5, 52),
    ("+proj=sterea +lat_0=52 +lon_0=5 +k=0.9999 +x_0=155000 +y_0=463000 +ellps=bessel", "no record says the projection Oblique Stereographic"),
    ("+proj=omerc +lat_0=57 +lonc=-133.6666666666667 +alpha=323.1301023611111 +gamma=323.1301023611111 +k=0.9999 "
     "+x_0=818676.7344011233 +y_0=575097.6888751927 +ellps=GRS80", -134, 57),
    ("+proj=omerc +no_uoff +lat_0=45.30916666666666 +lonc=-86 +alpha=337.25556 +gamma=337.25556 +k=0.9996 +x_0=2546731.496 "
     "+y_0=-4354009.816 +datum=NAD83", -86, 44),
    ("+proj=omerc +lat_0=46.95240555555556 +lonc=7.439583333333333 +alpha=90 +gamma=90 +k=1 +x_0=600000 +y_0=200000 "
     "+ellps=bessel", 8, 47),
    ("+proj=omerc +no_uoff +lat_0=4 +lonc=102.25 +alpha=323.0257905 +gamma=323.1301023611111 +k=0.99984 +x_0=804670.24 "
     "+y_0=0 +ellps=GRS80", "the records turn the grid"),
    ("+proj=poly +lat_0=0 +lon_0=-54 +x_0=5000000 +y_0=10000000 +ellps=aust_SA", -54, -10),
    ("+proj=laea +lat_0=52 +lon_0=10 +x_0=4321000 +y_0=3210000 +ellps=GRS80", 10, 50),
    ("+proj=aeqd +lat_0=38 +lon_0=-95 +datum=WGS84", -90, 40),
    ("+proj=cass +lat_0=10.44166666666667 +lon_0=-61.33333333333334 +x_0=86501.46392 +y_0=65379.0134283 +a=6378293.645208759 "
     "+b=6356617.987679838", -61, 10.5),
    ("+proj=sinu +lon_0=20 +datum=WGS84", 25, -20), ("+proj=sinu +R=6371007.181", 25, 60),
    ("+proj=eqdc +lat_1=20 +lat_2=60 +lat_0=40 +lon_0=-96 +datum=NAD83", -96, 40),
    ("+proj=mill +lon_0=11 +R=6371000", 10, 50), ("+proj=gnom +lat_0=40 +lon_0=-100 +R=6370997", -100, 42),
    ("+proj=ortho +lat_0=40 +lon_0=-100 +datum=WGS84", -95, 42), ("+proj=vandg +R=6371000", 10, 50),
    ("+proj=eqc +lat_ts=40 +R=6371000", 10, 50),
    ("+proj=eqc +lat_ts=40 +datum=WGS84", "an equirectangular map of an ellipsoid"),
    ("+proj=mill +R_A +datum=WGS84", "programs differ in the sphere"), ("+proj=vandg +R_A +datum=WGS84", "programs differ in the sphere"),
    ("+proj=robin +lon_0=10 +R=6371000", "the projection has no central"),
    ("+proj=tmerc +lat_0=49 +lon_0=-2 +k=0.9996012717 +x_0=400000 +y_0=-100000 +ellps=airy "
     "+towgs84=446.448,-125.157,542.06,0.1502,0.247,0.8421,-20.4894", -2, 52),
    ("+proj=tmerc +lat_0=0 +lon_0=173 +k=0.9996 +x_0=1600000 +y_0=10000000 +ellps=GRS80 +units=ft", 173, -41),
    ("+proj=tmerc +axis=wsu +lat_0=0 +lon_0=29 +k=1 +datum=WGS84", "the records' coordinates grow"),
    ("+proj=moll +datum=WGS84", 10, 50), ("+proj=cea +lat_ts=30 +datum=WGS84", "no record says the projection Lambert Cylindrical"),
    ("+proj=nzmg +datum=WGS84", "no record says the projection New Zealand"),
]
OFFSETS = [(0, 0), (1.5, 1), (-1.5, 1), (1, -2), (-2, -1.5)]
SIZES = {2: 1, 3: 2, 12: 8}


def tags(data):
    """The GeoTIFF tags of a little-endian classic TIFF file: number, type and values."""
    at, = struct.unpack_from("<I", data, 4)
    count, = struct.unpack_from("<H", data, at)
    for i in range(count):
        number, kind, n, offset = struct.unpack_from("<HHII", data, at + 2 + 12 * i)
        if number not in (33550, 33922, 34264, 34735, 34736, 34737):
            continue
        start = offset if n * SIZES[kind] > 4 else at + 2 + 12 * i + 8
        if kind == 2:
            yield number, kind, ['"' + data[start:start + n - 1].decode() + '"']
        else:
            yield number, kind, [repr(v) for v in struct.unpack_from(f"<{n}{'H' if kind == 3 else 'd'}", data, start)]


def write(system):
    with tempfile.NamedTemporaryFile(suffix=".tif") as file:
        image = gdal.GetDriverByName("GTiff").Create(file.name, 1, 1, options=["ENDIANNESS=LITTLE"])
        image.SetProjection(system.ExportToWkt())
        image.SetGeoTransform((500000, 10, 0, 4000000, 0, -10))
        image = None
        return open(file.name, "rb").read()


print(f"# Printed by make_systems.py with GDAL {gdal.__version__}, PROJ "
      f"{osr.GetPROJVersionMajor()}.{osr.GetPROJVersionMinor()}.{osr.GetPROJVersionMicro()}.")
for definition, *place in SYSTEMS:
    system = osr.SpatialReference()
    system.SetFromUserInput(definition)
    print(f"\nsystem {definition}")
    for number, kind, values in tags(write(system)):
        print("tag", number, kind, *values)
    if len(place) == 1:
        print("refused", place[0])
        continue
    own = system.CloneGeogCS()
    for s in (system, own):
        s.SetAxisMappingStrategy(osr.OAMS_TRADITIONAL_GIS_ORDER)
    forward = osr.CoordinateTransformation(own, system)
    unit, meridian = math.degrees(own.GetAngularUnits()), float(own.GetAttrValue("PRIMEM", 1))
    for dx, dy in OFFSETS:
        x, y, _ = forward.TransformPoint((place[0] + dx - meridian) / unit, (place[1] + dy) / unit)
        print("point", place[0] + dx, place[1] + dy, repr(x), repr(y))
