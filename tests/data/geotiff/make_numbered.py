#!/usr/bin/env python3
"""Writes numbered.txt: for projected systems that tags name by number, a point as PROJ has it.

    /usr/bin/python3 make_numbered.py > numbered.txt      (needs Debian's python3-gdal)

Left out are those in which the register and PROJ are known to differ.

A line a system: number, longitude from Greenwich and latitude on its own datum, X and Y in its own unit. These are every third projected
system of the register that this version of PROJ knows.
"""
import math

from osgeo import gdal, osr

osr.UseExceptions()
gdal.SetConfigOption("OSR_USE_NON_DEPRECATED", "NO")  # a number means what it meant
everyNth = 3
disputed = {3973, 3974, 3975, 9311, 31300}  # azimuthal and cylindrical equal area on authalic spheres; the Belgian Lambert of 1972

print(f"# Printed by make_numbered.py with PROJ {osr.GetPROJVersionMajor()}.{osr.GetPROJVersionMinor()}."
      f"{osr.GetPROJVersionMicro()}.")
codes = []
for code in range(1024, 32767):
    system = osr.SpatialReference()
    try:
        system.ImportFromEPSG(code)
    except RuntimeError:
        continue
    if system.IsProjected() and not system.IsCompound() and code not in disputed:
        codes.append(code)
for code in codes[::everyNth]:
    system = osr.SpatialReference()
    system.ImportFromEPSG(code)
    own = system.CloneGeogCS()
    for s in (system, own):
        s.SetAxisMappingStrategy(osr.OAMS_TRADITIONAL_GIS_ORDER)
    area = system.GetAreaOfUse()
    west, east = area.west_lon_degree, area.east_lon_degree
    lon = west + ((east - west) % 360) / 2
    lon -= 360 if lon > 180 else 0
    unit, meridian = math.degrees(own.GetAngularUnits()), float(own.GetAttrValue("PRIMEM", 1))
    if system.GetAttrValue("PROJECTION") == "Transverse_Mercator":  # the middle of its area may be far from its meridian
        middle = meridian + system.GetProjParm("central_meridian")
        lon = min(max(lon, middle - 2.5), middle + 2.5)
    lon, lat = round(lon, 2), round((area.south_lat_degree + area.north_lat_degree) / 2, 2)
    try:
        x, y, _ = osr.CoordinateTransformation(own, system).TransformPoint((lon - meridian) / unit, lat / unit)
    except RuntimeError:  # the middle of its area is not on the map
        continue
    print(code, lon, lat, f"{x:.4f}", f"{y:.4f}")
