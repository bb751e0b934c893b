#!/usr/bin/env python3
"""Writes numbered.txt: for projected systems that tags name by number, a point as PROJ has it.

    /usr/bin/python3 make_numbered.py > numbered.txt      (needs Debian's python3-gdal)

A line a system: number, longitude and latitude on its own datum, X and Y in its own unit. These are all systems of the
tables in src/files/geotiff and of the State Plane catalogue that this version of PROJ knows.
"""
import glob
import os
import re

from osgeo import gdal, osr

osr.UseExceptions()
gdal.SetConfigOption("OSR_USE_NON_DEPRECATED", "NO")  # a number means what it meant
here = os.path.dirname(os.path.abspath(__file__))
source = os.path.join(here, "..", "..", "..", "src")


def rows(pattern):
    for name in sorted(glob.glob(os.path.join(source, pattern))):
        for line in open(name):
            match = re.match(r" +(\w+Row|Corrected)\{(.*?)\}", line)
            if match:
                yield match[1], match[2].split(", ")


codes = set()
for kind, fields in rows("files/geotiff/*_table.h"):
    if kind == "UtmRow":
        codes |= {int(fields[0]), int(fields[1])}
    elif kind in ("StatePlaneRow", "GridRow"):
        codes.add(int(fields[0]))
for kind, fields in rows("files/geotiff/zones.cpp"):
    codes.add(int(fields[0]))
for kind, fields in rows("proj/zone_table.h"):
    codes |= {int(fields[1]), int(fields[2])}

print(f"# Printed by make_numbered.py with PROJ {osr.GetPROJVersionMajor()}.{osr.GetPROJVersionMinor()}."
      f"{osr.GetPROJVersionMicro()}.")
for code in sorted(codes - {0}):
    system = osr.SpatialReference()
    try:
        system.ImportFromEPSG(code)
    except RuntimeError:
        continue
    own = system.CloneGeogCS()
    for s in (system, own):
        s.SetAxisMappingStrategy(osr.OAMS_TRADITIONAL_GIS_ORDER)
    area = system.GetAreaOfUse()
    west, east = area.west_lon_degree, area.east_lon_degree
    lon = west + ((east - west) % 360) / 2
    lon -= 360 if lon > 180 else 0
    if system.GetAttrValue("PROJECTION") == "Transverse_Mercator":  # the middle of its area may be far from its meridian
        middle = system.GetProjParm("central_meridian")
        lon = min(max(lon, middle - 2.5), middle + 2.5)
    lon, lat = round(lon, 2), round((area.south_lat_degree + area.north_lat_degree) / 2, 2)
    try:
        x, y, _ = osr.CoordinateTransformation(own, system).TransformPoint(lon, lat)
    except RuntimeError:  # the middle of its area is not on the map
        continue
    print(code, lon, lat, f"{x:.4f}", f"{y:.4f}")
