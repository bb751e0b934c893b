"""What the scripts that make reference values share: the keys of the library's tables, and the files' hand-written heads."""
import os
import re

SOURCE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "..", "src", "proj")


def table(name, pattern):
    with open(os.path.join(SOURCE, name)) as source:
        return re.findall(pattern, source.read())


TYPES = table("projection_table.h", r'\.key = "([^"]+)"')
ELLIPSOIDS = [re.sub("[^a-z0-9]+", "-", name.lower()).strip("-")
              for name in table("ellipsoid_table.h", r'EllipsoidRow\{"([^"]+)"')]


def record(kind, ellipsoid):
    """The first words of a record, from the numbers of its type and ellipsoid."""
    return f"type={TYPES[kind]} ellipsoid={ELLIPSOIDS[ellipsoid]}"


def rewritten(name):
    """The file, opened to write what is made: what stands above the line "# Made by ..." stays."""
    with open(name) as old:
        lines = old.readlines()
    head = next((i for i, line in enumerate(lines) if line.startswith("# Made by")), len(lines))
    out = open(name, "w")
    out.writelines(lines[:head])
    return out
